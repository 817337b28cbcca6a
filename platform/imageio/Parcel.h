// Values in a row of bytes, on their way between processes of one computer.
#pragma once

#include <cstdint>
#include <cstring>
#include <stdexcept>
#include <string>
#include <string_view>
#include <type_traits>

namespace imageio {

class Parcel {
public:
    template <class T>
    Parcel& put(T value)
    {
        static_assert(std::is_arithmetic_v<T> || std::is_enum_v<T>);
        m_bytes.append(reinterpret_cast<const char*>(&value), sizeof value);
        return *this;
    }
    Parcel& putText(std::string_view text)
    {
        put(std::uint32_t(text.size()));
        m_bytes.append(text);
        return *this;
    }
    const std::string& bytes() const { return m_bytes; }

private:
    std::string m_bytes;
};

/// Takes the values out in the order in which they were put in. Believes nothing: throws std::runtime_error when there
/// are fewer bytes than that takes, or an enumeration has no such value.
class Unpacking {
public:
    explicit Unpacking(std::string_view bytes)
        : m_rest(bytes)
    {
    }
    template <class T>
    T take()
    {
        static_assert(std::is_arithmetic_v<T> && !std::is_same_v<T, bool>); // whose bytes may be any
        T value;
        std::memcpy(&value, takeBytes(sizeof value).data(), sizeof value);
        return value;
    }
    bool takeBool() { return take<unsigned char>() != 0; }
    template <class T>
    T takeEnum(T last)
    {
        const auto number = take<std::underlying_type_t<T>>();
        using Number = std::underlying_type_t<T>;
        if (number < Number(0) || number > Number(last))
            throw std::runtime_error("a value that doesn't exist");
        return T(number);
    }
    std::string takeText() { return std::string(takeBytes(take<std::uint32_t>())); }

private:
    std::string_view takeBytes(std::size_t count)
    {
        if (count > m_rest.size())
            throw std::runtime_error("fewer bytes than announced");
        const std::string_view taken = m_rest.substr(0, count);
        m_rest.remove_prefix(count);
        return taken;
    }
    std::string_view m_rest;
};

} // namespace imageio
