#include "platform/imageio/reader_process/WarmUp.h"

#include "platform/imageio/MetadataCopy.h"
#include "platform/imageio/PictureLoad.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <ctime>
#include <filesystem>

namespace imageio {

namespace {

using namespace std::string_view_literals;

/// Opened and decoded, which loads modules and settings, without the pool of threads that reading a whole picture
/// takes.
void touch(std::string_view file)
{
    const auto input = PictureInput::fromMemory(std::as_bytes(std::span(file)));
    if (input && input->format()) {
        constexpr int kSmall = 16; // px
        const OpenPicture picture = openPicture(*input, kSmall);
        if (picture.image) {
            VipsRegion* const region = vips_region_new(picture.image.get());
            const VipsRect all{
                0, 0, vips_image_get_width(picture.image.get()), vips_image_get_height(picture.image.get())};
            vips_region_prepare(region, &all);
            g_object_unref(region);
        }
    }
    vips_error_clear();
}

/// One for each library that loads something late. Those that draw find their fonts themselves.
struct Sample {
    std::vector<PictureFormat> formats;
    std::string_view file;
};

const std::vector<Sample>& samples()
{
    static const std::vector<Sample> all{
        {{PictureFormat::Heif, PictureFormat::Avif},
            "\0\0\0\x14"
            "ftypavif\0\0\0\0avif"sv},
        {{PictureFormat::Psd}, "8BPS\0\1\0\0\0\0\0\0\0\1\0\0\0\1\0\0\0\1\0\1\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0"sv},
        {{PictureFormat::Sgi}, "\1\xda\0\1\0\2\0\1\0\1\0\1"sv},
        {{PictureFormat::Xcf}, "gimp xcf file\0\0\0\0\1\0\0\0\1\0\0\0\0"sv},
        {{PictureFormat::Pcx}, "\x0a\5\1\x08\0\0\0\0\0\0\0\0"sv},
    };
    return all;
}

/// The usual settings of ImageMagick put large pictures into files, which a reader can't make.
void setMagickFolder()
{
    std::error_code error;
    const auto program = std::filesystem::read_symlink("/proc/self/exe", error);
    const auto folder = program.parent_path().parent_path() / "share/lumivex/magick";
    ::setenv("MAGICK_CONFIGURE_PATH", folder.c_str(), 1);
}

void warmUpBasics()
{
    ::tzset();
    setMagickFolder();
    useVips();
    prepareExiv2();
}

} // namespace

void warmUp(const std::function<bool()>& isHurried)
{
    warmUpBasics();
    for (const Sample& sample : samples())
        if (!isHurried())
            touch(sample.file);
}

void warmUpFor(const FileFormat& format)
{
    for (const Sample& sample : samples())
        if (std::ranges::count(sample.formats, format.format))
            touch(sample.file);
}

} // namespace imageio
