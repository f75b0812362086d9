#include "skin/selection.h"

#include "skin/sent.h"

namespace tarnix {

LResult sendSelection(Window& to, Message message, WParam tag, const SelectionRecord& record) {
    const Sent sent(record);
    return to.send(message, tag, static_cast<LParam>(sent.word()));
}

const SelectionRecord* receivedSelection(LParam lParam) {
    return Sent<SelectionRecord>::find(static_cast<std::uintptr_t>(lParam));
}

} // namespace tarnix
