// A run of feature-report exchanges with the keyboard that ends at the first one that fails.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "ctl/commands.h"
#include "device/feature_protocol.h"
#include "macro/macro_library.h"
#include "profile/profile_store.h"

namespace tarnix {

class Transfer {
  public:
    enum class Access {
        ReadOnly, ///< nothing is sent but the selection of what to read
        ReadWrite
    };

    Transfer(std::unique_ptr<HidDevice> device, Clock& clock, Access access);

    /// What goes to and comes from the keyboard.
    ProfileStore store;
    MacroLibrary macros;

    /// Adds an exchange, which run() carries out in turn.
    void add(std::string name, std::function<void(FeatureProtocol&)> exchange);
    /// False when the keyboard has refused one or is gone; which one has then been said.
    bool run();

  private:
    struct Step {
        std::string name;
        std::function<void(FeatureProtocol&)> exchange;
    };

    std::shared_ptr<bool> m_failed;
    FeatureProtocol m_protocol;
    std::vector<Step> m_steps;
};

} // namespace tarnix
