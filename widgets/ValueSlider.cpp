#include "widgets/ValueSlider.h"

#include "platform/foundation/Appearance.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include <QAbstractScrollArea>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <QWheelEvent>

namespace {

constexpr double kHandle = 12; // points, its edge included
constexpr double kTrack = 3;
constexpr double kSteps = 100; // in the range
constexpr double kFiner = 0.1;
constexpr double kPage = 10; // steps
constexpr double kWheelNotch = 120; // eighths of a degree: one click of an ordinary wheel

} // namespace

ValueSlider::ValueSlider(QWidget* parent)
    : QWidget(parent)
{
    installAccessibleValue();
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_Hover);
}

void ValueSlider::setRange(double minimum, double maximum)
{
    m_minimum = minimum;
    m_maximum = std::max(minimum, maximum);
    setEnabled(m_maximum > m_minimum);
    update();
}

void ValueSlider::setStandardValue(std::optional<double> value)
{
    m_standard = value;
    update();
}

void ValueSlider::setValue(double value)
{
    m_value = value;
    update();
}

void ValueSlider::moveTo(double value)
{
    value = std::clamp(m_whole ? std::round(value) : value, m_minimum, m_maximum);
    if (value == m_value)
        return;
    setValue(value);
    emit valueChanged();
    notifyValue(this, m_value);
}

double ValueSlider::singleStep() const
{
    const double step = (m_maximum - m_minimum) / kSteps;
    return m_whole ? std::max(1.0, std::round(step)) : step;
}

void ValueSlider::step(double steps, bool finer)
{
    const double length = m_whole && finer ? 1 : singleStep() * (finer ? kFiner : 1);
    moveTo(std::clamp(m_value, m_minimum, m_maximum) + steps * length);
}

double ValueSlider::trackLength() const { return std::max(1.0, width() - kHandle); }

double ValueSlider::positionOf(double value) const
{
    const double range = m_maximum - m_minimum;
    const double part = range > 0 ? std::clamp((value - m_minimum) / range, 0.0, 1.0) : 0;
    return kHandle / 2 + part * trackLength();
}

void ValueSlider::paintEvent(QPaintEvent*)
{
    const Look& look = Appearance::shared().look();
    const bool dark = Appearance::shared().isDark();
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    const double middle = height() / 2.0;
    const auto drawTrack = [&](double from, double to, const QColor& color) {
        painter.setBrush(color);
        painter.drawRoundedRect(
            QRectF(from, middle - kTrack / 2, std::max(0.0, to - from), kTrack), kTrack / 2, kTrack / 2);
    };
    drawTrack(kHandle / 2 - kTrack / 2, width() - kHandle / 2 + kTrack / 2, look.border);
    const double handle = positionOf(m_value);
    if (isEnabled()) {
        // From zero where it lies within the range, so that a look tells the sign.
        const double zero = positionOf(0);
        drawTrack(std::min(zero, handle), std::max(zero, handle), look.accentMark);
    }
    if (m_standard && isEnabled()) {
        painter.setBrush(look.secondaryText);
        painter.drawRect(QRectF(std::round(positionOf(*m_standard)) - 0.5, middle + kTrack / 2 + 2, 1, 3));
    }
    if (!isEnabled()) {
        painter.setBrush(look.window);
        painter.setPen(look.border);
    } else {
        const bool marked = m_dragged || m_hovered || hasFocus();
        const QColor edge = dark ? look.panel : look.edge;
        painter.setBrush(m_dragged ? look.accent : dark ? look.text : look.field);
        painter.setPen(QPen(marked ? look.accentMark : edge, hasFocus() ? 2 : 1));
    }
    const double radius = kHandle / 2 - (hasFocus() ? 1 : 0.5);
    painter.drawEllipse(QPointF(handle, middle), radius, radius);
}

void ValueSlider::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return;
    m_dragged = true;
    m_lastX = event->position().x();
    m_dragValue = std::clamp(m_value, m_minimum, m_maximum);
    emit pressed();
    if (std::abs(m_lastX - positionOf(m_value)) > kHandle / 2) {
        m_dragValue = m_minimum + (m_lastX - kHandle / 2) / trackLength() * (m_maximum - m_minimum);
        moveTo(m_dragValue);
    }
    update();
}

void ValueSlider::mouseMoveEvent(QMouseEvent* event)
{
    if (!m_dragged)
        return;
    const double moved = event->position().x() - std::exchange(m_lastX, event->position().x());
    const double finer = event->modifiers() & Qt::ShiftModifier ? kFiner : 1;
    m_dragValue += moved / trackLength() * (m_maximum - m_minimum) * finer;
    moveTo(m_dragValue);
}

void ValueSlider::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton || !std::exchange(m_dragged, false))
        return;
    update();
    emit released();
}

void ValueSlider::keyPressEvent(QKeyEvent* event)
{
    const bool finer = event->modifiers() & Qt::ShiftModifier;
    switch (event->key()) {
    case Qt::Key_Left:
    case Qt::Key_Down:
        return step(-1, finer);
    case Qt::Key_Right:
    case Qt::Key_Up:
        return step(1, finer);
    case Qt::Key_PageDown:
        return step(-kPage, finer);
    case Qt::Key_PageUp:
        return step(kPage, finer);
    case Qt::Key_Home:
        return moveTo(m_minimum);
    case Qt::Key_End:
        return moveTo(m_maximum);
    case Qt::Key_Delete:
    case Qt::Key_Backspace:
        emit standardValueWanted();
        return;
    default:
        QWidget::keyPressEvent(event);
    }
}

bool ValueSlider::somethingScrolls() const
{
    for (const QWidget* above = parentWidget(); above; above = above->parentWidget())
        if (const auto* area = qobject_cast<const QAbstractScrollArea*>(above))
            return area->verticalScrollBar()->maximum() > 0;
    return false;
}

void ValueSlider::wheelEvent(QWheelEvent* event)
{
    if (!hasFocus() && somethingScrolls()) {
        event->ignore();
        return;
    }
    event->accept();
    // With Shift some desktops turn the wheel sideways.
    const QPoint angle = event->angleDelta();
    const double delta = angle.y() != 0 ? angle.y() : angle.x();
    m_wheelRest = delta * m_wheelRest < 0 ? delta : m_wheelRest + delta;
    const double notches = std::trunc(m_wheelRest / kWheelNotch);
    m_wheelRest -= notches * kWheelNotch;
    if (notches != 0)
        step(notches, event->modifiers() & Qt::ShiftModifier);
}

void ValueSlider::enterEvent(QEnterEvent*)
{
    m_hovered = true;
    update();
}

void ValueSlider::leaveEvent(QEvent*)
{
    m_hovered = false;
    update();
}
