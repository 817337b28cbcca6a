// The command-line door to the image engine.
#include "tools/lumivex-render/Arguments.h"
#include "tools/lumivex-render/Batch.h"
#include "tools/lumivex-render/Describe.h"
#include "tools/lumivex-render/Render.h"

#include "platform/imageio/ImageLog.h"

#include <csignal>
#include <cstdio>
#include <exception>
#include <iostream>

#include <unistd.h>

namespace {

void printList()
{
    for (const std::string& name : CIFilter::filterNamesInCategory("")) {
        const auto filter = CIFilter::filterWithName(name);
        std::cout << name << '\t' << filter->displayName() << '\t';
        const auto categories = filter->attributes().find(kCIAttributeFilterCategories);
        const char* separator = "";
        if (categories != filter->attributes().end())
            for (const CIValue& category : categories->second.toArray()) {
                std::cout << separator << category.toString();
                separator = ",";
            }
        std::cout << '\n';
    }
}

std::atomic<bool> batchStopped = false;
static_assert(std::atomic<bool>::is_always_lock_free, "a signal handler sets it");

/// Answers the exit status.
int applyFavourite(const Arguments& arguments)
{
    for (const int number : {SIGINT, SIGTERM, SIGHUP}) // so that no unfinished file is left behind
        if (std::signal(number, [](int) { batchStopped = true; }) == SIG_IGN)
            std::signal(number, SIG_IGN);
    const bool showsProgress = !arguments.isQuiet && ::isatty(STDERR_FILENO);
    const auto report = [showsProgress](const BatchReport& file) {
        if (!file.failure.empty())
            std::cerr << "lumivex-render: " << file.input.string() << ": " << file.failure << std::endl;
        else if (showsProgress)
            std::cerr << '[' << file.number << '/' << file.count << "] " << file.output.string() << std::endl;
    };
    const BatchResult result = runBatch(arguments, usualLimits(), report, batchStopped);
    if (result.wasStopped)
        std::cerr << "lumivex-render: stopped\n";
    return result.failures != 0 || result.wasStopped ? 1 : 0;
}

/// Answers the exit status.
int run(const Arguments& arguments)
{
    switch (arguments.task) {
    case Task::Help:
        std::cout << usageText();
        break;
    case Task::Version:
        std::cout << "lumivex-render " LUMIVEX_VERSION "\n";
        break;
    case Task::List:
        printList();
        break;
    case Task::Describe:
        std::cout << describeFilter(*filterNamed(arguments.filter)) << '\n';
        break;
    case Task::Render:
        if (const auto times = render(arguments))
            std::printf("%.3f\t%.3f\t%.3f\n", times->median, times->min, times->max);
        break;
    case Task::ListFavourites:
        for (const std::string& name : favouriteNames())
            std::cout << name << '\n';
        break;
    case Task::Batch:
        return applyFavourite(arguments);
    }
    return 0;
}

} // namespace

int main(int count, char** words)
{
    setImageLog([](std::string_view) {}); // the message below says it in one line
    try {
        return run(parseArguments(std::vector<std::string>(words + 1, words + count)));
    } catch (const std::exception& error) {
        std::cerr << "lumivex-render: " << error.what() << '\n';
        return 2;
    }
}
