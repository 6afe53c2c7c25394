#include "platform/defaults/KTComboBoxStoreController.h"

#include "platform/common/KTLocalizedString.h"
#include "platform/common/KTLog.h"
#include "platform/common/KTText.h"
#include "platform/presentation/KTPresenter.h"

#include <QStandardPaths>
#include <SQLiteCpp/SQLiteCpp.h>

namespace {

constexpr int kBusyTimeout = 250; // milliseconds that another process may hold the file
constexpr const char* kSchema =
    "CREATE TABLE IF NOT EXISTS CachedComboBoxValue(key TEXT NOT NULL, value TEXT NOT NULL);"
    "CREATE INDEX IF NOT EXISTS CachedComboBoxValue_key ON CachedComboBoxValue(key)";

} // namespace

/// The open file. Every function throws SQLite::Exception.
class KTComboBoxStoreController::Store {
public:
    explicit Store(const std::string& file)
        : database(file, SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE, kBusyTimeout) {
        database.exec("PRAGMA trusted_schema = OFF; PRAGMA journal_mode = WAL; PRAGMA synchronous = NORMAL");
        database.exec(kSchema);
    }

    void run(const char* sql, const std::string& key, const std::string& value) {
        SQLite::Statement statement(database, sql);
        statement.bind(1, key);
        statement.bind(2, value);
        statement.exec();
    }

    std::vector<std::string> values(const std::string& key) {
        SQLite::Statement statement(database,
                                    "SELECT value FROM CachedComboBoxValue WHERE key = ? ORDER BY rowid");
        statement.bind(1, key);
        std::vector<std::string> result;
        while (statement.executeStep())
            result.push_back(statement.getColumn(0).getString());
        return result;
    }

private:
    SQLite::Database database;
};

KTComboBoxStoreController& KTComboBoxStoreController::sharedComboBoxStoreController() {
    static KTComboBoxStoreController shared(userFile());
    return shared;
}

KTComboBoxStoreController::KTComboBoxStoreController(std::filesystem::path file)
    : storeFile(std::move(file)) {}

KTComboBoxStoreController::~KTComboBoxStoreController() = default;

std::filesystem::path KTComboBoxStoreController::userFile() {
    QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation);
    if (folder.isEmpty())
        folder = QStandardPaths::writableLocation(QStandardPaths::TempLocation);
    return std::filesystem::path(folder.toStdString()) / "Brightfold" / "MetadataAutocompleteValues.sql";
}

KTComboBoxStoreController::Store* KTComboBoxStoreController::store() {
    if (std::exchange(isOpened, true))
        return opened.get();
    std::error_code error;
    std::filesystem::create_directories(storeFile.parent_path(), error);
    if (error)
        KTLog(storeFile.parent_path().string() + ": " + error.message());
    try {
        opened = std::make_unique<Store>(storeFile.string());
    } catch (const SQLite::Exception& problem) {
        const std::string message = KTStringWithFormat(
            KTLocalizedString("The texts typed before cannot be offered: %@ cannot be opened (%@)."),
            {storeFile.string(), problem.what()});
        if (presenter != nullptr)
            presenter->presentAlert({.message = message, .buttons = {KTLocalizedString("OK")}});
        else
            KTLog(message);
    }
    return opened.get();
}

void KTComboBoxStoreController::cacheValue(const std::string& value, const std::string& forKey) {
    if (value.empty() || forKey.empty() || store() == nullptr)
        return;
    try {
        opened->run("INSERT INTO CachedComboBoxValue(key, value) VALUES(?, ?)", forKey, value);
    } catch (const SQLite::Exception&) { // what was typed is in the photos all the same
    }
}

void KTComboBoxStoreController::removeValue(const std::string& value, const std::string& forKey) {
    if (value.empty() || forKey.empty() || store() == nullptr)
        return;
    try {
        opened->run("DELETE FROM CachedComboBoxValue WHERE key = ? AND value = ?", forKey, value);
    } catch (const SQLite::Exception&) {
    }
}

std::vector<std::string> KTComboBoxStoreController::cacheArrayForKey(const std::string& forKey) {
    if (store() != nullptr)
        try {
            return opened->values(forKey);
        } catch (const SQLite::Exception&) {
        }
    return {};
}
