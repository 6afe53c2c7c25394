#pragma once
#include "collection/KTBatchOperationController.h"
#include "collection/KTPhotoManager.h"
#include "platform/defaults/KTUserDefaults.h"
#include "platform/undo/KTUndoManager.h"
#include "tests/support/EventLoop.h"
#include "tests/support/TestPhotos.h"

#include <gtest/gtest.h>

/// A collection with its undo manager and batch runner.
class CollectionFixture : public testing::Test {
protected:
    void SetUp() override {
        KTUserDefaults::useThrowAwayDomain();
        manager.setUndoManager(undo, queue);
        manager.setBatchOperationController(&batches);
    }

    static void set(const char* key, const KTValue& value) {
        KTUserDefaults::standardUserDefaults().setValue(key, value);
    }
    /// Imports and waits for the end.
    std::vector<std::string> import(const std::vector<std::filesystem::path>& files) {
        bool hasEnded = false;
        std::vector<std::string> problems;
        manager.importPhotosAtURLs(
            files, {.didList = [&](std::size_t, const std::vector<std::string>& texts) { problems = texts; },
                    .didEnd = [&] { hasEnded = true; }});
        EXPECT_TRUE(runEventLoopUntil([&] { return hasEnded && !manager.importInProgress(); }));
        return problems;
    }
    KTPhotoManager::Photos photosNamed(std::initializer_list<const char*> names) {
        KTPhotoManager::Photos made;
        for (const char* name : names) {
            made.push_back(KTPhoto::initWithFile(makePhoto(folder, name)));
            manager.addNewPhoto(made.back());
        }
        return made;
    }
    static std::string namesOf(const KTPhotoManager::Snapshot& photos) {
        std::string names;
        for (const auto& photo : *photos)
            names += (names.empty() ? "" : " ") + photo->filename();
        return names;
    }

    TemporaryFolder folder;
    std::shared_ptr<KTSerialQueue> queue =
        std::make_shared<KTSerialQueue>("com.Brightfold.UndoQueue", KTSerialQueue::Kind::Announcing);
    std::shared_ptr<KTUndoManager> undo = std::make_shared<KTUndoManager>(queue);
    KTBatchOperationController batches{undo};
    KTPhotoManager manager;
};
