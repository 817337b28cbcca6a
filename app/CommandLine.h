// What the program is started with.
#pragma once

#include <QString>
#include <QStringList>

#include <optional>

/// True when the arguments ask for help or the version, before a "--".
bool wantsOnlyText(int argc, const char* const* argv);

/// Prints what was asked for; the exit code.
int answerInText(const QStringList& arguments);

struct StartRequest {
    QStringList pictures; // as they were written
    bool newWindow = false; // a process of its own, whatever else is running
};

/// Nothing, after a message to the error output, when the arguments can't be understood.
std::optional<StartRequest> startRequest(const QStringList& arguments);
