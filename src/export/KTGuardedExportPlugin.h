#pragma once
#include "export/waymark/KTPhotoExportPlugin.h"

#include <atomic>
#include <mutex>

/// A plug-in as the host calls it: whatever the plug-in throws is logged and ends here. After that nothing of
/// it is called any more, and the answers are empty. Threads as for the plug-in itself.
class KTGuardedExportPlugin final : public KTPhotoExportPlugin {
public:
    /// @p from is named in the log.
    KTGuardedExportPlugin(std::unique_ptr<KTPhotoExportPlugin> guardedPlugin, std::string from)
        : plugin(std::move(guardedPlugin)), origin(std::move(from)) {}

    bool hasThrown() const { return thrown; }
    /// What it has thrown first, in a sentence for users; empty while it has not.
    std::string failure() const;

    bool wantsDestinationPathPrompt() const override;
    std::filesystem::path defaultDirectory() const override;
    bool shouldSaveToIndividualFile() const override;
    std::string defaultFileName() const override;
    std::vector<std::string> allowedFileTypes() const override;
    KTViewHandle settingsView() const override;
    KTViewHandle firstView() const override;
    KTViewHandle lastView() const override;
    void shouldPrepareForExportToPath(const std::optional<std::filesystem::path>& path) override;
    bool canExportOnBackgroundThread() const override;
    void performExport() override;
    void shouldCancelExport() override;
    void lockProgress() override;
    void unlockProgress() override;
    std::string message() const override;
    std::uint64_t currentValue() const override;
    std::int64_t totalValue() const override;
    bool indeterminateProgress() const override;
    std::string concludingDescription() const override;
    std::string concludingURL() const override;

private:
    template<class Operation, class... Arguments>
    auto guarded(const char* name, Operation operation, const Arguments&... arguments) const;
    void noteException(const char* operation) const;

    const std::unique_ptr<KTPhotoExportPlugin> plugin;
    const std::string origin;
    mutable std::atomic<bool> thrown = false;
    mutable std::mutex failureMutex; // guards what follows
    mutable std::string failureReason;
    bool isLocked = false; // for the main thread, as the lock is
};
