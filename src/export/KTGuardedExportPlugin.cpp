#include "export/KTGuardedExportPlugin.h"

#include "export/KTPluginError.h"

#include <functional>

/// What @p operation of the plug-in answers; an empty answer where it throws, or anything has thrown before.
template<class Operation, class... Arguments>
auto KTGuardedExportPlugin::guarded(const char* name, Operation operation,
                                    const Arguments&... arguments) const {
    using Answer = std::invoke_result_t<Operation, KTPhotoExportPlugin&, const Arguments&...>;
    try {
        if (!thrown)
            return std::invoke(operation, *plugin, arguments...);
    } catch (...) {
        noteException(name);
    }
    return Answer();
}

void KTGuardedExportPlugin::noteException(const char* operation) const {
    const KTPluginError error = KTPluginError::ofCurrentException(origin, operation);
    {
        const std::lock_guard guard(failureMutex);
        if (failureReason.empty())
            failureReason = error.failureReason;
    }
    thrown = true;
    error.log();
}

std::string KTGuardedExportPlugin::failure() const {
    const std::lock_guard guard(failureMutex);
    return failureReason;
}

bool KTGuardedExportPlugin::wantsDestinationPathPrompt() const {
    return guarded("wantsDestinationPathPrompt", &KTPhotoExportPlugin::wantsDestinationPathPrompt);
}

std::filesystem::path KTGuardedExportPlugin::defaultDirectory() const {
    return guarded("defaultDirectory", &KTPhotoExportPlugin::defaultDirectory);
}

bool KTGuardedExportPlugin::shouldSaveToIndividualFile() const {
    return guarded("shouldSaveToIndividualFile", &KTPhotoExportPlugin::shouldSaveToIndividualFile);
}

std::string KTGuardedExportPlugin::defaultFileName() const {
    return guarded("defaultFileName", &KTPhotoExportPlugin::defaultFileName);
}

std::vector<std::string> KTGuardedExportPlugin::allowedFileTypes() const {
    return guarded("allowedFileTypes", &KTPhotoExportPlugin::allowedFileTypes);
}

KTViewHandle KTGuardedExportPlugin::settingsView() const {
    return guarded("settingsView", &KTPhotoExportPlugin::settingsView);
}

KTViewHandle KTGuardedExportPlugin::firstView() const {
    return guarded("firstView", &KTPhotoExportPlugin::firstView);
}

KTViewHandle KTGuardedExportPlugin::lastView() const {
    return guarded("lastView", &KTPhotoExportPlugin::lastView);
}

void KTGuardedExportPlugin::shouldPrepareForExportToPath(const std::optional<std::filesystem::path>& path) {
    guarded("shouldPrepareForExportToPath", &KTPhotoExportPlugin::shouldPrepareForExportToPath, path);
}

bool KTGuardedExportPlugin::canExportOnBackgroundThread() const {
    return guarded("canExportOnBackgroundThread", &KTPhotoExportPlugin::canExportOnBackgroundThread);
}

void KTGuardedExportPlugin::performExport() {
    guarded("performExport", &KTPhotoExportPlugin::performExport);
}

void KTGuardedExportPlugin::shouldCancelExport() {
    guarded("shouldCancelExport", &KTPhotoExportPlugin::shouldCancelExport);
}

void KTGuardedExportPlugin::lockProgress() {
    guarded("lockProgress", [this](KTPhotoExportPlugin& guardedPlugin) {
        guardedPlugin.lockProgress();
        isLocked = true;
    });
}

void KTGuardedExportPlugin::unlockProgress() {
    // Also where another thread has thrown meanwhile: a lock that was taken is given back.
    if (!std::exchange(isLocked, false))
        return;
    try {
        plugin->unlockProgress();
    } catch (...) {
        noteException("unlockProgress");
    }
}

std::string KTGuardedExportPlugin::message() const {
    return guarded("message", &KTPhotoExportPlugin::message);
}

std::uint64_t KTGuardedExportPlugin::currentValue() const {
    return guarded("currentValue", &KTPhotoExportPlugin::currentValue);
}

std::int64_t KTGuardedExportPlugin::totalValue() const {
    return guarded("totalValue", &KTPhotoExportPlugin::totalValue);
}

bool KTGuardedExportPlugin::indeterminateProgress() const {
    return guarded("indeterminateProgress", &KTPhotoExportPlugin::indeterminateProgress);
}

std::string KTGuardedExportPlugin::concludingDescription() const {
    return guarded("concludingDescription", &KTPhotoExportPlugin::concludingDescription);
}

std::string KTGuardedExportPlugin::concludingURL() const {
    return guarded("concludingURL", &KTPhotoExportPlugin::concludingURL);
}
