#include "platform/coreimage/CITextRenderer.h"

#include <mutex>

namespace {

struct Installed {
    std::mutex mutex;
    std::shared_ptr<const CITextRenderer> renderer;
};

Installed& installation()
{
    static Installed one;
    return one;
}

} // namespace

void CITextRenderer::install(std::shared_ptr<const CITextRenderer> renderer)
{
    Installed& one = installation();
    const std::lock_guard lock(one.mutex);
    one.renderer = std::move(renderer);
}

std::shared_ptr<const CITextRenderer> CITextRenderer::installed()
{
    Installed& one = installation();
    const std::lock_guard lock(one.mutex);
    return one.renderer;
}
