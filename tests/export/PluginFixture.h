#pragma once
#include "export/KTPluginManager.h"
#include "tests/support/TestSupport.h"

#include <cstdlib>
#include <gtest/gtest.h>

/// Folders for plug-ins of the program and of the user, in a temporary folder, and the plug-in managers.
class PluginFixture : public testing::Test {
protected:
    PluginFixture() {
        setenv("WAYMARK_PLUGINS", (folder / "program").c_str(), 1);
        setenv("XDG_DATA_HOME", (folder / "data").c_str(), 1);
    }
    ~PluginFixture() override {
        for (const char* name : {"WAYMARK_PLUGINS", "XDG_DATA_HOME", "WAYMARK_TEST_PLUGIN_THROWS",
                                 "WAYMARK_TEST_PLUGIN_IS_ABSENT", "WAYMARK_TEST_PLUGIN_ON_MAIN_THREAD"})
            unsetenv(name);
    }

    static std::string uuid(int number) {
        return "00000000-0000-4000-8000-00000000000" + std::to_string(number);
    }
    static std::string manifest(int number, const std::string& name,
                                const std::string& rest = R"("interface":2)") {
        return R"({"uuid":")" + uuid(number) + R"(","name":")" + name + R"(","icon":"icon.png",)" +
               R"("library":"code.so",)" + rest + "}";
    }
    /// A bundle around a copy of a library that was built for the tests.
    std::filesystem::path bundle(const std::filesystem::path& path, int number,
                                 const std::string& library = "TestPlugin") const {
        const std::string code = contentOf(WAYMARK_TEST_PLUGINS "/" + library + ".so");
        EXPECT_FALSE(code.empty()) << library;
        folder.file(path / "code.so", code);
        folder.file(path / "manifest.json", manifest(number, path.stem().string()));
        return folder / path;
    }
    std::string loadAll() {
        testing::internal::CaptureStderr();
        plugins->loadAllPlugins();
        return testing::internal::GetCapturedStderr();
    }
    std::string names() const {
        std::string all;
        for (const std::string& name : exports->pluginNames())
            all += name + ' ';
        return all;
    }

    TemporaryFolder folder;
    std::shared_ptr<KTPhotoExportPluginManager> exports = KTPhotoExportPluginManager::make();
    std::unique_ptr<KTPluginManager> plugins = std::make_unique<KTPluginManager>(exports);
};
