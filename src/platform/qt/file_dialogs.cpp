#include "file_dialogs.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>

#include "modal_runs.h"
#include "native_window.h"
#include "text_decoding.h"
#include "window_widget.h"

namespace tarnix {

namespace {

/// The chosen path; null on Cancel.
QString run(QFileDialog& chooser) {
    if (!runModally(chooser) || chooser.selectedFiles().isEmpty()) return {};
    return QFileInfo(chooser.selectedFiles().constFirst()).absoluteFilePath();
}

bool mayReplace(const QString& path, QFileDialog& chooser) {
    QMessageBox question(
        QMessageBox::Warning, chooser.windowTitle(),
        QStringLiteral("%1 already exists.\nDo you want to replace it?").arg(QFileInfo(path).fileName()),
        QMessageBox::Yes | QMessageBox::No, chooser.parentWidget());
    question.setDefaultButton(QMessageBox::No);
    question.setWindowModality(Qt::ApplicationModal);
    runModally(question);
    return question.result() == QMessageBox::Yes;
}

/// Sets up what both dialogs have in common.
void prepare(QFileDialog& chooser, const FileDialog& dialog) {
    chooser.setNameFilters(nameFilters(dialog.filter));
    chooser.setWindowRole(QStringLiteral("FileDialog"));
    chooser.selectFile(decodeText(dialog.fileName));
}

} // namespace

QStringList nameFilters(const std::string& filter) {
    QStringList filters;
    const QStringList parts = decodeText(filter).split(u'|', Qt::SkipEmptyParts);
    if (parts.size() >= 2) {
        QString label = parts[0];
        label.truncate(label.indexOf(u'(') >= 0 ? label.indexOf(u'(') : label.size());
        QString patterns = parts[1];
        filters << QStringLiteral("%1 (%2)").arg(label.trimmed(), patterns.replace(u';', u' '));
    }
    filters << QStringLiteral("All files (*)");
    return filters;
}

std::optional<std::string> chooseFileToOpen(const FileDialog& dialog, Window& owner) {
    QFileDialog chooser(owner.exists() ? owner.native()->widget : nullptr, decodeText(dialog.title),
                        QDir::currentPath());
    chooser.setFileMode(QFileDialog::ExistingFile);
    prepare(chooser, dialog);
    const QString path = run(chooser);
    if (path.isEmpty() || !QFileInfo::exists(path)) return std::nullopt;
    return path.toStdString();
}

std::optional<std::string> chooseFileToSave(const FileDialog& dialog, Window& owner) {
    QFileDialog chooser(owner.exists() ? owner.native()->widget : nullptr, decodeText(dialog.title),
                        QDir::currentPath());
    chooser.setAcceptMode(QFileDialog::AcceptSave);
    chooser.setFileMode(QFileDialog::AnyFile);
    prepare(chooser, dialog);
    chooser.setDefaultSuffix(decodeText(dialog.defaultExtension));
    // Asked here for the name with its extension: the desktop's own dialogs ask before it is appended.
    chooser.setOption(QFileDialog::DontConfirmOverwrite);
    while (true) {
        const QString path = run(chooser);
        if (path.isEmpty()) return std::nullopt;
        if (!QFileInfo::exists(path) || mayReplace(path, chooser)) return path.toStdString();
    }
}

} // namespace tarnix
