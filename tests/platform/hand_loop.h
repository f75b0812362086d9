// A main loop that a test turns by hand: its time stands still until it is moved on, its descriptors are
// real.
#pragma once

#include <poll.h>

#include <algorithm>
#include <functional>
#include <list>
#include <memory>
#include <vector>

#include "platform/main_loop.h"

namespace tarnix {

class HandLoop final : public MainLoop {
  public:
    std::unique_ptr<Subscription> watch(int descriptor, std::function<void()> readable) override {
        return add({std::move(readable), descriptor, Milliseconds(0)});
    }
    std::unique_ptr<Subscription> after(Milliseconds time, std::function<void()> callback) override {
        return add({std::move(callback), -1, m_now + time});
    }
    void post(std::function<void()> work) override { work(); }

    /// Moves the time on and calls back whose time has come.
    void advance(Milliseconds time) {
        m_now += time;
        run([this](const Source& source) { return source.descriptor < 0 && source.due <= m_now; });
    }

    /// Calls back for descriptors until none has been readable for the given real time.
    void serveUntilQuiet(Milliseconds quiet = Milliseconds(100)) {
        while (true) {
            std::vector<pollfd> waits;
            for (const auto& source : m_sources)
                if (source->descriptor >= 0) waits.push_back({source->descriptor, POLLIN, 0});
            if (::poll(waits.data(), waits.size(), static_cast<int>(quiet.count())) <= 0) return;
            run([&](const Source& source) {
                for (const pollfd& wait : waits)
                    if (wait.fd == source.descriptor && wait.revents != 0) return true;
                return false;
            });
        }
    }

  private:
    struct Source {
        std::function<void()> callback;
        int descriptor;
        Milliseconds due;
    };
    using Sources = std::list<std::shared_ptr<Source>>;

    class Held final : public Subscription {
      public:
        Held(HandLoop& loop, std::shared_ptr<Source> source) : m_loop(loop), m_source(std::move(source)) {}
        ~Held() override { m_loop.m_sources.remove(m_source); }

      private:
        HandLoop& m_loop;
        std::shared_ptr<Source> m_source;
    };

    std::unique_ptr<Subscription> add(Source source) {
        m_sources.push_back(std::make_shared<Source>(std::move(source)));
        return std::make_unique<Held>(*this, m_sources.back());
    }

    /// Timers run once; callbacks may end subscriptions, their own too.
    template <class Ready>
    void run(const Ready& ready) {
        const Sources sources = m_sources;
        for (const auto& source : sources) {
            if (std::find(m_sources.begin(), m_sources.end(), source) == m_sources.end() || !ready(*source))
                continue;
            if (source->descriptor < 0) m_sources.remove(source);
            source->callback();
        }
    }

    Milliseconds m_now{0};
    Sources m_sources;
};

} // namespace tarnix
