#include "collection/KTPhotoSpatialObjectController.h"
#include "tests/collection/CollectionFixture.h"

#include <QCoreApplication>
#include <atomic>
#include <random>
#include <set>
#include <thread>

namespace {

using Photo = KTPhotoManager::Photo;

class PhotoMapLayer : public CollectionFixture {
protected:
    /// A photo of the collection, without file.
    Photo add(const KTValue& latitude = {}) {
        Photo photo = KTPhoto::init();
        photo->setValueForKey("latitude", latitude);
        manager.insertObject(photo, manager.photos()->size());
        return photo;
    }
    static std::string namesOf(const KTSpatialObjectController::Objects& objects) {
        std::string names;
        for (const auto& object : objects)
            names += (names.empty() ? "" : " ") + object->featureName();
        return names;
    }
    /// As the announcements tell it: "o" for the objects, "s" for the selection.
    KTObservable::Observation note(std::string& told) {
        return layer->observe([&told](const KTChange& change) {
            if (!change.isPrior)
                told += change.key == "spatialObjects"                  ? "o"
                        : change.key == "spatialObjectSelectionIndexes" ? "s"
                                                                        : "?";
        });
    }
    static void runPosted() { QCoreApplication::processEvents(); }

    std::unique_ptr<KTPhotoSpatialObjectController> layer =
        std::make_unique<KTPhotoSpatialObjectController>(manager);
};

} // namespace

TEST_F(PhotoMapLayer, ListsFromSouthToNorthAndThenByPath) {
    const auto photos = photosNamed({"d.jpg", "c.jpg", "b.jpg", "a.jpg"});
    photos[0]->setValueForKey("latitude", 0);
    photos[2]->setValueForKey("latitude", -10);
    layer->setup();
    EXPECT_EQ(layer->name(), "Photos");
    EXPECT_EQ(namesOf(layer->spatialObjects()), "a.jpg c.jpg b.jpg d.jpg");
    EXPECT_EQ(photos[0]->objectOwner(), layer.get());

    manager.setPhotoSortDescriptors({{.key = "filename"}});
    manager.setSelectedPhotos({photos[0], photos[1]});
    EXPECT_EQ(layer->spatialObjectSelectionIndexes(), (KTPhotoManager::Indexes{1, 3}));
    photos[0]->setValueForKey("latitude", -20);
    EXPECT_EQ(layer->spatialObjectSelectionIndexes(), (KTPhotoManager::Indexes{1, 2}));
    EXPECT_EQ(namesOf(layer->spatialObjects()), "a.jpg c.jpg d.jpg b.jpg");
    EXPECT_TRUE(layer->addSelectedSpatialObjects({photos[3]}));
    EXPECT_EQ(*manager.selectedPhotos(), KTPhotoManager::Photos{photos[3]});
    EXPECT_FALSE(layer->removeSelectedSpatialObjects({photos[3]}));

    manager.replaceObjectInPhotosAtIndex(0, KTPhoto::initWithFile(makePhoto(folder, "e.jpg")));
    EXPECT_EQ(namesOf(layer->spatialObjects()), "a.jpg c.jpg e.jpg b.jpg");
    EXPECT_EQ(photos[0]->objectOwner(), nullptr);
    layer->tearDown();
    EXPECT_TRUE(layer->spatialObjects().empty());
    EXPECT_EQ(photos[1]->objectOwner(), nullptr);
}

TEST_F(PhotoMapLayer, AnnouncesManyChangesOnceAndBeforeASelection) {
    std::vector<Photo> photos;
    for (int i = 0; i < 1000; ++i)
        photos.push_back(add(i % 7));
    layer->setup();
    std::string told;
    const auto observation = note(told);
    runPosted();
    EXPECT_EQ(std::exchange(told, ""), "os");
    for (const Photo& photo : photos)
        photo->setValueForKey("latitude", 9);
    photos[500]->setValueForKey("latitude", 1);
    EXPECT_EQ(layer->spatialObjects().front(), photos[500]) << "whoever looks sees the new order";
    EXPECT_EQ(told, "");
    runPosted();
    EXPECT_EQ(std::exchange(told, ""), "os");

    photos[400]->setValueForKey("latitude", 0);
    manager.setSelectedPhotos({photos[500]});
    EXPECT_EQ(std::exchange(told, ""), "os") << "indexes are told after the list that they are about";
    EXPECT_EQ(layer->spatialObjectSelectionIndexes(), KTPhotoManager::Indexes{1});
    photos[400]->setValueForKey("caption", "c");
    runPosted();
    EXPECT_EQ(told, "") << "nothing has moved since";
    manager.setSelectedPhotos({});
    EXPECT_EQ(std::exchange(told, ""), "s");

    photos[400]->setValueForKey("latitude", 2);
    layer.reset();
    photos[400]->setValueForKey("latitude", 3);
    runPosted(); // to nobody
    EXPECT_EQ(photos[400]->objectOwner(), nullptr);
}

TEST_F(PhotoMapLayer, KeepsItsOrderThroughAnySequenceOfChanges) {
    std::mt19937 random(20140503);
    auto below = [&](std::size_t end) {
        return std::uniform_int_distribution<std::size_t>(0, end - 1)(random);
    };
    layer->setup();
    for (int step = 0; step < 2000; ++step) {
        const auto photos = manager.photos();
        const std::size_t what = below(10);
        if (photos->empty() || what < 3)
            add(int(below(30)));
        else if (what < 7)
            (*photos)[below(photos->size())]->setValueForKey(
                "latitude", below(5) == 0 ? KTValue() : KTValue(int(below(30)) - 15));
        else if (what == 7)
            manager.setSelectedPhotoIndexes({below(photos->size())});
        else if (what == 8)
            manager.movePhotos({below(photos->size())}, below(photos->size()));
        else
            manager.removePhotos({(*photos)[0], (*photos)[below(photos->size())]});
        if (below(3) != 0) // several changes come together
            continue;

        // Photos without a path have no order among themselves: what can be compared is the latitudes.
        auto latitudeOf = [](const auto& object) {
            const auto degrees = std::static_pointer_cast<KTPhoto>(object)->decimalForKey("latitude");
            return degrees ? degrees->toDouble() : -1000;
        };
        const auto objects = layer->spatialObjects();
        ASSERT_TRUE(std::ranges::is_sorted(objects, {}, latitudeOf)) << step;
        const auto now = manager.photos();
        ASSERT_EQ(std::set<std::shared_ptr<KTSpatialObject>>(objects.begin(), objects.end()),
                  std::set<std::shared_ptr<KTSpatialObject>>(now->begin(), now->end()));
        ASSERT_EQ(objects.size(), now->size());
        KTPhotoManager::Photos selected;
        for (std::size_t index : layer->spatialObjectSelectionIndexes())
            selected.push_back(std::static_pointer_cast<KTPhoto>(objects.at(index)));
        std::ranges::sort(selected);
        KTPhotoManager::Photos wanted = *manager.selectedPhotos();
        std::ranges::sort(wanted);
        ASSERT_EQ(selected, wanted) << step;
    }
}

TEST_F(PhotoMapLayer, FollowsEditsOfOtherThreads) {
    constexpr int kPhotos = 60;
    std::vector<Photo> photos;
    for (int i = 0; i < kPhotos; ++i)
        photos.push_back(add(i));
    layer->setup();
    manager.setSelectedPhotos({photos[0]});
    std::atomic<int> running = 2;
    auto edit = [&](int first) {
        for (int i = first; i < kPhotos; i += 2)
            photos[std::size_t(i)]->setValueForKey("latitude", -i);
        --running;
    };
    std::jthread one(edit, 0), other(edit, 1);
    EXPECT_TRUE(runEventLoopUntil([&] {
        EXPECT_EQ(layer->spatialObjects().size(), std::size_t(kPhotos));
        return running == 0;
    }));
    EXPECT_EQ(layer->spatialObjects(), KTSpatialObjectController::Objects(photos.rbegin(), photos.rend()));
    EXPECT_EQ(layer->spatialObjectSelectionIndexes(), KTPhotoManager::Indexes{kPhotos - 1});
}
