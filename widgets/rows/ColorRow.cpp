#include "widgets/rows/ColorRow.h"

#include "widgets/ColorWell.h"

#include <algorithm>
#include <utility>

QColor colorOf(const CIColor& color)
{
    const auto part = [](double v) { return float(std::clamp(v, 0.0, 1.0)); };
    return QColor::fromRgbF(part(color.red()), part(color.green()), part(color.blue()), part(color.alpha()));
}

CIColor colorOf(const QColor& color)
{
    const QColor rgb = color.toRgb();
    return {double(rgb.redF()), double(rgb.greenF()), double(rgb.blueF()), double(rgb.alphaF())};
}

ColorRow::ColorRow(QWidget* panel, ValueBinding value)
    : ValueRow(panel, std::move(value))
    , well(new ColorWell(panel))
{
    connect(well, &ColorWell::colorPicked, this, &ColorRow::picked);
    connect(well, &ColorWell::colorTried, this, &ColorRow::tried);
    show();
}

ColorRow::~ColorRow()
{
    if (!m_triedOver.isNothing())
        m_value.preview(m_triedOver);
}

void ColorRow::show() { well->setColor(colorOf(m_value.get().toColor())); }

void ColorRow::picked() { m_value.set(colorOf(well->color())); }

void ColorRow::tried(const QColor& color)
{
    if (m_triedOver.isNothing())
        m_triedOver = m_value.get();
    // The color that was there may be one that a QColor can't hold.
    const bool isOldOne = color == well->color();
    m_value.preview(isOldOne ? std::exchange(m_triedOver, {}) : CIValue(colorOf(color)));
}
