#include "platform/imageio/PictureLoad.h"

#include "platform/imageio/readers/Readers.h"

namespace imageio {

OpenPicture openPicture(const PictureInput& input, int maxSide)
{
    OpenPicture picture;
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

} // namespace imageio
