#include "controls/DropImageView.h"

#include "controls/DropFileTypes.h"

#include <QApplication>
#include <QDrag>
#include <QDragEnterEvent>
#include <QFileIconProvider>
#include <QFileInfo>
#include <QMimeData>
#include <QPainter>
#include <QUrl>

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

void DropImageView::paintEvent(QPaintEvent* event)
{
    QFrame::paintEvent(event);
    QPainter painter(this);
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
    }
    if (m_dropHighlighted) {
        painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
        painter.drawRect(inside.adjusted(1, 1, -1, -1));
    }
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
