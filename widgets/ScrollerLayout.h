// Where the parts of a scroller lie.
#pragma once

#include <algorithm>

/// Along a scroller, in points from its top or left end: an arrow, the slot with the knob, an arrow.
struct ScrollerLayout {
    double length = 0; // of the scroller
    double arrow = 12; // length of an arrow; a scroller too short for two of them and a knob has none
    double minKnob = 28;
    double proportion = 1; // of the document that is visible
    double position = 0; // 0 to 1

    double arrowLength() const { return length >= 2 * arrow + minKnob ? arrow : 0; }
    double slotLength() const { return std::max(0.0, length - 2 * arrowLength()); }
    double knobLength() const { return std::min(slotLength(), std::max(minKnob, slotLength() * proportion)); }
    double knobStart() const { return arrowLength() + (slotLength() - knobLength()) * position; }
    /// The position at which the knob begins at `start`.
    double positionOf(double start) const
    {
        const double room = slotLength() - knobLength();
        return room > 0 ? std::clamp((start - arrowLength()) / room, 0.0, 1.0) : 0;
    }
};
