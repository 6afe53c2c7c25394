#include "metadata/KTMetadataFieldManager.h"
#include "photo/KTLinkablePoint.h"
#include "platform/tracklibrary/KTTrackStore.h"
#include "tests/soak/Soak.h"

#include <cmath>

namespace {

constexpr std::size_t kMostTracks = 12, kMostPhotosLoaded = 60, kMostImported = 25;

KTDecimal degrees(std::int64_t millionths) {
    return KTDecimal::fromInteger(millionths) / KTDecimal::fromInteger(1'000'000);
}

std::int64_t millisecondsOf(KTInstant instant) {
    return instant.time_since_epoch().count();
}

} // namespace

const std::vector<Soak::Action>& Soak::actions() {
    static const std::vector<Action> all = {{"import", 4, &Soak::import},
                                            {"remove", 2, &Soak::removePhotos},
                                            {"edit", 30, &Soak::edit},
                                            {"shift date", 6, &Soak::shiftDate},
                                            {"undo", 14, &Soak::undo},
                                            {"redo", 6, &Soak::redo},
                                            {"save", 8, &Soak::save},
                                            {"geotag", 8, &Soak::geotag},
                                            {"import track", 8, &Soak::importTrack},
                                            {"delete track", 5, &Soak::deleteTrack},
                                            {"zone", 2, &Soak::changeZone}};
    return all;
}

void Soak::import() {
    if (manager.numberOfPhotos() >= kMostPhotosLoaded)
        return removePhotos();
    std::vector<Path> chosen;
    const std::size_t wanted = 1 + number(kMostImported);
    for (std::size_t i = 0; i < wanted; ++i)
        chosen.push_back(files[number(files.size())]);
    const std::size_t until = number(4) == 0 ? number(wanted) : SIZE_MAX; // photos that come before a stop
    bool hasEnded = false;
    std::size_t read = 0;
    manager.importPhotosAtURLs(chosen, {.didRead =
                                            [&](const auto&, const auto&, const auto&) {
                                                if (++read == until)
                                                    manager.setShouldCancelImport();
                                            },
                                        .didEnd = [&] { hasEnded = true; }});
    waitUntil([&] { return hasEnded && !manager.importInProgress(); });
    for (const Photo& photo : *manager.photos()) {
        const Path& file = photo->fileURL();
        if (model.records.contains(file))
            continue;
        const SoakModel::Values values = SoakModel::valuesOf(*photo);
        const auto known = model.disk.find(file);
        require(known == model.disk.end() || SoakModel::isSame(values, known->second),
                photo->filename() + " reads otherwise than before");
        model.records[file] = values;
        model.disk.emplace(file, values);
    }
}

void Soak::removePhotos() {
    const Photos leaving = somePhotos();
    manager.removePhotos(leaving);
    for (const Photo& photo : leaving)
        model.forget(photo->fileURL());
}

void Soak::editOneProperty(const Photo& photo) {
    photo->invalidateLastRecordedUndoKey(); // each edit is a step of its own
    switch (number(5)) {
    case 0:
        return photo->setValueForKey("rating", static_cast<int>(number(6)));
    case 1:
        return photo->setValueForKey("keywords", KTValue::listOfTexts({word(), word()}));
    case 2:
        return photo->setLocationCreatedFromLinkablePoint(KTLinkablePoint::initWithGeoPoint(
            {.latitude = degrees(static_cast<std::int64_t>(number(180'000'000)) - 90'000'000),
             .longitude = degrees(static_cast<std::int64_t>(number(360'000'000)) - 180'000'000)},
            KTLinkablePointTypeMapPoint));
    default: {
        static constexpr const char* texts[] = {"title", "headline", "caption", "cityCreated"};
        return photo->setValueForKey(texts[number(std::size(texts))], word());
    }
    }
}

void Soak::edit() {
    const Photo photo = anyPhoto();
    if (!photo)
        return;
    const SoakModel::Records before = shown();
    editOneProperty(photo);
    model.note(before, shown());
}

void Soak::shiftDate() {
    const Photo photo = anyPhoto();
    if (!photo)
        return;
    const SoakModel::Records before = shown();
    photo->setDateTimeOriginalShift(static_cast<double>(number(7200)) - 3600);
    model.note(before, shown());
}

void Soak::undo() {
    require(undoManager->undo() == model.undo(), "whether something can be undone");
}

void Soak::redo() {
    require(undoManager->redo() == model.redo(), "whether something can be done again");
}

void Soak::noteSeen() {
    for (const auto& [file, values] : shown())
        seen[file].push_back(values);
}

/// Sometimes with edits meanwhile, sometimes stopped.
void Soak::save() {
    const Photos chosen = number(2) == 0 ? *manager.unsavedPhotos() : somePhotos();
    const SoakModel::Records disk = model.disk;
    seen.clear();
    noteSeen();
    bool didSave = false;
    manager.savePhotos(chosen, [&] { didSave = true; });
    const bool isEdited = number(3) == 0;
    const std::uint64_t stop = number(6) == 0 ? number(1 + chosen.size()) : UINT64_MAX;
    // How often the loop turns is chance; the steps that follow must not depend on it, nor repeat its edits.
    const std::mt19937_64 afterwards(random());
    SoakModel::Records edited;
    waitUntil([&] {
        if (isEdited && !didSave && number(10) == 0 && !chosen.empty()) {
            const SoakModel::Records unedited = shown();
            editOneProperty(chosen[number(chosen.size())]);
            SoakModel::addChanges(edited, unedited, shown());
            noteSeen();
        }
        if (batches.batchProgressValue() >= stop)
            batches.abortBatch();
        return didSave;
    });
    random = afterwards;
    // Edits that meet a batch are one step. What a record shows because its file holds it is none.
    model.noteStep(std::move(edited), shown());
    checkSaved(chosen, disk);
}

/// What the photos must get, by the model alone.
std::size_t Soak::expectedSuccesses(const Photos& selected,
                                    std::map<const KTPhoto*, std::pair<double, double>>& positions) const {
    for (const Photo& photo : selected) {
        const auto instant = photo->dateTimeOriginal();
        if (photo->isGeotagged() || !instant)
            continue;
        if (const auto position = model.positionAt(millisecondsOf(*instant)))
            positions[photo.get()] = *position;
    }
    return positions.size();
}

void Soak::geotag() {
    const Photos selected = somePhotos();
    manager.setSelectedPhotos(selected);
    std::map<const KTPhoto*, std::pair<double, double>> positions;
    const std::size_t successes = expectedSuccesses(selected, positions);
    waitUntil([&] {
        const auto computation = geotagger.computation();
        Photos judged;
        for (const KTGeotaggingFate& fate : computation->fates)
            judged.push_back(fate.photo);
        return judged == selected && computation->photosBeingLinked == 0 &&
               computation->counters.totalSuccesses == successes;
    });
    const SoakModel::Records before = shown();
    geotagger.batchSave();
    waitUntil([&] { return !geotagger.isBatchOperationInProgress(); });
    const SoakModel::Records after = shown();
    for (const Photo& photo : selected) {
        const auto expected = positions.find(photo.get());
        if (expected == positions.end()) {
            require(SoakModel::isSame(before.at(photo->fileURL()), after.at(photo->fileURL())),
                    photo->filename() + " was not to be geotagged");
            continue;
        }
        constexpr double precision = 1e-9;
        const auto latitude = photo->decimalForKey("latitude"), longitude = photo->decimalForKey("longitude");
        require(latitude && longitude &&
                    std::abs(latitude->toDouble() - expected->second.first) < precision &&
                    std::abs(longitude->toDouble() - expected->second.second) < precision,
                photo->filename() + " has got another position than that of its track point");
    }
    model.note(before, after);
}

/// A track of some minutes around the date of a loaded photo.
void Soak::importTrack() {
    const Photo photo = anyPhoto();
    const auto middle = photo ? photo->dateTimeOriginal() : std::nullopt;
    if (!middle || model.tracks.size() >= kMostTracks)
        return;
    std::vector<SoakModel::TrackPoint> points;
    std::int64_t when = millisecondsOf(*middle) - static_cast<std::int64_t>(number(900'000));
    std::string text = "<gpx version=\"1.1\" xmlns=\"http://www.topografix.com/GPX/1/1\"><trk><trkseg>";
    for (std::size_t count = 1 + number(60); count > 0; --count) {
        when += 1 + static_cast<std::int64_t>(number(number(8) == 0 ? 900'000 : 60'000));
        const KTDecimal latitude = degrees(static_cast<std::int64_t>(number(160'000'000)) - 80'000'000),
                        longitude = degrees(static_cast<std::int64_t>(number(360'000'000)) - 180'000'000);
        points.push_back({when, latitude.toDouble(), longitude.toDouble()});
        text += "<trkpt lat=\"" + latitude.toText() + "\" lon=\"" + longitude.toText() + "\"><time>" +
                KTISO8601Text(KTInstantFromMilliseconds(when)) + "</time></trkpt>";
    }
    const Path file = trackFiles.file(std::to_string(++words) + ".gpx", text + "</trkseg></trk></gpx>");
    const auto imported = tracks.importFile(file);
    require(imported.succeeded() && imported.trackIDs.size() == 1,
            "a track cannot be imported: " + imported.error);
    if (imported.trackIDs.size() == 1)
        model.tracks[imported.trackIDs.front()] = points;
}

void Soak::deleteTrack() {
    if (model.tracks.empty())
        return;
    const auto chosen =
        std::next(model.tracks.begin(), static_cast<std::ptrdiff_t>(number(model.tracks.size())));
    const auto deletion = tracks.deleteTracks({chosen->first});
    require(deletion.error.empty() && deletion.deleted.size() == 1, "a track cannot be deleted");
    model.tracks.erase(chosen);
}

void Soak::changeZone() {
    const int hours = static_cast<int>(number(25)) - 12;
    KTMetadataFieldManager::sharedMetadataFieldManager().setAssumedTimeZone(
        KTTimeZone::fromText((hours < 0 ? "-" : "+") + std::string(std::abs(hours) < 10 ? "0" : "") +
                             std::to_string(std::abs(hours)) + ":00")
            .value());
    manager.finishZoneChange();
}
