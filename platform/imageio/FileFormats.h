// The table of picture formats. Panels, drops, readers and writers go by it.
#pragma once

#include "platform/imageio/Signatures.h"

#include <string_view>
#include <vector>

typedef struct _VipsImage VipsImage;
typedef struct _VipsTarget VipsTarget;
struct WriteOptions;

namespace imageio {
class PictureInput;
struct OpenPicture;
} // namespace imageio

/// In the order of the table.
enum class PictureFormat {
    Jpeg,
    Jpeg2000,
    CameraRaw,
    Tiff,
    Gif,
    Png,
    Bmp,
    Icns,
    Pdf,
    WebP,
    Avif,
    Heif,
    JpegXl,
    Svg,
    Exr,
    Psd,
    Ico,
    Sgi,
    Pnm,
    Qoi,
    Radiance,
    Xcf,
    Pcx,
    Tga
};

/// What of `WriteOptions` the files of a format heed.
struct FormatOptions {
    bool quality = false, chroma = false, progressive = false, lossless = false;
    std::vector<const char*> compressions{}; // their names; the first is the standard one
    bool resolution = false, metadata = false;
};

struct FileFormat {
    PictureFormat format;
    const char* name;
    const char* typeIdentifier; // a uniform type identifier
    std::vector<std::string_view> mimeTypes;
    std::vector<std::string_view> extensions; // in lower case, without the dot
    std::vector<std::string_view> signatures{}; // its files begin with one of them,
    bool (*recognizes)(std::string_view head, const imageio::ReadBytes&) = nullptr; // or this tells

    // Reading: a loader of libvips that needs no more, a function, or neither. Camera raw has a library of its own.
    const char* loader = nullptr;
    void (*open)(imageio::OpenPicture&, const imageio::PictureInput&, int maxSide) = nullptr; // as openPicture does
    bool isDrawing = false; // without pixels of its own: rendered, which may take for ever
    bool isUpright = false; // the decoder has turned the picture, whatever its metadata say
    bool isPremultiplied = false;
    bool readsReduced = false; // much sooner than as a whole
    bool readsParts = false; // of a file that ends too early
    bool isRead() const { return loader || open || format == PictureFormat::CameraRaw; }

    // Writing; null for formats that are only read. Answers 0, or -1 with a pending libvips error.
    int (*encode)(VipsImage*, VipsTarget*, const WriteOptions&) = nullptr;
    int writtenBits = 8; // a component, at most; 32 are floats, and always written
    bool writesAlpha = true;
    bool writesProfile = true; // others are in sRGB
    FormatOptions options{};
    bool isIcon = false; // one square picture of a side that the format knows
    /// In the menu of the save panel, whose order is that of the table; in lower case it is the extension. Null for
    /// formats that aren't offered there.
    const char* exportName = nullptr;
};

const std::vector<FileFormat>& fileFormats();
const FileFormat& fileFormat(PictureFormat);

/// Whether the installed libraries can write such pictures: tries it once, with a small one. Any thread.
bool canWrite(const FileFormat&);

/// Null when there is none.
const FileFormat* formatOfType(std::string_view typeIdentifier);
const FileFormat* formatOfExtension(std::string_view extension); // in lower case, without the dot
const FileFormat* formatOfContent(const imageio::ReadBytes&);
