// Files of the program, read as the program reads them.
#pragma once

#include <optional>
#include <string>
#include <utility>
#include <variant>

#include "macro/macro_library.h"
#include "platform/files.h"
#include "profile/profile_store.h"

namespace tarnix {

/// What a file holds, by its kind.
using FileContent = std::variant<ProfileRecord, ConfigPairs, MacroLibrary, MacroKey>;

struct CheckedFile {
    FileContent content;
    std::string kind;    ///< "profile" and so on; empty where it cannot be told
    std::string refusal; ///< why the program would not accept it; empty when it would
};

/// The kind is told by the extension, else by the first line. The file is only read.
CheckedFile readFileContent(Files& files, const std::string& path);

/// Says why a file is of no use where one of that kind is wanted.
void complainAboutFile(const std::string& path, const CheckedFile& file, const std::string& wantedKind);

/// The content of that type; else it is said why there is none.
template <class Content>
std::optional<Content> readContent(Files& files, const std::string& path, const std::string& kind) {
    CheckedFile file = readFileContent(files, path);
    if (file.refusal.empty() && std::holds_alternative<Content>(file.content))
        return std::get<Content>(std::move(file.content));
    complainAboutFile(path, file, kind);
    return std::nullopt;
}

} // namespace tarnix
