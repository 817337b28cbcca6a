#include "files/PlainPicture.h"

#include "platform/coreimage/CIContext.h"

CIBitmap plainBitmap(const CIBitmap& picture)
{
    if (picture.format() == CIFormat::RGBA8 && picture.alpha() != CIAlpha::Premultiplied
        && picture.colorSpace() == CIColorSpace::SRGB)
        return picture;
    const CIImage image = CIImage::fromBitmap(picture);
    CIBitmap plain = CIContext().render(image, image.extent());
    if (picture.alpha() == CIAlpha::Opaque)
        plain.setOpaque();
    return plain;
}

QImage pictureOver(const CIBitmap& plain)
{
    const bool opaque = plain.alpha() == CIAlpha::Opaque;
    return {reinterpret_cast<const uchar*>(plain.row(0)), plain.width(), plain.height(), qsizetype(plain.bytesPerRow()),
        opaque ? QImage::Format_RGBX8888 : QImage::Format_RGBA8888};
}

QImage screenPicture(const CIBitmap& picture)
{
    if (picture.isNull())
        return {};
    const CIBitmap plain = plainBitmap(picture);
    return plain.isNull() ? QImage() : pictureOver(plain).copy();
}
