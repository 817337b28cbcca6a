#include "effects2d/LeveledEffect.h"

void LeveledEffect::awakeWithOpacity(float percent)
{
    m_useBackImage = true;
    m_bgColor = CIColor(1, 1, 1, 0.5);
    m_opacity = percent;
    m_level = 7;
    m_lineWidth = 7.5;
}

void LeveledEffect::copyParametersTo(LeveledEffect& copy) const
{
    copy.setUseBackImage(m_useBackImage);
    copy.setBgColor(m_bgColor);
    copy.seOpacity(m_opacity);
    copy.setLinesLevel(m_level);
    copy.setLineWidth(m_lineWidth);
}

void LeveledEffect::read(const CIDictionary& dictionary)
{
    GeneratedEffect::read(dictionary);
    readParameter(dictionary, "level", m_level);
    readParameter(dictionary, "lineWidth", m_lineWidth);
}

CIDictionary LeveledEffect::save() const
{
    CIDictionary dictionary = GeneratedEffect::save();
    dictionary["level"] = m_level;
    dictionary["lineWidth"] = m_lineWidth;
    return dictionary;
}

void LeveledEffect::changeLinesLevel(EffectControl* sender)
{
    changeParameter(&LeveledEffect::m_level, &LeveledEffect::setchangeLinesLevelSender, sender, Redraw::Layer);
}

void LeveledEffect::setchangeLinesLevelSender(int level, EffectControl* sender)
{
    restoreParameter(&LeveledEffect::m_level, level, &LeveledEffect::setchangeLinesLevelSender, sender, Redraw::Layer);
}

void LeveledEffect::changeLineWidth(EffectControl* sender)
{
    changeParameter(&LeveledEffect::m_lineWidth, &LeveledEffect::setchangeLineWidthSender, sender, Redraw::Layer);
}

void LeveledEffect::setchangeLineWidthSender(double width, EffectControl* sender)
{
    restoreParameter(
        &LeveledEffect::m_lineWidth, width, &LeveledEffect::setchangeLineWidthSender, sender, Redraw::Layer);
}
