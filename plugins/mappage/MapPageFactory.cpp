#include "MapPageExport.h"

#include <waymark/KTPhotoExportPluginFactory.h>

#include <QObject>

/// What the host gets of the library.
class MapPageFactory final : public QObject, public KTPhotoExportPluginFactory {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID KTPhotoExportPluginFactoryIID)
    Q_INTERFACES(KTPhotoExportPluginFactory)

public:
    std::unique_ptr<KTPhotoExportPlugin> initWithAPIManager(KTPhotoExportManager& manager) override {
        return std::make_unique<MapPageExport>(manager);
    }
};

#include "MapPageFactory.moc"
