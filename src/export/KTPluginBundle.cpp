#include "export/KTPluginBundle.h"

#include "export/KTPhotoExportManagerOperation.h"
#include "export/waymark/KTPhotoExportPluginFactory.h"
#include "platform/common/KTLocalizedString.h"
#include "platform/common/KTText.h"

#include <QFile>
#include <QJsonObject>
#include <QPluginLoader>

std::shared_ptr<KTPluginBundle> KTPluginBundle::withPath(const std::filesystem::path& bundle) {
    auto read = KTPluginManifest::ofBundle(bundle);
    if (auto manifest = std::get_if<KTPluginManifest>(&read))
        return std::shared_ptr<KTPluginBundle>(new KTPluginBundle(bundle, std::move(*manifest)));
    std::get<KTPluginError>(read).log();
    return nullptr;
}

std::unique_ptr<KTPhotoExportPlugin>
KTPluginBundle::initWithAPIManager(KTPhotoExportManagerOperation& manager) {
    try {
        if (factory == nullptr && !isRefused)
            load();
        return isRefused ? nullptr : factory->initWithAPIManager(manager);
    } catch (...) {
        refuse(KTPluginError::ofCurrentException(path, "initWithAPIManager"));
        return nullptr;
    }
}

void KTPluginBundle::load() {
    QPluginLoader loader(QFile::decodeName(manifest.library.c_str()));
    // The library's own word, read from its file: code for other interfaces must not run.
    const QString identifier = loader.metaData()["IID"].toString();
    const std::string bundle = KTValidUTF8(path.string()) + ": ";
    if (!identifier.isEmpty() && identifier != KTPhotoExportPluginFactoryIID) {
        refuse({KTPluginError::OtherVersion, bundle + identifier.toStdString(),
                KTLocalizedString("Its library was made for another version of Waymark.")});
        return;
    }
    factory = qobject_cast<KTPhotoExportPluginFactory*>(loader.instance());
    if (factory == nullptr)
        refuse({KTPluginError::DamagedLibrary, bundle + loader.errorString().toStdString(),
                KTLocalizedString("Its library cannot be loaded.")});
}

void KTPluginBundle::refuse(KTPluginError error) {
    isRefused = true;
    error.log();
}
