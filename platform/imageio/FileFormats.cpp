#include "platform/imageio/FileFormats.h"

#include "platform/imageio/BmpWriter.h"
#include "platform/imageio/ExrWriter.h"
#include "platform/imageio/IconWriter.h"
#include "platform/imageio/PictureWriter.h"
#include "platform/imageio/readers/Readers.h"

#include <algorithm>
#include <map>
#include <mutex>

namespace {

using namespace imageio;
using namespace std::string_view_literals;

// The translators' tool finds its texts by the name of this macro.
#define QT_TRANSLATE_NOOP(context, text) text

constexpr const char* kNone = QT_TRANSLATE_NOOP("ExportPanel", "None");

int qualityOf(const WriteOptions& options) { return std::clamp(int(options.quality * 100 + 0.5), 1, 100); }

VipsForeignSubsample chromaOf(const WriteOptions& options)
{
    return options.hasFullChroma ? VIPS_FOREIGN_SUBSAMPLE_OFF : VIPS_FOREIGN_SUBSAMPLE_AUTO;
}

int writeHeif(VipsImage* image, VipsTarget* target, const WriteOptions& options, VipsForeignHeifCompression compression)
{
    const bool isDeep = vips_image_get_format(image) == VIPS_FORMAT_USHORT;
    return vips_heifsave_target(image, target, "compression", compression, "Q", qualityOf(options), "lossless",
        gboolean(options.isLossless), "strip", !vips_image_get_typeof(image, VIPS_META_EXIF_NAME), "bitdepth",
        isDeep ? fileFormat(options.format).writtenBits : 8, "subsample_mode",
        options.isLossless ? VIPS_FOREIGN_SUBSAMPLE_OFF : chromaOf(options), nullptr);
}

std::vector<FileFormat> table()
{
    return {
        {.format = PictureFormat::Jpeg,
            .name = "JPEG",
            .typeIdentifier = "public.jpeg",
            .mimeTypes = {"image/jpeg"},
            .extensions = {"jpg", "jpeg", "jpe", "jfif"},
            .signatures = {"\xff\xd8\xff"},
            .open = openJpeg,
            .readsReduced = true,
            .readsParts = true,
            .encode =
                [](VipsImage* image, VipsTarget* target, const WriteOptions& options) {
                    return vips_jpegsave_target(image, target, "Q", qualityOf(options), "optimize_coding", TRUE,
                        "interlace", gboolean(options.isProgressive), "subsample_mode", chromaOf(options), nullptr);
                },
            .writesAlpha = false,
            .options = {.quality = true, .chroma = true, .progressive = true, .resolution = true, .metadata = true},
            .exportName = "JPEG"},
        {.format = PictureFormat::Jpeg2000,
            .name = "JPEG 2000",
            .typeIdentifier = "public.jpeg-2000",
            .mimeTypes = {"image/jp2", "image/jpx", "image/x-jp2-codestream"},
            .extensions = {"jp2", "j2k", "j2c", "jpc", "jpx", "jpf", "jph", "jhc", "jpeg-2000"},
            .signatures = {"\0\0\0\x0cjP  "sv, "\xff\x4f\xff\x51"},
            .open = openJpeg2000,
            .readsReduced = true,
            .encode =
                [](VipsImage* image, VipsTarget* target, const WriteOptions& options) {
                    return vips_jp2ksave_target(
                        image, target, "Q", qualityOf(options), "lossless", gboolean(options.isLossless), nullptr);
                },
            .writtenBits = 16,
            .writesProfile = false,
            .options = {.quality = true, .lossless = true, .metadata = true},
            .exportName = "JPEG-2000"},
        {.format = PictureFormat::CameraRaw, // before TIFF, which many of them are, too
            .name = "Camera raw",
            .typeIdentifier = "public.camera-raw-image",
            .mimeTypes = {"image/x-adobe-dng", "image/x-canon-cr2", "image/x-canon-cr3", "image/x-canon-crw",
                "image/x-nikon-nef", "image/x-nikon-nrw", "image/x-sony-arw", "image/x-sony-srf", "image/x-sony-sr2",
                "image/x-fuji-raf", "image/x-olympus-orf", "image/x-panasonic-rw", "image/x-panasonic-rw2",
                "image/x-pentax-pef", "image/x-samsung-srw", "image/x-kodak-kdc", "image/x-minolta-mrw",
                "image/x-sigma-x3f"},
            .extensions = {"dng", "cr2", "cr3", "crw", "nef", "nrw", "arw", "srf", "sr2", "raf", "orf", "rw2", "pef",
                "srw", "raw", "rwl", "3fr", "erf", "kdc", "mos", "mrw", "x3f", "iiq"},
            .signatures = {"IIU\0"sv, "IIRO", "IIRS", "MMOR", "FUJIFILMCCD-RAW", "II\x1a\0\0\0HEAPCCDR"sv, "\0MRM"sv,
                "FOVb"},
            .recognizes = isCameraRaw},
        {.format = PictureFormat::Tiff,
            .name = "TIFF",
            .typeIdentifier = "public.tiff",
            .mimeTypes = {"image/tiff"},
            .extensions = {"tif", "tiff"},
            .signatures = {"II*\0"sv, "MM\0*"sv, "II+\0"sv, "MM\0+"sv},
            .open = openTiff,
            .encode =
                [](VipsImage* image, VipsTarget* target, const WriteOptions& options) {
                    constexpr VipsForeignTiffCompression kCompressions[] = {VIPS_FOREIGN_TIFF_COMPRESSION_LZW,
                        VIPS_FOREIGN_TIFF_COMPRESSION_DEFLATE, VIPS_FOREIGN_TIFF_COMPRESSION_NONE};
                    return vips_tiffsave_target(image, target, "compression", kCompressions[options.compression],
                        "predictor", VIPS_FOREIGN_TIFF_PREDICTOR_HORIZONTAL, nullptr);
                },
            .writtenBits = 16,
            .options = {.compressions = {"LZW", "Deflate", kNone}, .resolution = true, .metadata = true},
            .exportName = "TIFF"},
        {.format = PictureFormat::Gif,
            .name = "GIF",
            .typeIdentifier = "com.compuserve.gif",
            .mimeTypes = {"image/gif"},
            .extensions = {"gif"},
            .signatures = {"GIF8"},
            .open = openGif,
            .encode = [](VipsImage* image, VipsTarget* target,
                          const WriteOptions&) { return vips_gifsave_target(image, target, nullptr); },
            .writesProfile = false,
            .exportName = "GIF"},
        {.format = PictureFormat::Png,
            .name = "PNG",
            .typeIdentifier = "public.png",
            .mimeTypes = {"image/png", "image/apng"},
            .extensions = {"png", "apng"},
            .signatures = {"\x89PNG\r\n\x1a\n"},
            .open = openPng,
            .readsParts = true,
            .encode =
                [](VipsImage* image, VipsTarget* target, const WriteOptions& options) {
                    // A third of the time of the usual level for a seventh more bytes.
                    const bool isFast = options.compression == 0;
                    return vips_pngsave_target(image, target, "compression", isFast ? 2 : 9, "filter",
                        isFast ? VIPS_FOREIGN_PNG_FILTER_SUB : VIPS_FOREIGN_PNG_FILTER_ALL, "interlace",
                        gboolean(options.isProgressive), nullptr);
                },
            .writtenBits = 16,
            .options = {.progressive = true,
                .compressions = {QT_TRANSLATE_NOOP("ExportPanel", "Fast"), QT_TRANSLATE_NOOP("ExportPanel", "Small")},
                .resolution = true,
                .metadata = true},
            .exportName = "PNG"},
        {.format = PictureFormat::Bmp,
            .name = "BMP",
            .typeIdentifier = "com.microsoft.bmp",
            .mimeTypes = {"image/bmp"},
            .extensions = {"bmp", "dib"},
            .recognizes = isBmp,
            .open = openBmp,
            .encode = [](VipsImage* image, VipsTarget* target,
                          const WriteOptions& options) { return writeBmp(image, target, options.dotsPerInch); },
            .writesProfile = false,
            .options = {.resolution = true},
            .exportName = "BMP"},
        {.format = PictureFormat::Icns,
            .name = "ICNS",
            .typeIdentifier = "com.apple.icns",
            .mimeTypes = {"image/x-icns"},
            .extensions = {"icns"},
            .signatures = {"icns"},
            .open = openIcns,
            .encode = [](VipsImage* image, VipsTarget* target,
                          const WriteOptions&) { return writeIcns(image, target); },
            .writesProfile = false,
            .isIcon = true,
            .exportName = "ICNS"},
        {.format = PictureFormat::Pdf,
            .name = "PDF",
            .typeIdentifier = "com.adobe.pdf",
            .mimeTypes = {"application/pdf"},
            .extensions = {"pdf"},
            .signatures = {"%PDF-"},
            .open = openPdf,
            .isDrawing = true,
            .exportName = "PDF"}, // a document, not written here
        {.format = PictureFormat::WebP,
            .name = "WebP",
            .typeIdentifier = "org.webmproject.webp",
            .mimeTypes = {"image/webp"},
            .extensions = {"webp"},
            .recognizes = isWebP,
            .open = openWebP,
            .encode =
                [](VipsImage* image, VipsTarget* target, const WriteOptions& options) {
                    return vips_webpsave_target(
                        image, target, "Q", qualityOf(options), "lossless", gboolean(options.isLossless), nullptr);
                },
            .options = {.quality = true, .lossless = true, .resolution = true, .metadata = true}},
        {.format = PictureFormat::Avif, // before HEIF, whose brands its files have, too
            .name = "AVIF",
            .typeIdentifier = "public.avif",
            .mimeTypes = {"image/avif"},
            .extensions = {"avif"},
            .recognizes = isAvif,
            .loader = "heifload_source",
            .isUpright = true,
            .encode =
                [](VipsImage* image, VipsTarget* target, const WriteOptions& options) {
                    return writeHeif(image, target, options, VIPS_FOREIGN_HEIF_COMPRESSION_AV1);
                },
            .writtenBits = 12,
            .options = {.quality = true, .chroma = true, .lossless = true, .resolution = true, .metadata = true}},
        {.format = PictureFormat::Heif,
            .name = "HEIF",
            .typeIdentifier = "public.heic",
            .mimeTypes = {"image/heif", "image/heic"},
            .extensions = {"heic", "heif", "hif"},
            .recognizes = isHeif,
            .loader = "heifload_source",
            .isUpright = true,
            .encode =
                [](VipsImage* image, VipsTarget* target, const WriteOptions& options) {
                    return writeHeif(image, target, options, VIPS_FOREIGN_HEIF_COMPRESSION_HEVC);
                },
            .options = {.quality = true, .chroma = true, .lossless = true, .resolution = true, .metadata = true}},
        {.format = PictureFormat::JpegXl,
            .name = "JPEG XL",
            .typeIdentifier = "public.jpeg-xl",
            .mimeTypes = {"image/jxl"},
            .extensions = {"jxl"},
            .signatures = {"\0\0\0\x0cJXL \r\n\x87\n"sv, "\xff\x0a"},
            .loader = "jxlload_source",
            .isUpright = true,
            .encode =
                [](VipsImage* image, VipsTarget* target, const WriteOptions& options) {
                    return vips_jxlsave_target(
                        image, target, "Q", qualityOf(options), "lossless", gboolean(options.isLossless), nullptr);
                },
            .writtenBits = 16,
            .options = {.quality = true, .lossless = true}},
        {.format = PictureFormat::Svg,
            .name = "SVG",
            .typeIdentifier = "public.svg-image",
            .mimeTypes = {"image/svg+xml", "image/svg+xml-compressed"},
            .extensions = {"svg", "svgz"},
            .recognizes = isSvg,
            .open = openSvg,
            .isDrawing = true},
        {.format = PictureFormat::Exr,
            .name = "OpenEXR",
            .typeIdentifier = "com.ilm.openexr-image",
            .mimeTypes = {"image/x-exr"},
            .extensions = {"exr"},
            .signatures = {"\x76\x2f\x31\x01"},
            .open = openExr,
            .isPremultiplied = true,
            .encode = writeExr,
            .writtenBits = 32,
            .options = {.compressions = {"ZIP", "PIZ", kNone}}},
        {.format = PictureFormat::Psd,
            .name = "PSD",
            .typeIdentifier = "com.adobe.photoshop-image",
            .mimeTypes = {"image/vnd.adobe.photoshop"},
            .extensions = {"psd", "psb"},
            .signatures = {"8BPS"},
            .open = openPsd},
        {.format = PictureFormat::Ico,
            .name = "ICO",
            .typeIdentifier = "com.microsoft.ico",
            .mimeTypes = {"image/vnd.microsoft.icon"},
            .extensions = {"ico"},
            .signatures = {"\0\0\x01\0"sv},
            .open = openIco,
            .encode = [](VipsImage* image, VipsTarget* target, const WriteOptions&) { return writeIco(image, target); },
            .writesProfile = false,
            .isIcon = true},
        {.format = PictureFormat::Sgi,
            .name = "SGI",
            .typeIdentifier = "com.sgi.sgi-image",
            .mimeTypes = {"image/x-sgi"},
            .extensions = {"sgi"},
            .recognizes = isSgi,
            .open = openThroughMagick},
        {.format = PictureFormat::Pnm,
            .name = "PNM",
            .typeIdentifier = "public.pbm",
            .mimeTypes = {"image/x-portable-anymap", "image/x-portable-bitmap", "image/x-portable-graymap",
                "image/x-portable-pixmap", "image/x-portable-arbitrarymap", "image/x-portable-floatmap"},
            .extensions = {"pnm", "pbm", "pgm", "ppm", "pam", "pfm"},
            .recognizes = isPnm,
            .open = openPnm},
        {.format = PictureFormat::Qoi,
            .name = "QOI",
            .typeIdentifier = "org.qoiformat.qoi",
            .mimeTypes = {"image/qoi"},
            .extensions = {"qoi"},
            .signatures = {"qoif"},
            .open = openQoi},
        {.format = PictureFormat::Radiance,
            .name = "Radiance",
            .typeIdentifier = "public.radiance",
            .mimeTypes = {"image/vnd.radiance"},
            .extensions = {"hdr", "rgbe"},
            .signatures = {"#?RADIANCE", "#?RGBE"},
            .open = openRadiance},
        {.format = PictureFormat::Xcf,
            .name = "XCF",
            .typeIdentifier = "org.gimp.xcf",
            .mimeTypes = {"image/x-xcf"},
            .extensions = {"xcf"},
            .signatures = {"gimp xcf "},
            .open = openThroughMagick},
        {.format = PictureFormat::Pcx,
            .name = "PCX",
            .typeIdentifier = "com.zsoft.pcx",
            .mimeTypes = {"image/vnd.zbrush.pcx"},
            .extensions = {"pcx"},
            .signatures = {"\x0a\x00\x01"sv, "\x0a\x02\x01", "\x0a\x03\x01", "\x0a\x05\x01"},
            .open = openThroughMagick},
        {.format = PictureFormat::Tga, // last, since its files have no start of their own
            .name = "TGA",
            .typeIdentifier = "com.truevision.tga-image",
            .mimeTypes = {"image/x-tga"},
            .extensions = {"tga"},
            .recognizes = isTga,
            .open = openTga},
    };
}

const FileFormat* firstOf(const std::vector<FileFormat>& formats, const auto& matches)
{
    const auto found = std::ranges::find_if(formats, matches);
    return found == formats.end() ? nullptr : &*found;
}

} // namespace

const std::vector<FileFormat>& fileFormats()
{
    static const std::vector<FileFormat> formats = table();
    return formats;
}

const FileFormat& fileFormat(PictureFormat format) { return fileFormats()[std::size_t(format)]; }

bool canWrite(const FileFormat& format)
{
    static std::mutex guard;
    static std::map<PictureFormat, bool> known;
    const std::lock_guard lock(guard);
    const auto [entry, isNew] = known.try_emplace(format.format, false);
    if (isNew && format.encode) {
        constexpr int kSide = 16; // some encoders refuse the smallest pictures
        CIBitmap tried(kSide, kSide);
        tried.setOpaque();
        entry->second = encodePicture(tried, {.format = format.format}).isOk();
    }
    return entry->second;
}

const FileFormat* formatOfType(std::string_view typeIdentifier)
{
    return firstOf(fileFormats(), [&](const FileFormat& row) { return row.typeIdentifier == typeIdentifier; });
}

const FileFormat* formatOfExtension(std::string_view extension)
{
    return firstOf(
        fileFormats(), [&](const FileFormat& row) { return std::ranges::count(row.extensions, extension) > 0; });
}

const FileFormat* formatOfContent(const ReadBytes& read)
{
    constexpr std::size_t kHeadBytes = 4096, kFewest = 12;
    const std::vector<std::byte> bytes = read(0, kHeadBytes);
    const std::string_view head(reinterpret_cast<const char*>(bytes.data()), bytes.size());
    if (head.size() < kFewest)
        return nullptr;
    return firstOf(fileFormats(), [&](const FileFormat& row) {
        return row.isRead() && (std::ranges::any_of(row.signatures, [&](std::string_view start) {
            return head.starts_with(start);
        }) || (row.recognizes && row.recognizes(head, read)));
    });
}
