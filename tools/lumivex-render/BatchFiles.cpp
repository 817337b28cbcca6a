#include "tools/lumivex-render/BatchFiles.h"

#include <array>
#include <string_view>

#include <sys/stat.h>

namespace {

namespace fs = std::filesystem;

/// That of the picture's own content, whatever its name says. Icons have sides of their own, so a filtered one may fit
/// into none.
std::optional<PictureFormat> formatWithName(std::string_view name)
{
    constexpr std::array<std::pair<std::string_view, PictureFormat>, 7> writable{{
        {"JPEG", PictureFormat::Jpeg},
        {"JPEG 2000", PictureFormat::Jpeg2000},
        {"TIFF", PictureFormat::Tiff},
        {"GIF", PictureFormat::Gif},
        {"PNG", PictureFormat::Png},
        {"WebP", PictureFormat::WebP},
        {"BMP", PictureFormat::Bmp},
    }};
    for (const auto& [known, format] : writable)
        if (known == name)
            return format;
    return std::nullopt;
}

std::int64_t memoryFor(const PictureInfo& info)
{
    constexpr std::int64_t kCopies = 3; // the picture, the result, what the writer takes of it
    constexpr std::int64_t kWorking = 16; // bytes a pixel: filters of several steps hold one of them as floats
    const std::int64_t stored = info.isFloat ? 16 : info.bitsPerComponent > 8 ? 8 : 4;
    return std::int64_t(info.width) * info.height * (kCopies * stored + kWorking);
}

} // namespace

BatchFiles::BatchFiles(const std::vector<std::string>& inputs, fs::path folder)
    : m_folder(std::move(folder))
{
    FileIdentity identity;
    for (const std::string& input : inputs)
        if (identify(input, identity))
            m_inputs.insert(identity);
}

bool BatchFiles::identify(const fs::path& file, FileIdentity& identity)
{
    struct stat status { };
    if (::stat(file.c_str(), &status) != 0)
        return false;
    identity = {status.st_dev, status.st_ino};
    return true;
}

Result<BatchFile> BatchFiles::plan(const fs::path& input)
{
    const Result<PictureInfo> info = readPictureInfo(input);
    if (!info)
        return info.failure();
    BatchFile file{input, m_folder / input.filename(), PictureFormat::Png, memoryFor(*info)};
    if (const std::optional<PictureFormat> format = formatWithName(info->formatName))
        file.format = *format;
    else
        file.output.replace_extension(".png");
    FileIdentity identity;
    if (identify(file.output, identity) && m_inputs.contains(identity))
        return Failure{"it would overwrite the input file " + file.output.string() + "; choose another folder"};
    if (!m_taken.insert(file.output).second)
        return Failure{"another of these files is written to " + file.output.string()};
    return file;
}
