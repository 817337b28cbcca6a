// What two processes say to each other.
#pragma once

#include "platform/imageio/Parcel.h"

#include <chrono>
#include <mutex>
#include <optional>
#include <utility>

namespace imageio {

/// Owns a file descriptor.
class Descriptor {
public:
    explicit Descriptor(int number = -1)
        : m_number(number)
    {
    }
    Descriptor(Descriptor&& other) noexcept
        : m_number(std::exchange(other.m_number, -1))
    {
    }
    Descriptor& operator=(Descriptor&& other) noexcept
    {
        std::swap(m_number, other.m_number);
        return *this;
    }
    ~Descriptor();
    int number() const { return m_number; }
    explicit operator bool() const { return m_number >= 0; }

private:
    int m_number;
};

enum class Word : std::uint32_t {
    // The program:
    File, // its name; with a descriptor
    Picture, // options
    Info,
    Properties,
    Metadata,
    Memory, // with the descriptor of as many bytes as were asked for, or without one
    // The reader:
    Progress, // float
    Log, // a line
    NeedsMemory, // bytes
    Failed, // reason, detail
    Done, // what was asked for
};

struct Message {
    Word word = Word::Failed;
    std::string body{};
    Descriptor descriptor{};
};

/// One end of a socket. Any thread may send, one at a time may receive.
class Channel {
public:
    explicit Channel(Descriptor socket)
        : m_socket(std::move(socket))
    {
    }

    /// False when nobody is at the other end.
    bool send(Word word, const Parcel& body = {}, int descriptor = -1);

    /// The next message; none when there is no whole one in that time.
    std::optional<Message> receive(std::chrono::milliseconds timeLimit);
    bool isClosed() const { return m_isClosed; } // noticed by receive(), or what came was no message

    /// Whether receive() would have something to do at once.
    bool isAwaited() const;
    /// Whether the other end is gone; waits that long for it to go.
    bool isLeft(std::chrono::milliseconds timeLimit) const;
    int socket() const { return m_socket.number(); }

private:
    std::optional<Message> takeMessage();
    void takeBytes();

    Descriptor m_socket;
    std::mutex m_sending;
    std::string m_arrived;
    Descriptor m_descriptor; // that came last, until its message is complete
    bool m_isClosed = false;
};

} // namespace imageio
