#include "foundation/WorkerThreads.h"

namespace tessara {

WorkerThreads::~WorkerThreads()
{
    for (std::thread& thread : m_threads)
        thread.join();
}

} // namespace tessara
