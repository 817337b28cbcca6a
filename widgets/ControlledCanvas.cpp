#include "widgets/ControlledCanvas.h"

#include "platform/foundation/Look.h"
#include "widgets/DropFileTypes.h"
#include "widgets/PictureLayout.h"
#include "widgets/PictureMenu.h"

#include <utility>

#include <QDragEnterEvent>
#include <QMimeData>
#include <QPainter>

namespace {

void takeAsCopy(QDropEvent& event)
{
    event.setDropAction(Qt::CopyAction);
    event.accept();
}

/// The drag comes from a program that means something else by its file.
bool isPictureItself(const QMimeData& data) { return data.hasImage() || data.hasFormat(QStringLiteral("image/tiff")); }

} // namespace

ControlledCanvas::ControlledCanvas(CanvasScrollView* scrollView, const Drops& drops)
    : ZoomedCanvas(scrollView)
    , m_drops(drops)
{
    setAcceptDrops(true);
}

void ControlledCanvas::setMaster(CanvasMaster* master)
{
    m_master = master;
    resizeViewBoundCenter(true, int(PictureCenter::None));
}

CIPoint ControlledCanvas::pictureSize() const
{
    const CIRect extent = m_master ? m_master->backImage().extent() : CIRect();
    return {extent.width, extent.height};
}

void ControlledCanvas::zoomedByWheel(float newZoom)
{
    if (m_master)
        m_master->setZoom(newZoom);
}

void ControlledCanvas::pinched(double delta)
{
    if (m_master)
        m_master->updateZoommWithDelta(delta);
}

QColor ControlledCanvas::surround() const
{
    return (palette().color(QPalette::Window).lightness() < 128 ? Look::dark() : Look::light()).surround;
}

// --- menu ---

void ControlledCanvas::contextMenuEvent(QContextMenuEvent* event) { mouseContentMenu(pictureMenuPlace(*this, *event)); }

void ControlledCanvas::mouseContentMenu(const QPoint& globalPosition)
{
    popUpPictureMenu(m_master ? m_master->contextMenu() : nullptr, globalPosition);
}

// --- drops ---

void ControlledCanvas::drawCGRect(QPainter& painter, const QRectF& rect)
{
    painter.setPen(QPen(QColor::fromRgbF(0.99f, 0.94f, 0.74f, 0.8f), 4, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    painter.drawRect(rect);
}

void ControlledCanvas::setDragEnter(bool over)
{
    if (std::exchange(dragEnter, over) != over)
        draggedOver(over);
    update();
}

void ControlledCanvas::dragEnterEvent(QDragEnterEvent* event)
{
    const QString path = m_drops.file(*event->mimeData());
    const bool isOurs = event->source() == this;
    if (isOurs || !(event->possibleActions() & Qt::CopyAction) || path.isEmpty() || !m_drops.isWanted(path)
        || isPictureItself(*event->mimeData())) {
        event->ignore();
        return;
    }
    takeAsCopy(*event);
    setDragEnter(true);
}

void ControlledCanvas::dragLeaveEvent(QDragLeaveEvent*) { setDragEnter(false); }

void ControlledCanvas::dropEvent(QDropEvent* event)
{
    setDragEnter(false);
    takeAsCopy(*event);
    const QMimeData& data = *event->mimeData();
    if (const QString path = firstDroppedFile(data); m_master && !path.isEmpty() && !isPictureItself(data))
        event->modifiers() & Qt::AltModifier ? m_master->takeSecondPicture(path) : m_master->takeDroppedFile(path);
}
