#include "widgets/BackgroundWork.h"

#include <gtest/gtest.h>
#include <QApplication>
#include <QProgressBar>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QWidget>

#include <chrono>
#include <new>
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
    QWidget window;
    WorkControl control{0.5};
};

TEST_F(BackgroundWorkTest, ShortWorkShowsNoSheet)
{
    bool sheetSeen = false;
    EXPECT_TRUE(workInBackground(&window, "Short", control, [&] {
        EXPECT_TRUE(isWorkRunning());
        sheetSeen = QApplication::activeModalWidget();
    }));
    EXPECT_FALSE(sheetSeen);
    EXPECT_FALSE(isWorkRunning());
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
    EXPECT_FALSE(workInBackground(&window, "Long", control, [&] {
        control.rendering.setProgress(1);
        control.writing.setProgress(0.5);
        for (int i = 0; i < 1000 && !control.isCancelled(); ++i)
            std::this_thread::sleep_for(10ms);
    }));
    EXPECT_TRUE(control.writing.isCancelled());
    EXPECT_EQ(shown, 750);
    EXPECT_GT(ticks, 10) << "events went on";
    EXPECT_FALSE(QApplication::activeModalWidget());
}

TEST_F(BackgroundWorkTest, WithoutMemoryItFails)
{
    EXPECT_FALSE(workInBackground(&window, "Large", control, [] { throw std::bad_alloc(); }));
}

} // namespace
