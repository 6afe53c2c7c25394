#include "collection/KTPhotoController.h"
#include "platform/gazetteer/KTGazetteer.h"
#include "tests/collection/CollectionFixture.h"
#include "tests/support/FakePresenter.h"
#include "tests/support/FakeReverseGeocoder.h"

namespace {

using Photos = KTPhotoController::Photos;
using Indexes = KTPhotoController::Indexes;

const KTDecimal kNorth = *KTDecimal::fromText("47.5"), kEast = *KTDecimal::fromText("7.5");

struct FakePlugins : KTExportPluginList {
    std::vector<std::string> pluginNames() const override { return {"Folder", "Slide show"}; }
    void shouldBeginExportProcessWithPluginAtIndex(std::size_t index) override { begun.push_back(index); }

    std::vector<std::size_t> begun;
};

struct FakeMap : KTPhotoMap {
    void zoomToFitPhotos(const Photos& photos) override { shown = photos; }

    Photos shown;
};

class PhotoController : public CollectionFixture {
protected:
    void SetUp() override {
        CollectionFixture::SetUp();
        controller.setPhotoWindow(&window);
        controller.setBatchOperationController(&batches);
        controller.setup();
    }

    /// A photo of the collection that a photo library knows.
    std::shared_ptr<KTPhoto> addLibraryPhoto(const char* name, KTValue::Dictionary attributes) {
        auto item = std::make_shared<KTMediaObject>();
        item->mediaSourceIdentifier = "com.apple.iPhoto";
        item->attributes = std::move(attributes);
        auto photo = KTPhoto::initWithFile(makePhoto(folder, name), {}, item);
        manager.insertObject(photo, manager.photos()->size());
        return photo;
    }
    static void geotag(KTPhoto& photo) {
        photo.setValuesForKeysWithDictionary({{"latitude", kNorth}, {"longitude", kEast}}, "g");
    }
    static void setLocationShown(KTPhoto& photo) {
        photo.setValuesForKeysWithDictionary({{"latitudeShown", kNorth}, {"longitudeShown", kEast}}, "s");
    }
    /// The titles from top to bottom, those that are disabled in brackets.
    static std::string titlesOf(const KTMenu& menu) {
        std::string titles;
        for (const KTMenuItem& item : menu)
            titles += item.isSeparator() ? "-, "
                      : item.isEnabled   ? item.title + ", "
                                         : "(" + item.title + "), ";
        return titles;
    }
    static KTMenuItem itemTitled(const KTMenu& menu, const std::string& title) {
        for (const KTMenuItem& item : menu)
            if (item.title == title)
                return item;
        ADD_FAILURE() << "no command " << title;
        return {.action = [] {}};
    }
    static void choose(const KTMenu& menu, const std::string& title) { itemTitled(menu, title).action(); }
    void waitForBatch() {
        ASSERT_TRUE(runEventLoopUntil([this] { return !batches.batchSaveInProgress(); }));
    }

    FakePresenter window;
    KTPhotoController controller{manager};
};

} // namespace

TEST_F(PhotoController, TellsOfTheArrangedPhotosAndTheSelection) {
    std::vector<std::string> told;
    const auto observation = controller.observe([&](const KTChange& change) {
        const bool isInsertion = change.kind == KTChange::Kind::Insertion;
        told.push_back((change.isPrior ? "will " : "did ") + std::string(change.key) +
                       (isInsertion ? " " + std::to_string(change.indexes.at(0)) : ""));
    });
    using Told = std::vector<std::string>;
    photosNamed({"b.jpg"});
    EXPECT_EQ(std::exchange(told, {}), (Told{"will photos 0", "did photos 0"}));
    manager.setPhotoSortDescriptors({{"filename"}});
    EXPECT_NE(std::ranges::find(told, "did photos"), told.end());
    told.clear();
    photosNamed({"a.jpg"});
    EXPECT_EQ(std::exchange(told, {}), (Told{"will photos", "did photos"})) << "it is not the last one";
    EXPECT_EQ(namesOf(controller.photos()), "a.jpg b.jpg");
    manager.setSelectedPhotoIndexes({1});
    EXPECT_EQ(std::exchange(told, {}), (Told{"will selectedPhotoIndexes", "will selectedPhotos",
                                             "did selectedPhotoIndexes", "did selectedPhotos"}));
    controller.tearDown();
    manager.setSelectedPhotoIndexes({});
    EXPECT_EQ(told, Told{});
}

TEST_F(PhotoController, SortsALittleLater) {
    const auto order = [this] { return namesOf(controller.photos()); };
    const auto photos = photosNamed({"b.jpg", "a.jpg", "c.jpg"});
    manager.setSelectedPhotos({photos[1]});
    manager.sortPhotosSoon({{"filename", true}});
    manager.sortPhotosSoon({{"filename", false}}); // what is asked for last holds
    EXPECT_EQ(order(), "b.jpg a.jpg c.jpg");
    EXPECT_FALSE(manager.wantedSortDescriptors().front().isAscending);
    ASSERT_TRUE(runEventLoopUntil([&] { return !manager.photoSortDescriptors().empty(); }));
    EXPECT_EQ(order(), "c.jpg b.jpg a.jpg");
    EXPECT_EQ(manager.selectedPhotoIndexes(), (Indexes{2}));

    manager.sortPhotosSoon({{"filename", true}});
    photosNamed({"0.jpg"}); // comes while the order is found
    ASSERT_TRUE(runEventLoopUntil([&] { return manager.photoSortDescriptors().front().isAscending; }));
    EXPECT_EQ(order(), "0.jpg a.jpg b.jpg c.jpg");

    manager.sortPhotosSoon({{"filename", false}});
    manager.setPhotoSortDescriptors({});
    EXPECT_TRUE(manager.wantedSortDescriptors().empty());
    EXPECT_EQ(order(), "b.jpg a.jpg c.jpg 0.jpg");
}

TEST_F(PhotoController, TheMenuOffersWhatThePhotosAllow) {
    EXPECT_TRUE(controller.menuForPhotos({}).empty());
    auto photos = photosNamed({"a.jpg", "b.jpg"});
    FakePlugins plugins;
    FakeMap map;
    controller.setPhotoExportPluginManager(&plugins);
    controller.setMapAndToolbarViewController(&map);
    EXPECT_EQ(titlesOf(controller.menuForPhotos(photos)),
              "Show in File Manager, (Reveal in map), Share, -, (Save changes), Remove, -, "
              "Synchronize metadata, (Reverse geocode location created), (Reverse geocode location shown), "
              "(Copy event tag from iPhoto), (Copy people tag from iPhoto), (Add keywords from iPhoto), -, "
              "Remove Tags, ");
    geotag(*photos[1]);
    setLocationShown(*photos[0]);
    photos.push_back(addLibraryPhoto("c.jpg", {}));
    const KTMenu menu = controller.menuForPhotos(photos);
    EXPECT_EQ(titlesOf(menu).find('('), std::string::npos) << "one photo is enough";

    choose(menu, "Reveal in map");
    EXPECT_EQ(map.shown, photos);
    choose(itemTitled(menu, "Share").submenu, "Slide show");
    EXPECT_EQ(plugins.begun, std::vector<std::size_t>{1});
    choose(controller.menuForPhotos({photos[1], photos[0], photos[1]}), "Show in File Manager");
    EXPECT_EQ(window.revealed.at(0), (std::vector{folder / "b.jpg", folder / "a.jpg"}));

    manager.setSelectedPhotoIndexes({0, 2});
    choose(controller.menuForRightClickAtIndex(2), "Reveal in map");
    EXPECT_EQ(map.shown, (Photos{photos[0], photos[2]}));
    choose(controller.menuForRightClickAtIndex(1), "Reveal in map");
    EXPECT_EQ(map.shown, Photos{photos[1]});
    EXPECT_EQ(controller.selectedPhotoIndexes(), Indexes{1});
}

TEST_F(PhotoController, AsksBeforeUnsavedPhotosAreRemoved) {
    const auto photos = photosNamed({"a.jpg", "b.jpg", "c.jpg", "d.jpg"});
    controller.removePhotos({photos[3]});
    EXPECT_TRUE(window.alerts.empty());
    EXPECT_EQ(namesOf(controller.photos()), "a.jpg b.jpg c.jpg");

    photos[0]->setValueForKey("caption", "c");
    photos[2]->setValueForKey("caption", "c");
    manager.setSelectedPhotos(photos);
    controller.removeSelectedPhotosAction();
    ASSERT_EQ(window.alerts.size(), 1U);
    EXPECT_EQ(window.alerts[0].message,
              "You have 2 photos with unsaved changes. Are you sure you want to remove them?");
    window.alerts[0].completion(1);
    EXPECT_EQ(controller.photos()->size(), 3U);
    controller.setPhotoWindow(nullptr);
    controller.removeSelectedPhotosAction();
    EXPECT_EQ(controller.photos()->size(), 3U) << "nobody was asked";
    controller.setPhotoWindow(&window);
    choose(controller.menuForPhotos({photos[1], photos[2]}), "Remove");
    window.alerts.at(1).completion(0);
    EXPECT_EQ(namesOf(controller.photos()), "a.jpg");
}

TEST_F(PhotoController, MovesWhatIsDraggedAsABlock) {
    const auto photos = photosNamed({"a.jpg", "b.jpg", "c.jpg", "d.jpg", "e.jpg"});
    photos[1]->setValueForKey("caption", "c");
    EXPECT_EQ(controller.moveItemsAtIndexes({1, 2}, 5), (Indexes{3, 4}));
    EXPECT_EQ(namesOf(manager.photos()), "a.jpg d.jpg e.jpg b.jpg c.jpg");
    EXPECT_EQ(namesOf(controller.selectedPhotos()), "b.jpg c.jpg");
    EXPECT_EQ(controller.moveItemsAtIndexes({4}, 0), Indexes{0});
    EXPECT_EQ(controller.moveItemsAtIndexes({1, 3}, 3), (Indexes{2, 3}));
    EXPECT_EQ(namesOf(manager.photos()), "c.jpg d.jpg a.jpg e.jpg b.jpg");
    EXPECT_TRUE(undo->undo()) << "a move is not a removal";
    photos[1]->setValueForKey("caption", "d");
    EXPECT_EQ(manager.unsavedPhotos()->size(), 1U);

    manager.setPhotoSortDescriptors({{.key = "filename", .isAscending = false}});
    EXPECT_EQ(controller.moveItemsAtIndexes({0}, 2), Indexes{1});
    EXPECT_EQ(namesOf(controller.selectedPhotos()), "e.jpg") << "the one that was seen first";
    EXPECT_EQ(namesOf(manager.photos()), "d.jpg e.jpg c.jpg b.jpg a.jpg");
    EXPECT_TRUE(manager.photoSortDescriptors().empty());
}

TEST_F(PhotoController, CopiesWhatThePhotoLibraryKnows) {
    auto texts = [](const std::vector<std::string>& words) { return KTValue::listOfTexts(words); };
    const KTValue people = KTValue::List{KTValue::Dictionary{{"name", "Ann"}}};
    auto known = addLibraryPhoto("a.jpg", {{"Keywords", texts({"b", "c", "Trip"})}, {"FaceList", people}});
    auto second = addLibraryPhoto("b.jpg", {{"Keywords", texts({"b", "c", "Trip"})}});
    auto unknown = addLibraryPhoto("c.jpg", {{"FaceList", KTValue::List{}}});
    known->setValueForKey("keywords", texts({"a", "b"}));
    for (const char* key : {"keywords", "people"})
        unknown->setValueForKey(key, texts({"own"}));
    unknown->setValueForKey("event", "own");

    const KTMenu menu = controller.menuForPhotos(*manager.photos());
    choose(menu, "Add keywords from iPhoto");
    EXPECT_EQ(known->valueForKey("keywords"), texts({"a", "b", "b", "c"}));
    EXPECT_EQ(second->valueForKey("keywords"), texts({"b", "c"}));
    choose(menu, "Copy people tag from iPhoto");
    EXPECT_EQ(known->valueForKey("people"), texts({"Ann"}));
    choose(menu, "Copy event tag from iPhoto");
    EXPECT_EQ(second->valueForKey("event"), KTValue("Trip"));
    EXPECT_EQ(unknown->valueForKey("keywords"), texts({"own"}));
    EXPECT_EQ(unknown->valueForKey("people"), texts({"own"}));
    EXPECT_EQ(unknown->valueForKey("event"), KTValue("own"));

    EXPECT_EQ(undo->undoActionName(), "Copy event tag from iPhoto");
    undo->undo();
    EXPECT_FALSE(known->valueForKey("event").isSomething() || second->valueForKey("event").isSomething());
    undo->undo();
    EXPECT_TRUE(known->valueForKey("people").texts().empty());
    undo->undo();
    EXPECT_EQ(known->valueForKey("keywords"), texts({"a", "b"}));
}

TEST_F(PhotoController, TheImportPanelOpensWhereTheLastOneEnded) {
    set("defaultPhotoImportLocation", folder.path().string());
    std::filesystem::create_directories(folder / "x");
    std::filesystem::create_directories(folder / "y/z");
    const auto first = makePhoto(folder, "x/a.jpg"), last = makePhoto(folder, "y/b.jpg");
    controller.importPhotosAction();
    ASSERT_EQ(window.panels.size(), 1U);
    EXPECT_EQ(window.panels[0].directory, folder.path());
    window.panels[0].completion({});
    controller.importPhotosAction();
    EXPECT_EQ(window.panels.at(1).directory, folder.path());
    window.panels[1].completion({first, last});
    controller.importPhotosAction();
    EXPECT_EQ(window.panels.at(2).directory, folder / "y");
    ASSERT_TRUE(runEventLoopUntil([this] { return manager.photos()->size() == 2; }));
    EXPECT_EQ(namesOf(controller.photos()), "a.jpg b.jpg");
    window.panels[2].completion({folder / "y/z/"});
    controller.importPhotosAction();
    EXPECT_EQ(window.panels.at(3).directory, folder / "y") << "a folder is in the folder that holds it";
    ASSERT_TRUE(runEventLoopUntil([this] { return !manager.importInProgress(); }));
}

TEST_F(PhotoController, RemovalsOfTheSelectionAreConfirmed) {
    const auto photos = photosNamed({"a.jpg", "b.jpg", "c.jpg"});
    controller.removeAllGPSValues();
    EXPECT_TRUE(window.alerts.empty()) << "nothing is selected";
    for (const auto& photo : photos) {
        geotag(*photo);
        setLocationShown(*photo);
        photo->setValueForKey("imageDirection", 90);
    }
    manager.setSelectedPhotoIndexes({0, 1});
    controller.removeAllGPSValues();
    controller.removeImageDirection();
    controller.removeLocationShownTags();
    ASSERT_EQ(window.alerts.size(), 3U);
    EXPECT_EQ(window.alerts[0].informativeText, "Are you sure you want to remove the GPS metadata (latitude, "
                                                "longitude, altitude & GPS date-time) from 2 photos?");
    auto tagsLeft = [&] { // position, direction and location shown of each photo
        std::string left;
        for (const auto& photo : photos)
            left += std::string(photo->isGeotagged() ? "p" : "-") +
                    (photo->decimalForKey("imageDirection") ? "d" : "-") +
                    (photo->hasLatitudeLongitudeShown() ? "s" : "-") + " ";
        return left;
    };
    for (const KTAlert& alert : window.alerts)
        alert.completion(1);
    EXPECT_EQ(tagsLeft(), "pds pds pds ");
    manager.setSelectedPhotoIndexes({2});
    window.alerts[0].completion(0);
    EXPECT_EQ(tagsLeft(), "-ds -ds pds ") << "the photos in question are those that were selected";
    window.alerts[1].completion(0);
    EXPECT_EQ(tagsLeft(), "--s --s pds ");
    manager.removePhotos({photos[1]});
    window.alerts[2].completion(0);
    EXPECT_EQ(tagsLeft(), "--- --s pds ") << "what left the collection is nobody's business";
    for (const char* left : {"--s --s pds ", "-ds --s pds ", "pds --s pds "}) {
        EXPECT_TRUE(undo->undo());
        EXPECT_EQ(tagsLeft(), left) << "one step a command";
    }
}

TEST_F(PhotoController, TellsWhenItBeginsAndEndsToRemoveGeotags) {
    const auto photos = photosNamed({"a.jpg", "b.jpg"});
    setLocationShown(*photos[0]);
    std::string told;
    const auto flag = controller.observe([&](const KTChange& change) {
        if (!change.isPrior && change.key == "isBatchGeotagRemovalInProgress")
            told += controller.isBatchGeotagRemovalInProgress() ? "[" : "]";
    });
    std::vector<KTObservable::Observation> edits;
    for (const auto& photo : photos)
        edits.push_back(photo->observe([&](const KTChange& change) {
            if (!change.isPrior && (change.key == "latitude" || change.key == "latitudeShown"))
                told += change.key == "latitude" ? "p" : "s";
        }));
    const KTMenu menu = itemTitled(controller.menuForPhotos(photos), "Remove Tags").submenu;
    choose(menu, "Remove Location Created Tags");
    EXPECT_EQ(std::exchange(told, ""), "[pp]");
    choose(menu, "Remove Location Shown Tags");
    EXPECT_EQ(std::exchange(told, ""), "[s]") << "the other has none";
    EXPECT_EQ(undo->undoActionName(), "Remove latitude & longitude shown");
    choose(menu, "Remove Location Shown Tags");
    undo->undo();
    EXPECT_TRUE(photos[0]->hasLatitudeLongitudeShown()) << "the second one was no step";
    manager.removePhotos({photos[0]});
    choose(menu, "Remove Location Shown Tags");
    EXPECT_TRUE(photos[0]->hasLatitudeLongitudeShown()) << "it was removed while the menu was open";
}

TEST_F(PhotoController, ReverseGeocodesAsOneBatch) {
    KTGazetteer& gazetteer = KTGazetteer::sharedGazetteer();
    const auto usual = gazetteer.selectedReverseGeocoder();
    const auto fake = std::make_shared<FakeReverseGeocoder>(
        KTPlaceAnswer{.place = {{"city", "Basel"}, {"country", "Switzerland"}}}, "100% Places");
    gazetteer.setSelectedReverseGeocoder(fake);
    const auto photos = photosNamed({"a.jpg", "b.jpg", "c.jpg", "d.jpg"});
    for (std::size_t i : {0U, 2U, 3U}) {
        geotag(*photos[i]);
        setLocationShown(*photos[i]);
    }
    photos[1]->setValueForKey("latitudeShown", kNorth);
    manager.setSelectedPhotos(photos);

    fake->hold();
    controller.reverseGeocodeLocationCreatedOfSelectedPhotosAction();
    EXPECT_EQ(batches.batchProgressDescription(), "Reverse geocoding photo 0 of 3. Fetching the location "
                                                  "description from 100% Places…");
    manager.removePhotos({photos[3]});
    fake->release();
    waitForBatch();
    EXPECT_EQ(fake->asked().size(), 3U);
    EXPECT_EQ(photos[0]->valueForKey("cityCreated"), KTValue("Basel"));
    EXPECT_EQ(photos[2]->valueForKey("countryCreated"), KTValue("Switzerland"));
    EXPECT_FALSE(photos[2]->valueForKey("cityShown").isSomething());
    EXPECT_FALSE(photos[1]->valueForKey("cityCreated").isSomething());
    EXPECT_FALSE(photos[3]->valueForKey("cityCreated").isSomething()) << "it left the collection meanwhile";
    EXPECT_TRUE(undo->undo());
    EXPECT_FALSE(photos[0]->valueForKey("cityCreated").isSomething() ||
                 photos[2]->valueForKey("cityCreated").isSomething());

    fake->setAnswer({.error = "no answer", .isUnavailable = true});
    fake->hold();
    choose(controller.menuForPhotos(photos), "Reverse geocode location shown");
    fake->release();
    waitForBatch();
    EXPECT_EQ(fake->asked().size(), 4U) << "it is not asked again for the next one";
    fake->setAnswer({.place = {{"city", "Bern"}}});
    choose(controller.menuForPhotos(photos), "Reverse geocode location shown");
    waitForBatch();
    EXPECT_EQ(photos[0]->valueForKey("cityShown"), KTValue("Bern")) << "but in the next batch";
    EXPECT_EQ(photos[2]->valueForKey("cityShown"), KTValue("Bern"));

    photosNamed({"e.jpg"});
    controller.reverseGeocodeLocationShownPhotos({manager.photos()->back(), photos[1]});
    EXPECT_FALSE(batches.batchSaveInProgress()) << "nothing to look up";
    gazetteer.setSelectedReverseGeocoder(usual);
}
