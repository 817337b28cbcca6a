#include "effects2d/EffectMaster.h"

namespace {

EffectMaster* theMaster = nullptr;

} // namespace

EffectMaster::~EffectMaster()
{
    if (theMaster == this)
        theMaster = nullptr;
}

EffectMaster* EffectMaster::mainController() { return theMaster; }

void EffectMaster::setMainController(EffectMaster* master) { theMaster = master; }
