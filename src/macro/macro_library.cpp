#include "macro/macro_library.h"

#include <algorithm>
#include <utility>

#include "profile/item_at.h"
#include "profile/profile_store.h"

namespace tarnix {

namespace {

template <class Items>
bool removeAt(Items& items, int index) {
    if (!itemAt(items, index)) return false;
    items.erase(items.begin() + index);
    return true;
}

} // namespace

std::span<const MacroAction> MacroKey::usedActions() const {
    return std::span(actions).first(std::min<std::size_t>(actionCount, actions.size()));
}

MacroSet& AddMacroSet(MacroLibrary& library, std::string name) {
    return library.sets.emplace_back(MacroSet{std::move(name), {}});
}

MacroSet* GetMacroSet(MacroLibrary& library, int index) {
    return itemAt(library.sets, index);
}

const MacroSet* GetMacroSet(const MacroLibrary& library, int index) {
    return itemAt(library.sets, index);
}

bool RemoveMacroSet(MacroLibrary& library, int index) {
    return removeAt(library.sets, index);
}

void ClearMacroLibrary(MacroLibrary& library) {
    library = {};
}

void resetMacroLibrary(MacroLibrary& library) {
    ClearMacroLibrary(library);
    AddMacroSet(library, std::string(defaultMacroSetName));
}

MacroKey& AddMacroKey(MacroSet& set, std::string name) {
    MacroKey& macro = set.keys.emplace_back();
    macro.name = std::move(name);
    return macro;
}

MacroKey* GetMacroKey(MacroSet& set, int index) {
    return itemAt(set.keys, index);
}

const MacroKey* GetMacroKey(const MacroSet& set, int index) {
    return itemAt(set.keys, index);
}

bool RemoveMacroKey(MacroSet& set, int index) {
    return removeAt(set.keys, index);
}

MacroKey* findMacro(MacroLibrary& library, int setIndex, int keyIndex) {
    MacroSet* set = GetMacroSet(library, setIndex);
    return set ? GetMacroKey(*set, keyIndex) : nullptr;
}

int findMacroName(const MacroSet& set, std::string_view name) {
    const auto found = std::find_if(set.keys.begin(), set.keys.end(),
                                    [&](const MacroKey& macro) { return macro.name == name; });
    return found == set.keys.end() ? -1 : static_cast<int>(found - set.keys.begin());
}

MacroAction GetAction(const MacroKey& macro, int index) {
    const MacroAction* action = itemAt(macro.actions, index);
    return action ? *action : macro.actions[0];
}

bool SetAction(MacroKey& macro, int index, const MacroAction& action) {
    MacroAction* place = itemAt(macro.actions, index);
    if (place) *place = action;
    return place != nullptr;
}

bool InsertAction(MacroKey& macro, std::uint32_t index, const MacroAction& action) {
    if (macro.actionCount >= macro.actions.size()) return false;
    const auto place = macro.actions.begin() + std::min(index, macro.actionCount);
    if (index < macro.actionCount) std::move_backward(place, macro.actions.end() - 1, macro.actions.end());
    *place = action;
    ++macro.actionCount;
    return true;
}

bool AppendAction(MacroKey& macro, const MacroAction& action) {
    return InsertAction(macro, macro.actionCount, action);
}

bool IsMacroInUse(const ProfileStore& store, std::string_view name) {
    const auto plays = [&](const GKeySlot& slot) {
        return functionType(slot.Value) == FunctionType::Macro && slot.Name == name;
    };
    const auto first = store.ProfileTable.begin();
    return std::any_of(first, first + keyboardProfileCount, [&](const ProfileRecord& record) {
        return std::any_of(record.GKeys.begin(), record.GKeys.end(), plays);
    });
}

} // namespace tarnix
