#pragma once
#include "export/KTExportHistoryStore.h"
#include "export/KTPhotoExportPluginManager.h"
#include "platform/presentation/KTMenu.h"

class QTimer;

/// What the history's commands need of the desktop. Main thread.
class KTExportDesktop {
public:
    virtual ~KTExportDesktop() = default;
    /// Opens the address of a file, a folder or a page in the program for it.
    virtual void openURL(const std::string& url) = 0;
    virtual void setClipboardText(const std::string& text) = 0;
};

/// The history of the exports that run, or ran, on another thread: records that live on in a store, brought
/// up to date from the plug-ins while these work. Observable under "exportOperations": insertions and
/// removals, and a setting without old value for each change of records. Main thread.
class KTPhotoExportOperationController final : public KTObservable {
public:
    using Record = std::shared_ptr<KTPhotoExportOperation>;
    using Records = std::vector<Record>;

    /// Progress is read this often while an export runs.
    static constexpr std::chrono::milliseconds kProgressInterval{50};

    /// @p workspace outlives the controller.
    KTPhotoExportOperationController(std::filesystem::path storeFile, KTExportDesktop& workspace);
    ~KTPhotoExportOperationController() override;

    KTExportHistoryStore& store() { return history; }
    /// Follows the exports of @p manager, which outlives that, instead of another one's; null for none.
    void setPhotoExportPlugins(KTPhotoExportPluginManager* manager);
    /// Puts what the store holds before what is there; an export of which it knows no end was cut off.
    void loadSavedExportOperations();

    const Records& exportOperations() const { return records; }
    /// Those that run, with their exports.
    const std::map<KTPhotoExportPluginManager::Operation, Record>& exportOperationPluginMap() const {
        return running;
    }
    /// Copies the plug-ins' progress into their records, as the timer does.
    void updateProgress();
    void shouldCancelExportForOperation(const Record& record);
    /// Takes records out of the list and the store. Those in progress stay.
    void removeExportOperations(const Records& removed);

    /// The context menu of @p chosen records.
    KTMenu menuForOperations(const Records& chosen);
    void revealAction(const Records& chosen);
    void deleteAction(const Records& chosen) { removeExportOperations(chosen); }
    void copyAction(const Records& chosen);

private:
    void operationsDidChange();
    void addExportOperation(const KTPhotoExportPluginManager::Operation& operation);
    void handleFinishedExportOperation(const KTPhotoExportPluginManager::Operation& operation);
    void insert(std::size_t place, Records added);
    void startTimer();

    KTExportHistoryStore history;
    KTExportDesktop& desktop;
    KTPhotoExportPluginManager* photoExportPlugins = nullptr;
    Records records;
    std::map<KTPhotoExportPluginManager::Operation, Record> running;
    std::unique_ptr<QTimer> progressTimer;
    Observation operations;
};
