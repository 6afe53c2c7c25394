#include "app/thumbnails/ThumbnailFileCache.h"

#include <QCryptographicHash>
#include <QImageReader>
#include <QSaveFile>
#include <QStandardPaths>
#include <sys/stat.h>

namespace {

constexpr const char* kFailures = "fail/waymark-" WAYMARK_VERSION;

const char* subfolderOf(ThumbnailSize size) {
    return size == ThumbnailSize::Normal ? "normal" : size == ThumbnailSize::Large ? "large" : "x-large";
}

/// As every program writes it: what may stand in a path stays, other bytes are escaped.
QByteArray addressOf(const std::filesystem::path& file) {
    std::error_code ignored;
    const std::string path = std::filesystem::absolute(file, ignored).lexically_normal().string();
    return "file://" + QByteArray::fromStdString(path).toPercentEncoding("/!$&'()*+,;=:@");
}

struct FileFacts {
    QString modified, size;
};

std::optional<FileFacts> factsOf(const std::filesystem::path& file) {
    struct stat facts = {};
    if (::stat(file.c_str(), &facts) != 0)
        return std::nullopt;
    return FileFacts{QString::number(facts.st_mtim.tv_sec), QString::number(facts.st_size)};
}

/// The PNG file at @p place if it is the thumbnail of @p file as that is now.
QImage readValid(const std::filesystem::path& place, const std::filesystem::path& file) {
    QImageReader reader(QString::fromStdString(place.string()), "PNG");
    if (!reader.canRead())
        return {};
    const auto facts = factsOf(file);
    const QImage image = reader.read(); // the reader itself cuts keys at their colons
    if (!facts || image.text("Thumb::MTime") != facts->modified ||
        image.text("Thumb::URI") != QString::fromLatin1(addressOf(file)))
        return {};
    const QString size = image.text("Thumb::Size"); // tells a change within a second, where it is written
    return size.isEmpty() || size == facts->size ? image : QImage();
}

} // namespace

std::filesystem::path ThumbnailFileCache::userFolder() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation).toStdString() +
           "/thumbnails";
}

std::filesystem::path ThumbnailFileCache::placeOf(const std::filesystem::path& file,
                                                  const char* subfolder) const {
    const QByteArray name =
        QCryptographicHash::hash(addressOf(file), QCryptographicHash::Md5).toHex() + ".png";
    return folder / subfolder / name.toStdString();
}

QImage ThumbnailFileCache::load(const std::filesystem::path& file, ThumbnailSize size) const {
    for (const ThumbnailSize candidate : kThumbnailSizes) {
        if (candidate < size)
            continue;
        const QImage image = readValid(placeOf(file, subfolderOf(candidate)), file);
        if (!image.isNull())
            return candidate == size ? image
                                     : image.scaled(edgeOf(size), edgeOf(size), Qt::KeepAspectRatio,
                                                    Qt::SmoothTransformation);
    }
    return {};
}

void ThumbnailFileCache::store(const std::filesystem::path& file, ThumbnailSize size,
                               const QImage& thumbnail) const {
    write(file, placeOf(file, subfolderOf(size)), thumbnail);
}

bool ThumbnailFileCache::hasFailed(const std::filesystem::path& file) const {
    return !readValid(placeOf(file, kFailures), file).isNull();
}

void ThumbnailFileCache::noteFailure(const std::filesystem::path& file) const {
    QImage mark(1, 1, QImage::Format_ARGB32);
    mark.fill(Qt::transparent);
    write(file, placeOf(file, kFailures), mark);
}

void ThumbnailFileCache::write(const std::filesystem::path& file, const std::filesystem::path& place,
                               QImage image) const {
    const auto facts = factsOf(file);
    std::error_code error;
    if (!facts || file.native().starts_with(folder.native()))
        return;
    std::filesystem::create_directories(place.parent_path(), error);
    std::filesystem::permissions(place.parent_path(), std::filesystem::perms::owner_all, error);
    image.setText("Thumb::URI", QString::fromLatin1(addressOf(file)));
    image.setText("Thumb::MTime", facts->modified);
    image.setText("Thumb::Size", facts->size);
    image.setText("Software", "Waymark " WAYMARK_VERSION);
    QSaveFile target(QString::fromStdString(place.string())); // whole or not at all
    if (target.open(QIODevice::WriteOnly) && image.save(&target, "PNG")) {
        target.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner);
        target.commit();
    }
}
