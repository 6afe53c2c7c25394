#include "export/KTPluginManifest.h"

#include "export/waymark/KTPhotoExportInterface.h"
#include "platform/common/KTLocalizedString.h"
#include "platform/common/KTText.h"

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QUuid>

namespace fs = std::filesystem;

namespace {

constexpr const char* kManifest = "manifest.json";
constexpr qint64 kLargestManifest = 1 << 16;

/// The file that an entry of the manifest names, which must lie in the bundle itself; empty for any other.
fs::path fileNamed(const QJsonValue& entry, const fs::path& bundle) {
    const fs::path name = entry.toString().toStdString();
    return name.empty() || name != name.filename() || name == "." || name == ".." ? fs::path()
                                                                                  : bundle / name;
}

} // namespace

std::variant<KTPluginManifest, KTPluginError> KTPluginManifest::ofBundle(const fs::path& bundle) {
    const auto refused = [&](KTPluginError::Code code, std::string reason) {
        return KTPluginError{code, KTValidUTF8(bundle.string()), std::move(reason)};
    };
    const fs::path path = bundle / kManifest;
    QFile file(QFile::decodeName(path.c_str()));
    std::error_code error;
    if (fs::exists(path, error) && !fs::is_regular_file(path, error)) // opening a pipe would wait for ever
        return refused(KTPluginError::NoManifest, KTLocalizedString("Its manifest is not a file."));
    if (!file.open(QIODevice::ReadOnly))
        return refused(KTPluginError::NoManifest,
                       KTStringWithFormat(KTLocalizedString("Its manifest cannot be read: %@."),
                                          {file.errorString().toStdString()}));
    const QJsonObject entries = QJsonDocument::fromJson(file.read(kLargestManifest)).object();
    if (!entries["interface"].isDouble())
        return refused(KTPluginError::DamagedManifest, KTLocalizedString("Its manifest is damaged."));
    // Said first: of another version, other entries may be right.
    if (entries["interface"].toDouble() != KTPhotoExportInterfaceVersion)
        return refused(KTPluginError::OtherVersion,
                       KTLocalizedString("It was made for another version of Waymark."));

    const QUuid uuid = QUuid::fromString(entries["uuid"].toString());
    KTPluginManifest manifest{uuid.toString(QUuid::WithoutBraces).toStdString(),
                              entries["name"].toString().toStdString(), fileNamed(entries["icon"], bundle),
                              fileNamed(entries["library"], bundle)};
    if (uuid.isNull() || manifest.name.empty() || manifest.library.empty())
        return refused(KTPluginError::DamagedManifest, KTLocalizedString("Its manifest is damaged."));
    if (!fs::is_regular_file(manifest.library, error))
        return refused(KTPluginError::NoLibrary, KTLocalizedString("Its library is missing."));
    return manifest;
}
