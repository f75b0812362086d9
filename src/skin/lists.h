// The list of the macros of a macro set, with naming in place, and the list of the steps of a macro. Both
// read the library; indexes that do not fit it any more read as nothing.
#pragma once

#include <memory>
#include <span>

#include "macro/macro_library.h"
#include "platform/edit_field.h"
#include "skin/control_base.h"
#include "skin/image_strip.h"

namespace tarnix {

/// What both lists are: rows of 20 pixels, one of them selected.
class CRowList : public CMouseControl {
  public:
    static constexpr int rowHeight = 20;

    void Draw(Canvas& canvas, const Rect& clip) override;
    /// The rows on the screen are the items of the list.
    void describe(AccessibleItem& item) const override;
    /// Number of items that there are to show.
    virtual int rowCount() const = 0;
    /// What an item reads as; empty where there is none.
    virtual std::string text(int index) const = 0;

    int m_nSelected = -1;   ///< index of the selected item, -1 for none
    int m_nVisibleRows = 0; ///< as many as the height holds, rounded to the nearest row
    int m_nFirstRow = 0;    ///< index of the first item on the screen

  protected:
    CRowList(Window& owner, unsigned id, const Rect& rect, std::string text, bool visible, bool disabled);
    /// Draws an item that there is.
    virtual void drawRow(Canvas& canvas, int index, const Rect& row) = 0;
    /// Where a line of the screen stands, counted from the top of the list.
    Rect rowRect(int line) const;
    void pressed(Point at) override;

  private:
    /// Calls visit(index, rectangle) for each item on the screen.
    template <class F>
    void forEachShown(F visit) const;
};

/// The names of the macros of one set of a library.
class CEditShowList : public CRowList {
  public:
    static constexpr unsigned editorId = 2016;

    /// The library must outlive the list.
    CEditShowList(Window& owner, unsigned id, const Rect& rect, MacroLibrary& source, std::string text = {},
                  bool visible = true, bool disabled = false);

    /// Shows a set from its top and selects its first macro, if it has one.
    void SelectSet(int set);
    /// Shows the last macros of the set.
    void ScrollToEnd();
    /// Opens the field for a new macro's name. 0 when one is open already, else 1, also when the set does not
    /// exist and nothing opens.
    int BeginNewName();
    bool isEditing() const { return m_editor != nullptr; }
    /// What stands in the field; empty without one.
    std::string editorText() const;
    /// Closes the field without taking its text.
    void CloseEditor() { m_editor.reset(); }
    /// The same at the user's wish, which the owner hears of.
    void DropNewName();
    bool OnEscape() override;

    int currentSet() const { return m_nSet; }
    int rowCount() const override;
    std::string text(int macro) const override;

  protected:
    void drawRow(Canvas& canvas, int index, const Rect& row) override;
    void pressed(Point at) override;

  private:
    const MacroSet* shownSet() const;
    void finishName();

    MacroLibrary& m_source;
    std::unique_ptr<EditField> m_editor;
    int m_nSet = -1;
};

/// The steps of one macro, with an icon for each.
class CImageShowList : public CRowList {
  public:
    /// The library must outlive the list.
    CImageShowList(Window& owner, unsigned id, const Rect& rect, MacroLibrary& source, std::string text = {},
                   bool visible = true, bool disabled = false);

    /// True when all icons were found.
    bool LoadImages();
    /// Shows a macro from its first step with no step selected; negative indexes show none.
    void ShowMacro(int set, int macro);
    int shownSet() const { return m_nSet; }
    int shownMacro() const { return m_nMacro; }
    int rowCount() const override;
    std::string text(int step) const override;

  protected:
    void drawRow(Canvas& canvas, int index, const Rect& row) override;

  private:
    std::span<const MacroAction> steps() const;

    MacroLibrary& m_source;
    ImageStrip m_release{1};
    ImageStrip m_press{1};
    ImageStrip m_delay{1};
    int m_nSet = -1;
    int m_nMacro = -1;
};

} // namespace tarnix
