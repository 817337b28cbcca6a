// What is seen of a picture file on its way.
#include "app/Controller.h"
#include "app/document/PictureOpening.h"
#include "app/window/MainWindow.h"
#include "controls/picture/MyImageView.h"
#include "controls/picture/PictureScrollView.h"
#include "effects2d/customEffImageView.h"
#include "files/ResizePanel.h"
#include "ui_MainWindow.h"
#include "widgets/BackgroundWork.h"

#include <QAccessible>
#include <QFileInfo>
#include <QScreen>

#include <algorithm>
#include <chrono>
#include <utility>

namespace {

using namespace std::chrono_literals;

constexpr auto kTick = 50ms;

bool worksWhileOpening(const QAction& item, const Ui::MainWindow& ui)
{
    const QAction* const harmless[] = {ui.actionOpen, ui.actionQuit, ui.actionInfo, ui.actionThumbnails,
        ui.actionHistogram, ui.actionFollowDesktop, ui.actionLight, ui.actionDark, ui.actionFullScreen, ui.actionHelp,
        ui.actionAbout};
    return std::find(std::begin(harmless), std::end(harmless), &item) != std::end(harmless);
}

} // namespace

void Controller::readImage(const QString& path, std::function<void(const CIImage&)> take)
{
    readBesideWindow(
        m_document, openingText(path),
        [path](const ReadOptions& options) { return path.isEmpty() ? PictureRead() : readPictureFile(path, options); },
        std::move(take));
}

void Controller::connectOpening()
{
    connect(&m_opening, &Opening::shown, this, &Controller::showOpening);
    connect(&m_opening, &Opening::standInComes, this, [this] {
        if (m_window.isVisible())
            m_sights = {{*ciView, *ui.pictureScrollView}, {*customEffectsView, *ui.customEffectsScrollView}};
    });
    connect(&m_opening, &Opening::cancelled, this, [this] {
        for (const Sight& sight : std::exchange(m_sights, {}))
            sight.restore();
        if (const ZoomedCanvas* canvas = m_modes.current().canvas())
            setZoom(canvas->getZoom());
        updatePictureInfo();
        hideOpening();
    });
    connect(&m_opening, &Opening::finished, this, [this] {
        m_sights.clear();
        hideOpening();
    });
    connect(&m_opening, &Opening::opened, this, [this] { m_session.markClean(); });
    connect(&m_opening, &Opening::notRead, this, &Controller::showReadFailure);
    m_openingTick.callOnTimeout(this, [this] { showProgressOn(*ui.openingBar, m_opening.progress()); });
}

/// What the window has room for; before it is on the screen, what the screen has.
int Controller::reducedSide() const
{
    const QSize size = ciView->isVisible() ? ciView->size() : m_window.screen()->availableSize();
    return int(std::max(size.width(), size.height()) * ciView->devicePixelRatioF());
}

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
    m_formerFocus = m_window.focusWidget();
    m_window.setFocus();
    setEditable(false);
    updatePictureInfo();
    QAccessibleEvent alert(ui.pictureInfoField, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
    m_openingTick.start(kTick);
    showProgressOn(*ui.openingBar, m_opening.progress());
    ui.openingBar->setAccessibleName(ui.pictureInfoField->text());
    ui.openingBar->show();
    ui.openingCancelBtn->show();
}

void Controller::hideOpening()
{
    m_openingTick.stop();
    const QWidget* const focus = m_window.focusWidget();
    const bool isNobodys = !focus || focus == &m_window || focus == ui.openingCancelBtn;
    ui.openingBar->hide();
    ui.openingCancelBtn->hide();
    setEditable(true);
    if (QWidget* former = std::exchange(m_formerFocus, nullptr); former && isNobodys)
        former->setFocus();
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
bool Controller::isFree(const QAction& item) const { return !m_opening.isShown() || worksWhileOpening(item, ui); }
