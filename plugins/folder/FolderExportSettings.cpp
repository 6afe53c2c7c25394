#include "FolderExportSettings.h"

#include <QSettings>
#include <QStandardPaths>

FolderExportSettings FolderExportSettings::ofUser() {
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
    const QSettings file(folder + "/waymark/Folder.ini", QSettings::IniFormat);
    FolderExportSettings settings;
    const KTImageSize size{file.value("width").toDouble(), file.value("height").toDouble()};
    if (size.width >= 1 && size.height >= 1)
        settings.largestSize = size;
    const QString type = file.value("type").toString();
    if (type == "jpeg" || type == "png")
        settings.imageType = "public." + type.toStdString();
    bool isNumber = false;
    const double quality = file.value("quality").toDouble(&isNumber);
    if (isNumber && quality >= 0 && quality <= 1)
        settings.imageQuality = quality;
    settings.excludesLocation = file.value("excludeLocation").toBool();
    return settings;
}

KTPhotoExportOptions FolderExportSettings::options() const {
    KTPhotoExportOptions options = {{KTExcludeLocationOption, excludesLocation},
                                    {KTImageQualityOption, imageQuality}};
    if (largestSize)
        options.emplace(KTImageSizeOption, *largestSize);
    if (!imageType.empty())
        options.emplace(KTImageTypeOption, imageType);
    return options;
}
