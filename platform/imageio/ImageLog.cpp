#include "platform/imageio/ImageLog.h"

#include <iostream>
#include <mutex>

namespace {

std::mutex& mutex()
{
    static std::mutex instance;
    return instance;
}

std::function<void(std::string_view)>& receiverSlot()
{
    static std::function<void(std::string_view)> instance;
    return instance;
}

} // namespace

void setImageLog(std::function<void(std::string_view)> receiver)
{
    const std::lock_guard lock(mutex());
    receiverSlot() = std::move(receiver);
}

void imageLog(std::string_view line)
{
    const std::lock_guard lock(mutex());
    if (receiverSlot())
        receiverSlot()(line);
    else
        std::cerr << "lumivex: " << line << '\n';
}
