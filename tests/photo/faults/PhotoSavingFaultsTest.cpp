#include "tests/photo/faults/SaveScene.h"
#include "tests/platform/desktop/ChildProcess.h"

#include <cerrno>
#include <csignal>
#include <cstring>
#include <sys/resource.h>

namespace fs = std::filesystem;

// Every system call of a save that can fail is made to fail, one a round. Whatever happens, a photographer
// finds each file as it was or whole and new, and what was not saved is in the log and still to be saved.

namespace {

constexpr SaveScene::Way kImage{}, kImageWithDates{.keepsBackups = true, .setsDates = true},
    kSidecar{.style = 2, .hasSidecar = true, .keepsBackups = true}, kFirstSidecar{.style = 2},
    kBoth{.style = 3, .hasSidecar = true}, kSidecarWhereThereIsOne{.style = 4, .hasSidecar = true},
    kEverything{.style = 3, .hasSidecar = true, .keepsBackups = true, .setsDates = true};

bool isOneOf(std::string_view name, std::initializer_list<std::string_view> names) {
    return std::ranges::find(names, name) != names.end();
}

/// The errors with which a call may fail.
std::vector<int> errorsOf(const FileCall& call) {
    if (call.name == "open")
        return call.changes ? std::vector{ENOSPC, EROFS} : std::vector{EACCES, ENOENT};
    if (isOneOf(call.name, {"write", "setxattr"}))
        return {ENOSPC, EIO};
    if (call.name == "copy_file_range")
        return {ENOSPC, EXDEV};
    if (call.name == "fsetxattr")
        return {ENOSPC, ENOTSUP};
    if (call.name == "fgetxattr")
        return {EIO, ENODATA};
    if (isOneOf(call.name, {"flistxattr", "fremovexattr"}))
        return {EIO, ENOTSUP};
    if (isOneOf(call.name, {"chmod", "fchmod", "fchown", "futimens", "utimensat"}))
        return {EPERM, EIO};
    if (isOneOf(call.name, {"rename", "mkdtemp"}))
        return {EACCES, ENOSPC};
    if (call.name == "fsync")
        return {EIO, EINVAL};
    return {EIO};
}

/// Tidying up after a save, whose outcome is settled.
bool isTidying(const FileCall& call) {
    return isOneOf(call.name, {"openat", "fdopendir", "readdir", "unlinkat", "remove"});
}

/// Whether the failure says only that the disk or the user has no such thing, or comes too late to matter.
bool mustNotHinder(const FileCall& call, int error) {
    if (isOneOf(call.name, {"fchown", "fchmod", "futimens"}))
        return error == EPERM;
    if (isOneOf(call.name, {"flistxattr", "fgetxattr", "fsetxattr", "fremovexattr"}))
        return error == ENOTSUP || error == ENODATA;
    if (call.name == "fsync") // of a folder
        return error == EINVAL && !call.file.ends_with(".jpg") && !call.file.ends_with(".xmp");
    return isTidying(call) || (call.name == "close" && !call.changes) ||
           call.name == "copy_file_range"; // reading and writing stands in for it
}

/// Whether the failure means that something which the save promises did not come about.
bool mustBeNoticed(const SaveScene& scene, const FileCall& call, int error) {
    const bool isSidecarsBackup = call.file.ends_with("/photo.xmp") || !scene.writesImage();
    if (mustNotHinder(call, error) || (call.file.starts_with("/backup") && isSidecarsBackup))
        return false; // the save does not depend on it
    if (call.name == "rename")
        return !call.file.starts_with("/.waymark"); // the library has another way for its own
    return call.changes &&
           isOneOf(call.name, {"mkdtemp", "open", "write", "close", "fsync", "setxattr", "utimensat"});
}

/// One save under a plan, and what became of it.
struct Round {
    Round(
        const SaveScene& scene, const FaultPlan& plan, const std::function<void()>& prepare = [] {}) {
        scene.layOut();
        photo = std::make_unique<TrackedPhoto>(scene.openAndEdit());
        const std::size_t before = (*photo)->photoOperations().size();
        prepare();
        {
            const FaultWatch watch(scene.folder(), plan);
            scene.save(*photo);
            didFire = watch.didFire();
        }
        const auto operations = (*photo)->photoOperations();
        for (const KTPhotoOperation& operation : std::span(operations).subspan(before))
            if (operation.resultType() != KTPhotoOperation::Success)
                troubles.push_back(operation);
        outcome = scene.outcome();
    }
    bool hasFailure() const {
        return std::ranges::any_of(troubles, [](const auto& each) { return !each.operationDidSucceed; });
    }
    /// Whether all that is told concerns what comes after a new file has taken its place.
    bool tellsOnlyOfAftermath() const {
        return std::ranges::all_of(troubles, [](const auto& each) {
            return each.resultDescription().find("may not be on disk yet") != std::string::npos ||
                   isOneOf(each.operationDescription,
                           {"Set the creation date", "Preserve modification date"});
        });
    }
    std::string log() const {
        std::string text;
        for (const KTPhotoOperation& each : troubles)
            text += "\n    " + each.operationDescription + ": " + each.resultDescription();
        return text;
    }

    std::unique_ptr<TrackedPhoto> photo;
    SaveScene::Outcome outcome;
    bool didFire = false;
    std::vector<KTPhotoOperation> troubles;
};

/// What holds whatever has failed.
void expectHonest(const Round& round) {
    const bool isUnsaved = (*round.photo)->hasUnsavedChanges();
    EXPECT_TRUE(round.outcome.isWhole);
    if (!round.outcome.isSaved) {
        EXPECT_TRUE(round.hasFailure()) << "the log does not tell that it was not saved";
        EXPECT_TRUE(isUnsaved);
    } else if (round.hasFailure()) {
        EXPECT_TRUE(round.tellsOnlyOfAftermath());
    } else {
        EXPECT_TRUE(!isUnsaved || !round.troubles.empty());
    }
}

/// Saves again, without faults.
void expectNextSaveSucceeds(const SaveScene& scene, Round& round) {
    scene.save(*round.photo);
    EXPECT_FALSE((*round.photo)->hasUnsavedChanges());
    EXPECT_TRUE(scene.outcome().isSaved);
}

class PhotoSavingFaults : public testing::Test {
protected:
    void SetUp() override { KTUserDefaults::useThrowAwayDomain(); }

    static std::vector<FileCall> callsOf(const SaveScene& scene) {
        static_cast<void>(scene.callsOfSave()); // the first one looks for folders left behind
        const std::vector<FileCall> calls = scene.callsOfSave();
        EXPECT_TRUE(scene.outcome().isSaved && scene.keptRightsAndDates() && scene.hasWholeBackups());
        return calls;
    }

    static void failOnce(const SaveScene& scene, const FileCall& call, std::size_t number, int error) {
        Round round(scene, {FaultPlan::FailOnce, number, error});
        SCOPED_TRACE(call.name + " " + call.file + ", call " + std::to_string(number) + ": " +
                     std::strerror(error) + round.log());
        EXPECT_TRUE(round.didFire);
        expectHonest(round);
        EXPECT_TRUE(round.hasFailure() || !mustBeNoticed(scene, call, error));
        if (mustNotHinder(call, error)) {
            EXPECT_TRUE(round.outcome.isSaved);
        } else if (round.outcome.isSaved && round.troubles.empty()) {
            EXPECT_TRUE(scene.keptRightsAndDates());
        }
        EXPECT_TRUE(scene.hasWholeBackups());
        EXPECT_TRUE(isTidying(call) || scene.foldersLeftBehind().empty());
        expectNextSaveSucceeds(scene, round);
    }

    enum Calls { All, Changing };

    static void failEachCallOnce(const SaveScene::Way& way, Calls which = All) {
        const SaveScene scene(way);
        const std::vector<FileCall> calls = callsOf(scene);
        int rounds = 0;
        for (std::size_t number = 1; number <= calls.size(); ++number) {
            const FileCall& call = calls[number - 1];
            if (which == Changing && !call.changes)
                continue;
            for (const int error : errorsOf(call)) {
                failOnce(scene, call, number, error);
                ++rounds;
            }
        }
        RecordProperty("calls", static_cast<int>(calls.size()));
        RecordProperty("rounds", rounds);
    }
};

TEST_F(PhotoSavingFaults, AreSeenWhoeverCallsAndInTheOrderThatKeepsThemWhole) {
    std::vector<std::string> seen;
    for (const FileCall& call : callsOf(SaveScene(kEverything)))
        seen.push_back(call.name + " " + call.file);
    auto next = seen.begin();
    for (const char* expected : // "fsync " brings the folder itself to disk
         {"copy_file_range /backup/.waymark/photo.jpg", "fsync /backup/.waymark/photo.jpg",
          "rename /backup/photo.jpg", "open /.waymark/photo.jpg", "write /.waymark/photo.jpg",
          "read /.waymark/photo.jpg", "fsync /.waymark/photo.jpg", "rename /photo.jpg", "fsync ",
          "utimensat /photo.jpg", "unlinkat /.waymark/.waymark-owner", "fsync /backup/.waymark/photo.xmp",
          "rename /backup/photo.xmp", "write /.waymark/photo.xmp_exiftool_tmp", "read /.waymark/photo.xmp",
          "fsync /.waymark/photo.xmp", "rename /photo.xmp", "fsync ", "remove /.waymark"}) {
        const auto place = std::find(next, seen.end(), expected);
        EXPECT_NE(place, seen.end()) << expected;
        next = place == seen.end() ? next : place + 1;
    }
}

TEST_F(PhotoSavingFaults, Image) {
    failEachCallOnce(kImage);
}

TEST_F(PhotoSavingFaults, ImageWithBackupAndDates) {
    failEachCallOnce(kImageWithDates);
}

TEST_F(PhotoSavingFaults, Sidecar) {
    failEachCallOnce(kSidecar);
}

TEST_F(PhotoSavingFaults, FirstSidecar) {
    failEachCallOnce(kFirstSidecar);
}

TEST_F(PhotoSavingFaults, ImageAndSidecar) {
    failEachCallOnce(kBoth, Changing);
}

TEST_F(PhotoSavingFaults, SidecarBecauseThereIsOne) {
    failEachCallOnce(kSidecarWhereThereIsOne);
}

TEST_F(PhotoSavingFaults, DiskThatStaysFullOrReadOnly) {
    const SaveScene scene(kEverything);
    const std::vector<FileCall> calls = callsOf(scene);
    for (std::size_t number = 1; number <= calls.size(); ++number) {
        const FileCall& call = calls[number - 1];
        std::vector<FaultPlan> plans;
        if (call.name == "write")
            plans.push_back({FaultPlan::WriteHalf, number, ENOSPC});
        if (isOneOf(call.name, {"mkdtemp", "open", "copy_file_range", "write", "fsync", "fsetxattr"}) &&
            call.changes)
            plans.push_back({FaultPlan::FailFromThen, number, ENOSPC});
        if (isOneOf(call.name, {"mkdtemp", "open", "rename", "utimensat"}) && call.changes)
            plans.push_back({FaultPlan::FailFromThen, number, EROFS});
        for (const FaultPlan& plan : plans) {
            Round round(scene, plan);
            SCOPED_TRACE(call.name + " " + call.file + " and all after it: " + std::strerror(plan.error) +
                         round.log());
            expectHonest(round);
            for (const KTPhotoOperation& each : round.troubles) // but the library has texts of its own
                EXPECT_TRUE(each.operationDescription == "Write metadata to file" ||
                            each.resultDescription().find(std::strerror(plan.error)) != std::string::npos);
            // On a read-only disk nothing can be tidied up.
            EXPECT_TRUE(plan.error == EROFS ||
                        (scene.hasWholeBackups() && scene.foldersLeftBehind().empty()));
            expectNextSaveSucceeds(scene, round);
        }
    }
}

TEST_F(PhotoSavingFaults, FileThatAnotherProgramRemoves) {
    for (const bool isImage : {true, false}) {
        const SaveScene scene(isImage ? kImageWithDates : kSidecar);
        const fs::path victim = isImage ? scene.imageFile() : scene.sidecarFile();
        const std::vector<FileCall> calls = callsOf(scene);
        for (std::size_t number = 1; number <= calls.size(); ++number) {
            const FileCall& call = calls[number - 1];
            if (call.file != "/" + victim.filename().string()) // this one does not notice
                continue;
            Round round(scene, {FaultPlan::RemoveTheFile, number, 0, victim});
            SCOPED_TRACE(call.name + " " + call.file + " finds it removed" + round.log());
            if (!fs::exists(victim)) {
                EXPECT_TRUE(round.hasFailure());
                EXPECT_TRUE((*round.photo)->hasUnsavedChanges());
            } else {
                EXPECT_EQ(KTPhoto::initWithFile(scene.imageFile())->valueForKey("title"), "new title");
            }
            EXPECT_TRUE(scene.foldersLeftBehind().empty());
            if (call.name == "rename")
                break; // what is removed later was saved before
        }
    }
}

TEST_F(PhotoSavingFaults, LimitsOfARealDisk) {
    const SaveScene scene(kBoth);
    rlimit limit = {};
    ASSERT_EQ(::getrlimit(RLIMIT_FSIZE, &limit), 0);
    const auto handler = std::signal(SIGXFSZ, SIG_IGN);
    Round round(scene, {}, [&] {
        const rlimit small = {10'000, limit.rlim_max}; // less than the image has
        ::setrlimit(RLIMIT_FSIZE, &small);
    });
    ::setrlimit(RLIMIT_FSIZE, &limit);
    std::signal(SIGXFSZ, handler);
    EXPECT_FALSE(round.outcome.isSaved);
    expectHonest(round);
    expectNextSaveSucceeds(scene, round);

    scene.layOut();
    fs::permissions(scene.imageFile(), fs::perms(0666));
    fs::permissions(scene.sidecarFile(), fs::perms(0666));
    fs::permissions(scene.folder(), fs::perms(0555));
    EXPECT_TRUE(holdsForOrdinaryUser([&] {
        TrackedPhoto photo = scene.openAndEdit();
        scene.save(photo);
        return photo->hasUnsavedChanges() && !photo->lastPhotoOperation()->operationDidSucceed &&
               scene.outcome().isWhole && !scene.outcome().isSaved;
    }));
    fs::permissions(scene.folder(), fs::perms(0755));
}

/// Whether a process that saves is killed before the call @p number.
bool isKilledSaving(const SaveScene& scene, std::size_t number) {
    const pid_t child = ::fork();
    if (child == 0) {
        TrackedPhoto photo = scene.openAndEdit();
        const FaultWatch watch(scene.folder(), {FaultPlan::KillProcess, number});
        scene.save(photo);
        ::_exit(0);
    }
    int status = 0;
    return child > 0 && ::waitpid(child, &status, 0) == child && WIFSIGNALED(status) &&
           WTERMSIG(status) == SIGKILL;
}

/// Whether a process killed before @p call leaves a folder that does not say whose it is, which is removed
/// only when it is old.
bool leavesNamelessFolder(const FileCall& call) {
    return call.name == "chmod" || call.name == "remove" ||
           (call.file.ends_with("-owner") && isOneOf(call.name, {"open", "write"}));
}

TEST_F(PhotoSavingFaults, ProcessKilled) {
    const std::vector<FileCall> calls = SaveScene(kEverything).callsOfSave();
    for (std::size_t number = 1; number <= calls.size(); ++number) {
        const FileCall& call = calls[number - 1];
        if (!call.changes) // the disk is as before the next one that does
            continue;
        SCOPED_TRACE("before " + call.name + " " + call.file);
        const SaveScene scene(kEverything); // a process looks for such folders but once in each folder
        scene.layOut();
        ASSERT_TRUE(isKilledSaving(scene, number));
        EXPECT_TRUE(scene.outcome().isWhole);
        EXPECT_TRUE(scene.hasWholeBackups());
        if (leavesNamelessFolder(call))
            for (const fs::path& left : scene.foldersLeftBehind())
                fs::last_write_time(left, fs::file_time_type::clock::now() - std::chrono::hours(25));
        TrackedPhoto next = scene.openAndEdit();
        next->setValueForKey("headline", "so that there is something to save");
        scene.save(next);
        EXPECT_FALSE(next->hasUnsavedChanges());
        EXPECT_TRUE(scene.outcome().isSaved);
        EXPECT_TRUE(scene.foldersLeftBehind().empty());
    }
}

} // namespace
