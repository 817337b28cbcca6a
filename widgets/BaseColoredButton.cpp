#include "widgets/BaseColoredButton.h"

#include "widgets/ResourceImage.h"

#include <QApplication>
#include <QDrag>
#include <QMimeData>
#include <QMouseEvent>
#include <QPainter>

BaseColoredButton::BaseColoredButton(QWidget* parent)
    : QPushButton(parent)
{
    setFlat(true);
    setCheckable(true);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void BaseColoredButton::setImages(const QString& image, const QString& alternateImage)
{
    m_image = image;
    m_alternateImage = alternateImage;
    updateGeometry();
    update();
}

QPixmap BaseColoredButton::currentImage() const
{
    const bool alternate = (isChecked() || isDown()) && !m_alternateImage.isEmpty();
    const QString& name = alternate ? m_alternateImage : m_image;
    return name.isEmpty() ? QPixmap() : resourceImage(name, devicePixelRatioF());
}

QSize BaseColoredButton::sizeHint() const
{
    const QSize size = currentImage().deviceIndependentSize().toSize();
    return size.isEmpty() ? QPushButton::sizeHint() : size;
}

void BaseColoredButton::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const QPixmap image = currentImage();
    if (!image.isNull()) {
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.drawPixmap(isFitToFrame ? rect() : QRect(QPoint(0, 0), image.deviceIndependentSize().toSize()), image);
    }
    if (!text().isEmpty()) {
        painter.setPen(palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::ButtonText));
        painter.drawText(rect(), Qt::AlignCenter, text());
    }
}

void BaseColoredButton::mousePressEvent(QMouseEvent* event)
{
    m_pressed = event->pos();
    QPushButton::mousePressEvent(event);
}

void BaseColoredButton::mouseMoveEvent(QMouseEvent* event)
{
    const bool far = (event->pos() - m_pressed).manhattanLength() >= QApplication::startDragDistance();
    if (!isDragEnable || !far || !(event->buttons() & Qt::LeftButton)) {
        QPushButton::mouseMoveEvent(event);
        return;
    }
    setDown(false);
    auto* content = new QMimeData;
    content->setImageData(dragImage().toImage());
    auto* drag = new QDrag(this);
    drag->setMimeData(content);
    drag->setPixmap(dragImage());
    drag->exec(Qt::CopyAction);
}

void BaseColoredTextButton::paintEvent(QPaintEvent* event)
{
    BaseColoredButton::paintEvent(event);
    if (text().isEmpty())
        return;
    QPainter painter(this);
    painter.setPen(Qt::lightGray);
    painter.drawText(rect().translated(0, 2), Qt::AlignCenter, text());
}
