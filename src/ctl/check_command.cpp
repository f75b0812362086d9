#include "ctl/commands.h"
#include "ctl/file_content.h"
#include "ctl/narrow_text.h"
#include "ctl/output.h"

namespace tarnix {

ExitStatus runCheck(const Context& context, const Arguments& arguments) {
    ExitStatus status = ExitStatus::Done;
    for (const std::string& path : arguments.words) {
        const CheckedFile file = readFileContent(context.files, path);
        std::string line = printable(path) + ": ";
        if (!file.kind.empty()) line += file.kind + ", ";
        if (file.refusal.empty()) {
            printLine(line + "accepted");
            continue;
        }
        printLine(line + "refused, " + file.refusal);
        status = ExitStatus::RefusedFile;
    }
    return status;
}

} // namespace tarnix
