#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <csignal>
#include <utility>
#include <vector>

#include "ctl_bench.h"
#include "macro/macro_files.h"
#include "platform/linux/file_descriptor.h"
#include "platform/shell.h"
#include "profile/profile_file.h"

namespace tarnix {
namespace {

using testing::ContainsRegex;
using testing::HasSubstr;
using testing::Not;

const std::vector<std::string> seeded{"--seed-macro", "2 6 Combo x3 04:00 04:80", "--seed-macro",
                                      "1 1 - 05:8F"};

/// A launcher with a program beside it, both writing to one socket.
class LauncherProcess {
  public:
    LauncherProcess(std::vector<std::string> arguments) {
        arguments.insert(arguments.begin(), TARNIX_LAUNCHER);
        std::vector<char*> words;
        for (std::string& word : arguments)
            words.push_back(word.data());
        words.push_back(nullptr);
        int ends[2];
        if (::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends) != 0) return;
        m_pid = ::fork();
        if (m_pid == 0 && ::dup2(ends[1], STDIN_FILENO) >= 0 && ::dup2(ends[1], STDOUT_FILENO) >= 0)
            ::execv(words[0], words.data());
        if (m_pid == 0) ::_exit(127);
        ::close(ends[1]);
        m_socket = FileDescriptor(ends[0]);
    }
    ~LauncherProcess() {
        if (m_pid > 0) ::kill(m_pid, SIGTERM), static_cast<void>(status());
    }
    LauncherProcess(const LauncherProcess&) = delete;
    LauncherProcess& operator=(const LauncherProcess&) = delete;

    void command(const std::string& line) {
        EXPECT_GT(::write(m_socket.get(), (line + '\n').c_str(), line.size() + 1), 0);
    }

    /// What came since the last call, up to and with the text; the whole rest when that ends first.
    std::string until(const std::string& text) {
        std::size_t found = 0;
        pollfd wait{m_socket.get(), POLLIN, 0};
        char bytes[4096];
        while ((found = m_pending.find(text)) == std::string::npos && ::poll(&wait, 1, 20000) > 0) {
            const ssize_t length = ::read(m_socket.get(), bytes, sizeof bytes);
            if (length <= 0) return std::exchange(m_pending, {});
            m_pending.append(bytes, static_cast<std::size_t>(length));
        }
        found = found == std::string::npos ? m_pending.size() : found + text.size();
        return std::exchange(m_pending, m_pending.substr(found)).substr(0, found);
    }
    std::string rest() { return until(std::string(1, '\0')); }

    int status() {
        int status = -1;
        ::waitpid(std::exchange(m_pid, -1), &status, 0);
        return WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
    }

  private:
    pid_t m_pid = -1;
    FileDescriptor m_socket;
    std::string m_pending;
};

class CtlKeyboardTest : public CtlBench {
  protected:
    /// The launcher with options, and a shell line that runs in the folder; its file 3 is the launcher's
    /// output.
    std::unique_ptr<LauncherProcess> start(std::vector<std::string> words, const std::string& line) {
        const std::string script = inFolder(line) + " 3>&1 > .out 2> .error";
        words.insert(words.end(), {"--", "/bin/sh", "-c", script});
        return std::make_unique<LauncherProcess>(words);
    }

    /// What went over the wire comes in `wire`.
    Outcome withKeyboard(std::vector<std::string> options, const std::string& line) {
        const auto launcher = start(std::move(options), line);
        wire = launcher->rest();
        return {launcher->status(), fileText(".out"), fileText(".error")};
    }

    void writeSample() {
        ProfileRecord record;
        resetProfileRecord(record, 0);
        record.Settings[settingLightMode].Value = "5";
        record.KeyCodes[17] = 0xC4;
        MacroLibrary library;
        MacroSet& set = AddMacroSet(library, "Keyboard Macro Set");
        for (std::size_t s = 0; s < record.GKeys.size(); ++s) {
            const std::string name = "M" + std::to_string(s);
            record.GKeys[s] = {name, "", keyAssignment(FunctionType::Macro)};
            AppendAction(AddMacroKey(set, name), MacroAction::key(0x41, false));
        }
        writeFile("p.psf", formatProfile(record));
        writeFile("l.mlf", formatMacroLibrary(library, LibraryForm::Long));
        RemoveMacroKey(set, 3);
        writeFile("less.mlf", formatMacroLibrary(library, LibraryForm::Long));
    }

    std::string wire;
};

TEST_F(CtlKeyboardTest, DoctorTellsNoKeyboardNoRightsInUseSilentAndWorkingApart) {
    Outcome outcome = withKeyboard({"--unplugged"}, "$CTL doctor");
    EXPECT_EQ(outcome.status, 3);
    EXPECT_THAT(outcome.out, HasSubstr("No keyboard is attached"));

    outcome = withKeyboard({}, "$CTL doctor");
    EXPECT_EQ(outcome.status, 0) << outcome.out;
    EXPECT_THAT(outcome.out, ContainsRegex("/dev/hidraw0  keystrokes, 0[0-7]{3} [^\n]*\n"
                                           "/dev/hidraw1  events, 0[0-7]{3} [^\n]*, open to you\n"
                                           "/dev/hidraw2  configuration, 0[0-7]{3} [^\n]*, open to you\n"));
    EXPECT_THAT(outcome.out, HasSubstr("The keyboard works; its profile 1 is active."));

    {
        const auto program = acquireInstanceLock("Tarnix Keyboard");
        for (const char* command : {"doctor", "select 1", "read d"})
            EXPECT_EQ(withKeyboard({}, std::string("$CTL ") + command).status, 5) << command;
        EXPECT_EQ(wire, "");
    }

    writeFile("fail", "fail all\n");
    outcome = withKeyboard({"--commands", path("fail")}, "$CTL doctor");
    EXPECT_EQ(outcome.status, 7);
    EXPECT_THAT(outcome.out, HasSubstr("does not answer"));
}

TEST_F(CtlKeyboardTest, WithoutRightsEveryCommandSaysSoAndDoctorNamesTheMend) {
    // The superuser may do everything, so somebody else has to try.
    const std::string closed =
        "chmod -R a+rX . && cp $CTL ctl && chmod 755 $UMOCKDEV_DIR ctl && "
        "chmod -R a+rwX $UMOCKDEV_DIR/ioctl && chmod 000 $UMOCKDEV_DIR/dev/hidraw* && "
        "unset XDG_RUNTIME_DIR && "
        "$([ $(id -u) != 0 ] || echo setpriv --reuid=65534 --regid=65534 --clear-groups) ./ctl ";
    const Outcome outcome = withKeyboard({}, closed + "doctor");
    EXPECT_EQ(outcome.status, 4) << outcome.error;
    EXPECT_THAT(outcome.out, ContainsRegex("/dev/hidraw2  configuration, 0000 [^\n]*, closed to you\n"));
    EXPECT_THAT(outcome.out, HasSubstr("70-tarnix-keyboard.rules"));
    for (const char* command : {"select 2", "monitor"})
        EXPECT_EQ(withKeyboard({}, closed + command).status, 4) << command;
}

TEST_F(CtlKeyboardTest, ReadTakesProfilesAndMacrosAndLeavesTheKeyboardAsItWas) {
    Outcome outcome = withKeyboard(seeded, "$CTL read new/dir && $CTL check new/dir/* && $CTL read new/dir");
    EXPECT_EQ(outcome.status, 1) << outcome.error;
    EXPECT_THAT(outcome.error, HasSubstr("macros.mlf exists already"));
    EXPECT_THAT(outcome.out, HasSubstr("new/dir/profile3.psf: profile, accepted"));
    EXPECT_THAT(wire, Not(ContainsRegex("set 0[5-8]")));

    ProfileRecord expected;
    resetProfileRecord(expected, 1);
    expected.GKeys[5] = {"Combo", "", keyAssignment(FunctionType::Macro)};
    EXPECT_EQ(fileText("new/dir/profile2.psf"), formatProfile(expected));
    EXPECT_THAT(fileText("new/dir/macros.mlf"),
                ContainsRegex("MacroKeyNum=2\n\t*MacroKey0Name=Profile1_G1\n.*MacroKey1Name=Combo\n"
                              "\t*MacroKey1LoopEnable=1\n\t*MacroKey1LoopNum=3\n"));

    writeFile("new/dir/profile1.psf", "old");
    writeFile("fail", "fail 6\n");
    EXPECT_EQ(withKeyboard({"--commands", path("fail")}, "$CTL read --force new/dir").status, 7);
    EXPECT_EQ(fileText("new/dir/profile1.psf"), "old") << "a failed transfer writes nothing";
    expected.GKeys[0] = {"Mine", "", keyAssignment(FunctionType::Launch)};
    writeFile("p.psf", formatProfile(expected));
    EXPECT_EQ(withKeyboard({}, "$CTL write p.psf --profile 1 && $CTL read --force new/dir").status, 0);
    EXPECT_THAT(fileText("new/dir/profile1.psf"), HasSubstr("Key0Name=program launch\n"));
    EXPECT_EQ(withKeyboard({}, "$CTL read /dev/null/dir").status, 1);
}

TEST_F(CtlKeyboardTest, WriteSendsAProfileInOrderWithPausesAndKeepsTheActiveProfile) {
    writeSample();
    const auto launcher = start({}, "$CTL select 2; $CTL write p.psf --profile 3 --macros l.mlf");
    wire = launcher->rest();
    EXPECT_EQ(launcher->status(), 0) << fileText(".error");
    EXPECT_THAT(fileText(".error"), HasSubstr("[1/9] lighting\n[2/9] keys\n[3/9] macro of G1\n"));
    std::string reports;
    std::vector<int> times;
    std::istringstream lines(wire);
    for (std::string line; std::getline(lines, line); reports += line.substr(line.find("ms  ") + 4, 7))
        times.push_back(std::atoi(line.c_str()));
    EXPECT_EQ(reports,
              "set 05 get 05 get 05 set 07 set 06 set 08 set 08 set 08 set 08 set 08 set 08 set 05 ");
    EXPECT_THAT(wire, ContainsRegex("key codes profile 3: 1 remapped, G-keys 010000 010000.*\n"
                                    ".*macro profile 3 G1(.*\n)*.*macro profile 3 G6(.*\n)*"
                                    ".*set 05 active profile: 2\n$"));
    ASSERT_EQ(times.size(), 12u);
    EXPECT_GE(times[4] - times[3], 15);
    for (std::size_t i = 5; i < times.size(); ++i)
        EXPECT_GE(times[i] - times[i - 1], 350);

    for (const char* refused : {"p.psf --profile 1 --macros less.mlf", "l.mlf --profile 1",
                                "none.psf --profile 1", "p.psf --profile 1 --macros p.psf"}) {
        EXPECT_EQ(withKeyboard({}, std::string("$CTL write ") + refused).status, 6) << refused;
        EXPECT_EQ(wire, "") << refused;
    }
    EXPECT_EQ(ctl("write p.psf --profile 1").status, 3) << "no keyboard";
}

TEST_F(CtlKeyboardTest, AnUnplugOrARefusalInTheMiddleEndsAWriteAsFailed) {
    writeSample();
    const auto launcher = start({}, "$CTL write p.psf --profile 1 --macros l.mlf");
    launcher->until("set 08 macro profile 1 G1");
    launcher->command("unplug");
    launcher->until("ok unplug");
    EXPECT_THAT(launcher->rest(), Not(HasSubstr("set"))) << "nothing is tried after a failure";
    EXPECT_EQ(launcher->status(), 7);
    EXPECT_THAT(fileText(".error"), HasSubstr("tarnixctl: the keyboard does not take part in: macro of G"));

    writeFile("fail", "fail 2\n");
    EXPECT_EQ(withKeyboard({"--commands", path("fail")}, "$CTL select 2").status, 7);
    EXPECT_THAT(withKeyboard({}, "$CTL write p.psf --profile 1").error,
                HasSubstr("G6 plays the macro M5, which stays"));
}

TEST_F(CtlKeyboardTest, MonitorDecodesEventsOverAReplugUntilItIsInterrupted) {
    const auto launcher = start({}, "$CTL monitor >&3 2>&3 & echo $! > pid; wait $!");
    const std::pair<std::string, std::string> steps[] = {
        {"# begin", "listening to /dev/hidraw1\n"}, {"emit 5 2", " 05 02 00 00 00 00 00  profile 2\n"},
        {"emit 6 3", "  light mode Flow Right\n"},  {"emit 7 99", "  light brightness 99\n"},
        {"emit 3 0", "  Windows key disabled\n"},   {"emit 1 4", "  macro recorded on G-key 4\n"},
        {"emit 0x55 7", "  unknown event\n"},       {"unplug", "the keyboard is gone"},
        {"plug", "listening to /dev/hidraw4\n"},    {"emit 9 1", "  all keys enabled\n"}};
    std::string seen;
    for (const auto& [command, answer] : steps) {
        launcher->command(command);
        seen += launcher->until(answer);
        EXPECT_THAT(seen, testing::EndsWith(answer));
    }
    EXPECT_THAT(seen, ContainsRegex(" [0-9]+\\.[0-9]{3}  05 02"));
    for (const std::string bad :
         {"emit 5",      "emit 256 0",      "emit 0x 1",       "profile 0",  "profile 4",
          "light mode",  "light blue 3",    "light all 1 2 3", "lock win 2", "record 7",
          "record 1 04", "record 1 04:100", "seed 1 1",        "fail some",  "delay -1",
          "vanish x",    "mouse",           "wait x",          "PLUG",       "fail 99999999999"}) {
        launcher->command(bad);
        EXPECT_THAT(launcher->until("\n"), testing::Eq("error: " + bad + "\n"));
    }
    ::kill(std::atoi(fileText("pid").c_str()), SIGINT);
    launcher->rest();
    EXPECT_EQ(launcher->status(), 0);
    EXPECT_EQ(shell("ls -d umockdev*").status, 2) << "the mocked system is left behind";
    EXPECT_EQ(ctl("monitor").status, 3) << "no keyboard at the start";
}

} // namespace
} // namespace tarnix
