#include "export/slideshow/KTSlideShowExporterClass.h"

#include "export/slideshow/KTSlideShowExporter.h"
#include "export/slideshow/KTSlideShowScreen.h"
#include "platform/common/KTLocalizedString.h"

std::string KTSlideShowExporterClass::name() const {
    return KTLocalizedString("Slide Show");
}

std::filesystem::path KTSlideShowExporterClass::icon() const {
    return userInterface.folderIcon();
}

std::unique_ptr<KTPhotoExportPlugin>
KTSlideShowExporterClass::initWithAPIManager(KTPhotoExportManagerOperation& manager) {
    return std::make_unique<KTSlideShowExporter>(manager, userInterface);
}
