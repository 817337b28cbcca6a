// Work that waits for nothing else and lets all else go first.
#pragma once

#include <QThread>

#include <atomic>
#include <functional>

/// Runs one job at a time, alone, while the processor has nothing else to do. Who waits for the job, as its end does,
/// lends it the own priority: else a busy machine would let both wait forever.
class IdleThread : public QThread {
public:
    ~IdleThread() override { finish(); }
    /// When the former job has ended: it should be told to.
    void begin(std::function<void()> job);

private:
    void run() override;
    void finish();

    std::function<void()> m_job;
    std::atomic<int> m_thread = 0; // as the kernel numbers it; 0 before it runs
};
