#include "platform/coreimage/CIPlugIn.h"

#include <algorithm>
#include <cstdlib>
#include <dlfcn.h>
#include <utility>

namespace {

/// A plug-in is a shared object with this function, which registers its filters (ci::registerFilter).
constexpr char kEntryPoint[] = "lumivexRegisterFilters";

std::filesystem::path userFolder()
{
    if (const char* data = std::getenv("XDG_DATA_HOME"); data && *data)
        return std::filesystem::path(data) / "lumivex/plug-ins";
    const char* home = std::getenv("HOME");
    return home ? std::filesystem::path(home) / ".local/share/lumivex/plug-ins" : std::filesystem::path();
}

std::string load(const std::filesystem::path& file)
{
    const char* reason = nullptr;
    void* library = dlopen(file.c_str(), RTLD_NOW | RTLD_LOCAL);
    if (!library) {
        reason = dlerror();
        return file.string() + ": " + (reason ? reason : "can't be loaded");
    }
    using Register = void (*)();
    const auto registerFilters = reinterpret_cast<Register>(dlsym(library, kEntryPoint));
    if (!registerFilters) {
        dlclose(library);
        return file.string() + ": has no function " + kEntryPoint;
    }
    try {
        registerFilters();
    } catch (const std::exception& e) {
        return file.string() + ": " + e.what();
    }
    return {}; // stays loaded: its kernels are in use from now on
}

} // namespace

std::vector<std::string> CIPlugIn::loadPlugIns(const std::filesystem::path& folder)
{
    std::error_code error;
    std::vector<std::filesystem::path> files;
    for (const auto& entry : std::filesystem::directory_iterator(folder, error))
        if (entry.path().extension() == ".so")
            files.push_back(entry.path());
    std::ranges::sort(files);
    std::vector<std::string> skipped;
    for (const auto& file : files)
        if (std::string reason = load(file); !reason.empty())
            skipped.push_back(std::move(reason));
    return skipped;
}

std::vector<std::string> CIPlugIn::loadAllPlugIns()
{
    static bool done = false;
    if (std::exchange(done, true) || userFolder().empty())
        return {};
    return loadPlugIns(userFolder());
}
