#pragma once
#include "photo/KTPhotoChangeTracker.h"
#include "platform/defaults/KTUserDefaults.h"
#include "platform/undo/KTUndoManager.h"
#include "tests/support/TestPhotos.h"

#include <gtest/gtest.h>

/// A photo whose edits are recorded, as a collection would do it.
struct TrackedPhoto {
    explicit TrackedPhoto(std::shared_ptr<KTPhoto> opened) : photo(std::move(opened)) {
        if (photo)
            tracker = std::make_unique<KTPhotoChangeTracker>(*photo);
    }
    KTPhoto* operator->() const { return photo.get(); }
    KTPhoto& operator*() const { return *photo; }

    std::shared_ptr<KTPhoto> photo;
    std::unique_ptr<KTPhotoChangeTracker> tracker;
};

class PhotoFixture : public testing::Test {
protected:
    void SetUp() override { KTUserDefaults::useThrowAwayDomain(); }

    static void set(const char* key, const KTValue& value) {
        KTUserDefaults::standardUserDefaults().setValue(key, value);
    }
    static void setStyle(int style) { set("defaultXMPSidecarStyle", style); }
    static TrackedPhoto open(const std::filesystem::path& file) {
        return TrackedPhoto(KTPhoto::initWithFile(file));
    }
    /// The same with an undo manager.
    TrackedPhoto openWithUndo(const std::filesystem::path& file) {
        TrackedPhoto photo = open(file);
        photo->setUndoManager(undo);
        photo->setUndoQueue(queue);
        return photo;
    }
    static KTTagDictionary imageChanges(const TrackedPhoto& photo) {
        return photo->source(KTMetadataSource::Image).changes;
    }
    static KTTagDictionary sidecarChanges(const TrackedPhoto& photo) {
        return photo->source(KTMetadataSource::Sidecar).changes;
    }
    /// The last operation of that name in the photo's log; a fresh one when there is none.
    static KTPhotoOperation operation(const TrackedPhoto& photo, std::string_view description) {
        KTPhotoOperation result;
        for (const KTPhotoOperation& entry : photo->photoOperations())
            if (entry.operationDescription == description)
                result = entry;
        return result;
    }
    static KTPhotoOperation lastWrite(const TrackedPhoto& photo) {
        return operation(photo, "Write metadata to file");
    }

    TemporaryFolder folder;
    std::shared_ptr<KTSerialQueue> queue =
        std::make_shared<KTSerialQueue>("com.Brightfold.UndoQueue", KTSerialQueue::Kind::Announcing);
    std::shared_ptr<KTUndoManager> undo = std::make_shared<KTUndoManager>(queue);
};
