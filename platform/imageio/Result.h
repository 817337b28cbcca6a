// A value, or the reason why there is none.
#pragma once

#include <string>
#include <utility>
#include <variant>

/// Why something failed, as one or two sentences fit to show to the user.
struct Failure {
    std::string message;
};

/// Holds a value or a message. Ask before taking: `value()` of a failure throws std::bad_variant_access.
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

    /// The message; empty when there is a value.
    std::string message() const { return isOk() ? std::string() : std::get<1>(m_state).message; }
    Failure failure() const { return {message()}; }

private:
    std::variant<T, Failure> m_state;
};

template <>
class [[nodiscard]] Result<void> {
public:
    Result() = default;
    Result(Failure failure)
        : m_message(std::move(failure.message))
        , m_ok(false)
    {
    }

    bool isOk() const { return m_ok; }
    explicit operator bool() const { return m_ok; }
    const std::string& message() const { return m_message; }
    Failure failure() const { return {m_message}; }

private:
    std::string m_message;
    bool m_ok = true;
};
