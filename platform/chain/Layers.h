// What a filter lays onto the picture: second pictures, and what text and barcode generators draw.
#pragma once

#include "platform/coreimage/CIFilter.h"
#include "platform/coreimage/CIImage.h"

#include <optional>
#include <string>
#include <vector>

/// How a second picture is brought onto the picture.
enum class Placing {
    Own, // in its own size, its lower left corner at the picture's origin
    Fit, // as large as it is seen whole
    Fill, // as small as it covers all
    Stretch,
    Tile, // repeated from where it is placed
    Free, // where it is placed
};

// Notes that a filter keeps beside its inputs; no formula sees them.
inline const std::string kLayerAmountKey = "layerAmount"; // 0 shows the picture, 1 the result
inline const std::string kLayerColorKey = "layerColor"; // of text that has no color of its own
inline const std::string kGeneratedLayer = "output"; // stands for an input's key
std::string placingKey(const std::string& inputKey); // the number of a Placing
std::string placeKey(const std::string& inputKey); // a LayerPlace as a vector

/// Those that have a value.
std::vector<std::string> noteKeys(const CIFilter& filter);
/// True for inputs and notes.
bool takesKey(const CIFilter& filter, const std::string& key);

/// Where a layer that can be moved lies.
struct LayerPlace {
    CIPoint center; // picture pixels
    double scale = 1; // picture pixels per pixel of the layer

    LayerPlace(CIPoint c, double s)
        : center(c)
        , scale(s)
    {
    }
    explicit LayerPlace(const CIVector& v)
        : center(v.point())
        , scale(v.Z())
    {
    }
    CIVector vector() const { return {center.x, center.y, scale}; }
};

/// A layer that can be moved and scaled.
struct FreeLayer {
    std::string placeKey;
    CIPoint size; // at a scale of 1
    LayerPlace place;
    bool isWhole; // scales above 1 are whole: each pixel becomes a square

    CIRect frame() const;
};

/// True for text and barcode generators.
bool drawsLayer(const CIFilter& filter);
/// True for filters that put a second picture and the picture together pixel by pixel.
bool blendsPictures(const CIFilter& filter);
/// True if the result can be mixed with the picture, and the filter has no input for that.
bool hasLayerAmount(const CIFilter& filter);
/// The image inputs whose pictures can be placed.
std::vector<std::string> placedInputs(const CIFilter& filter);
/// The input that a second picture is for; nothing for filters that want none.
std::optional<std::string> secondPictureKey(const CIFilter& filter);

/// True if there is something that can be moved, or will be as soon as it is written.
bool hasFreeLayers(const CIFilter& filter);
/// Those that can be moved as the filter is now.
std::vector<FreeLayer> freeLayers(const CIFilter& filter, const CIRect& picture);
/// In the middle, as large as it is seen whole.
LayerPlace fittedPlace(CIPoint size, const CIRect& picture);
/// Gives what a generator draws a place on the picture where it is well seen.
void fitLayers(CIFilter& filter, const CIRect& picture);

/// The filter's output with all layers in their places.
CIImage layeredOutput(const CIFilter& filter, const CIRect& picture);
/// The result as far as the filter's amount says.
CIImage mixedByAmount(const CIFilter& filter, const CIImage& result, const CIImage& picture);
