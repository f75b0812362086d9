// Buttons, labels and tabs: what they send and which frame they show.
#include "skin/scroll_bar.h"
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

/// Mouse input as letters: m and o move inside and out, d and u press and release inside, x and y at the
/// edges outside, D and U inside.
void feed(CControlBase& control, const char* input) {
    for (; *input; ++input)
        switch (*input) {
            case 'm':
                control.OnMouseMove(0, inside);
                break;
            case 'o':
                control.OnMouseMove(0, rightEdge);
                break;
            case 'd':
                control.OnLButtonDown(0, inside);
                break;
            case 'u':
                control.OnLButtonUp(0, inside);
                break;
            case 'x':
                control.OnLButtonDown(0, bottomEdge);
                break;
            case 'y':
                control.OnLButtonUp(0, rightEdge);
                break;
        }
}

class ControlsTest : public SkinTest {
  protected:
    void SetUp() override {
        SkinTest::SetUp();
        g_nRadioMask = 0xAA;
        for (unsigned frames : {3u, 5u, 7u})
            pictures.addStrip(strip + frames, static_cast<int>(frames), {20, 8}, 2);
    }
    template <class T>
    T& button(unsigned id, unsigned frames) {
        T& made = dialog.make<T>(0, id, place);
        made.LoadImage(strip + frames);
        return made;
    }
    CComboButton& combo() {
        auto& made = dialog.make<CComboButton>(0, Message{0x404}, 2078u, place);
        made.LoadImage(strip + 5);
        return made;
    }
};

TEST_F(ControlsTest, ClickNeedsOnlyAReleaseInsideAndLeavingCancelsAPress) {
    struct Kind {
        CControlBase* control;
        Notice down;
        Notice click;
    };
    const Kind kinds[] = {
        {&button<CImageButton>(2001, 3), {2001, 0, 1}, {2001, 0, 2}},
        {&button<CCheckButton>(2112, 7), {2112, 0, 1}, {2112, 0, 2}},
        {&button<CRadioButton>(2006, 3), {2006, 0, 1}, {2006, 0, 2}},
        {&button<CKeyboardButton>(2200, 3), {2200, 0, 1}, {2200, 2200, 2}},
        {&combo(), {2078, 0, 1}, {0x404, 2078, 2}},
        {&dialog.make<CRegionButton>(0, 2010u, place), {2010, 0, 1}, {2010, 0, 2}},
        {&dialog.make<CStaticText>(0, 2015u, place, Color{0}, 0u), {2015, 0, 1}, {2015, 0, 2}},
        {&button<CTabControl>(2003, 3), {2003, 0, 1}, {2003, 0, 2}},
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
    auto& radio = button<CRadioButton>(2010, 3);
    auto& other = button<CRadioButton>(2020, 3);
    auto& key = button<CKeyboardButton>(2200, 3);
    auto& field = combo();
    const auto frames = [](CControlBase& control) {
        std::string shown;
        for (const char* input : {"o", "m", "d", "y"}) {
            feed(control, input);
            shown += static_cast<char>('0' + shownFrame(control));
        }
        return shown;
    };
    EXPECT_EQ(frames(check), "0120");
    feed(check, "u");
    EXPECT_EQ(frames(check), "3453");
    check.m_bDisabled = true;
    feed(check, "mdu");
    EXPECT_EQ(shownFrame(check), 6);
    check.m_bDisabled = false;
    EXPECT_EQ(shownFrame(check), 3);

    EXPECT_EQ(frames(radio), "0120");
    EXPECT_EQ(frames(other), "0120");
    feed(radio, "u");
    EXPECT_EQ(frames(radio), "2222");
    feed(other, "u");
    EXPECT_EQ(frames(other), "0120");

    key.SetKey("Esc", 0xF5, 0xF5);
    EXPECT_EQ(frames(key), "0120");
    key.SetCurrentCode(0x04);
    EXPECT_EQ(frames(key), "2122");

    EXPECT_EQ(frames(field), "0120");
    field.m_bOpen = true;
    EXPECT_EQ(frames(field), "1111");
    field.m_bInactive = true;
    EXPECT_EQ(frames(field), "3443");
}

TEST_F(ControlsTest, RadioChoiceIsSharedByAllWindowsAndClearsItsGroupAlone) {
    TestDialog elsewhere;
    CRadioButton twin(elsewhere, 2010, place);
    twin.LoadImage(strip + 3);
    EXPECT_EQ(shownFrame(twin), 0);
    feed(button<CRadioButton>(2010, 3), "du");
    EXPECT_EQ(g_nRadioMask, 0xB2u);
    EXPECT_EQ(shownFrame(twin), 2);
    feed(button<CRadioButton>(2008, 3), "du");
    EXPECT_EQ(g_nRadioMask, 0xB4u);
    feed(button<CRadioButton>(2014, 3), "du");
    EXPECT_EQ(g_nRadioMask, 0x134u);
    for (unsigned id : {2005u, 2015u, 2060u})
        feed(button<CRadioButton>(id, 3), "du");
    EXPECT_EQ(g_nRadioMask, 0x134u);
}

TEST_F(ControlsTest, InactiveFieldSendsNothingAndItsTextIsTheValueOrDisable) {
    auto& field = combo();
    const auto ink = [&field] {
        const auto surface = painted(field);
        int pixels = 0;
        for (int y = place.top; y < place.bottom; ++y)
            for (int x = place.left; x < place.right; ++x)
                pixels += surface->image().pixel({x, y}) != frameColor(0);
        return pixels;
    };
    EXPECT_EQ(ink(), 0);
    field.SetValueText("II");
    const int value = ink();
    EXPECT_GT(value, 0);
    field.m_bDisable = true;
    EXPECT_GT(ink(), value);
    field.m_bInactive = true;
    feed(field, "mdu");
    EXPECT_EQ(dialog.take(), Notices{});
}

TEST_F(ControlsTest, LinkTellsOfEnterAndLeaveButNotWhilePressed) {
    auto& link = dialog.make<CLinkButton>(0, 1u, place);
    feed(link, "mmoom");
    EXPECT_EQ(dialog.take(), (Notices{{2060, 0, 4}, {2060, 0, 5}, {2060, 0, 4}}));
    feed(link, "domy");
    EXPECT_EQ(dialog.take(), (Notices{{2060, 0, 1}}));
    feed(link, "o");
    EXPECT_EQ(dialog.take(), (Notices{{2060, 0, 5}}));
    EXPECT_EQ(painted(link)->image().pixel(inside), 0u) << "a link without a picture is invisible";
}

TEST_F(ControlsTest, StripStretchesItsFramesAndNeverShowsColumnsThatAreLeftOver) {
    auto& button3 = button<CImageButton>(2001, 3);
    feed(button3, "d");
    const auto surface = painted(button3);
    for (Point at : {place.topLeft(), Point{59, 30}, Point{20, 45}, inside})
        EXPECT_EQ(surface->image().pixel(at), frameColor(2)) << at.x << ',' << at.y;
    for (Point at : {rightEdge, bottomEdge, Point{19, 40}})
        EXPECT_EQ(surface->image().pixel(at), 0u);

    CImageButton without(dialog, 2002, place);
    EXPECT_FALSE(without.LoadImage(strip));
    EXPECT_EQ(painted(without)->image().pixel(inside), 0u);
    feed(without, "du");
    EXPECT_EQ(dialog.take().size(), 3u) << "a button without a picture still answers the mouse";
}

TEST_F(ControlsTest, RegionButtonCopiesItsFrameUnstretchedAndLeavesTheKeyColourOut) {
    constexpr Color key = 0x112233;
    Canvas& bitmap = pictures.add(ResourceType::Bitmap, 387, {30, 8});
    bitmap.fill({0, 0, 30, 8}, key);
    for (int i = 0; i < 3; ++i)
        bitmap.fill(Rect::at(i * 10 + 2, 2, 6, 4), frameColor(i));
    auto& region = dialog.make<CRegionButton>(0, 2004u, place);
    region.m_region = {0x10000 + 387, 0, 0, 7, 10, 8};
    feed(region, "m");
    const auto surface = painted(region);
    EXPECT_EQ(surface->image().pixel({22, 32}), frameColor(1));
    EXPECT_EQ(surface->image().pixel({27, 35}), frameColor(1));
    for (Point at : {Point{21, 32}, Point{28, 32}, Point{22, 36}, Point{32, 32}})
        EXPECT_EQ(surface->image().pixel(at), 0u) << at.x << ',' << at.y;
    region.m_region = {387, 0, -5, 900, 0, 8};
    painted(region);
}

TEST_F(ControlsTest, TabSelectsItsPageBeforeItNotifiesAndShowsItEverywhere) {
    g_nMainPage = g_nSubPage = 0;
    auto& page = button<CTabControl>(2005, 3);
    auto& profile = button<CTabControl>(2051, 3);
    auto& plain = button<CTabControl>(2100, 3);
    int pageAtNotice = -1;
    dialog.m_messages.onClick(2005, [&] { pageAtNotice = g_nMainPage; });
    feed(page, "duo");
    feed(profile, "duo");
    feed(plain, "duo");
    EXPECT_EQ(pageAtNotice, 2);
    EXPECT_EQ(g_nMainPage, 2);
    EXPECT_EQ(DisplayedProfile, 2) << "the selected profile tab is the shown profile";
    EXPECT_EQ(shownFrame(page), 2);
    EXPECT_EQ(shownFrame(plain), 0);
    DisplayedProfile = 1;
    EXPECT_EQ(shownFrame(profile), 0);
    DisplayedProfile = g_nMainPage = 0;
}

TEST_F(ControlsTest, LabelPlacesItsLineByItsFormat) {
    auto& label =
        dialog.make<CStaticText>(0, 2015u, Rect::at(0, 0, 200, 60), rgb(255, 255, 255),
                                 CStaticText::formatCentred | CStaticText::formatVerticalCentred, "caption");
    const auto leftmost = [](CStaticText& text) {
        const auto surface = painted(text);
        for (int x = 0; x < 200; ++x)
            for (int y = 0; y < 60; ++y)
                if (surface->image().pixel({x, y}) != 0) return x;
        return 200;
    };
    EXPECT_EQ(leftmost(label), 200) << "the caption is not drawn";
    label.m_strLabel = "mm";
    EXPECT_GT(leftmost(label), 60);
    CStaticText left(dialog, 2016, Rect::at(0, 0, 200, 60), rgb(255, 255, 255), CStaticText::formatLeftTop);
    left.m_strLabel = "mm";
    EXPECT_LT(leftmost(left), 10);
}

} // namespace
} // namespace tarnix
