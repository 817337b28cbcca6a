#include "app/CommandLine.h"

#include <QCommandLineParser>
#include <QCoreApplication>

#include <algorithm>
#include <cstdio>
#include <string_view>

namespace {

struct Options {
    QCommandLineParser parser;
    QCommandLineOption help, version, newWindow;

    Options()
        : help(parser.addHelpOption())
        , version(parser.addVersionOption())
        , newWindow(QStringLiteral("new-window"),
              QCoreApplication::translate("CommandLine", "Open a window of its own, whatever else is open."))
    {
        parser.addOption(newWindow);
        parser.setApplicationDescription(
            QCoreApplication::translate("CommandLine", "Edits a picture with live filters."));
        parser.addPositionalArgument(QStringLiteral("picture"),
            QCoreApplication::translate(
                "CommandLine", "Picture files to open: the first in a window that is open already, if it can be."),
            QStringLiteral("[picture...]"));
    }
};

} // namespace

bool wantsOnlyText(int argc, const char* const* argv)
{
    for (int i = 1; i < argc; ++i) {
        const std::string_view argument = argv[i];
        if (argument == "--")
            return false;
        if (argument == "-h" || argument == "--help" || argument == "--help-all" || argument == "-v"
            || argument == "--version")
            return true;
    }
    return false;
}

int answerInText(const QStringList& arguments)
{
    Options options;
    if (!options.parser.parse(arguments)) {
        std::fprintf(stderr, "%s\n", qPrintable(options.parser.errorText()));
        return 2;
    }
    if (options.parser.isSet(options.version))
        std::printf("lumivex %s\n", qPrintable(QCoreApplication::applicationVersion()));
    else
        std::printf("%s", qPrintable(options.parser.helpText()));
    return 0;
}

std::optional<StartRequest> startRequest(const QStringList& arguments)
{
    Options options;
    if (!options.parser.parse(arguments)) {
        std::fprintf(stderr, "%s\n", qPrintable(options.parser.errorText()));
        return std::nullopt;
    }
    return StartRequest{options.parser.positionalArguments(), options.parser.isSet(options.newWindow)};
}
