#include "metadata/KTMetadataFieldManager.h"
#include "platform/concurrency/KTMainThread.h"
#include "tests/collection/CollectionFixture.h"

#include <fcntl.h>
#include <regex>
#include <sys/stat.h>
#include <thread>

namespace fs = std::filesystem;

namespace {

class PhotoManager : public CollectionFixture {
protected:
    /// What is announced after changes: "photos+0,1" and the like.
    KTObservable::Observation recordInto(std::vector<std::string>& events) {
        return manager.observe([&](const KTChange& change) {
            if (change.isPrior)
                return;
            std::string event(change.key);
            event += change.kind == KTChange::Kind::Insertion ? "+"
                     : change.kind == KTChange::Kind::Removal ? "-"
                                                              : "";
            for (std::size_t i = 0; i < change.indexes.size(); ++i)
                event += (i == 0 ? "" : ",") + std::to_string(change.indexes[i]);
            events.push_back(event);
        });
    }
};

using Indexes = KTPhotoManager::Indexes;

} // namespace

TEST_F(PhotoManager, ImportsInOrderWithoutDuplicates) {
    fs::create_directories(folder / "a/deep");
    for (const char* name : {"a/IMG_2.JPG", "a/IMG_1.jpg", "a/deep/IMG_0.png", "b.jpg"})
        makePhoto(folder, name);
    folder.file("a/IMG_1.xmp", "<x:xmpmeta xmlns:x='adobe:ns:meta/'></x:xmpmeta>");
    fs::create_symlink(folder / "b.jpg", folder / "c.jpg");
    const auto problems = import(
        {folder / "a", folder / "a/IMG_1.xmp", folder / "c.jpg", folder / "b.jpg", folder / "missing.jpg"});
    EXPECT_EQ(problems.size(), 1U);
    EXPECT_EQ(namesOf(manager.photos()), "IMG_0.png IMG_1.jpg IMG_2.JPG b.jpg");
    EXPECT_EQ((*manager.photos())[3]->fileURL(), fs::canonical(folder / "b.jpg")) << "links are resolved";
    EXPECT_EQ(manager.importMax(), 0U);

    import({folder / "a/IMG_1.jpg", folder / "c.jpg"});
    EXPECT_EQ(manager.photos()->size(), 4U) << "what is loaded is not loaded again";
    manager.importPhotosAtURLs({folder / "a"}); // overlapping
    manager.removePhotos(*manager.photos());
    EXPECT_EQ(manager.photos()->size(), 0U);
    import({folder / "a"});
    EXPECT_TRUE(runEventLoopUntil([&] { return !manager.importInProgress(); }));
    EXPECT_EQ(namesOf(manager.photos()), "IMG_0.png IMG_1.jpg IMG_2.JPG");
}

TEST_F(PhotoManager, ReportsWhatCannotBeRead) {
    makePhoto(folder, "good.jpg");
    folder.file("empty.jpg", "");
    folder.file("garbage.png", std::string_view("\1\2\3\4\0\6", 6));
    makePhoto(folder, "secret.jpg");
    std::vector<std::string> read;
    bool hasEnded = false;
    manager.importPhotosAtURLs(
        {folder.path()},
        {.didList = [&](std::size_t,
                        const auto&) { fs::remove(folder / "secret.jpg"); }, // vanishes meanwhile
         .didRead =
             [&](const fs::path& file, const std::shared_ptr<KTPhoto>& photo, const auto& operations) {
                 read.push_back(file.filename().string() + (photo && photo->isValid() ? " ok" : " failed"));
                 EXPECT_FALSE(operations.empty()) << file;
             },
         .didEnd = [&] { hasEnded = true; }});
    ASSERT_TRUE(runEventLoopUntil([&] { return hasEnded; }));
    EXPECT_EQ(read, (std::vector<std::string>{"empty.jpg failed", "garbage.png failed", "good.jpg ok",
                                              "secret.jpg failed"}));
    EXPECT_EQ(namesOf(manager.photos()), "good.jpg");
    std::size_t failures = 0;
    for (const KTPhotoOperation& operation : manager.photoOperations())
        failures += operation.resultType() == KTPhotoOperation::Failure ? 1 : 0;
    EXPECT_EQ(failures, 3U);
}

TEST_F(PhotoManager, ARawFileGetsASidecarFromTheImportsOfTheApplicationAlone) {
    for (const char* name : {"a", "b", "c"})
        fs::rename(makePhoto(folder, std::string(name) + ".jpg", {{"XMP:Title", name}}),
                   folder / (std::string(name) + (*name == 'b' ? ".CRW" : ".png")));
    import({folder.path()});
    EXPECT_FALSE(fs::exists(folder / "b.xmp"));
    manager.removePhotos(*manager.photos());
    manager.setCreatesSidecarsOfRawFiles(true);
    import({folder.path()});
    EXPECT_EQ(namesOf(manager.photos()), "a.png b.CRW c.png") << "in order, though it is not read ahead";
    for (const auto& photo : *manager.photos())
        EXPECT_EQ(photo->valueForKey("title").description(), photo->filename().substr(0, 1));
    EXPECT_EQ(tagsOf(folder / "b.xmp").valueForKey("XMP:Title"), KTValue("b"));
    EXPECT_FALSE(fs::exists(folder / "a.xmp"));
}

TEST_F(PhotoManager, AnImportShowsItsProgressAndCanBeCancelled) {
    for (int i = 0; i < 40; ++i)
        makePhoto(folder, std::to_string(100 + i) + ".jpg");
    std::vector<std::string> lines;
    const auto observation = manager.observe([&](const KTChange& change) {
        EXPECT_TRUE(KTMainThread::isCurrent());
        if (change.key == "importDescription" && !change.isPrior)
            lines.push_back(manager.importDescription());
        if (change.key == "photos" && !change.isPrior && manager.photos()->size() == 3)
            manager.setShouldCancelImport();
    });
    import({folder.path()});
    EXPECT_GE(manager.photos()->size(), 3U);
    EXPECT_LT(manager.photos()->size(), 40U);
    EXPECT_FALSE(manager.importInProgress());
    EXPECT_EQ(manager.importMax(), 0U);
    ASSERT_FALSE(lines.empty());
    EXPECT_TRUE(std::regex_match(lines.front(), std::regex("Loading image \\d+ of 40"))) << lines.front();

    manager.importPhotosAtURLs({folder.path()});
    manager.setShouldCancelImport(); // also the listing
    bool hasEnded = false;
    manager.importPhotosAtURLs({folder / "139.jpg"}, {.didEnd = [&] { hasEnded = true; }});
    ASSERT_TRUE(runEventLoopUntil([&] { return hasEnded && !manager.importInProgress(); }));
    EXPECT_LT(manager.photos()->size(), 40U);
    EXPECT_TRUE(namesOf(manager.photos()).ends_with("139.jpg"));
}

TEST_F(PhotoManager, KeepsTheSelectionWithItsPhotos) {
    const auto photos = photosNamed({"0.jpg", "1.jpg", "2.jpg", "3.jpg", "4.jpg", "5.jpg"});
    std::vector<std::string> events;
    manager.setSelectedPhotoIndexes({1, 3, 5});
    {
        const auto observation = recordInto(events);
        manager.removeObjectFromPhotosAtIndex(2);
    }
    EXPECT_EQ(events, (std::vector<std::string>{"photos-2", "spatialObjects-2", "selectedPhotoIndexes"}));
    EXPECT_EQ(manager.selectedPhotoIndexes(), (Indexes{1, 2, 4}));
    manager.insertObject(photos[2], 2);
    manager.removePhotos({photos[0], photos[2], photos[0]});
    EXPECT_EQ(manager.selectedPhotoIndexes(), (Indexes{0, 1, 3}));

    manager.setPhotoSortDescriptors({{"filename", false}});
    EXPECT_EQ(namesOf(manager.arrangedPhotos()), "5.jpg 4.jpg 3.jpg 1.jpg");
    EXPECT_EQ(namesOf(manager.selectedPhotos()), "5.jpg 3.jpg 1.jpg");
    manager.insertObject(photos[2], 0);
    EXPECT_EQ(namesOf(manager.arrangedPhotos()), "5.jpg 4.jpg 3.jpg 2.jpg 1.jpg");
    EXPECT_EQ(namesOf(manager.selectedPhotos()), "5.jpg 3.jpg 1.jpg");
    EXPECT_EQ(manager.movePhotos({0, 4}, 3), (Indexes{2, 3}));
    EXPECT_EQ(namesOf(manager.photos()), "4.jpg 3.jpg 5.jpg 1.jpg 2.jpg");
    EXPECT_EQ(namesOf(manager.selectedPhotos()), "5.jpg 1.jpg");
    EXPECT_TRUE(manager.photoSortDescriptors().empty());

    photos[5]->setValueForKey("latitude", 10);
    photos[1]->setValueForKey("latitude", -10);
    EXPECT_EQ(manager.spatialObjectSelectionIndexes(), (Indexes{3, 4}));
    EXPECT_TRUE(manager.addSelectedSpatialObjects({photos[3]}));
    EXPECT_EQ(namesOf(manager.selectedPhotos()), "3.jpg") << "not added to the former selection";
}

TEST_F(PhotoManager, ListsWhatIsUnsavedAndForgetsWhatLeaves) {
    const auto photos = photosNamed({"a.jpg", "b.jpg", "c.jpg"});
    std::vector<std::string> events;
    const auto observation = recordInto(events);
    photos[1]->setValueForKey("caption", "new");
    photos[0]->setValueForKey("caption", "new");
    std::atomic<bool> isEdited = false;
    const std::jthread editor([&] {
        photos[2]->setValueForKey("title", "from another thread");
        isEdited = true;
    });
    ASSERT_TRUE(runEventLoopUntil([&] { return isEdited.load(); }));
    EXPECT_EQ(namesOf(manager.unsavedPhotos()), "b.jpg a.jpg c.jpg");
    photos[0]->setValueForKey("caption", KTValue());
    EXPECT_EQ(namesOf(manager.unsavedPhotos()), "b.jpg c.jpg");
    EXPECT_EQ(events, (std::vector<std::string>{"unsavedPhotos+0", "unsavedPhotos+1", "unsavedPhotos+2",
                                                "unsavedPhotos-1"}));
    EXPECT_TRUE(undo->canUndo());
    manager.removePhotos({photos[0], photos[1], photos[2]});
    EXPECT_TRUE(manager.unsavedPhotos()->empty());
    EXPECT_FALSE(undo->canUndo());
    photos[0]->setValueForKey("caption", "after");
    EXPECT_TRUE(manager.unsavedPhotos()->empty());
}

TEST_F(PhotoManager, SavesAsABatchWithBackups) {
    fs::create_directory(folder / "backups");
    set("defaultShouldBackupWhenWritingToImageFiles", true);
    set("defaultBackupPathBookmark", (folder / "backups").string());
    const auto photos = photosNamed({"a.jpg", "b.jpg", "c.jpg", "d.jpg"});
    for (std::size_t i = 0; i < 3; ++i)
        photos[i]->setValueForKey("caption", "new");
    const std::size_t logged = manager.photoOperations().size();
    int written = 0;
    const auto observation = manager.observe(
        [&](const KTChange& change) { written += change.key == KTPhotoControllerDidWriteUnsavedChanges; });
    bool isSaved = false;
    manager.savePhotos(photos, [&] { isSaved = true; });
    ASSERT_TRUE(runEventLoopUntil([&] { return isSaved; }));
    EXPECT_EQ(written, 1);
    EXPECT_TRUE(manager.unsavedPhotos()->empty());
    std::vector<fs::path> folders(fs::directory_iterator(folder / "backups"), {});
    ASSERT_EQ(folders.size(), 1U);
    EXPECT_TRUE(
        std::regex_match(folders[0].filename().string(), std::regex(R"(20\d\d-\d\d-\d\d_\d\d-\d\d-\d\d)")));
    EXPECT_EQ(std::distance(fs::directory_iterator(folders[0]), {}), 3) << "one of each that was changed";
    const auto added = manager.photoOperationsFrom(logged);
    EXPECT_TRUE(std::ranges::is_sorted(added, {}, &KTPhotoOperation::operationTime));
    const std::size_t perPhoto = added.size() / 3;
    EXPECT_EQ(added.size(), 3 * perPhoto);
    manager.savePhotos(photos);
    EXPECT_EQ(manager.photoOperations().size(), logged + added.size())
        << "nothing to save, nothing logged twice";
}

TEST_F(PhotoManager, GivesEveryPhotoTheAssumedTimeZone) {
    KTMetadataFieldManager& catalogue = KTMetadataFieldManager::sharedMetadataFieldManager();
    catalogue.setAssumedTimeZone(KTTimeZone::fixed(0));
    KTPhotoManager::Photos photos;
    for (int i = 0; i < 300; ++i) {
        photos.push_back(KTPhoto::init());
        photos.back()->setDateTimeOriginal(KTInstantFromMilliseconds(1401616800000));
        photos.back()->setDateTimeOriginalTimeZone(KTTimeZone::fixed(0));
        manager.insertObject(photos.back(), manager.photos()->size());
    }
    auto isTakenInZone = [](const std::shared_ptr<KTPhoto>& photo, int hours) {
        return photo->dateTimeOriginal() == KTInstantFromMilliseconds(1401616800000 - hours * 3'600'000LL);
    };
    catalogue.setAssumedTimeZone(KTTimeZone::fixed(3600));
    catalogue.setAssumedTimeZone(KTTimeZone::fixed(7200));
    manager.finishZoneChange();
    for (const auto& photo : photos)
        EXPECT_TRUE(isTakenInZone(photo, 2));
    std::jthread([&] { catalogue.setAssumedTimeZone(KTTimeZone::fixed(-3600)); }).join();
    EXPECT_TRUE(runEventLoopUntil([&] { return isTakenInZone(photos.back(), -1); }));
    EXPECT_TRUE(isTakenInZone(photos.front(), -1));
    EXPECT_TRUE(manager.unsavedPhotos()->empty() == !photos.front()->hasUnsavedChanges());
    EXPECT_FALSE(undo->canUndo()) << "a zone is no edit";
}
