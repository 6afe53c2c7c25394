#include "collection/KTPhotoManagerToolbarController.h"
#include "collection/KTPhotoOperationWindowController.h"
#include "collection/KTTagDetailsWindowController.h"
#include "collection/PhotoManagerMenuBarController.h"
#include "platform/concurrency/KTMainThread.h"
#include "platform/desktop/KTMediaObject.h"
#include "tests/collection/CollectionFixture.h"

#include <thread>

namespace {

class Controllers : public CollectionFixture {
protected:
    /// Photos without files, at the end of the list.
    KTPhotoManager::Photos insertPhotos(int number) {
        KTPhotoManager::Photos made;
        for (int i = 0; i < number; ++i) {
            made.push_back(KTPhoto::init());
            manager.insertObject(made.back(), manager.photos()->size());
        }
        return made;
    }
    /// What an object announces after changes.
    static KTObservable::Observation recordInto(std::vector<std::string>& events, KTObservable& object) {
        return object.observe([&](const KTChange& change) {
            if (!change.isPrior)
                events.emplace_back(change.key);
        });
    }
    static KTPhotoOperation operation(const char* description, KTPhotoOperation::ResultType result) {
        KTPhotoOperation made;
        made.operationDescription = description;
        made.operationDidSucceed = result != KTPhotoOperation::Failure;
        made.isWarning = result == KTPhotoOperation::Warning;
        return made;
    }
    /// Runs @p call on another thread, while the event loop serves it.
    static void runElsewhere(const std::function<void()>& call) {
        std::atomic<bool> hasEnded = false;
        std::jthread thread([&] {
            call();
            hasEnded = true;
        });
        EXPECT_TRUE(runEventLoopUntil([&] { return hasEnded.load(); }));
    }
    static void runPostedCalls() {
        bool wasRun = false;
        KTPerformOnMainThread([&] { wasRun = true; });
        EXPECT_TRUE(runEventLoopUntil([&] { return wasRun; }));
    }
};

TEST_F(Controllers, TheToolbarCountsPhotos) {
    KTPhotoManagerToolbarController toolbar(manager);
    auto shows = [&](const char* description, bool isEnabled) {
        EXPECT_EQ(toolbar.unsavedPhotosDescription(), description);
        EXPECT_EQ(toolbar.isUnsavedPhotosButtonEnabled(), isEnabled);
        const KTPhotoManagerToolbarController later(manager);
        EXPECT_EQ(later.unsavedPhotosDescription(), description);
        EXPECT_EQ(later.isUnsavedPhotosButtonEnabled(), isEnabled);
    };
    EXPECT_EQ(toolbar.unsavedPhotosButtonTitle(), "Write Changed Tags");
    shows("No loaded photos", false);
    auto photos = photosNamed({"a.jpg"});
    shows("0 photos with unsaved changes, 1 loaded photo", false);
    photos[0]->setValueForKey("caption", "c");
    shows("1 photo with unsaved changes, 1 loaded photo", true);
    photos.push_back(photosNamed({"b.jpg", "c.jpg", "d.jpg", "e.jpg"})[0]);
    photos[1]->setValueForKey("caption", "c");
    shows("2 photos with unsaved changes, 5 loaded photos", true);
    manager.replaceObjectInPhotosAtIndex(0, KTPhoto::init());
    shows("1 photo with unsaved changes, 5 loaded photos", true);

    toolbar.writeUnsavedChanges();
    EXPECT_TRUE(runEventLoopUntil([&] { return !toolbar.isUnsavedPhotosButtonEnabled(); }));
    EXPECT_EQ(photos[1]->savedPropertyWithKey("caption"), KTValue("c"));
    shows("0 photos with unsaved changes, 5 loaded photos", false);
    manager.removePhotos(*manager.photos());
    shows("No loaded photos", false);
}

TEST_F(Controllers, TheToolbarCopiesWhatTheCollectionTells) {
    KTPhotoManagerToolbarController toolbar(manager);
    std::set<std::string> lines;
    auto observation = toolbar.observe([&](const KTChange& change) {
        if (change.key == "importDescription" && !change.isPrior)
            lines.insert(toolbar.importDescription());
    });
    import({makePhoto(folder, "a.jpg"), makePhoto(folder, "b.jpg")});
    EXPECT_TRUE(std::ranges::any_of(lines, [](const auto& line) { return line.ends_with(" of 2"); }));
    EXPECT_EQ(toolbar.importDescription(), manager.importDescription());

    auto item = std::make_shared<KTMediaObject>();
    item->mediaSourceIdentifier = "com.apple.iPhoto";
    EXPECT_FALSE(toolbar.isSyncingWithIPhoto());
    manager.insertObject(KTPhoto::initWithFile(makePhoto(folder, "c.jpg"), {}, item), 0);
    EXPECT_TRUE(toolbar.isSyncingWithIPhoto());
    manager.removeObjectFromPhotosAtIndex(0);
    EXPECT_FALSE(toolbar.isSyncingWithIPhoto());

    bool hasEnded = false;
    manager.importPhotosAtURLs({makePhoto(folder, "d.jpg")}, {.didEnd = [&] { hasEnded = true; }});
    toolbar.cancelImport();
    EXPECT_TRUE(runEventLoopUntil([&] { return hasEnded; }));
    EXPECT_EQ(manager.photos()->size(), 2U);
}

TEST_F(Controllers, TheMenuBarFollowsTheSelectionAndEditsOfItsPhotos) {
    PhotoManagerMenuBarController menus(manager);
    auto flags = [&] {
        return std::string(menus.hasSelectedPhotos() ? "selected" : "") +
               (menus.hasLocationCreated() ? " created" : "") + (menus.hasLocationShown() ? " shown" : "") +
               (menus.hasImageDirection() ? " direction" : "");
    };
    const auto photos = insertPhotos(256);
    KTPhoto &plain = *photos[0], &tagged = *photos[1];
    tagged.setValuesForKeysWithDictionary({{"latitude", 1}, {"longitude", 2}}, "g");
    manager.setSelectedPhotos(photos);
    menus.setup();
    EXPECT_EQ(flags(), "selected created");
    std::vector<std::string> events;
    auto observation = recordInto(events, menus);
    manager.setSelectedPhotoIndexes({0});
    EXPECT_EQ(flags(), "selected");
    tagged.setValueForKey("imageDirection", 3);
    EXPECT_EQ(flags(), "selected") << "of selected photos only";
    EXPECT_EQ(events, std::vector<std::string>{"hasLocationCreated"});
    manager.setSelectedPhotos({photos[0], photos[1], photos[2]});
    EXPECT_EQ(flags(), "selected created direction");

    plain.setValuesForKeysWithDictionary({{"latitudeShown", 1}, {"longitudeShown", 2}}, "s");
    plain.setValuesForKeysWithDictionary({{"latitude", 1}, {"longitude", 2}}, "g");
    EXPECT_EQ(flags(), "selected created shown direction");
    tagged.removeAllGPSValues();
    EXPECT_EQ(flags(), "selected created shown direction") << "another one has it";
    plain.setValueForKey("longitude", KTValue::null());
    plain.setValueForKey("latitudeShown", KTValue::null());
    EXPECT_EQ(flags(), "selected direction");
    runElsewhere([&] {
        plain.setValueForKey("imageDirection", 4);
        tagged.setValueForKey("imageDirection", {});
    });
    runPostedCalls();
    EXPECT_EQ(flags(), "selected direction");
    manager.removePhotos({photos[0]});
    EXPECT_EQ(flags(), "selected");
    manager.removePhotos(photos);
    EXPECT_EQ(flags(), "");
}

TEST_F(Controllers, TheLogIsFilteredAndGrowsInItsPlace) {
    manager.addPhotoOperations({operation("read", KTPhotoOperation::Success)});
    KTPhotoOperationController log(manager);
    auto shown = [&] {
        std::string descriptions;
        for (const KTPhotoOperation* entry : log.arrangedObjects())
            descriptions += entry->operationDescription + " ";
        return descriptions;
    };
    std::vector<std::size_t> inserted;
    auto observation = log.observe([&](const KTChange& change) {
        if (change.key == "arrangedObjects" && !change.isPrior)
            inserted = change.indexes;
    });
    EXPECT_EQ(shown(), "read ");
    manager.addPhotoOperations({operation("warned", KTPhotoOperation::Warning)});
    EXPECT_EQ(inserted, std::vector<std::size_t>{1});
    EXPECT_EQ(shown(), "read warned ");
    log.setOperationTypeMask(6);
    EXPECT_EQ(shown(), "warned ");
    const KTPhotoOperation* first = log.arrangedObjects()[0];
    KTPhotoManager::Operations many(1000, operation("saved", KTPhotoOperation::Success));
    many.push_back(operation("failed", KTPhotoOperation::Failure));
    manager.addPhotoOperations(many);
    EXPECT_EQ(inserted, std::vector<std::size_t>{1});
    EXPECT_EQ(shown(), "warned failed ");
    EXPECT_EQ(log.arrangedObjects()[0], first);
    log.setOperationTypeMask(4);
    EXPECT_EQ(shown(), "failed ");
    log.setOperationTypeMask(0);
    EXPECT_EQ(shown(), "");
    log.setOperationTypeMask(7);
    EXPECT_EQ(log.arrangedObjects().size(), 1003U);
}

TEST_F(Controllers, TheLogComesForwardWithFailures) {
    auto window = std::make_unique<KTPhotoOperationWindowController>(manager);
    const auto masks = [&] {
        std::vector<unsigned> result;
        for (unsigned index : {0U, 1U, 2U, 7U}) {
            window->setSelectedFilterIndex(index);
            result.push_back(window->photoOperationController().operationTypeMask());
        }
        return result;
    };
    EXPECT_EQ(masks(), (std::vector<unsigned>{7, 6, 4, 4}));
    EXPECT_EQ(window->filterPopupTitles()[1], "Errors & warnings");
    window->setSelectedFilterIndex(0);
    window->setup();
    manager.addPhotoOperations({operation("a", KTPhotoOperation::Warning)});
    runPostedCalls();
    EXPECT_FALSE(window->isWindowVisible());
    EXPECT_EQ(window->selectedFilterIndex(), 0U);

    std::vector<std::string> events;
    auto observation = recordInto(events, *window);
    for (int time = 0; time < 2; ++time) {
        manager.addPhotoOperations(
            {operation("b", KTPhotoOperation::Failure), operation("c", KTPhotoOperation::Success)});
        EXPECT_TRUE(events.empty()) << "not at once";
        runPostedCalls();
        EXPECT_EQ(std::exchange(events, {}),
                  (std::vector<std::string>{"isWindowVisible", "selectedFilterIndex"}));
        EXPECT_TRUE(window->isWindowVisible());
        EXPECT_EQ(window->photoOperationController().operationTypeMask(), 4U);
    }
    window->tearDown();
    manager.addPhotoOperations({operation("d", KTPhotoOperation::Failure)});
    runPostedCalls();
    EXPECT_TRUE(events.empty());
    EXPECT_EQ(window->photoOperationController().arrangedObjects().size(), 3U);

    window->setup();
    manager.addPhotoOperations({operation("e", KTPhotoOperation::Failure)});
    window.reset();
    runPostedCalls();
}

class TagDetails : public Controllers {
protected:
    std::string valueOf(std::string_view key) {
        for (const auto& row : details.rows())
            if (row.key == key)
                return row.value;
        return "none";
    }
    /// Whether the rows were announced, once, after what was done.
    bool isAnnounced() {
        runPostedCalls();
        return std::exchange(announced, 0) == 1;
    }

    KTTagDetailsWindowController details{manager};
    int announced = 0;
    KTObservable::Observation observation = details.observe([this](const KTChange& change) {
        if (change.key == "rows" && !change.isPrior)
            ++announced;
    });
};

TEST_F(TagDetails, ShowTheChosenDictionaryOfTheSelectedPhotoAsItIsNow) {
    for (const char* name : {"a.jpg", "b.jpg"})
        import({makePhoto(folder, name,
                          {{"XMP:Title", name},
                           { "XMP:Subject",
                             KTValue::listOfTexts({"x", "y"}) }})});
    const auto photo = manager.photos()->front();
    manager.setSelectedPhotos({photo});
    EXPECT_TRUE(details.rows().empty());
    details.setup();
    details.showTagDetailsWindow();
    EXPECT_TRUE(details.isWindowVisible());
    EXPECT_TRUE(isAnnounced());
    EXPECT_EQ(valueOf("XMP:Title"), "a.jpg");
    EXPECT_EQ(valueOf("XMP:Subject"), "x, y");
    EXPECT_TRUE(std::ranges::is_sorted(details.rows(), {}, &KTTagDetailsWindowController::Row::key));
    manager.setSelectedPhotoIndexes({1});
    EXPECT_EQ(valueOf("XMP:Title"), "b.jpg");
    EXPECT_TRUE(isAnnounced());

    details.setMetadataType(1);
    EXPECT_TRUE(details.rows().empty());
    manager.setSelectedPhotos({photo});
    photo->setValueForKey("caption", "new");
    EXPECT_TRUE(isAnnounced()) << "once for all three";
    details.setMetadataSource(KTMetadataSource::Sidecar);
    EXPECT_EQ(valueOf("XMP:Description"), "new");
    EXPECT_TRUE(isAnnounced());
    runElsewhere([&] {
        photo->setValueForKey("caption", "newer");
        photo->setValueForKey("title", KTValue::null());
    });
    runPostedCalls();
    EXPECT_GT(announced, 0);
    EXPECT_EQ(valueOf("XMP:Description"), "newer");
    EXPECT_EQ(valueOf("XMP:Title"), "") << "is to be deleted";
    for (unsigned unknown : {2U, 3U}) {
        details.setMetadataSource(unknown + 1);
        details.setMetadataType(unknown);
    }
    EXPECT_EQ(valueOf("XMP:Description"), "newer");
    details.setMetadataSource(KTMetadataSource::Library);
    EXPECT_EQ(valueOf("XMP:Description"), "none");

    set("defaultXMPSidecarStyle", 0);
    details.setMetadataSource(KTMetadataSource::Image);
    details.setMetadataType(0);
    EXPECT_EQ(valueOf("XMP:Title"), "a.jpg");
    bool isSaved = false;
    manager.savePhotos({photo}, [&] { isSaved = true; });
    EXPECT_TRUE(runEventLoopUntil([&] { return isSaved; }));
    EXPECT_EQ(valueOf("XMP:Title"), "none");
    EXPECT_EQ(valueOf("XMP:Description"), "newer");
    details.tearDown();
    EXPECT_TRUE(details.rows().empty());
}

TEST_F(TagDetails, TellWhereSeveralPhotosDiffer) {
    import({makePhoto(folder, "a.jpg",
                      {{"XMP:Title", "same"},
                       { "XMP:Rating",
                         1 }}),
            makePhoto(folder, "b.jpg",
                      {{"XMP:Title", "same"},
                       {"XMP:Rating", 2},
                       { "XMP:Event",
                         "one's" }}),
            makePhoto(folder, "c.jpg", {{"XMP:Title", "same"}, {"XMP:Rating", 1}, {
                                            "XMP:City",
                                            "another's"
                                        }})});
    details.setup();
    manager.setSelectedPhotos(*manager.photos());
    EXPECT_EQ(valueOf("XMP:Title"), "same");
    for (const char* key : {"XMP:Rating", "XMP:Event", "XMP:City"})
        EXPECT_EQ(valueOf(key), "Multiple Values") << key;
    manager.setSelectedPhotos({manager.photos()->front(), manager.photos()->back()});
    EXPECT_EQ(valueOf("XMP:Rating"), "1");
    EXPECT_EQ(valueOf("XMP:Event"), "none");
    manager.setSelectedPhotos({});
    EXPECT_TRUE(details.rows().empty());
}

} // namespace
