// How text becomes pixels. The engine has no fonts of its own; who uses it lends it some.
#pragma once

#include "platform/coreimage/CIBitmap.h"
#include "platform/coreimage/CIVector.h"

#include <memory>
#include <string>
#include <vector>

/// A stretch of text in one style.
struct CITextRun {
    std::string text; // UTF-8; line feeds end lines
    std::string fontName; // of a family or a face; an unknown one gives a similar font
    double fontSize = 12; // points, one picture pixel each before scaling
    CIColor color{0, 0, 0, 1};
};

struct CIText {
    std::vector<CITextRun> runs;
    double scale = 1; // picture pixels per point
    int padding = 0; // picture pixels on each side of the laid out text
};

/// Lays out text and paints it on transparent ground.
class CITextRenderer {
public:
    virtual ~CITextRenderer() = default;
    /// As wide as the widest line and as high as the lines of the fonts, with the padding around. A null bitmap when
    /// there is nothing to see. May be called from several threads at once.
    virtual CIBitmap render(const CIText&) const = 0;

    /// The one that the text generators use from now on; null for none, then they make no image.
    static void install(std::shared_ptr<const CITextRenderer>);
    static std::shared_ptr<const CITextRenderer> installed();
};
