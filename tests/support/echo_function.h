// A device on a bus that echoes.
#pragma once

#include "virtual/launcher_bus.h"

namespace tarnix {

/// A device whose get answers with the report it was set last. How both are answered is the test's to say.
struct EchoFunction final : BusFunction {
    FeatureAnswer setFeature(std::span<const std::uint8_t> report) override {
        held.assign(report.begin(), report.end());
        return answer;
    }
    FeatureAnswer getFeature(std::uint8_t, std::size_t) override {
        return {answer.accepted, held, answer.delay};
    }
    FeatureAnswer answer{true};
    std::vector<std::uint8_t> held;
};

} // namespace tarnix
