// The bytes of one picture file, on disk or in memory.
#pragma once

#include "platform/imageio/FileFormats.h"
#include "platform/imageio/Result.h"
#include "platform/imageio/Vips.h"

#include <cstdio>
#include <filesystem>
#include <memory>
#include <span>

namespace imageio {

class PictureInput {
public:
    /// Fails when there is no regular, readable file with at least one byte.
    static Result<PictureInput> fromFile(const std::filesystem::path&);
    static Result<PictureInput> fromMemory(std::span<const std::byte>, const std::string& name = {});

    /// Of the file, without its folder; empty for memory that came from none.
    const std::string& name() const { return m_name; }
    Failure failure(Reason reason, const std::string& detail = {}) const { return {reason, m_name, detail}; }
    const FileFormat* format() const { return m_format; } // null for an unknown one
    bool isOf(PictureFormat format) const { return m_format && m_format->format == format; }
    std::size_t size() const { return m_size; } // bytes
    ReadBytes reader() const;

    /// Null with a pending libvips error when the file can't be opened.
    VipsSourcePtr source() const;
    /// All bytes, mapped; valid as long as the source lives. Empty when that fails.
    static std::span<const std::byte> wholeContent(VipsSource*);

    /// A path for libraries that read only files; empty for memory.
    const std::filesystem::path& path() const { return m_path; }
    std::span<const std::byte> memory() const { return m_memory; }
    /// Of the opened file; -1 for memory.
    int descriptor() const { return m_file ? ::fileno(m_file.get()) : -1; }

private:
    struct CloseFile {
        void operator()(std::FILE* file) const { std::fclose(file); }
    };

    std::string m_name;
    std::filesystem::path m_path;
    std::shared_ptr<std::FILE> m_file;
    std::span<const std::byte> m_memory;
    std::size_t m_size = 0;
    const FileFormat* m_format = nullptr;
};

} // namespace imageio
