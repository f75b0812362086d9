// What the tests of macro editing share.
#pragma once

#include <string>
#include <vector>

#include "macro/macro_library.h"
#include "support/ui_scenario.h"

namespace tarnix {

inline MacroLibrary libraryOf(const std::string& set, const std::vector<std::string>& macros) {
    MacroLibrary library;
    MacroSet& added = AddMacroSet(library, set);
    for (const std::string& name : macros)
        AddMacroKey(added, name);
    return library;
}

inline std::vector<std::string> macroNames(const MacroLibrary& library, int set = 0) {
    std::vector<std::string> names;
    if (const MacroSet* found = GetMacroSet(library, set))
        for (const MacroKey& macro : found->keys)
            names.push_back(macro.name);
    return names;
}

} // namespace tarnix
