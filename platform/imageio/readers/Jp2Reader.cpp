// JPEG 2000, in its boxes or bare.
#include "platform/imageio/readers/DeferredImage.h"
#include "platform/imageio/readers/Jp2Channels.h"
#include "platform/imageio/readers/Readers.h"

#include <algorithm>
#include <thread>

#include <openjpeg.h>

namespace imageio {

namespace {

using Bytes = std::span<const std::byte>;

struct DestroyCodec {
    void operator()(opj_codec_t* codec) const { opj_destroy_codec(codec); }
};
struct DestroyStream {
    void operator()(opj_stream_t* stream) const { opj_stream_destroy(stream); }
};
struct DestroyImage {
    void operator()(opj_image_t* image) const { opj_image_destroy(image); }
};

/// Bytes in memory as the library reads them.
struct Position {
    Bytes bytes;
    std::size_t at = 0;
};

OPJ_SIZE_T readBytes(void* target, OPJ_SIZE_T count, void* user)
{
    auto& position = *static_cast<Position*>(user);
    const std::size_t taken = std::min<std::size_t>(count, position.bytes.size() - position.at);
    if (taken == 0)
        return OPJ_SIZE_T(-1);
    std::ranges::copy(position.bytes.subspan(position.at, taken), static_cast<std::byte*>(target));
    position.at += taken;
    return taken;
}

OPJ_BOOL seekTo(OPJ_OFF_T place, void* user)
{
    auto& position = *static_cast<Position*>(user);
    if (place < 0 || std::size_t(place) > position.bytes.size())
        return OPJ_FALSE;
    position.at = std::size_t(place);
    return OPJ_TRUE;
}

OPJ_OFF_T skipBytes(OPJ_OFF_T count, void* user)
{
    auto& position = *static_cast<Position*>(user);
    const auto left = OPJ_OFF_T(position.bytes.size() - position.at);
    const OPJ_OFF_T skipped = std::clamp<OPJ_OFF_T>(count, -OPJ_OFF_T(position.at), left);
    position.at += std::size_t(skipped);
    return skipped == 0 && count != 0 ? -1 : skipped;
}

void tellError(const char* text, void*) { vips_error("openjpeg", "%s", text); }

/// One codestream on its way through the library.
class Codestream {
public:
    /// `threads` help with decoding; 0 for none.
    Codestream(Bytes bytes, int reduce, int threads)
        : m_position{bytes}
        , m_codec(opj_create_decompress(OPJ_CODEC_J2K))
        , m_stream(opj_stream_default_create(OPJ_TRUE))
    {
        opj_set_error_handler(m_codec.get(), tellError, nullptr);
        opj_stream_set_user_data(m_stream.get(), &m_position, nullptr);
        opj_stream_set_user_data_length(m_stream.get(), bytes.size());
        opj_stream_set_read_function(m_stream.get(), readBytes);
        opj_stream_set_seek_function(m_stream.get(), seekTo);
        opj_stream_set_skip_function(m_stream.get(), skipBytes);
        opj_dparameters_t parameters;
        opj_set_default_decoder_parameters(&parameters);
        parameters.cp_reduce = OPJ_UINT32(reduce);
        opj_image_t* image = nullptr;
        const bool isRead = opj_setup_decoder(m_codec.get(), &parameters)
            && opj_codec_set_threads(m_codec.get(), threads) && opj_read_header(m_stream.get(), m_codec.get(), &image);
        m_image.reset(image);
        if (!isRead)
            m_image = nullptr;
    }
    Codestream(const Codestream&) = delete;
    Codestream& operator=(const Codestream&) = delete;

    /// Null when the header can't be right. Without samples before `decode`.
    const opj_image_t* image() const { return m_image.get(); }

    bool decode()
    {
        return m_image && opj_decode(m_codec.get(), m_stream.get(), m_image.get())
            && opj_end_decompress(m_codec.get(), m_stream.get());
    }

    /// How often its sides can be halved.
    int mostReductions() const
    {
        opj_codestream_info_v2_t* info = opj_get_cstr_info(m_codec.get());
        if (!info || !info->m_default_tile_info.tccp_info)
            return 0;
        OPJ_UINT32 fewest = OPJ_J2K_MAXRLVLS;
        for (OPJ_UINT32 i = 0; i < info->nbcomps; ++i)
            fewest = std::min(fewest, info->m_default_tile_info.tccp_info[i].numresolutions);
        opj_destroy_cstr_info(&info);
        return int(fewest) - 1;
    }

private:
    Position m_position;
    std::unique_ptr<opj_codec_t, DestroyCodec> m_codec;
    std::unique_ptr<opj_stream_t, DestroyStream> m_stream;
    std::unique_ptr<opj_image_t, DestroyImage> m_image;
};

/// Even a blank picture takes some bytes for each of its tiles, while every sample takes memory.
bool claimsTooMuch(const opj_image_t& image, std::size_t bytes)
{
    constexpr double kMaxSamplesPerByte = 40000;
    constexpr double kHeaderBytes = 1000;
    double samples = 0;
    for (OPJ_UINT32 i = 0; i < image.numcomps; ++i)
        samples += double(image.comps[i].w) * image.comps[i].h;
    return samples > kMaxSamplesPerByte * (double(bytes) + kHeaderBytes);
}

/// To start them takes longer than to decode a small picture.
int threadsFor(std::size_t bytes)
{
    constexpr std::size_t kWorthIt = 4'000'000;
    return bytes < kWorthIt ? 0 : int(std::thread::hardware_concurrency());
}

int reductionFor(const Codestream& codestream, int maxSide)
{
    if (maxSide <= 0)
        return 0;
    const opj_image_t& image = *codestream.image();
    const auto longerSide = std::int64_t(std::max(image.x1 - image.x0, image.y1 - image.y0));
    const int most = codestream.mostReductions();
    int reduce = 0;
    while (reduce < most && longerSide >> (reduce + 1) >= maxSide)
        ++reduce;
    return reduce;
}

VipsInterpretation interpretationOf(const Jp2Channels& channels)
{
    switch (channels.space) {
    case Jp2Color::Grey:
        return channels.isDeep ? VIPS_INTERPRETATION_GREY16 : VIPS_INTERPRETATION_B_W;
    case Jp2Color::Cmyk:
        return VIPS_INTERPRETATION_CMYK;
    default:
        return channels.isDeep ? VIPS_INTERPRETATION_RGB16 : VIPS_INTERPRETATION_sRGB;
    }
}

} // namespace

void openJpeg2000(OpenPicture& picture, const PictureInput& input, int maxSide)
{
    const Bytes file = PictureInput::wholeContent(picture.source.get());
    const std::optional<Jp2Boxes> boxes = jp2BoxesOf(file);
    if (!boxes || boxes->codestream.empty())
        return;
    const auto header = std::make_unique<Codestream>(boxes->codestream, 0, 0);
    if (!header->image() || claimsTooMuch(*header->image(), input.size()))
        return;
    const int reduce = reductionFor(*header, maxSide);
    std::string refusal;
    const std::optional<Jp2Channels> channels = channelsOf(*header->image(), *boxes, reduce, refusal);
    if (!channels) {
        vips_error("lumivex", "%s", refusal.c_str());
        picture.refusal = Reason::StrangePixels;
        return;
    }
    const PixelLayout layout{channels->width, channels->height,
        int(channels->colors.size()) + (channels->alpha ? 1 : 0),
        channels->isDeep ? VIPS_FORMAT_USHORT : VIPS_FORMAT_UCHAR, interpretationOf(*channels)};
    picture.image = deferredImage(
        layout, [=, boxes = *boxes, channels = *channels, source = held(picture.source)](std::span<std::byte> pixels) {
            Codestream codestream(boxes.codestream, reduce, threadsFor(pixels.size()));
            return codestream.decode() && composeJp2(*codestream.image(), boxes, channels, reduce, pixels);
        });
    if (picture.image && !boxes->profile.empty())
        vips_image_set_blob_copy(picture.image.get(), VIPS_META_ICC_NAME, boxes->profile.data(), boxes->profile.size());
}

} // namespace imageio
