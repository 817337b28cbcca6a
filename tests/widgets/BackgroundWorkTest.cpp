#include "widgets/BackgroundWork.h"

#include <gtest/gtest.h>
#include <QApplication>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QWidget>

#include <chrono>
#include <new>
#include <optional>
#include <thread>

namespace {

using namespace std::chrono_literals;

class BackgroundWorkTest : public testing::Test {
protected:
    BackgroundWorkTest()
    {
        window.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&window));
    }
    /// Does the work to its end; whether it was cancelled.
    bool run(const WorkOptions& options, BackgroundWork::Work work)
    {
        std::optional<bool> isCancelled;
        const BackgroundWork running(
            &window, options, std::move(work), [&](bool cancelled) { isCancelled = cancelled; });
        EXPECT_FALSE(isCancelled) << "never at once";
        EXPECT_TRUE(QTest::qWaitFor([&] { return isCancelled.has_value(); }, 60'000));
        return isCancelled.value_or(false);
    }
    QWidget window;
};

TEST_F(BackgroundWorkTest, ShortWorkShowsNoSheet)
{
    bool sheetSeen = false;
    EXPECT_FALSE(run({.title = "Short"}, [&](WorkControl&) { sheetSeen = QApplication::activeModalWidget(); }));
    EXPECT_FALSE(sheetSeen);
}

TEST_F(BackgroundWorkTest, LongWorkShowsHowFarItIsAndCanBeStopped)
{
    int ticks = 0, shown = -1;
    QTimer alive;
    QObject::connect(&alive, &QTimer::timeout, [&] {
        ++ticks;
        QWidget* sheet = QApplication::activeModalWidget();
        if (!sheet)
            return;
        shown = sheet->findChild<QProgressBar*>()->value();
        if (shown > 0)
            sheet->findChild<QPushButton*>()->click();
    });
    alive.start(10);
    EXPECT_TRUE(run({.title = "Long", .renderingShare = 0.5}, [](WorkControl& control) {
        control.rendering.setProgress(1);
        control.writing.setProgress(0.5);
        while (!control.writing.isCancelled())
            std::this_thread::sleep_for(10ms);
    }));
    EXPECT_EQ(shown, 750);
    EXPECT_GT(ticks, 10) << "events went on";
    EXPECT_FALSE(QApplication::activeModalWidget());
}

TEST_F(BackgroundWorkTest, KeysWaitForItUntilTheSheetIsThere)
{
    QLineEdit field(&window);
    field.show();
    BackgroundWork work(
        &window, {},
        [](WorkControl& control) {
            while (!control.isCancelled())
                std::this_thread::sleep_for(1ms);
        },
        [](bool) {});
    QTest::keyClicks(&field, "a");
    EXPECT_EQ(field.text(), "");
    EXPECT_TRUE(QTest::qWaitFor([] { return QApplication::activeModalWidget() != nullptr; }, 60'000));
    QTest::keyClicks(&field, "b");
    EXPECT_EQ(field.text(), "b") << "what came before is forgotten";
}

TEST_F(BackgroundWorkTest, WithoutMemoryItEnds)
{
    EXPECT_FALSE(run({}, [](WorkControl&) { throw std::bad_alloc(); }));
}

} // namespace
