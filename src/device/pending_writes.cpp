#include "device/pending_writes.h"

#include <utility>

#include "device/feature_protocol.h"

namespace tarnix {

namespace {

constexpr int lastMacroRow = PendingWrites::rowCount - 1;

bool isRow(int row) {
    return row >= 0 && row < PendingWrites::rowCount;
}

bool isProfile(int profile) {
    return profile >= 0 && profile < profileCount;
}

} // namespace

void PendingWrites::mark(int row, int profile) {
    if (isRow(row) && isProfile(profile)) m_bDirty[row][profile] = true;
}

bool PendingWrites::isMarked(int row, int profile) const {
    return isRow(row) && isProfile(profile) && m_bDirty[row][profile];
}

void PendingWrites::clear(int profile) {
    if (!isProfile(profile)) return;
    for (int row = 0; row < lastMacroRow; ++row)
        m_bDirty[row][profile] = false;
}

void PendingWrites::clearAll() {
    for (int profile = 0; profile < profileCount; ++profile)
        clear(profile);
}

bool PendingWrites::take(int row, int profile) {
    return std::exchange(m_bDirty[row][profile], false);
}

void PendingWrites::FlushPendingWrites(FeatureProtocol& protocol) {
    for (int profile = 0; profile < keyboardProfileCount; ++profile) {
        if (take(lightingRow, profile)) protocol.WriteLighting(profile);
    }
    for (int profile = 0; profile < keyboardProfileCount; ++profile) {
        if (take(keyCodeRow, profile)) protocol.WriteKeyCodes(profile);
    }
    for (int profile = 0; profile < keyboardProfileCount; ++profile) {
        for (int slot = 0; slot < gKeyCount; ++slot) {
            if (take(firstMacroRow + slot, profile)) protocol.WriteGKeyMacro(profile, slot);
        }
    }
}

} // namespace tarnix
