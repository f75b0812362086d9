// The dialogs in which the user chooses a file.
#pragma once

#include <QString>
#include <QStringList>

#include "platform/shell.h"

namespace tarnix {

/// The toolkit's name filters for a filter of text and pattern with a bar between; all files come last.
QStringList nameFilters(const std::string& filter);

std::optional<std::string> chooseFileToOpen(const FileDialog& dialog, Window& owner);
/// Asks before it answers with a file that exists.
std::optional<std::string> chooseFileToSave(const FileDialog& dialog, Window& owner);

} // namespace tarnix
