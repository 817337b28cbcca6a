#include "platform/imageio/DecodeInTime.h"

#include "platform/imageio/LooseThread.h"

#include <algorithm>
#include <future>

namespace imageio {

namespace {

using namespace std::chrono_literals;

constexpr std::chrono::seconds kLongest = 30s;

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
        if (Result<PictureInput> copy = PictureInput::fromMemory(job->content, input.name()))
            job->input = *copy;
    }
    job->options = options;
    job->options.cancelled = &job->isGivenUp;
    job->options.progress = nullptr; // the caller's
    return job;
}

} // namespace

Result<CIBitmap> decodeInTime(const PictureInput& input, const ReadOptions& options,
    Result<CIBitmap> (*decode)(const PictureInput&, const ReadOptions&))
{
    const std::shared_ptr<Job> job = jobFor(input, options);
    std::future<Result<CIBitmap>> result = job->result.get_future();
    runOnLooseThread([job, decode] {
        try {
            useVips();
            job->result.set_value(decode(job->input, job->options));
        } catch (...) {
            job->result.set_exception(std::current_exception());
        }
    });
    const auto deadline = std::chrono::steady_clock::now() + std::min(options.timeLimit, kLongest);
    const auto isCancelled = [&] { return options.cancelled && options.cancelled->load(std::memory_order_relaxed); };
    while (result.wait_for(20ms) != std::future_status::ready)
        if (isCancelled() || std::chrono::steady_clock::now() > deadline) {
            giveUpLooseThread();
            job->isGivenUp = true;
            return input.failure(isCancelled() ? Reason::GivenUp : Reason::TookTooLong);
        }
    return result.get();
}

} // namespace imageio
