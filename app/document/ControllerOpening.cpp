// What is seen of a picture file on its way.
#include "app/commands/Commands.h"
#include "app/Controller.h"
#include "app/document/PictureOpening.h"
#include "app/window/MainWindow.h"
#include "controls/picture/MyImageView.h"
#include "controls/picture/PictureScrollView.h"
#include "effects2d/customEffImageView.h"
#include "files/ResizePanel.h"
#include "ui_MainWindow.h"

#include <QFileInfo>
#include <QScreen>

#include <algorithm>
#include <utility>

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
        m_zooming.show();
        hideOpening();
        m_status.update();
    });
    connect(&m_opening, &Opening::finished, this, [this] {
        m_sights.clear();
        hideOpening();
    });
    connect(&m_opening, &Opening::opened, this, [this] { m_session.markClean(); });
    connect(&m_opening, &Opening::notRead, this, &Controller::showReadFailure);
    connect(&m_opening, &Opening::newWindowWanted, this, &Session::openInNewWindow);
    connect(&m_opening, &Opening::unsavedReplaced, this, [this] {
        m_status.offer(
            m_document.picture() ? tr("Changes that were not saved have been replaced.") : m_document.readFailure(),
            {&m_window.commands().action("actionUndo")});
    });
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

/// Nothing can be edited from now on.
void Controller::showOpening()
{
    m_status.showProgress(openingText(m_opening.path()), [this] { return m_opening.progress(); });
    setEditable(false);
}

void Controller::hideOpening()
{
    setEditable(true);
    m_status.endProgress();
}

void Controller::setEditable(bool on)
{
    for (QWidget* part : {static_cast<QWidget*>(ui.sideBar), static_cast<QWidget*>(ui.mainTabView),
             static_cast<QWidget*>(ui.controlPanel), static_cast<QWidget*>(ui.modeGroup),
             static_cast<QWidget*>(ui.zoomSuperView), static_cast<QWidget*>(m_resizePanel)})
        if (part)
            part->setEnabled(on);
    updateMainBtnState();
}
