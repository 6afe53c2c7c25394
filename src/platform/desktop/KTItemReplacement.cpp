#include "platform/desktop/KTItemReplacement.h"

#include "platform/desktop/KTFileDescriptor.h"
#include "platform/desktop/KTProcessIdentity.h"

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <cstdlib>
#include <fcntl.h>
#include <fstream>
#include <iterator>
#include <mutex>
#include <set>
#include <sys/stat.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

constexpr std::string_view kPrefix = ".waymark-";
constexpr std::size_t kRandomLetters = 6;
constexpr const char* kOwnerFile = ".waymark-owner";
constexpr std::chrono::hours kLongerThanAnyReplacement(24);

bool writeOwner(const fs::path& folder, std::string_view text) {
    KTFileDescriptor file(folder / kOwnerFile, O_WRONLY | O_CREAT | O_EXCL, 0600);
    while (file.isOpen() && !text.empty()) { // a disk that fills up takes a part before it says so
        const ssize_t written = ::write(file.get(), text.data(), text.size());
        if (written < 0)
            return false;
        text.remove_prefix(static_cast<std::size_t>(written));
    }
    return file.isOpen() && file.close();
}

/// Takes the owner's name away last, so that a process killed meanwhile leaves a folder that still has one.
void removeReplacementFolder(const fs::path& folder) {
    std::error_code error;
    for (fs::directory_iterator entry(folder, error), end; !error && entry != end; entry.increment(error))
        if (std::error_code ignored; entry->path().filename() != kOwnerFile)
            fs::remove_all(entry->path(), ignored);
    fs::remove_all(folder, error);
}

/// A real folder of this user whose owner's process is gone. One whose owner's name did not reach the disk
/// (the process was killed just then, or the computer lost its power) counts once it is old.
bool isLeftBehind(const fs::path& folder) {
    struct stat status = {};
    if (::lstat(folder.c_str(), &status) != 0 || !S_ISDIR(status.st_mode) || status.st_uid != ::geteuid())
        return false;
    std::ifstream stream(folder / kOwnerFile, std::ios::binary);
    const auto owner = KTProcessIdentity::fromText({std::istreambuf_iterator<char>(stream), {}});
    if (!owner.start.empty())
        return owner.isGone();
    std::error_code error;
    const bool isOurs = stream.is_open() || fs::is_empty(folder, error);
    const auto modified = std::chrono::system_clock::from_time_t(status.st_mtim.tv_sec);
    return isOurs && std::chrono::system_clock::now() - modified > kLongerThanAnyReplacement;
}

void removeFoldersLeftBehind(const fs::path& parent) {
    std::error_code error;
    for (fs::directory_iterator entry(parent, error), end; !error && entry != end; entry.increment(error))
        if (KTItemReplacement::isReplacementFolder(entry->path().filename()) && isLeftBehind(entry->path()))
            removeReplacementFolder(entry->path());
}

/// True once a process for each folder: a long list of photos is not looked through at every save.
bool isFirstReplacementIn(const fs::path& parent) {
    static std::mutex mutex;
    static std::set<fs::path> known;
    std::error_code error;
    const fs::path absolute = fs::absolute(parent, error);
    const std::scoped_lock lock(mutex);
    return known.insert(absolute).second;
}

} // namespace

bool KTItemReplacement::isReplacementFolder(const fs::path& name) {
    auto isLetter = [](char c) {
        return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
    };
    const std::string text = name.string();
    return text.size() == kPrefix.size() + kRandomLetters && text.starts_with(kPrefix) &&
           std::all_of(text.begin() + kPrefix.size(), text.end(), isLetter);
}

KTItemReplacement::KTItemReplacement(const fs::path& target) {
    fs::path parent = KTLinkTarget(target).parent_path();
    if (parent.empty())
        parent = ".";
    if (isFirstReplacementIn(parent))
        removeFoldersLeftBehind(parent);
    const std::string owner = KTProcessIdentity::ofThisProcess().text();
    std::string pattern = (parent / (std::string(kPrefix) + std::string(kRandomLetters, 'X'))).string();
    if (::mkdtemp(pattern.data()) == nullptr) {
        failure = KTFileErrorText("Nothing can be written in the folder “%@”: %@", parent, errno);
        return;
    }
    folder = pattern;
    // What the parent gives to its new folders must not keep their owner out.
    if (::chmod(folder.c_str(), 0700) != 0 || !writeOwner(folder, owner)) {
        failure = KTFileErrorText("Nothing can be written in the folder “%@”: %@", parent, errno);
        return;
    }
    item = folder / target.filename();
}

KTItemReplacement::~KTItemReplacement() {
    if (!folder.empty())
        removeReplacementFolder(folder);
}
