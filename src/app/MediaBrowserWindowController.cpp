#include "app/MediaBrowserWindowController.h"

#include "collection/KTPhotoFileList.h"
#include "platform/common/KTText.h"
#include "platform/concurrency/KTMainThread.h"
#include "platform/concurrency/KTThreadPool.h"
#include "platform/defaults/KTUserDefaults.h"

#include <algorithm>
#include <sstream>

namespace fs = std::filesystem;

namespace {

constexpr const char *kFrame = "defaultMediaBrowserFrameRect", *kVisibility = "defaultMediaBrowserVisibility";
using Entry = MediaBrowserWindowController::Entry;

std::vector<Entry> entriesOf(const fs::path& folder, const std::stop_token& stop) {
    std::vector<Entry> entries;
    std::error_code error, ignored;
    fs::directory_iterator file(folder, fs::directory_options::skip_permission_denied, error);
    for (; !error && file != fs::directory_iterator() && !stop.stop_requested(); file.increment(error)) {
        const std::string name = file->path().filename().string();
        if (name.starts_with('.'))
            continue;
        const bool isFolder = file->is_directory(ignored);
        const bool isPhoto = !isFolder && KTPhotoFileList::validFileTypePredicate(file->path().native()) &&
                             !KTEqualIgnoringCase(file->path().extension().native(), ".xmp");
        if (isFolder || isPhoto)
            entries.push_back({file->path(), isFolder});
    }
    std::ranges::sort(entries, [](const Entry& left, const Entry& right) {
        return left.isFolder != right.isFolder ? left.isFolder : left.path < right.path;
    });
    return entries;
}

} // namespace

MediaBrowserWindowController::MediaBrowserWindowController(fs::path pictures,
                                                           std::function<void(const Paths&)> addPaths)
    : top(std::move(pictures)), add(std::move(addPaths)), shown(top),
      self(std::make_shared<MediaBrowserWindowController*>(this)) {}

MediaBrowserWindowController::~MediaBrowserWindowController() {
    stop.request_stop();
}

void MediaBrowserWindowController::setWindowVisible(bool visible) {
    willChange("isWindowVisible");
    isVisible = visible;
    didChange("isWindowVisible");
    if (isVisible)
        list();
}

void MediaBrowserWindowController::openFolder(const fs::path& path) {
    willChange("folder");
    shown = path;
    didChange("folder");
    list();
}

void MediaBrowserWindowController::goUp() {
    if (canGoUp())
        openFolder(shown.parent_path());
}

void MediaBrowserWindowController::openEntry(const Entry& entry) {
    if (entry.isFolder)
        openFolder(entry.path);
    else
        add({entry.path});
}

/// A folder that is left meanwhile is not looked through to its end.
void MediaBrowserWindowController::list() {
    stop.request_stop();
    stop = std::stop_source();
    KTRunOnThreadPool([folder = shown, token = stop.get_token(), alive = std::weak_ptr(self)] {
        KTPerformOnMainThread([alive, token, entries = entriesOf(folder, token)]() mutable {
            const auto controller = alive.lock();
            if (!controller || token.stop_requested() || entries == (*controller)->found)
                return;
            (*controller)->willChange("entries");
            (*controller)->found = std::move(entries);
            (*controller)->didChange("entries");
        });
    });
}

std::optional<MediaBrowserWindowController::Frame> MediaBrowserWindowController::defaultBrowserFrame() {
    std::istringstream text(KTUserDefaults::standardUserDefaults().textForKey(kFrame));
    Frame kept;
    if (!(text >> kept.x >> kept.y >> kept.width >> kept.height) || kept.isEmpty())
        return std::nullopt;
    return kept;
}

bool MediaBrowserWindowController::defaultVisibility() {
    return KTUserDefaults::standardUserDefaults().boolForKey(kVisibility);
}

void MediaBrowserWindowController::storeDefaults() const {
    auto& defaults = KTUserDefaults::standardUserDefaults();
    if (!frame.isEmpty()) {
        std::ostringstream text;
        text << frame.x << ' ' << frame.y << ' ' << frame.width << ' ' << frame.height;
        defaults.setValue(kFrame, text.str());
    }
    defaults.setValue(kVisibility, isVisible);
}
