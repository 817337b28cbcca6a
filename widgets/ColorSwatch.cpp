#include "widgets/ColorSwatch.h"

#include <QColorDialog>
#include <QPainter>
#include <QPainterPath>
#include <QSignalBlocker>

namespace {

constexpr int kSquare = 5; // points: a square of the board that shows through translucent colors
constexpr double kCorner = 6;

void fillBoard(QPainter& painter, const QRect& area)
{
    for (int y = 0; y * kSquare < area.height(); ++y)
        for (int x = 0; x * kSquare < area.width(); ++x)
            painter.fillRect(area.left() + x * kSquare, area.top() + y * kSquare, kSquare, kSquare,
                (x + y) % 2 ? QColor(200, 200, 200) : QColor(Qt::white));
}

} // namespace

ColorSwatch::ColorSwatch(QWidget* parent)
    : QAbstractButton(parent)
{
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setToolTip(tr("Choose a color"));
    connect(this, &QAbstractButton::clicked, this, &ColorSwatch::openPanel);
}

void ColorSwatch::setColor(const QColor& color)
{
    m_color = color;
    if (m_panel && m_panel->currentColor() != color) {
        const QSignalBlocker quiet(m_panel);
        m_panel->setCurrentColor(color);
    }
    update();
}

void ColorSwatch::openPanel()
{
    if (!m_panel) {
        m_panel = new QColorDialog(m_color, this);
        m_panel->setAttribute(Qt::WA_DeleteOnClose);
        m_panel->setOption(QColorDialog::ShowAlphaChannel);
        m_panel->setOption(QColorDialog::NoButtons);
        m_panel->setWindowTitle(accessibleName());
        connect(m_panel, &QColorDialog::currentColorChanged, this, [this](const QColor& color) {
            if (color == m_color)
                return;
            m_color = color;
            update();
            emit colorChanged(color);
        });
    }
    m_panel->show();
    m_panel->raise();
    m_panel->activateWindow();
}

void ColorSwatch::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF edge = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
    QPainterPath shape;
    shape.addRoundedRect(edge, kCorner, kCorner);
    painter.setClipPath(shape);
    if (m_color.alpha() < 255)
        fillBoard(painter, rect());
    painter.fillRect(rect(), isEnabled() ? m_color : palette().color(QPalette::Button));
    painter.setClipping(false);
    const bool marked = hasFocus() || underMouse();
    painter.setPen(QPen(palette().color(marked ? QPalette::Link : QPalette::Mid), hasFocus() ? 2 : 1));
    painter.drawPath(shape);
}
