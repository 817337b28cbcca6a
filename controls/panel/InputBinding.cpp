#include "controls/panel/InputBinding.h"

ValueBinding inputBinding(const std::shared_ptr<CIFilter>& filter, const std::string& key, ParameterMaster& master)
{
    return {.get = [=] { return filter->valueForKey(key); },
        .set =
            [=, &master](const CIValue& value) {
                master.setFilterValueForKey(*filter, value, key);
                master.setActionNameForFilterKey(*filter, key);
                master.updateView();
            },
        .standard = [=, &master] { return master.standardValueForKey(*filter, key); },
        .begin = [&master] { master.beginChange(); },
        .end = [&master] { master.endChange(); },
        .preview = [=](const CIValue& value) { filter->setValueForKey(value, key); }};
}
