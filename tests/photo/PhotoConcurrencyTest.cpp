#include "tests/photo/PhotoFixture.h"

#include "platform/cartography/KTGeometry.h"
#include "platform/concurrency/KTMainThread.h"
#include "platform/concurrency/KTOperationQueue.h"

#include <QCoreApplication>
#include <random>
#include <thread>

namespace {

class PhotoConcurrency : public PhotoFixture {};

constexpr int kRounds = 10'000;

/// One edit of the kinds that threads make at the same time.
void edit(KTPhoto& photo, std::mt19937& random) {
    const KTValue text = std::to_string(random() % 10);
    const int kind = int(random() % 8);
    if (kind == 0)
        photo.setValuesForKeysWithDictionary({{"latitude", text}, {"longitude", text}, {"title", text}},
                                             "Geotag Photos");
    else if (kind == 1)
        photo.setDateTimeOriginalShift(double(random() % 10));
    else if (kind == 2)
        photo.setDateTimeOriginalTimeZone(KTTimeZone::fixed(int(random() % 3600)));
    else
        photo.setValueForKey(kind % 2 == 0 ? "title" : "caption", text);
}

} // namespace

TEST_F(PhotoConcurrency, ThreadsEditWhileTheMainThreadReadsAndUndoes) {
    auto photo = openWithUndo(makePhoto(folder, "a.jpg", {{"EXIF:DateTimeOriginal", "2014:06:01 12:00:00"}}));
    std::atomic<int> rounds = 0;
    std::atomic<bool> wrongThread = false;
    auto observation = photo->observe([&](const KTChange& change) {
        if (change.key.ends_with("ChangesDictionary") || change.key == "hasUnsavedChanges")
            wrongThread = wrongThread || !KTMainThread::isCurrent();
    });
    KTOperationQueue editors(3);
    for (unsigned seed = 1; seed <= 3; ++seed)
        editors.addOperationWithBlock([&, seed] {
            for (std::mt19937 random(seed); rounds.fetch_add(1) < kRounds;)
                edit(*photo, random);
        });
    std::mt19937 random(4);
    while (editors.operationCount() > 0) {
        switch (random() % 6) {
        case 0:
            undo->undo();
            break;
        case 1:
            undo->redo();
            break;
        case 2:
            edit(*photo, random);
            break;
        default:
            QCoreApplication::processEvents();
            static_cast<void>(photo->dateTimeOriginal());
            static_cast<void>(photo->geometry());
            static_cast<void>(photo->modifiedKeyValues().size());
        }
    }
    editors.waitUntilAllOperationsAreFinished();
    EXPECT_FALSE(wrongThread);

    // Whatever came about, the record agrees with itself; so it does when the way back is gone. (Where the
    // way back leads is open: several threads have set one property at the same time.)
    auto agrees = [&] {
        return photo->isGeotagged() == !photo->geometry()->isEmpty() &&
               photo->hasUnsavedChanges() == !imageChanges(photo).empty() &&
               imageChanges(photo).valueForKey("XMP:Title") == photo->valueForKey("title") &&
               imageChanges(photo).valueForKey("XMP:Description") == photo->valueForKey("caption");
    };
    EXPECT_TRUE(agrees());
    while (undo->undo())
        EXPECT_TRUE(agrees());
}

TEST_F(PhotoConcurrency, EditsDuringASaveStayPending) {
    auto file = makePhoto(folder, "a.jpg", {{"XMP:Title", "old"}, {"XMP:Label", "old"}});
    auto photo = openWithUndo(file);
    photo->setValueForKey("title", "saved");
    photo->setValueForKey("label", "saved");
    // The save's own announcement of the file's write is where the main thread edits meanwhile.
    bool edited = false;
    auto observation = photo->observe([&](const KTChange& change) {
        if (change.key != "photoOperations" || !change.isPrior || std::exchange(edited, true))
            return;
        KTPerformOnMainThreadAndWait([&] {
            photo->setValueForKey("title", "later");
            photo->setValueForKey("label", "old"); // back to what the file held when it was read
        });
    });
    KTOperationQueue saver;
    saver.addOperationWithBlock([&] { photo->saveWithBackupToFolder(std::nullopt); });
    saver.waitUntilAllOperationsAreFinished();
    EXPECT_EQ(tagsOf(file).valueForKey("XMP:Title"), KTValue("saved"));
    EXPECT_EQ(imageChanges(photo).valueForKey("XMP:Title"), KTValue("later"));
    EXPECT_EQ(imageChanges(photo).valueForKey("XMP:Label"), KTValue("old"));
    EXPECT_EQ(imageChanges(photo).size(), 2U);
    EXPECT_TRUE(photo->hasUnsavedChanges());
    photo->saveWithBackupToFolder(std::nullopt);
    EXPECT_EQ(tagsOf(file).valueForKey("XMP:Label"), KTValue("old"));
    EXPECT_FALSE(photo->hasUnsavedChanges());
}

TEST_F(PhotoConcurrency, PhotosAreSavedOnAWorkerWhileTheMainThreadEditsThem) {
    std::vector<TrackedPhoto> photos;
    for (int i = 0; i < 12; ++i)
        photos.push_back(openWithUndo(makePhoto(folder, std::to_string(i) + ".jpg")));
    for (auto& photo : photos)
        photo->setValueForKey("title", "first");
    KTOperationQueue saver;
    for (auto& photo : photos)
        saver.addOperationWithBlock([&photo] { photo->saveWithBackupToFolder(std::nullopt); });
    for (int round = 0; saver.operationCount() > 0; ++round) {
        QCoreApplication::processEvents();
        photos[std::size_t(round) % photos.size()]->setValueForKey("caption", std::to_string(round));
    }
    saver.waitUntilAllOperationsAreFinished();
    for (auto& photo : photos) {
        photo->saveWithBackupToFolder(std::nullopt);
        EXPECT_FALSE(photo->hasUnsavedChanges());
        const KTTagDictionary tags = tagsOf(photo->fileURL());
        EXPECT_EQ(tags.valueForKey("XMP:Title"), KTValue("first"));
        EXPECT_EQ(tags.valueForKey("XMP:Description"), photo->valueForKey("caption"));
    }
}
