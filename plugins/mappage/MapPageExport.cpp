#include "MapPageExport.h"

#include <QFile>
#include <QSaveFile>
#include <QStringList>
#include <algorithm>

namespace fs = std::filesystem;

namespace {

constexpr KTImageSize kPictureSize = {2048, 2048};
constexpr double kPictureQuality = 0.88;
constexpr const char *kPage = "index.html", *kArchive = "photos.kmz", *kPictures = "photos";

std::string textOf(const KTExportedPhoto& photo, const char* key) {
    const KTExportedValue value = photo.valueForKey(key);
    const auto* text = std::get_if<std::string>(&value);
    return text == nullptr ? std::string() : *text;
}

std::optional<double> numberOf(const KTExportedPhoto& photo, const char* key) {
    const KTExportedValue value = photo.valueForKey(key);
    const auto* number = std::get_if<double>(&value);
    return number == nullptr ? std::nullopt : std::optional(*number);
}

/// "2014-06-01 12:00" of "2014:06:01 12:00:00".
std::string dateOf(const KTExportedPhoto& photo) {
    std::string date = textOf(photo, "dateTimeOriginalComponents").substr(0, 16);
    for (const std::size_t at : {4u, 7u})
        if (date.size() > at && date[at] == ':')
            date[at] = '-';
    return date;
}

std::string placeOf(const KTExportedPhoto& photo) {
    QStringList parts;
    for (const char* key : {"locationShown", "cityShown", "countryShown"})
        if (const std::string part = textOf(photo, key); !part.empty())
            parts << QString::fromStdString(part);
    return parts.join(", ").toStdString();
}

MapPagePhoto described(const KTExportedPhoto& photo, const std::string& image) {
    return {image,
            QString::fromStdString(photo.filename()).toStdString(), // as far as it is text
            textOf(photo, "title"),
            dateOf(photo),
            placeOf(photo),
            numberOf(photo, "latitude"),
            numberOf(photo, "longitude")};
}

} // namespace

void MapPageExport::shouldPrepareForExportToPath(const std::optional<fs::path>& path) {
    if (!path) {
        manager.exportManagerShouldCancelExport();
        return;
    }
    destination = *path;
    total = static_cast<std::int64_t>(manager.photos().size());
    manager.exportManagerShouldBeginExport();
}

KTPhotoExportOptions MapPageExport::options() const {
    KTPhotoExportOptions options = {{KTImageSizeOption, kPictureSize},
                                    {KTImageQualityOption, kPictureQuality}};
    for (const auto& [key, value] : manager.requestedOptions())
        options[key] = value;
    options[KTImageTypeOption] = std::string("public.jpeg"); // which every browser shows
    return options;
}

/// "001 IMG_1.jpg": in the order of the page, and no two the same.
std::string MapPageExport::imageNameFor(const KTExportedPhoto& photo, std::size_t number) const {
    const QString name = QString::fromStdString(fs::path(photo.filename()).stem().string()).left(80);
    return QString("%1 %2.jpg").arg(number, 3, 10, QChar('0')).arg(name).toStdString();
}

void MapPageExport::exportPhotos(MapPageContent& content) {
    const auto photos = manager.photos();
    for (std::size_t i = 0; i < photos.size() && !isCancelled; ++i) {
        showProgress(i);
        const std::string image = imageNameFor(*photos[i], i + 1);
        const KTPhotoExportResult result =
            manager.exportPhoto(*photos[i], folder / kPictures / image, options());
        if (result)
            content.photos.push_back(described(*photos[i], image));
        else if (failed++ == 0)
            firstReason = photos[i]->filename() + ": " + result.reason;
    }
    showProgress(photos.size());
}

bool MapPageExport::writePage(const MapPageContent& content) {
    QSaveFile page(QFile::decodeName((folder / kPage).c_str()));
    const QByteArray html = QByteArray::fromStdString(mapPageHTML(content));
    return page.open(QIODevice::WriteOnly) && page.write(html) == html.size() &&
           writeKMZ(folder / kArchive, mapPageKML(content), folder / kPictures, content.photos) &&
           page.commit();
}

/// A folder that nobody had before: a page is never mixed with another one, nor with what else stands there,
/// also where exports wait for each other. False where none can be made.
bool MapPageExport::makeFolder() {
    const fs::path wanted = destination / tr("Map Page").toStdString();
    std::error_code error;
    folder = wanted;
    for (int number = 2; !fs::create_directory(folder, error); ++number) {
        std::error_code ignored;
        if (error && !fs::exists(fs::symlink_status(folder, ignored)))
            return false;
        folder = wanted.string() + " " + std::to_string(number);
    }
    if (fs::create_directory(folder / kPictures, error))
        return true;
    fs::remove(folder, error);
    return false;
}

void MapPageExport::performExport() {
    const bool hasFolder = makeFolder();
    MapPageContent content;
    content.title = tr("Photos on the Map").toStdString();
    if (hasFolder)
        exportPhotos(content);
    for (const auto& track : manager.tracks())
        for (auto& segment : track->segments())
            if (segment.size() > 1)
                content.tracks.push_back(std::move(segment));
    const bool isWritten = hasFolder && !isCancelled && writePage(content);
    std::error_code error;
    if (hasFolder && !isWritten)
        fs::remove_all(folder, error); // which this export has made
    conclude(content, isWritten);
    manager.exportManagerShouldFinishExport();
}

void MapPageExport::showProgress(std::size_t photosDone) {
    const std::lock_guard lock(mutex);
    done = photosDone;
    progressMessage = tr("Exporting photo %1 of %2")
                          .arg(std::min(static_cast<std::int64_t>(photosDone) + 1, total))
                          .arg(total)
                          .toStdString();
}

void MapPageExport::conclude(const MapPageContent& content, bool isWritten) {
    QStringList sentences;
    if (isCancelled)
        sentences << tr("Export canceled.");
    else if (!isWritten)
        sentences << tr("The page could not be written.");
    else
        sentences << tr("Made a page of %1 photos.").arg(content.photos.size());
    if (failed > 0)
        sentences << tr("%1 photos could not be exported.").arg(failed)
                  << QString::fromStdString(firstReason);
    const std::lock_guard lock(mutex);
    conclusion = sentences.join(' ').toStdString();
    if (isWritten)
        url = "file://" +
              QByteArray::fromStdString((folder / kPage).string()).toPercentEncoding("/").toStdString();
}
