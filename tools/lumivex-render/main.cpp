// The command-line door to the image engine.
#include "tools/lumivex-render/Arguments.h"
#include "tools/lumivex-render/Batch.h"
#include "tools/lumivex-render/Describe.h"
#include "tools/lumivex-render/Render.h"

#include "platform/imageio/ImageLog.h"
#include "platform/quartz/TextRenderer.h"

#include <QGuiApplication>

#include <clocale>
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

/// The system's fonts, without a display.
class Fonts {
public:
    Fonts(int& count, char** words)
        : m_application((qputenv("QT_QPA_PLATFORM", "offscreen"), count), words)
    {
        std::setlocale(LC_NUMERIC, "C"); // it brought the user's commas
        CITextRenderer::install(std::make_shared<TextRenderer>());
    }

private:
    QGuiApplication m_application;
};

/// Fonts take longer to find than most pictures to make. A favourite may draw text, too.
bool needsFonts(const Arguments& arguments)
{
    return arguments.task == Task::Batch || arguments.filter.ends_with("TextImageGenerator");
}

} // namespace

int main(int count, char** words)
{
    setImageLog([](std::string_view) {}); // the message below says it in one line
    try {
        const Arguments arguments = parseArguments(std::vector<std::string>(words + 1, words + count));
        std::optional<Fonts> fonts;
        if (needsFonts(arguments))
            fonts.emplace(count, words);
        return run(arguments);
    } catch (const std::exception& error) {
        std::cerr << "lumivex-render: " << error.what() << '\n';
        return 2;
    }
}
