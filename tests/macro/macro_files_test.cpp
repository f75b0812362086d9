#include "macro/macro_files.h"

#include <gmock/gmock.h>

#include "support/memory_files.h"

namespace tarnix {
namespace {

using testing::HasSubstr;

const std::string folder = "/k/";
const std::string path = "/k/config\\MacroLibraryFile.mlf";
const std::string defaultText =
    "[MacroLibrary]\nMacroSetNum=1\n\tMacroSet0Name=Keyboard Macro Set\n\t\tMacroKeyNum=0\n";
const std::string unused(1600 - 16, '0');
const std::string fireText =
    "[MacroLibrary]\nMacroSetNum=2\n\tMacroSet0Name=Keyboard Macro Set\n\t\tMacroKeyNum=0\n"
    "\tMacroSet1Name=Games\n\t\tMacroKeyNum=1\n\t\tMacroKey0Name=Fire\n\t\t\tMacroKey0LoopEnable=0\n"
    "\t\t\tMacroKey0LoopNum=255\n\t\t\tMacroActionNum=2\n\t\t\tMacroCommandActionNum=1\n"
    "\t\t\tAllAction=4180000003011170" +
    unused + "\n";
const std::string fireKeyText =
    "[MacroKey]\n\tMacroKeyLoopEnable=0\n\tMacroKeyLoopNum=255\n\tMacroActionNum=2\n"
    "\tMacroCommandActionNum=1\n\t\tAllAction=4180000003011170" +
    unused + "\n";

MacroLibrary fireLibrary() {
    MacroLibrary library;
    resetMacroLibrary(library);
    MacroKey& macro = AddMacroKey(AddMacroSet(library, "Games"), "Fire");
    macro.loopEnable = 0;
    macro.loopCount = 255;
    AppendAction(macro, MacroAction::key(0x41, true));
    AppendAction(macro, MacroAction::delay(70000));
    macro.commandCount = 1;
    return library;
}

std::string replaced(std::string text, const std::string& what, const std::string& with) {
    const auto at = text.find(what);
    EXPECT_NE(at, std::string::npos) << what;
    return text.replace(at, what.size(), with);
}

std::optional<std::size_t> refusedLine(const std::string& text, LibraryForm form = LibraryForm::Long) {
    MacroLibrary library = fireLibrary();
    const auto error = parseMacroLibrary(text, form, library);
    if (!error) return std::nullopt;
    EXPECT_EQ(library, MacroLibrary{});
    return error->line;
}

TEST(MacroFiles, FormsAreWrittenByteByByteAndComeBack) {
    const MacroLibrary library = fireLibrary();
    EXPECT_EQ(formatMacroLibrary(library, LibraryForm::Long), fireText);
    EXPECT_EQ(formatMacroKey(library.sets[1].keys[0]), fireKeyText);

    MacroLibrary read;
    EXPECT_FALSE(parseMacroLibrary(fireText + "[more]\n", LibraryForm::Long, read));
    EXPECT_EQ(read, library);
    MacroKey key;
    key.name = "Fire";
    EXPECT_FALSE(parseMacroKey(fireKeyText, key));
    EXPECT_EQ(key, library.sets[1].keys[0]);

    const std::string shortText = formatMacroLibrary(library, LibraryForm::Short);
    EXPECT_THAT(shortText,
                HasSubstr("\t\tMacroKey0Name=Fire\n\t\t\tMacroActionNum=2\n\t\t\tAllAction=41800000"));
    EXPECT_FALSE(parseMacroLibrary(shortText, LibraryForm::Short, read));
    MacroLibrary withDefaults = library;
    withDefaults.sets[1].keys[0].loopEnable = 1;
    withDefaults.sets[1].keys[0].loopCount = 1;
    withDefaults.sets[1].keys[0].commandCount = 0;
    EXPECT_EQ(read, withDefaults);
}

TEST(MacroFiles, NumbersAreTakenAsTheyCome) {
    MacroLibrary read;
    const auto key = [&](const std::string& what, const std::string& with) {
        EXPECT_FALSE(parseMacroLibrary(replaced(fireText, what, with), LibraryForm::Long, read)) << with;
        return read.sets.at(1).keys.at(0);
    };
    EXPECT_EQ(key("MacroActionNum=2", "MacroActionNum=250").actionCount, 250u);
    EXPECT_EQ(key("MacroActionNum=2", "x=-1").actionCount, 4294967295u);
    EXPECT_EQ(key("MacroActionNum=2", "x=two").actionCount, 0u);
    EXPECT_EQ(key("LoopNum=255", "LoopNum=257").loopCount, 1);
    EXPECT_EQ(key("LoopEnable=0", "LoopEnable=99999999999").loopEnable, 4294967295u);
    EXPECT_EQ(key("41800000", "4x8ZG-F1").actions[0].bytes, (std::array<std::uint8_t, 4>{4, 8, 0, 0xF1}));
    EXPECT_EQ(key("=Fire", "=Fire=2 ").name, "Fire=2 ");

    EXPECT_FALSE(parseMacroLibrary("[MacroLibrary]\nMacroSetNum=0", LibraryForm::Long, read));
    EXPECT_TRUE(read.sets.empty());
    EXPECT_FALSE(parseMacroLibrary("[MacroLibrary]\r\n=-5\r\n", LibraryForm::Long, read));
    EXPECT_FALSE(parseMacroLibrary(replaced(defaultText, "KeyNum=0", "KeyNum=-3"), LibraryForm::Long, read));
    EXPECT_EQ(read.sets.size(), 1u);
}

TEST(MacroFiles, EveryMissingOrEmptyLineIsRefusedAtItsPlace) {
    std::string cut;
    LineReader reader(fireText);
    for (std::size_t number = 1; const auto line = reader.next(); ++number) {
        EXPECT_EQ(refusedLine(cut), number);
        EXPECT_EQ(refusedLine(cut + std::string(line->substr(0, line->find('=') + 1)) + '\n'), number);
        cut.append(*line) += '\n';
    }
    EXPECT_EQ(refusedLine(replaced(fireText, unused, unused + "0")), 12u);
    EXPECT_EQ(refusedLine(replaced(fireText, unused, unused.substr(1))), 12u);
    EXPECT_EQ(refusedLine(replaced(fireText, "[MacroL", "[macroL")), 1u);
}

TEST(MacroFiles, RefusedLibraryIsSetAsideAndTheDefaultOneWritten) {
    MemoryFiles files;
    MacroLibrary library;
    files.contents[path] = fireText;
    EXPECT_FALSE(LoadManagerLibrary(library, files, folder));
    EXPECT_TRUE(library.sets.empty());
    EXPECT_EQ(files.contents.size(), 1u) << "the manager leaves the file alone";

    EXPECT_TRUE(SaveManagerLibrary(fireLibrary(), files, folder));
    const std::string shortText = files.contents[path];
    EXPECT_FALSE(LoadMacroLibrary(library, files, folder));
    EXPECT_EQ(files.contents[path], defaultText);
    EXPECT_EQ(files.contents[path + ".bak"], shortText);
    EXPECT_TRUE(LoadMacroLibrary(library, files, folder));
}

TEST(MacroFiles, ImportKeepsWhatStoodBeforeTheRefusedLine) {
    MemoryFiles files;
    MacroKey macro;
    macro.name = "Mine";
    AppendAction(macro, MacroAction::key(0x42, false));
    files.contents["/bad.mkf"] = replaced(fireKeyText, unused, unused.substr(2));
    EXPECT_FALSE(readMacroKeyFile(macro, files, "/bad.mkf"));
    EXPECT_EQ(macro.name + '|' + formatMacroKey(macro).substr(0, 60), "Mine|" + fireKeyText.substr(0, 60));
    EXPECT_EQ(macro.commandCount, 1);
    EXPECT_EQ(macro.actions[0], MacroAction::key(0x42, false));
    EXPECT_EQ(files.contents.size(), 1u) << "a refused import is the user's own file";
    EXPECT_EQ(parseMacroKey("[MacroKey]\n=1\n=2\n=3\n", macro)->line, 5u);
    EXPECT_EQ(parseMacroKey(fireText, macro)->line, 1u);
}

} // namespace
} // namespace tarnix
