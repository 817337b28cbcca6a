#include "tools/lumivex-render/BatchFiles.h"

#include <stdexcept>

#include <sys/stat.h>

namespace {

namespace fs = std::filesystem;

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

BatchFile BatchFiles::plan(const fs::path& input)
{
    const auto reader = std::make_shared<ReaderProcess>(input);
    const Result<PictureInfo> info = reader->readInfo();
    ReaderProcess::prepare(); // the next one gets ready meanwhile
    if (!info)
        throw std::runtime_error(info.message());
    // That of the picture's own content, whatever its name says. Icons have sides of their own, so a filtered one may
    // fit into none.
    const FileFormat& format = fileFormat(info->format);
    const bool isKept = format.encode && !format.isIcon;
    BatchFile file{
        input, m_folder / input.filename(), isKept ? format.format : PictureFormat::Png, memoryFor(*info), reader};
    if (!isKept)
        file.output.replace_extension(".png");
    FileIdentity identity;
    if (identify(file.output, identity) && m_inputs.contains(identity))
        throw std::runtime_error(
            "it would overwrite the input file " + file.output.string() + "; choose another folder");
    if (!m_taken.insert(file.output).second)
        throw std::runtime_error("another of these files is written to " + file.output.string());
    return file;
}
