#pragma once

#include <atomic>
#include <functional>
#include <thread>
#include <vector>

/// Calls work(i) for every i below `count`, on all cores, in no given order.
inline void inParallel(int count, const std::function<void(int)>& work)
{
    std::atomic<int> next = 0;
    const auto worker = [&] {
        for (int i = next++; i < count; i = next++)
            work(i);
    };
    std::vector<std::jthread> threads;
    for (unsigned i = 1; i < std::max(1u, std::thread::hardware_concurrency()); ++i)
        threads.emplace_back(worker);
    worker();
}
