// The toolkit's event loop as the rest of the platform sees it.
#pragma once

#include "platform/main_loop.h"

namespace tarnix {

class QtMainLoop : public MainLoop {
  public:
    std::unique_ptr<Subscription> watch(int descriptor, std::function<void()> readable) override;
    std::unique_ptr<Subscription> after(Milliseconds time, std::function<void()> callback) override;
    void post(std::function<void()> work) override;
};

} // namespace tarnix
