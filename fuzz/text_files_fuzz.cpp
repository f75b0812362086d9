// The readers of the program's text files.
#include <cstdlib>
#include <string_view>

#include "macro/macro_files.h"
#include "profile/configuration_file.h"
#include "profile/profile_file.h"

using namespace tarnix;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size == 0) return 0;
    const std::string_view text(reinterpret_cast<const char*>(data + 1), size - 1);
    ConfigPairs pairs;
    ProfileRecord record;
    MacroKey macro;
    MacroLibrary library;
    switch (data[0] % 5) {
        case 0:
            (void)parseConfiguration(text, pairs);
            break;
        case 1:
            (void)parseProfile(text, record);
            break;
        case 2:
            (void)parseMacroKey(text, macro);
            break;
        default:
            (void)parseMacroLibrary(text, data[0] % 5 == 3 ? LibraryForm::Long : LibraryForm::Short, library);
            for (const MacroSet& set : library.sets)
                if (set.name.empty()) std::abort(); // a name is never empty in a file
    }
    return 0;
}
