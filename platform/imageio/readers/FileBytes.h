// Numbers of a file that lies in memory.
#pragma once

#include <algorithm>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

namespace imageio {

using Bytes = std::span<const std::byte>;

/// All places count from the start; beyond the end there are zeros, and parts are shorter.
template <std::endian kOrder>
class FileBytes {
public:
    explicit FileBytes(Bytes bytes)
        : m_bytes(bytes)
    {
    }
    std::size_t size() const { return m_bytes.size(); }
    std::uint32_t u8(std::size_t at) const { return number(at, 1); }
    std::uint32_t u16(std::size_t at) const { return number(at, 2); }
    std::uint32_t u32(std::size_t at) const { return number(at, 4); }
    Bytes part(std::size_t at, std::size_t size = std::dynamic_extent) const
    {
        const Bytes rest = m_bytes.subspan(std::min(at, m_bytes.size()));
        return rest.first(std::min(size, rest.size()));
    }
    std::string_view text(std::size_t at, std::size_t size) const
    {
        const Bytes bytes = part(at, size);
        return {reinterpret_cast<const char*>(bytes.data()), bytes.size()};
    }

private:
    std::uint32_t number(std::size_t at, std::size_t size) const
    {
        const Bytes bytes = part(at, size);
        if (bytes.size() < size)
            return 0;
        std::uint32_t value = 0;
        for (std::size_t i = 0; i < size; ++i)
            value =
                value << 8 | std::to_integer<std::uint32_t>(bytes[kOrder == std::endian::little ? size - 1 - i : i]);
        return value;
    }

    Bytes m_bytes;
};

using LittleEndian = FileBytes<std::endian::little>;
using BigEndian = FileBytes<std::endian::big>;

} // namespace imageio
