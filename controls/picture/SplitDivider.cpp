#include "controls/picture/SplitDivider.h"

#include "platform/foundation/Look.h"

#include <algorithm>
#include <cmath>

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

namespace {

constexpr int kReach = 16; // points around the center of the grip that take the mouse
constexpr int kLineReach = 4;
constexpr double kGripRadius = 12;
constexpr int kGripAboveBottom = 40; // not in the middle, where filters have their centers
constexpr double kStep = 0.01;
constexpr double kFarStep = 0.1;

} // namespace

SplitDivider::SplitDivider(QWidget* view)
    : QWidget(view)
{
    installAccessibleValue();
    setCursor(Qt::SplitHCursor);
    setFocusPolicy(Qt::StrongFocus);
    setAccessibleName(tr("Divider"));
    setAccessibleDescription(tr("The picture without the filter is left of it, the result is right of it."));
    setToolTip(tr("Drag to compare: without the filter on the left, with it on the right"));
    hide();
    followView();
}

// --- where it is ---

void SplitDivider::setPlace(double place)
{
    place = std::clamp(place, 0.0, 1.0);
    if (place == std::exchange(m_place, place))
        return;
    followView();
    notifyValue(this, place);
    emit moved();
}

int SplitDivider::lineX() const { return int(std::lround(m_place * parentWidget()->width())); }

AccessibleValue::Range SplitDivider::valueRange() const { return {m_place, 0, 1, kStep}; }

QString SplitDivider::valueText() const { return tr("%1 %").arg(std::lround(m_place * 100)); }

QPoint SplitDivider::gripCenter() const { return {kReach, std::max(height() / 2, height() - kGripAboveBottom)}; }

void SplitDivider::setTakenAtLine(bool taken)
{
    m_takenAtLine = taken;
    followView();
}

void SplitDivider::followView()
{
    setGeometry(lineX() - kReach, 0, 2 * kReach, parentWidget()->height());
    const QPoint reach(kReach, kReach);
    QRegion taken(QRect(gripCenter() - reach, gripCenter() + reach), QRegion::Ellipse);
    if (m_takenAtLine)
        taken += QRect(kReach - kLineReach, 0, 2 * kLineReach, height());
    setMask(taken);
}

// --- how it looks: the same on any picture, like points ---

void SplitDivider::drawLine(QPainter& painter) const
{
    const QRectF line(lineX() - 0.5, 0, 1, height());
    painter.fillRect(line.adjusted(-1, 0, 1, 0), QColor(0, 0, 0, 96));
    painter.fillRect(line, Qt::white);
}

void SplitDivider::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QPointF center = gripCenter();
    const bool lit = m_grabbedAt || underMouse();
    painter.setPen(QPen(QColor(0, 0, 0, 96), 1));
    painter.setBrush(lit ? Look::light().accent : QColor(Qt::white));
    painter.drawEllipse(center, kGripRadius, kGripRadius);
    if (hasFocus()) {
        painter.setPen(QPen(Look::light().accentMark, 2));
        painter.setBrush(Qt::NoBrush);
        painter.drawEllipse(center, kGripRadius, kGripRadius);
    }
    painter.setPen(QPen(Look::light().accentText, 1.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(Qt::NoBrush);
    for (const double side : {-1.0, 1.0}) {
        const QPointF tip = center + QPointF(side * 7, 0), back(-side * 3.5, 3.5);
        painter.drawPolyline(QPolygonF{tip + back, tip, tip + QPointF(back.x(), -back.y())});
    }
}

bool SplitDivider::event(QEvent* event)
{
    switch (event->type()) {
    case QEvent::Enter:
    case QEvent::Leave:
    case QEvent::FocusIn:
    case QEvent::FocusOut:
        update();
        break;
    default:
        break;
    }
    return QWidget::event(event);
}

// --- moving it ---

void SplitDivider::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton) {
        event->ignore(); // the view's: it moves the picture, or shows its menu
        return;
    }
    m_grabbedAt = int(event->position().x()) - kReach;
    update();
}

void SplitDivider::mouseMoveEvent(QMouseEvent* event)
{
    if (!m_grabbedAt || parentWidget()->width() == 0) {
        event->ignore();
        return;
    }
    const double x = mapToParent(event->position()).x() - *m_grabbedAt;
    setPlace(x / parentWidget()->width());
}

void SplitDivider::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton && m_grabbedAt)
        m_grabbedAt.reset();
    else
        event->ignore();
    update();
}

void SplitDivider::keyPressEvent(QKeyEvent* event)
{
    const double step = event->modifiers() & Qt::ShiftModifier ? kFarStep : kStep;
    switch (event->key()) {
    case Qt::Key_Left:
        setPlace(m_place - step);
        break;
    case Qt::Key_Right:
        setPlace(m_place + step);
        break;
    case Qt::Key_Home:
        setPlace(0);
        break;
    case Qt::Key_End:
        setPlace(1);
        break;
    default:
        QWidget::keyPressEvent(event);
    }
}
