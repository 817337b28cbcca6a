// What the Hilbert lines, the patch works and the plasma share.
#pragma once

#include "effects2d/GeneratedEffect.h"

/// Has a level and a line width. Only the Hilbert lines draw with them; the others keep and copy them.
class LeveledEffect : public GeneratedEffect {
public:
    void setLineWidth(double width) { m_lineWidth = width; }
    void setLinesLevel(int level) { m_level = level; }

    void changeLinesLevel(EffectControl* sender) { change(&m_level, sender); }
    void setchangeLinesLevelSender(int level, EffectControl* sender) { restore(&m_level, level, sender); }
    void changeLineWidth(EffectControl* sender) { change(&m_lineWidth, sender); }
    void setchangeLineWidthSender(double width, EffectControl* sender) { restore(&m_lineWidth, width, sender); }

protected:
    int m_level = 0;
    double m_lineWidth = 0; // canvas units
};
