#include "app/document/IdleThread.h"

#include "app/document/Alone.h"

#include <utility>

#ifdef __linux__
#    include <sched.h>
#    include <unistd.h>
#endif

void IdleThread::begin(std::function<void()> job)
{
    finish();
    m_job = std::move(job);
    m_thread = 0;
    start(IdlePriority);
}

void IdleThread::run()
{
#ifdef __linux__
    m_thread = gettid();
#endif
    runAlone(m_job);
}

void IdleThread::finish()
{
    constexpr int kPatience = 20; // ms, until it has begun to run
    while (!wait(QDeadlineTimer(kPatience))) {
#ifdef __linux__
        // QThread can't raise what it started as idle.
        if (const sched_param normal{}; m_thread)
            sched_setscheduler(m_thread, SCHED_OTHER, &normal);
#endif
    }
}
