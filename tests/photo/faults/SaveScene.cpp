#include "tests/photo/faults/SaveScene.h"

#include "photo/KTSaveTargets.h"
#include "platform/desktop/KTItemReplacement.h"

#include <array>
#include <sys/xattr.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

constexpr const char* kTitle = "new title";
constexpr const char* kRating = "user.rating";
constexpr const char* kCreationDate = "user.waymark.creation-date";
constexpr mode_t kPermissions = 0640;
constexpr uid_t kOtherUser = 1234;

constexpr std::string_view kSidecar = R"(<?xpacket begin='' id='W5M0MpCehiHzreSzNTczkc9d'?>
<x:xmpmeta xmlns:x='adobe:ns:meta/'><rdf:RDF xmlns:rdf='http://www.w3.org/1999/02/22-rdf-syntax-ns#'>
<rdf:Description rdf:about='' xmlns:raw='http://example.org/rawdeveloper/1.0/' raw:history='kept'/>
<rdf:Description rdf:about='' xmlns:xmp='http://ns.adobe.com/xap/1.0/' xmp:Label='Red'/>
</rdf:RDF></x:xmpmeta>)";

/// What no save of metadata changes: a JPEG's picture, another program's data in a sidecar.
std::string keptPartOf(const std::string& content, KTMetadataSource::Kind kind) {
    if (kind == KTMetadataSource::Sidecar)
        return content.find("kept") == std::string::npos ? "" : "kept";
    return content.substr(std::min(content.rfind("\xff\xda"), content.size()));
}

/// A photo whose picture takes several reads and writes.
const std::string& photoContent() {
    static const std::string content = [] {
        TemporaryFolder workshop;
        std::string photo = contentOf(makePhoto(
            workshop, "photo.jpg", {{"EXIF:Make", "Canon"}, {"EXIF:Software", "9"}, {"XMP:Label", "Red"}}));
        std::string picture(20'000, '\0');
        for (std::size_t i = 0; i < picture.size(); ++i)
            picture[i] = static_cast<char>(i * 31 % 251); // never 0xff, which begins a marker
        return photo.insert(photo.size() - 2, picture);
    }();
    return content;
}

std::string attribute(const fs::path& file, const char* name) {
    std::array<char, 64> value;
    const ssize_t size = ::getxattr(file.c_str(), name, value.data(), value.size());
    return size < 0 ? "" : std::string(value.data(), static_cast<std::size_t>(size));
}

bool setAttribute(const fs::path& file, const char* name, std::string_view value) {
    return ::setxattr(file.c_str(), name, value.data(), value.size(), 0) == 0;
}

fs::file_time_type modificationDate() {
    static const auto date =
        std::chrono::floor<std::chrono::seconds>(fs::file_time_type::clock::now()) - std::chrono::hours(48);
    return date;
}

} // namespace

SaveScene::SaveScene(const Way& wayOfSaving)
    : way(wayOfSaving), home(fs::canonical(temporary.path())),
      hasAttributes(setAttribute(home, kRating, "5")) {
    const fs::path image = home / "photo.jpg";
    const KTSaveTargets written = saveTargets(image, way.style, way.hasSidecar);
    originals = {{image, photoContent(), written.imageFile, KTMetadataSource::Image},
                 {home / "photo.xmp", way.hasSidecar ? std::string(kSidecar) : std::string(),
                  written.xmpSidecar, KTMetadataSource::Sidecar}};
}

void SaveScene::layOut() const {
    KTUserDefaults& settings = KTUserDefaults::standardUserDefaults();
    settings.setValue("defaultXMPSidecarStyle", way.style);
    settings.setValue("defaultShouldPreserveModificationDate", way.setsDates);
    for (const auto& entry : fs::directory_iterator(home))
        fs::remove_all(entry);
    fs::create_directory(home / "backup");
    for (const Original& original : originals) {
        if (original.content.empty())
            continue;
        const fs::path file = temporary.file(original.file.filename(), original.content);
        if (hasAttributes)
            setAttribute(file, kRating, "5");
        if (hasAttributes && original.kind == KTMetadataSource::Image)
            setAttribute(file, kCreationDate, "2010-01-01T00:00:00Z");
        fs::permissions(file, fs::perms(kPermissions));
        static_cast<void>(::chown(file.c_str(), kOtherUser, kOtherUser)); // where the user may
        fs::last_write_time(file, modificationDate());
    }
}

TrackedPhoto SaveScene::openAndEdit() const {
    TrackedPhoto photo(KTPhoto::initWithFile(imageFile()));
    photo->setValueForKey("title", kTitle);
    if (way.setsDates)
        photo->setValueForKey("creationDate", KTInstantFromMilliseconds(1'401'616'799'000));
    return photo;
}

void SaveScene::save(TrackedPhoto& photo) const {
    photo->saveWithBackupToFolder(way.keepsBackups ? std::optional(home / "backup") : std::nullopt);
}

std::vector<FileCall> SaveScene::callsOfSave() const {
    layOut();
    TrackedPhoto photo = openAndEdit();
    const FaultWatch watch(home, {});
    save(photo);
    return watch.calls();
}

bool SaveScene::isOld(const Original& original) const {
    return contentOf(original.file) == original.content &&
           fs::exists(original.file) != original.content.empty();
}

bool SaveScene::isNew(const Original& original, const KTPhoto& photo) const {
    const KTTagDictionary saved = *photo.source(original.kind).saved;
    const bool isMade = original.content.empty(); // a first sidecar takes over what the image holds
    return original.isTarget && saved.valueForKey("XMP:Title") == KTValue(kTitle) &&
           saved.valueForKey("XMP:Label") == KTValue("Red") &&
           (!isMade || saved.valueForKey("XMP:Software").description() == "9") &&
           keptPartOf(contentOf(original.file), original.kind) == keptPartOf(original.content, original.kind);
}

SaveScene::Outcome SaveScene::outcome() const {
    Outcome outcome = {true, true};
    std::shared_ptr<KTPhoto> photo;
    for (const Original& original : originals) {
        if (isOld(original)) {
            outcome.isSaved = outcome.isSaved && !original.isTarget;
            continue;
        }
        if (!photo)
            photo = KTPhoto::initWithFile(imageFile());
        outcome.isWhole = outcome.isWhole && photo && photo->isValid() && isNew(original, *photo);
    }
    outcome.isSaved = outcome.isSaved && outcome.isWhole;
    return outcome;
}

bool SaveScene::keptRightsAndDates() const {
    return std::ranges::all_of(originals, [this](const Original& each) {
        return !each.isTarget || each.content.empty() ||
               (fs::status(each.file).permissions() == fs::perms(kPermissions) &&
                (!hasAttributes || attribute(each.file, kRating) == "5") &&
                (!way.setsDates || each.kind != KTMetadataSource::Image ||
                 fs::last_write_time(each.file) == modificationDate()));
    });
}

bool SaveScene::hasWholeBackups() const {
    return std::ranges::all_of(fs::directory_iterator(home / "backup"), [this](const auto& entry) {
        if (KTItemReplacement::isReplacementFolder(entry.path().filename())) // not a backup yet
            return true;
        const std::string content = contentOf(entry.path());
        return !content.empty() &&
               std::ranges::find(originals, content, &Original::content) != originals.end();
    });
}

std::vector<fs::path> SaveScene::foldersLeftBehind() const {
    std::vector<fs::path> result;
    for (const fs::path& folder : {home, home / "backup"})
        for (const auto& entry : fs::directory_iterator(folder))
            if (KTItemReplacement::isReplacementFolder(entry.path().filename()))
                result.push_back(entry.path());
    return result;
}
