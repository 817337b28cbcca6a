#include "platform/imageio/LooseThread.h"

#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <thread>

#include <unistd.h>

namespace imageio {

namespace {

std::atomic<int> looseThreads = 0;

} // namespace

void runOnLooseThread(std::function<void()> work)
{
    ++looseThreads;
    std::thread([work = std::move(work)]() mutable {
        work();
        work = {}; // what it owns goes before the thread counts as ended
        --looseThreads;
    }).detach();
}

void giveUpLooseThread()
{
#ifdef __GLIBC__
    if (looseThreads == 0)
        return;
    // Each time anew, for what is registered last is called first.
    ::on_exit(
        [](int status, void*) {
            if (looseThreads > 0) {
                std::fflush(nullptr);
                ::_exit(status);
            }
        },
        nullptr);
#endif
}

} // namespace imageio
