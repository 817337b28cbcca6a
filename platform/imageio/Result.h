// A value, or the reason why there is none.
#pragma once

#include "platform/imageio/Failure.h"

#include <utility>
#include <variant>

/// Ask before taking: `value()` of a failure and `failure()` of a value throw std::bad_variant_access.
template <class T>
class [[nodiscard]] Result {
public:
    Result(T value)
        : m_state(std::move(value))
    {
    }
    Result(Failure failure)
        : m_state(std::move(failure))
    {
    }

    bool isOk() const { return m_state.index() == 0; }
    explicit operator bool() const { return isOk(); }

    T& value() & { return std::get<0>(m_state); }
    const T& value() const& { return std::get<0>(m_state); }
    T&& value() && { return std::get<0>(std::move(m_state)); }
    T& operator*() { return value(); }
    const T& operator*() const { return value(); }
    T* operator->() { return &value(); }
    const T* operator->() const { return &value(); }

    const Failure& failure() const { return std::get<1>(m_state); }
    /// In English; empty when there is a value.
    std::string message() const { return isOk() ? std::string() : englishText(failure()); }

private:
    std::variant<T, Failure> m_state;
};

template <>
class [[nodiscard]] Result<void> : public Result<std::monostate> {
public:
    Result()
        : Result<std::monostate>(std::monostate())
    {
    }
    using Result<std::monostate>::Result;
};
