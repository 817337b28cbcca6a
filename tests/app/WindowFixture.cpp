#include "WindowFixture.h"

#include "app/catalogue/OutlineView.h"
#include "platform/foundation/Appearance.h"
#include "platform/foundation/UserDefaults.h"
#include "ui_MainWindow.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QImage>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

WindowTest::WindowTest()
{
    controller.awakeFromNib();
    window.show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&window));
    QCoreApplication::processEvents();
}

WindowTest::~WindowTest() = default;

QString WindowTest::pictureFile(const QString& name, int width, int height)
{
    QImage image(width, height, QImage::Format_RGB32);
    image.fill(QColor(200, 100, 50));
    const QString path = folder.filePath(name);
    EXPECT_TRUE(image.save(path));
    return path;
}

void WindowTest::openPicture(const QString& path)
{
    controller.openFile(path);
    waitUntilIdle();
}

void WindowTest::waitUntilIdle()
{
    constexpr int kPatience = 60'000; // ms, for a busy machine
    EXPECT_TRUE(QTest::qWaitFor([this] { return controller.document().isIdle(); }, kPatience));
}

void WindowTest::click(const OutlineItem* row)
{
    ASSERT_TRUE(row);
    OutlineView& list = *ui.listView;
    const QModelIndexList found = list.model()->match(list.model()->index(0, 0), OutlineModel::ItemRole,
        QVariant::fromValue(row), 1, Qt::MatchExactly | Qt::MatchRecursive);
    ASSERT_EQ(found.size(), 1);
    list.scrollTo(found.first());
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualRect(found.first()).center());
}

void WindowTest::pick(const QString& className)
{
    const DataSource source;
    const FilterRow* wanted = source.rowForClass(className);
    ASSERT_TRUE(wanted) << className.toStdString();
    const QModelIndex found = rowOf(className);
    ASSERT_TRUE(found.isValid());
    click(found.data(OutlineModel::ItemRole).value<const OutlineItem*>());
}

QModelIndex WindowTest::rowOf(const QString& className) const
{
    const QAbstractItemModel& model = *ui.listView->model();
    for (int i = model.rowCount() - 1; i >= 0; --i)
        for (int j = 0; j < model.rowCount(model.index(i, 0)); ++j) {
            const QModelIndex index = model.index(j, 0, model.index(i, 0));
            const auto* row =
                dynamic_cast<const FilterRow*>(index.data(OutlineModel::ItemRole).value<const OutlineItem*>());
            if (row && row->className == className)
                return index;
        }
    return {};
}

const OutlineItem* WindowTest::groupOf(const QString& className) const
{
    return rowOf(className).parent().data(OutlineModel::ItemRole).value<const OutlineItem*>();
}

void WindowTest::answering(const QString& button, const std::function<void()>& operation)
{
    answering(QStringList{button}, operation);
}

void WindowTest::answering(QStringList buttons, const std::function<void()>& operation)
{
    QTimer asked;
    QObject::connect(&asked, &QTimer::timeout, [&] {
        auto* sheet = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (!sheet || sheet->objectName() == "ProgressSheet" || sheet->objectName() == "ExportPanel")
            return; // they ask nothing
        const QList<QAbstractButton*> candidates = sheet->findChildren<QAbstractButton*>();
        for (QAbstractButton* candidate : candidates)
            if (!buttons.isEmpty() && candidate->text() == buttons.first() && candidate->isVisible()) {
                buttons.removeFirst();
                candidate->click();
                return;
            }
        ADD_FAILURE() << "a sheet without the button " << buttons.value(0).toStdString();
        sheet->reject();
    });
    asked.start(0);
    operation();
    waitUntilIdle();
    EXPECT_TRUE(buttons.isEmpty()) << "nobody asked for " << buttons.value(0).toStdString();
}

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    const QTemporaryDir folder;
    UserDefaults::standardUserDefaults().setFile(folder.filePath("defaults.ini"));
    Appearance::shared().dressApplication();
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
