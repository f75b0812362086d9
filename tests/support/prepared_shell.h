// A shell whose file dialogs answer what was prepared, and which notes what it is asked.
#pragma once

#include <string>
#include <vector>

#include "platform/shell.h"

namespace tarnix {

class PreparedShell : public Shell {
  public:
    std::optional<std::string> nextFile;
    std::vector<std::string> asked; ///< file names, filters and extensions
    std::vector<std::string> opened;

    void messageBox(const std::string&) override {}
    std::optional<std::string> openFile(const FileDialog& dialog, Window&) override {
        asked.push_back(dialog.fileName + ' ' + dialog.filter + ' ' + dialog.defaultExtension);
        return nextFile;
    }
    std::optional<std::string> saveFile(const FileDialog& dialog, Window& owner) override {
        return openFile(dialog, owner);
    }
    void openLink(const std::string& address) override { opened.push_back(address); }
    void launch(const std::string&) override {}
};

} // namespace tarnix
