#pragma once

#include <atomic>
#include <functional>
#include <list>
#include <thread>

namespace tessara {

/// Background threads that end by themselves. Whoever owns this waits for them when it goes.
/// Used by the main thread only.
class WorkerThreads {
public:
    WorkerThreads() = default;
    ~WorkerThreads();
    WorkerThreads(const WorkerThreads&) = delete;
    WorkerThreads& operator=(const WorkerThreads&) = delete;

    void start(std::function<void()> body);

private:
    struct Worker {
        std::atomic<bool> hasEnded = false;
        std::thread thread;
    };
    std::list<Worker> m_workers; ///< at fixed places: the threads write into them
};

} // namespace tessara
