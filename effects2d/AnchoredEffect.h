// Effects with an anchor that is placed with the mouse.
#pragma once

#include "effects2d/GeneratedEffect.h"

/// The anchor follows the mouse while it is dragged. A press and drag leaves two undo steps: back to where the drag
/// ended, and back to where it began. A click leaves one and moves nothing.
class AnchoredEffect : public GeneratedEffect {
public:
    bool isMousing() const override { return true; }
    std::shared_ptr<BaseEffect> mycopy() const override;
    void mouseDown(CIPoint point) override;
    void mouseDragged(CIPoint point) override;
    void mouseUp(CIPoint point) override;
    /// The undo target of the anchor.
    void setPositionUNDO(CIPoint point);

    void setStartPoint(CIPoint point) { m_startPT = point; }

protected:
    /// Puts an anchor that isn't placed yet into the middle of what is drawn on.
    void placeAnchor(const QRectF& rect);

    bool m_mouseMoved = false; // the button is down

private:
    void registerPosition();
    void moveAnchor(CIPoint point);

    bool m_dragged = false; // the mouse has moved since
};
