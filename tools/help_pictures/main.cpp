// help_pictures FOLDER: drives the window as a user would and writes the pictures of the help book, light and dark.
// It fills the whole screen: scripts/in-display build/dev/bin/help_pictures resources/help
#include "app/catalogue/OutlineView.h"
#include "app/commands/Commands.h"
#include "app/Controller.h"
#include "app/window/MainWindow.h"
#include "controls/picture/MyImageView.h"
#include "controls/picture/PictureScrollView.h"
#include "controls/picture/SplitDivider.h"
#include "effects2d/customEffImageView.h"
#include "effects3d/MyOGLView.h"
#include "effects3d/ThreeDStage.h"
#include "platform/foundation/Appearance.h"
#include "platform/foundation/UserDefaults.h"
#include "ui_MainWindow.h"
#include "widgets/ValueSlider.h"

#include <QApplication>
#include <QDir>
#include <QMenu>
#include <QPainter>
#include <QScreen>
#include <QTemporaryDir>
#include <QTest>

#include <cstdio>

namespace {

constexpr int kFrameTime = 600, kThumbnailsTime = 6000; // milliseconds

/// Pictures of the screen, in both looks.
class Camera {
public:
    explicit Camera(QDir folder)
        : m_folder(std::move(folder))
    {
    }
    bool isContent() const { return m_content; }

    /// The parts stand in one row. A picture wider than `width` is made smaller.
    void take(const QString& file, const QList<QRect>& parts, int width = 576)
    {
        for (const auto& [choice, mark] :
            {std::pair(Appearance::Choice::Dark, "-dark."), std::pair(Appearance::Choice::Light, ".")}) {
            Appearance::shared().setChoice(choice);
            QTest::qWait(kFrameTime);
            QImage picture = row(parts);
            if (picture.width() > width)
                picture = picture.scaledToWidth(width, Qt::SmoothTransformation);
            QPainter frame(&picture); // or panels would have no edge on the page, which has their color
            frame.setPen(Appearance::shared().look().separator);
            frame.drawRect(picture.rect().adjusted(0, 0, -1, -1));
            frame.end();
            const QString path = m_folder.filePath(QString(file).replace(QLatin1Char('.'), QLatin1String(mark)));
            m_content = picture.save(path, nullptr, file.endsWith(QLatin1String("jpg")) ? 88 : -1) && m_content;
        }
    }
    void take(const QString& file, const QRect& part, int width = 576) { take(file, QList{part}, width); }

private:
    static QImage row(const QList<QRect>& parts)
    {
        const QImage screen = QGuiApplication::primaryScreen()->grabWindow(0).toImage();
        QSize size;
        for (const QRect& part : parts)
            size = {size.width() + part.width(), part.height()};
        QImage picture(size, QImage::Format_RGB32);
        QPainter painter(&picture);
        int x = 0;
        for (const QRect& part : parts) {
            painter.drawImage(QPoint(x, 0), screen, part);
            x += part.width();
        }
        return picture;
    }

    QDir m_folder;
    bool m_content = true;
};

QRect placeOf(const QWidget& widget) { return {widget.mapToGlobal(QPoint()), widget.size()}; }

/// The widgets' common frame, with some of what is around them.
QRect around(const QWidget& first, const QWidget& last, int margin = 8)
{
    return (placeOf(first) | placeOf(last)).adjusted(-margin, -margin, margin, margin);
}

void drag(QWidget& widget, QPoint from, QPoint to)
{
    constexpr int kSteps = 12;
    QTest::mousePress(&widget, Qt::LeftButton, {}, from);
    for (int step = 1; step <= kSteps; ++step) {
        QTest::mouseMove(&widget, from + (to - from) * step / kSteps);
        QTest::qWait(20);
    }
    QTest::mouseRelease(&widget, Qt::LeftButton, {}, to);
    QTest::qWait(kFrameTime);
}

void pickRow(OutlineView& list, const QModelIndex& row)
{
    list.scrollTo(row, QAbstractItemView::PositionAtCenter);
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualRect(row).center());
    QTest::qWait(kFrameTime);
}

class Tour {
public:
    explicit Tour(const QDir& folder)
        : m_camera(folder)
    {
        m_controller.awakeFromNib();
        m_window.setGeometry(0, 0, 1024, 680);
        m_window.show();
        m_window.activateWindow();
        QTest::qWait(kFrameTime);
    }
    bool run()
    {
        m_window.commands().action("actionStartFitted").setChecked(true);
        takeFavourites();
        takeSearch();
        takeSettings();
        takeWholeWindow();
        takeComparison();
        takeHistory();
        takeResizing();
        takeSpace();
        takeCustom();
        return m_camera.isContent();
    }

private:
    void pick(const char* className)
    {
        const QAbstractItemModel& model = *ui.listView->model();
        const QString name = QString::fromStdString(CIFilter::localizedNameForFilterName(className));
        const QModelIndexList found =
            model.match(model.index(0, 0), Qt::DisplayRole, name, 1, Qt::MatchExactly | Qt::MatchRecursive);
        pickRow(*ui.listView, found.value(0));
    }
    void waitUntilIdle()
    {
        while (!m_controller.document().isIdle())
            QTest::qWait(kFrameTime);
    }
    void undoAll()
    {
        while (m_controller.undoManager()->canUndo()) {
            m_controller.undoManager()->undo();
            waitUntilIdle();
        }
    }
    /// The filter's point, to a place of the view from 0 to 1.
    void dragPoint(double x, double y)
    {
        const QPoint from = m_view.canvasPoints().value(0).place.toPoint();
        drag(m_view, from, QPointF(x * m_view.width(), y * m_view.height()).toPoint());
        m_view.waitForFrame();
    }
    QRect markedPart() const
    {
        QRect part(0, 0, 400, 240);
        part.moveCenter(m_view.canvasPoints().value(0).place.toPoint());
        part.moveRight(std::min(part.right(), m_view.width() - 12));
        return part.translated(m_view.mapToGlobal(QPoint()));
    }

    void takeFavourites()
    {
        for (const char* filter : {"CISepiaTone", "CICrystallize", "CIColorInvert"}) {
            pick(filter);
            ui.addFavouriteBtn->click();
            QTest::qWait(kFrameTime);
        }
        m_camera.take("strip.png", placeOf(*ui.favouritesRow));
    }
    void takeSearch()
    {
        ui.searchField->setFocus();
        QTest::keyClicks(ui.searchField, "old photo");
        QTest::qWait(kThumbnailsTime);
        m_camera.take("search.png", placeOf(*ui.searchField).adjusted(-8, -8, 8, 228));
        ui.searchField->clear();
    }
    void takeSettings()
    {
        pick("CIColorControls");
        const QRect panel = placeOf(*ui.controlPanel);
        m_camera.take("panel.png", QRect(panel.x(), panel.y(), panel.width(), 156));
        m_camera.take("histogram.png", placeOf(*ui.histogramRow));
        m_camera.take("zoom.png", around(*ui.compareBtn, *ui.actualSizeBtn, 4));
    }
    void takeWholeWindow()
    {
        pick("CITwirlDistortion");
        dragPoint(0.62, 0.42);
        QTest::qWait(kThumbnailsTime);
        m_camera.take("window.jpg", placeOf(m_window));
        m_camera.take("points.jpg", markedPart());
        m_camera.take("apply.png", {around(*ui.undoBtn, *ui.redoBtn), around(*ui.copyBtn, *ui.applyBtn)});
    }
    void takeComparison()
    {
        pick("CIDotScreen");
        m_window.commands().action("actionSplitView").trigger();
        for (int i = 0; i < 4; ++i)
            m_window.commands().action("actionZoomIn").trigger();
        m_view.waitForFrame();
        const QPoint grip = m_view.findChild<SplitDivider*>()->mask().boundingRect().center();
        QRect part(0, 0, 400, 240);
        part.moveCenter(QPoint(m_view.rect().center().x(), grip.y() - 104));
        m_camera.take("split.jpg", part.translated(m_view.mapToGlobal(QPoint())));
        m_window.commands().action("actionSplitView").trigger();
        m_window.commands().action("actionFit").trigger();
    }
    void takeHistory()
    {
        undoAll();
        m_window.commands().action("actionRotateRight").trigger();
        waitUntilIdle();
        pick("CISepiaTone");
        ui.applyBtn->click();
        waitUntilIdle();
        QTest::qWait(kFrameTime);
        pick("CIColorControls");
        auto& saturation = *ui.placeCntrlView->findChild<ValueSlider*>();
        QTest::mouseClick(&saturation, Qt::LeftButton, {}, saturation.rect().center() / 2);
        pick("CITwirlDistortion");
        dragPoint(0.6, 0.4);
        m_controller.undoManager()->undo();
        QMenu& menu = *m_window.findChild<QMenu*>(QStringLiteral("menuUndoHistory"));
        menu.popup(m_window.mapToGlobal(QPoint(400, 200)));
        QTest::qWait(kFrameTime);
        m_camera.take("history.png", placeOf(menu));
        menu.close();
        undoAll();
    }
    void takeResizing()
    {
        m_window.commands().action("actionResize").trigger();
        QTest::qWait(kFrameTime);
        for (const QWidget* panel : QApplication::topLevelWidgets())
            if (panel->isVisible() && panel != &m_window)
                m_camera.take("resize.png", around(*panel, *panel));
        m_window.commands().action("actionResize").trigger();
    }
    void takeSpace()
    {
        m_window.commands().action("action3D").trigger();
        pickRow(*ui.filter3DOutlineView, ui.filter3DOutlineView->model()->index(0, 0));
        for (ValueSlider* curve : ui.place3DCntrlView->findChildren<ValueSlider*>())
            QTest::mouseClick(curve, Qt::LeftButton, {}, QPoint(curve->width() * 2 / 3, curve->height() / 2));
        QWidget& view = *ui.openGLStage->openGLView();
        const QPoint center = view.rect().center();
        drag(view, center, center + QPoint(60, -90));
        m_camera.take("space.jpg", withPanel(view.mapToGlobal(center)));
    }
    void takeCustom()
    {
        m_window.commands().action("actionCustom").trigger();
        pickRow(*ui.filterCustomOutlineView, ui.filterCustomOutlineView->model()->index(4, 0));
        QWidget& view = *ui.customEffectsScrollView->imageView();
        const QPoint sun(view.width() * 35 / 100, view.height() * 40 / 100);
        drag(view, view.rect().center(), sun);
        m_camera.take("custom.jpg", withPanel(view.mapToGlobal(sun + QPoint(40, 64))));
    }
    /// A part of the view, and the panel beside it.
    QList<QRect> withPanel(QPoint center) const
    {
        QRect panel = placeOf(*ui.controlPanel).adjusted(-1, 0, 0, 0); // with the line between
        panel.setHeight(320);
        QRect part(0, 0, 330, panel.height());
        part.moveCenter(center);
        return {part, panel};
    }

    MainWindow m_window;
    Controller m_controller{m_window};
    Ui::MainWindow& ui = m_window.interface();
    MyImageView& m_view = *ui.pictureScrollView->imageView();
    Camera m_camera;
};

} // namespace

int main(int argc, char** argv)
{
    const QTemporaryDir home; // neither reads nor changes what the user has
    for (const char* name : {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_STATE_HOME", "XDG_CACHE_HOME"})
        qputenv(name, QFile::encodeName(home.path()));
    QApplication application(argc, argv);
    if (application.arguments().size() != 2) {
        std::fputs("usage: help_pictures FOLDER\n", stderr);
        return 2;
    }
    UserDefaults::standardUserDefaults().setFile(home.filePath(QStringLiteral("defaults.ini")));
    Appearance::shared().dressApplication();
    Tour tour{QDir(application.arguments().at(1))};
    if (tour.run())
        return 0;
    std::fputs("The pictures could not be written.\n", stderr);
    return 1;
}
