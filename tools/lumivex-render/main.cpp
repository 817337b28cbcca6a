// The command-line door to the image engine.
#include "tools/lumivex-render/Arguments.h"
#include "tools/lumivex-render/Describe.h"
#include "tools/lumivex-render/Render.h"

#include "platform/imageio/ImageLog.h"

#include <cstdio>
#include <exception>
#include <iostream>

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

void run(const Arguments& arguments)
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
    }
}

} // namespace

int main(int count, char** words)
{
    setImageLog([](std::string_view) {}); // the message below says it in one line
    try {
        run(parseArguments(std::vector<std::string>(words + 1, words + count)));
        return 0;
    } catch (const std::exception& error) {
        std::cerr << "lumivex-render: " << error.what() << '\n';
        return 2;
    }
}
