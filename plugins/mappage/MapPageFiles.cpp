#include "MapPageFiles.h"

#include <QCoreApplication>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLocale>
#include <QStringList>
#include <QXmlStreamWriter>
#include <minizip/zip.h>

namespace fs = std::filesystem;

namespace {

QString text(const std::string& bytes) {
    return QString::fromStdString(bytes);
}

QString addressOf(const std::string& image) {
    return "photos/" + QString::fromLatin1(QByteArray::fromStdString(image).toPercentEncoding());
}

QJsonObject objectOf(const MapPagePhoto& photo) {
    QJsonObject object = {{"image", addressOf(photo.image)}, {"name", text(photo.name)}};
    for (const auto& [key, value] :
         {std::pair("title", &photo.title), std::pair("date", &photo.date), std::pair("place", &photo.place)})
        if (!value->empty())
            object[key] = text(*value);
    if (photo.latitude && photo.longitude) {
        object["lat"] = *photo.latitude;
        object["lon"] = *photo.longitude;
    }
    return object;
}

QString coordinates(double longitude, double latitude, const std::optional<double>& elevation = {}) {
    const QString place = QString::number(longitude, 'f', 7) + ',' + QString::number(latitude, 'f', 7);
    return elevation ? place + ',' + QString::number(*elevation, 'f', 1) : place;
}

void writePlacemark(QXmlStreamWriter& kml, const MapPagePhoto& photo) {
    kml.writeStartElement("Placemark");
    kml.writeTextElement("name", text(photo.title.empty() ? photo.name : photo.title));
    kml.writeTextElement("description", "<img src=\"" + addressOf(photo.image) + "\" width=\"500\">");
    kml.writeStartElement("Point");
    kml.writeTextElement("coordinates", coordinates(*photo.longitude, *photo.latitude));
    kml.writeEndElement();
    kml.writeEndElement();
}

void writeTrack(QXmlStreamWriter& kml, const std::vector<KTExportedPoint>& track) {
    kml.writeStartElement("Placemark");
    kml.writeStartElement("LineString");
    kml.writeTextElement("tessellate", "1");
    QStringList points;
    for (const KTExportedPoint& point : track)
        points << coordinates(point.longitude, point.latitude, point.elevation);
    kml.writeTextElement("coordinates", points.join(' '));
    kml.writeEndElement();
    kml.writeEndElement();
}

bool addFile(zipFile archive, const std::string& name, const QByteArray& content, int level) {
    zip_fileinfo information = {};
    information.tmz_date = {0, 0, 0, 1, 0, 2020}; // the same content gives the same file
    const bool isOpen = zipOpenNewFileInZip(archive, name.c_str(), &information, nullptr, 0, nullptr, 0,
                                            nullptr, level == 0 ? 0 : Z_DEFLATED, level) == ZIP_OK;
    const bool isWritten =
        isOpen && zipWriteInFileInZip(archive, content.constData(), unsigned(content.size())) == ZIP_OK;
    return isOpen && zipCloseFileInZip(archive) == ZIP_OK && isWritten;
}

} // namespace

std::string mapPageHTML(const MapPageContent& content) {
    QJsonArray photos, tracks;
    for (const MapPagePhoto& photo : content.photos)
        photos.append(objectOf(photo));
    for (const auto& track : content.tracks) {
        QJsonArray points;
        for (const KTExportedPoint& point : track)
            points.append(QJsonArray{point.latitude, point.longitude});
        tracks.append(points);
    }
    const QString count = QCoreApplication::translate("MapPage", "%1 photos").arg(content.photos.size());
    QByteArray data = QJsonDocument(QJsonObject{{"title", text(content.title)},
                                                {"language", QLocale().bcp47Name()},
                                                {"count", count},
                                                {"photos", photos},
                                                {"tracks", tracks}})
                          .toJson(QJsonDocument::Compact);
    data.replace("<", "\\u003c"); // nothing in a photo's texts ends the element
    QFile page(":/waymark/mappage/page.html");
    return page.open(QIODevice::ReadOnly) ? page.readAll().replace("@DATA@", data).toStdString()
                                          : std::string();
}

std::string mapPageKML(const MapPageContent& content) {
    QByteArray bytes;
    QXmlStreamWriter kml(&bytes);
    kml.setAutoFormatting(true);
    kml.writeStartDocument();
    kml.writeStartElement("kml");
    kml.writeDefaultNamespace("http://www.opengis.net/kml/2.2");
    kml.writeStartElement("Document");
    kml.writeTextElement("name", text(content.title));
    for (const auto& track : content.tracks)
        writeTrack(kml, track);
    for (const MapPagePhoto& photo : content.photos)
        if (photo.latitude && photo.longitude)
            writePlacemark(kml, photo);
    kml.writeEndDocument();
    return bytes.toStdString();
}

bool writeKMZ(const fs::path& file, const std::string& kml, const fs::path& folder,
              const std::vector<MapPagePhoto>& photos) {
    const zipFile archive = zipOpen64(file.c_str(), APPEND_STATUS_CREATE);
    if (archive == nullptr)
        return false;
    bool isWritten = addFile(archive, "doc.kml", QByteArray::fromStdString(kml), Z_DEFAULT_COMPRESSION);
    for (const MapPagePhoto& photo : photos) {
        QFile image(QFile::decodeName((folder / photo.image).c_str()));
        if (photo.latitude && photo.longitude) // pictures are compressed already
            isWritten = isWritten && image.open(QIODevice::ReadOnly) &&
                        addFile(archive, "photos/" + photo.image, image.readAll(), 0);
    }
    isWritten = zipClose(archive, nullptr) == ZIP_OK && isWritten;
    std::error_code error;
    if (!isWritten)
        fs::remove(file, error);
    return isWritten;
}
