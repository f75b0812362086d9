#include "platform/edit_field.h"

#include <QGuiApplication>
#include <QPointer>

#include "window_fixture.h"

namespace tarnix::testing {
namespace {

class Edit : public WindowTest {
  protected:
    void SetUp() override {
        showMain(m_window);
        // Without a window manager the focus comes with a click.
        click({380, 300});
        ASSERT_TRUE(logged("up 0 280,180"));
        m_log.clear();
    }
    int changes(unsigned id) const {
        return static_cast<int>(std::count(m_log.begin(), m_log.end(), "edit " + std::to_string(id)));
    }
    static bool holds(const EditField& field, const std::string& text) {
        return runUntil([&] { return field.text() == text; });
    }
};

TEST_F(Edit, TheUsersChangesAreToldAndTheProgramsAreNot) {
    EditField field(m_window, 17, Rect::at(20, 20, 150, 20));
    field.setText("ab");
    field.setFocus();
    settle();
    EXPECT_EQ(changes(17), 0);
    typeText("cd");
    tapKey("BackSpace");
    EXPECT_TRUE(holds(field, "abc"));
    EXPECT_EQ(changes(17), 3);
    field.setText("\xC4\xAC\xC8\xCF");
    EXPECT_EQ(field.text(), "默认") << "a text of the program's own";
}

TEST_F(Edit, NumbersOnlyKeepsLettersFromBeingTypedButNotFromBeingPasted) {
    EditField letters(m_window, 1, Rect::at(20, 20, 150, 20));
    EditField numbers(m_window, 2, Rect::at(20, 60, 150, 20), {.numbersOnly = true});
    letters.setText("x9");
    letters.setFocus();
    settle();
    tapKey("ctrl+a");
    tapKey("ctrl+c");
    click({140, 190});
    typeText("1a2");
    tapKey("ctrl+v");
    EXPECT_TRUE(holds(numbers, "12x9"));
    EXPECT_EQ(changes(2), 3);
}

TEST_F(Edit, TheWindowSeesEachKeyOnceAndFirst) {
    EditField field(m_window, 1, Rect::at(20, 20, 150, 20));
    field.setFocus();
    tapKey("a");
    ASSERT_TRUE(logged("key up other"));
    tapKey("Return");
    ASSERT_TRUE(logged("key up Enter"));
    EXPECT_THAT(m_log, ElementsAre("key other", "edit 1", "key up other", "key Enter", "key up Enter"));
    m_log.clear();
    m_window.swallowsKeys = true;
    tapKey("b");
    ASSERT_TRUE(logged("key up other"));
    EXPECT_EQ(field.text(), "a");
    EXPECT_EQ(changes(1), 0);
}

TEST_F(Edit, AFieldMayBeDeletedByItsOwnEnterAndTheKeysGoToTheWindow) {
    auto field = std::make_unique<EditField>(m_window, 1, Rect::at(20, 20, 150, 20));
    field->setFocus();
    const QPointer<QObject> native = QGuiApplication::focusObject();
    m_window.onKey = [&](const KeyPress& key) {
        if (key.key != KeyPress::Key::Enter || !key.down) return;
        field.reset();
        EXPECT_TRUE(native) << "it is still at work with the key";
    };
    tapKey("Return");
    ASSERT_TRUE(logged("key up Enter"));
    tapKey("a");
    ASSERT_TRUE(logged("key up other"));
    EXPECT_THAT(m_log, ElementsAre("key Enter", "key up Enter", "key other", "key up other"));
    EXPECT_FALSE(native);
}

} // namespace
} // namespace tarnix::testing
