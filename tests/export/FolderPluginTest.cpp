#include "export/KTPluginManifest.h"
#include "export/waymark/KTPhotoExportPluginFactory.h"
#include "tests/export/ExportFixture.h"

#include <QPluginLoader>
#include <fstream>
#include <sstream>
#include <thread>

namespace fs = std::filesystem;

namespace {

struct Picture final : KTExportedPhoto {
    Picture(fs::path of, std::string type) : file(std::move(of)), identifier(std::move(type)) {}
    fs::path path() const override { return file; }
    std::string filename() const override { return file.filename(); }
    std::string uti() const override { return identifier; }
    KTExportedValue valueForKey(std::string_view) const override { return {}; }

    const fs::path file;
    const std::string identifier;
};

/// A host that writes each photo's path where the plug-in wants the photo.
struct FakeHost final : KTPhotoExportManager {
    std::vector<KTExportedField> metadataFields() const override { return {}; }
    std::vector<KTExportedFieldGroup> metadataGroups() const override { return {}; }
    std::vector<std::shared_ptr<const KTExportedPhoto>> photos() const override { return pictures; }
    std::vector<std::shared_ptr<const KTExportedTrack>> tracks() const override { return {}; }
    KTViewHandle window() const override { return nullptr; }
    KTPhotoExportResult exportPhoto(const KTExportedPhoto& photo, const fs::path& toPath,
                                    const KTPhotoExportOptions& withOptions) override {
        beforeExport();
        options = withOptions;
        if (photo.filename() == refused)
            return {false, "it is broken"};
        EXPECT_FALSE(fs::exists(toPath));
        std::ofstream(toPath) << photo.path().string();
        return {true};
    }
    std::vector<std::string> validExportFormats() const override { return {}; }
    std::string fileExtensionForUTI(std::string_view uti) const override {
        return uti == "public.png" ? "png" : "";
    }
    void exportManagerShouldBeginExport() override { calls += "begin "; }
    void exportManagerShouldCancelExport() override { calls += "cancel "; }
    void exportManagerShouldFinishExport() override { calls += "finish "; }
    KTPhotoExportManager* apiForProtocol(std::string_view) override { return this; }
    bool conformsToProtocol(std::string_view, int) const override { return true; }

    std::vector<std::shared_ptr<const KTExportedPhoto>> pictures = {
        std::make_shared<Picture>("/monday/IMG_1.jpg", "public.jpeg"),
        std::make_shared<Picture>("/tuesday/IMG_1.jpg", "public.jpeg"),
        std::make_shared<Picture>("/tuesday/IMG_2.png", "public.png"),
    };
    std::function<void()> beforeExport = [] {};
    KTPhotoExportOptions options;
    std::string refused, calls;
};

/// The bundle as it was built, with a host of the test's.
class FolderPluginTest : public testing::Test {
protected:
    FolderPluginTest() { setenv("XDG_CONFIG_HOME", (folder / "config").c_str(), 1); }
    ~FolderPluginTest() override { unsetenv("XDG_CONFIG_HOME"); }

    void SetUp() override {
        auto manifest = KTPluginManifest::ofBundle(WAYMARK_BUILT_PLUGINS "/Folder.ktplugin");
        ASSERT_TRUE(std::holds_alternative<KTPluginManifest>(manifest));
        const auto& found = std::get<KTPluginManifest>(manifest);
        EXPECT_TRUE(fs::exists(found.icon));
        QPluginLoader loader(QString::fromStdString(found.library.string()));
        auto factory = qobject_cast<KTPhotoExportPluginFactory*>(loader.instance());
        ASSERT_NE(factory, nullptr) << loader.errorString().toStdString();
        plugin = factory->initWithAPIManager(host);
        fs::create_directory(destination);
    }
    void exportAll() {
        plugin->shouldPrepareForExportToPath(destination);
        plugin->performExport();
    }
    /// The files in the destination with what is in them.
    std::string files() const {
        std::map<std::string, std::string> sorted;
        for (const auto& entry : fs::directory_iterator(destination))
            sorted[entry.path().filename()] = contentOf(entry.path());
        std::string all;
        for (const auto& [name, content] : sorted)
            all += name + '=' + content + ' ';
        return all;
    }

    TemporaryFolder folder;
    const fs::path destination = folder / "my photos";
    FakeHost host;
    std::unique_ptr<KTPhotoExportPlugin> plugin;
};

} // namespace

TEST_F(FolderPluginTest, GivesEachPhotoANameOfItsOwn) {
    folder.file("my photos/IMG_1.jpg", "mine");
    fs::create_symlink("nowhere", destination / "IMG_1-1.jpg");
    EXPECT_TRUE(plugin->wantsDestinationPathPrompt());
    EXPECT_FALSE(plugin->shouldSaveToIndividualFile());
    EXPECT_TRUE(plugin->canExportOnBackgroundThread());
    exportAll();
    fs::remove(destination / "IMG_1-1.jpg");
    EXPECT_EQ(files(), "IMG_1-2.jpg=/monday/IMG_1.jpg IMG_1-3.jpg=/tuesday/IMG_1.jpg IMG_1.jpg=mine "
                       "IMG_2.png=/tuesday/IMG_2.png ");
    EXPECT_EQ(host.calls, "begin finish ");
    EXPECT_EQ(plugin->concludingDescription(), "Exported 3 photos.");
    EXPECT_EQ(plugin->concludingURL(), "file://" + folder.path().string() + "/my%20photos");
    plugin->shouldPrepareForExportToPath(std::nullopt);
    EXPECT_EQ(host.calls, "begin finish cancel ");
}

TEST_F(FolderPluginTest, FollowsTheUsersSettings) {
    exportAll();
    EXPECT_EQ(host.options, (KTPhotoExportOptions{{"ExcludeLocation", false}, {"ImageQuality", 0.9}}));
    folder.file("config/waymark/Folder.ini",
                "width=1000\nheight=800\ntype=png\nquality=0.25\nexcludeLocation=true\n");
    fs::remove_all(destination);
    fs::create_directory(destination);
    exportAll();
    EXPECT_EQ(host.options, (KTPhotoExportOptions{{"ExcludeLocation", true},
                                                  {"ImageQuality", 0.25},
                                                  {"ImageSize", KTImageSize{1000, 800}},
                                                  {"ImageType", "public.png"}}));
    EXPECT_EQ(files(), "IMG_1-1.png=/tuesday/IMG_1.jpg IMG_1.png=/monday/IMG_1.jpg "
                       "IMG_2.png=/tuesday/IMG_2.png ");
    folder.file("config/waymark/Folder.ini", "width=1000\ntype=gif\nquality=7\n"); // makes no sense
    exportAll();
    EXPECT_EQ(host.options, (KTPhotoExportOptions{{"ExcludeLocation", false}, {"ImageQuality", 0.9}}));
}

TEST_F(FolderPluginTest, TellsWhatFailedAndStopsWhenAsked) {
    host.refused = "IMG_2.png";
    exportAll();
    EXPECT_EQ(plugin->concludingDescription(),
              "Exported 2 photos. 1 photos could not be exported. IMG_2.png: it is broken");
    host.beforeExport = [&] { plugin->shouldCancelExport(); };
    exportAll();
    EXPECT_EQ(plugin->concludingDescription(), "Export canceled. Exported 1 photos.");
    EXPECT_EQ(plugin->currentValue(), 1u);
    EXPECT_EQ(host.calls, "begin finish begin finish ");
}

TEST_F(FolderPluginTest, ProgressMayBeReadAtAnyTime) {
    // The host is never called under the plug-in's lock: it would wait for this very reading.
    std::ostringstream seen;
    host.beforeExport = [&] {
        std::thread([&] {
            plugin->lockProgress();
            seen << plugin->message() << ", " << plugin->currentValue() << '/' << plugin->totalValue()
                 << '\n';
            plugin->unlockProgress();
        }).join();
    };
    exportAll();
    EXPECT_EQ(seen.str(), "Exporting photo 1 of 3, 0/3\nExporting photo 2 of 3, 1/3\n"
                          "Exporting photo 3 of 3, 2/3\n");
    EXPECT_EQ(plugin->currentValue(), 3u);
}
