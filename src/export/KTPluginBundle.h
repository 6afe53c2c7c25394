#pragma once
#include "export/KTPhotoExportPluginClass.h"
#include "export/KTPluginManifest.h"

class KTPhotoExportPluginFactory;

/// The plug-in class of a bundle: a folder with a manifest and a library. The library is loaded when an
/// export is begun and stays loaded to the end of the process. Whatever its code throws ends here.
class KTPluginBundle final : public KTPhotoExportPluginClass {
public:
    /// Null for a folder that is no usable bundle; why not, is in the log.
    static std::shared_ptr<KTPluginBundle> withPath(const std::filesystem::path& bundle);

    std::string uuid() const override { return manifest.uuid; }
    std::string name() const override { return manifest.name; }
    std::filesystem::path icon() const override { return manifest.icon; }
    bool isBuiltIn() const override { return false; }
    std::unique_ptr<KTPhotoExportPlugin> initWithAPIManager(KTPhotoExportManagerOperation& manager) override;
    bool isUsable() const override { return !isRefused; }

private:
    KTPluginBundle(std::filesystem::path folder, KTPluginManifest contents)
        : path(std::move(folder)), manifest(std::move(contents)) {}
    void load();
    void refuse(KTPluginError error);

    const std::filesystem::path path;
    const KTPluginManifest manifest;
    KTPhotoExportPluginFactory* factory = nullptr; // owned by the library
    bool isRefused = false;
};
