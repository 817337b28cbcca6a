// The fonts that Qt finds, for the engine's text generators.
#pragma once

#include "platform/coreimage/CITextRenderer.h"

/// Needs a QGuiApplication, which may be one without a display. Text and padding together take at most 64 megapixels;
/// longer text makes no image.
class TextRenderer : public CITextRenderer {
public:
    CIBitmap render(const CIText& text) const override;
};
