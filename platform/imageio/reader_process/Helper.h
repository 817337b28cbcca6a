// The processes that read.
#pragma once

#include "platform/imageio/reader_process/Channel.h"

#include <filesystem>
#include <memory>

#include <sys/types.h>

namespace imageio {

/// A running `lumivex-read`, which ends with this.
class Helper {
public:
    /// The first of those that were started ahead, or a new one; null when it can't be started.
    static std::unique_ptr<Helper> take();
    static void prepareNext();
    static void setProgram(const std::filesystem::path&);

    Helper(Descriptor socket, pid_t process)
        : channel(std::move(socket))
        , m_process(process)
    {
    }
    ~Helper();
    Helper(const Helper&) = delete;
    Helper& operator=(const Helper&) = delete;

    Channel channel;

private:
    pid_t m_process;
};

} // namespace imageio
