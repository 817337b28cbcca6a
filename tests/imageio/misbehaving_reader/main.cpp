#include "platform/imageio/InputReading.h"
#include "platform/imageio/reader_process/ReaderServer.h"

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <new>
#include <string>
#include <thread>

#include <arpa/inet.h>
#include <fcntl.h>
#include <sys/mman.h>
#include <sys/ptrace.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/uio.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

using namespace imageio;

struct Deed {
    const char* name;
    std::function<bool()> succeeds;
};

bool opens(const std::string& path, int flags = O_RDONLY) { return ::open(path.c_str(), flags, 0600) >= 0; }

bool startsProcess()
{
    const pid_t child = ::fork();
    if (child == 0)
        ::_exit(0);
    return child > 0;
}

/// What no reader should be able to do; `folder` is one that its user may write into.
std::vector<Deed> deeds(const std::string& folder)
{
    return {{"read a file", [=] { return opens(folder + "/other.txt"); }},
        {"read the system's", [] { return opens("/etc/passwd"); }},
        {"read a process", [] { return opens("/proc/self/maps"); }},
        {"list a folder", [=] { return opens(folder, O_RDONLY | O_DIRECTORY); }},
        {"make a file", [=] { return opens(folder + "/new.txt", O_WRONLY | O_CREAT); }},
        {"make a nameless file", [=] { return opens(folder, O_WRONLY | O_TMPFILE); }},
        {"change a file", [=] { return opens(folder + "/other.txt", O_RDWR); }},
        {"make a folder", [=] { return ::mkdir((folder + "/sub").c_str(), 0700) == 0; }},
        {"remove a file", [=] { return ::unlink((folder + "/other.txt").c_str()) == 0; }},
        {"rename", [=] { return ::rename((folder + "/other.txt").c_str(), (folder + "/o.txt").c_str()) == 0; }},
        {"change rights", [=] { return ::chmod((folder + "/other.txt").c_str(), 0) == 0; }},
        {"make a socket", [] { return ::socket(AF_UNIX, SOCK_STREAM, 0) >= 0; }},
        {"reach the network", [] { return ::socket(AF_INET, SOCK_STREAM, 0) >= 0; }},
        {"start a process", startsProcess},
        {"run a program", [] { return ::execl("/bin/true", "true", nullptr) == 0; }},
        {"signal the program", [] { return ::kill(::getppid(), 0) == 0; }},
        {"trace the program", [] { return ::ptrace(PTRACE_SEIZE, ::getppid(), nullptr, nullptr) == 0; }},
        {"raise a limit",
            [] {
                const rlimit none{RLIM_INFINITY, RLIM_INFINITY};
                return ::setrlimit(RLIMIT_CPU, &none) == 0;
            }},
        {"run new code", [] {
             return ::mmap(nullptr, 4096, PROT_READ | PROT_EXEC, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0) != MAP_FAILED;
         }}};
}

/// Names those that succeed, in this thread or in another one.
std::string report(const std::string& folder)
{
    std::string done;
    const auto tryAll = [&] {
        for (const Deed& deed : deeds(folder))
            if (deed.succeeds())
                done += std::string(deed.name) + "; ";
    };
    tryAll();
    std::thread(tryAll).join();
    return done;
}

[[noreturn]] void spin()
{
    for (volatile bool ever = true; ever;) { }
    std::abort();
}

void gobble()
{
    constexpr std::size_t kPiece = std::size_t(1) << 30;
    for (std::size_t taken = 0; taken < (std::size_t(1) << 45); taken += kPiece)
        if (::mmap(nullptr, kPiece, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0)
            == MAP_FAILED)
            throw std::bad_alloc();
}

CIBitmap bitmapIn(const std::shared_ptr<std::byte>& memory, int side)
{
    return {memory.get(), side, side, 4 * std::size_t(side), CIFormat::RGBA8, CIAlpha::Straight, CIColorSpace::SRGB,
        memory};
}

/// Pixels that this process could go on writing to.
CIBitmap keptBitmap(const ReadOptions& options)
{
    static std::shared_ptr<std::byte> kept;
    kept = options.memory(4 * 4 * 4);
    return bitmapIn(kept, 4);
}

Result<CIBitmap> obey(const PictureInput& input, const std::string& order, const ReadOptions& options)
{
    if (order == "crash")
        std::raise(SIGSEGV);
    if (order == "abort")
        std::abort();
    if (order == "exit")
        ::_exit(0);
    if (order == "sleep")
        std::this_thread::sleep_for(std::chrono::hours(1));
    if (order == "spin")
        spin();
    if (order == "gobble")
        gobble();
    if (order == "babble")
        static_cast<void>(::write(kReaderSocket, std::string(5000, 'x').data(), 5000));
    if (order == "keep")
        return keptBitmap(options);
    if (order == "more than there is")
        return bitmapIn(options.memory(64), 4096);
    if (order == "fonts")
        return input.failure(Reason::CannotRead, opens("/usr/share", O_RDONLY | O_DIRECTORY) ? "seen" : "not seen");
    return input.failure(Reason::CannotRead, "it could " + report(order));
}

Result<CIBitmap> readOrObey(const Result<PictureInput>& input, const ReadOptions& options)
{
    constexpr std::string_view kOrder = "order:";
    const auto memory = input ? input->memory() : std::span<const std::byte>();
    const std::string_view text(reinterpret_cast<const char*>(memory.data()), memory.size());
    const std::size_t order = text.substr(0, 64).find(kOrder);
    if (order == text.npos)
        return imageio::readPicture(input, options);
    return obey(*input, std::string(text.substr(order + kOrder.size())), options);
}

} // namespace

int main() { imageio::serveReader(readOrObey); }
