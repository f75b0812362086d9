// The clickable controls.
#pragma once

#include <cstdint>

#include "skin/control_base.h"
#include "skin/image_strip.h"

namespace tarnix {

/// The selection of all radio groups of the program, shared by every window: one bit for each radio button
/// with an identifier from 2006 to 2014. At first 2007, 2009, 2011 and 2013 are selected.
inline std::uint32_t g_nRadioMask = 0xAA;

/// The bit of a radio button in g_nRadioMask; 0 for a button without one.
std::uint32_t radioBit(unsigned id);
/// Selects a radio button and clears the others of its group; nothing for a button without a bit.
void selectRadio(unsigned id);

/// A button with a strip of frames.
class CStripButton : public CMouseControl {
  public:
    /// True when the picture was found.
    bool LoadImage(unsigned resource) { return m_strip.load(resource); }
    void Draw(Canvas& canvas, const Rect& clip) override;
    void describe(AccessibleItem& item) const override;

  protected:
    CStripButton(int frames, Window& owner, unsigned id, const Rect& rect, std::string text, bool visible,
                 bool disabled);
    /// The frame that shows the present state.
    virtual int frame() const { return m_nMouseState; }

    ImageStrip m_strip;
};

/// Push button; frames: normal, hover, pressed.
class CImageButton : public CStripButton {
  public:
    CImageButton(Window& owner, unsigned id, const Rect& rect, std::string text = {}, bool visible = true,
                 bool disabled = false);
};

/// Check box; frames: normal, hover, pressed, the same three checked, disabled.
class CCheckButton : public CStripButton {
  public:
    CCheckButton(Window& owner, unsigned id, const Rect& rect, std::string text = {}, bool visible = true,
                 bool disabled = false);

    void describe(AccessibleItem& item) const override;

    bool m_bChecked = false;

  protected:
    int frame() const override;
    void clicked(Point at) override;
};

/// Radio button, selected by g_nRadioMask; frames: normal, hover, selected or pressed.
class CRadioButton : public CStripButton {
  public:
    CRadioButton(Window& owner, unsigned id, const Rect& rect, std::string text = {}, bool visible = true,
                 bool disabled = false);

    void describe(AccessibleItem& item) const override;

  protected:
    int frame() const override;
    void clicked(Point at) override;
};

/// Drop-down field. It opens nothing itself: its click asks the owner to open a popup list. Frames: normal,
/// hover, pressed, inactive, inactive under the pointer.
class CComboButton : public CStripButton {
  public:
    /// The arrow with the line before it, at the right end of the field: a long text goes below it.
    static constexpr int arrowWidth = 25;

    /// A click sends (notifyMessage, id, NOTIFY_CLICK).
    CComboButton(Window& owner, Message notifyMessage, unsigned id, const Rect& rect,
                 std::string caption = {}, bool visible = true, bool disabled = false,
                 std::string value = {});

    void Draw(Canvas& canvas, const Rect& clip) override;
    void describe(AccessibleItem& item) const override;
    /// Stores the text that the field shows, and repaints.
    void SetValueText(const std::string& value);
    const std::string& valueText() const { return m_strValue; }

    bool m_bOpen = false;     ///< its list is shown; set and cleared by the owner
    bool m_bInactive = false; ///< sends nothing and is drawn inactive
    bool m_bDisable = false;  ///< shows the word "Disable" in place of the value

  protected:
    int frame() const override;
    void pressed(Point at) override;
    void clicked(Point at) override;

  private:
    /// What stands in the field.
    std::string_view shownText() const;

    std::string m_strValue;
    Message m_nNotifyMessage;
};

/// One key cap of the keyboard on the screen; frames: normal, hover, pressed or remapped.
class CKeyboardButton : public CStripButton {
  public:
    CKeyboardButton(Window& owner, unsigned id, const Rect& rect, std::string text = {}, bool visible = true,
                    bool disabled = false);

    void SetKey(const std::string& name, std::uint8_t defaultCode, std::uint8_t currentCode);
    /// Sets the current code and the remapped flag; does not repaint.
    void SetCurrentCode(std::uint8_t code);
    void describe(AccessibleItem& item) const override;

    std::string m_strKeyName;
    std::uint8_t m_nDefaultCode = 0;
    std::uint8_t m_nCurrentCode = 0;
    bool m_bRemapped = false; ///< looks pressed while the mouse leaves it alone

  protected:
    int frame() const override;
    void clicked(Point at) override;
};

/// Hot spot that also tells when the pointer enters and leaves it; invisible without a picture. All links
/// have the identifier 2060. Frames: normal, hover, pressed.
class CLinkButton : public CStripButton {
  public:
    static constexpr unsigned linkId = 2060;

    CLinkButton(Window& owner, unsigned id, const Rect& rect, std::string text = {}, bool visible = true,
                bool disabled = false);

    bool OnMouseMove(unsigned flags, Point at) override;
    void describe(AccessibleItem& item) const override;

  private:
    bool m_bInside = false;
};

/// What a region button draws: three frames side by side in a bitmap, at their own size, without the key
/// colour.
struct RegionRecord {
    int bitmap = 0;
    int secondBitmap = 0; ///< kept, never drawn
    int keyX = 0;         ///< the pixel whose colour is left out
    int keyY = 0;
    int frameWidth = 0;
    int frameHeight = 0;
};

/// Push button drawn from a bitmap with a key colour.
class CRegionButton : public CMouseControl {
  public:
    CRegionButton(Window& owner, unsigned id, const Rect& rect, std::string text = {}, bool visible = true,
                  bool disabled = false);

    void Draw(Canvas& canvas, const Rect& clip) override;
    void describe(AccessibleItem& item) const override;

    RegionRecord m_region;
};

} // namespace tarnix
