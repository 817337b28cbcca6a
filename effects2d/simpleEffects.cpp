#include "effects2d/simpleEffects.h"

#include "effects2d/EffectPanel.h"

void simpleEffects::awakeFromNib()
{
    setName(QT_TRANSLATE_NOOP("BaseEffect", "Simple Objects"));
    setTips(QT_TRANSLATE_NOOP("BaseEffect", "Simple Objects Generator"));
    m_drawObj = 0;
    m_useBackImage = true;
    m_bgColor = CIColor(1, 1, 1, 0.5);
    m_opacity = 50;
    m_object_count = 30;
}

std::shared_ptr<BaseEffect> simpleEffects::mycopy() const
{
    const auto copy = std::static_pointer_cast<simpleEffects>(copyWithZone());
    copy->setObjectMode(m_drawObj);
    copy->setUseBackImage(m_useBackImage);
    copy->setBgColor(m_bgColor);
    copy->seOpacity(m_opacity);
    copy->seObjectCount(m_object_count);
    return copy;
}

void simpleEffects::read(const CIDictionary& dictionary)
{
    GeneratedEffect::read(dictionary);
    readParameter(dictionary, "drawObj", m_drawObj);
    readParameter(dictionary, "object_count", m_object_count);
}

CIDictionary simpleEffects::save() const
{
    CIDictionary dictionary = GeneratedEffect::save();
    dictionary["drawObj"] = m_drawObj;
    dictionary["object_count"] = m_object_count;
    return dictionary;
}

void simpleEffects::buildControls(EffectPanel& panel)
{
    panel.addPopUp({EffectPanel::tr("Object type:"), EffectPanel::tr("What is drawn")},
        {EffectPanel::tr("Rects"), EffectPanel::tr("Circles"), EffectPanel::tr("Bezier Paths"),
            EffectPanel::tr("Triangles"), EffectPanel::tr("Flowers"), EffectPanel::tr("Balls"),
            EffectPanel::tr("Lights"), EffectPanel::tr("Spin Squares")},
        m_drawObj, action(&simpleEffects::changeObjectType));
    addCommonControls(panel, EffectPanel::tr("Objects opacity:"));
    panel.addSlider({EffectPanel::tr("Objects count:"), EffectPanel::tr("How many objects are drawn")},
        {.min = 10, .max = 200, .continuous = false}, m_object_count, action(&simpleEffects::changeObjectCount));
    addGenerateButton(panel);
}

void simpleEffects::changeObjectType(EffectControl* sender)
{
    changeParameter(&simpleEffects::m_drawObj, &simpleEffects::setObjectTypeSender, sender, Redraw::Layer);
}

void simpleEffects::setObjectTypeSender(int kind, EffectControl* sender)
{
    restoreParameter(&simpleEffects::m_drawObj, kind, &simpleEffects::setObjectTypeSender, sender, Redraw::Layer);
}

void simpleEffects::changeBgColor(EffectControl* sender)
{
    changeParameter(&simpleEffects::m_bgColor, &simpleEffects::setBgColorSender, sender, Redraw::Composite);
}

void simpleEffects::setBgColorSender(CIColor color, EffectControl* sender)
{
    // The other views' notification: the restored color shows when this one is next drawn.
    restoreParameter(&simpleEffects::m_bgColor, color, &simpleEffects::setBgColorSender, sender, Redraw::Composite,
        "UpdateOpenGLView");
}

void simpleEffects::useBgImage(EffectControl* sender)
{
    changeParameter(&simpleEffects::m_useBackImage, &simpleEffects::setUseBgImageSender, sender, Redraw::Composite);
}

void simpleEffects::setUseBgImageSender(bool use, EffectControl* sender)
{
    restoreParameter(
        &simpleEffects::m_useBackImage, use, &simpleEffects::setUseBgImageSender, sender, Redraw::Composite);
}

void simpleEffects::changeOpacity(EffectControl* sender)
{
    changeParameter(&simpleEffects::m_opacity, &simpleEffects::setChangOpacitySender, sender, Redraw::Composite);
}

void simpleEffects::setChangOpacitySender(float percent, EffectControl* sender)
{
    restoreParameter(
        &simpleEffects::m_opacity, percent, &simpleEffects::setChangOpacitySender, sender, Redraw::Composite);
}

void simpleEffects::changeObjectCount(EffectControl* sender)
{
    changeParameter(&simpleEffects::m_object_count, &simpleEffects::setChangObjCountSender, sender, Redraw::Layer);
}

void simpleEffects::setChangObjCountSender(int count, EffectControl* sender)
{
    restoreParameter(
        &simpleEffects::m_object_count, count, &simpleEffects::setChangObjCountSender, sender, Redraw::Layer);
}
