#include "platform/imageio/PictureRows.h"

#include "platform/coreimage/CIColorProfile.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace imageio {

namespace {

struct Pixel {
    float red, green, blue, alpha; // 0 to 1
};

template <class T>
Pixel loaded(const T* p, CIFormat format)
{
    const float scale = std::is_floating_point_v<T> ? 1.0f : 1.0f / float(std::numeric_limits<T>::max());
    const int red = format == CIFormat::BGRA8 ? 2 : 0;
    return {float(p[red]) * scale, float(p[1]) * scale, float(p[2 - red]) * scale, float(p[3]) * scale};
}

/// IEC 61966-2-1.
float srgbCoded(float linear)
{
    return linear <= 0.0031308f ? 12.92f * linear : 1.055f * std::pow(linear, 1 / 2.4f) - 0.055f;
}

float linearLight(float coded)
{
    return coded <= 0.04045f ? coded / 12.92f : std::pow((coded + 0.055f) / 1.055f, 2.4f);
}

template <class Change>
void changeColor(Pixel& pixel, Change change)
{
    for (float* component : {&pixel.red, &pixel.green, &pixel.blue})
        *component = change(*component);
}

template <class T>
T stored(float value)
{
    constexpr auto full = float(std::numeric_limits<T>::max());
    return T(std::lround((value > 0 ? std::min(value, 1.0f) : 0.0f) * full)); // not-a-number becomes 0
}

class RowConverter {
public:
    RowConverter(const CIBitmap& bitmap, RowLayout layout)
        : m_bitmap(bitmap)
        , m_layout(layout)
        , m_profiled(profiledSpace(bitmap.colorSpace()))
    {
    }

    void convert(int left, int y, int count, void* target) const
    {
        switch (m_bitmap.format()) {
        case CIFormat::RGBA16:
            return convertFrom<std::uint16_t>(left, y, count, target);
        case CIFormat::RGBAf:
            return convertFrom<float>(left, y, count, target);
        default:
            return convertFrom<std::uint8_t>(left, y, count, target);
        }
    }

private:
    template <class Source>
    void convertFrom(int left, int y, int count, void* target) const
    {
        const Source* source = m_bitmap.row<Source>(y).data() + std::ptrdiff_t(4) * left;
        if (m_layout.bits == 32)
            convertToLight(source, count, static_cast<float*>(target));
        else if (m_layout.bits == 16)
            convertTo(source, count, static_cast<std::uint16_t*>(target));
        else
            convertTo(source, count, static_cast<std::uint8_t*>(target));
    }

    template <class Source, class Target>
    void convertTo(const Source* source, int count, Target* target) const
    {
        const int bands = m_layout.hasAlpha ? 4 : 3;
        if (std::is_same_v<Source, Target> && isStoredAlready())
            for (int i = 0; i < count; ++i)
                std::copy_n(source + 4 * i, bands, target + bands * i);
        else
            for (int i = 0; i < count; ++i)
                storePixel(straightCodes(loaded(source + 4 * i, m_bitmap.format())), target + bands * i);
    }

    template <class Source>
    void convertToLight(const Source* source, int count, float* target) const
    {
        for (int i = 0; i < count; ++i) {
            const Pixel pixel = premultipliedLight(loaded(source + 4 * i, m_bitmap.format()));
            for (const float component : {pixel.red, pixel.green, pixel.blue})
                *target++ = component;
            if (m_layout.hasAlpha)
                *target++ = pixel.alpha;
        }
    }

    /// Without a detour through codes, which end at 1.
    Pixel premultipliedLight(Pixel pixel) const
    {
        const bool isLight = m_bitmap.colorSpace() == CIColorSpace::LinearSRGB;
        if (isLight && m_bitmap.alpha() == CIAlpha::Premultiplied)
            return pixel;
        pixel = light(straight(pixel));
        changeColor(pixel, [&pixel](float c) { return c * pixel.alpha; });
        return pixel;
    }

    bool keepsCodes() const { return m_profiled ? m_layout.keepsProfile : m_bitmap.colorSpace() == CIColorSpace::SRGB; }

    bool isStoredAlready() const
    {
        return keepsCodes() && m_bitmap.format() != CIFormat::BGRA8
            && (m_bitmap.alpha() == CIAlpha::Opaque || (m_bitmap.alpha() == CIAlpha::Straight && m_layout.hasAlpha));
    }

    Pixel straight(Pixel pixel) const
    {
        if (m_bitmap.alpha() == CIAlpha::Opaque)
            pixel.alpha = 1;
        if (m_bitmap.alpha() == CIAlpha::Premultiplied) {
            const float factor = pixel.alpha > 0 ? 1 / pixel.alpha : 0;
            changeColor(pixel, [factor](float c) { return c * factor; });
        }
        return pixel;
    }

    /// Linear sRGB, of straight codes.
    Pixel light(Pixel pixel) const
    {
        if (m_bitmap.colorSpace() == CIColorSpace::SRGB) {
            changeColor(pixel, linearLight);
        } else if (m_profiled) {
            const CIColorProfile& profile = m_profiled->profile();
            changeColor(pixel, [&](float c) { return profile.light[stored<std::uint16_t>(c)]; });
            const auto& m = profile.toLinearSRGB;
            const auto [r, g, b, alpha] = pixel;
            pixel = {
                m[0] * r + m[1] * g + m[2] * b, m[3] * r + m[4] * g + m[5] * b, m[6] * r + m[7] * g + m[8] * b, alpha};
        }
        return pixel;
    }

    /// Codes of the file.
    Pixel straightCodes(Pixel pixel) const
    {
        pixel = straight(pixel);
        if (keepsCodes())
            return pixel;
        pixel = light(pixel);
        changeColor(pixel, srgbCoded);
        return pixel;
    }

    template <class Target>
    void storePixel(Pixel pixel, Target* target) const
    {
        if (!m_layout.hasAlpha) {
            const float alpha = std::clamp(pixel.alpha, 0.0f, 1.0f);
            changeColor(pixel, [alpha](float c) { return std::clamp(c, 0.0f, 1.0f) * alpha + 1 - alpha; });
        }
        target[0] = stored<Target>(pixel.red);
        target[1] = stored<Target>(pixel.green);
        target[2] = stored<Target>(pixel.blue);
        if (m_layout.hasAlpha)
            target[3] = stored<Target>(pixel.alpha);
    }

    const CIBitmap& m_bitmap;
    RowLayout m_layout;
    const CIProfiledSpace* m_profiled; // null without a profile
};

int generateRows(VipsRegion* region, void*, void* converter, void*, gboolean*)
{
    const VipsRect area = region->valid;
    for (int y = area.top; y < area.top + area.height; ++y)
        static_cast<const RowConverter*>(converter)->convert(
            area.left, y, area.width, VIPS_REGION_ADDR(region, area.left, y));
    return 0;
}

} // namespace

VipsImagePtr imageOfBitmap(const CIBitmap& bitmap, RowLayout layout)
{
    VipsImagePtr image(vips_image_new());
    const auto [format, interpretation] = layout.bits == 32 ? std::pair(VIPS_FORMAT_FLOAT, VIPS_INTERPRETATION_scRGB)
        : layout.bits == 16                                 ? std::pair(VIPS_FORMAT_USHORT, VIPS_INTERPRETATION_RGB16)
                                                            : std::pair(VIPS_FORMAT_UCHAR, VIPS_INTERPRETATION_sRGB);
    vips_image_init_fields(image.get(), bitmap.width(), bitmap.height(), layout.hasAlpha ? 4 : 3, format,
        VIPS_CODING_NONE, interpretation, 1, 1);
    auto* converter = new RowConverter(bitmap, layout);
    g_signal_connect(
        image.get(), "postclose", G_CALLBACK(+[](VipsImage*, RowConverter* done) { delete done; }), converter);
    if (vips_image_pipelinev(image.get(), VIPS_DEMAND_STYLE_THINSTRIP, nullptr) != 0
        || vips_image_generate(image.get(), nullptr, generateRows, nullptr, converter, nullptr) != 0)
        return nullptr;
    return image;
}

} // namespace imageio
