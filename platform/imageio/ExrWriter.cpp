#include "platform/imageio/ExrWriter.h"

#include "platform/imageio/PictureWriter.h"

#include <OpenEXR/ImfIO.h>
#include <OpenEXR/ImfRgbaFile.h>

#include <algorithm>
#include <limits>
#include <stdexcept>

namespace imageio {

namespace {

/// In memory: the library goes back to write where the rows are.
class MemoryStream : public Imf::OStream {
public:
    MemoryStream()
        : OStream("picture.exr")
    {
    }
    void write(const char bytes[], int count) override
    {
        m_bytes.resize(std::max(m_bytes.size(), m_place + std::size_t(count)));
        std::copy_n(bytes, count, m_bytes.begin() + std::ptrdiff_t(m_place));
        m_place += std::size_t(count);
    }
    std::uint64_t tellp() override { return m_place; }
    void seekp(std::uint64_t place) override { m_place = std::size_t(place); }
    const std::vector<char>& bytes() const { return m_bytes; }

private:
    std::vector<char> m_bytes;
    std::size_t m_place = 0;
};

/// Half floats end early; what is beyond them would become infinite.
half stored(float value)
{
    constexpr auto kLargest = 65504.0f;
    return half(std::clamp(value, -kLargest, kLargest));
}

void writeRows(VipsImage* image, Imf::RgbaOutputFile& file, CIRenderControl* control)
{
    const int width = vips_image_get_width(image), bands = vips_image_get_bands(image);
    std::vector<Imf::Rgba> row(static_cast<std::size_t>(width));
    file.setFrameBuffer(row.data(), 1, 0);
    const std::unique_ptr<VipsRegion, ObjectUnref> region(vips_region_new(image));
    for (int y = 0; y < vips_image_get_height(image); ++y) {
        const VipsRect line{0, y, width, 1};
        if (vips_region_prepare(region.get(), &line) != 0)
            throw std::runtime_error("no pixels");
        const auto* source = reinterpret_cast<const float*>(VIPS_REGION_ADDR(region.get(), 0, y));
        for (Imf::Rgba& pixel : row) {
            pixel = Imf::Rgba(
                stored(source[0]), stored(source[1]), stored(source[2]), bands == 4 ? stored(source[3]) : half(1.0f));
            source += bands;
        }
        file.writePixels(1);
        if (control)
            control->setProgress(double(y) / vips_image_get_height(image));
        if (control && control->isCancelled())
            throw std::runtime_error("cancelled");
    }
}

} // namespace

int writeExr(VipsImage* image, VipsTarget* target, const WriteOptions& options)
{
    constexpr Imf::Compression kCompressions[] = {Imf::ZIP_COMPRESSION, Imf::PIZ_COMPRESSION, Imf::NO_COMPRESSION};
    try {
        MemoryStream stream;
        {
            const bool hasAlpha = vips_image_get_bands(image) == 4;
            const Imf::Header header(vips_image_get_width(image), vips_image_get_height(image), 1, Imath::V2f(0, 0), 1,
                Imf::INCREASING_Y, kCompressions[options.compression]);
            Imf::RgbaOutputFile file(stream, header, hasAlpha ? Imf::WRITE_RGBA : Imf::WRITE_RGB);
            writeRows(image, file, options.control);
        } // the table of rows is written last
        if (vips_target_write(target, stream.bytes().data(), stream.bytes().size()) != 0)
            return -1;
        return vips_target_end(target);
    } catch (const std::exception& error) {
        vips_error("openexr", "%s", error.what());
        return -1;
    }
}

} // namespace imageio
