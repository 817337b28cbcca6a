#include "effects2d/AnchoredEffect.h"

#include "effects2d/EffectPanel.h"

std::shared_ptr<BaseEffect> AnchoredEffect::mycopy() const
{
    const auto copy = std::static_pointer_cast<AnchoredEffect>(GeneratedEffect::mycopy());
    copy->setStartPoint(m_startPT);
    return copy;
}

void AnchoredEffect::registerPosition()
{
    registerUndo(EffectPanel::tr("Move Anchor"), &AnchoredEffect::setPositionUNDO, m_startPT);
}

void AnchoredEffect::moveAnchor(CIPoint point)
{
    m_startPT = point;
    makeImageEffect();
    post();
}

void AnchoredEffect::setPositionUNDO(CIPoint point)
{
    registerPosition();
    moveAnchor(point);
}

void AnchoredEffect::mouseDown(CIPoint)
{
    registerPosition();
    m_mouseMoved = true;
    m_dragged = false;
}

void AnchoredEffect::mouseDragged(CIPoint point)
{
    if (!m_mouseMoved)
        return;
    m_dragged = true;
    moveAnchor(point);
}

void AnchoredEffect::mouseUp(CIPoint point)
{
    if (m_mouseMoved && m_dragged) {
        registerPosition();
        moveAnchor(point);
    }
    m_mouseMoved = m_dragged = false;
}

void AnchoredEffect::placeAnchor(const QRectF& rect)
{
    if (m_startPT.x < -10000.0 || m_startPT.y < -10000.0)
        m_startPT = {rect.width() / 2, rect.height() / 2};
}
