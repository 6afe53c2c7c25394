#pragma once
#include "export/KTPhotoExportPluginClass.h"

class KTSlideShowScreen;

/// The slide show as the user chooses it: part of the program, behind the plug-ins of bundles.
class KTSlideShowExporterClass final : public KTPhotoExportPluginClass {
public:
    /// @p screen outlives the class and its exports.
    explicit KTSlideShowExporterClass(KTSlideShowScreen& screen) : userInterface(screen) {}

    std::string uuid() const override { return "6090755A-2E9D-450D-B18E-C3E2B1F39221"; }
    std::string name() const override;
    std::filesystem::path icon() const override; ///< the desktop's folder
    bool isBuiltIn() const override { return true; }
    std::unique_ptr<KTPhotoExportPlugin> initWithAPIManager(KTPhotoExportManagerOperation& manager) override;
    bool isUsable() const override { return true; }

private:
    KTSlideShowScreen& userInterface;
};
