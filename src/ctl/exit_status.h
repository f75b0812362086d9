// What tarnixctl ends with; scripts rely on the numbers.
#pragma once

namespace tarnix {

enum class ExitStatus {
    Done = 0,
    NotWritten = 1, ///< a file or the standard output
    Usage = 2,
    NoKeyboard = 3,
    NoPermission = 4,
    InUse = 5, ///< another program talks to the keyboard
    RefusedFile = 6,
    TransferFailed = 7
};

} // namespace tarnix
