#include "tests/export/PluginFixture.h"

#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

/// A class that is part of the program.
class PartOfTheProgram final : public KTPhotoExportPluginClass {
public:
    std::string uuid() const override { return "part"; }
    std::string name() const override { return "Part"; }
    fs::path icon() const override { return {}; }
    bool isBuiltIn() const override { return true; }
    std::unique_ptr<KTPhotoExportPlugin> initWithAPIManager(KTPhotoExportManagerOperation&) override {
        return nullptr;
    }
    bool isUsable() const override { return true; }
};

class PluginLoadingTest : public PluginFixture {};

} // namespace

TEST_F(PluginLoadingTest, OffersTheBundlesOfBothFoldersOnceAndThePartsOfTheProgramLast) {
    bundle("program/Zebra.ktplugin", 1);
    bundle("program/deep/er/Deep.ktplugin", 2);
    bundle("data/waymark/PlugIns/User.ktplugin", 3);
    bundle("data/waymark/PlugIns/Twin.ktplugin", 1);                          // of Zebra
    bundle("data/waymark/PlugIns/.waymark-a1B2c3/Cut.ktplugin", 4);           // of an import that was killed
    fs::create_directory_symlink(folder / "data", folder / "program/around"); // not followed
    bundle("elsewhere/Linked.ktplugin", 5);
    fs::create_directory_symlink(folder / "elsewhere/Linked.ktplugin", folder / "program/Linked.ktplugin");
    bundle("import/Late.ktplugin", 6);
    KTPluginManager withPart(exports, {std::make_shared<PartOfTheProgram>()});
    withPart.loadAllPlugins();
    EXPECT_EQ(names(), "Linked Zebra Deep User Part ");

    std::vector<std::size_t> announced;
    auto observation = exports->observe([&](const KTChange& change) {
        if (change.key == "pluginClasses" && change.kind == KTChange::Kind::Insertion && !change.isPrior)
            announced.insert(announced.end(), change.indexes.begin(), change.indexes.end());
    });
    withPart.loadAllPlugins(); // for a window that is opened again
    EXPECT_EQ(announced.size(), 0u);
    withPart.importPluginsAtPaths({folder / "import/Late.ktplugin"});
    EXPECT_EQ(names(), "Linked Zebra Deep User Late Part ");
    EXPECT_EQ(announced, std::vector<std::size_t>{4});
    EXPECT_FALSE(exports->wantsPluginWithClass(nullptr));

    const KTPhotoExportPluginClass& late = *exports->pluginClasses()[4];
    EXPECT_EQ(late.uuid(), uuid(6));
    EXPECT_EQ(late.icon(), folder / "data/waymark/PlugIns/Late.ktplugin/icon.png"); // of the copy
}

TEST_F(PluginLoadingTest, FindsTheBundlesThatAreBuiltWithTheProgram) {
    unsetenv("WAYMARK_PLUGINS");
    EXPECT_EQ(KTPluginManager::builtInPluginFolderPath(), WAYMARK_BUILT_PLUGINS);
    EXPECT_EQ(loadAll(), "");
    EXPECT_EQ(names(), "Folder Map Page ");
}

TEST_F(PluginLoadingTest, NamesWhatCannotBeUsedInTheLogAndGoesOn) {
    struct Case {
        std::string name, manifest, reason;
        int code;
    };
    const std::string damaged = "Its manifest is damaged.";
    const std::vector<Case> cases = {
        {"A", "", "Its manifest cannot be read: No such file or directory.", 1},
        {"B", "{\"uuid\":", damaged, 2},
        {"C", "[]", damaged, 2},
        {"D", manifest(1, "D", R"("interface":"1")"), damaged, 2},
        {"E", manifest(1, "", R"("interface":2)"), damaged, 2},
        {"F", manifest(1, "F", R"("library":"../code.so","interface":2)"), damaged, 2},
        {"G", manifest(1, "G", R"("library":"/lib/libc.so.6","interface":2)"), damaged, 2},
        {"H", manifest(1, "H", R"("uuid":"mine","interface":2)"), damaged, 2},
        {"I", manifest(1, "I", R"("interface":1)"), "It was made for another version of Waymark.", 3},
        {"J", manifest(1, "J"), "Its library is missing.", 4},
    };
    std::string expected;
    for (const Case& one : cases) {
        const fs::path path = "program/" + one.name + ".ktplugin";
        folder.file(path / "readme", "");
        if (!one.manifest.empty())
            folder.file(path / "manifest.json", one.manifest);
        expected += (folder / path).string() + "\nThe plug-in cannot be used.\n" + one.reason +
                    " Code: " + std::to_string(one.code) + "\n";
    }
    fs::create_directory(folder / "program/K.ktplugin");
    ASSERT_EQ(mkfifo((folder / "program/K.ktplugin/manifest.json").c_str(), 0600), 0);
    expected += (folder / "program/K.ktplugin").string() +
                "\nThe plug-in cannot be used.\nIts manifest is not a file. Code: 1\n";
    bundle("program/Z.ktplugin", 1);
    EXPECT_EQ(loadAll(), expected);
    EXPECT_EQ(names(), "Z ");
}

TEST_F(PluginLoadingTest, CopiesWholeBundlesThatStayInsideThemselves) {
    const fs::path good = bundle("import/Good.ktplugin", 1);
    folder.file("import/Good.ktplugin/art/picture.svg", "picture");
    fs::create_symlink("art/picture.svg", good / "icon.png");
    fs::create_symlink("art", good / "same art");

    folder.file("secret", "secret");
    fs::create_symlink("../../secret", bundle("import/Up.ktplugin", 2) / "icon.png");
    fs::create_symlink(folder / "secret", bundle("import/Away.ktplugin", 3) / "icon.png");
    fs::create_symlink("nowhere", bundle("import/Broken.ktplugin", 4) / "icon.png");
    fs::create_symlink(good / "code.so", bundle("import/Absolute.ktplugin", 5) / "icon.png");
    ASSERT_EQ(mkfifo((bundle("import/Pipe.ktplugin", 6) / "pipe").c_str(), 0600), 0);
    folder.file("import/File.ktplugin", "no folder");
    bundle("import/Name", 7);
    folder.file("data/waymark/PlugIns/Taken.ktplugin/mine", "mine");
    bundle("import/Taken.ktplugin", 8);
    bundle("import/Dangling.ktplugin", 9);
    fs::create_symlink("nowhere", folder / "data/waymark/PlugIns/Dangling.ktplugin");

    testing::internal::CaptureStderr();
    std::vector<fs::path> paths = {folder / "import/not there.ktplugin", good / ""};
    for (const auto& entry : fs::directory_iterator(folder / "import"))
        if (entry.path() != good)
            paths.push_back(entry.path());
    plugins->importPluginsAtPaths(paths);
    plugins->importPluginsAtPaths({good}); // its name is taken now
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
    EXPECT_EQ(names(), "Good ");

    std::vector<std::string> there;
    for (const auto& entry : fs::directory_iterator(folder / "data/waymark/PlugIns"))
        there.push_back(entry.path().filename());
    std::ranges::sort(there);
    EXPECT_EQ(there, (std::vector<std::string>{"Dangling.ktplugin", "Good.ktplugin", "Taken.ktplugin"}));
    fs::remove_all(folder / "import");
    EXPECT_EQ(contentOf(folder / "data/waymark/PlugIns/Good.ktplugin/icon.png"), "picture");
    EXPECT_EQ(contentOf(folder / "data/waymark/PlugIns/Taken.ktplugin/mine"), "mine");
}

TEST_F(PluginLoadingTest, WithoutAPlaceForTheUsersPluginsImportsFailQuietly) {
    const fs::path good = bundle("import/Good.ktplugin", 1);
    EXPECT_EQ(KTPluginManager::userPluginFolderPath(), folder / "data/waymark/PlugIns");
    EXPECT_TRUE(fs::is_directory(folder / "data/waymark/PlugIns"));
    setenv("XDG_DATA_HOME", folder.file("file", "").c_str(), 1);
    testing::internal::CaptureStderr();
    EXPECT_TRUE(KTPluginManager::pluginFolderPaths().empty());
    plugins->importPluginsAtPaths({good});
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "Not a directory\nNot a directory\n");
    EXPECT_EQ(names(), "");
}
