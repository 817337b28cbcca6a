#include "platform/coreimage/CIImage.h"

#include "platform/coreimage/graph/Affine.h"
#include "platform/coreimage/graph/Basics.h"
#include "platform/coreimage/graph/BitmapNode.h"

#include <cmath>

CIImage CIImage::fromBitmap(const CIBitmap& bitmap)
{
    return bitmap.isNull() ? CIImage() : CIImage(std::make_shared<ci::BitmapNode>(bitmap));
}

CIImage CIImage::fromColor(const CIColor& c)
{
    const ci::Pixel<float> straight{ci::linearFromSRGB(float(c.red())), ci::linearFromSRGB(float(c.green())),
        ci::linearFromSRGB(float(c.blue())), float(c.alpha())};
    return CIImage(ci::constantNode(ci::premultiplied(straight)));
}

CIRect CIImage::extent() const { return m_node ? m_node->extent() : CIRect(); }

CIImage CIImage::cropped(const CIRect& rect) const { return m_node ? CIImage(ci::cropNode(m_node, rect)) : *this; }

CIImage CIImage::transformed(const CIAffineTransform& t) const
{
    if (!m_node || t.isIdentity())
        return *this;
    if (t.isTranslation())
        return CIImage(ci::shiftNode(m_node, t.tx, t.ty));
    return ci::affine(*this, t);
}

CIImage CIImage::clampedToExtent() const { return m_node ? CIImage(ci::clampNode(m_node)) : *this; }

CIImage CIImage::compositedOver(const CIImage& background) const
{
    if (!m_node)
        return background;
    return background.isNull() ? *this : ci::sourceOver(*this, background);
}
