#include "export/KTPluginManager.h"

#include "export/KTPluginBundle.h"
#include "export/KTPluginCopy.h"
#include "platform/common/KTLog.h"
#include "platform/desktop/KTItemReplacement.h"

#include <QFile>
#include <QStandardPaths>

namespace fs = std::filesystem;

namespace {

constexpr const char* kBuiltInFolder = "lib/waymark/PlugIns";

std::vector<fs::path> bundlesBelow(const fs::path& folder) {
    std::vector<fs::path> found;
    std::error_code error;
    fs::recursive_directory_iterator entry(folder, fs::directory_options::skip_permission_denied, error);
    for (; !error && entry != fs::recursive_directory_iterator(); entry.increment(error)) {
        if (KTItemReplacement::isReplacementFolder(entry->path().filename()))
            entry.disable_recursion_pending(); // of an import that was cut short
        else if (entry->path().extension() == kPluginExtension)
            found.push_back(entry->path());
    }
    std::ranges::sort(found);
    return found;
}

} // namespace

std::optional<fs::path> KTPluginManager::userPluginFolderPath() {
    const QString data = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    const fs::path folder = fs::path(QFile::encodeName(data).toStdString()) / "waymark" / "PlugIns";
    std::error_code error;
    fs::create_directories(folder, error);
    if (!error)
        return folder;
    KTLog(error.message());
    return std::nullopt;
}

std::vector<fs::path> KTPluginManager::pluginFolderPaths() {
    const auto folder = userPluginFolderPath();
    return folder ? std::vector{*folder} : std::vector<fs::path>();
}

fs::path KTPluginManager::builtInPluginFolderPath() {
    if (const char* folder = std::getenv("WAYMARK_PLUGINS"); folder != nullptr && *folder != '\0')
        return folder;
    std::error_code error;
    const fs::path executable = fs::read_symlink("/proc/self/exe", error);
    for (fs::path folder = executable.parent_path().parent_path(); folder.has_relative_path();
         folder = folder.parent_path())
        if (fs::path candidate = folder / kBuiltInFolder; fs::exists(candidate, error))
            return candidate;
    return WAYMARK_INSTALLED_PLUGINS;
}

std::vector<fs::path> KTPluginManager::pluginPaths() {
    std::vector<fs::path> paths = bundlesBelow(builtInPluginFolderPath());
    for (const fs::path& folder : pluginFolderPaths())
        std::ranges::move(bundlesBelow(folder), std::back_inserter(paths));
    return paths;
}

void KTPluginManager::loadAllPlugins() {
    for (const fs::path& bundle : pluginPaths())
        loadPlugin(bundle);
    for (const auto& part : builtInClasses)
        exportPlugins->wantsPluginWithClass(part);
}

void KTPluginManager::importPluginsAtPaths(const std::vector<fs::path>& paths) {
    for (const fs::path& path : paths)
        if (const auto folder = userPluginFolderPath())
            if (const auto copy = KTCopyPlugin(path, *folder))
                loadPlugin(*copy);
}

void KTPluginManager::loadPlugin(const fs::path& bundle) {
    exportPlugins->wantsPluginWithClass(KTPluginBundle::withPath(bundle));
}
