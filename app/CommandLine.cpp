#include "app/CommandLine.h"

#include <QCommandLineParser>
#include <QCoreApplication>

#include <cstdio>

namespace {

struct Options {
    QCommandLineParser parser;
    QCommandLineOption help, version, newWindow;

    /// What Qt takes of the command line itself, in front of a display or not.
    static constexpr const char* kOfQt[] = {"platform", "platformpluginpath", "platformtheme", "plugin", "style",
        "stylesheet", "qwindowgeometry", "geometry", "qwindowtitle", "title", "qwindowicon", "icon", "display", "name",
        "session"};

    Options()
        : help(parser.addHelpOption())
        , version(parser.addVersionOption())
        , newWindow(QStringLiteral("new-window"),
              QCoreApplication::translate("CommandLine", "Open a window of its own, whatever else is open."))
    {
        parser.addOption(newWindow);
        parser.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
        for (const char* name : kOfQt) {
            QCommandLineOption option(QLatin1String(name), {}, QStringLiteral("value"));
            option.setFlags(QCommandLineOption::HiddenFromHelp);
            parser.addOption(option);
        }
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
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments << QString::fromLocal8Bit(argv[i]);
    Options options;
    return !options.parser.parse(arguments) || options.parser.isSet(options.help)
        || options.parser.isSet(QStringLiteral("help-all")) || options.parser.isSet(options.version);
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
