#include "tests/photo/PhotoFixture.h"

#include "platform/concurrency/KTLatch.h"
#include "platform/concurrency/KTMainThread.h"
#include "platform/desktop/KTFileCoordinator.h"

#include <QCoreApplication>
#include <sys/stat.h>
#include <thread>

namespace {

/// Files that change between the edits of a photo, its saves and its undos.
class PhotoRefresh : public PhotoFixture {
protected:
    void SetUp() override {
        PhotoFixture::SetUp();
        file = makePhoto(folder, "a.jpg", {{"XMP:Title", "A"}, {"XMP:Label", "A"}});
    }
    static void change(const std::filesystem::path& target, const KTTagDictionary& tags) {
        ASSERT_TRUE(
            KTExifTool::sharedExifTool().setValuesForKeysWithDictionary(tags, target).operationDidSucceed);
    }
    void makeSidecar(const KTTagDictionary& tags) const {
        KTExifTool::sharedExifTool().setValuesForKeysWithDictionary(tags, folder / "a.xmp",
                                                                    makePhoto(folder, "empty.jpg"));
    }
    static std::string titleOf(const std::filesystem::path& target) {
        return tagsOf(target).valueForKey("XMP:Title").description();
    }

    std::filesystem::path file;
};

} // namespace

TEST_F(PhotoRefresh, UndoingAnEditThatWasWrittenIsAnEditForTheFileThatHoldsIt) {
    makeSidecar({{"XMP:Title", "A"}});
    auto photo = openWithUndo(file);
    photo->setValueForKey("title", "C");
    photo->saveWithBackupToFolder(std::nullopt); // into the image alone
    setStyle(3);
    ASSERT_TRUE(undo->undo());
    EXPECT_EQ(photo->valueForKey("title"), KTValue("A"));
    EXPECT_TRUE(photo->hasUnsavedChanges()) << "the image holds C";
    photo->saveWithBackupToFolder(std::nullopt);
    EXPECT_EQ(titleOf(file) + titleOf(folder / "a.xmp"), "AA");
    EXPECT_FALSE(photo->hasUnsavedChanges());
}

TEST_F(PhotoRefresh, UndoingAfterASaveOfWhichHalfFailedBringsBothFilesBack) {
    setStyle(3);
    makeSidecar({{"XMP:Title", "A"}});
    auto photo = openWithUndo(file);
    photo->setValueForKey("title", "C");
    std::filesystem::rename(folder / "a.xmp", folder / "kept");
    folder.file("a.xmp", std::string_view("\1\2\3\4\0\6", 6));
    photo->saveWithBackupToFolder(std::nullopt);
    std::filesystem::rename(folder / "kept", folder / "a.xmp");
    ASSERT_EQ(titleOf(file) + titleOf(folder / "a.xmp"), "CA");
    ASSERT_TRUE(undo->undo());
    photo->saveWithBackupToFolder(std::nullopt);
    EXPECT_EQ(titleOf(file) + titleOf(folder / "a.xmp"), "AA");
    EXPECT_FALSE(photo->hasUnsavedChanges());
}

TEST_F(PhotoRefresh, AFieldOnceEditedAndSavedFollowsItsFileAgain) {
    auto photo = open(file);
    photo->setValueForKey("title", "ours");
    photo->saveWithBackupToFolder(std::nullopt);
    change(file, {{"XMP:Title", "theirs"}});
    photo->setValueForKey("caption", "c");
    photo->saveWithBackupToFolder(std::nullopt);
    EXPECT_EQ(titleOf(file), "theirs");
    EXPECT_EQ(photo->valueForKey("title"), KTValue("theirs"));
    EXPECT_TRUE(photo->modifiedKeyValues().empty());
}

TEST_F(PhotoRefresh, WhatIsTypedWhileASaveLooksAtAChangedFileIsNotLost) {
    auto photo = openWithUndo(file);
    photo->setValueForKey("title", "ours");
    change(file, {{"XMP:Rating", 4}});
    KTLatch held, go; // keep the save from reading
    std::jthread holder([&] {
        static_cast<void>(KTFileCoordinator().coordinateWritingItemAtURL(file, [&] {
            held.signal();
            go.waitWithoutServing();
            return std::optional<std::string>();
        }));
    });
    held.wait();
    KTOperationQueue saver;
    saver.addOperationWithBlock([&] { photo->saveWithBackupToFolder(std::nullopt); });
    while (!photo->valueForKey("metadataDate").isSomething()) // the save has begun
        QCoreApplication::processEvents();
    photo->setValueForKey("label", "typed");
    go.signal();
    saver.waitUntilAllOperationsAreFinished();
    photo->saveWithBackupToFolder(std::nullopt);
    EXPECT_EQ(tagsOf(file).valueForKey("XMP:Label"), KTValue("typed"));
    EXPECT_FALSE(photo->hasUnsavedChanges());
}

TEST_F(PhotoRefresh, AnEditThatIsNotRecordedYetIsNotTakenForTheFilesValue) {
    const auto opened = KTPhoto::initWithFile(file);
    KTLatch stored, go;
    std::atomic<bool> once = false;
    auto observation = opened->observe([&](const KTChange& heard) {
        if (heard.key != "label" || heard.isPrior || KTMainThread::isCurrent() || once.exchange(true))
            return;
        stored.signal();
        go.waitWithoutServing();
    });
    TrackedPhoto photo(opened); // hears of the edit after the observer that holds it up
    photo->setValueForKey("title", "ours");
    change(file, {{"XMP:Rating", 4}});
    KTOperationQueue editor;
    editor.addOperationWithBlock([&] { photo->setValueForKey("label", "worker"); });
    stored.wait();
    photo->saveWithBackupToFolder(std::nullopt);
    go.signal();
    editor.waitUntilAllOperationsAreFinished();
    EXPECT_EQ(photo->valueForKey("label"), KTValue("worker"));
    EXPECT_TRUE(photo->hasUnsavedChanges());
    EXPECT_EQ(photo->valueForKey("rating").description(), "4");
}

TEST_F(PhotoRefresh, WhatASidecarCannotClearShowsAgainAndIsSaid) {
    std::filesystem::rename(file, folder / "a.nef"); // a JPEG that is treated as a raw file
    makeSidecar({{"XMP:Title", "S"}});
    auto photo = open(folder / "a.nef");
    photo->setValueForKey("title", {});
    EXPECT_TRUE(photo->hasUnsavedChanges());
    photo->saveWithBackupToFolder(std::nullopt);
    EXPECT_EQ(photo->valueForKey("title"), KTValue("A"));
    EXPECT_EQ(photo->lastPhotoOperation()->resultType(), KTPhotoOperation::Warning);
    EXPECT_EQ(photo->lastPhotoOperation()->resultDescription(),
              "The image file still holds what was cleared: Title");
}

TEST_F(PhotoRefresh, UndoingAClearingThatTheFirstSidecarCouldNotHoldLeavesNothingUnsaved) {
    setStyle(2);
    auto photo = openWithUndo(
        makePhoto(folder, "b.jpg", {{"EXIF:GPSDateStamp", "2014:06:01"}, {"EXIF:GPSTimeStamp", "09:59:59"}}));
    const KTValue date = photo->valueForKey("gpsDateTime");
    ASSERT_TRUE(date.isSomething());
    photo->setValueForKey("gpsDateTime", {});
    photo->saveWithBackupToFolder(std::nullopt);
    ASSERT_FALSE(tagsOf(folder / "b.xmp").find("XMP:GPSDateTime"));
    ASSERT_EQ(photo->valueForKey("gpsDateTime"), date) << "that of the image shows again";
    ASSERT_FALSE(photo->hasUnsavedChanges());
    ASSERT_TRUE(undo->undo());
    EXPECT_EQ(photo->valueForKey("gpsDateTime"), date);
    EXPECT_FALSE(photo->hasUnsavedChanges());
}

TEST_F(PhotoRefresh, WhatFollowsFromAnEditedTagIsShownAfterTheSave) {
    auto dated = open(makePhoto(folder, "b.jpg", {{"EXIF:CreateDate", "2014:06:01 12:00:00"}}));
    dated->setDateTimeDigitizedComponents(KTDateComponents::dateComponentsWithString("2015:01:01 00:00:00"));
    dated->saveWithBackupToFolder(std::nullopt);
    EXPECT_EQ(dated->valueForKey("dateTimeOriginalComponents").description(), "2015:01:01 00:00:00")
        << "the original date is the digitized one where there is none";
    EXPECT_TRUE(dated->modifiedKeyValues().empty());
    EXPECT_EQ(dated->source(KTMetadataSource::Image).saved->valueForKey("File:Directory").description(),
              folder.path().string());
}

TEST_F(PhotoRefresh, AFileThatIsNoFileAnyMoreFailsTheSave) {
    auto photo = open(file);
    photo->setValueForKey("title", "t");
    std::filesystem::remove(file);
    photo->saveWithBackupToFolder(std::nullopt);
    EXPECT_EQ(photo->lastPhotoOperation()->operationDescription, "Read from primary file URL.");
    EXPECT_TRUE(photo->hasUnsavedChanges());
    ASSERT_EQ(::mkfifo(file.c_str(), 0600), 0); // must not keep the save waiting
    photo->saveWithBackupToFolder(std::nullopt);
    EXPECT_EQ(photo->lastPhotoOperation()->resultType(), KTPhotoOperation::Failure);
    EXPECT_TRUE(photo->valueForKey("metadataDate").isAbsent());
}
