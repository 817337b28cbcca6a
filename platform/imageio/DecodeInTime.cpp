#include "platform/imageio/DecodeInTime.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <future>
#include <mutex>
#include <thread>

#include <unistd.h>

namespace imageio {

namespace {

using namespace std::chrono_literals;

constexpr std::chrono::seconds kLongest = 30s;

std::atomic<int> leftThreads = 0; // given up and still at work

/// What the libraries keep would be taken away under such a thread when the program ends.
void endBesideLeftThreads()
{
#ifdef __GLIBC__
    static std::once_flag once;
    std::call_once(once, [] {
        ::on_exit(
            [](int status, void*) {
                if (leftThreads > 0) {
                    std::fflush(nullptr);
                    ::_exit(status);
                }
            },
            nullptr);
    });
#endif
}

/// All that the thread needs, for it may outlive the caller and what that owns.
struct Job {
    std::vector<std::byte> content;
    PictureInput input;
    ReadOptions options;
    std::atomic<bool> isGivenUp = false;
    std::promise<Result<CIBitmap>> result;
};

std::shared_ptr<Job> jobFor(const PictureInput& input, const ReadOptions& options)
{
    auto job = std::make_shared<Job>();
    job->input = input;
    if (input.path().empty()) {
        job->content.assign(input.memory().begin(), input.memory().end());
        if (Result<PictureInput> copy = PictureInput::fromMemory(job->content))
            job->input = *copy;
    }
    job->options = options;
    job->options.cancelled = &job->isGivenUp;
    return job;
}

} // namespace

Failure tookTooLong(const PictureInput& input) { return {"Opening " + input.name() + " took too long."}; }

Failure givenUp(const PictureInput& input) { return {"Opening " + input.name() + " was given up."}; }

Result<CIBitmap> decodeInTime(const PictureInput& input, const ReadOptions& options,
    Result<CIBitmap> (*decode)(const PictureInput&, const ReadOptions&))
{
    const std::shared_ptr<Job> job = jobFor(input, options);
    std::future<Result<CIBitmap>> result = job->result.get_future();
    ++leftThreads;
    std::thread([job, decode] {
        try {
            useVips();
            job->result.set_value(decode(job->input, job->options));
        } catch (...) {
            job->result.set_exception(std::current_exception());
        }
        --leftThreads;
    }).detach();
    const auto deadline = std::chrono::steady_clock::now() + std::min(options.timeLimit, kLongest);
    const auto isCancelled = [&] { return options.cancelled && options.cancelled->load(std::memory_order_relaxed); };
    while (result.wait_for(20ms) != std::future_status::ready)
        if (isCancelled() || std::chrono::steady_clock::now() > deadline) {
            endBesideLeftThreads();
            job->isGivenUp = true;
            return isCancelled() ? givenUp(input) : tookTooLong(input);
        }
    return result.get();
}

} // namespace imageio
