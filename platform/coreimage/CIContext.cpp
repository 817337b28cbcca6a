#include "platform/coreimage/CIContext.h"

#include "platform/coreimage/graph/Codes.h"
#include "platform/coreimage/graph/Once.h"
#include "platform/coreimage/graph/Transfer.h"

#include <algorithm>
#include <cstring>
#include <tbb/blocked_range2d.h>
#include <tbb/parallel_for.h>

namespace {

using namespace ci;

/// Row by row graphs take wide tiles, that suit memory; the others take squarer ones, large against what they read
/// around them and still within the second-level cache where that is possible.
void tileSize(int reach, bool byCodes, int& width, int& height)
{
    if (reach == 0) {
        width = 512;
        height = 32;
        return;
    }
    width = std::clamp((4 * reach + 127) / 128 * 128, 256, 512);
    height = std::clamp((4 * reach + 63) / 64 * 64, 128, 512);
    if (byCodes) // a quarter of the memory
        width *= 2;
}

struct Tiles {
    GridRect area;
    int width, height;
    int columns() const { return (area.width() + width - 1) / width; }
    int rows() const { return (area.height() + height - 1) / height; }
    GridRect tile(int index) const
    {
        const int x = area.x0 + index % columns() * width, top = area.y1 - index / columns() * height; // from the top
        return {x, std::max(top - height, area.y0), std::min(x + width, area.x1), top};
    }
};

/// Rewrites 8-bit codes by table: what is left of a chain of filters that change each component on its own.
void translate(
    const CodeTables& tables, CIBitmap& target, int left, int top, const RowEncoder& encoder, CIRenderControl* control)
{
    alignas(64) std::uint32_t codes[256];
    std::uint32_t to[3][256]; // what each component adds to the pixel, in place
    CodeTables copy = tables;
    encoder.encode(copy.row(), 256, reinterpret_cast<std::byte*>(codes));
    const bool swapped = tables.bitmap->format() != target.format();
    for (int c = 0; c < 3; ++c) {
        const int place = swapped ? 2 - c : c;
        for (int i = 0; i < 256; ++i)
            to[c][i] = codes[i] & (std::uint32_t(255) << (8 * place));
    }
    const std::size_t from = std::size_t(left - tables.left);
    const int skipped = tables.top - top, count = target.width();
    std::byte* const pixels = target.mutableRow(0);
    tbb::parallel_for(tbb::blocked_range<int>(0, target.height(), 64), [&](const tbb::blocked_range<int>& rows) {
        for (int y = rows.begin(); y < rows.end() && !(control && control->isCancelled()); ++y) {
            const std::uint32_t* const in = tables.bitmap->row<std::uint32_t>(y + skipped).data() + from;
            auto* const out = reinterpret_cast<std::uint32_t*>(pixels + std::size_t(y) * target.bytesPerRow());
            for (int x = 0; x < count; ++x) {
                const std::uint32_t p = in[x];
                out[x] = to[0][p & 255] | to[1][p >> 8 & 255] | to[2][p >> 16 & 255] | 0xff000000u;
            }
        }
    });
}

} // namespace

bool CIContext::renderInto(
    CIBitmap& target, int left, int top, const CIImage& image, double scale, CIRenderControl* control) const
{
    if (target.isNull() || image.isNull() || !(scale > 0))
        return false;
    const GridRect area{left, top - target.height(), left + target.width(), top};
    Render render;
    render.grid.scale = scale;
    render.floats = m_arithmetic == Arithmetic::Floats;
    render.control = control;
    const GridRect common = area.intersected(render.grid.cellsIn(image.extent()));
    render.cells = double(common.width()) * common.height();
    image.node()->prepare(render);
    if (render.isCancelled())
        return false;

    const bool covered = common.width() == area.width() && common.height() == area.height();
    const RowEncoder encoder(
        target.format(), target.alpha(), target.colorSpace(), covered && image.node()->isOpaque(), render.floats);
    CodeTables tables;
    if (covered && !render.floats && bytesPerPixel(target.format()) == 4 && image.node()->codeTables(render, tables)) {
        translate(tables, target, left, top, encoder, control);
        return !render.isCancelled();
    }
    CodeForm form;
    const bool byCodes = covered && bytesPerPixel(target.format()) == 4 && image.node()->hasCodes(render, form)
        && form == CodeForm{target.format(), target.colorSpace()};
    Tiles tiles{area, 0, 0};
    tileSize(image.node()->reach(render.grid), byCodes, tiles.width, tiles.height);
    const int count = tiles.columns() * tiles.rows();
    const std::size_t pixelSize = bytesPerPixel(target.format()), stride = target.bytesPerRow();
    std::byte* const pixels = target.mutableRow(0);
    std::atomic<int> done = 0;
    tbb::parallel_for(
        tbb::blocked_range<int>(0, count, 1),
        [&](const tbb::blocked_range<int>& range) {
            for (int i = range.begin(); i < range.end() && !render.isCancelled(); ++i) {
                const GridRect tile = tiles.tile(i);
                Scratch& scratch = Scratch::ofThread();
                const ScratchScope scope(scratch);
                const TileMemory memory;
                const auto to = [&](int y) {
                    return pixels + std::size_t(top - 1 - y) * stride + std::size_t(tile.x0 - left) * pixelSize;
                };
                if (byCodes) {
                    const auto reader = image.node()->openCodes(render, tile, scratch);
                    for (int y = tile.y0; y < tile.y1; ++y)
                        std::memcpy(to(y), reader->row(y), std::size_t(tile.width()) * pixelSize);
                } else {
                    const auto reader = image.node()->open(render, tile, scratch);
                    for (int y = tile.y0; y < tile.y1; ++y)
                        encoder.encode(reader->row(y), tile.width(), to(y));
                }
                if (control)
                    control->setProgress(double(++done) / count);
            }
        },
        tbb::simple_partitioner());
    return !render.isCancelled();
}

CIBitmap CIContext::render(const CIImage& image, const CIRect& rect, double scale, CIFormat format, CIAlpha alpha,
    CIRenderControl* control) const
{
    constexpr double kMostPixels = 4e9;
    if (image.isNull() || rect.isEmpty() || rect.isInfinite() || !(scale > 0))
        return {};
    Grid grid;
    grid.scale = scale;
    const GridRect area = grid.cellsTouching(rect);
    if (area.isEmpty() || double(area.width()) * area.height() > kMostPixels)
        return {};
    try {
        CIBitmap bitmap(area.width(), area.height(), format, alpha,
            format == CIFormat::RGBAf ? CIColorSpace::LinearSRGB : CIColorSpace::SRGB);
        if (renderInto(bitmap, area.x0, area.y1, image, scale, control))
            return bitmap;
    } catch (const std::bad_alloc&) {
    }
    return {};
}

CIBitmap CIContext::renderThumbnail(const CIImage& image, int maxSide) const
{
    const CIRect extent = image.extent();
    if (extent.isEmpty() || extent.isInfinite() || maxSide < 1)
        return {};
    const double scale = std::min(1.0, maxSide / std::max(extent.width, extent.height));
    CIBitmap thumbnail = render(extent.isEmpty() ? CIImage() : image, extent, scale);
    return thumbnail;
}
