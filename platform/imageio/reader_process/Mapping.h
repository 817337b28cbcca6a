// Memory that processes share.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <new>

#include <sys/mman.h>

namespace imageio {

/// Bytes of an opened file, mapped as long as somebody holds them. Large ones lie so that the system can give them
/// large pages. Throws std::bad_alloc when there is no room.
inline std::shared_ptr<std::byte> mapped(int descriptor, std::size_t bytes, int protection, int flags)
{
    constexpr std::size_t kLargePage = std::size_t(2) << 20;
    const std::size_t room = bytes + kLargePage;
    void* const reserved = ::mmap(nullptr, room, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
    if (reserved == MAP_FAILED)
        throw std::bad_alloc();
    const std::size_t offset = (kLargePage - reinterpret_cast<std::uintptr_t>(reserved) % kLargePage) % kLargePage;
    std::byte* const start = static_cast<std::byte*>(reserved) + offset;
    std::shared_ptr<std::byte> owner(start, [reserved, room](std::byte*) { ::munmap(reserved, room); });
    if (::mmap(start, bytes, protection, flags | MAP_FIXED, descriptor, 0) == MAP_FAILED)
        throw std::bad_alloc();
    ::madvise(start, bytes, MADV_HUGEPAGE);
    return owner;
}

} // namespace imageio
