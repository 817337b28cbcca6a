// What the 3D view needs from the controller.
#pragma once

#include "platform/coreimage/CIImage.h"

class BaseEffect;
class QMenu;

/// In tests, a ten-line fake. Everything is called on the main thread.
class OGLViewMaster {
public:
    virtual ~OGLViewMaster() = default;

    /// The effect that draws, or null for the plain picture.
    virtual BaseEffect* getCurrent3DEffect() = 0;
    /// The source picture; null when none is open.
    virtual CIImage backImage() = 0;
    /// The menu for a right click; null for none. The master keeps it.
    virtual QMenu* contextMenu() = 0;
};
