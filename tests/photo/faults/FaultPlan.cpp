#include "tests/photo/faults/FaultPlan.h"

#include "tests/photo/faults/FaultDecision.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <mutex>
#include <sys/syscall.h>
#include <unistd.h>

constinit std::atomic<bool> isWatchingFiles = false;

namespace {

struct Watch {
    std::mutex mutex;
    std::string folder;
    FaultPlan plan;
    std::vector<FileCall> calls;
    bool fired = false;

    static Watch& shared() {
        static Watch watch;
        return watch;
    }
};

/// The path of an open file. Past the hooks, which would find themselves again here.
std::string pathOf(int descriptor) {
    const std::string link = "/proc/self/fd/" + std::to_string(descriptor);
    std::array<char, 4096> path;
    const long size = ::syscall(SYS_readlinkat, AT_FDCWD, link.c_str(), path.data(), path.size());
    return size < 0 ? std::string() : std::string(path.data(), static_cast<std::size_t>(size));
}

/// The random letters of a folder for new versions would make each run's list another.
std::string withoutRandomLetters(std::string path) {
    constexpr std::string_view kPrefix = ".waymark-";
    const auto begin = path.find(kPrefix);
    if (begin == std::string::npos || path.compare(begin, 14, ".waymark-owner") == 0)
        return path;
    return path.erase(begin + kPrefix.size() - 1, 7);
}

bool failsLater(const FileCall& call, int error) {
    constexpr std::array kTakingSpace = {"open",  "write",     "writev",   "copy_file_range",
                                         "fsync", "fsetxattr", "setxattr", "mkdtemp"};
    return call.changes &&
           (error != ENOSPC || std::ranges::find(kTakingSpace, call.name) != kTakingSpace.end());
}

FaultDecision decide(Watch& watch, const FileCall& call) {
    const FaultPlan& plan = watch.plan;
    const bool isIt = watch.calls.size() == plan.number;
    watch.fired = watch.fired || isIt;
    switch (plan.manner) {
    case FaultPlan::Nothing:
        break;
    case FaultPlan::FailOnce:
        return {isIt ? plan.error : 0};
    case FaultPlan::FailFromThen:
        return {isIt || (watch.fired && failsLater(call, plan.error)) ? plan.error : 0};
    case FaultPlan::WriteHalf:
        return {watch.fired && !isIt && failsLater(call, ENOSPC) ? ENOSPC : 0, isIt};
    case FaultPlan::KillProcess:
        if (isIt)
            ::syscall(SYS_kill, ::getpid(), SIGKILL);
        break;
    case FaultPlan::RemoveTheFile:
        if (isIt)
            ::syscall(SYS_unlinkat, AT_FDCWD, plan.victim.c_str(), 0);
        break;
    }
    return {};
}

} // namespace

std::string FilePlace::path() const {
    const bool isAbsolute = name != nullptr && *name == '/';
    if (isAbsolute || descriptor == AT_FDCWD)
        return name;
    const std::string open = pathOf(descriptor);
    return name == nullptr || *name == '\0' ? open : open + "/" + name;
}

FaultDecision decideOn(const char* call, const FilePlace& place, bool changes) {
    if (!isWatchingFiles)
        return {};
    const int errorNow = errno;
    Watch& watch = Watch::shared();
    const std::lock_guard guard(watch.mutex);
    const std::string path = place.path();
    FaultDecision decision;
    if (path.starts_with(watch.folder)) {
        watch.calls.push_back({call, withoutRandomLetters(path.substr(watch.folder.size())), changes});
        decision = decide(watch, watch.calls.back());
    }
    errno = errorNow;
    return decision;
}

FaultWatch::FaultWatch(const std::filesystem::path& folder, const FaultPlan& plan) {
    Watch& watch = Watch::shared();
    watch.folder = folder.string();
    watch.plan = plan;
    watch.calls.clear();
    watch.fired = false;
    isWatchingFiles = true;
}

FaultWatch::~FaultWatch() {
    isWatchingFiles = false;
}

std::vector<FileCall> FaultWatch::calls() const {
    const std::lock_guard guard(Watch::shared().mutex);
    return Watch::shared().calls;
}

bool FaultWatch::didFire() const {
    const std::lock_guard guard(Watch::shared().mutex);
    return Watch::shared().fired;
}
