#include "FolderExport.h"

namespace fs = std::filesystem;

void FolderExport::shouldPrepareForExportToPath(const std::optional<fs::path>& path) {
    if (!path) {
        manager.exportManagerShouldCancelExport();
        return;
    }
    folder = *path;
    settings = FolderExportSettings::ofUser();
    total = static_cast<std::int64_t>(manager.photos().size());
    manager.exportManagerShouldBeginExport();
}

void FolderExport::performExport() {
    std::size_t finished = 0, failed = 0;
    std::string reason; // of the first failure
    for (const auto& photo : manager.photos()) {
        if (isCancelled)
            break;
        showProgress(finished);
        const KTPhotoExportResult result = exportPhoto(*photo);
        if (!result && failed++ == 0)
            reason = photo->filename() + ": " + result.reason;
        ++finished;
    }
    showProgress(finished);
    conclude(finished - failed, failed, reason);
    manager.exportManagerShouldFinishExport();
}

void FolderExport::showProgress(std::size_t photosDone) {
    const auto next = std::min(static_cast<std::int64_t>(photosDone) + 1, total);
    const std::lock_guard lock(mutex);
    done = photosDone;
    progressMessage = tr("Exporting photo %1 of %2").arg(next).arg(total).toStdString();
}

KTPhotoExportResult FolderExport::exportPhoto(const KTExportedPhoto& photo) {
    return manager.exportPhoto(photo, destinationFor(photo), settings.options());
}

/// The photo's name in the folder, with a number where the folder has a file of that name, which may be
/// another photo of this export.
fs::path FolderExport::destinationFor(const KTExportedPhoto& photo) const {
    const fs::path name = photo.filename();
    std::string extension = name.extension().string();
    if (!settings.imageType.empty() && settings.imageType != photo.uti())
        if (std::string other = manager.fileExtensionForUTI(settings.imageType); !other.empty())
            extension = "." + other;
    fs::path candidate = folder / (name.stem().string() + extension);
    std::error_code error;
    for (int number = 1; fs::exists(fs::symlink_status(candidate, error)); ++number)
        candidate = folder / (name.stem().string() + "-" + std::to_string(number) + extension);
    return candidate;
}

void FolderExport::conclude(std::size_t exported, std::size_t failed, const std::string& reason) {
    QStringList sentences;
    if (isCancelled)
        sentences << tr("Export canceled.");
    if (!isCancelled || exported > 0)
        sentences << tr("Exported %1 photos.").arg(exported);
    if (failed > 0)
        sentences << tr("%1 photos could not be exported.").arg(failed) << QString::fromStdString(reason);
    const std::lock_guard lock(mutex);
    conclusion = sentences.join(' ').toStdString();
}

std::string FolderExport::concludingURL() const {
    // By bytes: a path need not be text.
    return "file://" + QByteArray::fromStdString(folder.string()).toPercentEncoding("/").toStdString();
}
