// Mouse, wheel and keys.
#include "tests/controls/ImageViewFixture.h"

#include <QAccessible>
#include <QScrollBar>
#include <QSignalSpy>

TEST_F(ImageViewTest, WheelZoomsAndTellsTheController)
{
    open(pattern(1000, 800));
    input::turnWheel(view, 120);
    EXPECT_FLOAT_EQ(view.getZoom(), 1.05f);
    input::turnWheel(view, -40);
    input::turnWheel(view, -40);
    EXPECT_FLOAT_EQ(view.getZoom(), 1.05f) << "a third of a notch isn't a step";
    input::turnWheel(view, -40);
    EXPECT_FLOAT_EQ(view.getZoom(), 1.0f);
    ASSERT_EQ(master.zooms.size(), 2u);
    EXPECT_FLOAT_EQ(master.zooms[0], 1.05f);
    view.setZoom(25);
    EXPECT_EQ(view.getZoom(), 10.0f);
}

TEST_F(ImageViewTest, ClickGrabsTheNearestPointAndDraggingSendsValues)
{
    open(pattern(200, 200));
    edit("CIBumpDistortion");
    master.filter->setValueForKey(CIVector{100, 100}, "inputCenter");
    QTest::mousePress(&view, Qt::LeftButton, {}, at(5, 190));
    EXPECT_EQ(view.grabKey(), "inputCenter");
    EXPECT_TRUE(master.sent.empty()) << "a click alone changes nothing";
    moveMouse(at(30, 40), Qt::LeftButton);
    moveMouse(at(31, 42), Qt::LeftButton);
    ASSERT_EQ(master.sent.size(), 2u);
    EXPECT_EQ(master.sent[1], CIValue(CIVector{31, 42, 0, 0}));
    QTest::mouseRelease(&view, Qt::LeftButton, {}, at(31, 42));
    moveMouse(at(50, 50));
    EXPECT_EQ(master.sent.size(), 2u);
}

TEST_F(ImageViewTest, DraggingACornerThroughTheOppositeOneRenumbersIt)
{
    open(pattern(200, 200));
    edit("CICrop");
    master.filter->setValueForKey(CIVector{50, 50, 60, 60}, "inputRectangle");
    QTest::mousePress(&view, Qt::LeftButton, {}, at(45, 45));
    EXPECT_EQ(view.grabMode(), ParmMode::kBottomLeft);
    moveMouse(at(150, 60), Qt::LeftButton);
    EXPECT_EQ(view.grabMode(), ParmMode::kTopRight);
    EXPECT_EQ(master.sent.back(), CIValue(CIVector{110, 60, 40, 50}));
    moveMouse(at(160, 120), Qt::LeftButton);
    EXPECT_EQ(master.sent.back(), CIValue(CIVector{110, 60, 50, 60}));
    QTest::mouseRelease(&view, Qt::LeftButton, {}, at(160, 120));
}

TEST_F(ImageViewTest, WithoutAFilterDraggingDoesNothing)
{
    open(pattern(200, 200));
    QTest::mousePress(&view, Qt::LeftButton, {}, at(5, 5));
    moveMouse(at(30, 40), Qt::LeftButton);
    QTest::mouseRelease(&view, Qt::LeftButton, {}, at(30, 40));
    EXPECT_TRUE(master.sent.empty());
    EXPECT_EQ(view.grabMode(), ParmMode::kNothing);
}

TEST_F(ImageViewTest, PointsAndHandFollowTheMouse)
{
    open(pattern(200, 200));
    input::enter(view, at(50, 50));
    EXPECT_FALSE(view.isDisplayingPoints());
    EXPECT_EQ(view.cursor().shape(), Qt::ArrowCursor);
    edit("CIBumpDistortion");
    moveMouse(at(51, 50));
    EXPECT_TRUE(view.isDisplayingPoints()) << "a filter chosen while the mouse rested here";
    EXPECT_EQ(view.cursor().shape(), Qt::PointingHandCursor);
    input::leave(view);
    EXPECT_FALSE(view.isDisplayingPoints());
    EXPECT_EQ(view.cursor().shape(), Qt::ArrowCursor);
}

TEST_F(ImageViewTest, MiddleButtonAndSpaceMoveThePicture)
{
    open(pattern(1000, 800));
    edit("CIBumpDistortion");
    window.setScrollPosition({100, 100});
    QTest::mousePress(&view, Qt::MiddleButton, {}, {200, 100});
    moveMouse({230, 110}, Qt::MiddleButton);
    QTest::mouseRelease(&view, Qt::MiddleButton, {}, {230, 110});
    EXPECT_EQ(window.clipBounds(), (CIRect{70, 110, 400, 300}));
    QTest::keyPress(&view, Qt::Key_Space);
    QTest::mousePress(&view, Qt::LeftButton, {}, {200, 100});
    moveMouse({190, 100}, Qt::LeftButton);
    EXPECT_EQ(view.cursor().shape(), Qt::ClosedHandCursor);
    QTest::mouseRelease(&view, Qt::LeftButton, {}, {190, 100});
    QTest::keyRelease(&view, Qt::Key_Space);
    EXPECT_EQ(window.clipBounds(), (CIRect{80, 110, 400, 300}));
    EXPECT_TRUE(master.sent.empty());
}

TEST_F(ImageViewTest, ScrollBarsKeepTheirUpsideUp)
{
    open(pattern(1000, 800));
    window.setScrollPosition({0, 0}); // the lower left corner
    EXPECT_EQ(window.verticalScrollBar()->value(), 500);
    EXPECT_EQ(window.verticalScrollBar()->maximum(), 500);
    window.verticalScrollBar()->setValue(120);
    window.horizontalScrollBar()->setValue(30);
    EXPECT_EQ(window.clipBounds(), (CIRect{30, 380, 400, 300}));
    EXPECT_EQ(view.toPicture({0, 0}), (CIPoint{30, 680}));
}

TEST_F(ImageViewTest, ScrollBarsComeAndGoWithTheZoom)
{
    window.setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    window.setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    open(pattern(390, 290));
    EXPECT_EQ(view.size(), QSize(400, 300));
    view.setZoom(2);
    EXPECT_TRUE(QTest::qWaitFor([&] { return view.width() < 400 && view.height() < 300; }));
    view.setZoom(1);
    EXPECT_TRUE(QTest::qWaitFor([&] { return view.size() == QSize(400, 300); }))
        << "two bars that nothing needs don't keep each other";
    EXPECT_EQ(view.bounds(), (CIRect{-5, -5, 400, 300}));
}

TEST_F(ImageViewTest, TabAndArrowsReachEveryPoint)
{
    open(pattern(200, 200));
    edit("CICrop");
    master.filter->setValueForKey(CIVector{50, 50, 60, 60}, "inputRectangle");
    view.setFocus();
    QTest::keyClick(&view, Qt::Key_Left);
    EXPECT_TRUE(master.sent.empty()) << "no point is selected yet";
    QTest::keyClick(&view, Qt::Key_Tab); // top right
    QTest::keyClick(&view, Qt::Key_Right);
    ASSERT_FALSE(master.sent.empty());
    EXPECT_EQ(master.sent.back(), CIValue(CIVector{50, 50, 61, 60}));
    QTest::keyClick(&view, Qt::Key_Tab); // top left
    QTest::keyClick(&view, Qt::Key_Up, Qt::ShiftModifier);
    EXPECT_EQ(master.sent.back(), CIValue(CIVector{50, 50, 61, 70}));
    QTest::keyClick(&view, Qt::Key_Backtab, Qt::ShiftModifier);
    QTest::keyClick(&view, Qt::Key_Down);
    EXPECT_EQ(master.sent.back(), CIValue(CIVector{50, 50, 61, 69}));
}

TEST_F(ImageViewTest, RightClickOpensTheMenuOfTheController)
{
    master.menu.addAction("Save");
    QContextMenuEvent event(QContextMenuEvent::Mouse, {10, 10}, view.mapToGlobal(QPoint(10, 10)));
    QApplication::sendEvent(&view, &event);
    EXPECT_TRUE(master.menu.isVisible());
    master.menu.close();
}

TEST_F(ImageViewTest, ItsPointsAreThereForAssistiveTechnology)
{
    open(pattern(200, 200));
    edit("CICrop");
    master.filter->setValueForKey(CIVector{50, 50, 60, 70}, "inputRectangle");
    QAccessibleInterface* canvas = QAccessible::queryAccessibleInterface(&view);
    const int widgets = int(view.findChildren<QWidget*>(Qt::FindDirectChildrenOnly).size());
    ASSERT_EQ(canvas->childCount(), 4 + widgets);
    QAccessibleInterface* corner = canvas->child(0);
    EXPECT_TRUE(corner->text(QAccessible::Name).endsWith("top right"));
    EXPECT_EQ(corner->text(QAccessible::Description), "110, 120");
    EXPECT_EQ(corner->rect().center(), view.mapToGlobal(at(110, 120)) - QPoint(1, 1));
    for (int i = 0; i < canvas->childCount(); ++i)
        EXPECT_EQ(canvas->indexOfChild(canvas->child(i)), i);
    view.setFocus();
    QTest::keyClick(&view, Qt::Key_Tab);
    EXPECT_EQ(canvas->focusChild(), corner);
    master.filter.reset();
    EXPECT_EQ(canvas->childCount(), widgets);
    EXPECT_FALSE(corner->isValid());
}

TEST_F(ImageViewTest, APlaceThatIsAskedForIsToldOnceAndMovesNoPoint)
{
    edit("CIBumpDistortion");
    open(pattern(300, 200));
    std::vector<std::optional<CIPoint>> told;
    const auto ask = [&] { view.pickPlace([&](std::optional<CIPoint> place) { told.push_back(place); }); };
    ask();
    EXPECT_EQ(view.cursor().shape(), Qt::CrossCursor);
    QTest::mouseClick(&view, Qt::LeftButton, {}, at(20.5, 30.5));
    ASSERT_EQ(told.size(), 1u);
    EXPECT_NEAR(told[0].value().x, 20.5, 1);
    EXPECT_NEAR(told[0].value().y, 30.5, 1);
    EXPECT_TRUE(master.sent.empty());

    ask();
    QTest::keyClick(&view, Qt::Key_Escape);
    EXPECT_EQ(told.back(), std::nullopt);
    EXPECT_FALSE(view.isPickingPlace());
    QTest::mouseClick(&view, Qt::LeftButton, {}, at(20.5, 30.5));
    EXPECT_EQ(told.size(), 2u);
}
