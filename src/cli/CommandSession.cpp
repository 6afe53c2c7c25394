#include "cli/CommandSession.h"

#include "collection/KTPhotoFileList.h"
#include "platform/common/KTLocalizedString.h"
#include "platform/common/KTLog.h"
#include "platform/common/KTText.h"

#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <sys/eventfd.h>
#include <unistd.h>

namespace {

std::atomic<bool> interrupted = false;
std::atomic<int> interruption = -1; // an event that whoever waits for work may wait for too
static_assert(std::atomic<bool>::is_always_lock_free && std::atomic<int>::is_always_lock_free,
              "a signal handler uses them");

void noteSignal(int) {
    const int error = errno;
    interrupted = true;
    const std::uint64_t one = 1;
    [[maybe_unused]] const auto ignored = ::write(interruption, &one, sizeof one);
    errno = error;
}

} // namespace

std::vector<std::filesystem::path> CommandSession::photoFiles(const std::vector<std::string>& paths) {
    KTPhotoFileList list = KTPhotoFileList::fromPaths({paths.begin(), paths.end()});
    for (const std::string& problem : list.problems)
        failure(problem);
    return std::move(list.files);
}

KTTrackManager* CommandSession::tracks() {
    if (trackManager)
        return trackManager.get();
    KTTrackStore::Opened opened =
        KTTrackStore::open(
        libraryFile.empty() ? KTTrackManager::userLibraryFile() : std::filesystem::path(libraryFile));
    if (opened.store)
        trackManager = std::make_unique<KTTrackManager>(std::move(opened.store));
    else
        failure(opened.error);
    return trackManager.get();
}

void CommandSession::messages(const std::filesystem::path& photo,
                              const std::vector<KTPhotoOperation>& operations) const {
    for (const KTPhotoOperation& operation : operations)
        if (operation.resultType() != KTPhotoOperation::Success)
            message(photo.string() + ": " + operation.resultDescription());
}

void CommandSession::message(const std::string& text) const {
    KTLog("waymark-cli: " + text);
}

void CommandSession::failure(const std::string& text) {
    message(text);
    failed = true;
}

bool CommandSession::showsProgress() const {
    return progress == Progress::Always || (progress == Progress::Auto && isatty(STDERR_FILENO) == 1);
}

void CommandSession::showProgress(const std::string& line) {
    if (!showsProgress())
        return;
    std::fprintf(stderr, "\r%s\033[K", line.c_str());
    progressShown = true;
}

void CommandSession::showProgress(std::string_view format, std::size_t done, std::size_t total) {
    showProgress(
        KTStringWithFormat(KTLocalizedString(format), {std::to_string(done), std::to_string(total)}));
}

void CommandSession::endProgress() {
    if (std::exchange(progressShown, false))
        std::fputs("\r\033[K", stderr);
}

int CommandSession::noteInterruptions() {
    if (interruption == -1)
        interruption = ::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK);
    struct sigaction action = {};
    action.sa_handler = noteSignal;
    action.sa_flags = SA_RESTART;
    sigaction(SIGINT, &action, nullptr);
    sigaction(SIGTERM, &action, nullptr);
    return interruption;
}

bool CommandSession::isInterrupted() {
    return interrupted;
}

int CommandSession::exitStatus() const {
    return isInterrupted() ? kExitInterrupted : failed ? kExitSomethingFailed : kExitDone;
}
