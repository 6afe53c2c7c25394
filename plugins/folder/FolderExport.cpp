#include "FolderExport.h"

#include "FolderNames.h"
#include "FolderSettingsView.h"

#include <QApplication>
#include <QStringList>
#include <algorithm>
#include <thread>

namespace fs = std::filesystem;

namespace {

constexpr unsigned kMostAtATime =
    4; // photos, each of which is some hundred megabytes while it is made smaller

} // namespace

FolderExport::FolderExport(KTPhotoExportManager& exportManager) : manager(exportManager) {
    if (qobject_cast<QApplication*>(QCoreApplication::instance()) != nullptr)
        view = std::make_unique<FolderSettingsView>(FolderExportSettings::ofUser(), manager);
}

FolderExport::~FolderExport() = default;

KTViewHandle FolderExport::settingsView() const {
    return static_cast<QWidget*>(view.get());
}

KTViewHandle FolderExport::firstView() const {
    return view ? view->firstField() : nullptr;
}

KTViewHandle FolderExport::lastView() const {
    return view ? view->lastField() : nullptr;
}

void FolderExport::shouldPrepareForExportToPath(const std::optional<fs::path>& path) {
    if (!path) {
        manager.exportManagerShouldCancelExport();
        return;
    }
    folder = *path;
    settings = view ? view->settings() : FolderExportSettings::ofUser();
    if (view)
        settings.store();
    settings = settings.with(manager.requestedOptions());
    photos = manager.photos();
    done = failed = 0;
    firstReason.clear();
    total = static_cast<std::int64_t>(photos.size());
    auto wanted = FolderNames(manager, settings, folder).destinations(false);
    manager.askAboutExistingFiles(wanted, [this, wanted](KTExistingFiles answer) { begin(answer, wanted); });
}

void FolderExport::begin(KTExistingFiles answer, std::vector<fs::path> wanted) {
    if (answer == KTExistingFiles::Cancel) {
        manager.exportManagerShouldCancelExport();
        return;
    }
    destinations = answer == KTExistingFiles::KeepBoth
                       ? FolderNames(manager, settings, folder).destinations(true)
                       : std::move(wanted);
    manager.exportManagerShouldBeginExport();
}

/// Several photos at a time: while one is written, another is made smaller.
void FolderExport::performExport() {
    showProgress();
    std::atomic<std::size_t> next = 0;
    {
        const auto useful = std::min<std::size_t>(
            {photos.size(), kMostAtATime, std::max(1u, std::thread::hardware_concurrency())});
        std::vector<std::jthread> helpers;
        for (std::size_t i = 1; i < useful; ++i)
            helpers.emplace_back([&] { exportPhotos(next); });
        exportPhotos(next);
    }
    conclude();
    manager.exportManagerShouldFinishExport();
}

void FolderExport::exportPhotos(std::atomic<std::size_t>& next) {
    while (!isCancelled) {
        const std::size_t index = next++;
        if (index >= photos.size())
            return;
        const KTPhotoExportResult result = exportPhoto(index);
        {
            const std::lock_guard lock(mutex);
            ++done;
            if (!result && failed++ == 0)
                firstReason = photos[index]->filename() + ": " + result.reason;
        }
        showProgress();
    }
}

KTPhotoExportResult FolderExport::exportPhoto(std::size_t index) {
    std::error_code error;
    fs::create_directories(destinations[index].parent_path(), error);
    if (error)
        return {false, tr("The folder cannot be made.").toStdString()};
    return manager.exportPhoto(*photos[index], destinations[index], settings.options());
}

void FolderExport::showProgress() {
    const std::lock_guard lock(mutex);
    const auto next = std::min(static_cast<std::int64_t>(done) + 1, total);
    progressMessage = tr("Exporting photo %1 of %2").arg(next).arg(total).toStdString();
}

void FolderExport::conclude() {
    const std::lock_guard lock(mutex);
    const std::uint64_t exported = done - failed;
    QStringList sentences;
    if (isCancelled)
        sentences << tr("Export canceled.");
    if (!isCancelled || exported > 0)
        sentences << (exported == 1 ? tr("Exported 1 photo.") : tr("Exported %1 photos.").arg(exported));
    if (failed > 0)
        sentences << (failed == 1 ? tr("1 photo could not be exported.")
                                  : tr("%1 photos could not be exported.").arg(failed))
                  << QString::fromStdString(firstReason);
    conclusion = sentences.join(' ').toStdString();
}

std::string FolderExport::concludingURL() const {
    // By bytes: a path need not be text.
    return "file://" + QByteArray::fromStdString(folder.string()).toPercentEncoding("/").toStdString();
}
