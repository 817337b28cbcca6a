#include "platform/imageio/reader_process/Helper.h"

#include "platform/imageio/ImageLog.h"
#include "platform/imageio/LooseThread.h"
#include "platform/imageio/reader_process/ReaderServer.h"

#include <csignal>
#include <deque>
#include <mutex>

#include <fcntl.h>
#include <spawn.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

namespace imageio {

namespace {

namespace fs = std::filesystem;

constexpr std::size_t kReady = 2; // a large picture is read twice at once: reduced and as a whole

struct Spare {
    std::mutex mutex;
    fs::path program; // empty until it is looked for
    std::deque<std::unique_ptr<Helper>> helpers; // the oldest first
};

/// Never taken down: at the end of the program the process finds its socket closed.
Spare& spare()
{
    static auto& instance = *new Spare;
    return instance;
}

fs::path programBesideUs()
{
    std::error_code error;
    const fs::path folder = fs::read_symlink("/proc/self/exe", error).parent_path();
    const fs::path beside = folder / "lumivex-read", installed = folder / LUMIVEX_LIBEXEC_FROM_BIN / "lumivex-read";
    return fs::exists(beside, error) ? beside : installed;
}

class FileActions {
public:
    FileActions() { ::posix_spawn_file_actions_init(&actions); }
    ~FileActions() { ::posix_spawn_file_actions_destroy(&actions); }
    FileActions(const FileActions&) = delete;
    FileActions& operator=(const FileActions&) = delete;
    posix_spawn_file_actions_t actions{};
};

std::unique_ptr<Helper> startHelper(const fs::path& program)
{
    int ends[2] = {-1, -1};
    if (::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends) != 0)
        return nullptr;
    Descriptor ours(ends[0]), theirs(ends[1]);
    FileActions files;
    ::posix_spawn_file_actions_adddup2(&files.actions, theirs.number(), kReaderSocket);
    std::string name = program.string();
    char* const words[] = {name.data(), nullptr};
    pid_t process = -1;
    if (const int error = ::posix_spawn(&process, name.c_str(), &files.actions, nullptr, words, environ)) {
        imageLog(name + " doesn't start: " + std::strerror(error));
        return nullptr;
    }
    return std::make_unique<Helper>(std::move(ours), process);
}

std::unique_ptr<Helper> startHelper(Spare& of)
{
    if (of.program.empty())
        of.program = programBesideUs();
    return startHelper(of.program);
}

} // namespace

Helper::~Helper()
{
    ::kill(m_process, SIGKILL);
    // One that waits for a disk may take its time to die.
    runOnLooseThread([process = m_process] {
        while (::waitpid(process, nullptr, 0) < 0 && errno == EINTR) { }
    });
}

std::unique_ptr<Helper> Helper::take()
{
    Spare& from = spare();
    const std::lock_guard lock(from.mutex);
    while (!from.helpers.empty()) {
        std::unique_ptr<Helper> helper = std::move(from.helpers.front());
        from.helpers.pop_front();
        if (!helper->channel.isLeft(std::chrono::milliseconds(0)))
            return helper;
    }
    return startHelper(from);
}

void Helper::prepareNext()
{
    Spare& of = spare();
    const std::lock_guard lock(of.mutex);
    while (of.helpers.size() < kReady) {
        std::unique_ptr<Helper> helper = startHelper(of);
        if (!helper)
            return;
        of.helpers.push_back(std::move(helper));
    }
}

void Helper::setProgram(const fs::path& program)
{
    Spare& of = spare();
    const std::lock_guard lock(of.mutex);
    of.program = program;
    of.helpers.clear();
}

} // namespace imageio
