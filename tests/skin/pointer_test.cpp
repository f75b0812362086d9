// Real pointer and key events on real windows.
#include <cstdlib>

#include "skin/list_popup.h"
#include "skin_fixture.h"

namespace tarnix {
namespace {

void xdotool(const std::string& arguments) {
    ASSERT_EQ(std::system(("xdotool " + arguments).c_str()), 0) << arguments;
}

class PointerTest : public SkinTest {
  protected:
    std::string at(const Window& window, Point point) const {
        const Rect rect = window.screenRect();
        return "mousemove " + std::to_string(rect.left + point.x) + ' ' + std::to_string(rect.top + point.y);
    }
    /// The messages so far but for those of the numbers that a test does not ask for.
    bool got(const Notices& expected) const { return dialog.notices == expected; }
};

TEST_F(PointerTest, PressOfAButtonIsCapturedAndReleasedOutsideTheWindow) {
    auto& button = dialog.make<CImageButton>(0, 2001u, Rect::at(380, 10, 20, 20));
    const auto steps = dialog.run({
        {[&] {
             xdotool(at(dialog, {390, 20}));
         },
         [&] { return button.m_nMouseState == mouseHover; }},
        {[&] { xdotool("mousedown 1"); }, [&] { return button.m_nMouseState == mousePressed; }},
        {[&] {
             xdotool(at(dialog, {450, 20}));
             xdotool("mouseup 1");
         },
         [&] { return button.m_nMouseState == mouseNormal; }},
        {[&] {
             xdotool(at(dialog, {390, 20}) + " click 1");
         },
         [&] { return dialog.notices.size() >= 3; }},
    });
    EXPECT_EQ(steps, 4u);
    EXPECT_EQ(dialog.take(), (Notices{{2001, 0, 1}, {2001, 0, 1}, {2001, 0, 2}}));
}

TEST_F(PointerTest, BackgroundDragsTheWindowAndControlsDoNot) {
    dialog.make<CImageButton>(0, 2001u, Rect::at(10, 10, 20, 20));
    Rect before;
    const auto moved = [&] { return dialog.screenRect().left > before.left; };
    const auto drag = [&] {
        xdotool("mousemove_relative 2 0"); // again and again, for the window manager takes its time to start
        return moved();
    };
    const auto steps = dialog.run({
        {[&] {
             xdotool(at(dialog, {20, 20}) + " mousedown 1 mousemove_relative 2 0");
         },
         [&] { return dialog.notices.size() == 1; }},
        {[&] { xdotool("mousemove_relative 50 50 mouseup 1"); },
         [&] { return dialog.mouse().hot() == nullptr; }},
        {[&] {
             before = dialog.screenRect();
             xdotool(at(dialog, {200, 150}) + " mousedown 1");
         },
         drag},
        {[] { xdotool("mouseup 1"); }, [] { return true; }},
        {[&] {
             xdotool(at(dialog, {20, 20}));
         },
         [&] { return dialog.mouse().hot() != nullptr; }},
        {[] { xdotool("click 1"); }, [&] { return dialog.notices.size() == 3; }},
    });
    EXPECT_EQ(steps, 6u);
    EXPECT_EQ(dialog.take(), (Notices{{2001, 0, 1}, {2001, 0, 1}, {2001, 0, 2}}));
}

TEST_F(PointerTest, ListFollowsThePointerAnswersAndIsFreedWhenItsOwnerClosesIt) {
    struct Counted : CLightSpeedPopup {
        explicit Counted(int& count) : alive(count) { ++alive; }
        ~Counted() override { --alive; }
        int& alive;
    };
    int alive = 0;
    CListPopup* list = nullptr;
    const auto open = [&] {
        auto popup = std::make_unique<Counted>(alive);
        list = popup.get();
        dialog.popups().open(PopupPlace::LightSpeed, std::move(popup), Rect::at(50, 80, 169, 0), 0x431, 2093);
    };
    bool chosen = false;
    dialog.m_messages.on(0x431, [&](WParam tag, LParam) { chosen = chosen || tag == 2093; });
    dialog.m_messages.on(1072, [&] { dialog.popups().close(PopupPlace::LightSpeed); });
    const auto steps = dialog.run({
        {open, [&] { return list->isVisible(); }},
        {[&] {
             xdotool(at(*list, {40, 25}));
         },
         [&] { return list->hotRow() == 1 && list->pointerInside(); }},
        {[&] { xdotool("click 1"); }, [&] { return chosen; }},
        {[&] {
             xdotool(at(dialog, {20, 20}) + " click 1");
         },
         [&] { return alive == 0; }},
        {open, [&] { return alive == 1; }},
        {[&] { xdotool("key Escape"); }, [&] { return alive == 0; }},
        {[&] { xdotool("key Escape"); }, [&] { return dialog.cancels == 1; }},
    });
    EXPECT_EQ(steps, 7u);
    int closings = 0;
    for (const Notice& notice : dialog.take())
        closings += notice == Notice{CWndPopup::closingMessage, 0, 0};
    EXPECT_EQ(closings, 2);
}

TEST_F(PointerTest, ListsStandSideBySideAndTheOneLeftHearsOfIt) {
    Notices lost;
    for (Message message : {1029u, 1032u})
        dialog.m_messages.on(message, [&, message](WParam w, LParam l) { lost.push_back({message, w, l}); });
    const auto opened = [&](PopupPlace place) { return dialog.popups().at(place)->isVisible(); };
    const auto steps = dialog.run({
        {[&] {
             dialog.popups().open(PopupPlace::Category, std::make_unique<CComboPopup>(),
                                  Rect::at(10, 10, 1, 1), 0x403, 5);
         },
         [&] { return opened(PopupPlace::Category); }},
        {[&] {
             dialog.popups().open(PopupPlace::Multimedia, std::make_unique<CProfilePopup>(),
                                  Rect::at(179, 26, 1, 1), 0x407, 6);
         },
         [&] { return opened(PopupPlace::Multimedia); }},
        {[] {},
         [&] {
             return lost == Notices{{1029, 5, 0}} && opened(PopupPlace::Category);
         }},
        {[&] {
             xdotool(at(dialog, {390, 290}) + " click 1");
         },
         [&] { return lost.size() == 2; }},
    });
    EXPECT_EQ(steps, 4u);
    EXPECT_EQ(lost.back(), (Notice{1032, 6, 1}));
}

} // namespace
} // namespace tarnix
