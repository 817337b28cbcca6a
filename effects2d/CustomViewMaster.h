// What the view of generated effects needs from the controller.
#pragma once

#include "widgets/CanvasMaster.h"

class BaseEffect;

/// In tests, a ten-line fake. Everything is called on the main thread.
class CustomViewMaster : public CanvasMaster {
public:
    /// The effect to show, or null for the plain picture.
    virtual BaseEffect* getCurrentCustomEffect() = 0;
};
