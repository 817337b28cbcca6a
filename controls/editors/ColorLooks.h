// Tables of colors of our own: pure parts.
#pragma once

#include "controls/editors/ColorTable.h"

#include <span>

struct ColorLook {
    const char* name; // in English, context "ColorLook"
    ColorTriple (*rule)(const ColorTriple& color); // display values
};
/// The first changes nothing.
std::span<const ColorLook> colorLooks();
