#include "controls/editors/ColorLooks.h"

#include <QtGlobal>

#include <algorithm>

namespace {

double luma(const ColorTriple& c) { return 0.2126 * c[0] + 0.7152 * c[1] + 0.0722 * c[2]; }

double mixed(double a, double b, double part) { return a + (b - a) * part; }

/// Steeper in the middle, level at the ends; `amount` from 0 to 1.
double contrasted(double value, double amount)
{
    const double v = std::clamp(value, 0.0, 1.0);
    return mixed(value, v * v * (3 - 2 * v), amount);
}

/// Away from its grey, by a factor.
ColorTriple saturated(const ColorTriple& color, double factor)
{
    const double grey = luma(color);
    return {mixed(grey, color[0], factor), mixed(grey, color[1], factor), mixed(grey, color[2], factor)};
}

ColorTriple unchanged(const ColorTriple& color) { return color; }

/// Golden lights, brown shadows.
ColorTriple golden(const ColorTriple& color)
{
    const ColorTriple c = saturated(color, 0.92);
    return {contrasted(0.03 + 0.99 * c[0], 0.35), contrasted(0.015 + 0.955 * c[1], 0.35),
        contrasted(0.02 + 0.80 * c[2], 0.35)};
}

/// Shadows towards teal, lights towards orange: skin stands out.
ColorTriple tealAndOrange(const ColorTriple& color)
{
    const double light = contrasted(luma(color), 1);
    const ColorTriple c = saturated(color, 1.1);
    return {contrasted(c[0] + mixed(-0.09, 0.07, light), 0.3), contrasted(c[1] + mixed(0.015, 0.01, light), 0.3),
        contrasted(c[2] + mixed(0.07, -0.09, light), 0.3)};
}

/// Lifted blacks and dull whites, as of a print that hung in the sun.
ColorTriple faded(const ColorTriple& color)
{
    const ColorTriple c = saturated(color, 0.72);
    return {0.12 + 0.82 * c[0], 0.11 + 0.80 * c[1], 0.15 + 0.70 * c[2]};
}

/// The blue hour.
ColorTriple dusk(const ColorTriple& color)
{
    const ColorTriple c = saturated(color, 0.85);
    return {contrasted(0.84 * c[0], 0.25), contrasted(0.01 + 0.91 * c[1], 0.25), contrasted(0.07 + 0.95 * c[2], 0.25)};
}

/// Hard black and white in which blue skies are dark.
ColorTriple noir(const ColorTriple& color)
{
    const double grey = contrasted(contrasted(0.5 * color[0] + 0.42 * color[1] + 0.08 * color[2], 1), 0.5);
    return {grey, grey, grey};
}

const ColorLook kLooks[] = {
    {QT_TRANSLATE_NOOP("ColorLook", "None"), unchanged},
    {QT_TRANSLATE_NOOP("ColorLook", "Golden"), golden},
    {QT_TRANSLATE_NOOP("ColorLook", "Teal, orange"), tealAndOrange},
    {QT_TRANSLATE_NOOP("ColorLook", "Faded"), faded},
    {QT_TRANSLATE_NOOP("ColorLook", "Dusk"), dusk},
    {QT_TRANSLATE_NOOP("ColorLook", "Noir"), noir},
};

} // namespace

std::span<const ColorLook> colorLooks() { return kLooks; }
