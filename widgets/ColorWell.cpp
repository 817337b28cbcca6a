#include "widgets/ColorWell.h"

#include "platform/foundation/Appearance.h"

#include <QPainter>
#include <QPainterPath>

namespace {

constexpr int kSquare = 4;
constexpr double kCorner = 4;

void drawSquares(QPainter& painter, const QRect& place)
{
    painter.fillRect(place, Qt::white);
    for (int y = 0; y * kSquare < place.height(); ++y)
        for (int x = y % 2; x * kSquare < place.width(); x += 2)
            painter.fillRect(place.x() + x * kSquare, place.y() + y * kSquare, kSquare, kSquare, QColor(190, 190, 190));
}

} // namespace

ColorWell::ColorWell(QWidget* parent)
    : QPushButton(parent)
{
    setAttribute(Qt::WA_Hover);
    setFlat(true); // draws itself
    connect(this, &QPushButton::clicked, this, &ColorWell::openPanel);
}

void ColorWell::setColor(const QColor& color)
{
    m_color = m_shown = color;
    update();
}

void ColorWell::pick(const QColor& color)
{
    if (color.rgba() == m_color.rgba()) // the panel knows no finer steps
        return;
    setColor(color);
    emit colorPicked(color);
}

void ColorWell::openPanel()
{
    if (m_panel) {
        m_panel->raise();
        return;
    }
    m_panel = new QColorDialog(m_color, this);
    m_panel->setAttribute(Qt::WA_DeleteOnClose);
    m_panel->setWindowTitle(accessibleName());
    m_panel->setOption(QColorDialog::ShowAlphaChannel);
    m_panel->setWindowModality(Qt::WindowModal);
    m_makesVisible = m_color.alpha() == 0;
    connect(m_panel, &QColorDialog::currentColorChanged, this, &ColorWell::tryColor);
    // Later, since the panel sets the alpha itself after it has told.
    connect(m_panel, &QColorDialog::currentColorChanged, this, &ColorWell::makeVisible, Qt::QueuedConnection);
    connect(m_panel, &QColorDialog::finished, this, [this](int result) {
        if (result == QDialog::Accepted)
            makeVisible();
        const QColor chosen = m_panel->currentColor();
        tryColor(m_color);
        if (result == QDialog::Accepted)
            pick(chosen);
    });
    m_panel->open();
}

void ColorWell::tryColor(const QColor& color)
{
    m_shown = color;
    update();
    emit colorTried(color);
}

void ColorWell::makeVisible()
{
    if (!m_makesVisible || !m_panel)
        return;
    QColor color = m_panel->currentColor();
    if (color.alpha() == 0 && color.rgb() == m_color.rgb())
        return; // nothing has been chosen yet
    m_makesVisible = false;
    if (color.alpha() > 0)
        return;
    color.setAlpha(255);
    m_panel->setCurrentColor(color);
}

void ColorWell::paintEvent(QPaintEvent*)
{
    const Look& look = Appearance::shared().look();
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QPainterPath shape;
    shape.addRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), kCorner, kCorner);
    painter.setClipPath(shape);
    if (m_shown.alpha() < 255)
        drawSquares(painter, rect());
    painter.fillRect(rect(), m_shown);
    if (m_shown.alpha() < 255) { // one half shows the color without its transparency
        QColor opaque = m_shown;
        opaque.setAlpha(255);
        const QPoint corner[] = {{0, 0}, {width(), 0}, {0, height()}};
        painter.setPen(Qt::NoPen);
        painter.setBrush(opaque);
        painter.drawPolygon(corner, 3);
        painter.setBrush(Qt::NoBrush);
    }
    painter.setClipping(false);
    const bool marked = hasFocus() || underMouse() || isDown();
    painter.setPen(QPen(marked ? look.accentMark : look.edge, hasFocus() ? 2 : 1));
    painter.drawPath(shape);
}
