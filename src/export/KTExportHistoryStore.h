#pragma once
#include "export/KTPhotoExportOperation.h"

#include <filesystem>
#include <memory>
#include <vector>

class KTPresenter;

/// The exports of the past in an SQLite file. The file is opened at the first use; where it cannot be, the
/// user is told once, and what is recorded is forgotten at the end of the program. A record that cannot be
/// written is passed over in silence. Main thread.
class KTExportHistoryStore {
public:
    /// waymark/Export History.sql in the user's data folder.
    static std::filesystem::path userFile();
    /// The folder of @p file is made when it is opened.
    explicit KTExportHistoryStore(std::filesystem::path file);
    ~KTExportHistoryStore();

    /// Tells why the file cannot be opened; the log does without one. Outlives the use of the store.
    void setPresenter(KTPresenter* whoTells) { presenter = whoTells; }

    /// In the order in which they were added; none is in progress.
    std::vector<KTPhotoExportOperation> load();
    /// Adds @p record and gives it its id.
    void insert(KTPhotoExportOperation& record);
    void update(const KTPhotoExportOperation& record);
    void remove(const KTPhotoExportOperation& record);

private:
    struct Database;
    template<class Work>
    void perform(const Work& work);

    const std::filesystem::path storeFile;
    KTPresenter* presenter = nullptr;
    bool isOpened = false;
    std::unique_ptr<Database> opened; // null where it could not be opened
};
