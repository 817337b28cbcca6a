#include "app/document/UndoHistory.h"

#include "WindowFixture.h"

#include "ui_MainWindow.h"

#include <QTest>

namespace {

TEST(UndoHistoryLines, TellWhereEachStateIs)
{
    using Lines = std::vector<UndoHistoryLine>;
    EXPECT_EQ(undoHistoryLines({}, {}, 20), (Lines{{"", 0, 0}}));
    const QStringList undo{"Point", "Point", "Radius", "Point"}, redo{"Point", "Apply", "Apply"};
    EXPECT_EQ(undoHistoryLines(undo, redo, 20),
        (Lines{{"Apply", 2, 3}, {"Point", 1, 1}, {"Point", 2, 0}, {"Radius", 1, -2}, {"Point", 1, -3}, {"", 0, -4}}));
}

TEST(UndoHistoryLines, KeepToTheNearestWhenThereAreTooMany)
{
    QStringList names;
    for (int i = 0; i < 50; ++i)
        names << QString::number(i);
    const auto ends = [](const std::vector<UndoHistoryLine>& lines) {
        return std::tuple{lines.size(), lines.front().moves, lines.back().moves};
    };
    EXPECT_EQ(ends(undoHistoryLines(names, {}, 20)), std::tuple(20u, 0, -19));
    EXPECT_EQ(ends(undoHistoryLines(names, names, 20)), std::tuple(20u, 10, -9));
    EXPECT_EQ(ends(undoHistoryLines({}, names, 20)), std::tuple(20u, 19, 0));
    EXPECT_EQ(ends(undoHistoryLines({"a"}, {"b", "c"}, 20)), std::tuple(4u, 2, -1));
}

class UndoHistoryTest : public WindowTest {
protected:
    QMenu& opened()
    {
        emit menu("menuUndoHistory").aboutToShow();
        return menu("menuUndoHistory");
    }
    QStringList titles()
    {
        QStringList titles;
        for (const QAction* item : opened().actions())
            titles << (item->isChecked() ? "> " : "") + item->text();
        return titles;
    }
    void choose(int line)
    {
        opened().actions().at(line)->trigger();
        waitUntilIdle();
    }
    double radius() { return controller.getCurrentFilter()->valueForKey("inputRadius").toDouble(); }
    void setRadius(double value)
    {
        CIFilter& filter = *controller.getCurrentFilter();
        controller.setFilterValueForKey(filter, value, "inputRadius");
        controller.setActionNameForFilterKey(filter, "inputRadius");
    }
};

TEST_F(UndoHistoryTest, GoesToAnyStepAndBack)
{
    emit menu("menuEdit").aboutToShow();
    EXPECT_FALSE(menu("menuUndoHistory").menuAction()->isEnabled());
    openPicture(pictureFile("plain.png", 60, 40));
    undo.removeAllActions();
    perform(&Controller::rotateLeft);
    const double width = controller.getBgImageExtent().width;
    pick("CIGaussianBlur");
    const double standard = radius();
    setRadius(20);
    setRadius(30);
    EXPECT_TRUE(menu("menuUndoHistory").menuAction()->isEnabled());
    const QStringList all = titles();
    EXPECT_EQ(all.first(), "> Change to Gaussian Blur Radius (2 times)");
    EXPECT_EQ(all.last(), "Before All Changes");

    choose(int(all.size()) - 1);
    EXPECT_EQ(controller.getBgImageExtent().width, 60);
    EXPECT_EQ(radius(), standard);
    EXPECT_EQ(titles().last(), "> Before All Changes");
    EXPECT_EQ(titles().mid(0, 2), QStringList({"Change to Gaussian Blur Radius (2 times)", "Rotate Left"}));
    EXPECT_TRUE(opened().actions().first()->font().italic()) << "undone";
    EXPECT_FALSE(undo.canUndo());

    choose(0);
    EXPECT_EQ(radius(), 30);
    EXPECT_EQ(controller.getBgImageExtent().width, width);
    EXPECT_FALSE(undo.canRedo());
    EXPECT_EQ(titles(), all);
    choose(0);
    EXPECT_EQ(radius(), 30) << "the present state is where we are";

    undo.undo();
    EXPECT_EQ(titles().mid(0, 2), QStringList({"Change to Gaussian Blur Radius", "> Change to Gaussian Blur Radius"}));
    setRadius(25);
    EXPECT_FALSE(undo.canRedo());
}

} // namespace
