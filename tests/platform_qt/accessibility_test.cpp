// What reaches a window through the toolkit's accessibility interfaces.
#include <QAccessible>
#include <QGuiApplication>
#include <QWindow>

#include "platform/edit_field.h"
#include "window_fixture.h"

namespace tarnix::testing {
namespace {

class ToldWindow : public RecordingWindow {
  public:
    using RecordingWindow::RecordingWindow;

    AccessibleFace accessibleFace() const override { return face; }
    void OnAccessibleValue(unsigned number, int value) override {
        note("value " + std::to_string(number) + " " + std::to_string(value));
    }
    void OnLButtonDown(unsigned flags, Point at) override {
        RecordingWindow::OnLButtonDown(flags, at);
        if (cursorPosition() != at) note("pointer elsewhere");
    }

    AccessibleFace face{.name = "A window"};
};

class Accessibility : public WindowTest {
  protected:
    void SetUp() override {
        using Role = AccessibleRole;
        auto& items = m_window.face.items;
        items = {{7, Role::Button, Rect::at(10, 10, 21, 11), "A button"},
                 {9, Role::ScrollBar, Rect::at(50, 10, 10, 90), "A bar"},
                 {3, Role::List, Rect::at(100, 20, 80, 60), "A list"}};
        items[1].range = {2, 5};
        items[2].rows = {{40, Role::ListItem, Rect::at(100, 40, 80, 20), "\xC4\xAC\xC8\xCF", "a value"}};
        showMain(m_window);
    }

    static QAccessibleInterface& root() {
        for (const QWindow* window : QGuiApplication::topLevelWindows())
            if (window->isVisible() && window->accessibleRoot()->text(QAccessible::Name) == "A window")
                return *window->accessibleRoot();
        throw std::logic_error("the window is not told of");
    }
    static void press(QAccessibleInterface& item) {
        item.actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    }

    ToldWindow m_window{"", m_log};
};

TEST_F(Accessibility, APressIsThePointersAndWaitsItsTurn) {
    QAccessibleInterface& button = *root().child(0);
    QAccessibleInterface& row = *root().child(2)->child(0);
    press(button);
    application().clock().pause(Milliseconds(20));
    EXPECT_THAT(m_log, IsEmpty());
    m_window.post(1);
    press(row);
    ASSERT_TRUE(logged("up 0 139,49"));
    settle();
    EXPECT_THAT(m_log,
                ElementsAre("down 1 20,15", "up 0 20,15", "message 1 0 0", "down 1 139,49", "up 0 139,49"));
    EXPECT_EQ(root().childAt(mainPlace.left + 139, mainPlace.top + 49), root().child(2));
    EXPECT_EQ(row.parent()->parent(), &root());
    EXPECT_EQ(row.text(QAccessible::Name), QString::fromUtf8("默认, a value"));
}

TEST_F(Accessibility, WhatTheUserCannotReachStaysAsItIs) {
    QAccessibleInterface& button = *root().child(0);
    QAccessibleInterface& bar = *root().child(1);
    bool disabled = false;
    EditField field(m_window, 17, Rect::at(20, 120, 150, 20), {.caption = "A field"});
    field.setText("old");
    QAccessibleInterface& text = *root().child(3);
    EXPECT_EQ(text.text(QAccessible::Name), "A field");
    const auto tryAll = [&] {
        m_log.clear();
        press(button);
        m_window.face.items[0].disabled = disabled;
        bar.valueInterface()->setCurrentValue(99);
        text.editableTextInterface()->replaceText(0, 3, "new");
        EXPECT_THAT(m_log, IsEmpty()) << "the asker is answered before the window acts";
        m_window.post(1);
        EXPECT_TRUE(logged("message 1 0 0"));
    };
    {
        RecordingWindow modal("Modal", m_log);
        ASSERT_TRUE(modal.createWindow({.owner = &m_window}, mainPlace));
        const auto later = application().mainLoop().after(Milliseconds(1), [&] {
            tryAll();
            modal.endModal(IDOK);
        });
        modal.runModal();
        EXPECT_EQ(field.text(), "old");
        EXPECT_THAT(m_log, Not(Contains("edit 17")));
        EXPECT_THAT(m_log, Not(Contains("value 9 5")));
    }
    disabled = true;
    tryAll();
    EXPECT_THAT(m_log, ::testing::IsSupersetOf({"edit 17", "value 9 5"}));
    EXPECT_THAT(m_log, Not(Contains("down 1 20,15")));
    EXPECT_EQ(field.text(), "new");
    m_window.face.items.erase(m_window.face.items.begin());
    EXPECT_EQ(button.state().invisible, 1);
    EXPECT_EQ(root().child(0), &bar) << "others stay who they are";
}

} // namespace
} // namespace tarnix::testing
