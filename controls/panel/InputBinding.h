// An input of a filter as the value of a row or an editor.
#pragma once

#include "controls/panel/ParameterMaster.h"
#include "widgets/rows/ValueBinding.h"

/// Each change goes to the master: the value, the name of the undo step, then the wish to see it. The master outlives
/// it.
ValueBinding inputBinding(const std::shared_ptr<CIFilter>& filter, const std::string& key, ParameterMaster& master);
