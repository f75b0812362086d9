// The user-interface thread's loop, for the parts of the platform that are no windows, and for other threads
// that hand work to it.
#pragma once

#include <functional>
#include <memory>

#include "platform/clock.h"

namespace tarnix {

class MainLoop {
  public:
    /// Ends what it stands for (a watch or a timer) when destroyed, which its own callback may do too.
    class Subscription {
      public:
        virtual ~Subscription() = default;
    };

    virtual ~MainLoop() = default;
    /// Calls back whenever the descriptor can be read.
    virtual std::unique_ptr<Subscription> watch(int descriptor, std::function<void()> readable) = 0;
    /// Calls back once after the given time.
    virtual std::unique_ptr<Subscription> after(Milliseconds time, std::function<void()> callback) = 0;
    /// Runs the work on the user-interface thread, in the order of the posts. From any thread.
    virtual void post(std::function<void()> work) = 0;
};

} // namespace tarnix
