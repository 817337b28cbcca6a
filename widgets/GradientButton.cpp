#include "widgets/GradientButton.h"

#include "platform/foundation/Appearance.h"

#include <QEvent>
#include <QPainter>
#include <QPainterPath>

namespace {

constexpr double kCorner = 6; // points
constexpr int kMargin = 8, kGap = 6, kHeight = 28;
constexpr float kDarker = 0.2f;

QColor baseColor(bool on)
{
    const bool dark = Appearance::shared().isDark();
    if (on)
        return dark ? QColor(149, 132, 224) : QColor(208, 200, 255);
    const float grey = dark ? 0.353f : 0.863f;
    return QColor::fromRgbF(grey, grey, grey);
}

} // namespace

GradientButton::GradientButton(QWidget* parent)
    : QPushButton(parent)
{
    setCheckable(true);
    setAttribute(Qt::WA_Hover);
    setFocusPolicy(Qt::TabFocus);
}

QColor GradientButton::darkerColorForColor(const QColor& color)
{
    const auto darker = [](float component) { return std::max(0.0f, component - kDarker); };
    return QColor::fromRgbF(darker(color.redF()), darker(color.greenF()), darker(color.blueF()), color.alphaF());
}

QImage GradientButton::gradientImage(bool on) const
{
    const qreal ratio = devicePixelRatioF();
    QImage image((QSizeF(size()) * ratio).toSize(), QImage::Format_ARGB32_Premultiplied);
    if (image.isNull())
        return image;
    image.setDevicePixelRatio(ratio);
    QLinearGradient gradient(0, 0, 0, height());
    gradient.setColorAt(0, baseColor(on));
    gradient.setColorAt(1, darkerColorForColor(baseColor(on)));
    QPainter painter(&image);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.fillRect(rect(), gradient);
    return image;
}

void GradientButton::setState(bool on)
{
    setChecked(on);
    m_image = gradientImage(on);
    update();
}

void GradientButton::nextCheckState() { setState(!isChecked()); }

void GradientButton::checkStateSet()
{
    QPushButton::checkStateSet();
    m_image = gradientImage(isChecked());
}

void GradientButton::resizeEvent(QResizeEvent* event)
{
    QPushButton::resizeEvent(event);
    m_image = gradientImage(isChecked());
}

bool GradientButton::event(QEvent* event)
{
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::StyleChange) // the look has changed
        m_image = gradientImage(isChecked());
    return QPushButton::event(event);
}

QSize GradientButton::sizeHint() const
{
    int width = 2 * kMargin + fontMetrics().horizontalAdvance(text());
    if (!icon().isNull())
        width += iconSize().width() + (text().isEmpty() ? 0 : kGap);
    return {width, kHeight};
}

void GradientButton::paintEvent(QPaintEvent*)
{
    const Look& look = Appearance::shared().look();
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QPainterPath shape;
    shape.addRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), kCorner, kCorner);
    const QBrush filling(m_image); // a brush minds the image's device pixel ratio
    painter.fillPath(shape, filling);
    if (isDown())
        painter.fillPath(shape, QColor(0, 0, 0, 40));
    else if (underMouse())
        painter.fillPath(shape, QColor(255, 255, 255, Appearance::shared().isDark() ? 20 : 70));
    if (hasFocus()) {
        painter.setPen(QPen(look.accentMark, 2));
        painter.drawPath(shape);
    }

    const QColor color = isChecked() ? look.accentText : look.text;
    const int textWidth = fontMetrics().horizontalAdvance(text());
    const int iconWidth = icon().isNull() ? 0 : iconSize().width() + (text().isEmpty() ? 0 : kGap);
    int x = (width() - textWidth - iconWidth) / 2;
    if (iconWidth > 0)
        icon().paint(&painter, QRect(QPoint(x, (height() - iconSize().height()) / 2), iconSize()), Qt::AlignCenter,
            QIcon::Normal, isChecked() ? QIcon::On : QIcon::Off);
    x += iconWidth;
    painter.setPen(color);
    painter.drawText(
        QRect(x, 0, textWidth + 1, height()), Qt::AlignVCenter | Qt::AlignLeft | Qt::TextShowMnemonic, text());
}
