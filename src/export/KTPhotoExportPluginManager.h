#pragma once
#include "collection/KTExportPluginList.h"
#include "export/KTPhotoExportManagerOperation.h"
#include "export/KTPhotoExportPluginClass.h"
#include "platform/concurrency/KTOperationQueue.h"

#include <list>

class KTMetadataFieldManager;
class KTPhotoController;
class KTPresenter;

/// The export plug-ins that are offered, and the way of an export from the choice of a plug-in to its run:
/// photos copied, tracks looked up, plug-in made, user asked, plug-in prepared, run queued or scheduled.
/// Main thread.
///
/// "pluginClasses" announces insertions and removals. An export ends when the plug-in says so, when the user
/// cancels a question, when a run on the queue is over, and when the plug-in throws.
class KTPhotoExportPluginManager final : public KTObservable,
                                         public KTExportPluginList,
                                         public std::enable_shared_from_this<KTPhotoExportPluginManager> {
public:
    using PluginClass = std::shared_ptr<KTPhotoExportPluginClass>;
    using Operation = std::shared_ptr<KTPhotoExportManagerOperation>;

    static std::shared_ptr<KTPhotoExportPluginManager> make();
    /// Asks running exports to end and waits for them.
    ~KTPhotoExportPluginManager() override;

    // What the exports stand on; outlives the manager. Without photo controller no export begins, without
    // presenter none that asks something; the others may be missing.
    void setPhotoController(KTPhotoController* controller) { photoController = controller; }
    void setMetadataController(const KTMetadataFieldManager* catalogue) { metadataController = catalogue; }
    void setTrackManager(KTTrackManager* tracks) { trackManager = tracks; }
    void setPresenter(KTPresenter* whoAsks) { presenter = whoAsks; }
    /// What is done about files that are there already; asked of the user where nothing is set.
    void setExistingFiles(std::optional<KTExistingFiles> decided) { existingFiles = decided; }
    /// Goes before the settings of the plug-ins.
    void setRequestedOptions(KTPhotoExportOptions options) { requestedOptions = std::move(options); }
    void setPrimaryWindow(KTViewHandle window) { primaryWindow = window; }

    /// In the order of acceptance, those of the program behind those of bundles.
    const std::vector<PluginClass>& pluginClasses() const { return classes; }
    /// Accepts @p pluginClass; not null, and not one whose uuid is there already.
    bool wantsPluginWithClass(const PluginClass& pluginClass);
    std::vector<std::string> pluginNames() const override;
    void shouldBeginExportProcessWithPluginAtIndex(std::size_t index) override;
    /// Begins an export; nothing but a line in the log while one runs on the main thread. A class that proves
    /// unusable is not offered any more.
    void shouldBeginExportProcessWithPlugin(const PluginClass& pluginClass);

    /// Exports that run on another thread, one after the other.
    KTOperationQueue& exportQueue() { return queue; }
    /// The export that runs, or is about to, on the main thread; null for none.
    const Operation& mainQueueOperation() const { return mainOperation; }

    /// Exports begun that run, or wait for their turn, on another thread; announces insertions and removals
    /// under "backgroundOperations".
    const std::vector<Operation>& backgroundOperations() const { return inBackground; }
    /// Whether any export has begun and not ended.
    bool isExporting() const { return mainOperation || !inBackground.empty(); }
    /// Asks @p operation, which may not have its turn yet, to end.
    static void stopOperation(const Operation& operation);
    /// Asks every export to end; returns at once.
    void stopAllOperations();

    // What a plug-in asks for through its operation. Ignored for exports that are over.
    /// Queues or schedules the run; the second and later calls for an export are ignored, and it ends here
    /// when another export runs on the main thread that it needs.
    void shouldBeginExportForManager(const Operation& operation);
    void shouldCancelExportForManager(const Operation& operation) { end(operation); }
    void shouldFinishExportForManager(const Operation& operation) { end(operation); }
    /// Asks the user about @p existing files; for an operation.
    void askAboutExistingFiles(const std::vector<std::filesystem::path>& existing,
                               std::function<void(KTExistingFiles)> answer);

private:
    struct Export {
        Operation operation;
        bool hasBegun = false;
        Observation finished = {};
    };

    KTPhotoExportPluginManager() = default;
    Operation newOperation() const;
    void setPhotosAndTracks(KTPhotoExportManagerOperation& operation) const;
    void drop(const PluginClass& pluginClass);
    void ask(const Operation& operation);
    void presentSavePanelForManager(const Operation& operation);
    void presentCustomSheetForManager(const Operation& operation);
    void prepare(const Operation& operation, const std::optional<std::filesystem::path>& path);
    void enqueue(Export& begun);
    void schedule(const Operation& operation);
    void end(Operation operation); // by value: it may be mainOperation
    std::list<Export>::iterator find(const Operation& operation);

    std::vector<PluginClass> classes;
    std::list<Export> exports; // from the choice of the plug-in to their end
    std::vector<Operation> inBackground;
    Operation mainOperation;
    std::optional<KTExistingFiles> existingFiles;
    KTPhotoExportOptions requestedOptions;
    KTPhotoController* photoController = nullptr;
    const KTMetadataFieldManager* metadataController = nullptr;
    KTTrackManager* trackManager = nullptr;
    KTPresenter* presenter = nullptr;
    KTViewHandle primaryWindow = nullptr;
    KTOperationQueue queue; // last, so that its end is waited for first
};
