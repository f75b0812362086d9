// What OK and Apply still have to send to the keyboard and to save.
#pragma once

#include <array>

#include "profile/profile_store.h"

namespace tarnix {

class FeatureProtocol;

class PendingWrites {
  public:
    static constexpr int lightingRow = 0;
    static constexpr int keyCodeRow = 1;
    /// Rows 2 to 7: the macros of G-key slots 0 to 5.
    static constexpr int firstMacroRow = 2;
    static constexpr int rowCount = firstMacroRow + gKeyCount;

    /// The macro library differs from its file.
    bool m_bMacroLibraryChanged = false;

    /// Marks a row of a profile; does nothing where either is out of range.
    void mark(int row, int profile);
    bool isMarked(int row, int profile) const;
    /// Clears rows 0 to 6; row 7, the macro of slot 5, stays as it is.
    void clear(int profile);
    void clearAll();

    /// Sends what is marked for profiles 0 to 2: lighting, then key codes, then macros by profile and slot. A
    /// mark is cleared before its write is tried, so a write that fails is not repeated.
    void FlushPendingWrites(FeatureProtocol& protocol);

  private:
    bool take(int row, int profile);

    std::array<std::array<bool, profileCount>, rowCount> m_bDirty{};
};

} // namespace tarnix
