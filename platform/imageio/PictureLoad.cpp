#include "platform/imageio/PictureLoad.h"

#include "platform/imageio/readers/DeferredImage.h"
#include "platform/imageio/readers/Readers.h"

namespace imageio {

OpenPicture openPicture(const PictureInput& input, int maxSide, bool acceptsPart)
{
    OpenPicture picture;
    picture.acceptsPart = acceptsPart;
    picture.source = input.source();
    const FileFormat* format = input.format();
    if (!picture.source || !format)
        return picture;
    if (format->loader)
        picture.image = load(format->loader, picture.source.get());
    else if (format->open)
        format->open(picture, input, maxSide);
    if (picture.image && !format->isUpright)
        picture.orientation = vips_image_get_orientation(picture.image.get());
    picture.isPremultiplied = format->isPremultiplied;
    return picture;
}

void openInner(OpenPicture& picture, const PictureInput& inner, int maxSide)
{
    OpenPicture opened = openPicture(inner, maxSide);
    opened.held = held(picture.source);
    picture = std::move(opened);
}

} // namespace imageio
