#include "widgets/DocPageControl.h"
#include "tests/support/Input.h"
#include "widgets/FavouritesMaster.h"
#include "widgets/onlyTextClosedButton.h"

#include <gtest/gtest.h>
#include <QPointer>
#include <QTest>
#include <QToolButton>

namespace {

class StripTest : public testing::Test {
protected:
    StripTest()
    {
        strip.setFixedWidth(40 + 3 * 51 + 10); // the two step buttons, three items and a bit
        strip.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&strip));
    }
    onlyTextClosedButton* add(QAbstractButton* selected = nullptr)
    {
        auto* item = new onlyTextClosedButton;
        strip.addItem(item, selected);
        return item;
    }
    void waitUntilStill()
    {
        EXPECT_TRUE(QTest::qWaitFor([this] { return !strip.isMoving(); }, 2000));
    }
    bool showsSteps(bool previous, bool next) const
    {
        return strip.previousButton()->isVisible() == previous && strip.nextButton()->isVisible() == next;
    }

    DocPageControl strip;
};

TEST_F(StripTest, ItemsStandSideBySideNextToTheSelectedOne)
{
    EXPECT_TRUE(showsSteps(false, false));
    QAbstractButton* first = add();
    QAbstractButton* second = add();
    EXPECT_FALSE(first->isChecked() || second->isChecked());
    first->setChecked(true);
    QAbstractButton* between = add(first);
    EXPECT_EQ(strip.items(), (QList<QAbstractButton*>{first, between, second}));
    EXPECT_FALSE(first->isChecked());
    EXPECT_TRUE(between->isChecked());
    EXPECT_EQ(between->x(), 51);
    EXPECT_EQ(second->x(), 102);
    EXPECT_TRUE(showsSteps(false, false)) << "all of them fit";

    strip.removeItem(between);
    EXPECT_EQ(second->x(), 51);
    strip.removeItem(first);
    strip.removeItem(second);
    EXPECT_EQ(strip.pageCount(), 0);
    EXPECT_TRUE(showsSteps(false, false));
}

TEST_F(StripTest, NewItemsComeIntoViewAndStepsSwingToTheNext)
{
    for (int i = 0; i < 5; ++i)
        add();
    EXPECT_EQ(strip.visibleOrigin(), 2 * 51) << "the last three";
    EXPECT_TRUE(showsSteps(true, false));

    double least = 1000;
    QTest::mouseClick(strip.previousButton(), Qt::LeftButton);
    while (strip.isMoving()) {
        least = std::min(least, strip.visibleOrigin());
        QTest::qWait(5);
    }
    EXPECT_EQ(strip.visibleOrigin(), 51);
    EXPECT_LT(least, 51) << "beyond, and back";
    strip.stepPrev();
    strip.stepPrev(); // the first one settles at once
    waitUntilStill();
    EXPECT_EQ(strip.visibleOrigin(), 0);
    EXPECT_TRUE(showsSteps(false, true));
    strip.adjustVisibility(3);
    waitUntilStill();
    EXPECT_EQ(strip.visibleOrigin(), 51);

    strip.setFixedWidth(40 + 51); // one item
    EXPECT_EQ(strip.maxShownPage() - strip.currentPage(), 1);
    strip.stepNext();
    waitUntilStill();
    EXPECT_EQ(strip.visibleOrigin(), 2 * 51);
    strip.setFixedWidth(600);
    EXPECT_EQ(strip.visibleOrigin(), 0) << "no place stays empty";
    EXPECT_TRUE(showsSteps(false, false));
    strip.clear();
    EXPECT_TRUE(strip.items().isEmpty());
}

TEST_F(StripTest, KeysWalkOverTheItemsAndBringThemIntoView)
{
    strip.setFixedWidth(40 + 2 * 51);
    QList<onlyTextClosedButton*> items;
    for (int i = 0; i < 5; ++i)
        items.append(add());
    const auto press = [this](Qt::Key key) {
        QTest::keyClick(QApplication::focusWidget(), key);
        waitUntilStill();
    };
    strip.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&strip));
    items[0]->setFocus();
    press(Qt::Key_End);
    EXPECT_TRUE(items[4]->hasFocus());
    EXPECT_EQ(strip.visibleOrigin(), 3 * 51);
    press(Qt::Key_Left);
    press(Qt::Key_Left);
    EXPECT_TRUE(items[2]->hasFocus());
    EXPECT_EQ(strip.visibleOrigin(), 2 * 51);
    EXPECT_TRUE(items[2]->focusPolicy() & Qt::TabFocus);
    EXPECT_FALSE(items[4]->focusPolicy() & Qt::TabFocus) << "one stop for all";
    int clicks = 0;
    QObject::connect(items[2], &QAbstractButton::clicked, &strip, [&] { ++clicks; });
    press(Qt::Key_Space);
    press(Qt::Key_Return);
    EXPECT_EQ(clicks, 2);
    EXPECT_FALSE(items[2]->isChecked()) << "who switches it is not the button";
}

TEST_F(StripTest, ADraggedItemTakesAnotherPlaceAndIsNotPressed)
{
    QList<QAbstractButton*> items{add(), add(), add()};
    int clicks = 0, moves = 0;
    QObject::connect(items[0], &QAbstractButton::clicked, items[0], [&] { ++clicks; });
    QObject::connect(&strip, &DocPageControl::itemMoved, &strip, [&] { ++moves; });
    const auto send = [&](QEvent::Type type, const QPoint& on, Qt::MouseButtons held) {
        const QPoint global = strip.mapToGlobal(on);
        QMouseEvent event(type, items[0]->mapFromGlobal(global), global, Qt::LeftButton, held, Qt::NoModifier);
        QCoreApplication::sendEvent(items[0], &event);
    };
    const QPoint start = items[0]->mapTo(&strip, QPoint(20, 25));
    send(QEvent::MouseButtonPress, start, Qt::LeftButton);
    send(QEvent::MouseMove, start + QPoint(2, 0), Qt::LeftButton);
    EXPECT_EQ(items[0]->x(), 0) << "a hand that trembles drags nothing";
    send(QEvent::MouseMove, start + QPoint(70, 0), Qt::LeftButton);
    EXPECT_EQ(items[0]->x(), 70) << "under the mouse";
    EXPECT_EQ(items[1]->x(), 0) << "makes room";
    EXPECT_EQ(moves, 0);
    send(QEvent::MouseButtonRelease, start + QPoint(70, 0), Qt::NoButton);
    EXPECT_EQ(strip.items(), (QList<QAbstractButton*>{items[1], items[0], items[2]}));
    EXPECT_EQ(items[0]->x(), 51);
    EXPECT_EQ(moves, 1);
    EXPECT_EQ(clicks, 0);
    QTest::mouseClick(items[0], Qt::LeftButton);
    EXPECT_EQ(clicks, 1);
}

struct FakeMaster : FavouritesMaster {
    QList<onlyTextClosedButton*> removed;

    void chooseFavourite(onlyTextClosedButton*) override { }
    void removeFavourite(onlyTextClosedButton* button) override { removed.append(button); }
    void showFavouriteMenu(onlyTextClosedButton*, const QPoint&) override { }
    void tell(const QString&) override { }
};

TEST_F(StripTest, CloseBoxAndDeleteAskToRemove)
{
    FakeMaster master;
    onlyTextClosedButton* item = add();
    item->setController(&master);
    item->addCloseBtn();
    item->addCloseBtn();
    EXPECT_EQ(item->findChildren<BaseColoredButton*>().size(), 1);
    EXPECT_EQ(item->closeButton()->geometry(), QRect(item->width() - 20, 2, 14, 14));
    EXPECT_FALSE(item->closeButton()->isVisible());
    input::enter(*item);
    EXPECT_TRUE(item->closeButton()->isVisible());
    QTest::mouseClick(item->closeButton(), Qt::LeftButton);
    EXPECT_EQ(master.removed, QList{item});
    input::leave(*item);
    EXPECT_FALSE(item->closeButton()->isVisible());
    QTest::keyClick(item, Qt::Key_Delete);
    EXPECT_EQ(master.removed.size(), 2);
}

} // namespace
