#include "WindowFixture.h"

#include "app/catalogue/OutlineModel.h"
#include "app/catalogue/OutlineView.h"
#include "controls/picture/MyImageView.h"
#include "controls/picture/PictureScrollView.h"
#include "platform/foundation/Appearance.h"
#include "platform/foundation/UserDefaults.h"
#include "ui_MainWindow.h"

#include <QAccessible>
#include <QApplication>
#include <QProcess>
#include <QTest>

namespace {

TEST_F(WindowTest, StandardKeysAreThereAndDifferFromEachOther)
{
    QHash<QKeySequence, QAction*> taken;
    for (QAction* item : window.findChildren<QAction*>(QString(), Qt::FindDirectChildrenOnly))
        for (const QKeySequence& key : item->shortcuts()) {
            EXPECT_FALSE(taken.contains(key)) << key.toString().toStdString();
            taken.insert(key, item);
        }
    for (const char* key :
        {"Ctrl+O", "Ctrl+Q", "Ctrl+Z", "Ctrl+Shift+Z", "Ctrl+V", "Ctrl+=", "Ctrl++", "Ctrl+-", "F11"})
        EXPECT_TRUE(taken.contains(QKeySequence(QLatin1String(key)))) << key;
}

TEST_F(WindowTest, EscapeDropsTheFilterButFirstTheSearch)
{
    pick("CIGaussianBlur");
    QTest::keyClicks(ui.searchField, "gauss");
    EXPECT_TRUE(controller.getCurrentFilter());
    ui.searchField->setFocus();
    QTest::keyClick(ui.searchField, Qt::Key_Escape);
    EXPECT_TRUE(ui.searchField->text().isEmpty());
    EXPECT_TRUE(controller.getCurrentFilter());
    QTest::keyClick(&window, Qt::Key_Escape);
    EXPECT_FALSE(controller.getCurrentFilter());
}

TEST_F(WindowTest, SearchingKeepsTheFilterAndReturnTakesTheFirstMatch)
{
    pick("CIGaussianBlur");
    const std::shared_ptr<CIFilter> blur = controller.getCurrentFilter();
    const OutlineItem* row = ui.listView->selectedItem();
    QTest::keyClicks(ui.searchField, "crop unicorn"); // is only near
    QTest::keyClick(ui.searchField, Qt::Key_Return);
    EXPECT_EQ(controller.getCurrentFilter(), blur);
    EXPECT_FALSE(ui.listView->selectedItem());
    ui.searchField->clear();
    EXPECT_EQ(ui.listView->selectedItem(), row);
    EXPECT_EQ(controller.getCurrentFilter(), blur) << "the same one, not made anew";

    QTest::keyClicks(ui.searchField, "cicrop");
    QTest::keyClick(ui.searchField, Qt::Key_Return);
    ASSERT_TRUE(controller.getCurrentFilter());
    EXPECT_EQ(controller.getCurrentFilter()->name(), "CICrop");
    EXPECT_TRUE(controller.isControlsPresent());
}

TEST_F(WindowTest, KeepsOnTopOfTheListWhatIsPinnedAndWhatWasApplied)
{
    const auto top = [this] { return ui.listView->model()->index(0, 0).data().toString(); };
    const auto place = [this] { return ui.listView->visualRect(rowOf("CICrop")); };
    const auto clickStar = [&](const QModelIndex& row) {
        const QRect cell = ui.listView->visualRect(row);
        QTest::mouseClick(ui.listView->viewport(), Qt::LeftButton, {}, cell.center() + QPoint(cell.width() / 2 - 8, 0));
    };
    openPicture(pictureFile("plain.png", 40, 30));
    const OutlineItem* folded = groupOf("CIVignette");
    ui.listView->setItemExpanded(folded, false);
    const QRect before = place();
    clickStar(rowOf("CICrop"));
    EXPECT_EQ(top(), "Pinned");
    EXPECT_FALSE(controller.getCurrentFilter()) << "a star chooses nothing";
    EXPECT_EQ(place(), before) << "nothing moves under the mouse";
    EXPECT_FALSE(ui.listView->isItemExpanded(folded));

    pick("CIColorInvert");
    perform(&Controller::applyBtn);
    EXPECT_EQ(ui.listView->model()->index(1, 0).data().toString(), "Recently Used");
    {
        MainWindow second;
        Controller secondController(second);
        const QAbstractItemModel& model = *second.interface().listView->model();
        EXPECT_EQ(model.index(0, 0, model.index(0, 0)).data().toString(), "Crop") << "remembered";
        EXPECT_EQ(model.index(0, 0, model.index(1, 0)).data().toString(), "Color Invert");
    }
    const QModelIndex pinned = ui.listView->model()->index(0, 0, ui.listView->model()->index(0, 0));
    click(pinned.data(OutlineModel::ItemRole).value<const OutlineItem*>());
    ASSERT_TRUE(controller.getCurrentFilter());
    EXPECT_EQ(controller.getCurrentFilter()->name(), "CICrop");
    ui.listView->scrollToTop();
    clickStar(pinned);
    EXPECT_EQ(top(), "Recently Used");
    ASSERT_TRUE(ui.listView->selectedItem()) << "the one in its group";
    UserDefaults::standardUserDefaults().removeObjectForKey("RecentFilters");
}

TEST_F(WindowTest, ChoosesAnEffectThatWasFoundInItsMode)
{
    pick("CIGaussianBlur");
    QTest::keyClicks(ui.searchField, "plasma");
    QTest::keyClick(ui.searchField, Qt::Key_Return);
    EXPECT_TRUE(action("actionCustom")->isChecked());
    ASSERT_TRUE(controller.getCurrentCustomEffect());
    EXPECT_EQ(controller.getCurrentCustomEffect()->className(), "plasmaEffect");
    action("actionStandard")->trigger();
    EXPECT_TRUE(controller.getCurrentFilter()) << "still there";
}

TEST_F(WindowTest, ArrowsWalkTheListAndReturnFoldsGroups)
{
    const OutlineItem* group = groupOf("CIGaussianBlur");
    pick("CIGaussianBlur");
    const OutlineItem* row = ui.listView->selectedItem();
    QTest::keyClick(ui.listView, Qt::Key_Down);
    QTest::keyClick(ui.listView, Qt::Key_Up);
    EXPECT_EQ(ui.listView->selectedItem(), row);
    QTest::keyClick(ui.listView, Qt::Key_Left); // to the group
    EXPECT_TRUE(ui.listView->isItemExpanded(group)) << "walking over a group doesn't fold it";
    QTest::keyClick(ui.listView, Qt::Key_Return);
    EXPECT_FALSE(ui.listView->isItemExpanded(group));
}

TEST_F(WindowTest, ComesBackWhereItWas)
{
    window.resize(900, 600);
    EXPECT_TRUE(window.close());
    MainWindow second;
    Controller secondController(second);
    secondController.awakeFromNib();
    EXPECT_EQ(second.size(), QSize(900, 600));
    UserDefaults::standardUserDefaults().removeObjectForKey("Velmora");
}

TEST_F(WindowTest, IsNeverTooNarrowForItsToolsNorLargerThanTheScreenAtFirst)
{
    const QSize screen = window.screen()->availableSize();
    EXPECT_LE(window.width(), std::max(screen.width(), window.minimumSizeHint().width()));
    EXPECT_LE(window.height(), std::max(screen.height(), 520));
    window.resize(100, 100);
    QCoreApplication::processEvents();
    for (QAbstractButton* tool : ui.toolRow->findChildren<QAbstractButton*>())
        EXPECT_GE(tool->width(), tool->minimumSizeHint().width()) << tool->objectName().toStdString();
    EXPECT_GE(ui.standardBtn->width(), ui.standardBtn->sizeHint().width());
}

TEST_F(WindowTest, FollowsTheLook)
{
    for (const char* choice : {"actionDark", "actionLight"}) {
        action(choice)->trigger();
        EXPECT_TRUE(action(choice)->isChecked());
        const QColor corner =
            window.grab().toImage().pixelColor(4, ui.toolRow->y() + window.menuWidget()->height() + 4);
        EXPECT_EQ(corner, Appearance::shared().look().window) << choice;
        EXPECT_EQ(Controller::isDarkMode(), Appearance::shared().isDark());
    }
    action("actionFollowDesktop")->trigger();
}

TEST_F(WindowTest, EveryControlHasANameAndEveryIconButtonATip)
{
    for (QWidget* widget : window.findChildren<QWidget*>()) {
        if (!widget->isVisible() || !(widget->focusPolicy() & Qt::TabFocus))
            continue;
        QAccessibleInterface* face = QAccessible::queryAccessibleInterface(widget);
        ASSERT_TRUE(face);
        EXPECT_FALSE(face->text(QAccessible::Name).isEmpty())
            << widget->metaObject()->className() << " " << widget->objectName().toStdString();
        if (qobject_cast<QAbstractButton*>(widget)) {
            EXPECT_FALSE(widget->toolTip().isEmpty()) << widget->objectName().toStdString();
            EXPECT_FALSE(qobject_cast<QAbstractButton*>(widget)->icon().isNull()) << widget->objectName().toStdString();
        }
    }
}

TEST(Program, AnswersQuestionsWithoutADisplay)
{
    QString errors;
    const auto run = [&errors](const QStringList& arguments) {
        QProcess program;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        for (const char* display : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
            environment.remove(QLatin1String(display));
        program.setProcessEnvironment(environment);
        program.start(QStringLiteral(LUMIVEX_PROGRAM), arguments);
        EXPECT_TRUE(program.waitForFinished());
        EXPECT_EQ(program.exitStatus(), QProcess::NormalExit);
        errors = QString::fromUtf8(program.readAllStandardError());
        return std::pair{program.exitCode(), QString::fromUtf8(program.readAllStandardOutput())};
    };
    const auto [versionCode, version] = run({"--version"});
    EXPECT_EQ(versionCode, 0);
    EXPECT_TRUE(version.startsWith("lumivex 0.")) << version.toStdString();
    const auto [helpCode, help] = run({"--help"});
    EXPECT_EQ(helpCode, 0);
    EXPECT_TRUE(help.contains("[picture...]"));
    EXPECT_EQ(run({"--help", "--wrong"}).first, 2);
    EXPECT_EQ(run({"--bogus", "a.png"}).first, 2);
    EXPECT_TRUE(errors.contains("bogus")) << errors.toStdString();
}

} // namespace
