// Picture files on their way into the window, which goes on living meanwhile.
#include "app/Controller.h"
#include "app/document/PictureOpening.h"
#include "app/window/MainWindow.h"
#include "controls/picture/MyImageView.h"
#include "controls/picture/PictureScrollView.h"
#include "effects2d/customEffImageView.h"
#include "files/ResizePanel.h"
#include "ui_MainWindow.h"
#include "widgets/BackgroundWork.h"
#include "widgets/PictureLayout.h"

#include <QAccessible>
#include <QApplication>
#include <QEventLoop>
#include <QFileInfo>
#include <QScreen>

#include <algorithm>
#include <chrono>
#include <utility>

namespace {

using namespace std::chrono_literals;

constexpr auto kPatience = 300ms; // most pictures are there before
constexpr auto kTick = 50ms;

bool worksWhileOpening(const QAction& item, const Ui::MainWindow& ui)
{
    const QAction* const harmless[] = {ui.actionOpen, ui.actionQuit, ui.actionInfo, ui.actionThumbnails,
        ui.actionHistogram, ui.actionFollowDesktop, ui.actionLight, ui.actionDark, ui.actionFullScreen, ui.actionHelp,
        ui.actionAbout};
    return std::find(std::begin(harmless), std::end(harmless), &item) != std::end(harmless);
}

/// How a canvas is looked at.
class Sight {
public:
    Sight(ZoomedCanvas& canvas, CanvasScrollView& scroller)
        : m_canvas(&canvas)
        , m_scroller(&scroller)
        , m_zoom(canvas.getZoom())
        , m_scroll{scroller.clipBounds().x, scroller.clipBounds().y}
    {
    }
    void restore() const
    {
        m_canvas->setZoom(m_zoom);
        m_scroller->setScrollPosition(m_scroll);
    }

private:
    ZoomedCanvas* m_canvas;
    CanvasScrollView* m_scroller;
    float m_zoom;
    CIPoint m_scroll;
};

} // namespace

struct Controller::Opening {
    PictureOpening* reader; // the controller's child
    std::function<void(const CIImage&)> take; // what is to be done with the picture
    QTimer tick;
    bool isShown = false;
    QPointer<QWidget> focus; // before the window was closed to edits

    // While a reduced picture stands in for the new one, the former one and how it was looked at
    std::optional<CIImage> former;
    std::vector<Sight> sights;

    ~Opening()
    {
        reader->deleteLater(); // it may be its own signal that brought us here
    }
};

// --- what is opened ---

void Controller::openFile(const QString& path)
{
    openInBackground(path, reducedSide(), [this, path](const CIImage& image) {
        setFilePath(path);
        m_document.setForeignPicture(image);
        if (image) {
            rememberRecentFile(path);
            markSessionClean();
        }
    });
}

void Controller::openDroppedFile(const QString& path)
{
    if (path.isEmpty() || isWorkRunning() || QApplication::activeModalWidget())
        return;
    openInBackground(path, 0, [this, path](const CIImage& image) {
        if (!image) {
            showReadFailure(path);
            return;
        }
        setFilePath(path);
        undoPaste(image);
        m_undoManager.setActionName(tr("Open"));
        rememberRecentFile(path);
    });
}

void Controller::takeDroppedFile(const QString& path)
{
    if (isWorkRunning() || QApplication::activeModalWidget())
        return;
    openInBackground(path, 0, [this, path](const CIImage& image) {
        setFilePath(path);
        undoPaste(image);
        m_undoManager.setActionName(tr("Open"));
        customEffectsView->resizeViewBoundCenter(true, int(PictureCenter::Toward));
    });
}

std::optional<CIImage> Controller::readImage(const QString& path)
{
    if (path.isEmpty())
        return m_document.take({});
    PictureRead read;
    WorkControl control(1);
    workInBackground(&m_window, openingText(path), control, [&] {
        read = readUnlessCancelled(
            [path](const ReadOptions& options) { return readPictureFile(path, options); }, control.rendering);
    });
    return control.isCancelled() ? std::nullopt : std::optional(m_document.take(read));
}

// --- how ---

/// Until the picture is there, file path, title and picture stay those of the former one. The newest opening wins.
void Controller::openInBackground(const QString& path, int reducedSide, std::function<void(const CIImage&)> take)
{
    cancelOpening();
    const auto opening = std::make_shared<Opening>();
    opening->reader = new PictureOpening(path, reducedSide, this);
    opening->take = std::move(take);
    m_opening = opening;
    m_document.setState(Document::State::Opening);
    connect(opening->reader, &PictureOpening::reducedRead, this, &Controller::showReduced);
    connect(opening->reader, &PictureOpening::finished, this, &Controller::openingFinished);
    QEventLoop loop;
    connect(this, &Controller::openingEnded, &loop, &QEventLoop::quit);
    QTimer::singleShot(kPatience, &loop, &QEventLoop::quit);
    loop.exec(QEventLoop::ExcludeUserInputEvents); // keys and clicks wait for the picture
    if (m_opening == opening)
        showOpening();
}

/// What the window has room for; before it is on the screen, what the screen has.
int Controller::reducedSide() const
{
    const QSize size = ciView->isVisible() ? ciView->size() : m_window.screen()->availableSize();
    return int(std::max(size.width(), size.height()) * ciView->devicePixelRatioF());
}

/// The whole picture takes the place before anybody can act on it.
void Controller::showReduced(const CIImage& picture)
{
    m_opening->former = m_document.picture();
    if (m_window.isVisible())
        m_opening->sights = {{*ciView, *ui.pictureScrollView}, {*customEffectsView, *ui.customEffectsScrollView}};
    setBackgroundImage(picture);
}

void Controller::openingFinished(const PictureRead& read)
{
    const std::shared_ptr<Opening> ended = endOpening();
    ended->take(m_document.take(read));
    updateMainBtnState();
}

void Controller::cancelOpening()
{
    if (!m_opening)
        return;
    const std::shared_ptr<Opening> ended = endOpening();
    if (ended->former)
        setBackgroundImage(*ended->former);
    for (const Sight& sight : ended->sights)
        sight.restore();
    if (const ZoomedCanvas* canvas = m_modes.current().canvas())
        setZoom(canvas->getZoom());
    updatePictureInfo();
    updateMainBtnState();
}

std::shared_ptr<Controller::Opening> Controller::endOpening()
{
    std::shared_ptr<Opening> ended = std::exchange(m_opening, nullptr);
    m_document.setState(Document::State::Idle);
    ended->reader->disconnect(this); // what it has still to say comes too late
    ended->reader->giveUp();
    if (ended->isShown)
        hideOpening(*ended);
    emit openingEnded();
    return ended;
}

QString Controller::openingPath() const { return m_opening ? m_opening->reader->path() : QString(); }

/// The picture that stays if the opening is cancelled.
CIImage Controller::lastingPicture() const
{
    return m_opening && m_opening->former ? *m_opening->former : m_document.picture();
}

// --- what is seen of it ---

bool Controller::isOpeningShown() const { return m_opening && m_opening->isShown; }

/// Long names lose their middle, or they would widen the window.
QString Controller::openingText(const QString& path) const
{
    constexpr int kWidest = 320; // points
    const QString name = QFileInfo(path).fileName();
    return tr("Opening “%1”…").arg(m_window.fontMetrics().elidedText(name, Qt::ElideMiddle, kWidest));
}

/// In the status bar; nothing can be edited from now on.
void Controller::showOpening()
{
    Opening& opening = *m_opening;
    opening.isShown = true;
    opening.focus = m_window.focusWidget();
    m_window.setFocus();
    setEditable(false);
    updatePictureInfo();
    QAccessibleEvent alert(ui.pictureInfoField, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
    connect(&opening.tick, &QTimer::timeout, this, &Controller::showOpeningProgress);
    opening.tick.start(kTick);
    showOpeningProgress();
    ui.openingBar->setAccessibleName(ui.pictureInfoField->text());
    ui.openingBar->show();
    ui.openingCancelBtn->show();
}

void Controller::showOpeningProgress() { showProgressOn(*ui.openingBar, m_opening->reader->progress()); }

void Controller::hideOpening(const Opening& opening)
{
    const QWidget* const focus = m_window.focusWidget();
    const bool isNobodys = !focus || focus == &m_window || focus == ui.openingCancelBtn;
    ui.openingBar->hide();
    ui.openingCancelBtn->hide();
    setEditable(true);
    if (opening.focus && isNobodys)
        opening.focus->setFocus();
}

void Controller::setEditable(bool on)
{
    for (QWidget* part : {static_cast<QWidget*>(ui.sideBar), static_cast<QWidget*>(ui.mainTabView),
             static_cast<QWidget*>(ui.controlPanel), static_cast<QWidget*>(ui.modeGroup), zoomSuperView,
             static_cast<QWidget*>(m_resizePanel)})
        if (part)
            part->setEnabled(on);
    updateMainBtnState();
}

/// Whether an opening that is shown leaves the item alone.
bool Controller::isFree(const QAction& item) const { return !isOpeningShown() || worksWhileOpening(item, ui); }
