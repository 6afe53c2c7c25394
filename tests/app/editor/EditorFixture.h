#pragma once
#include "tests/collection/CollectionFixture.h"

#include "app/editor/KTMetadataEditorViewController.h"
#include "app/editor/KTMetadataFieldArrayViewItem.h"
#include "metadata/KTMetadataFieldManager.h"
#include "platform/common/KTText.h"
#include "platform/concurrency/KTMainThread.h"
#include "platform/defaults/KTComboBoxStoreController.h"

/// The metadata editor over a collection, with a store of typed texts of its own.
class EditorFixture : public CollectionFixture {
protected:
    std::shared_ptr<KTPhoto> add(const char* name, const KTTagDictionary& tags = {}) {
        auto photo = KTPhoto::initWithFile(makePhoto(folder, name, tags));
        manager.addNewPhoto(photo);
        return photo;
    }
    void select(KTPhotoManager::Photos photos) { manager.setSelectedPhotos(photos); }
    void selectAll() { manager.setSelectedPhotos(*manager.photos()); }
    /// Until what was posted to the main thread is done.
    static void turn() {
        bool isDone = false;
        KTPerformOnMainThread([&] { isDone = true; });
        EXPECT_TRUE(runEventLoopUntil([&] { return isDone; }));
    }
    template<class Item = KTMetadataFieldArrayViewItem>
    std::unique_ptr<Item> item(const char* key) {
        auto field = catalogue.metadataFieldForKey(key)->copy();
        auto made = editor.arrayViewItemForObject(group, field);
        return std::unique_ptr<Item>(dynamic_cast<Item*>(made.release()));
    }
    static std::string textOf(const KTPhoto& photo, const char* key) {
        const KTValue value = photo.valueForKey(key);
        return value.list() ? KTJoin(value.texts(), " ") : value.description();
    }

    KTMetadataFieldManager& catalogue = KTMetadataFieldManager::sharedMetadataFieldManager();
    KTComboBoxStoreController store{folder / "cache" / "values.sql"};
    KTMetadataEditorViewController editor{manager, catalogue, store};
    KTMetadataGroup group;
};
