// An image as a recipe.
#pragma once

#include "platform/coreimage/CIBitmap.h"
#include "platform/coreimage/CIVector.h"

#include <memory>

namespace ci {
class Node;
}

/// An immutable, cheap-to-copy recipe for an image: a bitmap, a color, or operations on other images.
/// Nothing is computed until a CIContext renders a part of it. y points up; positions are picture pixels.
/// A null image has an empty extent and is what operations answer when they can't make one.
class CIImage {
public:
    CIImage() = default;
    explicit CIImage(std::shared_ptr<const ci::Node> node)
        : m_node(std::move(node))
    {
    }

    /// The bitmap with its lower left corner at the origin.
    static CIImage fromBitmap(const CIBitmap&);
    /// One color everywhere; the extent is infinite.
    static CIImage fromColor(const CIColor&);

    bool isNull() const { return !m_node; }
    explicit operator bool() const { return bool(m_node); }

    /// Where the image may be other than transparent; infinite for colors and most generators.
    CIRect extent() const;

    CIImage cropped(const CIRect&) const;
    CIImage transformed(const CIAffineTransform&) const; // bilinear unless it maps pixels onto pixels
    /// The edge pixels repeated without end: extent becomes infinite.
    CIImage clampedToExtent() const;
    CIImage compositedOver(const CIImage& background) const;

    /// True when both are the same recipe object.
    bool isSameAs(const CIImage& other) const { return m_node == other.m_node; }
    bool operator==(const CIImage& other) const { return m_node == other.m_node; }

    const std::shared_ptr<const ci::Node>& node() const { return m_node; }

private:
    std::shared_ptr<const ci::Node> m_node;
};
