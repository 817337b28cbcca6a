#include "controls/picture/HistogramView.h"

#include "platform/foundation/Appearance.h"

#include <algorithm>
#include <cmath>

#include <QPainter>
#include <QPainterPath>

namespace {

constexpr int kPause = 50; // ms
constexpr int kCurveHeight = 72; // points
constexpr int kMargin = 8;

using Curve = std::array<double, 256>;

/// Without the noise of a sample; roots, so that a peak leaves something to see of the rest.
Curve curveOf(const Histogram::Levels& levels)
{
    Curve curve{};
    for (std::size_t i = 0; i < curve.size(); ++i) {
        const double left = levels[i > 0 ? i - 1 : i], right = levels[i < 255 ? i + 1 : i];
        curve[i] = std::sqrt((left + 2.0 * levels[i] + right) / 4);
    }
    return curve;
}

QPolygonF pointsOf(const Curve& curve, const QRectF& place, double top)
{
    QPolygonF points;
    points.reserve(128);
    for (std::size_t i = 0; i < curve.size(); i += 2) { // half a level is less than a point
        const double value = std::max(curve[i], curve[i + 1]);
        points << QPointF(place.left() + place.width() * double(i) / 254,
            place.bottom() - place.height() * std::min(value / top, 1.0));
    }
    return points;
}

void fillBelow(QPainter& painter, QPolygonF points, const QRectF& place, QColor color)
{
    points << place.bottomRight() << place.bottomLeft();
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    painter.drawPolygon(points);
}

QColor faint(QColor color, double alpha)
{
    color.setAlphaF(float(alpha));
    return color;
}

/// The highest but for the ends: clipped ones may be cut.
double topOf(const Curve& curve) { return std::max(1.0, *std::max_element(curve.begin() + 1, curve.end() - 1)); }

} // namespace

std::array<QColor, 3> channelColors()
{
    if (Appearance::shared().isDark())
        return {QColor(240, 98, 98), QColor(84, 190, 106), QColor(104, 152, 255)};
    return {QColor(200, 48, 48), QColor(28, 128, 56), QColor(44, 92, 214)};
}

void drawLevels(QPainter& painter, const Histogram::Levels& levels, const QRectF& place, const QColor& color)
{
    const Curve curve = curveOf(levels);
    fillBelow(painter, pointsOf(curve, place, topOf(curve)), place, faint(color, 0.3));
}

HistogramView::HistogramView(QWidget* parent)
    : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setAccessibleName(tr("Histogram"));
    m_pause.setSingleShot(true);
    m_pause.setInterval(kPause);
    connect(&m_pause, &QTimer::timeout, this, &HistogramView::count);
    connect(&Appearance::shared(), &Appearance::changed, this, qOverload<>(&QWidget::update));
    describe();
}

void HistogramView::setSource(std::function<QImage()> source)
{
    m_source = std::move(source);
    sourceChanged();
}

void HistogramView::sourceChanged()
{
    if (isVisible() && !m_pause.isActive())
        m_pause.start();
}

void HistogramView::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    sourceChanged();
}

void HistogramView::count()
{
    const Histogram fresh = m_source ? histogramOf(m_source()) : Histogram();
    if (fresh == std::exchange(m_histogram, fresh))
        return;
    describe();
    update();
}

/// In words, for those who don't see the curves.
void HistogramView::describe()
{
    const auto percent = [](double share) { return std::lround(share * 100); };
    const QString text = m_histogram.pixels == 0 ? tr("There is no picture.")
                                                 : tr("Mean brightness %1 %, black %2 %, white %3 %")
                                                       .arg(percent(m_histogram.meanLuma()))
                                                       .arg(percent(m_histogram.share(0)))
                                                       .arg(percent(m_histogram.share(255)));
    setAccessibleDescription(text);
    setToolTip(tr("How often each brightness is seen, from black to white.\n%1").arg(text));
}

QSize HistogramView::sizeHint() const { return {200, kMargin + kCurveHeight + 4 + fontMetrics().height() + kMargin}; }

void HistogramView::paintEvent(QPaintEvent*)
{
    const Look& look = Appearance::shared().look();
    QPainter painter(this);
    const int legend = fontMetrics().height();
    const QRectF frame = QRectF(rect()).adjusted(16, kMargin, -16, -kMargin - legend - 4);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(look.border, 1));
    painter.setBrush(look.field);
    painter.drawRoundedRect(frame.adjusted(0.5, 0.5, -0.5, -0.5), 4, 4);
    const QRectF place = frame.adjusted(2, 4, -2, -1);
    painter.setPen(look.separator);
    for (int quarter = 1; quarter < 4; ++quarter) {
        const double x = std::floor(place.left() + place.width() * quarter / 4) + 0.5;
        painter.drawLine(QPointF(x, place.top()), QPointF(x, place.bottom()));
    }

    const std::array<QColor, 3> colors = channelColors();
    const struct {
        const Histogram::Levels& levels;
        QString name;
        QColor color;
    } channels[] = {
        {m_histogram.luma, tr("Luma"), look.secondaryText},
        {m_histogram.red, tr("Red"), colors[0]},
        {m_histogram.green, tr("Green"), colors[1]},
        {m_histogram.blue, tr("Blue"), colors[2]},
    };
    std::array<Curve, 4> curves;
    double top = 1;
    for (std::size_t i = 0; i < curves.size(); ++i) {
        curves[i] = curveOf(channels[i].levels);
        top = std::max(top, topOf(curves[i]));
    }
    painter.save();
    painter.setClipRect(place);
    for (std::size_t i = 0; i < curves.size() && m_histogram.pixels > 0; ++i) {
        const QPolygonF points = pointsOf(curves[i], place, top);
        fillBelow(painter, points, place, faint(channels[i].color, i == 0 ? 0.3 : 0.12));
        if (i == 0)
            continue; // an area; the colors are lines upon it
        painter.setPen(QPen(channels[i].color, 1));
        painter.drawPolyline(points);
    }
    painter.restore();

    // Never color alone
    double x = frame.left();
    for (const auto& channel : channels) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(channel.color);
        painter.drawEllipse(QPointF(x + 4, frame.bottom() + 4 + legend / 2.0), 3, 3);
        painter.setPen(look.secondaryText);
        painter.drawText(QPointF(x + 11, frame.bottom() + 4 + fontMetrics().ascent()), channel.name);
        x += 11 + fontMetrics().horizontalAdvance(channel.name) + 12;
    }
}
