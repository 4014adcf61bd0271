#pragma once

#include <functional>
#include <thread>
#include <vector>

namespace tessara {

/// Background threads that end by themselves. Whoever owns this waits for them when it goes.
/// Used by the main thread only.
class WorkerThreads {
public:
    WorkerThreads() = default;
    ~WorkerThreads();
    WorkerThreads(const WorkerThreads&) = delete;
    WorkerThreads& operator=(const WorkerThreads&) = delete;

    void start(std::function<void()> body) { m_threads.emplace_back(std::move(body)); }

private:
    std::vector<std::thread> m_threads;
};

} // namespace tessara
