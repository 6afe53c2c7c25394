#pragma once
#include "platform/presentation/KTMenu.h"
#include "platform/presentation/KTPresenter.h"
#include "platform/tracklibrary/KTGPSReceivers.h"
#include "platform/tracklibrary/KTSmartFile.h"
#include "platform/tracklibrary/KTTrackManager.h"
#include "platform/tracklibrary/KTTrackSourceList.h"

/// The window of the track library, without its drawing: entries on the left, the tracks and waypoints of the
/// selected one on the right, and the commands on them. Observable under the names of its properties. Main
/// thread.
///
/// What an entry shows is looked up on another thread, once a turn of the event loop, whenever another entry
/// is selected, its predicates change, or the library does.
class KTTrackPickerController : public KTObservable {
public:
    using SmartFile = std::shared_ptr<KTSmartFile>;

    /// @p library must outlive the controller.
    explicit KTTrackPickerController(KTTrackManager& library);
    ~KTTrackPickerController() override;

    KTTrackManager& trackManager() const { return manager; }
    /// Whoever asks the user; without one, commands that must ask do nothing.
    void setPresenter(KTPresenter* whoAsks) { presenter = whoAsks; }
    KTPresenter* trackPresenter() const { return presenter; }
    /// Brings removed tracks back.
    void setUndoManager(std::shared_ptr<KTUndoManager> undoManager) { undo = std::move(undoManager); }

    /// "sourceLists": all of the library first, then the smart files in the order in which they were added.
    const std::vector<SmartFile>& sourceLists() const { return entries; }
    void addSmartFile(SmartFile file);
    const SmartFile& selectedSourceList() const { return selected; }
    /// @p entry is one of sourceLists.
    void setSelectedSourceList(const SmartFile& entry);
    KTTrackSourceList& trackSourceList() { return list; }
    /// Looks up anew what the selected entry shows.
    void refetch();
    /// "isFetching": whether that is under way.
    bool isFetching() const { return fetching; }

    void showWindow() { setWindowVisible(true); }
    /// The same while the user is at work elsewhere: the keyboard stays where it is.
    void showWindowQuietly();
    bool isShownQuietly() const { return isQuiet; }
    /// Announced each time it is set: a window that is shown already comes forward.
    bool isWindowVisible() const { return isVisible; }
    void setWindowVisible(bool visible);

    // Commands (KTTrackPickerControllerCommands.cpp)
    /// Asks for track files and imports them; the panel begins in the folder of the last ones.
    void importFilesAction();
    /// Imports what GPS receivers that are mounted as disks hold, or tells the user that there are none.
    void downloadFromGPSAction(std::vector<std::filesystem::path> mounts = KTGPSReceivers::mountFolders());
    /// Imports, and tells the user of the files that could not be imported; the others become the first of
    /// the recent ones.
    void importFilesAtPaths(const KTTrackManager::Paths& files);
    /// The files imported last, the latest first, ten at most: the setting "recentTrackFiles". A change is
    /// announced under "recentTrackFiles".
    static KTTrackManager::Paths recentTrackFiles();
    /// Removes the selected tracks, and the waypoints of the files of which waypoints are selected; one step
    /// of undo.
    void removeSelectedAction();
    /// Asks for a file and writes the same into it as GPX.
    void exportSelectedAction();
    /// The entries of the library to which these rows belong, each once.
    static std::vector<std::int64_t> trackIDsOf(const KTTrackSourceList::Records& records);

private:
    struct Fetched;

    void refetchSoon();
    void takeFetched(Fetched fetched);
    void noteRecentFile(const std::filesystem::path& file);
    void presentProblems(std::string message, const std::vector<std::string>& problems);
    void writeGPX(const std::vector<std::int64_t>& tracks, const std::filesystem::path& file);

    KTTrackManager& manager;
    KTPresenter* presenter = nullptr;
    std::shared_ptr<KTUndoManager> undo;
    std::vector<SmartFile> entries;
    SmartFile selected;
    KTTrackSourceList list;
    bool isVisible = false, isQuiet = false, fetching = false, isFetchDue = false;
    std::uint64_t fetches = 0;
    int handler = 0;
    Observation entryObservation;
    std::filesystem::path lastFolder;
    const std::shared_ptr<KTTrackPickerController*> self; // for what is posted
    KTOperationQueue exports, queue;                      // last: their end is waited for first
};
