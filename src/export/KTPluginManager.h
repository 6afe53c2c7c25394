#pragma once
#include "export/KTPhotoExportPluginManager.h"

/// Finds plug-in bundles, folders named *.ktplugin, in the program's own plug-ins folder and in the user's,
/// and offers their classes to the export plug-in manager. Main thread.
class KTPluginManager {
public:
    using BuiltInClasses = std::vector<KTPhotoExportPluginManager::PluginClass>;

    /// @p partsOfTheProgram are the classes that are no bundles, in their order in the menu.
    explicit KTPluginManager(std::shared_ptr<KTPhotoExportPluginManager> receiver,
                             BuiltInClasses partsOfTheProgram = {})
        : exportPlugins(std::move(receiver)), builtInClasses(std::move(partsOfTheProgram)) {}

    const std::shared_ptr<KTPhotoExportPluginManager>& photoExportPlugins() const { return exportPlugins; }

    /// waymark/PlugIns in the user's data folder, made when it is missing; nothing, and why in the log, where
    /// it cannot be made.
    static std::optional<std::filesystem::path> userPluginFolderPath();
    /// The user's plug-in folder, when it exists.
    static std::vector<std::filesystem::path> pluginFolderPaths();
    /// The folder of the bundles that come with the program: the one that the environment variable
    /// WAYMARK_PLUGINS names, else lib/waymark/PlugIns beside the build, else that of the installation.
    static std::filesystem::path builtInPluginFolderPath();
    /// All bundles at any depth: those that come with the program, then those of pluginFolderPaths, each by
    /// path. Links to folders are not followed, a link in place of a bundle counts.
    static std::vector<std::filesystem::path> pluginPaths();

    /// Offers all bundles, of which only the manifests are read, and then the parts of the program. What is
    /// offered already stays, so that a second call finds what has come meanwhile. Bundles that cannot be
    /// used are named in the log.
    void loadAllPlugins();
    /// Copies the bundles @p paths into the user's plug-in folder, each whole or not at all, and offers them.
    /// Left out without a word: what cannot be copied, above all because a bundle of its name is there.
    void importPluginsAtPaths(const std::vector<std::filesystem::path>& paths);

private:
    void loadPlugin(const std::filesystem::path& bundle);

    const std::shared_ptr<KTPhotoExportPluginManager> exportPlugins;
    const BuiltInClasses builtInClasses;
};
