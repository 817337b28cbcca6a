// What the Hilbert lines, the patch works and the plasma share.
#pragma once

#include "effects2d/GeneratedEffect.h"

/// Has a level and a line width. Only the Hilbert lines draw with them; the others keep and copy them.
class LeveledEffect : public GeneratedEffect {
public:
    void read(const CIDictionary& dictionary) override;
    CIDictionary save() const override;

    void setLineWidth(double width) { m_lineWidth = width; }
    void setLinesLevel(int level) { m_level = level; }

    int level() const { return m_level; }
    double lineWidth() const { return m_lineWidth; }

    void changeLinesLevel(EffectControl* sender);
    void setchangeLinesLevelSender(int level, EffectControl* sender);
    void changeLineWidth(EffectControl* sender);
    void setchangeLineWidthSender(double width, EffectControl* sender);

protected:
    void awakeWithOpacity(float percent); // the other defaults are the same for all
    void copyParametersTo(LeveledEffect& copy) const;

    int m_level = 0;
    double m_lineWidth = 0; // canvas units
};
