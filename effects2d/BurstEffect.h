// What the line burst and the flare share.
#pragma once

#include "effects2d/AnchoredEffect.h"

/// Rays from the anchor, drawn on a reduced canvas that is enlarged to the picture's size: soft on large pictures.
class BurstEffect : public AnchoredEffect {
public:
    void setMZoom(float zoom) { m_imageZoom = zoom; }
    void setLineWidth(double width) { m_lineWidth = width; }
    void setLinesCount(int count) { m_linesCount = count; }

    float imageZoom() const { return m_imageZoom; }

    void changeLinesCount(EffectControl* sender) { change(&m_linesCount, sender); }
    void setchangeLinesCountSender(int count, EffectControl* sender) { restore(&m_linesCount, count, sender); }
    void changeLineWidth(EffectControl* sender) { change(&m_lineWidth, sender); }
    void setchangeLineWidthSender(double width, EffectControl* sender) { restore(&m_lineWidth, width, sender); }

protected:
    /// The scale of the canvas, which copies take along.
    static EffectParameter drawingScale()
    {
        return {"imageZoom", &BurstEffect::m_imageZoom, {}, {.start = 1, .storage = ParameterFacts::NotStored}};
    }
    /// Draws on a canvas whose shorter side has at most `limit` pixels. Its scale stays in `m_imageZoom`, also for
    /// pictures that come later and are no larger than the limit.
    void makeReducedImageEffect(float limit);

    int m_linesCount = 0;
    double m_lineWidth = 0; // pixels of the reduced canvas
    float m_imageZoom = 0; // pixels of the reduced canvas per picture pixel
};
