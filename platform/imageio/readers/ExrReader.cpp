// OpenEXR, whose pixels may cover another part of the plane than the picture.
#include "platform/imageio/readers/DeferredImage.h"
#include "platform/imageio/readers/Readers.h"

#include <OpenEXR/ImfIO.h>
#include <OpenEXR/ImfRgbaFile.h>

#include <algorithm>
#include <cstring>
#include <mutex>
#include <stdexcept>

namespace imageio {

namespace {

class MemoryStream : public Imf::IStream {
public:
    explicit MemoryStream(std::span<const std::byte> bytes)
        : IStream("picture.exr")
        , m_bytes(bytes)
    {
    }
    bool read(char target[], int count) override
    {
        if (count < 0 || std::size_t(count) > m_bytes.size() - m_place)
            throw std::runtime_error("the file ends early");
        std::memcpy(target, m_bytes.data() + m_place, std::size_t(count));
        m_place += std::size_t(count);
        return m_place < m_bytes.size();
    }
    std::uint64_t tellg() override { return m_place; }
    void seekg(std::uint64_t place) override
    {
        if (place > m_bytes.size())
            throw std::runtime_error("a place beyond the file");
        m_place = std::size_t(place);
    }

private:
    std::span<const std::byte> m_bytes;
    std::size_t m_place = 0;
};

/// An opened file, whose rows are decoded as they are asked for. What lies outside its data is transparent.
class ExrRows {
public:
    explicit ExrRows(const VipsSourcePtr& source)
        : m_source(held(source))
        , m_stream(PictureInput::wholeContent(source.get()))
        , m_file(m_stream)
        , m_picture(m_file.displayWindow())
        , m_data(m_file.dataWindow())
    {
        for (const Imath::Box2i& window : {m_picture, m_data})
            if (sideOf(window, 0) > VIPS_MAX_COORD || sideOf(window, 1) > VIPS_MAX_COORD)
                throw std::runtime_error("a window that is too large");
        m_row.resize(std::size_t(sideOf(m_data, 0)));
    }

    PixelLayout layout() const
    {
        const bool isCovered = m_data.intersects(m_picture.min) && m_data.intersects(m_picture.max);
        return {int(sideOf(m_picture, 0)), int(sideOf(m_picture, 1)),
            isCovered && !(m_file.channels() & Imf::WRITE_A) ? 3 : 4, VIPS_FORMAT_FLOAT, VIPS_INTERPRETATION_scRGB};
    }

    void fill(VipsRegion* region)
    {
        const VipsRect& area = region->valid;
        const int bands = region->im->Bands;
        const std::lock_guard lock(m_mutex);
        for (int y = area.top; y < area.top + area.height; ++y) {
            auto* target = reinterpret_cast<float*>(VIPS_REGION_ADDR(region, area.left, y));
            std::fill_n(target, std::ptrdiff_t(area.width) * bands, 0.0f);
            const int line = m_picture.min.y + y;
            if (line < m_data.min.y || line > m_data.max.y)
                continue;
            m_file.setFrameBuffer(m_row.data() - m_data.min.x, 1, 0);
            m_file.readPixels(line);
            for (int x = area.left; x < area.left + area.width; ++x, target += bands)
                put(m_picture.min.x + x, target, bands);
        }
    }

private:
    static std::int64_t sideOf(const Imath::Box2i& window, int axis)
    {
        return std::int64_t(window.max[axis]) - window.min[axis] + 1;
    }

    void put(int column, float* target, int bands) const
    {
        if (column < m_data.min.x || column > m_data.max.x)
            return;
        const Imf::Rgba& pixel = m_row[std::size_t(column - m_data.min.x)];
        const float components[] = {pixel.r, pixel.g, pixel.b, pixel.a};
        std::copy_n(components, bands, target);
    }

    const std::shared_ptr<VipsSource> m_source;
    MemoryStream m_stream;
    Imf::RgbaInputFile m_file;
    const Imath::Box2i m_picture, m_data;
    std::vector<Imf::Rgba> m_row;
    std::mutex m_mutex; // a file decodes one row at a time
};

int generate(VipsRegion* region, void*, void* rows, void*, gboolean*)
{
    try {
        static_cast<ExrRows*>(rows)->fill(region);
        return 0;
    } catch (const std::exception& error) {
        vips_error("openexr", "%s", error.what());
        return -1;
    }
}

} // namespace

void openExr(OpenPicture& picture, const PictureInput&, int)
{
    try {
        auto rows = std::make_unique<ExrRows>(picture.source);
        const PixelLayout layout = rows->layout();
        VipsImagePtr image(vips_image_new());
        vips_image_init_fields(image.get(), layout.width, layout.height, layout.bands, layout.format, VIPS_CODING_NONE,
            layout.interpretation, 1, 1);
        ExrRows* const decoder = rows.release();
        g_object_set_data_full(G_OBJECT(image.get()), "lumivex-decoder", decoder,
            [](void* owned) { delete static_cast<ExrRows*>(owned); });
        if (vips_image_pipelinev(image.get(), VIPS_DEMAND_STYLE_THINSTRIP, nullptr) == 0
            && vips_image_generate(image.get(), nullptr, generate, nullptr, decoder, nullptr) == 0)
            picture.image = std::move(image);
    } catch (const std::exception& error) {
        vips_error("openexr", "%s", error.what());
    }
}

} // namespace imageio
