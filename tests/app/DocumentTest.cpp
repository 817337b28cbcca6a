// The work of a document, without the program's window.
#include "app/document/Document.h"

#include "app/document/IdleThread.h"

#include <gtest/gtest.h>
#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QTest>
#include <QWidget>

#include <atomic>
#include <new>
#include <semaphore>
#include <thread>

#ifdef __linux__
#    include <sched.h>
#endif

namespace {

class DocumentTest : public testing::Test {
protected:
    void waitUntilIdle()
    {
        EXPECT_TRUE(QTest::qWaitFor([&] { return document.isIdle(); }, 60'000));
    }

    QWidget window;
    Document document{&window};
};

TEST_F(DocumentTest, WorkIsDoneElsewhereAndOneAtATime)
{
    std::binary_semaphore mayEnd{0};
    int result = 0;
    std::string order;
    document.work(
        {.title = "Work"},
        [&](WorkControl&) {
            mayEnd.acquire();
            return 42;
        },
        [&](std::optional<int> made, bool isCancelled) {
            EXPECT_TRUE(document.isIdle());
            EXPECT_FALSE(isCancelled);
            result = made.value_or(0);
            order += "then ";
        });
    EXPECT_EQ(document.state(), Document::State::Working);
    document.work(
        {}, [](WorkControl&) { return 1; }, [&](std::optional<int>, bool) { ADD_FAILURE() << "refused"; });
    document.whenIdle([&] {
        order += "next ";
        document.work(
            {}, [](WorkControl&) { return 1; }, [&](std::optional<int>, bool) { order += "work "; });
    });
    document.whenIdle([&] { order += "last"; });
    EXPECT_EQ(order, "");
    mayEnd.release();
    waitUntilIdle();
    EXPECT_EQ(result, 42);
    EXPECT_TRUE(QTest::qWaitFor([&] { return order == "then next work last"; })) << order;
}

TEST_F(DocumentTest, WithoutMemoryThereIsNoResult)
{
    bool wasCalled = false;
    document.work(
        {}, [](WorkControl&) -> int { throw std::bad_alloc(); },
        [&](std::optional<int> made, bool) {
            wasCalled = true;
            EXPECT_FALSE(made);
        });
    waitUntilIdle();
    EXPECT_TRUE(wasCalled);
}

TEST_F(DocumentTest, GoesAwayWithItsWork)
{
    {
        Document other(nullptr);
        other.work(
            {},
            [](WorkControl& control) {
                while (!control.isCancelled())
                    std::this_thread::yield();
                return 1;
            },
            [](std::optional<int>, bool) { ADD_FAILURE() << "there is nobody any more"; });
    }
    QCoreApplication::processEvents();
}

#ifdef __linux__
TEST(IdleThreadTest, ComesFirstOnceItIsWaitedFor)
{
    std::atomic<bool> wasIdle = false, isHurried = false;
    std::binary_semaphore hasBegun(0);
    {
        IdleThread thread;
        thread.begin([&] {
            wasIdle = sched_getscheduler(0) == SCHED_IDLE;
            hasBegun.release();
            const QDeadlineTimer patience(60'000); // ms
            while (!(isHurried = sched_getscheduler(0) != SCHED_IDLE) && !patience.hasExpired())
                QThread::yieldCurrentThread();
        });
        hasBegun.acquire();
    }
    EXPECT_TRUE(wasIdle);
    EXPECT_TRUE(isHurried);
}
#endif

} // namespace
