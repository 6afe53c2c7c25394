#pragma once
#include "platform/observing/KTObservable.h"

#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <stop_token>
#include <vector>

/// The media browser without its drawing: one folder of pictures after the other, from which photos are added
/// to the collection. Observable under the names of its properties. Main thread.
class MediaBrowserWindowController : public KTObservable {
public:
    using Paths = std::vector<std::filesystem::path>;
    /// What a folder holds: folders first, then photos, each by name. Hidden ones are left out.
    struct Entry {
        std::filesystem::path path;
        bool isFolder = false;
        bool operator==(const Entry&) const = default;
    };
    /// Of the window's content on the screen, in pixels.
    struct Frame {
        int x = 0, y = 0, width = 0, height = 0;
        bool isEmpty() const { return width <= 0 || height <= 0; }
    };

    /// @p pictures is where it begins, and the topmost folder; @p addPaths adds files and folders to the
    /// collection.
    MediaBrowserWindowController(std::filesystem::path pictures, std::function<void(const Paths&)> addPaths);
    ~MediaBrowserWindowController() override;

    /// Announced each time it is set, as by every window controller. Shown, it looks at the folder anew.
    bool isWindowVisible() const { return isVisible; }
    void setWindowVisible(bool visible);

    const std::filesystem::path& folder() const { return shown; }
    bool canGoUp() const { return shown != top; }
    void goUp();
    void openFolder(const std::filesystem::path& path);
    /// "entries": what the folder holds, looked up on another thread.
    const std::vector<Entry>& entries() const { return found; }
    /// A folder is opened, a photo is added.
    void openEntry(const Entry& entry);
    void addPaths(const Paths& paths) const { add(paths); }

    /// Where the window was at the last quit; nothing where that is not known.
    static std::optional<Frame> defaultBrowserFrame();
    /// Where it is now.
    void setFrame(const Frame& now) { frame = now; }
    /// Whether it was on the screen at the last quit.
    static bool defaultVisibility();
    /// Stores both for the next start; an empty frame is not stored.
    void storeDefaults() const;

private:
    void list();

    const std::filesystem::path top;
    const std::function<void(const Paths&)> add;
    std::filesystem::path shown;
    std::vector<Entry> found;
    Frame frame;
    bool isVisible = false;
    std::stop_source stop;
    const std::shared_ptr<MediaBrowserWindowController*> self; // for what is posted
};
