#include "controls/panel/DropImageView.h"

#include "platform/foundation/Appearance.h"
#include "platform/foundation/TintedIcon.h"
#include "widgets/DropFileTypes.h"

#include <QApplication>
#include <QDrag>
#include <QDragEnterEvent>
#include <QFileIconProvider>
#include <QFileInfo>
#include <QMimeData>
#include <QPainter>
#include <QPainterPath>
#include <QUrl>

namespace {

constexpr double kCorner = 4;

} // namespace

DropImageView::DropImageView(QWidget* parent)
    : QFrame(parent)
{
    setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    setAcceptDrops(true);
    setAccessibleName(tr("Image"));
    setToolTip(tr("Drop a picture file here, or drag this one elsewhere"));
}

void DropImageView::setImage(const QImage& image)
{
    m_image = image;
    update();
}

Qt::DropActions DropImageView::draggingSourceOperationMaskForLocal(bool) const { return Qt::CopyAction; }

QSize DropImageView::sizeHint() const { return {48, 44}; }

void DropImageView::paintEvent(QPaintEvent*)
{
    const Look& look = Appearance::shared().look();
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QPainterPath bezel;
    bezel.addRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), kCorner, kCorner);
    painter.fillPath(bezel, look.field);
    painter.setClipPath(bezel);
    const QRect inside = contentsRect();
    if (!m_image.isNull()) {
        const double ratio = devicePixelRatioF();
        QSize size = m_image.size();
        if (const QSize room = inside.size() * ratio; size.width() > room.width() || size.height() > room.height())
            size.scale(room, Qt::KeepAspectRatio); // down only
        QRectF target({0, 0}, QSizeF(size) / ratio);
        target.moveCenter(QRectF(inside).center());
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.drawImage(target, m_image);
    } else {
        tintedIcon(QStringLiteral("picture")).paint(&painter, inside.adjusted(12, 10, -12, -10));
    }
    painter.setClipping(false);
    painter.setPen(QPen(m_dropHighlighted ? look.accentMark : look.border, m_dropHighlighted ? 2 : 1));
    painter.drawPath(bezel);
}

void DropImageView::dragEnterEvent(QDragEnterEvent* event)
{
    if (event->source() == this || firstDroppedFile(*event->mimeData()).isEmpty())
        return;
    m_dropHighlighted = true;
    update();
    event->setDropAction(Qt::CopyAction);
    event->accept();
}

void DropImageView::dragLeaveEvent(QDragLeaveEvent*)
{
    m_dropHighlighted = false;
    update();
}

void DropImageView::dropEvent(QDropEvent* event)
{
    m_dropHighlighted = false;
    update();
    event->setDropAction(Qt::CopyAction);
    event->accept();
    concludeDragOperation(*event->mimeData());
}

void DropImageView::concludeDragOperation(const QMimeData& pasteboard)
{
    const QString path = firstDroppedFile(pasteboard);
    if (path.isEmpty())
        return;
    m_filePath = path;
    emit imageDropped();
}

void DropImageView::mousePressEvent(QMouseEvent* event) { m_pressed = event->position().toPoint(); }

void DropImageView::mouseMoveEvent(QMouseEvent* event)
{
    const bool dragged =
        (event->position().toPoint() - m_pressed).manhattanLength() >= QApplication::startDragDistance();
    if (!(event->buttons() & Qt::LeftButton) || !dragged || m_filePath.isEmpty())
        return;
    auto* pasteboard = new QMimeData;
    pasteboard->setUrls({QUrl::fromLocalFile(m_filePath)});
    auto* drag = new QDrag(this);
    drag->setMimeData(pasteboard);
    const QPixmap icon = QFileIconProvider().icon(QFileInfo(m_filePath)).pixmap(32, 32);
    drag->setPixmap(icon);
    drag->setHotSpot({16, int(icon.height() / icon.devicePixelRatio()) - 16});
    drag->exec(draggingSourceOperationMaskForLocal(false));
}
