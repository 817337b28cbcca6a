// Opens picture files for Exiv2.
#pragma once

#include "platform/imageio/MetadataCopy.h"
#include "platform/imageio/PictureInput.h"

#include <exiv2/exiv2.hpp>

namespace imageio {

/// An owner of an Exiv2::Image, whose kind differs between its versions. Throws for formats that carry no metadata.
inline auto exiv2Image(const PictureInput& input)
{
    prepareExiv2();
    return input.path().empty() ? Exiv2::ImageFactory::open(
               reinterpret_cast<const Exiv2::byte*>(input.memory().data()), static_cast<long>(input.size()))
                                : Exiv2::ImageFactory::open(plainPath(input.path()));
}

} // namespace imageio
