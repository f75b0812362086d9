#include "platform/shell.h"

#include <QDesktopServices>
#include <QMessageBox>
#include <QUrl>

#include "file_dialogs.h"
#include "modal_runs.h"
#include "platform/linux/launch.h"
#include "platform/window.h"
#include "text_decoding.h"

namespace tarnix {

namespace {

/// A path or an address, to the program that the desktop has for it.
void openByDesktop(const std::string& target) {
    const QString text = QString::fromStdString(target);
    QDesktopServices::openUrl(target.starts_with('/') ? QUrl::fromLocalFile(text) : QUrl(text));
}

class QtShell : public Shell {
  public:
    void messageBox(const std::string& text) override {
        QMessageBox box(QMessageBox::NoIcon, programTitle, decodeText(text), QMessageBox::Ok);
        box.setTextFormat(Qt::PlainText);
        box.setWindowRole(QStringLiteral("MessageBox"));
        runModally(box);
    }

    std::optional<std::string> openFile(const FileDialog& dialog, Window& owner) override {
        return chooseFileToOpen(dialog, owner);
    }

    std::optional<std::string> saveFile(const FileDialog& dialog, Window& owner) override {
        return chooseFileToSave(dialog, owner);
    }

    void openLink(const std::string& address) override {
        if (isWebAddress(address) || address.starts_with("mailto:")) openByDesktop(address);
    }

    void launch(const std::string& target) override { launchTarget(target, openByDesktop); }
};

} // namespace

std::unique_ptr<Shell> makeSystemShell() {
    return std::make_unique<QtShell>();
}

} // namespace tarnix
