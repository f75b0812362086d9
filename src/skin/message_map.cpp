#include "skin/message_map.h"

#include <set>

#include "skin/control_base.h"

namespace tarnix {

MessageMap& MessageMap::add(Message first, Message last, bool clickOnly, Handler handler) {
    m_rows.push_back({first, last, clickOnly, std::move(handler)});
    return *this;
}

LResult MessageMap::dispatch(Message message, WParam w, LParam l) const {
    for (const Row& row : m_rows)
        if (row.covers(message) && (!row.clickOnly || l == NOTIFY_CLICK)) row.handler(w, l);
    return 0;
}

std::vector<Message> MessageMap::registered() const {
    std::set<Message> numbers;
    for (const Row& row : m_rows)
        for (Message message = row.first; message <= row.last; ++message)
            numbers.insert(message);
    return {numbers.begin(), numbers.end()};
}

} // namespace tarnix
