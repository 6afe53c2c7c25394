#include "collection/InstallationCheck.h"

#include "metadata/KTExifTool.h"
#include "platform/common/KTLocalizedString.h"
#include "platform/common/KTText.h"
#include "platform/defaults/KTUserDefaults.h"
#include "platform/desktop/KTFileOperations.h"
#include "platform/desktop/KTItemReplacement.h"
#include "platform/desktop/KTResources.h"
#include "platform/desktop/KTWriteNote.h"
#include "platform/gazetteer/KTOfflineReverseGeocoder.h"
#include "platform/tracklibrary/KTTrackStore.h"

#include <QStandardPaths>
#include <cstdlib>
#include <sys/xattr.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

using enum InstallationFinding::Kind;
using Finding = InstallationFinding;
using Findings = std::vector<Finding>;

constexpr std::uintmax_t kLittleSpace = 200'000'000; // bytes: some large raw files and their new versions

std::string filledText(const std::string& format, std::initializer_list<std::string> arguments) {
    return KTStringWithFormat(format, arguments);
}

/// A folder of its own below the system's temporary one, removed at the end.
struct Workshop {
    Workshop() {
        std::string pattern = (fs::temp_directory_path() / "waymark-XXXXXX").string();
        if (::mkdtemp(pattern.data()) != nullptr)
            folder = pattern;
    }
    ~Workshop() {
        std::error_code error;
        if (!folder.empty())
            fs::remove_all(folder, error);
    }
    fs::path folder;
};

/// Why a picture cannot be written and read back; nothing when it can.
std::optional<std::string> problemOfWriting() {
    const Workshop workshop;
    const fs::path picture = workshop.folder / "picture.jpg";
    if (auto failure = KTCopyItem(KTResourcePath("demo/01.jpg"), picture))
        return failure;
    const std::string title = "Waymark";
    KTTagDictionary changes, read;
    changes.set("XMP:Title", title);
    KTExifTool& exifTool = KTExifTool::sharedExifTool();
    const KTPhotoOperation written = exifTool.setValuesForKeysWithDictionary(changes, picture);
    if (!written.operationDidSucceed)
        return written.resultDescription();
    const KTPhotoOperation checked = exifTool.extractAllKeysIntoDictionary(read, picture);
    if (!checked.operationDidSucceed)
        return checked.resultDescription();
    if (read.valueForKey("XMP:Title").description() != title)
        return KTLocalizedString("what was written did not come back");
    return std::nullopt;
}

Finding exifToolFinding() {
    const std::string subject = "Image::ExifTool", folder = KTExifTool::usedLibraryFolder().string();
    const std::string advice =
        KTLocalizedString("Install the package libimage-exiftool-perl, or name a folder "
                          "that holds Image/ExifTool.pm with --exiftool.");
    const KTValue version = KTExifTool::sharedExifTool().libraryVersion();
    if (!version.isSomething())
        return {subject, Failure, filledText(KTLocalizedString("cannot be loaded from %@"), {folder}),
                advice};
    if (const auto problem = problemOfWriting())
        return {
            subject, Failure,
            filledText(KTLocalizedString("%@ cannot write a picture: %@"), {version.description(), *problem}),
            advice};
    return {subject,
            Fine,
            filledText(KTLocalizedString("%@ from %@ writes and reads a picture"),
                       {version.description(), folder}),
            {}};
}

Finding dataFinding() {
    const std::string subject = KTLocalizedString("Data of the program");
    for (const char* name : {"basemap/map.dat", "gazetteer/places.dat", "geomagnetism"})
        if (const fs::path file = KTResourcePath(fs::path("data") / name); ::access(file.c_str(), R_OK) != 0)
            return {subject, Failure, filledText(KTLocalizedString("%@ is missing"), {file.string()}),
                    KTLocalizedString("Install Waymark again.")};
    KTOfflineReverseGeocoder geocoder;
    const KTPlaceAnswer answer = geocoder.placeAtLatitude(46.05108, 14.50513, {});
    if (answer.place.empty())
        return {subject, Failure, answer.error.value_or(KTLocalizedString("no place names are found")),
                KTLocalizedString("Install Waymark again.")};
    return {subject, Fine, KTLocalizedString("map, place names and magnetic field are there"), {}};
}

Finding trackLibraryFinding(const fs::path& file) {
    const std::string subject = KTLocalizedString("Track library");
    std::error_code error;
    if (file == ":memory:" || !fs::exists(file, error))
        return {subject, Fine, KTLocalizedString("there is none yet"), {}};
    const KTTrackStore::Opened opened = KTTrackStore::open(file);
    if (!opened.store)
        return {subject, Failure, opened.error,
                filledText(KTLocalizedString("Move %@ away and import your tracks again."), {file.string()})};
    return {subject,
            Fine,
            KTLocalizedCount("1 track in it", "%d tracks in it", opened.store->tracks().size()),
            {}};
}

Finding trackFormatsFinding() {
    const std::string subject = KTLocalizedString("Track formats");
    if (QStandardPaths::findExecutable("gpsbabel").isEmpty())
        return {
            subject, Warning, KTLocalizedString("only GPX files can be read"),
            KTLocalizedString("Install the package gpsbabel for NMEA, KML, TCX, FIT, IGC and CSV files.")};
    return {subject, Fine, KTLocalizedString("gpsbabel is there"), {}};
}

Finding settingsFinding() {
    const std::string subject = KTLocalizedString("Settings");
    const fs::path file = KTUserDefaults::userFile();
    std::error_code error;
    if (!fs::exists(file, error))
        return {subject, Fine, KTLocalizedString("the defaults hold"), {}};
    if (!KTUserDefaults(file).isReadable())
        return {subject, Failure, filledText(KTLocalizedString("%@ cannot be read"), {file.string()}),
                KTLocalizedString("Move the file away; then the defaults hold.")};
    return {subject, Fine, file.string(), {}};
}

/// Whether files can be made below @p folder, which need not exist, and whether there is room.
Finding folderFinding(const std::string& subject, const fs::path& folder) {
    std::error_code error;
    fs::path there = folder;
    while (!there.empty() && !fs::exists(there, error) && there != there.parent_path())
        there = there.parent_path();
    if (!fs::is_directory(there, error) || ::access(there.c_str(), W_OK | X_OK) != 0)
        return {subject, Failure,
                filledText(KTLocalizedString("nothing can be written in %@"), {there.string()}),
                KTLocalizedString("Change the permissions of the folder (chmod u+rwx), or its owner.")};
    const fs::space_info space = fs::space(there, error);
    const std::string room = std::to_string(space.available / 1'000'000);
    if (!error && space.available < kLittleSpace)
        return {subject, Warning,
                filledText(KTLocalizedString("only %@ MB are free for %@"), {room, folder.string()}),
                KTLocalizedString("Make room: a save needs as much as the photo takes, once more.")};
    return {subject, Fine, filledText(KTLocalizedString("%@, %@ MB free"), {folder.string(), room}), {}};
}

void addStores(Findings& findings) {
    const auto below = [](QStandardPaths::StandardLocation place) {
        return fs::path(QStandardPaths::writableLocation(place).toStdString());
    };
    findings.push_back(folderFinding(KTLocalizedString("Settings folder"),
                                     below(QStandardPaths::GenericConfigLocation) / "waymark"));
    findings.push_back(folderFinding(KTLocalizedString("Data folder"),
                                     below(QStandardPaths::GenericDataLocation) / "waymark"));
    findings.push_back(folderFinding(KTLocalizedString("Cache folder"),
                                     below(QStandardPaths::GenericCacheLocation) / "waymark"));
    findings.push_back(folderFinding(KTLocalizedString("Thumbnails"),
                                     below(QStandardPaths::GenericCacheLocation) / "thumbnails"));
    findings.push_back(folderFinding(KTLocalizedString("Log and notes"), KTStateFolder()));
    const KTUserDefaults& settings = KTUserDefaults::standardUserDefaults();
    if (!settings.boolForKey("defaultShouldBackupWhenWritingToImageFiles"))
        return;
    const std::string subject = KTLocalizedString("Backup folder");
    const fs::path folder = settings.textForKey("defaultBackupPathBookmark");
    std::error_code error;
    if (fs::is_directory(folder, error))
        findings.push_back(folderFinding(subject, folder));
    else
        findings.push_back(
            {subject, Failure, filledText(KTLocalizedString("there is no folder “%@”"), {folder.string()}),
             KTLocalizedString("Choose another one in the preferences, or turn backups off.")});
}

/// Whether photos in @p folder can be replaced by new versions.
Finding photoFolderFinding(const fs::path& folder) {
    const std::string subject = folder.string();
    std::error_code error;
    if (!fs::is_directory(folder, error))
        return {subject, Failure, KTLocalizedString("there is no such folder"), {}};
    const KTItemReplacement replacement(folder / "waymark");
    if (replacement.error())
        return {subject, Failure, *replacement.error(),
                KTLocalizedString(
                    "Photos there can be read, but not saved: change the permissions of the folder.")};
    const fs::path place = replacement.temporaryItem().parent_path();
    if (::setxattr(place.c_str(), "user.waymark.check", "", 0, 0) != 0)
        return {subject, Warning, KTLocalizedString("photos can be saved, but keep no creation date"),
                KTLocalizedString("The file system has no extended attributes. All metadata is safe there.")};
    return folderFinding(subject, folder);
}

} // namespace

std::vector<InstallationFinding> examineInstallation(const fs::path& trackLibrary,
                                                     const std::vector<fs::path>& folders) {
    Findings findings = {exifToolFinding(), dataFinding(), trackFormatsFinding(), settingsFinding(),
                         trackLibraryFinding(trackLibrary)};
    addStores(findings);
    for (const fs::path& folder : folders)
        findings.push_back(photoFolderFinding(folder));
    return findings;
}
