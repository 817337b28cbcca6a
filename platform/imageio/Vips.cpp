#include "platform/imageio/Vips.h"

#include "platform/imageio/ImageLog.h"

#include <algorithm>
#include <mutex>
#include <stdexcept>

#include <vips/vector.h>

namespace imageio {

namespace {

struct ThreadLeaver {
    ~ThreadLeaver() { vips_thread_shutdown(); }
};

void forwardWarning(const char* domain, GLogLevelFlags, const char* text, void*)
{
    imageLog(std::string(domain ? domain : "libvips") + ": " + text);
}

// Loaders that are never wanted stay unreachable, even if a file could talk another library into asking for them.
void blockUnusedLoaders()
{
    vips_operation_block_set("VipsForeignLoad", TRUE);
    for (const char* wanted : {"VipsForeignLoadJpeg", "VipsForeignLoadPng", "VipsForeignLoadTiff",
             "VipsForeignLoadNsgif", "VipsForeignLoadWebp", "VipsForeignLoadHeif", "VipsForeignLoadJxl",
             "VipsForeignLoadSvg", "VipsForeignLoadPdf", "VipsForeignLoadRad", "VipsForeignLoadMagick"})
        vips_operation_block_set(wanted, FALSE);
}

void startVips()
{
    if (vips_init("lumivex") != 0)
        throw std::runtime_error("libvips does not start: " + takeVipsError());
    vips_cache_set_max(0); // every file is read once
    vips_concurrency_set(2);
#if VIPS_MAJOR_VERSION == 8 && VIPS_MINOR_VERSION < 15
    vips_vector_set_enabled(FALSE); // it would write code of its own, which a reading process may not
#endif
    blockUnusedLoaders();
    g_log_set_handler("VIPS", GLogLevelFlags(G_LOG_LEVEL_WARNING | G_LOG_LEVEL_CRITICAL | G_LOG_LEVEL_MESSAGE),
        forwardWarning, nullptr);
}

} // namespace

void useVips()
{
    static std::once_flag started;
    std::call_once(started, startVips);
    thread_local const ThreadLeaver leaver;
    (void)leaver;
}

std::string takeVipsError()
{
    std::string text = vips_error_buffer();
    vips_error_clear();
    while (!text.empty() && text.back() == '\n')
        text.pop_back();
    std::replace(text.begin(), text.end(), '\n', ';');
    return text;
}

} // namespace imageio
