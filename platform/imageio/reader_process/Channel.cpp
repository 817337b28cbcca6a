#include "platform/imageio/reader_process/Channel.h"

#include <array>
#include <cerrno>

#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

namespace imageio {

namespace {

struct Head {
    Word word;
    std::uint32_t bytes;
};

constexpr std::uint32_t kLongest = 64 << 20; // metadata have maps of depths at times

union DescriptorSpace { // aligned as the system wants it
    cmsghdr header;
    std::array<char, CMSG_SPACE(sizeof(int))> bytes;
};

bool sendAll(int socket, std::string_view bytes, int descriptor)
{
    while (!bytes.empty()) {
        iovec part{const_cast<char*>(bytes.data()), bytes.size()};
        msghdr message{};
        message.msg_iov = &part;
        message.msg_iovlen = 1;
        DescriptorSpace space{};
        if (descriptor >= 0) {
            message.msg_control = &space;
            message.msg_controllen = sizeof space;
            cmsghdr* const attached = CMSG_FIRSTHDR(&message);
            attached->cmsg_level = SOL_SOCKET;
            attached->cmsg_type = SCM_RIGHTS;
            attached->cmsg_len = CMSG_LEN(sizeof descriptor);
            std::memcpy(CMSG_DATA(attached), &descriptor, sizeof descriptor);
        }
        const ssize_t sent = ::sendmsg(socket, &message, MSG_NOSIGNAL);
        if (sent < 0 && errno == EINTR)
            continue;
        if (sent <= 0)
            return false;
        descriptor = -1; // goes along with the first bytes
        bytes.remove_prefix(std::size_t(sent));
    }
    return true;
}

short eventsOf(int socket, short wanted, std::chrono::milliseconds timeLimit)
{
    pollfd entry{socket, wanted, 0};
    return ::poll(&entry, 1, int(timeLimit.count())) > 0 ? entry.revents : short(0);
}

} // namespace

Descriptor::~Descriptor()
{
    if (m_number >= 0)
        ::close(m_number);
}

bool Channel::send(Word word, const Parcel& body, int descriptor)
{
    const Head head{word, std::uint32_t(body.bytes().size())};
    const std::string bytes = std::string(reinterpret_cast<const char*>(&head), sizeof head) + body.bytes();
    const std::lock_guard lock(m_sending);
    return sendAll(m_socket.number(), bytes, descriptor);
}

std::optional<Message> Channel::receive(std::chrono::milliseconds timeLimit)
{
    const auto deadline = std::chrono::steady_clock::now() + timeLimit;
    for (;;) {
        if (std::optional<Message> message = takeMessage())
            return message;
        const auto left = std::chrono::ceil<std::chrono::milliseconds>(deadline - std::chrono::steady_clock::now());
        if (m_isClosed || !eventsOf(m_socket.number(), POLLIN, std::max(left, std::chrono::milliseconds(0))))
            return {};
        takeBytes();
    }
}

std::optional<Message> Channel::takeMessage()
{
    Head head{};
    if (m_arrived.size() < sizeof head)
        return {};
    std::memcpy(&head, m_arrived.data(), sizeof head);
    if (head.word > Word::Done || head.bytes > kLongest) {
        m_isClosed = true;
        m_arrived.clear();
        return {};
    }
    if (m_arrived.size() < sizeof head + head.bytes)
        return {};
    Message message{head.word, m_arrived.substr(sizeof head, head.bytes), std::exchange(m_descriptor, Descriptor())};
    m_arrived.erase(0, sizeof head + head.bytes);
    return message;
}

void Channel::takeBytes()
{
    std::array<char, 65536> bytes; // NOLINT: filled below
    iovec part{bytes.data(), bytes.size()};
    DescriptorSpace space{};
    msghdr message{};
    message.msg_iov = &part;
    message.msg_iovlen = 1;
    message.msg_control = &space;
    message.msg_controllen = sizeof space;
    const ssize_t count = ::recvmsg(m_socket.number(), &message, MSG_CMSG_CLOEXEC);
    if (count < 0 && errno == EINTR)
        return;
    if (count <= 0) {
        m_isClosed = true;
        return;
    }
    m_arrived.append(bytes.data(), std::size_t(count));
    const cmsghdr* const attached = CMSG_FIRSTHDR(&message);
    if (attached && attached->cmsg_level == SOL_SOCKET && attached->cmsg_type == SCM_RIGHTS
        && attached->cmsg_len == CMSG_LEN(sizeof(int))) {
        int number = -1;
        std::memcpy(&number, CMSG_DATA(attached), sizeof number);
        m_descriptor = Descriptor(number);
    }
}

bool Channel::isAwaited() const { return eventsOf(m_socket.number(), POLLIN, std::chrono::milliseconds(0)) != 0; }

bool Channel::isLeft(std::chrono::milliseconds timeLimit) const
{
    return (eventsOf(m_socket.number(), POLLRDHUP, timeLimit) & (POLLRDHUP | POLLHUP | POLLERR)) != 0;
}

} // namespace imageio
