#include "platform/imageio/reader_process/Sandbox.h"

#include "platform/foundation/PhysicalMemory.h"
#include "platform/imageio/ImageLog.h"

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <string>
#include <vector>

#include <fcntl.h>
#include <sched.h>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/syscall.h>
#include <unistd.h>
#ifdef LUMIVEX_HAS_SECCOMP
#    include <seccomp.h>
#endif
#if __has_include(<linux/landlock.h>)
#    include <linux/landlock.h>
#endif

#if defined(__SANITIZE_ADDRESS__)
#    define LUMIVEX_HAS_ASAN 1 // which takes terabytes of addresses
#elif defined(__has_feature)
#    if __has_feature(address_sanitizer)
#        define LUMIVEX_HAS_ASAN 1
#    endif
#endif

namespace imageio {

namespace {

void limit(decltype(RLIMIT_CPU) resource, rlim_t most)
{
    const rlimit value{most, most};
    if (::setrlimit(resource, &value) != 0)
        imageLog("The reader has a limit less.");
}

// --- Landlock: which files ---

std::vector<std::string> placesOfFonts()
{
    std::vector<std::string> places{"/usr/share", "/usr/local/share", "/etc/fonts", "/var/cache/fontconfig"};
    const auto add = [&](const char* variable, const std::string& inHome, const std::string& folder) {
        const char* const home = std::getenv("HOME");
        if (const char* const named = std::getenv(variable))
            places.push_back(named + folder);
        else if (home)
            places.push_back(home + inHome + folder);
    };
    add("XDG_DATA_HOME", "/.local/share", "/fonts");
    add("XDG_CACHE_HOME", "/.cache", "/fontconfig");
    add("XDG_CONFIG_HOME", "/.config", "/fontconfig");
    add("", "/.fonts", "");
    return places;
}

void closeFiles(Sight sight)
{
#ifdef LANDLOCK_ACCESS_FS_REFER
    const long version = ::syscall(SYS_landlock_create_ruleset, nullptr, 0, LANDLOCK_CREATE_RULESET_VERSION);
    landlock_ruleset_attr rules{};
    rules.handled_access_fs = LANDLOCK_ACCESS_FS_REFER * (version >= 2 ? 2 : 1) - 1; // the last one, and all before it
    const long ruleset = version < 1 ? -1 : ::syscall(SYS_landlock_create_ruleset, &rules, sizeof rules, 0);
    if (ruleset < 0)
        return imageLog("This system can't keep the reader from files.");
    if (sight == Sight::Fonts)
        for (const std::string& place : placesOfFonts()) {
            landlock_path_beneath_attr path{};
            path.allowed_access = LANDLOCK_ACCESS_FS_READ_FILE | LANDLOCK_ACCESS_FS_READ_DIR;
            path.parent_fd = ::open(place.c_str(), O_PATH | O_CLOEXEC);
            if (path.parent_fd < 0)
                continue;
            ::syscall(SYS_landlock_add_rule, ruleset, LANDLOCK_RULE_PATH_BENEATH, &path, 0);
            ::close(path.parent_fd);
        }
    if (::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) != 0 || ::syscall(SYS_landlock_restrict_self, ruleset, 0) != 0)
        imageLog("The reader is not kept from files.");
    ::close(int(ruleset));
#else
    static_cast<void>(sight);
#endif
}

// --- seccomp: which system calls ---

#ifdef LUMIVEX_HAS_SECCOMP

/// Memory, threads and time, and what is done with descriptors that are open already.
constexpr const char* kCalls[] = {"brk", "clock_getres", "clock_gettime", "clock_nanosleep", "close", "dup", "eventfd2",
    "exit", "exit_group", "fadvise64", "fcntl", "fstat", "fstatfs", "futex", "get_robust_list", "getcpu", "getegid",
    "geteuid", "getgid", "getpid", "getppid", "getrandom", "getrusage", "gettid", "gettimeofday", "getuid", "lseek",
    "madvise", "membarrier", "mincore", "mremap", "msync", "munmap", "nanosleep", "pipe2", "poll", "ppoll", "pread64",
    "read", "readv", "recvmsg", "restart_syscall", "rseq", "rt_sigaction", "rt_sigprocmask", "rt_sigreturn",
    "rt_sigtimedwait", "sched_getaffinity", "sched_getparam", "sched_getscheduler", "sched_yield", "set_robust_list",
    "set_tid_address", "sigaltstack", "sysinfo", "time", "times", "uname", "write", "writev"};

/// Where fonts are looked for. What may be opened there, Landlock says.
constexpr const char* kCallsForFonts[] = {"access", "faccessat", "faccessat2", "getcwd", "getdents64", "lstat",
    "newfstatat", "readlink", "readlinkat", "stat", "statfs", "statx"};

class CallFilter {
public:
    CallFilter()
        : m_filter(::seccomp_init(SCMP_ACT_ERRNO(EPERM)))
    {
    }
    ~CallFilter() { ::seccomp_release(m_filter); }
    CallFilter(const CallFilter&) = delete;
    CallFilter& operator=(const CallFilter&) = delete;

    void allow(const char* name, const std::vector<scmp_arg_cmp>& conditions = {})
    {
        rule(SCMP_ACT_ALLOW, name, conditions);
    }
    void rule(std::uint32_t action, const char* name, const std::vector<scmp_arg_cmp>& conditions = {})
    {
        const int call = ::seccomp_syscall_resolve_name(name); // some are unknown on other processors
        if (call != __NR_SCMP_ERROR)
            ::seccomp_rule_add_array(m_filter, action, call, unsigned(conditions.size()), conditions.data());
    }
    bool load()
    {
        ::seccomp_attr_set(m_filter, SCMP_FLTATR_CTL_TSYNC, 1);
        return m_filter && ::seccomp_load(m_filter) == 0;
    }

private:
    scmp_filter_ctx m_filter;
};

scmp_arg_cmp hasNone(unsigned argument, std::uint64_t bits) { return {argument, SCMP_CMP_MASKED_EQ, bits, 0}; }

scmp_arg_cmp hasAll(unsigned argument, std::uint64_t bits) { return {argument, SCMP_CMP_MASKED_EQ, bits, bits}; }

scmp_arg_cmp isJust(unsigned argument, std::uint64_t value) { return {argument, SCMP_CMP_EQ, value, 0}; }

void closeCalls(Sight sight, int socket)
{
    CallFilter filter;
    for (const char* name : kCalls)
        filter.allow(name);
    for (const char* name : {"mmap", "mprotect"}) // no new code
        filter.allow(name, {hasNone(2, PROT_EXEC)});
    filter.allow("clone", {hasAll(0, CLONE_VM | CLONE_THREAD)});
    filter.rule(SCMP_ACT_ERRNO(ENOSYS), "clone3"); // the C library then takes the other one, which can be looked into
    filter.allow("sendmsg", {isJust(0, std::uint64_t(socket))});
    filter.allow("tgkill", {isJust(0, std::uint64_t(::getpid()))}); // by abort()
    filter.allow("prctl", {isJust(0, PR_SET_NAME)});
    if (sight == Sight::Fonts) {
        for (const char* name : kCallsForFonts)
            filter.allow(name);
        constexpr int kChanging = O_ACCMODE | O_CREAT | O_TRUNC | (O_TMPFILE & ~O_DIRECTORY);
        filter.allow("open", {hasNone(1, kChanging)});
        filter.allow("openat", {hasNone(2, kChanging)});
    } else {
        filter.allow("newfstatat", {hasAll(3, AT_EMPTY_PATH)}); // fstat() of newer C libraries
        filter.allow("statx", {hasAll(2, AT_EMPTY_PATH)});
    }
    if (!filter.load())
        imageLog("This system can't keep the reader from system calls.");
}

#else

void closeCalls(Sight, int) { imageLog("The reader was built without a filter of system calls."); }

#endif

} // namespace

void limitResources()
{
    constexpr rlim_t kSeconds = 600; // of all threads
    limit(RLIMIT_CPU, kSeconds);
    limit(RLIMIT_CORE, 0);
    limit(RLIMIT_FSIZE, 0);
#ifndef LUMIVEX_HAS_ASAN
    limit(RLIMIT_AS, std::max(rlim_t(physicalMemory()), rlim_t(2) << 30));
#endif
    for (const int ignored : {SIGINT, SIGHUP, SIGXFSZ, SIGPIPE}) // the program decides
        std::signal(ignored, SIG_IGN);
    // Where memory is short, this process ends first.
    if (const int file = ::open("/proc/self/oom_score_adj", O_WRONLY | O_CLOEXEC); file >= 0) {
        static_cast<void>(!::write(file, "1000", 4));
        ::close(file);
    }
}

void closeSandbox(Sight sight, int socket)
{
    closeFiles(sight);
    closeCalls(sight, socket);
}

} // namespace imageio
