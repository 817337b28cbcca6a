#include "widgets/HeldInput.h"

#include <gtest/gtest.h>
#include <QLineEdit>
#include <QTest>

namespace {

TEST(HeldInput, KeysAndClicksComeLaterInTheirOrder)
{
    QLineEdit field;
    field.setText("abc");
    {
        const HeldInput held;
        QTest::keyClick(&field, Qt::Key_End);
        QTest::keyClicks(&field, "def");
        QCoreApplication::processEvents();
        EXPECT_EQ(field.text(), "abc");
    }
    EXPECT_EQ(field.text(), "abc") << "nobody is called from here";
    QCoreApplication::processEvents();
    EXPECT_EQ(field.text(), "abcdef");
}

TEST(HeldInput, WaitsOnWhenTheNextOneHolds)
{
    QLineEdit field;
    auto first = std::make_unique<HeldInput>();
    QTest::keyClicks(&field, "a");
    first.reset();
    HeldInput second;
    QCoreApplication::processEvents();
    EXPECT_EQ(field.text(), "");
    second.forget();
    QTest::keyClicks(&field, "b");
    EXPECT_EQ(field.text(), "");
}

TEST(HeldInput, OutlivesWhoWouldHaveGotIt)
{
    auto field = std::make_unique<QLineEdit>();
    HeldInput held;
    QTest::keyClicks(field.get(), "a");
    field.reset();
}

} // namespace
