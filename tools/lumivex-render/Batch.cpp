#include "tools/lumivex-render/Batch.h"

#include "tools/lumivex-render/BatchFiles.h"
#include "tools/lumivex-render/Render.h"

#include "platform/chain/Baking.h"
#include "platform/chain/FilterChain.h"
#include "platform/chain/FilterSettings.h"
#include "platform/coreimage/CIPlugIn.h"
#include "platform/foundation/PhysicalMemory.h"
#include "platform/foundation/UserDefaults.h"

#include <algorithm>
#include <chrono>
#include <condition_variable>
#include <mutex>
#include <new>
#include <thread>

namespace {

namespace fs = std::filesystem;
using namespace std::chrono_literals;

constexpr double kMaxOutputPixels = 500e6;

std::vector<FilterSettings> storedFavourites()
{
    std::vector<FilterSettings> list;
    if (const auto records = UserDefaults::standardUserDefaults().recordsForKey(kFilterFavouritesKey))
        for (const StoredRecord& record : *records)
            list.push_back(settingsFrom(record, QStringLiteral("ButtonImage")));
    return list;
}

/// With its pictures read, so that threads only look at it.
FilterSettings favouriteNamed(const std::string& name)
{
    std::vector<FilterSettings> list = storedFavourites();
    const std::vector<std::string> names = namesOf(list);
    const auto found = std::ranges::find(names, name);
    if (name.empty() || found == names.end())
        throw UsageError("there is no favourite '" + name + "'; --list-favourites shows all");
    FilterSettings settings = std::move(list[std::size_t(found - names.begin())]);
    for (const auto& [key, data] : settings.unread)
        settings.values[key] = settings.valueForKey(key);
    settings.unread.clear();
    return settings;
}

/// Memory that jobs take before they begin and give back when they are done.
class MemoryBudget {
public:
    explicit MemoryBudget(std::int64_t bytes)
        : m_free(bytes)
    {
    }
    void take(std::int64_t bytes)
    {
        std::unique_lock lock(m_mutex);
        m_changed.wait(lock, [&] { return bytes <= m_free || m_users == 0; });
        m_free -= bytes;
        ++m_users;
    }
    void giveBack(std::int64_t bytes)
    {
        {
            const std::lock_guard lock(m_mutex);
            m_free += bytes;
            --m_users;
        }
        m_changed.notify_all();
    }

private:
    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::int64_t m_free;
    int m_users = 0;
};

/// Why the work failed; empty when it did not.
template <class Work>
std::string failureOf(Work work)
{
    try {
        work();
        return {};
    } catch (const std::bad_alloc&) {
        return "there is not enough memory";
    } catch (const std::exception& error) {
        return error.what();
    }
}

class Batch {
public:
    Batch(const Arguments& arguments, const BatchLimits& limits, std::function<void(const BatchReport&)> report,
        const std::atomic<bool>& stop)
        : m_inputs(arguments.files)
        , m_settings(favouriteNamed(arguments.favourite))
        , m_filterName(m_settings.valueForKey("class").toString())
        , m_budget(limits.memory)
        , m_report(std::move(report))
        , m_stop(stop)
        , m_files(arguments.files, arguments.output)
    {
        static_cast<void>(filterNamed(m_filterName)); // one that is gone is a mistake, not a failure of each file
    }

    BatchResult run(unsigned workers)
    {
        std::vector<std::thread> threads(std::clamp<std::size_t>(workers, 1, m_inputs.size()));
        m_running = threads.size();
        for (std::thread& thread : threads)
            thread = std::thread([this] { work(); });
        {
            std::unique_lock lock(m_mutex);
            while (!m_ended.wait_for(lock, 50ms, [this] { return m_running == 0; })) // a signal wakes nobody
                if (m_stop)
                    m_control.cancel();
        }
        for (std::thread& thread : threads)
            thread.join();
        return {m_failures, m_stop};
    }

private:
    void work()
    {
        std::unique_lock lock(m_mutex);
        while (m_next < m_inputs.size() && !m_stop) {
            const fs::path input = m_inputs[m_next++];
            BatchFile file;
            // In their order: who comes first gets the name.
            std::string failure = failureOf([&] { file = m_files.plan(input); });
            lock.unlock();
            if (failure.empty()) {
                m_budget.take(file.memory);
                failure = failureOf([&] { process(file); });
                m_budget.giveBack(file.memory);
            }
            lock.lock();
            if (m_stop && !failure.empty())
                break;
            m_failures += !failure.empty();
            m_report({++m_finished, m_inputs.size(), input, file.output, failure});
        }
        if (--m_running == 0)
            m_ended.notify_all();
    }

    void process(const BatchFile& file)
    {
        const Result<CIBitmap> read = file.reader->readPicture({.cancelled = &m_stop});
        if (!read)
            throw std::runtime_error(read.message());
        const CIImage result = filtered(CIImage::fromBitmap(*read));
        const CIRect extent = result.extent();
        if (result.isNull() || extent.isEmpty())
            throw std::runtime_error(m_filterName + " makes no picture of it");
        if (extent.width * extent.height > kMaxOutputPixels)
            throw std::runtime_error("the result would have more than 500 million pixels");
        const CIBitmap bitmap = renderedBitmap(m_context, result, storedLike(*read), &m_control);
        if (bitmap.isNull())
            throw std::bad_alloc();
        const std::shared_ptr<const PictureMetadata> metadata = file.reader->readMetadata();
        const Result<void> written = writePicture(bitmap, file.output,
            {.format = file.format,
                .dotsPerInch = metadata ? metadata->dotsPerInch() : 0,
                .metadata = metadata,
                .control = &m_control});
        if (!written)
            throw std::runtime_error(written.message());
    }

    /// As the editor does it when the favourite is pressed and the picture saved.
    CIImage filtered(const CIImage& picture)
    {
        const std::lock_guard lock(m_filters); // filters are for one thread; to make a recipe takes no time
        const std::shared_ptr<CIFilter> filter = filterNamed(m_filterName);
        filter->setDefaults();
        setupAllImageInputsToNotNil(*filter, picture);
        applySettings(m_settings, *filter);
        const CIRect whole = picture.extent();
        const CIImage result = filteredPicture(*filter, picture, {whole.width, whole.height});
        if (filter->outputImage().isNull())
            return {};
        return result.extent().isInfinite() ? result.cropped(whole) : result;
    }

    const std::vector<std::string>& m_inputs;
    const FilterSettings m_settings;
    const std::string m_filterName;
    const CIContext m_context;
    MemoryBudget m_budget;
    const std::function<void(const BatchReport&)> m_report;
    const std::atomic<bool>& m_stop;
    CIRenderControl m_control;
    std::mutex m_filters;

    std::mutex m_mutex; // guards what follows, and calls of m_report
    BatchFiles m_files;
    std::condition_variable m_ended;
    std::size_t m_next = 0, m_finished = 0, m_failures = 0, m_running = 0;
};

} // namespace

std::vector<std::string> favouriteNames()
{
    std::vector<std::string> names = namesOf(storedFavourites());
    std::erase(names, std::string());
    return names;
}

BatchLimits usualLimits() { return {std::max(1U, std::thread::hardware_concurrency()), physicalMemory() / 2}; }

BatchResult runBatch(const Arguments& arguments, const BatchLimits& limits,
    const std::function<void(const BatchReport&)>& report, const std::atomic<bool>& stop)
{
    CIPlugIn::loadAllPlugIns();
    Batch batch(arguments, limits, report, stop);
    std::error_code error;
    fs::create_directories(arguments.output, error);
    if (!fs::is_directory(arguments.output))
        throw UsageError("the folder '" + arguments.output + "' can't be made" + (error ? ": " + error.message() : ""));
    return batch.run(limits.workers);
}
