#include "app/window/MainWindow.h"

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
#include "ui_MainWindow.h"
#include "widgets/CustomScroller.h"
#include "widgets/DropFileTypes.h"

#include <QApplication>
#include <QCloseEvent>
#include <QMimeData>
#include <QShortcut>

#include <array>

namespace {

constexpr Qt::Key kCompareKey = Qt::Key_F7; // on every keyboard, and no text field wants it

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
    CustomScroller::installIn(*ui->controlScrollArea);
    ui->searchField->installEventFilter(this);
    ui->listView->installEventFilter(this);
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
    connect(ui->compareBtn, &QAbstractButton::pressed, this, [this] { emit compareHeld(true); });
    connect(ui->compareBtn, &QAbstractButton::released, this, [this] { emit compareHeld(false); });
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
                  "#favouritesRow, #histogramRow { background: %1; border: none; border-top: 1px solid %3; }",
                look.panel, look.text, look.separator, look.secondaryText));
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

void MainWindow::toggleFullScreen() { setWindowState(windowState() ^ Qt::WindowFullScreen); }

void MainWindow::focusNextPane()
{
    const std::array<QWidget*, 8> panes{ui->listView, ui->filter3DOutlineView, ui->filterCustomOutlineView,
        ui->pictureScrollView->viewport(), ui->openGLStage->openGLView(), ui->customEffectsScrollView->viewport(),
        ui->controlScrollArea, ui->zoomSlider};
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

void MainWindow::changeEvent(QEvent* event)
{
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::ActivationChange && !isActiveWindow())
        holdCompareKey(false); // another window will get its release
}

void MainWindow::keyPressEvent(QKeyEvent* event)
{
    m_pressedKeys.insert(event->key());
    if (event->key() == kCompareKey && !event->isAutoRepeat())
        holdCompareKey(true);
}

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
    event->setAccepted(m_controller && !isRefused && !path.isEmpty() && isAcceptableEffectPicture(path));
}

void MainWindow::dropEvent(QDropEvent* event)
{
    event->acceptProposedAction();
    if (m_controller)
        m_controller->openDroppedFile(onlyDroppedFile(*event->mimeData()));
}

/// Does what the button does while it is held.
void MainWindow::holdCompareKey(bool held)
{
    if (held && ui->compareBtn->isEnabled())
        qApp->installEventFilter(this); // text fields keep releases to themselves
    else
        qApp->removeEventFilter(this);
    if (held == ui->compareBtn->isDown() || (held && !ui->compareBtn->isEnabled()))
        return;
    ui->compareBtn->setDown(held);
    emit compareHeld(held);
}

bool MainWindow::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::KeyRelease) {
        const auto* key = static_cast<QKeyEvent*>(event);
        if (key->key() == kCompareKey && !key->isAutoRepeat())
            holdCompareKey(false);
    }
    return (watched == ui->searchField && searchFieldEvent(event)) || (watched == ui->listView && foundListEvent(event))
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
