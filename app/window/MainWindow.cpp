#include "app/window/MainWindow.h"

#include "app/catalogue/FilterGrid.h"
#include "app/catalogue/OutlineView.h"
#include "app/commands/Commands.h"
#include "app/Controller.h"
#include "app/window/HistogramPane.h"
#include "app/window/WindowGestures.h"
#include "controls/panel/DropImageView.h"
#include "controls/picture/MyImageView.h"
#include "controls/picture/PictureScrollView.h"
#include "effects2d/customEffImageView.h"
#include "effects3d/MyOGLView.h"
#include "effects3d/ThreeDStage.h"
#include "platform/foundation/Appearance.h"
#include "platform/foundation/TintedIcon.h"
#include "platform/foundation/UserDefaults.h"
#include "ui_MainWindow.h"
#include "widgets/CustomScroller.h"
#include "widgets/DropFileTypes.h"

#include <QApplication>
#include <QCloseEvent>
#include <QFileInfo>
#include <QMimeData>
#include <QScreen>
#include <QShortcut>
#include <QStyle>

#include <algorithm>
#include <array>

namespace {

const QString kWindowFrameName = QStringLiteral("Velmora");

} // namespace

MainWindow::MainWindow()
    : ui(std::make_unique<Ui::MainWindow>())
{
    ui->setupUi(this);
    m_commands = std::make_unique<Commands>(*this);
    setAcceptDrops(true);
    setLayout();
    setIcons();
    setButtons();
    dress();
    connect(&Appearance::shared(), &Appearance::changed, this, &MainWindow::dress);
}

MainWindow::~MainWindow() = default;

void MainWindow::setLayout()
{
    ui->splitter->setStretchFactor(0, 0);
    ui->splitter->setStretchFactor(1, 1);
    ui->splitter->setStretchFactor(2, 0);
    ui->splitter->setSizes({248, 732, 300});
    QSizePolicy zoomPolicy = ui->zoomSuperView->sizePolicy();
    zoomPolicy.setRetainSizeWhenHidden(true); // or the picture would move when the mode changes
    ui->zoomSuperView->setSizePolicy(zoomPolicy);
    for (QTreeView* list : {ui->listView, ui->filter3DOutlineView, ui->filterCustomOutlineView})
        CustomScroller::installIn(*list);
    CustomScroller::installIn(*ui->filterGrid);
    CustomScroller::installIn(*ui->controlScrollArea);
    ui->searchField->installEventFilter(this);
    ui->listView->installEventFilter(this);
    ui->filterGrid->installEventFilter(this);
    m_gestures = std::make_unique<WindowGestures>(*this, *ui);
    installHistogram(*ui, m_commands->action("actionHistogram"));
    ui->listView->setFocus();
}

void MainWindow::setIcons()
{
    ui->standardBtn->setIcon(tintedIcon(QStringLiteral("mode-standard")));
    ui->threeDBtn->setIcon(tintedIcon(QStringLiteral("mode-3d")));
    ui->customBtn->setIcon(tintedIcon(QStringLiteral("mode-custom")));
    ui->compareBtn->setIcon(tintedIcon(QStringLiteral("compare")));
    ui->applyBtn->setIcon(tintedIcon(QStringLiteral("apply"), IconTint::OnAccent));
    ui->searchField->addAction(tintedIcon(QStringLiteral("search")), QLineEdit::LeadingPosition);
    setWindowIcon(QIcon(QStringLiteral(":/icons/io.github.lumivex.Lumivex.svg")));
}

void MainWindow::setButtons()
{
    const auto* nextPane = new QShortcut(Qt::Key_F6, this);
    connect(nextPane, &QShortcut::activated, this, &MainWindow::focusNextPane);
    ui->applyBtn->setProperty("prominent", true);
    ui->openingCancelBtn->setShortcut(Qt::Key_Escape); // while the button is shown, Escape means nothing else
}

/// What depends on the look.
void MainWindow::dress()
{
    const Look& look = Appearance::shared().look();
    const auto sheet = [](const char* rule, auto... colors) { return QString::fromLatin1(rule).arg(colors.name()...); };
    ui->toolRow->setStyleSheet(sheet("#toolRow { background: %1; border: none; border-bottom: 1px solid %2; }"
                                     "#modeGroup { background: %3; border: 1px solid %2; border-radius: 8px; }",
        look.window, look.separator, look.panel));
    ui->statusRow->setStyleSheet(sheet("#statusRow { background: %1; border: none; border-top: 1px solid %2; }"
                                       "QLabel { color: %3; }",
        look.window, look.separator, look.secondaryText));
    for (QWidget* panel : {ui->sideBar, ui->controlPanel})
        panel->setStyleSheet(
            sheet("#sideBar, #controlPanel, #controlPages, #placeCntrlView, #place3DCntrlView, "
                  "#placeCustomCntrlView, "
                  "QScrollArea { background: %1; }"
                  "#filterNameField { color: %2; font-weight: 600; padding: 12px 16px; }"
                  "#filterNameLine { background: %3; }"
                  "#filterHintField { color: %4; }"
                  "#filterHintField { padding: 12px 16px; }"
                  "#fitNotice { background: %5; border-radius: 6px; }"
                  "#fitNotice QLabel { color: %2; }"
                  "#fitNotice QPushButton { min-height: 22px; }"
                  "#favouritesRow, #histogramRow { background: %1; border: none; border-top: 1px solid %3; }",
                look.panel, look.text, look.separator, look.secondaryText, look.hover));
    ui->mainTabView->setStyleSheet(sheet("#openGLSuperView, #customEffSuperView { background: %1; }", look.surround));
}

void MainWindow::setController(Controller* controller)
{
    m_controller = controller;
    m_commands->setController(controller);
}

void MainWindow::findFilter()
{
    ui->searchField->setFocus(Qt::ShortcutFocusReason);
    ui->searchField->selectAll();
}

void MainWindow::makeRoomForColumns()
{
    QList<int> widths = ui->splitter->sizes();
    const int missing = FilterGrid::wantedWidth() - widths[0];
    if (!ui->filterGrid->isVisibleTo(this) || missing <= 0)
        return;
    widths[0] += missing;
    widths[1] -= missing;
    ui->splitter->setSizes(widths);
}

void MainWindow::toggleFullScreen() { setWindowState(windowState() ^ Qt::WindowFullScreen); }

void MainWindow::showTitle(const QString& path, bool isChanged)
{
    QString title = QStringLiteral("Lumivex");
    if (!path.isEmpty())
        title +=
            QStringLiteral("::%1").arg(QFileInfo(path).fileName().replace("[*]", "[*][*]")); // twice stands for itself
    if (isChanged)
        title += QStringLiteral("[*]"); // where the platform puts its mark
    setWindowTitle(title);
    setWindowModified(isChanged);
}

void MainWindow::restoreFrame()
{
    const QByteArray frame = UserDefaults::standardUserDefaults().objectForKey(kWindowFrameName).toByteArray();
    restoreGeometry(frame);
    if (windowState() & (Qt::WindowMaximized | Qt::WindowFullScreen))
        return;
    // Small screens, large fonts: as near as there is room, also for a title bar.
    const QRect room = screen()->availableGeometry().adjusted(0, style()->pixelMetric(QStyle::PM_TitleBarHeight), 0, 0);
    QRect place(pos(), size().boundedTo(room.size()));
    place.moveLeft(std::clamp(place.left(), room.left(), room.right() + 1 - place.width()));
    place.moveTop(std::clamp(place.top(), room.top(), room.bottom() + 1 - place.height()));
    setGeometry(place);
}

void MainWindow::saveFrame() const
{
    UserDefaults& defaults = UserDefaults::standardUserDefaults();
    defaults.setObjectForKey(saveGeometry(), kWindowFrameName);
    defaults.synchronize();
}

void MainWindow::togglePanel(QWidget& panel)
{
    if (panel.isVisible()) {
        panel.close();
    } else {
        panel.show();
        panel.raise();
        panel.activateWindow();
    }
}

void MainWindow::focusNextPane()
{
    const std::array<QWidget*, 9> panes{ui->listView, ui->filterGrid, ui->filter3DOutlineView,
        ui->filterCustomOutlineView, ui->pictureScrollView->viewport(), ui->openGLStage->openGLView(),
        ui->customEffectsScrollView->viewport(), ui->controlScrollArea, ui->zoomSlider};
    std::size_t current = panes.size() - 1;
    for (std::size_t i = 0; i < panes.size(); ++i)
        if (panes[i]->hasFocus() || panes[i]->isAncestorOf(focusWidget()))
            current = i;
    for (std::size_t step = 1; step <= panes.size(); ++step) {
        QWidget* pane = panes[(current + step) % panes.size()];
        if (!pane->isVisible() || !pane->isEnabled())
            continue;
        if (pane == ui->controlScrollArea) {
            pane = nullptr;
            for (QWidget* row : ui->controlPages->findChildren<QWidget*>())
                if (!pane && row->isVisible() && row->focusPolicy() & Qt::TabFocus)
                    pane = row;
            if (!pane)
                continue;
        }
        pane->setFocus(Qt::TabFocusReason);
        return;
    }
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    event->setAccepted(!m_controller || m_controller->closesWindow());
    if (m_controller && event->isAccepted())
        m_controller->windowWillClose();
}

void MainWindow::resizeEvent(QResizeEvent* event)
{
    QMainWindow::resizeEvent(event);
    if (m_controller)
        m_controller->windowDidResize();
}

void MainWindow::showEvent(QShowEvent* event)
{
    QMainWindow::showEvent(event);
    if (m_controller && !m_wasShown) {
        m_wasShown = true;
        QMetaObject::invokeMethod(
            this,
            [this] {
                if (m_controller)
                    m_controller->windowDidBecomeVisible();
            },
            Qt::QueuedConnection); // after the layout
    }
}

void MainWindow::keyPressEvent(QKeyEvent* event) { m_pressedKeys.insert(event->key()); }

void MainWindow::keyReleaseEvent(QKeyEvent* event)
{
    if (!event->isAutoRepeat() && m_pressedKeys.remove(event->key()) && m_controller)
        m_controller->keyUp(event->key());
}

/// Views that do something of their own with files get them first, and what they refuse is refused.
void MainWindow::dragEnterEvent(QDragEnterEvent* event)
{
    const QString path = onlyDroppedFile(*event->mimeData());
    const QWidget* under = childAt(event->position().toPoint());
    const bool isRefused = qobject_cast<const MyImageView*>(under) || qobject_cast<const DropImageView*>(under);
    const bool isOurs = qobject_cast<const MyImageView*>(event->source());
    event->setAccepted(m_controller && !isRefused && !isOurs && !path.isEmpty() && isAcceptableEffectPicture(path));
}

void MainWindow::dropEvent(QDropEvent* event)
{
    event->acceptProposedAction();
    const QString path = onlyDroppedFile(*event->mimeData());
    if (m_controller)
        event->modifiers() & Qt::AltModifier ? m_controller->takeSecondPicture(path)
                                             : m_controller->openDroppedFile(path);
}

bool MainWindow::eventFilter(QObject* watched, QEvent* event)
{
    return (watched == ui->searchField && searchFieldEvent(event))
        || ((watched == ui->listView || watched == ui->filterGrid) && foundListEvent(event))
        || QMainWindow::eventFilter(watched, event);
}

/// Escape empties the field and only then is the effect's; Down goes to the list.
bool MainWindow::searchFieldEvent(QEvent* event)
{
    if (event->type() != QEvent::KeyPress && event->type() != QEvent::ShortcutOverride)
        return false;
    const int key = static_cast<QKeyEvent*>(event)->key();
    const bool clears = key == Qt::Key_Escape && !ui->searchField->text().isEmpty();
    if (event->type() == QEvent::ShortcutOverride) {
        if (clears)
            event->accept();
        return clears;
    }
    if (clears)
        ui->searchField->clear();
    else if (key == Qt::Key_Down) {
        ui->listView->enter();
        m_listIsSearched = true;
    } else
        return false;
    return true;
}

/// Escape goes back to the search from where the list was entered, until a filter is chosen.
bool MainWindow::foundListEvent(QEvent* event)
{
    if (event->type() == QEvent::FocusOut)
        m_listIsSearched = false;
    if (!m_listIsSearched || (event->type() != QEvent::KeyPress && event->type() != QEvent::ShortcutOverride))
        return false;
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (key == Qt::Key_Return || key == Qt::Key_Enter)
        m_listIsSearched = false;
    if (key != Qt::Key_Escape)
        return false;
    if (event->type() == QEvent::ShortcutOverride) {
        event->accept();
        return true;
    }
    findFilter();
    return true;
}
