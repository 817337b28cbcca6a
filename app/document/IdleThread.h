// Work that waits for nothing else and lets all else go first.
#pragma once

#include <QThread>

#include <functional>

/// Runs one job at a time, alone, while the processor has nothing else to do. Its end waits for the job.
class IdleThread : public QThread {
public:
    ~IdleThread() override { wait(); }
    /// When the former job has ended: it should be told to.
    void begin(std::function<void()> job);

private:
    void run() override;

    std::function<void()> m_job;
};
