// Buttons, labels and tabs: what they send and which frame they show.
#include "skin/static_text.h"
#include "skin/tab_control.h"
#include "skin_fixture.h"

namespace tarnix {
namespace {

constexpr unsigned strip = 500;
constexpr Rect place = Rect::at(20, 30, 40, 16);
constexpr Point inside{59, 45};    ///< the last pixel that belongs to the control
constexpr Point rightEdge{60, 40}; ///< the first ones that do not
constexpr Point bottomEdge{40, 46};

/// Mouse input as letters: m moves inside, o outside; d and u press and release inside, x and y outside.
void feed(CControlBase& control, std::string_view input) {
    for (char letter : input) {
        if (letter == 'm' || letter == 'o') control.OnMouseMove(0, letter == 'm' ? inside : rightEdge);
        if (letter == 'd' || letter == 'x') control.OnLButtonDown(0, letter == 'd' ? inside : bottomEdge);
        if (letter == 'u' || letter == 'y') control.OnLButtonUp(0, letter == 'u' ? inside : rightEdge);
    }
}

/// The frames shown at rest, hovered, pressed and after a release outside.
std::string frames(CControlBase& control) {
    std::string shown;
    for (const char* input : {"o", "m", "d", "y"}) {
        feed(control, input);
        shown += static_cast<char>('0' + shownFrame(control));
    }
    return shown;
}

class ControlsTest : public SkinTest {
  protected:
    void SetUp() override {
        SkinTest::SetUp();
        g_nRadioMask = 0xCA;
        g_nMainPage = g_nSubPage = 0;
        for (int count : {3, 5, 7})
            pictures.addStrip(strip + static_cast<unsigned>(count), count, {20, 8}, 2);
    }
    template <class T>
    T& button(unsigned id, unsigned count = 3) {
        T& made = dialog.make<T>(0, id, place);
        made.LoadImage(strip + count);
        return made;
    }
    CComboButton& combo() {
        auto& made = dialog.make<CComboButton>(0, Message{0x404}, 2078u, place);
        made.LoadImage(strip + 5);
        return made;
    }
};

TEST_F(ControlsTest, ClickNeedsOnlyAReleaseInsideAndLeavingCancelsAPress) {
    const std::tuple<CControlBase*, Notice, Notice> kinds[] = {
        {&button<CImageButton>(2001), {2001, 0, 1}, {2001, 0, 2}},
        {&button<CCheckButton>(2112, 7), {2112, 0, 1}, {2112, 0, 2}},
        {&button<CRadioButton>(2006), {2006, 0, 1}, {2006, 0, 2}},
        {&button<CKeyboardButton>(2200), {2200, 0, 1}, {2200, 2200, 2}},
        {&combo(), {2078, 0, 1}, {0x404, 2078, 2}},
        {&dialog.make<CRegionButton>(0, 2010u, place), {2010, 0, 1}, {2010, 0, 2}},
        {&dialog.make<CStaticText>(0, 2015u, place, Color{0}, 0u), {2015, 0, 1}, {2015, 0, 2}},
        {&button<CTabControl>(2003), {2003, 0, 1}, {2003, 0, 2}},
    };
    for (const auto& [control, down, click] : kinds) {
        const std::pair<const char*, Notices> cases[] = {
            {"mdu", {down, click}}, {"mdoy", {down}},   {"mdomu", {down, click}},
            {"u", {click}},         {"xoy", Notices{}},
        };
        for (const auto& [input, expected] : cases) {
            feed(*control, input);
            EXPECT_EQ(dialog.take(), expected) << control->m_nID << ' ' << input;
            feed(*control, "o");
        }
        control->m_bDisabled = true;
        feed(*control, "mdu");
        EXPECT_EQ(dialog.take(), Notices{}) << control->m_nID << " disabled";
    }
}

TEST_F(ControlsTest, FrameFollowsMouseAndFlags) {
    auto& check = button<CCheckButton>(2112, 7);
    EXPECT_EQ(frames(check), "0120");
    feed(check, "u");
    EXPECT_EQ(frames(check), "3453");
    check.m_bDisabled = true;
    feed(check, "mdu");
    EXPECT_EQ(shownFrame(check), 6);

    auto& key = button<CKeyboardButton>(2200);
    key.SetKey("Esc", 0xF5, 0xF5);
    EXPECT_EQ(frames(key), "0120");
    key.SetCurrentCode(0x04);
    EXPECT_EQ(frames(key), "2122");

    auto& field = combo();
    EXPECT_EQ(frames(field), "0120");
    field.m_bOpen = true;
    EXPECT_EQ(frames(field), "1111");
    field.m_bInactive = true;
    dialog.take();
    EXPECT_EQ(frames(field), "3443");
    feed(field, "mdu");
    EXPECT_EQ(dialog.take(), Notices{}) << "an inactive field sends nothing";
}

TEST_F(ControlsTest, RadioChoiceIsSharedByAllWindowsAndClearsItsGroupAlone) {
    TestDialog elsewhere;
    CRadioButton twin(elsewhere, 2010, place);
    twin.LoadImage(strip + 3);
    EXPECT_EQ(frames(twin), "0120");
    const std::pair<unsigned, std::uint32_t> clicks[] = {
        {2010, 0xD2}, {2008, 0xD4}, {2014, 0x154}, {2005, 0x154}, {2015, 0x154}};
    for (const auto& [id, mask] : clicks) {
        feed(button<CRadioButton>(id), "du");
        EXPECT_EQ(g_nRadioMask, mask) << id;
    }
    EXPECT_EQ(frames(twin), "2222");
}

TEST_F(ControlsTest, LinkTellsOfEnterAndLeaveButNotWhilePressed) {
    auto& link = dialog.make<CLinkButton>(0, 1u, place);
    feed(link, "mmoomdomyo");
    EXPECT_EQ(dialog.take(), (Notices{{2060, 0, 4}, {2060, 0, 5}, {2060, 0, 4}, {2060, 0, 1}, {2060, 0, 5}}));
}

TEST_F(ControlsTest, RegionsCopyTheirFrameWithoutTheKeyColour) {
    Canvas& bitmap = pictures.add(ResourceType::Bitmap, 387, {30, 8});
    bitmap.fill({0, 0, 30, 8}, 0x112233);
    bitmap.fill(Rect::at(12, 2, 6, 4), frameColor(1));
    auto& region = dialog.make<CRegionButton>(0, 2004u, place);
    region.m_region = {0x10000 + 387, 0, 0, 7, 10, 8};
    feed(region, "m");
    const auto surface = painted(region);
    for (const Point shown : {Point{22, 32}, {27, 35}})
        EXPECT_EQ(surface->image().pixel(shown), frameColor(1)) << shown.x;
    for (const Point leftOut : {Point{21, 32}, {28, 32}, {22, 36}, {32, 32}})
        EXPECT_EQ(surface->image().pixel(leftOut), 0u) << leftOut.x;
}

TEST_F(ControlsTest, TabSelectsItsPageBeforeItNotifiesAndShowsItEverywhere) {
    int pageAtNotice = -1;
    dialog.m_messages.onClick(2005, [&] { pageAtNotice = g_nMainPage; });
    feed(button<CTabControl>(2005), "duo");
    EXPECT_EQ(pageAtNotice, 2);
    EXPECT_EQ(frames(button<CTabControl>(2005)), "2222");
    EXPECT_EQ(frames(button<CTabControl>(2003)), "0120");
    feed(button<CTabControl>(2051), "duo");
    EXPECT_EQ(DisplayedProfile, 2) << "the selected profile tab is the shown profile";
}

} // namespace
} // namespace tarnix
