// Small owners for libvips objects, for use inside this folder.
#pragma once

#include <memory>
#include <string>

#include <vips/vips.h>

namespace imageio {

struct ObjectUnref {
    void operator()(void* object) const { g_object_unref(object); }
};
using VipsImagePtr = std::unique_ptr<VipsImage, ObjectUnref>;
using VipsSourcePtr = std::unique_ptr<VipsSource, ObjectUnref>;

/// Starts libvips once, and gives back what it keeps for the calling thread when that thread ends.
/// Throws std::runtime_error when the library can't start.
void useVips();

/// Takes the pending error text of libvips as one line.
std::string takeVipsError();

/// Runs an operation that answers a new image in its last argument: `derive([&](VipsImage** out) { … })`.
/// Null when the operation fails.
template <class Operation>
VipsImagePtr derive(Operation operation)
{
    VipsImage* out = nullptr;
    if (operation(&out) != 0)
        return nullptr;
    return VipsImagePtr(out);
}

} // namespace imageio
