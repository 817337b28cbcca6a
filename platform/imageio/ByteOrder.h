// Numbers as bytes of a file.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace imageio {

/// Collects the bytes of a file's header.
class ByteSink {
public:
    void text(std::string_view characters)
    {
        for (const char c : characters)
            m_bytes.push_back(std::byte(c));
    }
    void little16(std::uint32_t value) { little(value, 2); }
    void little32(std::uint32_t value) { little(value, 4); }
    void big32(std::uint32_t value)
    {
        for (int shift = 24; shift >= 0; shift -= 8)
            byte(std::uint8_t(value >> shift));
    }
    void byte(std::uint8_t value) { m_bytes.push_back(std::byte(value)); }
    void zeros(std::size_t count) { m_bytes.resize(m_bytes.size() + count); }

    const void* data() const { return m_bytes.data(); }
    std::size_t size() const { return m_bytes.size(); }

private:
    void little(std::uint32_t value, int bytes)
    {
        for (int i = 0; i < bytes; ++i)
            byte(std::uint8_t(value >> (8 * i)));
    }

    std::vector<std::byte> m_bytes;
};

} // namespace imageio
