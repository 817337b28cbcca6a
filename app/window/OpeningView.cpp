#include "app/window/OpeningView.h"

#include "app/document/Opening.h"
#include "app/window/MainWindow.h"
#include "app/window/StatusRow.h"
#include "app/window/Zooming.h"
#include "controls/picture/MyImageView.h"
#include "controls/picture/PictureScrollView.h"
#include "effects2d/customEffImageView.h"
#include "files/ResizePanel.h"
#include "ui_MainWindow.h"

#include <QFileInfo>
#include <QScreen>

#include <algorithm>
#include <utility>

OpeningView::OpeningView(MainWindow& window, Opening& opening, StatusRow& status, Zooming& zooming)
    : m_window(window)
    , m_opening(opening)
    , m_status(status)
{
    connect(&opening, &Opening::shown, this, &OpeningView::show);
    connect(&opening, &Opening::standInComes, this, [this] {
        const Ui::MainWindow& ui = m_window.interface();
        if (m_window.isVisible())
            m_sights = {sightOf(*ui.pictureScrollView->imageView(), *ui.pictureScrollView),
                sightOf(*ui.customEffectsScrollView->imageView(), *ui.customEffectsScrollView)};
    });
    connect(&opening, &Opening::cancelled, this, [this, &zooming] {
        for (const Sight& sight : std::exchange(m_sights, {})) {
            sight.canvas->setZoom(sight.zoom, sight.zoom);
            sight.scroller->setScrollPosition(sight.scroll);
            zooming.takeZoom(sight.zoom);
        }
        zooming.show();
        hide();
        m_status.update();
    });
    connect(&opening, &Opening::finished, this, [this] {
        m_sights.clear();
        hide();
    });
}

OpeningView::Sight OpeningView::sightOf(ZoomedCanvas& canvas, CanvasScrollView& scroller)
{
    const CIRect clip = scroller.clipBounds();
    return {&canvas, &scroller, canvas.getZoom(), {clip.x, clip.y}};
}

int OpeningView::reducedSide() const
{
    const MyImageView& view = *m_window.interface().pictureScrollView->imageView();
    const QSize size = view.isVisible() ? view.size() : m_window.screen()->availableSize();
    return int(std::max(size.width(), size.height()) * view.devicePixelRatioF());
}

QString OpeningView::text(const QString& path) const
{
    constexpr int kWidest = 320; // points
    const QString name = QFileInfo(path).fileName();
    return tr("Opening “%1”…").arg(m_window.fontMetrics().elidedText(name, Qt::ElideMiddle, kWidest));
}

void OpeningView::show()
{
    m_status.showProgress(text(m_opening.path()), [this] { return m_opening.progress(); });
    setEditable(false);
}

void OpeningView::hide()
{
    setEditable(true);
    m_status.endProgress();
}

void OpeningView::setEditable(bool on)
{
    const Ui::MainWindow& ui = m_window.interface();
    for (QWidget* part : std::initializer_list<QWidget*>{ui.sideBar, ui.mainTabView, ui.controlPanel, ui.modeGroup,
             ui.zoomSuperView, m_window.findChild<ResizePanel*>()})
        if (part)
            part->setEnabled(on);
    emit editableChanged();
}
