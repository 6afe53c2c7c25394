#include "tests/export/ExportFixture.h"

namespace {

class BundleExportTest : public ExportFixture {
protected:
    /// Chooses the one plug-in that is offered; what is logged until nothing is to be done any more.
    std::string exportWithBundle() {
        testing::internal::CaptureStderr();
        exports->shouldBeginExportProcessWithPluginAtIndex(0);
        for (auto panels = std::exchange(presenter.panels, {}); const KTFilePanel& panel : panels)
            panel.completion({folder / "photos.txt"});
        EXPECT_TRUE(runEventLoopUntil(
            [&] { return exports->exportQueue().operationCount() == 0 && !exports->mainQueueOperation(); }));
        return testing::internal::GetCapturedStderr();
    }
};

} // namespace

TEST_F(BundleExportTest, ALibraryGetsPhotosAndTracksThroughThePublicHeadersAlone) {
    bundle("program/Writer.ktplugin", 1);
    EXPECT_EQ(loadAll(), "");
    EXPECT_EQ(exportWithBundle(), "");
    const std::string cannot = "The file there is a photo of your collection.";
    const auto& catalogue = KTMetadataFieldManager::sharedMetadataFieldManager();
    EXPECT_EQ(contentOf(folder / "photos.txt"),
              "IMG_1.jpg|public.jpeg|caption 1|1401624000000|46|0|" + cannot +
                  "\nIMG_2.jpg|public.jpeg|caption 2|1401710400000|47|0|" + cannot +
                  "\nnear 46.5 14.5 300 1401616800000\njpg||" +
                  std::to_string(catalogue.metadataFields().size()) + '|' +
                  std::to_string(catalogue.metadataGroups().size()) + "|1\n");
}

TEST_F(BundleExportTest, WhatALibraryThrowsEndsTheExportAndNothingElse) {
    const auto line = [&](const std::string& origin, const std::string& operation, const std::string& what) {
        return origin + "\nThe plug-in cannot be used.\nIt failed in " + operation + ": " + what +
               ". Code: 6\n";
    };
    bundle("program/Writer.ktplugin", 1);
    loadAll();
    for (const char* operation :
         {"wantsDestinationPathPrompt", "defaultFileName", "canExportOnBackgroundThread",
          "shouldPrepareForExportToPath", "performExport"}) {
        setenv("WAYMARK_TEST_PLUGIN_THROWS", operation, 1);
        EXPECT_EQ(exportWithBundle(), line("Writer", operation, "thrown for the test"));
    }
    setenv("WAYMARK_TEST_PLUGIN_THROWS", "number from performExport", 1);
    EXPECT_EQ(exportWithBundle(), line("Writer", "performExport", "an exception without text"));
    setenv("WAYMARK_TEST_PLUGIN_ON_MAIN_THREAD", "", 1);
    setenv("WAYMARK_TEST_PLUGIN_THROWS", "performExport", 1);
    EXPECT_EQ(exportWithBundle(), line("Writer", "performExport", "thrown for the test"));
    EXPECT_EQ(names(), "Writer ");
    EXPECT_FALSE(std::filesystem::exists(folder / "photos.txt"));
    unsetenv("WAYMARK_TEST_PLUGIN_ON_MAIN_THREAD");
    unsetenv("WAYMARK_TEST_PLUGIN_THROWS");
    EXPECT_EQ(exportWithBundle(), "");
    EXPECT_TRUE(std::filesystem::exists(folder / "photos.txt"));
}

TEST_F(BundleExportTest, ALibraryThatCannotBeUsedIsNotOfferedAnyMore) {
    const std::string failed =
        "Plugin failed to initialize! Should inform the user that the plugin is failing.\n";
    const auto logOf = [&](const std::filesystem::path& bundle, const std::string& detail,
                           const std::string& reason, int code) {
        return bundle.string() + detail + "\nThe plug-in cannot be used.\n" + reason +
               " Code: " + std::to_string(code) + '\n' + failed;
    };
    struct Case {
        std::string library, throws, detail, reason;
        int code;
    };
    const std::string text = ": thrown for the test.";
    const Case cases[] = {
        {"TestPlugin", "factory", "", "It failed in initWithAPIManager" + text, 6},
        {"TestPlugin", "initWithAPIManager", "", "It failed in initWithAPIManager" + text, 6},
        {"PluginOfAnotherVersion", "", ": waymark.PhotoExportPluginFactory/1",
         "Its library was made for another version of Waymark.", 3},
    };
    int number = 0;
    for (const Case& one : cases) {
        const std::string name = "Plugin" + std::to_string(++number);
        const auto path = bundle("program/" + name + ".ktplugin", number, one.library);
        EXPECT_EQ(loadAll(), "");
        EXPECT_EQ(names(), name + ' '); // nobody has looked at the library so far
        setenv("WAYMARK_TEST_PLUGIN_THROWS", one.throws.c_str(), 1);
        EXPECT_EQ(exportWithBundle(), logOf(path, one.detail, one.reason, one.code));
        EXPECT_EQ(names(), "");
        std::filesystem::remove_all(path);
    }
    const auto path = folder / "program/Garbage.ktplugin";
    folder.file("program/Garbage.ktplugin/manifest.json", manifest(9, "Garbage"));
    folder.file("program/Garbage.ktplugin/code.so", "no library");
    loadAll();
    const std::string log = exportWithBundle();
    EXPECT_TRUE(log.starts_with(path.string() + ": ")) << log;
    EXPECT_TRUE(log.ends_with("\nIts library cannot be loaded. Code: 5\n" + failed)) << log;
    EXPECT_EQ(names(), "");
}

TEST_F(BundleExportTest, ALibraryThatDeclinesMayBeAskedAgain) {
    bundle("program/Writer.ktplugin", 1);
    loadAll();
    setenv("WAYMARK_TEST_PLUGIN_IS_ABSENT", "", 1);
    EXPECT_EQ(exportWithBundle(),
              "Plugin failed to initialize! Should inform the user that the plugin is failing.\n");
    unsetenv("WAYMARK_TEST_PLUGIN_IS_ABSENT");
    EXPECT_EQ(exportWithBundle(), "");
    EXPECT_TRUE(std::filesystem::exists(folder / "photos.txt"));
}
