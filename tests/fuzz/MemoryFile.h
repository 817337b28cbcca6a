// A file for readers that ask for one, without a disk.
#pragma once

#include <cstddef>
#include <filesystem>
#include <span>
#include <stdexcept>
#include <string>

#include <sys/mman.h>
#include <unistd.h>

class MemoryFile {
public:
    explicit MemoryFile(std::span<const std::byte> content)
        : m_descriptor(::memfd_create("lumivex", MFD_CLOEXEC))
    {
        if (m_descriptor < 0 || ::write(m_descriptor, content.data(), content.size()) != ssize_t(content.size()))
            throw std::runtime_error("There is no memory for a file.");
    }
    ~MemoryFile() { ::close(m_descriptor); }
    MemoryFile(const MemoryFile&) = delete;
    MemoryFile& operator=(const MemoryFile&) = delete;

    std::filesystem::path path() const { return "/proc/self/fd/" + std::to_string(m_descriptor); }

private:
    int m_descriptor;
};
