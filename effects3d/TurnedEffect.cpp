#include "effects3d/TurnedEffect.h"

#include "effects2d/EffectMaster.h"
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
