#include "ctl_bench.h"
#include "macro/macro_files.h"
#include "profile/configuration_file.h"
#include "profile/profile_file.h"

namespace tarnix {
namespace {

using testing::HasSubstr;
using testing::StartsWith;

MacroLibrary sampleLibrary() {
    MacroLibrary library;
    MacroSet& set = AddMacroSet(library, "Keyboard Macro Set");
    MacroKey& macro = AddMacroKey(set, "Fire");
    AppendAction(macro, MacroAction::key(0x41, false));
    AppendAction(macro, MacroAction::delay(120));
    AppendAction(macro, MacroAction::key(0x41, true));
    macro.loopCount = 3;
    macro.commandCount = 2;
    AddMacroSet(library, "Empty");
    return library;
}

ProfileRecord sampleProfile() {
    ProfileRecord record;
    resetProfileRecord(record, 1);
    record.Settings[settingProfileName].Value = "\xCE\xD2 \x1B[31m"; // GB2312, and a terminal's colour
    record.Settings[settingLightMode].Value = "99";
    record.KeyCodes[17] = 0xC4;
    record.GKeys[0] = {"A \"quoted\" \\ name", "", keyAssignment(FunctionType::KeyCombination, 0x03, 0x04)};
    record.GKeys[1] = {"Fire", "", keyAssignment(FunctionType::Macro)};
    record.GKeys[2] = {"prog", "/usr/bin/prog", keyAssignment(FunctionType::Launch)};
    record.GKeys[3] = {"\xC2\x9B", "", {0x02, 0x01, 0x00}};
    return record;
}

class CtlFilesTest : public CtlBench {};

TEST_F(CtlFilesTest, CheckTellsTheKindByExtensionOrHeaderAndTheLineOfARefusal) {
    const MacroLibrary library = sampleLibrary();
    writeFile("a", formatProfile(sampleProfile()));
    ProfileStore store;
    ResetConfig(store, "/home/u/kbd/");
    writeFile("b", formatConfiguration(store.ConfigTable));
    writeFile("c", formatMacroLibrary(library, LibraryForm::Long));
    writeFile("d.MKF", formatMacroKey(library.sets[0].keys[0]));
    writeFile("short.mlf", formatMacroLibrary(library, LibraryForm::Short));
    writeFile("e", "[Else]\n");
    writeFile("f.psf", "[Setting]\nName=x\nLightMode\n");
    const Outcome outcome = ctl("check a b c d.MKF short.mlf e f.psf missing . a");
    EXPECT_EQ(outcome.status, 6);
    EXPECT_EQ(outcome.out,
              "a: profile, accepted\nb: configuration, accepted\nc: macro library, accepted\n"
              "d.MKF: macro key, accepted\n"
              "short.mlf: macro library, refused, line 10: the file ends too early "
              "(this is the macro manager's short form)\n"
              "e: refused, line 1: the header of none of the program's files\n"
              "f.psf: profile, refused, line 3: not of the form key=value\n"
              "missing: refused, it cannot be read\n.: refused, it cannot be read\n"
              "a: profile, accepted\n");
    EXPECT_EQ(outcome.error, "");
    const Outcome shown = ctl("show f.psf");
    EXPECT_EQ(shown.status, 6);
    EXPECT_EQ(shown.out + shown.error, "tarnixctl: f.psf: line 3: not of the form key=value\n");
}

TEST_F(CtlFilesTest, ShowsFilesReadablyAndAsJsonWithoutSteeringTheTerminal) {
    const MacroLibrary library = sampleLibrary();
    writeFile("p.psf", formatProfile(sampleProfile()));
    writeFile("l.mlf", formatMacroLibrary(library, LibraryForm::Long));
    writeFile("k.mkf", formatMacroKey(library.sets[0].keys[0]));

    EXPECT_THAT(
        ctl("show p.psf").out,
        testing::AllOf(
            StartsWith("profile: \xE6\x88\x91 \\x1B[31m\nlight:\n  mode: 99\n  brightness: 4 (100%)\n"),
            HasSubstr("\nremapped:\n  - position: 17, factory: 192 (F1), code: 196 (F5)\n"),
            HasSubstr("key: G1, name: A \"quoted\" \\ name, function: CTRL+SHIFT+A, value: 060304, url:\n"),
            HasSubstr("name: Fire, function: macro, value: 010000"),
            HasSubstr("function: program launch, value: 070000, url: /usr/bin/prog\n"),
            HasSubstr("name: \\x9B, function: unknown function, value: 020100")));
    const std::string json = ctl("show --json p.psf").out;
    EXPECT_THAT(
        json,
        StartsWith("{\n  \"profile\": \"\xE6\x88\x91 \\u001B[31m\",\n  \"light\": {\n    \"mode\": 99,\n"
                   "    \"brightness\": {\"value\": 4, \"name\": \"100%\"},\n"));
    EXPECT_THAT(json, HasSubstr("\"name\": \"A \\\"quoted\\\" \\\\ name\""));
    EXPECT_EQ(ctl("show k.mkf").out,
              "loops: 3\nkeyboardSteps: 2\nactions:\n"
              "  - press: 65 (A)\n  - delay: 120\n  - release: 65 (A)\n");
    EXPECT_THAT(ctl("show --json l.mlf").out, HasSubstr("\"set\": \"Empty\",\n      \"macros\": []\n"));
}

TEST_F(CtlFilesTest, WrongUsageAndUnwritableOutputHaveStatusesOfTheirOwn) {
    writeFile("p.psf", formatProfile(sampleProfile()));
    for (const char* wrong :
         {"", "chek p.psf", "check", "show p.psf p.psf", "show --json=1 p.psf", "show --json --json p.psf",
          "doctor now", "read", "select 0", "select 4", "select 1x", "write --profile 1",
          "write p.psf --profile", "write p.psf --profile 4", "monitor 1", "--json"}) {
        const Outcome outcome = ctl(wrong);
        EXPECT_EQ(outcome.status, 2) << wrong;
        EXPECT_EQ(outcome.out, "") << wrong;
        EXPECT_THAT(outcome.error, StartsWith("tarnixctl: ")) << wrong;
    }
    EXPECT_EQ(ctl("check -- --json").status, 6) << "a file's name after --";
    EXPECT_EQ(shell("$CTL show p.psf > /dev/full").status, 1);
    EXPECT_THAT(ctl("--version").out, StartsWith("tarnixctl 1"));
    EXPECT_THAT(ctl("write --help").out, HasSubstr("7 a transfer failed"));
}

} // namespace
} // namespace tarnix
