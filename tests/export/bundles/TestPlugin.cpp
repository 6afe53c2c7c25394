#include <waymark/KTPhotoExportPluginFactory.h>

#include <QObject>
#include <cstdlib>
#include <fstream>
#include <stdexcept>

namespace {

/// Throws where the environment says so.
void mayThrow(std::string_view operation) {
    const char* wanted = std::getenv("WAYMARK_TEST_PLUGIN_THROWS");
    if (wanted != nullptr && operation == wanted)
        throw std::runtime_error("thrown for the test");
    if (wanted != nullptr && std::string("number from ") + std::string(operation) == wanted)
        throw 5;
}

/// Writes what it is given into the file that the user chooses.
class TestPlugin final : public KTPhotoExportPlugin {
public:
    explicit TestPlugin(KTPhotoExportManager& exportManager) : manager(exportManager) {}

    bool wantsDestinationPathPrompt() const override {
        mayThrow("wantsDestinationPathPrompt");
        return true;
    }
    std::filesystem::path defaultDirectory() const override { return {}; }
    bool shouldSaveToIndividualFile() const override { return true; }
    std::string defaultFileName() const override {
        mayThrow("defaultFileName");
        return "photos.txt";
    }
    std::vector<std::string> allowedFileTypes() const override { return {"txt"}; }
    KTViewHandle settingsView() const override { return nullptr; }
    KTViewHandle firstView() const override { return nullptr; }
    KTViewHandle lastView() const override { return nullptr; }
    void shouldPrepareForExportToPath(const std::optional<std::filesystem::path>& path) override {
        mayThrow("shouldPrepareForExportToPath");
        file = path.value();
        manager.exportManagerShouldBeginExport();
    }
    bool canExportOnBackgroundThread() const override {
        mayThrow("canExportOnBackgroundThread");
        return std::getenv("WAYMARK_TEST_PLUGIN_ON_MAIN_THREAD") == nullptr;
    }
    void performExport() override {
        mayThrow("performExport");
        std::ofstream out(file);
        for (const auto& photo : manager.photos()) {
            const KTExportedValue caption = photo->valueForKey("caption");
            const KTExportedValue date = photo->valueForKey("dateTimeOriginal");
            out << photo->filename() << '|' << photo->uti() << '|' << std::get<std::string>(caption) << '|'
                << std::get<KTExportedInstant>(date).time_since_epoch().count() << '|'
                << std::get<double>(photo->valueForKey("latitude")) << '|'
                << photo->valueForKey("unknown").index() << '|'
                << manager.exportPhoto(*photo, photo->path(), {}).reason << '\n';
        }
        for (const auto& track : manager.tracks())
            for (const auto& segment : track->segments())
                for (const KTExportedPoint& point : segment)
                    out << track->name() << ' ' << point.latitude << ' ' << point.longitude << ' '
                        << point.elevation.value_or(-1) << ' ' << point.date->time_since_epoch().count()
                        << '\n';
        out << manager.fileExtensionForUTI("public.jpeg") << '|' << manager.fileExtensionForUTI("what") << '|'
            << manager.metadataFields().size() << '|' << manager.metadataGroups().size() << '|'
            << (manager.apiForProtocol("any") == &manager && manager.conformsToProtocol("any", 9)) << '\n';
    }
    void shouldCancelExport() override {}
    void lockProgress() override {}
    void unlockProgress() override {}
    std::string message() const override { return {}; }
    std::uint64_t currentValue() const override { return 0; }
    std::int64_t totalValue() const override { return 0; }
    bool indeterminateProgress() const override { return true; }
    std::string concludingDescription() const override { return {}; }
    std::string concludingURL() const override { return {}; }

private:
    KTPhotoExportManager& manager;
    std::filesystem::path file;
};

} // namespace

class TestPluginFactory final : public QObject, public KTPhotoExportPluginFactory {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID KTPhotoExportPluginFactoryIID)
    Q_INTERFACES(KTPhotoExportPluginFactory)

public:
    TestPluginFactory() { mayThrow("factory"); }
    std::unique_ptr<KTPhotoExportPlugin> initWithAPIManager(KTPhotoExportManager& manager) override {
        mayThrow("initWithAPIManager");
        if (std::getenv("WAYMARK_TEST_PLUGIN_IS_ABSENT") != nullptr)
            return nullptr;
        return std::make_unique<TestPlugin>(manager);
    }
};

#include "TestPlugin.moc"
