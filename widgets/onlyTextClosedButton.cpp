#include "widgets/onlyTextClosedButton.h"

#include "platform/foundation/Appearance.h"
#include "widgets/FavouritesMaster.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QPointer>

namespace {

constexpr int kCloseSide = 14; // points
constexpr QPoint kBackPlace(7, 17); // of the thumbnail
constexpr QRect kCard(3, 13, 48, 33); // what the button's picture shows
constexpr double kCardCorner = 6;

} // namespace

onlyTextClosedButton::onlyTextClosedButton(QWidget* parent)
    : BaseColoredButton(parent)
{
    setFocusPolicy(Qt::StrongFocus);
    awakeFromNib();
}

void onlyTextClosedButton::awakeFromNib()
{
    setFlat(true);
    onColor = Qt::white;
    offColor = QColor::fromRgbF(0.9f, 0.82f, 0.163f, 1.0f);
    resize(sizeHint());
}

void onlyTextClosedButton::addCloseBtn()
{
    if (closeBtn)
        return;
    closeBtn = new BaseColoredButton(this);
    closeBtn->setImages(QStringLiteral("off_x"), QStringLiteral("on_x"));
    closeBtn->setFitToFrame(true);
    closeBtn->setAllowsMixedState(true);
    closeBtn->setFocusPolicy(Qt::NoFocus); // Delete does it from the keyboard
    closeBtn->setGeometry(width() - 20, y() + 2, kCloseSide, kCloseSide);
    closeBtn->setToolTip(tr("Remove from the favourites"));
    closeBtn->setAccessibleName(tr("Remove from the favourites"));
    closeBtn->hide();
    connect(closeBtn, &QAbstractButton::clicked, this, &onlyTextClosedButton::removeMySelf);
}

void onlyTextClosedButton::addBackImage(const QImage& image)
{
    backImg = image;
    update();
}

void onlyTextClosedButton::setMyFontSize(float size)
{
    myfontSize = size;
    update();
}

void onlyTextClosedButton::setOffColor(const QColor& color)
{
    offColor = color;
    update();
}

void onlyTextClosedButton::setOnColor(const QColor& color)
{
    onColor = color;
    update();
}

bool onlyTextClosedButton::isSelected() const { return isDown() || (isChecked() && !allowsMixedState()); }

void onlyTextClosedButton::setName(const QString& name)
{
    setToolTip(name);
    setAccessibleName(name);
}

void onlyTextClosedButton::removeMySelf()
{
    if (m_controller)
        m_controller->removeFavourite(this);
}

void onlyTextClosedButton::paintEvent(QPaintEvent* event)
{
    const QString title = text();
    BaseColoredButton::paintEvent(event);
    QPainter painter(this);
    drawBackImg(painter);
    if (!title.isEmpty()) {
        QFont smaller = font();
        smaller.setPointSizeF(double(myfontSize));
        painter.setFont(smaller);
        painter.setPen(isSelected() ? onColor : offColor);
        painter.drawText(kCard, Qt::AlignCenter, title);
    }
    if (hasFocus()) {
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(Appearance::shared().look().accentMark, 2));
        painter.drawRoundedRect(QRectF(kCard).adjusted(1, 1, -1, -1), kCardCorner - 1, kCardCorner - 1);
    }
}

void onlyTextClosedButton::drawBackImg(QPainter& painter)
{
    if (backImg.isNull())
        return;
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(QRectF(kBackPlace, backImg.deviceIndependentSize()), backImg);
}

void onlyTextClosedButton::enterEvent(QEnterEvent* event)
{
    BaseColoredButton::enterEvent(event);
    mouseEntered();
}

void onlyTextClosedButton::leaveEvent(QEvent* event)
{
    BaseColoredButton::leaveEvent(event);
    mouseExited();
}

void onlyTextClosedButton::mouseEntered()
{
    if (closeBtn)
        closeBtn->show();
}

void onlyTextClosedButton::mouseExited()
{
    if (closeBtn)
        closeBtn->hide();
}

void onlyTextClosedButton::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Delete:
    case Qt::Key_Backspace:
        removeMySelf();
        break;
    case Qt::Key_Left:
    case Qt::Key_Right:
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_Return:
    case Qt::Key_Enter:
        event->ignore(); // the strip's
        break;
    default:
        BaseColoredButton::keyPressEvent(event);
    }
}

void onlyTextClosedButton::contextMenuEvent(QContextMenuEvent* event)
{
    if (m_controller)
        m_controller->showFavouriteMenu(this, event->globalPos());
}
