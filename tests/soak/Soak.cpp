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
    lately.push_back(chosen->name);
    if (lately.size() > kRemembered)
        lately.erase(lately.begin());
    (this->*chosen->run)();
    checkRecords();
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
        const bool mustBeSaved = !SoakModel::isSame(expected, model.disk.at(photo->fileURL()));
        require(photo->hasUnsavedChanges() == mustBeSaved,
                photo->filename() + (mustBeSaved ? " does not say" : " says") + " that it must be saved");
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

/// What was saved is in the files, and what is in the files was in the record at some time of the save.
void Soak::checkSaved(const Photos& saved, const SoakModel::Records& before) {
    std::set<Path> mayChange;
    for (const Photo& photo : saved) {
        const Path& file = photo->fileURL();
        mayChange.insert(file);
        const SoakModel::Values now = readAnew(file), shows = SoakModel::valuesOf(*photo);
        for (const auto& [key, value] : now) {
            bool isKnown = SoakModel::isSame(value, before.at(file).at(key));
            for (const SoakModel::Values& values : seen[file])
                isKnown = isKnown || SoakModel::isSame(value, values.at(key));
            require(isKnown, photo->filename() + " holds as " + key + " “" + value.description() +
                                 "”, which its record never showed");
            require(photo->hasUnsavedChanges() || SoakModel::isSame(value, shows.at(key)),
                    photo->filename() + " counts as saved, but holds as " + key + " “" + value.description() +
                        "” instead of “" + shows.at(key).description() + "”");
        }
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
    require(runEventLoopUntil(isDone), "it takes too long");
}
