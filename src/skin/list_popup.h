// The popup lists: one implementation, and a row of data for each class of list.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "skin/selection.h"
#include "skin/wnd_popup.h"

namespace tarnix {

struct MacroLibrary;
struct MacroSet;

/// A row of a popup list as its class's table has it.
struct ListItem {
    const char* text;
    int code;
    bool submenu = false; ///< an arrow at the right end
};

/// What sets one class of list apart from the others.
struct ListClass {
    const char* name;
    unsigned kind;
    std::uint8_t firstByte; ///< byte 0 of the record at first
    int width;              ///< 0: that of the rectangle given at creation
    TextFormat format;
    /// A press on a row with a smaller code sends the notify message with both words 0, and a press elsewhere
    /// takes the highlight away; with 0 presses are ignored.
    int answersPressBelow;
    std::span<const ListItem> items; ///< empty where the class itself adds its rows
    /// Puts the choice of a row's code into the record; none where the class itself answers.
    void (*choose)(int code, SelectionRecord& record);
};

class CListPopup : public CWndPopup {
  public:
    struct Row {
        bool separator = false;
        int code = 0;
        std::string text;
        Rect rect; ///< client coordinates
        bool submenu = false;
    };

    const std::vector<Row>& rows() const { return m_rows; }
    /// Index of the highlighted row, -1 for none.
    int hotRow() const { return m_nHotRow; }
    AccessibleFace accessibleFace() const override;

  protected:
    /// The traits must outlive the popup; `kindOffset` is added to their kind.
    explicit CListPopup(const ListClass& traits, unsigned kindOffset = 0);

    void addRow(std::string text, int code, bool submenu = false);
    void addSeparator();
    /// Adds the class's rows. Default: those of its table.
    virtual void addRows();
    /// A row was chosen. Default: the class's `choose`, then `answer`.
    virtual void chosen(const Row& row);
    /// Another row is hot now. Default: nothing.
    virtual void hovered(int index, const Row& row);
    /// Sends the record with the notify message and a tag.
    void answer(WParam tagWord);
    /// Sends the owner a message of another number, with the tag.
    void tell(Message message, int value);

    SelectionRecord m_record;

  private:
    Size BuildRows() final;
    void DrawList(Canvas& canvas, const Rect& client) final;
    bool OnPopupMouseMove(Point at) final;
    bool OnPopupLButtonDown(Point at) final;
    bool OnPopupLButtonUp(Point at) final;
    bool inHotRow(Point at) const;

    const ListClass& m_class;
    std::vector<Row> m_rows;
    int m_nHotRow = -1;
};

/// Function categories of a G-key.
class CComboPopup : public CListPopup {
  public:
    CComboPopup();

  protected:
    void chosen(const Row& row) override;
    void hovered(int index, const Row& row) override;
};

/// Multimedia functions.
class CProfilePopup : public CListPopup {
  public:
    CProfilePopup();
};

/// Web and system functions.
class CDPIPopup : public CListPopup {
  public:
    CDPIPopup();
};

/// Mouse functions; as wide as the rectangle given at creation.
class CMultimediaPopup : public CListPopup {
  public:
    CMultimediaPopup();
};

class CLightModePopup : public CListPopup {
  public:
    CLightModePopup();
};

class CLightBrightnessPopup : public CListPopup {
  public:
    CLightBrightnessPopup();
};

class CLightSpeedPopup : public CListPopup {
  public:
    CLightSpeedPopup();
};

/// The macros of the first set of a library, which must outlive the popup.
class CMacroLibraryPopup : public CListPopup {
  public:
    explicit CMacroLibraryPopup(MacroLibrary& library);

  protected:
    void addRows() override;
    void chosen(const Row& row) override;

  private:
    MacroLibrary& m_library;
};

/// The sets of a library, which must outlive the popup. The answer is a number, no record: 0 add a set, 1
/// delete a set, from 2 on the set's index + 2.
class CMacroSetListPopup : public CListPopup {
  public:
    explicit CMacroSetListPopup(MacroLibrary& library);

  protected:
    void addRows() override;
    void chosen(const Row& row) override;

  private:
    MacroLibrary& m_library;
};

/// "Edit Macro" (answered without a record) and the macros of one set of a library, which must outlive the
/// popup. Its kind is 100 + the set's index.
class CMacroSetPopup : public CListPopup {
  public:
    CMacroSetPopup(MacroLibrary& library, unsigned set);

  protected:
    void addRows() override;
    void chosen(const Row& row) override;

  private:
    MacroLibrary& m_library;
    unsigned m_nSet;
};

} // namespace tarnix
