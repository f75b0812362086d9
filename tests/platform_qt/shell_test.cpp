#include "platform/shell.h"

#include <filesystem>
#include <fstream>

#include "support/temp_folder.h"
#include "window_fixture.h"

namespace tarnix::testing {
namespace {

namespace fs = std::filesystem;

class FileDialogs : public WindowTest {
  protected:
    void SetUp() override {
        showMain(m_window);
        fs::current_path(m_folder.path());
    }
    ~FileDialogs() override { fs::current_path(m_before); }
    /// What the user does once the dialog is there.
    void user(std::function<void()> does) {
        m_steps = application().mainLoop().after(std::chrono::milliseconds{400}, std::move(does));
    }
    std::optional<std::string> save() {
        return m_shell->saveFile({.title = "Save Profile as...",
                                  .filter = "psf file(*.psf)|*.psf||",
                                  .defaultExtension = "psf",
                                  .fileName = ".psf"},
                                 m_window);
    }
    /// Puts the name in place of what the dialog proposes.
    static void enterName(const std::string& name) {
        tapKey("ctrl+a");
        typeText(name);
        tapKey("Return");
    }

    std::unique_ptr<Shell> m_shell = makeSystemShell();
    std::unique_ptr<MainLoop::Subscription> m_steps;
    fs::path m_before = fs::current_path();
    TempFolder m_folder;
};

TEST_F(FileDialogs, ANewNameGetsTheExtensionAndTheCurrentFolderAndAnOldOneAQuestion) {
    user([] { enterName("fresh"); });
    EXPECT_EQ(save(), (m_folder / "fresh.psf").string());
    user([] { enterName("other.dat"); });
    EXPECT_EQ(save(), (m_folder / "other.dat").string());
    user([] { tapKey("Escape"); });
    EXPECT_EQ(save(), std::nullopt);
    std::ofstream("there.psf") << "old";
    user([this] {
        enterName("there");
        user([this] {
            tapKey("Return");
            user([] { tapKey("Escape"); });
        });
    });
    EXPECT_EQ(save(), std::nullopt) << "nothing is replaced unasked";
}

TEST_F(FileDialogs, EndingTheWindowsRunCancelsTheDialog) {
    std::optional<std::string> chosen = "none yet";
    application().mainLoop().post([&] { chosen = save(); });
    user([&] { m_window.endModal(IDCANCEL); });
    EXPECT_EQ(m_window.runModal(), IDCANCEL);
    EXPECT_EQ(chosen, std::nullopt);
}

} // namespace
} // namespace tarnix::testing
