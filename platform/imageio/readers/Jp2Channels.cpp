#include "platform/imageio/readers/Jp2Channels.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <memory>

#include <lcms2.h>
#include <openjpeg.h>

namespace imageio {

namespace {

constexpr int kMostBits = 31; // the library keeps samples in 32 bits

std::int64_t ceilDivided(std::int64_t value, std::int64_t by) { return (value + by - 1) / by; }

/// Where a component lies on the grid that all share.
struct Placed {
    std::int64_t stepX, stepY; // grid points between samples
    std::int64_t left, top, width, height; // samples, after reduction

    Placed(const opj_image& image, const opj_image_comp_t& component, int reduce)
        : stepX(component.dx)
        , stepY(component.dy)
    {
        const std::int64_t side = std::int64_t(1) << reduce;
        const auto first = [&](OPJ_UINT32 edge, std::int64_t step) {
            return ceilDivided(ceilDivided(edge, step), side);
        };
        left = first(image.x0, stepX);
        top = first(image.y0, stepY);
        width = first(image.x1, stepX) - left;
        height = first(image.y1, stepY) - top;
    }
};

std::uint32_t bigEndian(std::span<const std::byte> bytes, std::size_t at)
{
    std::uint32_t value = 0;
    for (std::size_t i = at; i < at + 4 && i < bytes.size(); ++i)
        value = value << 8 | std::to_integer<std::uint32_t>(bytes[i]);
    return value;
}

/// Without any word of the file it is what the number of channels suggests.
std::optional<Jp2Color> spaceOf(const opj_image& image, const Jp2Boxes& boxes, std::size_t channels)
{
    if (!boxes.profile.empty())
        switch (bigEndian(boxes.profile, 16)) { // the profile's color space
        case cmsSigGrayData:
            return Jp2Color::Grey;
        case cmsSigRgbData:
            return Jp2Color::Srgb;
        case cmsSigCmykData:
            return Jp2Color::Cmyk;
        default:
            return std::nullopt;
        }
    for (const Jp2Color known :
        {Jp2Color::Cmyk, Jp2Color::Lab, Jp2Color::Srgb, Jp2Color::Grey, Jp2Color::Sycc, Jp2Color::Esycc})
        if (boxes.color == std::uint32_t(known))
            return known;
    if (boxes.color != 0)
        return std::nullopt;
    if (channels < 3)
        return Jp2Color::Grey;
    const bool hasCoarseColors = image.numcomps == 3 && image.comps[0].dx == 1 && image.comps[1].dx == 2;
    return hasCoarseColors ? Jp2Color::Sycc : Jp2Color::Srgb;
}

int colorsOf(Jp2Color space) { return space == Jp2Color::Grey ? 1 : space == Jp2Color::Cmyk ? 4 : 3; }

/// By the definitions of the file, or in their order with a last one for alpha.
bool assignRoles(const Jp2Boxes& boxes, Jp2Channels& channels)
{
    const int count = colorsOf(channels.space), available = int(channels.all.size());
    channels.colors.assign(std::size_t(count), -1);
    for (const Jp2Definition& definition : boxes.definitions) {
        if (definition.channel >= available)
            return false;
        if (definition.type == 0 && definition.association >= 1 && definition.association <= count)
            channels.colors[std::size_t(definition.association - 1)] = definition.channel;
        if ((definition.type == 1 || definition.type == 2) && !channels.alpha) {
            channels.alpha = definition.channel;
            channels.isMultiplied = definition.type == 2;
        }
    }
    if (boxes.definitions.empty()) {
        for (int i = 0; i < std::min(count, available); ++i)
            channels.colors[std::size_t(i)] = i;
        if (available == count + 1)
            channels.alpha = count;
    }
    return std::ranges::none_of(channels.colors, [](int channel) { return channel < 0; });
}

Jp2Sample sampleOf(const opj_image& image, const Jp2Boxes& boxes, const Jp2Mapping& mapping)
{
    if (mapping.column)
        return boxes.palette->columns[std::size_t(*mapping.column)];
    const opj_image_comp_t& component = image.comps[mapping.component];
    return {int(component.prec), component.sgnd != 0};
}

double mostOf(const Jp2Sample& sample) { return double((std::int64_t(1) << sample.bits) - 1); }

/// The samples of one channel as they belong to the pixels, 0 to 1. Coarser components are repeated.
class ChannelSamples {
public:
    ChannelSamples(
        const opj_image& image, const Jp2Boxes& boxes, const Jp2Mapping& mapping, const Placed& picture, int reduce)
        : m_component(image.comps[mapping.component])
        , m_placed(image, m_component, reduce)
        , m_picture(picture)
    {
        const Jp2Sample sample = sampleOf(image, boxes, mapping);
        m_scale = 1 / mostOf(sample);
        m_offset = sample.isSigned ? std::int64_t(1) << (sample.bits - 1) : 0;
        for (std::int64_t x = 0; x < picture.width; ++x)
            m_columns.push_back(index(picture.left + x, picture.stepX, m_placed.stepX, m_placed.left, m_placed.width));
        if (!mapping.column)
            return;
        const std::size_t columns = boxes.palette->columns.size();
        for (std::size_t i = std::size_t(*mapping.column); i < boxes.palette->values.size(); i += columns)
            m_palette.push_back(boxes.palette->values[i]);
    }
    bool isComplete() const
    {
        return m_component.data && m_component.w == m_placed.width && m_component.h == m_placed.height;
    }
    void startRow(int y)
    {
        m_row = m_component.data
            + m_placed.width * index(m_picture.top + y, m_picture.stepY, m_placed.stepY, m_placed.top, m_placed.height);
    }
    double at(int x) const
    {
        std::int64_t value = m_row[m_columns[std::size_t(x)]];
        if (!m_palette.empty())
            value = m_palette[std::size_t(std::clamp<std::int64_t>(value, 0, std::int64_t(m_palette.size()) - 1))];
        return std::clamp(double(value + m_offset) * m_scale, 0.0, 1.0);
    }

private:
    /// The sample at or before a pixel.
    static std::int64_t index(
        std::int64_t pixel, std::int64_t step, std::int64_t ownStep, std::int64_t first, std::int64_t count)
    {
        return std::clamp<std::int64_t>(pixel * step / ownStep - first, 0, count - 1);
    }

    const opj_image_comp_t& m_component;
    Placed m_placed;
    const Placed& m_picture;
    std::vector<std::int64_t> m_columns, m_palette;
    const OPJ_INT32* m_row = nullptr;
    double m_scale;
    std::int64_t m_offset;
};

/// The matrix of ITU-R BT.601, for values that use the whole range.
void syccToSrgb(double* color, const std::array<Jp2Sample, 3>& samples)
{
    const auto centered = [&](std::size_t i) {
        return color[i] - std::ldexp(0.5, samples[i].bits) / mostOf(samples[i]);
    };
    const double y = color[0], cb = centered(1), cr = centered(2);
    color[0] = y + 1.402 * cr;
    color[1] = y - 0.344136 * cb - 0.714136 * cr;
    color[2] = y + 1.772 * cb;
}

/// CIELAB as the boxes scale it, to sRGB.
class LabToSrgb {
public:
    LabToSrgb(const Jp2Boxes& boxes, const std::array<Jp2Sample, 3>& samples)
    {
        m_ranges = {100, 170, 200}; // where the file names none
        m_offsets = {0, std::ldexp(0.5, samples[1].bits), std::ldexp(0.375, samples[2].bits)};
        for (std::size_t i = 0; i < 3; ++i) {
            if (boxes.labParameters.size() >= 6) {
                m_ranges[i] = boxes.labParameters[2 * i];
                m_offsets[i] = boxes.labParameters[2 * i + 1];
            }
            m_most[i] = mostOf(samples[i]);
        }
        const cmsHPROFILE lab = cmsCreateLab4Profile(nullptr), srgb = cmsCreate_sRGBProfile();
        m_transform.reset(cmsCreateTransform(lab, TYPE_Lab_DBL, srgb, TYPE_RGB_DBL, INTENT_RELATIVE_COLORIMETRIC,
            cmsFLAGS_NOOPTIMIZE | cmsFLAGS_NOCACHE));
        cmsCloseProfile(lab);
        cmsCloseProfile(srgb);
    }
    void operator()(double* color) const
    {
        for (std::size_t i = 0; i < 3; ++i)
            color[i] = (color[i] * m_most[i] - m_offsets[i]) * m_ranges[i] / m_most[i];
        cmsDoTransform(m_transform.get(), color, color, 1);
    }

private:
    struct Delete {
        void operator()(void* transform) const { cmsDeleteTransform(transform); }
    };
    std::unique_ptr<void, Delete> m_transform;
    std::array<double, 3> m_ranges, m_offsets, m_most;
};

template <class T>
void store(T* target, const double* values, int count)
{
    constexpr double kFull = std::numeric_limits<T>::max();
    for (int i = 0; i < count; ++i)
        target[i] = T(std::clamp(values[i], 0.0, 1.0) * kFull + 0.5);
}

/// Which component has most samples, and so gives the picture its size.
const opj_image_comp_t& finest(const opj_image& image, const Jp2Channels& channels)
{
    const int best = std::ranges::min(channels.colors, {}, [&](int channel) {
        const opj_image_comp_t& component = image.comps[channels.all[std::size_t(channel)].component];
        return std::uint64_t(component.dx) * component.dy;
    });
    return image.comps[channels.all[std::size_t(best)].component];
}

} // namespace

std::optional<Jp2Channels> channelsOf(const opj_image& image, const Jp2Boxes& boxes, int reduce, std::string& refusal)
{
    Jp2Channels channels;
    channels.all = boxes.mappings;
    for (int i = 0; boxes.mappings.empty() && i < int(image.numcomps); ++i)
        channels.all.push_back({i, std::nullopt});
    for (const Jp2Mapping& mapping : channels.all) {
        const bool isThere = mapping.component < int(image.numcomps)
            && (!mapping.column || (boxes.palette && *mapping.column < int(boxes.palette->columns.size())));
        if (!isThere || sampleOf(image, boxes, mapping).bits > kMostBits) {
            refusal = "a channel has no samples, or too large ones";
            return std::nullopt;
        }
    }
    const std::optional<Jp2Color> space = spaceOf(image, boxes, channels.all.size());
    if (!space) {
        refusal = "the color space " + std::to_string(boxes.color) + " is not known";
        return std::nullopt;
    }
    channels.space = *space;
    if (!assignRoles(boxes, channels)) {
        refusal = "a color has no channel";
        return std::nullopt;
    }
    const Placed picture(image, finest(image, channels), reduce);
    channels.width = int(picture.width);
    channels.height = int(picture.height);
    std::vector<int> used = channels.colors;
    if (channels.alpha)
        used.push_back(*channels.alpha);
    channels.isDeep = *space == Jp2Color::Lab || std::ranges::any_of(used, [&](int channel) {
        return sampleOf(image, boxes, channels.all[std::size_t(channel)]).bits > 8;
    });
    return channels;
}

bool composeJp2(const opj_image& decoded, const Jp2Boxes& boxes, const Jp2Channels& channels, int reduce,
    std::span<std::byte> pixels)
{
    const Placed picture(decoded, finest(decoded, channels), reduce);
    std::vector<ChannelSamples> samples;
    std::array<Jp2Sample, 3> kinds;
    std::vector<int> used = channels.colors;
    if (channels.alpha)
        used.push_back(*channels.alpha);
    for (const int channel : used) {
        const Jp2Mapping& mapping = channels.all[std::size_t(channel)];
        if (samples.size() < kinds.size())
            kinds[samples.size()] = sampleOf(decoded, boxes, mapping);
        samples.emplace_back(decoded, boxes, mapping, picture, reduce);
        if (!samples.back().isComplete())
            return false;
    }
    const bool isSycc = channels.space == Jp2Color::Sycc || channels.space == Jp2Color::Esycc;
    std::unique_ptr<const LabToSrgb> lab;
    if (channels.space == Jp2Color::Lab)
        lab = std::make_unique<const LabToSrgb>(boxes, kinds);
    const int colors = int(channels.colors.size()), bands = int(samples.size());
    std::byte* target = pixels.data();
    for (int y = 0; y < channels.height; ++y) {
        for (ChannelSamples& channel : samples)
            channel.startRow(y);
        for (int x = 0; x < channels.width; ++x) {
            double values[5];
            for (int i = 0; i < bands; ++i)
                values[i] = samples[std::size_t(i)].at(x);
            if (channels.isMultiplied && values[colors] > 0)
                for (int i = 0; i < colors; ++i)
                    values[i] = std::min(values[i] / values[colors], 1.0);
            if (isSycc)
                syccToSrgb(values, kinds);
            else if (lab)
                (*lab)(values);
            if (channels.isDeep)
                store(reinterpret_cast<std::uint16_t*>(target), values, bands);
            else
                store(reinterpret_cast<std::uint8_t*>(target), values, bands);
            target += bands * (channels.isDeep ? 2 : 1);
        }
    }
    return true;
}

} // namespace imageio
