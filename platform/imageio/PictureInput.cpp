#include "platform/imageio/PictureInput.h"

#include <algorithm>
#include <cerrno>
#include <cstring>

namespace imageio {

namespace fs = std::filesystem;

Result<PictureInput> PictureInput::fromFile(const fs::path& path)
{
    PictureInput input;
    input.m_path = path;
    input.m_name = path.filename().string();
    std::error_code error;
    const fs::file_status status = fs::status(path, error);
    if (status.type() == fs::file_type::not_found)
        return input.failure(Reason::NoFile);
    if (status.type() == fs::file_type::directory)
        return input.failure(Reason::IsFolder);
    if (status.type() != fs::file_type::regular) // a pipe or a device could block for ever
        return input.failure(Reason::NotOrdinary);
    if (std::FILE* file = std::fopen(path.c_str(), "rbe"))
        input.m_file = std::shared_ptr<std::FILE>(file, CloseFile());
    else
        return input.failure(Reason::CannotRead, std::strerror(errno));
    input.m_size = std::size_t(fs::file_size(path, error));
    if (error || input.m_size == 0)
        return input.failure(Reason::Empty);
    input.m_format = formatOfContent(input.reader());
    return input;
}

Result<PictureInput> PictureInput::fromMemory(std::span<const std::byte> content, const std::string& name)
{
    PictureInput input;
    input.m_name = name;
    input.m_memory = content;
    input.m_size = content.size();
    if (content.empty())
        return input.failure(Reason::Empty);
    input.m_format = formatOfContent(input.reader());
    return input;
}

ReadBytes PictureInput::reader() const
{
    if (!m_file)
        return [memory = m_memory](std::size_t offset, std::size_t size) {
            const auto part = memory.subspan(std::min(offset, memory.size()));
            return std::vector(part.begin(), part.begin() + std::ptrdiff_t(std::min(size, part.size())));
        };
    return [file = m_file](std::size_t offset, std::size_t size) {
        std::vector<std::byte> bytes(size);
        if (std::fseek(file.get(), long(offset), SEEK_SET) != 0)
            bytes.clear();
        else
            bytes.resize(std::fread(bytes.data(), 1, size, file.get()));
        return bytes;
    };
}

VipsSourcePtr PictureInput::source() const
{
    return VipsSourcePtr(m_file ? vips_source_new_from_file(m_path.c_str())
                                : vips_source_new_from_memory(m_memory.data(), m_memory.size()));
}

std::span<const std::byte> PictureInput::wholeContent(VipsSource* source)
{
    std::size_t size = 0;
    const void* bytes = vips_source_map(source, &size);
    return {static_cast<const std::byte*>(bytes), bytes ? size : 0};
}

} // namespace imageio
