// What other programs say of files.
#pragma once

#include <gtest/gtest.h>
#include <QProcess>

/// What the program prints; empty when it fails.
inline QString outputOf(const QString& program, const QStringList& arguments)
{
    QProcess process;
    process.start(program, arguments);
    EXPECT_TRUE(process.waitForFinished()) << program.toStdString();
    return process.exitCode() == 0 ? QString::fromUtf8(process.readAllStandardOutput()).trimmed() : QString();
}

/// Format, width and height.
inline QString identify(const QString& file) { return outputOf("identify", {"-format", "%m %w %h", file}); }
