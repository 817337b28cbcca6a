#include "platform/coreimage/CIContext.h"

#include "platform/coreimage/graph/Once.h"
#include "platform/coreimage/graph/Transfer.h"

#include <algorithm>
#include <cstring>
#include <tbb/blocked_range2d.h>
#include <tbb/parallel_for.h>

namespace {

using namespace ci;

struct Tiles {
    /// Row by row graphs take wide tiles, that suit memory; the others take squarer ones, large against what they read
    /// around them and still within the second-level cache where that is possible.
    Tiles(const GridRect& cells, int reach, bool byCodes)
        : area(cells)
        , width(reach == 0 ? 512 : std::clamp((4 * reach + 127) / 128 * 128, 256, 512))
        , height(reach == 0 ? 32 : std::clamp((4 * reach + 63) / 64 * 64, 128, 512))
    {
        if (reach > 0 && byCodes) // a quarter of the memory
            width *= 2;
    }
    int count() const { return columns() * ((area.height() + height - 1) / height); }
    int columns() const { return (area.width() + width - 1) / width; }
    GridRect tile(int index) const
    {
        const int x = area.x0 + index % columns() * width, top = area.y1 - index / columns() * height; // from the top
        return {x, std::max(top - height, area.y0), std::min(x + width, area.x1), top};
    }

    GridRect area;
    int width, height;
};

/// Where a render ends up: a bitmap whose top left pixel is grid column `left`, grid row `top` - 1.
struct Target {
    std::byte* pixels; // of the top row
    std::size_t stride, pixelSize;
    int left, top;
    std::byte* at(int x, int y) const
    {
        return pixels + std::size_t(top - 1 - y) * stride + std::size_t(x - left) * pixelSize;
    }
};

/// Rewrites 8-bit codes by table: what is left of a chain of filters that change each component on its own.
void translate(CodeTable& table, bool swapped, const Target& target, const GridRect& area, const RowEncoder& encoder,
    const Render& render)
{
    alignas(64) std::uint32_t codes[256];
    std::uint32_t to[3][256]; // what each component adds to the pixel, in place
    encoder.encode(table.row(), 256, reinterpret_cast<std::byte*>(codes));
    for (int c = 0; c < 3; ++c) {
        const int place = swapped ? 2 - c : c;
        for (int i = 0; i < 256; ++i)
            to[c][i] = codes[i] & (std::uint32_t(255) << (8 * place));
    }
    const std::size_t from = std::size_t(area.x0 - table.left);
    tbb::parallel_for(tbb::blocked_range<int>(0, area.height(), 64), [&](const tbb::blocked_range<int>& rows) {
        for (int line = rows.begin(); line < rows.end() && !render.isCancelled(); ++line) {
            const int y = area.y1 - 1 - line;
            const std::uint32_t* const in = table.bitmap->row<std::uint32_t>(table.top - 1 - y).data() + from;
            auto* const out = reinterpret_cast<std::uint32_t*>(target.at(area.x0, y));
            for (int x = 0; x < area.width(); ++x) {
                const std::uint32_t p = in[x];
                out[x] = to[0][p & 255] | to[1][p >> 8 & 255] | to[2][p >> 16 & 255] | 0xff000000u;
            }
        }
    });
}

void renderTile(const Node& node, const Render& render, const GridRect& tile, Form form, const RowEncoder& encoder,
    const Target& target)
{
    Scratch& scratch = Scratch::ofThread();
    const ScratchScope scope(scratch);
    const TileMemory memory;
    const Opened opened = node.open(render, tile, form, scratch);
    for (int y = tile.y0; y < tile.y1; ++y)
        if (opened.codes)
            std::memcpy(target.at(tile.x0, y), opened.codes->row(y), std::size_t(tile.width()) * target.pixelSize);
        else
            encoder.encode(opened.rows->row(y), tile.width(), target.at(tile.x0, y));
}

} // namespace

bool CIContext::renderInto(
    CIBitmap& bitmap, int left, int top, const CIImage& image, double scale, CIRenderControl* control) const
{
    if (bitmap.isNull() || image.isNull() || !(scale > 0))
        return false;
    const Node& node = *image.node();
    const GridRect area{left, top - bitmap.height(), left + bitmap.width(), top};
    Render render;
    render.grid.scale = scale;
    render.floats = m_arithmetic == Arithmetic::Floats;
    render.control = control;
    const GridRect common = area.intersected(render.grid.cellsIn(image.extent()));
    render.cells = double(common.width()) * common.height();
    node.prepare(render);
    if (render.isCancelled())
        return false;

    const bool isCovered = common == area;
    const bool mayBeCodes = isCovered && bytesPerPixel(bitmap.format()) == 4 && !profiledSpace(bitmap.colorSpace());
    const RowEncoder encoder(
        bitmap.format(), bitmap.alpha(), bitmap.colorSpace(), isCovered && node.isOpaque(), render.floats);
    const Target target{bitmap.mutableRow(0), bitmap.bytesPerRow(), bytesPerPixel(bitmap.format()), left, top};
    if (mayBeCodes && !render.floats)
        if (const auto table = node.open(render, area, Form::Table, Scratch::ofThread()).table) {
            translate(*table, table->bitmap->format() != bitmap.format(), target, area, encoder, render);
            return !render.isCancelled();
        }
    const bool byCodes = mayBeCodes && node.codeForm(render) == CodeForm{bitmap.format(), bitmap.colorSpace()};
    const Tiles tiles(area, node.reach(render.grid), byCodes);
    const int count = tiles.count();
    std::atomic<int> done = 0;
    tbb::parallel_for(
        tbb::blocked_range<int>(0, count, 1),
        [&](const tbb::blocked_range<int>& range) {
            for (int i = range.begin(); i < range.end() && !render.isCancelled(); ++i) {
                renderTile(node, render, tiles.tile(i), byCodes ? Form::Codes : Form::Rows, encoder, target);
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
