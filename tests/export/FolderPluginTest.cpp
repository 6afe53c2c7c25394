#include "export/KTPluginManifest.h"
#include "export/waymark/KTPhotoExportPluginFactory.h"
#include "tests/export/ExportFixture.h"

#include <QPluginLoader>
#include <fstream>
#include <set>
#include <thread>

namespace fs = std::filesystem;

namespace {

struct Picture final : KTExportedPhoto {
    Picture(fs::path of, std::string type) : file(std::move(of)), identifier(std::move(type)) {}
    fs::path path() const override { return file; }
    std::string filename() const override { return file.filename(); }
    std::string uti() const override { return identifier; }
    KTExportedValue valueForKey(std::string_view key) const override {
        const auto value =
            values ? values->find(std::string(key)) : std::map<std::string, std::string>::iterator();
        return values && value != values->end() ? KTExportedValue(value->second) : KTExportedValue();
    }

    std::map<std::string, std::string>* values = nullptr;
    const fs::path file;
    const std::string identifier;
};

/// A host that writes each photo's path where the plug-in wants the photo.
struct FakeHost final : KTPhotoExportManager {
    std::vector<KTExportedField> metadataFields() const override { return {}; }
    std::vector<KTExportedFieldGroup> metadataGroups() const override { return {}; }
    std::vector<std::shared_ptr<const KTExportedPhoto>> photos() const override {
        return {pictures.begin(), pictures.end()};
    }
    std::vector<std::shared_ptr<const KTExportedTrack>> tracks() const override { return {}; }
    KTViewHandle window() const override { return nullptr; }
    KTPhotoExportResult exportPhoto(const KTExportedPhoto& photo, const fs::path& toPath,
                                    const KTPhotoExportOptions& withOptions) override {
        const std::lock_guard guard(mutex); // the plug-in exports several at a time
        beforeExport();
        options = withOptions;
        if (photo.filename() == refused)
            return {false, "it is broken"};
        if (existing == KTExistingFiles::Skip && fs::exists(toPath))
            return {false, "it is there"};
        EXPECT_TRUE(existing != KTExistingFiles::KeepBoth || !fs::exists(toPath));
        std::ofstream(toPath) << photo.path().string();
        return {true};
    }
    KTPhotoExportOptions requestedOptions() const override { return requested; }
    void askAboutExistingFiles(const std::vector<fs::path>& destinations,
                               std::function<void(KTExistingFiles)> answer) override {
        asked = destinations;
        answer(existing);
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

    FakeHost() {
        for (const auto& picture : pictures)
            picture->values = &values;
    }

    std::mutex mutex;
    std::map<std::string, std::string> values; // of each photo
    std::vector<std::shared_ptr<Picture>> pictures = {
        std::make_shared<Picture>("/monday/IMG_1.jpg", "public.jpeg"),
        std::make_shared<Picture>("/tuesday/IMG_1.jpg", "public.jpeg"),
        std::make_shared<Picture>("/tuesday/IMG_2.png", "public.png"),
    };
    std::function<void()> beforeExport = [] {};
    KTPhotoExportOptions options;
    KTPhotoExportOptions requested;
    std::vector<fs::path> asked;
    KTExistingFiles existing = KTExistingFiles::KeepBoth;
    std::string refused, calls;
};

/// The bundle as it was built, with a host of the test's.
class FolderPluginTest : public testing::Test {
protected:
    FolderPluginTest() { setenv("XDG_CONFIG_HOME", (folder / "config").c_str(), 1); }
    ~FolderPluginTest() override { unsetenv("XDG_CONFIG_HOME"); }

    void SetUp() override {
        plugin = makePlugin("Folder");
        ASSERT_TRUE(plugin);
        fs::create_directory(destination);
    }
    /// Of the bundle of this name; null with a failure when it cannot be loaded.
    std::unique_ptr<KTPhotoExportPlugin> makePlugin(const std::string& bundle) {
        const auto manifest = KTPluginManifest::ofBundle(WAYMARK_BUILT_PLUGINS "/" + bundle + ".ktplugin");
        const auto* found = std::get_if<KTPluginManifest>(&manifest);
        EXPECT_TRUE(found != nullptr && fs::exists(found->icon)) << bundle;
        if (found == nullptr)
            return nullptr;
        QPluginLoader loader(QString::fromStdString(found->library.string()));
        const auto factory = qobject_cast<KTPhotoExportPluginFactory*>(loader.instance());
        EXPECT_NE(factory, nullptr) << loader.errorString().toStdString();
        return factory == nullptr ? nullptr : factory->initWithAPIManager(host);
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

TEST_F(FolderPluginTest, FollowsTheUsersSettingsAndWhatIsRequested) {
    exportAll();
    EXPECT_EQ(host.options, (KTPhotoExportOptions{{"ExcludeLocation", false}, {"ImageQuality", 0.9}}));
    folder.file("config/waymark/Folder.ini",
                "width=1000\nheight=800\ntype=png\nquality=0.25\nexcludeLocation=true\n");
    fs::remove_all(destination);
    exportAll();
    const KTPhotoExportOptions expected = {{"ExcludeLocation", true},
                                           {"ImageQuality", 0.25},
                                           {"ImageSize", KTImageSize{1000, 800}},
                                           {"ImageType", "public.png"}};
    EXPECT_EQ(host.options, expected);
    EXPECT_EQ(files(), "IMG_1-1.png=/tuesday/IMG_1.jpg IMG_1.png=/monday/IMG_1.jpg "
                       "IMG_2.png=/tuesday/IMG_2.png ");
    host.requested = {{"ImageSize", KTImageSize{10, 10}}, {"ImageQuality", 0.5}};
    exportAll();
    EXPECT_EQ(std::get<KTImageSize>(host.options.at("ImageSize")).width, 10);
    EXPECT_EQ(host.options.at("ImageType"), expected.at("ImageType"));
    host.requested = {};
    folder.file("config/waymark/Folder.ini", "width=1000\ntype=gif\nquality=7\n"); // makes no sense
    exportAll();
    EXPECT_EQ(host.options, (KTPhotoExportOptions{{"ExcludeLocation", false}, {"ImageQuality", 0.9}}));
}

TEST_F(FolderPluginTest, NamesAndFoldersFollowThePattern) {
    host.values = {{"dateTimeOriginalComponents", "2014:06:01 12:30:05"}, {"title", "../a/b: c"}};
    folder.file("config/waymark/Folder.ini", "name={date} {time} {number} {title}\nsubFolders=month\n");
    exportAll();
    EXPECT_EQ(host.asked.at(2), destination / "2014/06/2014-06-01 12-30-05 003 ..-a-b- c.png");
    EXPECT_TRUE(fs::exists(host.asked.at(0)));
    host.values = {{"dateTimeOriginalComponents", "2014"}}; // the other parts are open
    folder.file("config/waymark/Folder.ini", "name={date}{title}\nsubFolders=day\n");
    exportAll();
    EXPECT_EQ(host.asked.at(1), destination / "2014/IMG_1-1.jpg"); // the pattern gives nothing
    folder.file("config/waymark/Folder.ini", "name=.{title}x\n");
    exportAll();
    EXPECT_EQ(host.asked,
              (std::vector<fs::path>{destination / "x.jpg", destination / "x-1.jpg", destination / "x.png"}));
}

TEST_F(FolderPluginTest, DoesWhatTheUserWantsWithExistingFiles) {
    folder.file("my photos/IMG_1.jpg", "mine");
    host.existing = KTExistingFiles::Cancel;
    plugin->shouldPrepareForExportToPath(destination);
    EXPECT_EQ(host.calls, "cancel ");
    host.existing = KTExistingFiles::Skip;
    exportAll();
    EXPECT_EQ(plugin->concludingDescription(),
              "Exported 2 photos. 1 photo could not be exported. IMG_1.jpg: it is there");
    host.existing = KTExistingFiles::Replace;
    exportAll();
    EXPECT_EQ(files(),
              "IMG_1-1.jpg=/tuesday/IMG_1.jpg IMG_1.jpg=/monday/IMG_1.jpg IMG_2.png=/tuesday/IMG_2.png ");
}

TEST_F(FolderPluginTest, TellsWhatFailedAndStopsWhenAsked) {
    host.refused = "IMG_2.png";
    exportAll();
    EXPECT_EQ(plugin->concludingDescription(),
              "Exported 2 photos. 1 photo could not be exported. IMG_2.png: it is broken");
    host.refused.clear();
    host.beforeExport = [&] { plugin->shouldCancelExport(); };
    exportAll();
    const std::uint64_t finished = plugin->currentValue(); // those that were under way
    EXPECT_GE(finished, 1u);
    EXPECT_TRUE(plugin->concludingDescription().starts_with("Export canceled. Exported "));
    EXPECT_EQ(host.calls, "begin finish begin finish ");
}

TEST_F(FolderPluginTest, ProgressMayBeReadAtAnyTime) {
    // The host is never called under the plug-in's lock: it would wait for this very reading.
    std::set<std::string> seen;
    host.beforeExport = [&] {
        std::thread([&] {
            plugin->lockProgress();
            seen.insert(plugin->message());
            EXPECT_LE(plugin->currentValue(), 2u);
            EXPECT_EQ(plugin->totalValue(), 3);
            plugin->unlockProgress();
        }).join();
    };
    exportAll();
    EXPECT_TRUE(seen.contains("Exporting photo 1 of 3"));
    EXPECT_EQ(plugin->currentValue(), 3u);
}

TEST_F(FolderPluginTest, PagesThatWaitForEachOtherKeepApart) {
    const auto first = makePlugin("Map Page"), second = makePlugin("Map Page");
    ASSERT_TRUE(first && second);
    first->shouldPrepareForExportToPath(destination);
    second->shouldPrepareForExportToPath(destination);
    first->performExport();
    ASSERT_TRUE(fs::exists(destination / "Map Page/index.html"));
    second->shouldCancelExport();
    second->performExport();
    EXPECT_TRUE(fs::exists(destination / "Map Page/index.html")) << "a stopped export removes its own alone";
    EXPECT_EQ(std::distance(fs::directory_iterator(destination), fs::directory_iterator()), 1);

    const auto third = makePlugin("Map Page");
    third->shouldPrepareForExportToPath(destination / "that is not there");
    third->performExport();
    EXPECT_EQ(third->concludingDescription(), "The page could not be written.");
}
