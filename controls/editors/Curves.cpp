// The curves that filters have, as points.
#include "controls/editors/CurveEditor.h"
#include "controls/editors/DisplayLight.h"
#include "controls/editors/FloatData.h"
#include "platform/coreimage/filters/Spline.h"

#include <algorithm>

namespace {

constexpr double kLeastGap = 0.01; // between points that are neighbors
constexpr std::size_t kTablePoints = 5, kTableEntries = 33;

/// The coefficients, from the constant up, of the cubic through four points.
std::vector<double> cubicThrough(const std::vector<CIPoint>& points)
{
    std::vector<double> coefficients(4, 0.0);
    for (std::size_t i = 0; i < 4; ++i) { // Lagrange's sum
        std::vector<double> product{points[i].y};
        for (std::size_t k = 0; k < 4; ++k) {
            if (k == i)
                continue;
            product.insert(product.begin(), 0.0); // times x, less times the other point
            for (std::size_t power = 0; power + 1 < product.size(); ++power)
                product[power] -= product[power + 1] * points[k].x;
            for (double& coefficient : product)
                coefficient /= points[i].x - points[k].x;
        }
        for (std::size_t power = 0; power < 4; ++power)
            coefficients[power] += product[power];
    }
    return coefficients;
}

} // namespace

// --- points that are inputs ---

ToneCurveEditor::ToneCurveEditor(const EditedInput& input, QWidget* parent)
    : CurveEditor(input, keysOf(*input.filter, Role::TonePoint), parent)
{
    build(false);
}

CurveEditor::Points ToneCurveEditor::points(std::size_t) const
{
    Points points;
    for (const std::string& key : m_keys) {
        const CIPoint point = value(key).toVector().point();
        points.emplace_back(point.x, point.y);
    }
    return points;
}

void ToneCurveEditor::setPoints(std::size_t, const Points& points)
{
    const Points former = this->points(0);
    for (std::size_t i = 0; i < points.size(); ++i)
        if (points[i] != former[i])
            setValue(m_keys[i], CIVector{points[i].x(), points[i].y()});
}

QPointF ToneCurveEditor::allowed(const Points& points, std::size_t index, const QPointF& to) const
{
    const double least = index > 0 ? points[index - 1].x() + kLeastGap : 0;
    const double most = index + 1 < points.size() ? points[index + 1].x() - kLeastGap : 1;
    return {std::max(least, std::min(to.x(), most)), to.y()};
}

QPointF ToneCurveEditor::standardPoint(std::size_t index) const
{
    const CIPoint point = m_input.master.standardValueForKey(*m_input.filter, m_keys[index]).toVector().point();
    return {point.x, point.y};
}

// --- tables ---

ToneTableEditor::ToneTableEditor(const EditedInput& input, QWidget* parent)
    : ChannelCurveEditor(input, {input.key}, parent)
{
    build(true);
}

CurveEditor::Points ToneTableEditor::points(std::size_t channel) const
{
    const std::vector<float> table = floatsOf(value(m_input.key).toData());
    const CIVector domain = value("inputCurvesDomain").toVector();
    Points points;
    for (std::size_t i = 0; i < kTablePoints; ++i) {
        const double part = double(i) / (kTablePoints - 1);
        const double x = domain.X() + part * (domain.Y() - domain.X());
        const std::size_t entries = table.size() / 3;
        if (entries < 2) {
            points.emplace_back(x, x);
            continue;
        }
        const double place = part * double(entries - 1);
        const auto left = std::min(std::size_t(place), entries - 2);
        const double rest = place - double(left);
        const float *here = &table[left * 3 + channel], *next = here + 3;
        points.emplace_back(x, double(*here) * (1 - rest) + double(*next) * rest);
    }
    return points;
}

void ToneTableEditor::setPoints(std::size_t channel, const Points& points)
{
    std::vector<float> table(kTableEntries * 3);
    for (std::size_t c = 0; c < 3; ++c) {
        const Points through = c == channel ? points : this->points(c);
        std::vector<CIPoint> knots;
        for (std::size_t i = 0; i < through.size(); ++i)
            knots.push_back({double(i) / (kTablePoints - 1), through[i].y()});
        const ci::Spline curve(knots);
        for (std::size_t i = 0; i < kTableEntries; ++i)
            table[i * 3 + c] = float(curve(double(i) / (kTableEntries - 1)));
    }
    setValue(m_input.key, dataOf(table));
}

// --- polynomials ---

PolynomialEditor::PolynomialEditor(const EditedInput& input, QWidget* parent)
    : ChannelCurveEditor(input, keysOf(*input.filter, Role::Polynomial), parent)
{
    build(true);
}

CurveEditor::Points PolynomialEditor::points(std::size_t channel) const
{
    const CIVector k = value(m_keys[channel]).toVector();
    Points points;
    for (double x : {0.0, 1 / 3.0, 2 / 3.0, 1.0}) {
        const double light = lightFromDisplay(x);
        points.emplace_back(x, displayFromLight(k.X() + light * (k.Y() + light * (k.Z() + light * k.W()))));
    }
    return points;
}

void PolynomialEditor::setPoints(std::size_t channel, const Points& points)
{
    std::vector<CIPoint> inLight;
    for (const QPointF& point : points)
        inLight.push_back({lightFromDisplay(point.x()), lightFromDisplay(point.y())});
    setValue(m_keys[channel], CIVector(cubicThrough(inLight)));
}
