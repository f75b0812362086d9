// The table that says what a window does with which message.
#pragma once

#include <functional>
#include <type_traits>
#include <utility>
#include <vector>

#include "platform/window.h"

namespace tarnix {

/// Maps message numbers and ranges of them to handlers. A handler takes (WParam, LParam) or nothing. When
/// several rows name a number, their handlers run in the order of the rows.
class MessageMap {
  public:
    using Handler = std::function<void(WParam, LParam)>;

    /// For any code of a control's message, and for all other messages.
    template <class F>
    MessageMap& on(Message message, F handler) {
        return on(message, message, std::move(handler));
    }
    template <class F>
    MessageMap& on(Message first, Message last, F handler) {
        return add(first, last, false, adapt(std::move(handler)));
    }
    /// For a control's click alone (lParam NOTIFY_CLICK).
    template <class F>
    MessageMap& onClick(Message id, F handler) {
        return onClick(id, id, std::move(handler));
    }
    template <class F>
    MessageMap& onClick(Message first, Message last, F handler) {
        return add(first, last, true, adapt(std::move(handler)));
    }

    /// Runs what is registered for the message. Answers 0, whether anything was or not.
    LResult dispatch(Message message, WParam w, LParam l) const;
    /// Every number that a row names, each once, ascending.
    std::vector<Message> registered() const;

  private:
    struct Row {
        Message first;
        Message last;
        bool clickOnly;
        Handler handler;
        bool covers(Message message) const { return message >= first && message <= last; }
    };

    template <class F>
    static Handler adapt(F handler) {
        if constexpr (std::is_invocable_v<F&, WParam, LParam>)
            return handler;
        else
            return [handler = std::move(handler)](WParam, LParam) mutable { handler(); };
    }
    MessageMap& add(Message first, Message last, bool clickOnly, Handler handler);

    std::vector<Row> m_rows;
};

} // namespace tarnix
