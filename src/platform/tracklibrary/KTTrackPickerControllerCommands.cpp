#include "platform/common/KTLocalizedString.h"
#include "platform/common/KTText.h"
#include "platform/concurrency/KTMainThread.h"
#include "platform/concurrency/KTThreadPool.h"
#include "platform/defaults/KTUserDefaults.h"
#include "platform/desktop/KTItemReplacement.h"
#include "platform/tracklibrary/KTTrackPickerController.h"

#include <algorithm>
#include <fstream>

namespace {

constexpr std::string_view kRecentFiles = "recentTrackFiles";
constexpr std::size_t kRecentFilesKept = 10;

} // namespace

void KTTrackPickerController::importFilesAction() {
    if (presenter == nullptr)
        return;
    presenter->presentFilePanel({.kind = KTFilePanel::Kind::OpenFiles,
                                 .allowedFileTypes = KTTrackManager::validFileTypes(),
                                 .directory = lastFolder,
                                 .completion = [alive = std::weak_ptr(self)](const auto& paths) {
                                     const auto controller = alive.lock();
                                     if (!controller || paths.empty())
                                         return;
                                     (*controller)->lastFolder = paths.back().parent_path();
                                     (*controller)->importFilesAtPaths(paths);
                                 }});
}

void KTTrackPickerController::downloadFromGPSAction(std::vector<std::filesystem::path> mounts) {
    KTRunOnThreadPool([alive = std::weak_ptr(self), mounts = std::move(mounts)] {
        KTPerformOnMainThread([alive, files = KTGPSReceivers::trackFiles(mounts)] {
            const auto controller = alive.lock();
            if (!controller)
                return;
            if (files.empty())
                (*controller)
                    ->presentProblems(
                        KTLocalizedString("No tracks of a GPS receiver were found."),
                        {KTLocalizedString(
                            "Connect the receiver, wait until it appears as a disk, and try again.")});
            else
                (*controller)->importFilesAtPaths(files);
        });
    });
}

void KTTrackPickerController::importFilesAtPaths(const KTTrackManager::Paths& files) {
    manager.importFilesAtPaths(files, [alive = std::weak_ptr(self)](const auto& imports) {
        const auto controller = alive.lock();
        if (!controller)
            return;
        std::vector<std::string> problems;
        for (const KTTrackManager::ImportOfFile& import : imports)
            if (!import.result.succeeded())
                problems.push_back(import.result.error);
            else
                (*controller)->noteRecentFile(import.file);
        if (problems.size() == 1)
            (*controller)
                ->presentProblems(KTLocalizedString("A track file could not be imported."), problems);
        else if (!problems.empty())
            (*controller)
                ->presentProblems(KTLocalizedCount("%d track files could not be imported.", problems.size()),
                                  problems);
    });
}

KTTrackManager::Paths KTTrackPickerController::recentTrackFiles() {
    const auto texts = KTUserDefaults::standardUserDefaults().textsForKey(kRecentFiles);
    return {texts.begin(), texts.end()};
}

void KTTrackPickerController::noteRecentFile(const std::filesystem::path& file) {
    auto& defaults = KTUserDefaults::standardUserDefaults();
    auto files = defaults.textsForKey(kRecentFiles);
    std::erase(files, file.string());
    files.insert(files.begin(), file.string());
    files.resize(std::min(files.size(), kRecentFilesKept));
    willChange(kRecentFiles);
    defaults.setValue(kRecentFiles, KTValue::listOfTexts(files));
    didChange(kRecentFiles);
}

void KTTrackPickerController::presentProblems(std::string message, const std::vector<std::string>& problems) {
    constexpr std::size_t kShown = 10;
    std::vector<std::string> shown(problems.begin(), problems.begin() + std::min(problems.size(), kShown));
    if (problems.size() > kShown)
        shown.push_back(KTLocalizedCount("… and %d more", problems.size() - kShown));
    if (presenter != nullptr)
        presenter->presentAlert({.message = std::move(message),
                                 .informativeText = KTJoin(shown, "\n"),
                                 .buttons = {KTLocalizedString("OK")}});
}

std::vector<std::int64_t> KTTrackPickerController::trackIDsOf(const KTTrackSourceList::Records& records) {
    std::vector<std::int64_t> ids;
    for (const KTTrackRecord& record : records)
        if (std::ranges::find(ids, record.trackID()) == ids.end())
            ids.push_back(record.trackID());
    return ids;
}

void KTTrackPickerController::removeSelectedAction() {
    manager.removeTracks(
        trackIDsOf(list.selectedTracksAndWaypoints()), undo,
        [alive = std::weak_ptr(self)](const std::string& error) {
            const auto controller = alive.lock();
            if (controller && !error.empty())
                (*controller)
                    ->presentProblems(KTLocalizedString("The track library could not be changed."), {error});
        });
}

void KTTrackPickerController::exportSelectedAction() {
    const std::vector<std::int64_t> tracks = trackIDsOf(list.selectedTracksAndWaypoints());
    if (presenter == nullptr || tracks.empty())
        return;
    const std::string name = list.selectedTracksAndWaypoints().front().name();
    presenter->presentFilePanel({.kind = KTFilePanel::Kind::SaveFile,
                                 .allowedFileTypes = {"gpx"},
                                 .directory = lastFolder,
                                 .proposedName = (name.empty() ? KTLocalizedString("Tracks") : name) + ".gpx",
                                 .completion = [alive = std::weak_ptr(self), tracks](const auto& paths) {
                                     if (const auto controller = alive.lock(); controller && !paths.empty())
                                         (*controller)->writeGPX(tracks, paths.front());
                                 }});
}

namespace {

/// Writes beside the file and replaces it in one step; returns why that failed.
std::string writeFileOfTracks(const KTTrackStore& store, const std::vector<std::int64_t>& tracks,
                              const std::filesystem::path& file) {
    const KTItemReplacement replacement(file);
    if (replacement.error())
        return *replacement.error();
    std::ofstream out(replacement.temporaryItem(), std::ios::binary);
    if (std::string error = store.exportGPX(tracks, out); !error.empty())
        return error;
    out.close();
    if (!out)
        return KTLocalizedString("The tracks could not be written.");
    return KTReplaceItem(file, replacement.temporaryItem()).value_or("");
}

} // namespace

void KTTrackPickerController::writeGPX(const std::vector<std::int64_t>& tracks,
                                       const std::filesystem::path& file) {
    exports.addOperationWithBlock([this, tracks, file, alive = std::weak_ptr(self)] {
        const std::string error = writeFileOfTracks(manager.store(), tracks, file);
        if (error.empty())
            return;
        KTPerformOnMainThread([alive, error] {
            if (const auto controller = alive.lock())
                (*controller)
                    ->presentProblems(KTLocalizedString("The tracks could not be exported."), {error});
        });
    });
}
