#include "export/KTExportHistoryStore.h"

#include "platform/common/KTLocalizedString.h"
#include "platform/common/KTLog.h"
#include "platform/common/KTText.h"
#include "platform/presentation/KTPresenter.h"

#include <QFile>
#include <QStandardPaths>
#include <SQLiteCpp/SQLiteCpp.h>

namespace {

constexpr int kBusyTimeout = 250; // milliseconds that another process may hold the file
constexpr const char* kSchema =
    "CREATE TABLE IF NOT EXISTS PhotoExportOperation(id INTEGER PRIMARY KEY, name TEXT "
    "NOT NULL, icon BLOB, destinationURL TEXT, resultDescription TEXT)";

void bind(SQLite::Statement& statement, const KTPhotoExportOperation& record) {
    statement.bind(1, record.name);
    statement.bind(2, record.icon.data(), int(record.icon.size()));
    statement.bind(3, record.destinationURL);
    statement.bind(4, record.resultDescription);
}

} // namespace

struct KTExportHistoryStore::Database : SQLite::Database {
    explicit Database(const std::string& file)
        : SQLite::Database(file, SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE, kBusyTimeout) {
        exec("PRAGMA trusted_schema = OFF; PRAGMA journal_mode = WAL; PRAGMA synchronous = NORMAL");
        exec(kSchema);
    }
};

std::filesystem::path KTExportHistoryStore::userFile() {
    const QString data = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    return std::filesystem::path(QFile::encodeName(data).toStdString()) / "waymark" / "Export History.sql";
}

KTExportHistoryStore::KTExportHistoryStore(std::filesystem::path file) : storeFile(std::move(file)) {}

KTExportHistoryStore::~KTExportHistoryStore() = default;

template<class Work>
void KTExportHistoryStore::perform(const Work& work) {
    if (!std::exchange(isOpened, true)) {
        std::error_code error;
        std::filesystem::create_directories(storeFile.parent_path(), error);
        try {
            opened = std::make_unique<Database>(storeFile.string());
        } catch (const SQLite::Exception& problem) {
            const std::string message = KTStringWithFormat(
                KTLocalizedString("The list of exports cannot be kept: %@ cannot be opened (%@)."),
                {KTValidUTF8(storeFile.string()), problem.what()});
            if (presenter != nullptr)
                presenter->presentAlert({.message = message, .buttons = {KTLocalizedString("OK")}});
            else
                KTLog(message);
        }
    }
    if (opened)
        try {
            work(*opened);
        } catch (const SQLite::Exception&) { // the export itself is not touched by it
        }
}

std::vector<KTPhotoExportOperation> KTExportHistoryStore::load() {
    std::vector<KTPhotoExportOperation> records;
    perform([&](SQLite::Database& database) {
        SQLite::Statement statement(
            database,
            "SELECT id, name, icon, destinationURL, resultDescription FROM PhotoExportOperation ORDER BY id");
        while (statement.executeStep()) {
            KTPhotoExportOperation& record = records.emplace_back();
            record.id = statement.getColumn(0).getInt64();
            record.name = statement.getColumn(1).getString();
            record.icon = statement.getColumn(2).getString();
            record.destinationURL = statement.getColumn(3).getString();
            record.resultDescription = statement.getColumn(4).getString();
        }
    });
    return records;
}

void KTExportHistoryStore::insert(KTPhotoExportOperation& record) {
    perform([&](SQLite::Database& database) {
        SQLite::Statement statement(database, "INSERT INTO PhotoExportOperation(name, icon, destinationURL, "
                                              "resultDescription) VALUES(?, ?, ?, ?)");
        bind(statement, record);
        statement.exec();
        record.id = database.getLastInsertRowid();
    });
}

void KTExportHistoryStore::update(const KTPhotoExportOperation& record) {
    perform([&](SQLite::Database& database) {
        SQLite::Statement statement(database, "UPDATE PhotoExportOperation SET name = ?, icon = ?, "
                                              "destinationURL = ?, resultDescription = ? WHERE id = ?");
        bind(statement, record);
        statement.bind(5, record.id);
        statement.exec();
    });
}

void KTExportHistoryStore::remove(const KTPhotoExportOperation& record) {
    perform([&](SQLite::Database& database) {
        SQLite::Statement statement(database, "DELETE FROM PhotoExportOperation WHERE id = ?");
        statement.bind(1, record.id);
        statement.exec();
    });
}
