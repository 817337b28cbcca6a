// SVG, as it is and packed by gzip.
#include "platform/imageio/readers/FileBytes.h"
#include "platform/imageio/readers/Readers.h"

#include <vector>

#include <zlib.h>

namespace imageio {

namespace {

constexpr std::string_view kPackedStart = "\x1f\x8b\x08";
constexpr std::size_t kLongest = std::size_t(64) << 20; // bytes of a drawing; packed, a few may claim any number

/// What the beginning of a gzip file holds, at most `most` bytes.
std::vector<std::byte> unpacked(Bytes packed, std::size_t most)
{
    std::vector<std::byte> text;
    z_stream stream{};
    constexpr int kGzip = 16;
    if (inflateInit2(&stream, MAX_WBITS + kGzip) != Z_OK)
        return text;
    stream.next_in = const_cast<Bytef*>(reinterpret_cast<const Bytef*>(packed.data()));
    stream.avail_in = uInt(packed.size());
    constexpr std::size_t kStep = 65536;
    for (int state = Z_OK; state == Z_OK && text.size() < most;) {
        const std::size_t before = text.size();
        text.resize(std::min(most, before + kStep));
        stream.next_out = reinterpret_cast<Bytef*>(text.data() + before);
        stream.avail_out = uInt(text.size() - before);
        state = inflate(&stream, Z_NO_FLUSH);
        text.resize(text.size() - stream.avail_out);
    }
    inflateEnd(&stream);
    return text;
}

bool beginsDrawing(std::string_view text)
{
    if (text.starts_with("\xef\xbb\xbf"))
        text.remove_prefix(3);
    const std::size_t start = text.find_first_not_of(" \t\r\n");
    return start != text.npos && text[start] == '<' && text.find("<svg") != text.npos;
}

} // namespace

bool isSvg(std::string_view head, const ReadBytes&)
{
    if (!head.starts_with(kPackedStart))
        return beginsDrawing(head);
    const std::vector<std::byte> text = unpacked(std::as_bytes(std::span(head)), head.size());
    return beginsDrawing({reinterpret_cast<const char*>(text.data()), text.size()});
}

void openSvg(OpenPicture& picture, const PictureInput&, int maxSide)
{
    const LittleEndian file(PictureInput::wholeContent(picture.source.get()));
    if (file.text(0, kPackedStart.size()) == kPackedStart && file.size() <= kLongest) {
        const auto text = std::make_shared<const std::vector<std::byte>>(unpacked(file.part(0), kLongest));
        if (text->size() == kLongest) {
            picture.refusal = Reason::TooLarge;
            return;
        }
        picture.source.reset(vips_source_new_from_memory(text->data(), text->size()));
        picture.held = text;
    }
    constexpr double kDotsPerInch = 96;
    picture.image = loadDrawing("svgload_source", picture.source.get(), maxSide, kDotsPerInch);
}

} // namespace imageio
