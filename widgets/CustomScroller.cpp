#include "widgets/CustomScroller.h"

#include "platform/foundation/Appearance.h"
#include "widgets/ResourceImage.h"

#include <QMouseEvent>
#include <QPainter>

namespace {

constexpr int kFloatSteps = 10000; // in the range that floats are given in

} // namespace

CustomScroller::CustomScroller(Qt::Orientation orientation, QWidget* parent)
    : QScrollBar(orientation, parent)
    , isVertical(orientation == Qt::Vertical)
{
    setAttribute(Qt::WA_OpaquePaintEvent);
}

int CustomScroller::scrollerWidth()
{
    static const int width = int(resourceImage(QStringLiteral("btn_up"), 1).deviceIndependentSize().width());
    return width > 0 ? width : 12;
}

QSize CustomScroller::sizeHint() const
{
    const int across = scrollerWidth(), length = 4 * across;
    return isVertical ? QSize(across, length) : QSize(length, across);
}

double CustomScroller::knobProportion() const
{
    const double range = double(maximum()) - minimum();
    return range <= 0 ? 1 : pageStep() / (range + pageStep());
}

void CustomScroller::setFloatValueKnobProportion(float value, float proportion)
{
    const int page = int(std::clamp(proportion, 0.0f, 1.0f) * kFloatSteps);
    setPageStep(page);
    setRange(0, kFloatSteps - page);
    setValue(int(std::clamp(value, 0.0f, 1.0f) * float(maximum())));
}

// --- geometry ---

ScrollerLayout CustomScroller::layoutOfParts() const
{
    ScrollerLayout parts;
    parts.length = isVertical ? height() : width();
    parts.arrow = scrollerWidth();
    parts.minKnob = isVertical ? double(minKnobHeight) : double(minKnobWidth);
    parts.proportion = knobProportion();
    const double range = double(maximum()) - minimum();
    parts.position = range > 0 ? (double(sliderPosition()) - minimum()) / range : 0;
    if (!isVertical && isRightToLeft())
        parts.position = 1 - parts.position;
    return parts;
}

QRectF CustomScroller::rectForPart(Part part) const
{
    const ScrollerLayout parts = layoutOfParts();
    const double knobEnd = parts.knobStart() + parts.knobLength(), slotEnd = parts.arrowLength() + parts.slotLength();
    const auto between = [this](double from, double to) {
        return isVertical ? QRectF(0, from, width(), to - from) : QRectF(from, 0, to - from, height());
    };
    switch (part) {
    case Part::DecrementLine:
        return between(0, parts.arrowLength());
    case Part::IncrementLine:
        return between(slotEnd, slotEnd + parts.arrowLength());
    case Part::KnobSlot:
        return between(parts.arrowLength(), slotEnd);
    case Part::Knob:
        return between(parts.knobStart(), knobEnd);
    case Part::DecrementPage:
        return between(parts.arrowLength(), parts.knobStart());
    case Part::IncrementPage:
        return between(knobEnd, slotEnd);
    default:
        return {};
    }
}

CustomScroller::Part CustomScroller::partAt(QPointF point) const
{
    if (knobProportion() < 1)
        for (Part part :
            {Part::DecrementLine, Part::IncrementLine, Part::Knob, Part::DecrementPage, Part::IncrementPage})
            if (rectForPart(part).contains(point))
                return part;
    return Part::None;
}

double CustomScroller::along(QPointF point) const { return isVertical ? point.y() : point.x(); }

// --- drawing ---

QPixmap CustomScroller::picture(const char* upright, const char* level) const
{
    return resourceImage(QLatin1String(isVertical ? upright : level), devicePixelRatioF());
}

void CustomScroller::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.fillRect(rect(), Appearance::shared().look().panel);
    if (knobProportion() >= 1)
        return;
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    drawKnobSlot(painter);
    drawKnob(painter);
    drawArrowHighlight(painter, Part::DecrementLine, hilitePrev);
    drawArrowHighlight(painter, Part::IncrementLine, hiliteNext);
}

void CustomScroller::drawBar(
    QPainter& painter, const QRectF& place, const QPixmap& start, const QPixmap& middle, const QPixmap& end) const
{
    // On whole points, so that the pieces meet.
    const QRect bar = place.toRect();
    const QSize head = start.deviceIndependentSize().toSize(), tail = end.deviceIndependentSize().toSize();
    if (isVertical) {
        painter.drawPixmap(bar.left(), bar.top(), start);
        painter.drawPixmap(
            QRect(bar.left(), bar.top() + head.height(), bar.width(), bar.height() - head.height() - tail.height()),
            middle);
        painter.drawPixmap(bar.left(), bar.top() + bar.height() - tail.height(), end);
    } else {
        painter.drawPixmap(bar.left(), bar.top(), start);
        painter.drawPixmap(
            QRect(bar.left() + head.width(), bar.top(), bar.width() - head.width() - tail.width(), bar.height()),
            middle);
        painter.drawPixmap(bar.left() + bar.width() - tail.width(), bar.top(), end);
    }
}

void CustomScroller::drawKnobSlot(QPainter& painter) const
{
    drawBar(painter, rectForPart(Part::KnobSlot), picture("srcl_top", "down_slider_part"),
        picture("scrl_mid", "middle_slider_part"), picture("scrl_bot", "up_slider_part"));
}

void CustomScroller::drawKnob(QPainter& painter) const
{
    if (!underMouse() && m_grabbed < 0)
        painter.setOpacity(0.7);
    drawBar(painter, rectForPart(Part::Knob), picture("knob_top", "down_round_side"),
        picture("knob_mid", "middle_round_side"), picture("knob_bot", "up_round_side"));
    painter.setOpacity(1);
}

void CustomScroller::drawArrowHighlight(QPainter& painter, Part arrow, bool highlight) const
{
    const QRectF place = rectForPart(arrow);
    if (place.isEmpty())
        return;
    const bool first = arrow == Part::DecrementLine;
    const char* upright = first ? (highlight ? "btn_up_on" : "btn_up") : (highlight ? "btn_down_on" : "btn_down");
    const char* level =
        first ? (highlight ? "on_pointer_down" : "off_pointer_down") : (highlight ? "on_pointer_up" : "off_pointer_up");
    painter.drawPixmap(place.topLeft(), picture(upright, level));
}

// --- mouse ---

void CustomScroller::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton) {
        event->ignore();
        return;
    }
    const bool mirrored = !isVertical && isRightToLeft();
    switch (const Part part = partAt(event->position())) {
    case Part::DecrementLine:
    case Part::IncrementLine:
        trackScrollButtons(part);
        break;
    case Part::DecrementPage:
    case Part::IncrementPage:
        setRepeatAction((part == Part::IncrementPage) != mirrored ? SliderPageStepAdd : SliderPageStepSub);
        triggerAction(repeatAction());
        break;
    case Part::Knob:
        m_grabbed = along(event->position()) - along(rectForPart(Part::Knob).topLeft());
        setSliderDown(true);
        break;
    default:
        break;
    }
    update();
}

/// The arrow scrolls as long as it is held.
void CustomScroller::trackScrollButtons(Part arrow)
{
    const bool mirrored = !isVertical && isRightToLeft();
    hilitePrev = arrow == Part::DecrementLine;
    hiliteNext = arrow == Part::IncrementLine;
    const SliderAction action = hiliteNext != mirrored ? SliderSingleStepAdd : SliderSingleStepSub;
    setRepeatAction(action, 400, 50);
    triggerAction(action);
}

void CustomScroller::mouseMoveEvent(QMouseEvent* event)
{
    if (m_grabbed < 0) {
        update();
        return;
    }
    double position = layoutOfParts().positionOf(along(event->position()) - m_grabbed);
    if (!isVertical && isRightToLeft())
        position = 1 - position;
    setSliderPosition(minimum() + int(std::lround(position * (double(maximum()) - minimum()))));
    update();
}

void CustomScroller::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return;
    setRepeatAction(SliderNoAction);
    hilitePrev = hiliteNext = false;
    if (m_grabbed >= 0) {
        m_grabbed = -1;
        setSliderDown(false);
    }
    update();
}

void CustomScroller::leaveEvent(QEvent* event)
{
    QScrollBar::leaveEvent(event);
    update();
}

void CustomScroller::sliderChange(SliderChange change)
{
    QScrollBar::sliderChange(change);
    // Paging ends where the knob has come to the mouse.
    const bool pages = repeatAction() == SliderPageStepAdd || repeatAction() == SliderPageStepSub;
    if (change == SliderValueChange && pages && partAt(mapFromGlobal(QCursor::pos())) == Part::Knob)
        setRepeatAction(SliderNoAction);
}
