#pragma once
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

class KTPresenter;

/// Remembers texts by key, such as what was typed into the fields of an editor, in an SQLite file. The file
/// is opened at the first use. Where it cannot be, the user is told once, and nothing is remembered; a value
/// that cannot be written, or read, is passed over in silence. Main thread.
class KTComboBoxStoreController {
public:
    /// The one in the user's cache folder.
    static KTComboBoxStoreController& sharedComboBoxStoreController();
    /// The store in @p file; its folder is made when the file is opened.
    explicit KTComboBoxStoreController(std::filesystem::path file);
    ~KTComboBoxStoreController();
    /// Brightfold/MetadataAutocompleteValues.sql in the user's cache folder, else in that for temporary
    /// files.
    static std::filesystem::path userFile();

    /// Tells the user why the store cannot be opened; must outlive its use. Without one the log does.
    void setPresenter(KTPresenter* newPresenter) { presenter = newPresenter; }

    /// Adds a record, also one that is there already. Nothing for an empty value or key.
    void cacheValue(const std::string& value, const std::string& forKey);
    /// Removes every such record.
    void removeValue(const std::string& value, const std::string& forKey);
    /// The values of every record of @p forKey, in the order in which they were added.
    std::vector<std::string> cacheArrayForKey(const std::string& forKey);

private:
    class Store;

    Store* store();

    const std::filesystem::path storeFile;
    KTPresenter* presenter = nullptr;
    bool isOpened = false;
    std::unique_ptr<Store> opened; // null where it could not be opened
};
