#include "app/window/MainWindow.h"

#include "app/catalogue/OutlineView.h"
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
#include <QMenu>
#include <QMimeData>
#include <QShortcut>

#include <array>

namespace {

constexpr Qt::Key kCompareKey = Qt::Key_F7; // on every keyboard, and no text field wants it

} // namespace

MainWindow::MainWindow()
    : ui(std::make_unique<Ui::MainWindow>())
    , m_contextMenu(new QMenu(this))
{
    ui->setupUi(this);
    setAcceptDrops(true);
    setLayout();
    setIcons();
    setShortcuts();
    setButtons();
    m_contextMenu->addActions({ui->actionApply, ui->actionClearEffect});
    m_contextMenu->addSeparator();
    m_contextMenu->addActions({ui->actionCopy, ui->actionPaste});
    m_contextMenu->addSeparator();
    m_contextMenu->addActions({ui->actionZoomIn, ui->actionZoomOut, ui->actionActualSize, ui->actionFit});
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
    connect(ui->actionFindFilter, &QAction::triggered, ui->searchField, [this] {
        ui->searchField->setFocus(Qt::ShortcutFocusReason);
        ui->searchField->selectAll();
    });
    connect(ui->actionFullScreen, &QAction::triggered, this,
        [this] { setWindowState(windowState() ^ Qt::WindowFullScreen); });
    installHistogram(*ui);
    ui->listView->setFocus();
}

void MainWindow::setIcons()
{
    const std::pair<QAction*, const char*> icons[] = {
        {ui->actionOpen, "open"},
        {ui->actionSave, "save"},
        {ui->actionRotateLeft, "rotate-left"},
        {ui->actionRotateRight, "rotate-right"},
        {ui->actionFlipHorizont, "flip-horizontal"},
        {ui->actionFlipVert, "flip-vertical"},
        {ui->actionResize, "resize"},
        {ui->actionInfo, "info"},
        {ui->actionCopy, "copy"},
        {ui->actionUndo, "undo"},
        {ui->actionRedo, "redo"},
        {ui->actionPaste, "paste"},
        {ui->actionZoomIn, "zoom-in"},
        {ui->actionZoomOut, "zoom-out"},
        {ui->actionActualSize, "actual-size"},
        {ui->actionFit, "fit"},
        {ui->actionSplitView, "split"},
        {ui->actionAddFavourite, "favourite-add"},
    };
    for (const auto& [action, name] : icons) {
        action->setIcon(tintedIcon(QLatin1String(name)));
        action->setIconVisibleInMenu(false);
    }
    ui->standardBtn->setIcon(tintedIcon(QStringLiteral("mode-standard")));
    ui->threeDBtn->setIcon(tintedIcon(QStringLiteral("mode-3d")));
    ui->customBtn->setIcon(tintedIcon(QStringLiteral("mode-custom")));
    ui->compareBtn->setIcon(tintedIcon(QStringLiteral("compare")));
    ui->applyBtn->setIcon(tintedIcon(QStringLiteral("apply"), IconTint::OnAccent));
    ui->searchField->addAction(tintedIcon(QStringLiteral("search")), QLineEdit::LeadingPosition);
    setWindowIcon(QIcon(QStringLiteral(":/icons/io.github.lumivex.Lumivex.svg")));
}

void MainWindow::setShortcuts()
{
    // Written out: the platform leaves some of the standard ones empty.
    const std::pair<QAction*, QList<QKeySequence>> shortcuts[] = {
        {ui->actionOpen, {Qt::CTRL | Qt::Key_O}},
        {ui->actionSave, {Qt::CTRL | Qt::Key_S}},
        {ui->actionSaveAs, {Qt::CTRL | Qt::SHIFT | Qt::Key_S}},
        {ui->actionQuit, {Qt::CTRL | Qt::Key_Q}},
        {ui->actionUndo, {Qt::CTRL | Qt::Key_Z}},
        {ui->actionRedo, {Qt::CTRL | Qt::SHIFT | Qt::Key_Z, Qt::CTRL | Qt::Key_Y}},
        {ui->actionCopy, {Qt::CTRL | Qt::Key_C}},
        {ui->actionResetInputs, {Qt::CTRL | Qt::Key_Backspace}},
        {ui->actionRandomizeInputs, {Qt::CTRL | Qt::SHIFT | Qt::Key_R}},
        {ui->actionRotateLeft, {Qt::CTRL | Qt::Key_L}},
        {ui->actionRotateRight, {Qt::CTRL | Qt::Key_R}},
        {ui->actionFlipHorizont, {Qt::CTRL | Qt::SHIFT | Qt::Key_H}},
        {ui->actionFlipVert, {Qt::CTRL | Qt::SHIFT | Qt::Key_V}},
        {ui->actionInfo, {Qt::CTRL | Qt::Key_I}},
        {ui->actionResize, {Qt::CTRL | Qt::ALT | Qt::Key_I}},
        {ui->actionPaste, {Qt::CTRL | Qt::Key_V}},
        {ui->actionAddFavourite, {Qt::CTRL | Qt::Key_D}},
        {ui->actionRemoveFavourite, {Qt::CTRL | Qt::SHIFT | Qt::Key_D}},
        {ui->actionFindFilter, {Qt::CTRL | Qt::Key_F}},
        {ui->actionApply, {Qt::CTRL | Qt::Key_Return, Qt::CTRL | Qt::Key_Enter}},
        {ui->actionClearEffect, {Qt::Key_Escape}},
        {ui->actionStandard, {Qt::ALT | Qt::Key_1}},
        {ui->action3D, {Qt::ALT | Qt::Key_2}},
        {ui->actionCustom, {Qt::ALT | Qt::Key_3}},
        {ui->actionZoomIn, {Qt::CTRL | Qt::Key_Plus, Qt::CTRL | Qt::Key_Equal}},
        {ui->actionZoomOut, {Qt::CTRL | Qt::Key_Minus}},
        {ui->actionActualSize, {Qt::CTRL | Qt::Key_1, Qt::CTRL | Qt::ALT | Qt::Key_0}},
        {ui->actionFit, {Qt::CTRL | Qt::Key_0}},
        {ui->actionSplitView, {Qt::Key_F8}},
        {ui->actionHistogram, {Qt::CTRL | Qt::ALT | Qt::Key_H}},
        {ui->actionFullScreen, {Qt::Key_F11}},
        {ui->actionHelp, {Qt::Key_F1}},
    };
    for (const auto& [action, keys] : shortcuts)
        action->setShortcuts(keys);
    ui->actionQuit->setMenuRole(QAction::QuitRole);
    ui->actionAbout->setMenuRole(QAction::AboutRole);
    const auto* nextPane = new QShortcut(Qt::Key_F6, this);
    connect(nextPane, &QShortcut::activated, this, &MainWindow::focusNextPane);
}

void MainWindow::setButtons()
{
    const std::pair<QToolButton*, QAction*> buttons[] = {
        {ui->openBtn, ui->actionOpen},
        {ui->saveBtn, ui->actionSave},
        {ui->rotateLeftBtn, ui->actionRotateLeft},
        {ui->rotateRightBtn, ui->actionRotateRight},
        {ui->flipHorizontBtn, ui->actionFlipHorizont},
        {ui->flipVertBtn, ui->actionFlipVert},
        {ui->resizeBtn, ui->actionResize},
        {ui->infoBtn, ui->actionInfo},
        {ui->copyBtn, ui->actionCopy},
        {ui->undoBtn, ui->actionUndo},
        {ui->redoBtn, ui->actionRedo},
        {ui->pasteBtn, ui->actionPaste},
        {ui->splitBtn, ui->actionSplitView},
        {ui->fitBtn, ui->actionFit},
        {ui->actualSizeBtn, ui->actionActualSize},
        {ui->addFavouriteBtn, ui->actionAddFavourite},
    };
    for (const auto& [button, action] : buttons) {
        const QString tip = button->toolTip();
        action->setToolTip(QStringLiteral("%1 (%2)").arg(tip, action->shortcut().toString(QKeySequence::NativeText)));
        button->setDefaultAction(action);
    }
    ui->applyBtn->setProperty("prominent", true);
    ui->openingCancelBtn->setShortcut(Qt::Key_Escape); // while it is there, nothing else has the key
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
    event->setAccepted(!m_controller || m_controller->windowShouldClose());
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

/// As if the button were held.
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
    ui->searchField->setFocus(Qt::ShortcutFocusReason);
    ui->searchField->selectAll();
    return true;
}
