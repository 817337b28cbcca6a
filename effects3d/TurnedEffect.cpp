#include "effects3d/TurnedEffect.h"

#include "effects2d/EffectMaster.h"
#include "effects3d/OpenGL.h"
#include "effects3d/PictureTexture.h"

namespace {

/// The height of view with which mouse positions are turned over, whatever the height is.
constexpr double kTurnedOverHeight = 544; // points

CIPoint turnedOver(CIPoint point) { return {point.x, kTurnedOverHeight - point.y}; }

} // namespace

TurnedEffect::~TurnedEffect() = default;

void TurnedEffect::clearEffect()
{
    clearTopControlsView();
    clearFilter();
}

void TurnedEffect::clearFilter()
{
    m_picture.reset();
    m_texture = 0;
}

void TurnedEffect::loadPicture()
{
    EffectMaster* master = EffectMaster::mainController();
    const std::shared_ptr<PictureTexture> picture = PictureTexture::of(master ? master->backImage() : CIImage());
    if (!picture) {
        clearFilter();
        return;
    }
    m_picture = picture;
    m_texture = picture->name();
}

EffectParameter TurnedEffect::background()
{
    return {"backgroundColor", &TurnedEffect::m_backgroundColor,
        {QT_TRANSLATE_NOOP("EffectPanel", "Background Color:"),
            QT_TRANSLATE_NOOP("EffectPanel", "What is seen around it; transparent when the color is")},
        {.start = CIColor(1, 1, 1, 0)}};
}

EffectParameter TurnedEffect::sizeToApply()
{
    return {"appliedSize", &TurnedEffect::m_appliedSize,
        {QT_TRANSLATE_NOOP("EffectPanel", "Apply in size of:"),
            QT_TRANSLATE_NOOP("EffectPanel", "How large the picture is that Apply makes")},
        {.start = OfWindow,
            .titles = {QT_TRANSLATE_NOOP("EffectPanel", "Window"), QT_TRANSLATE_NOOP("EffectPanel", "Picture")},
            .storage = ParameterFacts::NotStored}};
}

void TurnedEffect::clearFrame() const
{
    const float alpha = float(m_backgroundColor.alpha()); // the frame is premultiplied
    glClearColor(float(m_backgroundColor.red()) * alpha, float(m_backgroundColor.green()) * alpha,
        float(m_backgroundColor.blue()) * alpha, alpha);
    glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
}

void TurnedEffect::mouseDown(CIPoint point)
{
    registerUndo(tr("Rotate"), &TurnedEffect::setPositionUNDO, rotation()[0], rotation()[1]);
    m_last = turnedOver(point);
    gTrackball = true;
}

void TurnedEffect::mouseDragged(CIPoint point)
{
    if (!gTrackball)
        return;
    const CIPoint now = turnedOver(point);
    rotation()[0] += float(now.x - m_last.x);
    rotation()[1] += float(now.y - m_last.y);
    m_last = now;
}

void TurnedEffect::mouseUp(CIPoint) { gTrackball = false; }

void TurnedEffect::setPositionUNDO(float aboutVertical, float aboutHorizontal)
{
    registerUndo(tr("Rotate"), &TurnedEffect::setPositionUNDO, rotation()[0], rotation()[1]);
    rotation()[0] = aboutVertical;
    rotation()[1] = aboutHorizontal;
    post();
}
