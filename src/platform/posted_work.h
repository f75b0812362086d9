// Work that threads hand to the one that runs a loop.
#pragma once

#include <functional>
#include <mutex>
#include <vector>

namespace tarnix {

class PostedWork {
  public:
    using Work = std::function<void()>;

    PostedWork();
    ~PostedWork();
    PostedWork(const PostedWork&) = delete;
    PostedWork& operator=(const PostedWork&) = delete;

    /// For the loop to poll: readable while there is work.
    int descriptor() const { return m_signal; }
    /// From any thread.
    void post(Work work);
    /// All that was posted since the last call, in its order.
    std::vector<Work> take();

  private:
    std::mutex m_mutex;
    std::vector<Work> m_work;
    int m_signal;
};

} // namespace tarnix
