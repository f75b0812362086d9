#include "ctl/file_content.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <string_view>

#include "ctl/output.h"
#include "macro/macro_files.h"
#include "profile/configuration_file.h"
#include "profile/profile_file.h"

namespace tarnix {

namespace {

using Parse = std::optional<FileError> (*)(std::string_view text, FileContent& content);

struct Kind {
    std::string_view name;
    std::string_view extension;
    std::string_view header;
    Parse parse;
};

constexpr std::array<Kind, 4> kinds{{
    {"profile", ".psf", "[Setting]",
     [](std::string_view text, FileContent& content) {
         return parseProfile(text, content.emplace<ProfileRecord>());
     }},
    {"configuration", ".ini", "[Setting]",
     [](std::string_view text, FileContent& content) {
         return parseConfiguration(text, content.emplace<ConfigPairs>());
     }},
    {"macro library", ".mlf", "[MacroLibrary]",
     [](std::string_view text, FileContent& content) {
         return parseMacroLibrary(text, LibraryForm::Long, content.emplace<MacroLibrary>());
     }},
    {"macro key", ".mkf", "[MacroKey]",
     [](std::string_view text, FileContent& content) {
         return parseMacroKey(text, content.emplace<MacroKey>());
     }},
}};

bool endsWithExtension(std::string_view path, std::string_view extension) {
    const auto sameLetter = [](unsigned char a, unsigned char b) {
        return std::tolower(a) == std::tolower(b);
    };
    return path.size() > extension.size() &&
           std::equal(extension.begin(), extension.end(), path.end() - extension.size(), sameLetter);
}

/// Profiles and configurations begin alike; a configuration has no more than its header and six lines.
const Kind* kindOfText(std::string_view text) {
    LineReader lines(text);
    const std::string_view header = lines.next().value_or(std::string_view());
    const auto lineEnds = std::count(text.begin(), text.end(), '\n');
    for (const Kind& kind : kinds) {
        if (kind.header != header) continue;
        if (kind.extension == ".psf" && lineEnds <= 1 + configPairCount) continue;
        return &kind;
    }
    return nullptr;
}

const Kind* kindOf(std::string_view path, std::string_view text) {
    for (const Kind& kind : kinds) {
        if (endsWithExtension(path, kind.extension)) return &kind;
    }
    return kindOfText(text);
}

std::string refusalText(const FileError& error) {
    return "line " + std::to_string(error.line) + ": " + std::string(error.reason);
}

/// The macro manager writes the library shorter than the program reads it at its start.
bool isManagersForm(std::string_view text, const FileContent& content) {
    MacroLibrary library;
    return std::holds_alternative<MacroLibrary>(content) &&
           !parseMacroLibrary(text, LibraryForm::Short, library);
}

} // namespace

CheckedFile readFileContent(Files& files, const std::string& path) {
    CheckedFile file;
    const auto text = files.read(path);
    if (!text) {
        file.refusal = "it cannot be read";
        return file;
    }
    const Kind* const kind = kindOf(path, *text);
    if (kind == nullptr) {
        file.refusal = "line 1: the header of none of the program's files";
        return file;
    }
    file.kind = kind->name;
    if (const auto error = kind->parse(*text, file.content)) {
        file.refusal = refusalText(*error);
        if (isManagersForm(*text, file.content)) file.refusal += " (this is the macro manager's short form)";
    }
    return file;
}

void complainAboutFile(const std::string& path, const CheckedFile& file, const std::string& kind) {
    complain(path + ": " +
             (file.refusal.empty() ? "this is a " + file.kind + ", not a " + kind : file.refusal));
}

} // namespace tarnix
