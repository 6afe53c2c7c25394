#pragma once
#include "export/KTPhotoExportManagerOperation.h"
#include "export/KTPhotoExportPluginClass.h"
#include "platform/concurrency/KTMainThread.h"

/// What a plug-in shall answer, and what becomes of it.
struct Script {
    bool wantsPath = false, wantsFile = false, isForQueue = false, isAbsent = false, beginsTwice = false;
    KTViewHandle settingsView = nullptr;
    std::function<void(KTPhotoExportManager&)> perform = [](auto& host) {
        host.exportManagerShouldFinishExport();
    };

    std::mutex mutex; // guards what follows
    std::string message, conclusion, url;
    std::uint64_t currentValue = 0;
    std::int64_t totalValue = 0;

    std::string events; ///< "made", "prepared PATH", "cancelled", "destroyed on main thread"
    std::atomic<int> runs = 0;
    std::atomic<bool> ranOnMainThread = false;
    KTPhotoExportManager* manager = nullptr;
    std::vector<std::string> exported;
};

class ScriptedPlugin final : public KTPhotoExportPlugin {
public:
    ScriptedPlugin(Script& followed, KTPhotoExportManager& exportManager)
        : script(followed), manager(exportManager) {
        script.events += "made ";
        script.manager = &manager;
        for (const auto& photo : manager.photos())
            script.exported.push_back(photo->filename());
        manager.exportManagerShouldBeginExport(); // too early
    }
    ~ScriptedPlugin() override {
        script.events += KTMainThread::isCurrent() ? "destroyed " : "destroyed elsewhere ";
    }
    bool wantsDestinationPathPrompt() const override { return script.wantsPath; }
    std::filesystem::path defaultDirectory() const override { return "/pictures"; }
    bool shouldSaveToIndividualFile() const override { return script.wantsFile; }
    std::string defaultFileName() const override { return "trip.html"; }
    std::vector<std::string> allowedFileTypes() const override { return {"html", "htm"}; }
    KTViewHandle settingsView() const override { return script.settingsView; }
    KTViewHandle firstView() const override { return nullptr; }
    KTViewHandle lastView() const override { return nullptr; }
    void shouldPrepareForExportToPath(const std::optional<std::filesystem::path>& path) override {
        script.events += "prepared " + (path ? path->string() + ' ' : "");
        for (int times = script.beginsTwice ? 2 : 1; times > 0; --times)
            manager.exportManagerShouldBeginExport();
    }
    bool canExportOnBackgroundThread() const override { return script.isForQueue; }
    void performExport() override {
        script.ranOnMainThread = KTMainThread::isCurrent();
        ++script.runs;
        script.perform(manager);
    }
    void shouldCancelExport() override { script.events += "cancelled "; }
    void lockProgress() override { script.mutex.lock(); }
    void unlockProgress() override { script.mutex.unlock(); }
    std::string message() const override { return script.message; }
    std::uint64_t currentValue() const override { return script.currentValue; }
    std::int64_t totalValue() const override { return script.totalValue; }
    bool indeterminateProgress() const override { return script.totalValue == 0; }
    std::string concludingDescription() const override { return script.conclusion; }
    std::string concludingURL() const override { return script.url; }

private:
    Script& script;
    KTPhotoExportManager& manager;
};

class ScriptedClass final : public KTPhotoExportPluginClass {
public:
    explicit ScriptedClass(Script& followed) : script(followed) {}
    std::string uuid() const override { return "scripted"; }
    std::string name() const override { return "Scripted"; }
    std::filesystem::path icon() const override { return {}; }
    bool isBuiltIn() const override { return true; }
    bool isUsable() const override { return true; }
    std::unique_ptr<KTPhotoExportPlugin> initWithAPIManager(KTPhotoExportManagerOperation& manager) override {
        operation = &manager;
        return script.isAbsent ? nullptr : std::make_unique<ScriptedPlugin>(script, manager);
    }

    Script& script;
    KTPhotoExportManagerOperation* operation = nullptr;
};
