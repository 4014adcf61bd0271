#include "foundation/WorkerThreads.h"

namespace tessara {

WorkerThreads::~WorkerThreads()
{
    for (Worker& worker : m_workers)
        worker.thread.join();
}

void WorkerThreads::start(std::function<void()> body)
{
    m_workers.remove_if([](Worker& worker) {
        const bool hasEnded = worker.hasEnded; // read once: it may end at any moment
        if (hasEnded)
            worker.thread.join();
        return hasEnded;
    });
    Worker& worker = m_workers.emplace_back();
    worker.thread = std::thread([&worker, body = std::move(body)] {
        body();
        worker.hasEnded = true;
    });
}

} // namespace tessara
