#include "macro/macro_files.h"

#include <span>

#include "profile/numbers.h"

namespace tarnix {

namespace {

constexpr std::string_view libraryHeader = "[MacroLibrary]";
constexpr std::string_view macroKeyHeader = "[MacroKey]";
constexpr std::size_t digitsOfAction = 8;
constexpr std::size_t digitsOfActions = digitsOfAction * maxActionCount;

enum class Field { LoopEnable, LoopNum, ActionNum, CommandActionNum };

constexpr Field allFields[] = {Field::LoopEnable, Field::LoopNum, Field::ActionNum, Field::CommandActionNum};
constexpr Field actionCountOnly[] = {Field::ActionNum};

/// The lines of a macro that follow its name.
struct MacroForm {
    std::span<const Field> fields;
    std::string_view fieldIndent;
    std::string_view actionsIndent;
};

constexpr MacroForm longForm{allFields, "\t\t\t", "\t\t\t"};
constexpr MacroForm shortForm{actionCountOnly, "\t\t\t", "\t\t\t"};
constexpr MacroForm macroKeyForm{allFields, "\t", "\t\t"};

const MacroForm& formOf(LibraryForm form) {
    return form == LibraryForm::Long ? longForm : shortForm;
}

/// `index` is the macro's number in its set, empty in a macro key file.
std::string fieldKey(Field field, const std::string& index) {
    switch (field) {
        case Field::LoopEnable:
            return "MacroKey" + index + "LoopEnable=";
        case Field::LoopNum:
            return "MacroKey" + index + "LoopNum=";
        case Field::ActionNum:
            return "MacroActionNum=";
        case Field::CommandActionNum:
            return "MacroCommandActionNum=";
    }
    return {};
}

std::uint32_t fieldValue(const MacroKey& macro, Field field) {
    switch (field) {
        case Field::LoopEnable:
            return macro.loopEnable;
        case Field::LoopNum:
            return macro.loopCount;
        case Field::ActionNum:
            return macro.actionCount;
        case Field::CommandActionNum:
            return macro.commandCount;
    }
    return 0;
}

void storeField(MacroKey& macro, Field field, std::uint32_t value) {
    switch (field) {
        case Field::LoopEnable:
            macro.loopEnable = value;
            break;
        case Field::LoopNum:
            macro.loopCount = static_cast<std::uint8_t>(value);
            break;
        case Field::ActionNum:
            macro.actionCount = value;
            break;
        case Field::CommandActionNum:
            macro.commandCount = static_cast<std::uint8_t>(value);
            break;
    }
}

/// Takes the value of the next line. A line without one ends the reading: the first refusal stays.
class ValueReader {
  public:
    explicit ValueReader(std::string_view text) : m_lines(text) {}

    bool header(std::string_view expected) {
        if (m_lines.next() == expected) return true;
        m_error = m_lines.refuse(expected == libraryHeader ? "the first line is not [MacroLibrary]"
                                                           : "the first line is not [MacroKey]");
        return false;
    }

    std::optional<std::string_view> value() {
        const auto line = m_lines.next();
        const auto parts = line ? splitAtEquals(*line) : std::nullopt;
        if (parts && !parts->value.empty()) return parts->value;
        m_error = m_lines.refuse(line ? "no value after a '='" : "the file ends too early");
        return std::nullopt;
    }

    /// The digits of all actions.
    std::optional<std::string_view> actions() {
        const auto digits = value();
        if (!digits || digits->size() == digitsOfActions) return digits;
        m_error = m_lines.refuse("not 1600 digits of actions");
        return std::nullopt;
    }

    const std::optional<FileError>& error() const { return m_error; }

  private:
    LineReader m_lines;
    std::optional<FileError> m_error;
};

MacroAction actionOf(std::string_view digits) {
    MacroAction action;
    for (std::size_t b = 0; b < action.bytes.size(); ++b)
        action.bytes[b] = toHexByte(digits.substr(2 * b));
    return action;
}

bool readMacro(ValueReader& reader, const MacroForm& form, MacroKey& macro) {
    for (const Field field : form.fields) {
        const auto value = reader.value();
        if (!value) return false;
        storeField(macro, field, toUnsigned(*value));
    }
    const auto digits = reader.actions();
    if (!digits) return false;
    for (int a = 0; a < maxActionCount; ++a) {
        SetAction(macro, a, actionOf(digits->substr(static_cast<std::size_t>(a) * digitsOfAction)));
    }
    return true;
}

void appendMacro(std::string& text, const MacroForm& form, const MacroKey& macro, const std::string& index) {
    for (const Field field : form.fields) {
        appendLine(text, std::string(form.fieldIndent) + fieldKey(field, index) +
                             std::to_string(fieldValue(macro, field)));
    }
    std::string actions(form.actionsIndent);
    actions += "AllAction=";
    for (const MacroAction& action : macro.actions) {
        for (const std::uint8_t byte : action.bytes)
            appendHexByte(actions, byte);
    }
    appendLine(text, actions);
}

// The counts only say how many lines to expect: memory grows with the lines that are there.

bool readSet(ValueReader& reader, const MacroForm& form, MacroSet& set) {
    const auto count = reader.value();
    if (!count) return false;
    for (int k = 0, n = toNumber(*count); k < n; ++k) {
        const auto name = reader.value();
        if (!name || !readMacro(reader, form, AddMacroKey(set, std::string(*name)))) return false;
    }
    return true;
}

bool readSets(ValueReader& reader, const MacroForm& form, MacroLibrary& library) {
    if (!reader.header(libraryHeader)) return false;
    const auto count = reader.value();
    if (!count) return false;
    for (int s = 0, n = toNumber(*count); s < n; ++s) {
        const auto name = reader.value();
        if (!name || !readSet(reader, form, AddMacroSet(library, std::string(*name)))) return false;
    }
    return true;
}

std::string libraryPath(const std::string& programFolder) {
    return programFolder + "config\\MacroLibraryFile.mlf";
}

bool loadLibrary(MacroLibrary& library, LibraryForm form, Files& files, const std::string& path) {
    const auto text = files.read(path);
    return text && !parseMacroLibrary(*text, form, library);
}

} // namespace

std::optional<FileError> parseMacroLibrary(std::string_view text, LibraryForm form, MacroLibrary& library) {
    ClearMacroLibrary(library);
    ValueReader reader(text);
    if (!readSets(reader, formOf(form), library)) ClearMacroLibrary(library);
    return reader.error();
}

std::string formatMacroLibrary(const MacroLibrary& library, LibraryForm form) {
    std::string text;
    appendLine(text, libraryHeader);
    appendLine(text, "MacroSetNum=" + std::to_string(library.sets.size()));
    for (std::size_t s = 0; s < library.sets.size(); ++s) {
        const MacroSet& set = library.sets[s];
        appendLine(text, "\tMacroSet" + std::to_string(s) + "Name=" + set.name);
        appendLine(text, "\t\tMacroKeyNum=" + std::to_string(set.keys.size()));
        for (std::size_t k = 0; k < set.keys.size(); ++k) {
            const std::string index = std::to_string(k);
            appendLine(text, "\t\tMacroKey" + index + "Name=" + set.keys[k].name);
            appendMacro(text, formOf(form), set.keys[k], index);
        }
    }
    return text;
}

std::optional<FileError> parseMacroKey(std::string_view text, MacroKey& macro) {
    ValueReader reader(text);
    if (reader.header(macroKeyHeader)) readMacro(reader, macroKeyForm, macro);
    return reader.error();
}

std::string formatMacroKey(const MacroKey& macro) {
    std::string text;
    appendLine(text, macroKeyHeader);
    appendMacro(text, macroKeyForm, macro, {});
    return text;
}

bool SaveMacroLibrary(MacroLibrary& library, Files& files, const std::string& programFolder) {
    library.saveFailed =
        !files.replace(libraryPath(programFolder), formatMacroLibrary(library, LibraryForm::Long));
    return !library.saveFailed;
}

bool LoadMacroLibrary(MacroLibrary& library, Files& files, const std::string& programFolder) {
    const std::string path = libraryPath(programFolder);
    if (loadLibrary(library, LibraryForm::Long, files, path)) return true;
    resetMacroLibrary(library);
    if (files.setAside(path)) SaveMacroLibrary(library, files, programFolder);
    return false;
}

bool SaveManagerLibrary(const MacroLibrary& library, Files& files, const std::string& programFolder) {
    return files.replace(libraryPath(programFolder), formatMacroLibrary(library, LibraryForm::Short));
}

bool LoadManagerLibrary(MacroLibrary& library, Files& files, const std::string& programFolder) {
    if (loadLibrary(library, LibraryForm::Short, files, libraryPath(programFolder))) return true;
    ClearMacroLibrary(library);
    return false;
}

bool writeMacroKeyFile(const MacroKey& macro, Files& files, const std::string& path) {
    return files.replace(path, formatMacroKey(macro));
}

bool readMacroKeyFile(MacroKey& macro, Files& files, const std::string& path) {
    const auto text = files.read(path);
    return text && !parseMacroKey(*text, macro);
}

} // namespace tarnix
