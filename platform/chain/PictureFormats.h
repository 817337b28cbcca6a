// How deep the pixels of a picture are.
#pragma once

#include "platform/coreimage/CIImage.h"

#include <memory>
#include <vector>

/// Remembers the pixel format of pictures for as long as they live.
class PictureFormats {
public:
    void remember(const CIImage& image, CIFormat format)
    {
        std::erase_if(m_known, [](const Known& known) { return known.node.expired(); });
        m_known.push_back({image.node(), format});
    }
    /// `otherwise` for a picture that was not remembered.
    CIFormat formatOf(const CIImage& image, CIFormat otherwise) const
    {
        for (const Known& known : m_known)
            if (known.node.lock() == image.node() && image)
                return known.format;
        return otherwise;
    }

private:
    struct Known {
        std::weak_ptr<const ci::Node> node;
        CIFormat format;
    };
    std::vector<Known> m_known;
};
