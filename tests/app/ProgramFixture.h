// The real program in processes of its own, seen as its user sees it: by its windows.
#pragma once

#include <gtest/gtest.h>
#include <QElapsedTimer>
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <functional>
#include <memory>
#include <vector>

class ProgramTest : public testing::Test {
protected:
    ProgramTest()
    {
        for (const char* name : {"CONFIG", "DATA", "CACHE", "STATE"}) {
            const QString home = folder.filePath(QString("xdg-") + name);
            environment.insert(QString("XDG_%1_HOME").arg(name), home);
            QDir().mkpath(home);
        }
        environment.remove("QT_QPA_PLATFORM");
        environment.insert("DBUS_SESSION_BUS_ADDRESS", "unix:path=" + folder.filePath("no-bus"));
    }
    ~ProgramTest() override
    {
        for (const auto& program : programs) {
            program->kill();
            program->waitForFinished();
        }
    }

    QString pictureFile(const QString& name)
    {
        QImage image(60, 40, QImage::Format_RGB32);
        image.fill(Qt::blue);
        image.setPixelColor(0, 0, Qt::red); // tells how it is turned
        const QString path = folder.filePath(name);
        EXPECT_TRUE(image.save(path));
        return path;
    }
    QProcess& start(const QStringList& arguments)
    {
        QProcess& program = *programs.emplace_back(std::make_unique<QProcess>());
        program.setProcessChannelMode(QProcess::ForwardedChannels);
        program.setProcessEnvironment(environment);
        program.start(LUMIVEX_PROGRAM, arguments);
        EXPECT_TRUE(program.waitForStarted());
        return program;
    }
    /// Runs xdotool; what it prints.
    static QString tool(const QStringList& arguments)
    {
        QProcess xdotool;
        xdotool.start("xdotool", arguments);
        EXPECT_TRUE(xdotool.waitForFinished());
        return QString::fromUtf8(xdotool.readAllStandardOutput()).trimmed();
    }
    static bool waitFor(const std::function<bool()>& happened, int milliseconds = 30'000)
    {
        QElapsedTimer timer;
        timer.start();
        while (!happened()) {
            if (timer.elapsed() > milliseconds)
                return false;
            QTest::qWait(50);
        }
        return true;
    }
    static QStringList windows(const QString& title)
    {
        return tool({"search", "--onlyvisible", "--name", '^' + title + '$'}).split('\n', Qt::SkipEmptyParts);
    }
    /// The topmost of at least `count` windows with that title; empty after long waiting.
    static QString window(const QString& title, int count = 1)
    {
        QStringList found;
        waitFor([&] {
            found = windows(title);
            return found.size() >= count;
        });
        return found.value(found.size() - 1);
    }
    /// Once more after a while if nothing happens: keys get lost while a window is on its way.
    static bool pressUntil(const std::function<bool()>& happened, const std::function<void()>& press)
    {
        constexpr int kPatience = 15'000; // ms
        for (int attempt = 0; attempt < 3; ++attempt) {
            press();
            if (waitFor(happened, kPatience))
                return true;
        }
        return false;
    }
    static void press(const QString& window, const QString& key)
    {
        tool({"windowfocus", "--sync", window, "key", key});
    }

    QTemporaryDir folder;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    std::vector<std::unique_ptr<QProcess>> programs;
};
