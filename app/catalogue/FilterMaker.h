// Filters as they are when they are chosen.
#pragma once

#include "app/catalogue/DefaultImages.h"
#include "platform/coreimage/CIFilter.h"

#include <memory>
#include <string>

/// Gives new filters the values that make each of them show something at once.
class FilterMaker {
public:
    /// With the picture in all its image inputs. `view`: what is seen, in picture pixels. Null for an unknown name.
    std::shared_ptr<CIFilter> newFilter(const std::string& name, const CIImage& picture, const CIRect& view);
    /// Overrides what some filters start with.
    void setAutomaticDefaults(CIFilter& filter, const CIRect& view);

    bool startsFitted = false; // new filters have values that fit the picture
    CIImage secondPicture; // of new filters that blend pictures, if there is one

    DefaultImage texture{"smoothtexture"}, shadingemap{"lightball"}, alphaemap{"restrictedshine"}, ramp{"colormap"},
        mask{"mask"};
};
