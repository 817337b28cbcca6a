// What generated effects need from the controller.
#pragma once

#include "platform/coreimage/CIImage.h"

class UndoManager;

/// In tests, a ten-line fake. Everything is called on the main thread.
class EffectMaster {
public:
    EffectMaster() = default;
    virtual ~EffectMaster();
    EffectMaster(const EffectMaster&) = delete;
    EffectMaster& operator=(const EffectMaster&) = delete;

    /// The one that effects ask; null before the program's start and in tests without one.
    static EffectMaster* mainController();
    /// Forgotten when the master goes away.
    static void setMainController(EffectMaster* master);

    /// The source picture; null when none is open.
    virtual CIImage backImage() = 0;
    /// Null when changes can't be undone.
    virtual UndoManager* undoManager() = 0;
};
