#pragma once
#include "KTPhotoExportManager.h"

#include <cstdint>
#include <optional>

/// One export by a plug-in: made when the user chooses the plug-in, asked what to ask the user, prepared,
/// run, and destroyed. Everything happens on the main thread, but performExport where
/// canExportOnBackgroundThread says so. No function should throw; where one does, the host writes it to the
/// log and ends the export.
class KTPhotoExportPlugin {
public:
    virtual ~KTPhotoExportPlugin() = default;

    // What the host asks the user on the plug-in's behalf; read before shouldPrepareForExportToPath
    /// Whether a destination is asked for.
    virtual bool wantsDestinationPathPrompt() const = 0;
    /// The folder in which that question opens; empty for any.
    virtual std::filesystem::path defaultDirectory() const = 0;
    /// Whether the destination is one file rather than a folder.
    virtual bool shouldSaveToIndividualFile() const = 0;
    /// The name that is proposed for this file.
    virtual std::string defaultFileName() const = 0;
    /// The extensions it may have, without dot; empty for any.
    virtual std::vector<std::string> allowedFileTypes() const = 0;
    /// The plug-in's settings, shown with that question, or alone where no destination is asked for. The view
    /// belongs to the plug-in and must live as long; the host takes it into a window and out again.
    virtual KTViewHandle settingsView() const = 0;
    /// The views of it that get the keyboard first and last.
    virtual KTViewHandle firstView() const = 0;
    virtual KTViewHandle lastView() const = 0;

    // The export
    /// The host has the answers: @p path is the destination where one was asked for. The plug-in prepares and
    /// when it is ready, at once or later, calls exportManagerShouldBeginExport.
    virtual void shouldPrepareForExportToPath(const std::optional<std::filesystem::path>& path) = 0;
    /// Whether performExport may run on another thread than the main thread. One export at most runs on the
    /// main thread, and the application stands still as long as performExport does not return.
    virtual bool canExportOnBackgroundThread() const = 0;
    /// Does the export. On another thread it is over when this returns; on the main thread when the plug-in
    /// calls exportManagerShouldFinishExport.
    virtual void performExport() = 0;
    /// The user wants the export to end; called on the main thread, also while performExport runs.
    virtual void shouldCancelExport() = 0;

    // Progress, which the main thread reads many times a second while performExport runs
    /// Bracket such reads; the plug-in holds the same lock while it changes what follows. Short, and without
    /// any call of the host.
    virtual void lockProgress() = 0;
    virtual void unlockProgress() = 0;
    /// What is being done, in the user's language.
    virtual std::string message() const = 0;
    /// How far it is, and of how much.
    virtual std::uint64_t currentValue() const = 0;
    virtual std::int64_t totalValue() const = 0;
    /// Whether the total is not known.
    virtual bool indeterminateProgress() const = 0;
    /// What was done, once it is over.
    virtual std::string concludingDescription() const = 0;
    /// Where the result is ("file:///home/…", "https://…"); empty for none.
    virtual std::string concludingURL() const = 0;
};
