#include "photo/KTPhotoSaveStep.h"

#include "photo/KTPhotoChangeTracker.h"
#include "platform/concurrency/KTOperationQueue.h"
#include "platform/defaults/KTUserDefaults.h"
#include "tests/support/TestPhotos.h"

#include <gtest/gtest.h>

namespace {

/// Photos with a title to be written; so many that a bridge of its own proves them.
class PhotoSaveStep : public testing::Test {
protected:
    PhotoSaveStep() {
        KTUserDefaults::useThrowAwayDomain();
        for (int i = 0; i < 24; ++i) {
            const std::string number = std::to_string(i);
            photos.push_back(KTPhoto::initWithFile(makePhoto(folder, number + ".jpg")));
            trackers.emplace_back(*photos.back());
            photos.back()->setValueForKey("title", "Photo " + number);
        }
    }
    using Steps = std::vector<std::shared_ptr<KTOperation>>;

    Steps steps(const std::optional<std::filesystem::path>& backups = {}) {
        Steps made = KTPhotoSaveStep::stepsForPhotos(photos, backups);
        for (std::size_t i = 1; i < made.size(); ++i)
            observations.push_back(made[i]->observe([this, i](const KTChange& change) {
                endedEarly += !change.isPrior && photos[i - 1]->hasUnsavedChanges();
            }));
        return made;
    }
    static void run(Steps steps) {
        KTOperationQueue queue(KTPhotoSaveStep::kOverlapping);
        std::erase(steps, nullptr);
        queue.addOperations(std::move(steps));
        queue.waitUntilAllOperationsAreFinished();
    }

    TemporaryFolder folder;
    KTPhotoSaveStep::Photos photos;
    std::list<KTPhotoChangeTracker> trackers;
    std::vector<KTObservable::Observation> observations;
    std::atomic<int> endedEarly = 0; // saves that ended while the one before had not
};

} // namespace

TEST_F(PhotoSaveStep, SavesEveryPhotoAndEndsInOrder) {
    const TemporaryFolder backups;
    run(steps(backups.path()));
    EXPECT_EQ(endedEarly, 0);
    for (std::size_t i = 0; i < photos.size(); ++i) {
        EXPECT_FALSE(photos[i]->hasUnsavedChanges());
        EXPECT_EQ(tagsOf(photos[i]->fileURL()).valueForKey("XMP:Title").description(),
                  "Photo " + std::to_string(i));
        EXPECT_FALSE(tagsOf(backups / photos[i]->filename()).find("XMP:Title")) << "no copy of the old file";
    }
}

TEST_F(PhotoSaveStep, ADroppedOrCancelledSaveKeepsNobodyWaiting) {
    Steps made = steps();
    made[0].reset();
    made[5].reset();
    made[6]->cancel();
    run(std::move(made));
    for (std::size_t i = 0; i < photos.size(); ++i)
        EXPECT_EQ(photos[i]->hasUnsavedChanges(), i == 0 || i == 5 || i == 6);
}

TEST_F(PhotoSaveStep, WritesNoPhotoAfterItWasStopped) {
    Steps made = steps();
    KTOperationQueue queue(KTPhotoSaveStep::kOverlapping);
    const auto observation = made[2]->observe([&](const KTChange&) { queue.cancelAllOperations(); });
    queue.addOperations(std::move(made));
    queue.waitUntilAllOperationsAreFinished();
    const auto saved =
        std::ranges::count_if(photos, [](const auto& photo) { return !photo->hasUnsavedChanges(); });
    EXPECT_GE(saved, 3);
    EXPECT_LT(saved, 3 + static_cast<int>(KTPhotoSaveStep::kOverlapping));
    for (const auto& photo : photos)
        EXPECT_EQ(tagsOf(photo->fileURL()).find("XMP:Title") == nullptr, photo->hasUnsavedChanges());
}

TEST_F(PhotoSaveStep, WhatCannotBeSavedEndsItsOwnSaveAlone) {
    std::filesystem::remove(photos[3]->fileURL());
    run(KTPhotoSaveStep::stepsForPhotos(photos, std::nullopt));
    for (std::size_t i = 0; i < photos.size(); ++i)
        EXPECT_EQ(photos[i]->hasUnsavedChanges(), i == 3);
}
