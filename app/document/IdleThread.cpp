#include "app/document/IdleThread.h"

#include "app/document/Alone.h"

#include <utility>

void IdleThread::begin(std::function<void()> job)
{
    wait();
    m_job = std::move(job);
    start(IdlePriority);
}

void IdleThread::run() { runAlone(m_job); }
