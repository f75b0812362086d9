// The base of every skinned window.
//
// A derived window fills its message table in its constructor, builds its controls in BuildControls, and in
// OnInitDialog calls the base's first, then SetShapeFromBitmap and LoadBackground as it needs them.
#pragma once

#include <memory>
#include <span>
#include <vector>

#include "skin/background.h"
#include "skin/control_groups.h"
#include "skin/control_table.h"
#include "skin/message_map.h"
#include "skin/mouse_router.h"
#include "skin/picture_ids.h"
#include "skin/popup_places.h"

namespace tarnix {

class CDlgBase : public Window {
  public:
    static constexpr Size mainSize{805, 588};
    static constexpr unsigned iconId = picture::programIcon;

    /// The traits' role is the class's name.
    explicit CDlgBase(WindowTraits traits, Size size = mainSize);
    ~CDlgBase() override;

    /// Makes the window, initialises it while it is hidden, and runs it modally. IDCANCEL when it
    /// exists already.
    int DoModal();
    /// Makes and initialises the window, hidden. False when it exists already.
    bool Create();

    /// The first control with the identifier, in the order of the groups; none if there is none.
    CControlBase* GetControl(unsigned id) const { return m_controls.find(id); }
    /// The same control where it is of that class; none otherwise.
    template <class T>
    T* control(unsigned id) const {
        return dynamic_cast<T*>(GetControl(id));
    }
    /// Repaints a control; nothing without one.
    void repaintControl(unsigned id) const;

    const MessageMap& messages() const { return m_messages; }
    PopupPlaces& popups() { return m_popups; }
    ControlGroups& controls() { return m_controls; }
    const ControlGroups& controls() const { return m_controls; }

    /// Makes the controls of a table in its order and puts them into a group.
    void addControls(std::size_t group, std::span<const ControlRow> rows, Point origin = {});

    /// Prepares the background from a bitmap; without it everything stays as it is.
    void LoadBackground(unsigned bitmap);
    /// Cuts the window's outline: pure yellow pixels of the bitmap are outside.
    void SetShapeFromBitmap(unsigned bitmap);

    void OnPaint(Canvas& canvas, const Rect& dirty) override;
    void OnMouseMove(unsigned flags, Point at) override;
    void OnLButtonDown(unsigned flags, Point at) override;
    void OnLButtonUp(unsigned flags, Point at) override;
    void OnLButtonDblClk(unsigned flags, Point at) override;
    void OnMouseLeave() override;
    void OnMouseHover() override;
    bool OnKey(const KeyPress& key) override;
    void OnClose() override;
    void OnDestroy() override;
    LResult OnMessage(Message message, WParam w, LParam l) override;
    AccessibleFace accessibleFace() const override;
    void OnAccessibleValue(unsigned number, int value) override;

  protected:
    /// The initial setup: icon, title, size, controls, place.
    virtual void OnInitDialog();
    /// Paints the part of the face within `dirty`. Default: background, then controls.
    virtual void DrawWindow(Canvas& canvas, const Rect& dirty);
    virtual void DrawControls(Canvas& canvas, const Rect& clip);
    /// Creates the window's controls; its argument is the client area.
    virtual void BuildControls(const Rect& client) = 0;
    /// Escape, and a request to close the window. Default: ends the modal run with IDCANCEL.
    virtual void OnCancel();
    /// Enter. Default: nothing.
    virtual void OnEnter();

    void drawBackground(Canvas& canvas, const Rect& dirty) const { m_background.draw(canvas, dirty); }
    const MouseRouter& mouse() const { return m_mouse; }

    /// Puts a control into a group and answers it.
    template <class T>
    T& addControl(std::size_t group, std::unique_ptr<T> control) {
        T& added = *control;
        m_controls.add(group, std::move(control));
        return added;
    }

    MessageMap m_messages;

  private:
    bool giveUpTyping();

    WindowTraits m_traits;
    Size m_size;
    Background m_background;
    ControlGroups m_controls;
    MouseRouter m_mouse{*this, m_controls};
    PopupPlaces m_popups{*this, m_mouse};
};

/// Puts texts of a window's background in front of what else assistive technology is told of the window.
void addPaintedTexts(AccessibleFace& face, std::span<const PaintedText> texts);

} // namespace tarnix
