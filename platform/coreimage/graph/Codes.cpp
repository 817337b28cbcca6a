#include "platform/coreimage/graph/Codes.h"

#include "platform/coreimage/graph/Transfer.h"

#include <algorithm>
#include <cstring>

namespace ci {

namespace {

constexpr std::size_t kBytes = 4; // a pixel
constexpr std::size_t kLine = 64; // bytes of a line of the cache, and of the widest batch

void clearOutside(const CodeSheet& sheet, const CIRect& extent, const Render& render)
{
    const GridRect inside = sheet.area.intersected(render.grid.cellsIn(extent));
    if (inside.isEmpty()) {
        for (int y = sheet.area.y0; y < sheet.area.y1; ++y)
            std::memset(sheet.line(y), 0, std::size_t(sheet.length()));
        return;
    }
    for (int y = sheet.area.y0; y < sheet.area.y1; ++y) {
        const bool hasRow = y >= inside.y0 && y < inside.y1;
        const int from = hasRow ? inside.x0 : sheet.area.x1;
        std::memset(sheet.line(y), 0, std::size_t(from - sheet.area.x0) * kBytes);
        if (hasRow)
            std::memset(sheet.at(inside.x1, y), 0, std::size_t(sheet.area.x1 - inside.x1) * kBytes);
    }
}

class SheetReader : public CodeReader {
public:
    SheetReader(const CodeSheet& sheet, CodeForm form)
        : CodeReader(form)
        , m_sheet(sheet)
    {
    }
    const std::uint8_t* row(int y) override { return m_sheet.line(y); }

private:
    CodeSheet m_sheet;
};

class SheetDecoder : public RowReader {
public:
    SheetDecoder(const CodeSheet& sheet, CodeForm form, const Render& render, Scratch& scratch)
        : m_sheet(sheet)
        , m_decoder(form.format, CIAlpha::Premultiplied, form.space, render.floats)
        , m_row(allocateRow(scratch, sheet.area.width()))
    {
    }
    Row row(int y) override
    {
        m_decoder.decode(reinterpret_cast<const std::byte*>(m_sheet.line(y)), m_sheet.area.width(), m_row);
        return m_row;
    }

private:
    CodeSheet m_sheet;
    RowDecoder m_decoder;
    MutableRow m_row;
};

} // namespace

CodeSheet allocateCodes(const GridRect& area, Scratch& scratch)
{
    // An odd number of lines and room beyond, as planes have.
    const std::size_t lines = (std::size_t(area.width()) * kBytes + 2 * kLine - 1) / kLine | 1;
    const std::size_t size = lines * kLine * std::size_t(std::max(area.height(), 1)) + 2 * kLine;
    return {area, lines * kLine, int(kBytes), static_cast<std::uint8_t*>(scratch.bytes(size))};
}

void fillCodes(const CodeSheet& sheet, CodeReader& reader)
{
    for (int y = sheet.area.y0; y < sheet.area.y1; ++y)
        std::memcpy(sheet.line(y), reader.row(y), std::size_t(sheet.length()));
}

std::unique_ptr<CodeReader> readCodes(const CodeSheet& sheet, CodeForm form, const CIRect& extent, const Render& render)
{
    clearOutside(sheet, extent, render);
    return std::make_unique<SheetReader>(sheet, form);
}

std::unique_ptr<RowReader> decodeCodes(
    const CodeSheet& sheet, CodeForm form, const CIRect& extent, const Render& render, Scratch& scratch)
{
    clearOutside(sheet, extent, render);
    return std::make_unique<SheetDecoder>(sheet, form, render, scratch);
}

} // namespace ci
