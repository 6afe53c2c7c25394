#include "FolderExportSettings.h"

#include <QSettings>
#include <QStandardPaths>
#include <QStringList>
#include <algorithm>

namespace {

const QStringList kSubFolders = {"none", "year", "month", "day"};
const QStringList kTypes = {"jpeg", "png", "tiff"};

QString settingsFile() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + "/waymark/Folder.ini";
}

template<class Value>
const Value* find(const KTPhotoExportOptions& options, const char* key) {
    const auto option = options.find(key);
    return option == options.end() ? nullptr : std::get_if<Value>(&option->second);
}

} // namespace

FolderExportSettings FolderExportSettings::ofUser() {
    const QSettings file(settingsFile(), QSettings::IniFormat);
    FolderExportSettings settings;
    if (const QString name = file.value("name").toString().trimmed(); !name.isEmpty())
        settings.namePattern = name.toStdString();
    settings.subFolders =
        SubFolders(std::max(0, int(kSubFolders.indexOf(file.value("subFolders").toString()))));
    const KTImageSize size{file.value("width").toDouble(), file.value("height").toDouble()};
    if (size.width >= 1 && size.height >= 1)
        settings.largestSize = size;
    if (const QString type = file.value("type").toString(); kTypes.contains(type))
        settings.imageType = "public." + type.toStdString();
    bool isNumber = false;
    const double quality = file.value("quality").toDouble(&isNumber);
    if (isNumber && quality >= 0 && quality <= 1)
        settings.imageQuality = quality;
    settings.excludesLocation = file.value("excludeLocation").toBool();
    return settings;
}

void FolderExportSettings::store() const {
    QSettings file(settingsFile(), QSettings::IniFormat);
    file.setValue("name", QString::fromStdString(namePattern));
    file.setValue("subFolders", kSubFolders[subFolders]);
    file.setValue("width", largestSize ? largestSize->width : 0);
    file.setValue("height", largestSize ? largestSize->height : 0);
    file.setValue("type", QString::fromStdString(imageType).section('.', 1));
    file.setValue("quality", imageQuality);
    file.setValue("excludeLocation", excludesLocation);
}

FolderExportSettings FolderExportSettings::with(const KTPhotoExportOptions& requested) const {
    FolderExportSettings result = *this;
    if (const auto* size = find<KTImageSize>(requested, KTImageSizeOption))
        result.largestSize = *size;
    if (const auto* type = find<std::string>(requested, KTImageTypeOption))
        result.imageType = *type;
    if (const auto* quality = find<double>(requested, KTImageQualityOption))
        result.imageQuality = *quality;
    if (const auto* excludes = find<bool>(requested, KTExcludeLocationOption))
        result.excludesLocation = *excludes;
    return result;
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
