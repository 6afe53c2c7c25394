#include "tests/soak/Soak.h"

#include "metadata/KTMetadataFieldManager.h"
#include "platform/defaults/KTUserDefaults.h"
#include "platform/tracklibrary/KTTrackStore.h"
#include "tests/support/EventLoop.h"

namespace {

constexpr std::size_t kRemembered = 40; // steps

} // namespace

Soak::Soak(std::uint64_t seed, std::vector<Path> photoFiles, int sidecarStyle)
    : random(seed), files(std::move(photoFiles)), tracks(KTTrackStore::open(":memory:").store) {
    KTUserDefaults::useThrowAwayDomain();
    KTUserDefaults& defaults = KTUserDefaults::standardUserDefaults();
    defaults.setValue("defaultXMPSidecarStyle", sidecarStyle);
    for (const char* key : {"defaultLatLonCreatedShouldReverseGeocodeLocationCreated",
                            "defaultLatLonCreatedShouldReverseGeocodeLocationShown"})
        defaults.setValue(key, false);
    KTMetadataFieldManager::sharedMetadataFieldManager().setAssumedTimeZone(KTTimeZone::utc());
    manager.setUndoManager(undoManager, queue);
    manager.setBatchOperationController(&batches);
    controller.setBatchOperationController(&batches);
    controller.setup();
    geotagger.setup();
    geotagger.setShouldActivelyGeotag(true);
    for (const Path& file : files)
        stamps[file] = stampsOf(file);
}

Soak::~Soak() {
    geotagger.tearDown();
    controller.tearDown();
    KTUserDefaults::useThrowAwayDomain();
}

void Soak::step() {
    std::size_t total = 0;
    for (const Action& action : actions())
        total += static_cast<std::size_t>(action.weight);
    std::size_t choice = number(total);
    const auto* chosen = actions().data();
    for (; choice >= static_cast<std::size_t>(chosen->weight); ++chosen)
        choice -= static_cast<std::size_t>(chosen->weight);
    ++done[chosen->name];
    const SoakModel::Records before = model.records;
    (this->*chosen->run)();
    lately.push_back(chosen->name + changesSince(before) +
                     (undoManager->canUndo() ? "; to undo: " + undoManager->undoActionName() : ""));
    if (lately.size() > kRemembered)
        lately.erase(lately.begin());
    checkRecords();
}

/// What records show otherwise than @p before, for who looks for the cause of a failure.
std::string Soak::changesSince(const SoakModel::Records& before) const {
    SoakModel::Records common = before;
    std::erase_if(common, [&](const auto& record) { return !model.records.contains(record.first); });
    SoakModel::Records changed;
    SoakModel::addChanges(changed, common, model.records);
    std::string text;
    for (const auto& [file, values] : changed)
        for (const auto& [key, value] : values)
            text += "; " + file.filename().string() + " " + key + " “" + value.description() + "” → “" +
                    model.records.at(file).at(key).description() + "”";
    return text;
}

void Soak::require(bool isRight, const std::string& text) {
    if (!isRight && failure.empty())
        failure = text;
}

std::string Soak::problem() const {
    std::string text = failure;
    if (!failure.empty())
        for (const std::string& action : lately)
            text += "\n  " + action;
    return text;
}

std::string Soak::summary() const {
    std::string text;
    for (const auto& [name, count] : done)
        text += name + " " + std::to_string(count) + "  ";
    return text;
}

/// Every record shows what it must, says rightly whether it must be saved, and no file has changed.
void Soak::checkRecords() {
    require(manager.numberOfPhotos() == model.records.size(), "the number of loaded photos");
    for (const Photo& photo : *manager.photos()) {
        const auto known = model.records.find(photo->fileURL());
        if (known == model.records.end())
            return require(false, photo->filename() + " was not to be loaded");
        const SoakModel::Values& expected = known->second;
        for (const auto& [key, value] : SoakModel::valuesOf(*photo))
            require(SoakModel::isSame(value, expected.at(key)), photo->filename() + " shows " + key + " “" +
                                                                    value.description() + "” instead of “" +
                                                                    expected.at(key).description() + "”");
        const bool mustBeSaved = model.mustBeSaved(photo->fileURL());
        // What is typed though it is shown may be an edit for the one of two files that lacks it.
        const bool isForOneFile = !mustBeSaved && photo->writingToImageFile() &&
                                  photo->writingToXMPSidecar() &&
                                  !SoakModel::isSame(readImageAlone(photo->fileURL()), expected);
        if (photo->hasUnsavedChanges() != mustBeSaved && !isForOneFile)
            require(false, photo->filename() + (mustBeSaved ? " does not say" : " says") +
                               " that it must be saved; pending: " + pendingOf(*photo));
    }
    checkStamps({});
}

void Soak::checkStamps(const std::set<Path>& mayChange) {
    for (auto& [file, stamp] : stamps) {
        const auto now = stampsOf(file);
        require(now == stamp || mayChange.contains(file), file.string() + " has changed");
        stamp = now;
    }
}

std::vector<std::optional<KTFileStamp>> Soak::stampsOf(const Path& file) const {
    return {KTFileStamp::of(file), KTFileStamp::of(Path(file).replace_extension("xmp"))};
}

SoakModel::Values Soak::readAnew(const Path& file) {
    const auto photo = KTPhoto::initWithFile(file, {}, nullptr, {.exifTool = &*reader});
    require(photo && photo->isValid(), file.string() + " cannot be read any more");
    return photo ? SoakModel::valuesOf(*photo) : SoakModel::Values();
}

/// The keys of the tags that are still to be written, and the last line of the log.
std::string Soak::pendingOf(const KTPhoto& photo) {
    std::string text;
    for (const auto kind : {KTMetadataSource::Image, KTMetadataSource::Sidecar})
        for (const auto& [key, value] : photo.source(kind).changes)
            text += key.text() + (kind == KTMetadataSource::Image ? " " : " (sidecar) ");
    const auto last = photo.lastPhotoOperation();
    return last ? text + "; " + last->resultDescription() : text;
}

/// Whether the image says @p value in any tag. The first sidecar is made of all tags of the image, each under
/// its name in XMP: a field that reads other groups of the image shows nothing before and something
/// afterwards, for instance the date of a raw file that knows it only in its maker's notes.
bool Soak::isInImage(const Path& file, const KTValue& value) {
    KTMetadataSource image(KTMetadataSource::Image);
    image.read(*reader, file);
    return std::ranges::any_of(*image.saved, [&](const auto& tag) {
        const std::string text = tag.value.description(), wanted = value.description();
        const auto number = KTDecimal::fromText(text);
        return text == wanted || (value.components() && text.starts_with(wanted)) ||
               (number && value.number() && SoakModel::isSame(*number, value));
    });
}

/// What the image alone says, whatever its sidecar does.
SoakModel::Values Soak::readImageAlone(const Path& file) {
    KTMetadataSource image(KTMetadataSource::Image);
    image.read(*reader, file);
    SoakModel::Values values;
    for (const std::string& key : SoakModel::keys())
        values[key] = image.valueForField(
            *KTMetadataFieldManager::sharedMetadataFieldManager().metadataFieldForKey(key));
    return values;
}

/// Whether the last attempt to write @p file failed; false where there was none.
bool Soak::lastWriteFailed(const KTPhoto& photo, const Path& file) {
    bool hasFailed = false;
    for (const KTPhotoOperation& operation : photo.photoOperations())
        if (operation.url == file && operation.operationDescription == "Write metadata to file")
            hasFailed = !operation.operationDidSucceed;
    return hasFailed;
}

/// Where a save writes both image and sidecar, it may reach the sidecar alone: the image refuses the edit, or
/// the edit came between the two. Then the values are there for a reading, and yet must be saved.
void Soak::noteImageBehind(const Photo& photo, const SoakModel::Values& disk) {
    const Path& file = photo->fileURL();
    model.behind.erase(file);
    model.refusedDates.erase(file);
    if (!photo->writingToImageFile() || !photo->writingToXMPSidecar())
        return;
    if (lastWriteFailed(*photo, file) && !lastWriteFailed(*photo, photo->xmpURL()))
        model.refusedDates.insert(file);
    const SoakModel::Values alone = readImageAlone(file), shows = SoakModel::valuesOf(*photo);
    for (const auto& [key, value] : alone) {
        if (SoakModel::isSame(value, shows.at(key)))
            continue;
        const bool wasEdited = std::ranges::any_of(seen[file], [&](const SoakModel::Values& values) {
            return !SoakModel::isSame(values.at(key), disk.at(key));
        });
        if (photo->hasUnsavedChanges())
            model.behind[file].emplace(key, value);
        else
            require(!wasEdited, photo->filename() + " counts as saved, but its image holds as " + key + " “" +
                                    value.description() + "” instead of “" + shows.at(key).description() +
                                    "”");
    }
}

/// What was saved is in the files, and what is in the files was in the record at some time of the save.
void Soak::checkSaved(const Photos& saved, const SoakModel::Records& before) {
    std::set<Path> mayChange;
    for (const Photo& photo : saved) {
        const Path& file = photo->fileURL();
        mayChange.insert(file);
        const bool isFirstSidecar = !stamps.at(file).back();
        const SoakModel::Values now = readAnew(file), shows = SoakModel::valuesOf(*photo);
        for (const auto& [key, value] : now) {
            bool isKnown = SoakModel::isSame(value, before.at(file).at(key));
            bool wasNothing = true;
            for (const SoakModel::Values& values : seen[file]) {
                isKnown = isKnown || SoakModel::isSame(value, values.at(key));
                wasNothing = wasNothing && SoakModel::isSame({}, values.at(key));
            }
            isKnown = isKnown || (isFirstSidecar && wasNothing && isInImage(file, value));
            require(isKnown, photo->filename() + " holds as " + key + " “" + value.description() +
                                 "”, which its record never showed, but “" +
                                 before.at(file).at(key).description() + "”" +
                                 (isFirstSidecar ? " before its first sidecar" : ""));
            require(photo->hasUnsavedChanges() || SoakModel::isSame(value, shows.at(key)),
                    photo->filename() + " counts as saved, but holds as " + key + " “" + value.description() +
                        "” instead of “" + shows.at(key).description() + "”");
        }
        noteImageBehind(photo, before.at(file));
        model.disk[file] = now;
    }
    checkStamps(mayChange);
}

void Soak::checkFiles() {
    for (const auto& [file, values] : model.disk)
        for (const auto& [key, value] : readAnew(file))
            require(SoakModel::isSame(value, values.at(key)), file.string() + " holds as " + key + " “" +
                                                                  value.description() + "” instead of “" +
                                                                  values.at(key).description() + "”");
}

std::size_t Soak::number(std::size_t below) {
    return static_cast<std::size_t>(random() % below);
}

std::string Soak::word() {
    static constexpr const char* kinds[] = {"Alm", "Bach", "Grat, steil", "See am Morgen", "Tal 12"};
    return std::string(kinds[number(std::size(kinds))]) + " " + std::to_string(++words);
}

Soak::Photo Soak::anyPhoto() {
    const auto photos = manager.photos();
    return photos->empty() ? nullptr : (*photos)[number(photos->size())];
}

Soak::Photos Soak::somePhotos() {
    Photos chosen;
    const std::size_t oneIn = 1 + number(8);
    for (const Photo& photo : *manager.photos())
        if (number(oneIn) == 0)
            chosen.push_back(photo);
    return chosen;
}

SoakModel::Records Soak::shown() const {
    SoakModel::Records records;
    for (const Photo& photo : *manager.photos())
        records[photo->fileURL()] = SoakModel::valuesOf(*photo);
    return records;
}

void Soak::waitUntil(const std::function<bool()>& isDone) {
    constexpr int minutes = 5; // a sanitizer's build on a busy machine saves a photo in a second
    for (int i = 0; i < minutes; ++i)
        if (runEventLoopUntil(isDone))
            return;
    require(false, "it takes too long");
}
