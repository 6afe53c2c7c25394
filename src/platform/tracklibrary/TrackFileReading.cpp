#include "platform/tracklibrary/TrackFileReading.h"

#include "platform/common/KTLocalizedString.h"
#include "platform/common/KTText.h"
#include "platform/tracklibrary/GPSBabelReader.h"
#include "platform/tracklibrary/GPXReader.h"
#include "platform/tracklibrary/KMZArchive.h"
#include "platform/tracklibrary/TrackFileFormat.h"

#include <QCryptographicHash>
#include <QTemporaryDir>
#include <cerrno>
#include <cstring>
#include <fstream>

namespace {

constexpr std::size_t kPieceLength = 1 << 18;

TrackFileProblem unreadable() {
    return {0, KTStringWithFormat(KTLocalizedString("the file cannot be read: %@"), {std::strerror(errno)})};
}

/// Passes the bytes of @p file to @p use, piece by piece, until it returns false, and hashes them.
template<class Use>
TrackFileContent readPieces(const std::filesystem::path& file, const Use& use) {
    TrackFileContent content;
    errno = 0;
    std::ifstream stream(file, std::ios::binary);
    QCryptographicHash hash(QCryptographicHash::Blake2b_256);
    std::vector<char> piece(kPieceLength);
    bool goesOn = true;
    while (goesOn && stream) {
        stream.read(piece.data(), static_cast<std::streamsize>(piece.size()));
        std::string_view bytes(piece.data(), static_cast<std::size_t>(stream.gcount()));
        hash.addData(QByteArrayView(bytes.data(), static_cast<qsizetype>(bytes.size())));
        content.size += static_cast<std::int64_t>(bytes.size());
        goesOn = use(bytes);
    }
    if (stream.bad() || !stream.eof()) {
        if (goesOn)
            content.problem = unreadable();
    }
    content.hash = hash.result().toStdString();
    return content;
}

TrackFileContent readGPX(const std::filesystem::path& file, TrackFileSink& sink) {
    GPXReader reader(sink);
    auto content =
        readPieces(file, [&](std::string_view bytes) { return reader.append(bytes) && !sink.isClosed(); });
    if (!content.problem && !sink.isClosed())
        reader.finish();
    if (reader.problem())
        content.problem = reader.problem();
    return content;
}

std::optional<TrackFileProblem> readKMZ(const std::filesystem::path& file, TrackFileSink& sink) {
    QTemporaryDir folder;
    if (!folder.isValid())
        return TrackFileProblem{0, folder.errorString().toStdString()};
    auto kml = std::filesystem::path(folder.path().toStdString()) / "doc.kml";
    if (auto problem = extractKML(file, kml))
        return problem;
    return GPSBabelReader().read(kml, "kml", sink);
}

} // namespace

std::string trackFileHash(const std::filesystem::path& file) {
    auto content = readPieces(file, [](std::string_view) { return true; });
    return content.problem ? std::string() : content.hash;
}

TrackFileContent readTrackFile(const std::filesystem::path& file, TrackFileSink& sink) {
    const TrackFileFormat* format = trackFileFormat(file);
    if (!format) {
        TrackFileContent content;
        content.problem = {
            0, KTStringWithFormat(KTLocalizedString("this is not a track file that Waymark knows (%@)"),
                                  {trackFileFormatNames()})};
        return content;
    }
    if (format->kind == TrackFileFormat::Kind::GPX)
        return readGPX(file, sink);
    auto content = readPieces(file, [&](std::string_view) { return !sink.isClosed(); });
    if (!content.problem)
        content.problem = format->kind == TrackFileFormat::Kind::KMZ
                              ? readKMZ(file, sink)
                              : GPSBabelReader().read(file, format->gpsbabelName, sink);
    return content;
}
