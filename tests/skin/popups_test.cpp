// Popup lists: rows, messages, records and places.
#include "macro/macro_library.h"
#include "skin/list_popup.h"
#include "skin/selection.h"
#include "skin_fixture.h"

namespace tarnix {
namespace {

constexpr Message notify = 0x500;
constexpr unsigned tag = 2078;

/// What came with a message: its words, and the record's text and bytes, copied while that was valid.
using Answer = std::tuple<WParam, LParam, std::string, std::array<std::uint8_t, 4>>;
using Answers = std::vector<Answer>;

class PopupsTest : public SkinTest {
  protected:
    void SetUp() override {
        SkinTest::SetUp();
        dialog.show();
        const auto note = [this](WParam w, LParam l) {
            const SelectionRecord* record = receivedSelection(l);
            answers.push_back(record ? Answer{w, 0, record->text, record->bytes} : Answer{w, l, "", {}});
        };
        dialog.m_messages.on(notify, note);
        dialog.m_messages.on(PopupPlaces::macroSetNotify, note);
    }
    template <class T, class... Args>
    CListPopup& open(PopupPlace place, Args&&... args) {
        auto popup = std::make_unique<T>(std::forward<Args>(args)...);
        CListPopup& opened = *popup;
        dialog.popups().open(place, std::move(popup), Rect::at(0, 0, 169, 0), notify, tag);
        dialog.take();
        return opened;
    }
    static Point in(const CListPopup& popup, std::size_t row) {
        return popup.rows()[row].rect.inset(2).topLeft();
    }
    static void choose(CListPopup& popup, std::size_t row) { clickAt(popup, in(popup, row)); }
    Answers takeAnswers() { return std::exchange(answers, {}); }

    MacroLibrary library{{{"First", {{"Fire"}, {"Water"}}}, {"Second", {}}}};
    Answers answers;
};

TEST_F(PopupsTest, ListHasTheSizeOfItsRowsAndTellsOfALossOfActivationUntilItIsLetGo) {
    constexpr PopupPlace place = PopupPlace::Mouse;
    const auto check = [this](CListPopup& opened, Size size, const Notice& lost) {
        EXPECT_EQ(opened.clientRect().size(), size) << lost;
        opened.OnActivate(false);
        EXPECT_EQ(dialog.take(), Notices{lost});
        EXPECT_EQ(dialog.popups().at(place), &opened);
        CListPopup& next = open<CProfilePopup>(place);
        opened.OnActivate(false);
        EXPECT_EQ(dialog.take(), Notices{}) << "a popup that was let go speaks no more for its place";
        next.destroyWindow();
        EXPECT_TRUE(testing::runUntil([this] { return !dialog.popups().any(); })) << lost;
        dialog.take();
    };
    MacroLibrary empty;
    check(open<CComboPopup>(place), {169, 134}, {1029, tag, 0});
    check(open<CMacroLibraryPopup>(place, empty), {158, 10}, {1047, tag, 4});
    check(open<CMacroSetListPopup>(place, library), {194, 74}, {1055, tag, 5});
    check(open<CLightModePopup>(place), {169, 262}, {1069, tag, 9});
    check(open<CMacroSetPopup>(place, library, 3), {158, 22}, {1050, tag, 103});
}

TEST_F(PopupsTest, EveryRowOfTheFixedListsAnswersWithItsOwnRecord) {
    using Bytes = std::array<std::uint8_t, 4>;
    const auto check = [this](CListPopup& popup, const std::vector<Bytes>& records) {
        ASSERT_EQ(popup.rows().size(), records.size());
        for (std::size_t row = 0; row < records.size(); ++row) {
            choose(popup, row);
            EXPECT_EQ(takeAnswers().back(), (Answer{tag, 0, popup.rows()[row].text, records[row]}));
        }
    };
    const auto counted = [](int rows, Bytes record, std::size_t counter) {
        std::vector<Bytes> records;
        for (; rows > 0; --rows, ++record[counter])
            records.push_back(record);
        return records;
    };
    check(open<CProfilePopup>(PopupPlace::Multimedia), counted(8, {2, 0xA0}, 1));
    check(open<CDPIPopup>(PopupPlace::Web), counted(10, {2, 0xA8}, 1));
    check(open<CMultimediaPopup>(PopupPlace::Mouse),
          {{3, 1}, {3, 2}, {3, 4}, {3, 8}, {3, 16}, {4, 0}, {5, 0}});
    check(open<CLightModePopup>(PopupPlace::LightMode), counted(16, {}, 0));
    check(open<CLightBrightnessPopup>(PopupPlace::LightBrightness), counted(5, {}, 0));
    check(open<CLightSpeedPopup>(PopupPlace::LightSpeed), counted(3, {}, 0));
}

TEST_F(PopupsTest, CategoryListAnswersPressesAndHoversAndHasItsOwnMessages) {
    CListPopup& popup = open<CComboPopup>(PopupPlace::Category);
    const Notice hovers[] = {{1046, tag, 1}, {1030, tag, 2}, {1040, tag, 3}, {1043, tag, 4},
                             {1033, tag, 5}, {1033, tag, 6}, {1033, tag, 7}, {1033, tag, 8}};
    for (std::size_t row = 0; row < 8; ++row) {
        popup.OnMouseMove(0, in(popup, row));
        popup.OnMouseMove(0, popup.rows()[row].rect.topLeft());
        EXPECT_EQ(dialog.take(), Notices{hovers[row]});
    }
    const std::string chinese = "\xC4\xAC\xC8\xCF\xB9\xA6\xC4\xDC";
    choose(popup, 0);
    EXPECT_EQ(takeAnswers(), (Answers{{0, 0, "", {}}, {0, 0, "", {1}}}));
    choose(popup, 4);
    EXPECT_EQ(takeAnswers(), (Answers{{tag, 0, chinese, {6, 1}}}));
    choose(popup, 7);
    EXPECT_EQ(takeAnswers(), (Answers{{tag, 0, "No Function", {0, 0}}}));
    dialog.take();
    for (const auto& [row, message] : {std::pair{5u, 1035u}, {6u, 1037u}}) {
        choose(popup, row);
        EXPECT_EQ(dialog.take().back(), (Notice{message, tag, 0}));
        EXPECT_EQ(takeAnswers(), Answers{});
    }
}

TEST_F(PopupsTest, ReleaseOutsideThePressedRowSendsNothingAndTakesTheHighlightAway) {
    CListPopup& popup = open<CProfilePopup>(PopupPlace::Multimedia);
    popup.OnMouseMove(0, in(popup, 2));
    popup.OnLButtonDown(0, in(popup, 2));
    popup.OnMouseMove(0, in(popup, 3));
    popup.OnMouseLeave();
    EXPECT_EQ(popup.hotRow(), 2);
    popup.OnLButtonUp(0, in(popup, 3));
    EXPECT_EQ(popup.hotRow(), -1);
    EXPECT_EQ(dialog.take(), Notices{});
}

TEST_F(PopupsTest, MacroListsAnswerFromTheLibraryAsItIsNow) {
    CListPopup& macros = open<CMacroLibraryPopup>(PopupPlace::MacroLibrary, library);
    choose(macros, 1);
    EXPECT_EQ(takeAnswers(), (Answers{{tag, 0, "Water", {1}}}));
    CListPopup& sets = open<CMacroSetListPopup>(PopupPlace::MacroSetList, library);
    for (const auto& [row, code] : {std::pair{0u, 2}, {1u, 3}, {3u, 0}, {4u, 1}}) { // 2 is a separator
        choose(sets, row);
        EXPECT_EQ(takeAnswers(), (Answers{{tag, code, "", {}}}));
    }

    auto owned = std::make_unique<CMacroSetPopup>(library, 0);
    CListPopup& set = *owned;
    dialog.popups().openMacroSet(std::move(owned), Rect::at(0, 0, 100, 100), tag, 4000000000u);
    EXPECT_EQ(dialog.popups().macroSet(4000000000u), &set);
    EXPECT_EQ(dialog.popups().macroSet(5), nullptr);
    choose(set, 0);
    choose(set, 3);
    EXPECT_EQ(takeAnswers(), (Answers{{tag, 0, "", {}}, {tag, 0, "Water", {0x30, 0, 1}}}));
    library.sets.clear();
    choose(set, 3);
    choose(macros, 1);
    EXPECT_EQ(takeAnswers(), Answers{});
}

TEST_F(PopupsTest, EscapeClosesTheListsAsALossOfActivationDoesAndNothingElse) {
    auto& field = dialog.make<CComboButton>(3, Message{0x404}, tag, Rect::at(0, 0, 169, 26));
    field.m_bOpen = true;
    dialog.m_messages.on(1029, [&] {
        if (dialog.popups().at(PopupPlace::Multimedia)) return;
        field.m_bOpen = false;
        dialog.popups().close(PopupPlace::Category);
    });
    open<CComboPopup>(PopupPlace::Category);
    open<CProfilePopup>(PopupPlace::Multimedia);
    EXPECT_TRUE(field.m_bOpen);
    dialog.OnKey({KeyPress::Key::Escape, true});
    EXPECT_FALSE(field.m_bOpen || dialog.popups().any() || dialog.cancels);
    dialog.OnKey({KeyPress::Key::Escape, true});
    EXPECT_EQ(dialog.cancels, 1);
}

TEST_F(PopupsTest, ListStaysOnTheWorkAreaByAShiftAlone) {
    const Rect area = Window::workArea();
    dialog.moveTo({area.right - 100, area.bottom - 50});
    CListPopup& popup = open<CLightModePopup>(PopupPlace::LightMode);
    EXPECT_EQ(popup.screenRect(), Rect::at(area.right - 169, area.bottom - 262, 169, 262));
}

} // namespace
} // namespace tarnix
