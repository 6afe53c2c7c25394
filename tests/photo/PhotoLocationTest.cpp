#include "photo/KTLinkablePoint.h"
#include "platform/concurrency/KTMainThread.h"
#include "platform/gazetteer/KTGazetteer.h"
#include "tests/photo/PhotoFixture.h"
#include "tests/support/EventLoop.h"
#include "tests/support/FakeReverseGeocoder.h"

#include <thread>

namespace {

const KTPlaceAnswer kBasel{.place = {{"city", "Basel"}, {"state", "Basel-City"}, {"country", "Switzerland"}}};

class PhotoLocation : public PhotoFixture {
protected:
    void SetUp() override {
        PhotoFixture::SetUp();
        gazetteer.setSelectedReverseGeocoder(fake);
    }

    static KTDecimal decimal(const char* text) { return *KTDecimal::fromText(text); }
    std::shared_ptr<KTLinkablePoint> point(KTLinkablePointType type,
                                           std::optional<KTDecimal> elevation = decimal("260.5")) const {
        return KTLinkablePoint::initWithGeoPoint({taken, decimal("47.56"), decimal("7.59"), elevation}, type);
    }
    /// The same once its place is known, so that the main thread need not wait.
    std::shared_ptr<KTLinkablePoint> knownPoint(KTLinkablePointType type) const {
        const auto known = point(type);
        known->waitUntilLocationDescriptionFetchIsCompleted();
        return known;
    }
    /// "Switzerland/Basel-City/Basel" for the place "Created" or "Shown".
    static std::string place(const TrackedPhoto& photo, const std::string& which) {
        auto name = [&](const char* key) { return photo->valueForKey(key + which).description(); };
        return name("country") + "/" + name("state") + "/" + name("city");
    }
    void setBoth(const char* setting, bool isOn) {
        for (const char* which : {"Created", "Shown"})
            set((std::string(setting) + which).c_str(), isOn);
    }

    KTGazetteer& gazetteer = KTGazetteer::sharedGazetteer();
    std::shared_ptr<FakeReverseGeocoder> fake = std::make_shared<FakeReverseGeocoder>(kBasel);
    const KTInstant taken = KTInstantFromMilliseconds(1401616800000);
};

} // namespace

TEST_F(PhotoLocation, IsTakenFromAPointAsOneUndoStep) {
    auto photo = openWithUndo(makePhoto(folder, "a.jpg", {{"EXIF:GPSAltitude", 7}, {"XMP:City", "Bern"}}));
    const auto before = photo->modifiedKeyValues();
    const std::string placeBefore = place(photo, "Created") + place(photo, "Shown");
    photo->setLocationCreatedFromLinkablePoint(knownPoint(KTLinkablePointTypePreceding));
    EXPECT_EQ(photo->decimalForKey("latitude"), decimal("47.56"));
    EXPECT_EQ(photo->decimalForKey("longitude"), decimal("7.59"));
    EXPECT_EQ(photo->decimalForKey("altitude"), decimal("260.5"));
    EXPECT_EQ(photo->valueForKey("gpsDateTime"), KTValue(taken));
    EXPECT_EQ(photo->valueForKey("gpsMapDatum"), KTValue("WGS-84"));
    EXPECT_EQ(photo->valueForKey("gpsVersionID"), KTValue("2.2.0.0"));
    EXPECT_EQ(place(photo, "Created"), "Switzerland/Basel-City/Basel");
    EXPECT_EQ(place(photo, "Shown"), "Switzerland/Basel-City/Basel");
    EXPECT_TRUE(photo->isGeotagged());

    EXPECT_EQ(undo->undoActionName(), "Geotag Photos");
    undo->undo();
    EXPECT_FALSE(undo->canUndo()) << "one step";
    EXPECT_FALSE(photo->isGeotagged());
    EXPECT_EQ(photo->decimalForKey("altitude"), decimal("7"));
    EXPECT_EQ(place(photo, "Created") + place(photo, "Shown"), placeBefore);
    EXPECT_EQ(photo->modifiedKeyValues(), before);
    undo->redo();
    EXPECT_EQ(place(photo, "Created"), "Switzerland/Basel-City/Basel");

    for (auto type : {KTLinkablePointTypeTimeWeighted, KTLinkablePointTypeMapPoint}) {
        photo->setLocationCreatedFromLinkablePoint(knownPoint(KTLinkablePointTypeNext));
        EXPECT_EQ(photo->valueForKey("gpsDateTime"), KTValue(taken));
        photo->setLocationCreatedFromLinkablePoint(knownPoint(type));
        EXPECT_TRUE(photo->valueForKey("gpsDateTime").isAbsent()) << type;
    }
    photo->setLocationCreatedFromLinkablePoint(nullptr);
    photo->setLocationCreatedFromLinkablePoint(
        KTLinkablePoint::initWithGeoPoint({}, KTLinkablePointTypePreceding, nullptr));
    EXPECT_TRUE(photo->isGeotagged()) << "no point, or one without a position, changes nothing";
}

TEST_F(PhotoLocation, KeepsAnAltitudeAsTheSettingsSay) {
    setBoth("defaultLatLonCreatedShouldReverseGeocodeLocation", false);
    struct Case {
        bool saves, overwrites, has;
        const char* elevation;
        const char* expected;
    };
    for (const auto& [saves, overwrites, has, elevation, expected] :
         {Case{true, true, true, "260.5", "260.5"},
          {true, false, true, "260.5", "7"},
          {true, false, false, "260.5", "260.5"},
          {false, true, true, "260.5", "7"},
          {false, true, false, "260.5", ""},
          {true, true, true, nullptr, "7"}}) {
        set("defaultShouldSaveAltitude", saves);
        set("defaultShouldOverwriteAltitude", overwrites);
        TrackedPhoto photo(KTPhoto::init());
        photo->setValueForKey("altitude", has ? KTValue(7) : KTValue());
        photo->setLocationCreatedFromLinkablePoint(
            point(KTLinkablePointTypeNext, elevation ? std::optional(decimal(elevation)) : std::nullopt));
        EXPECT_EQ(photo->valueForKey("altitude").description(), expected) << saves << overwrites << has;
    }
    EXPECT_TRUE(fake->asked().empty()) << "nobody wants the names of the place";
}

TEST_F(PhotoLocation, WritesPlaceNamesAsTheSettingsSay) {
    struct Case {
        bool country, state, city, overwrites;
        const char* present; // the state that the photo has; its city is the empty text
        const char* expected;
    };
    for (const auto& [country, state, city, overwrites, present, expected] :
         {Case{true, true, true, true, "Bern", "Switzerland/Basel-City/Basel"},
          {true, true, true, false, "Bern", "Switzerland/Bern/Basel"},
          {true, true, true, false, "", "Switzerland/Basel-City/Basel"},
          {true, false, true, true, "Bern", "Switzerland/Bern/"},
          {true, true, false, true, "Bern", "Switzerland/Basel-City/"}}) {
        setBoth("defaultShouldSaveCountry", country);
        setBoth("defaultShouldSaveState", state);
        setBoth("defaultShouldSaveCity", city);
        setBoth("defaultShouldOverwriteLocation", overwrites);
        for (const std::string which : {"Created", "Shown"}) {
            TrackedPhoto photo(KTPhoto::init());
            photo->setValueForKey("state" + which, present);
            photo->setValueForKey("city" + which, "");
            const auto known = knownPoint(KTLinkablePointTypeMapPoint);
            photo->setUndoManager(undo);
            if (which == "Created")
                photo->reverseGeocodeLocationCreatedFromLinkablePoint(known);
            else
                photo->reverseGeocodeLocationShownFromLinkablePoint(known);
            queue->drain();
            EXPECT_EQ(undo->undoActionName(), "Reverse Geocode");
            undo->removeAllActionsWithTargets({photo.photo.get()});
            EXPECT_EQ(place(photo, which), expected) << which << country << state << city << overwrites;
            EXPECT_FALSE(photo->isGeotagged()) << "only the names";
            set(("defaultShouldSaveCountry" + which).c_str(), false);
            EXPECT_TRUE((which == "Created" ? photo->locationCreatedDictionaryFromLinkablePoint(*known)
                                            : photo->locationShownDictionaryFromLinkablePoint(*known))
                            .empty())
                << "no state and city without the country";
        }
    }
}

TEST_F(PhotoLocation, WritesWithAPositionTheNamesThatEveryCombinationOfTheSettingsAllows) {
    constexpr const char* kSettings[] = {"defaultLatLonCreatedShouldReverseGeocodeLocation",
                                         "defaultShouldOverwriteLocation", "defaultShouldSaveCountry",
                                         "defaultShouldSaveState", "defaultShouldSaveCity"};
    constexpr unsigned kCombinations = 1U << std::size(kSettings);
    const auto known = knownPoint(KTLinkablePointTypeNext);
    // One combination for the place created, another one for the place shown, so that a mix-up shows.
    for (unsigned combination = 0; combination < 2 * kCombinations; ++combination) {
        const unsigned ofCreated = combination / 2,
                       ofShown = kCombinations - 1 - ofCreated * 7 % kCombinations;
        const bool hasNames = combination % 2 != 0;
        TrackedPhoto photo(KTPhoto::init());
        for (const std::string which : {"Created", "Shown"}) {
            for (unsigned i = 0; i < std::size(kSettings); ++i)
                set((kSettings[i] + which).c_str(),
                    ((which == "Created" ? ofCreated : ofShown) >> i & 1) != 0);
            for (const std::string key : {"country", "state", "city"})
                photo->setValueForKey(key + which, hasNames ? KTValue("old") : KTValue());
        }
        photo->setLocationCreatedFromLinkablePoint(known);
        for (const std::string which : {"Created", "Shown"}) {
            const unsigned bits = which == "Created" ? ofCreated : ofShown;
            const bool mayWrite = (bits & 1) != 0 && (!hasNames || (bits & 2) != 0);
            const std::string old = hasNames ? "old" : "";
            const bool country = mayWrite && (bits & 4) != 0, state = country && (bits & 8) != 0,
                       city = state && (bits & 16) != 0;
            EXPECT_EQ(place(photo, which), (country ? "Switzerland" : old) + "/" +
                                               (state ? "Basel-City" : old) + "/" + (city ? "Basel" : old))
                << which << " " << bits << hasNames;
        }
    }
}

TEST_F(PhotoLocation, LeavesNamesAloneThatAreNotKnown) {
    fake->setAnswer({.place = {{"country", "Greenland"}}});
    TrackedPhoto photo(KTPhoto::init());
    photo->setValueForKey("cityCreated", "Basel");
    photo->setLocationCreatedFromLinkablePoint(knownPoint(KTLinkablePointTypeNext));
    EXPECT_EQ(place(photo, "Created"), "Greenland//Basel");
    EXPECT_FALSE(photo->lastPhotoOperation());

    fake->setAnswer({.error = "places.example.org did not answer."});
    photo->setLocationCreatedFromLinkablePoint(knownPoint(KTLinkablePointTypeMapPoint));
    EXPECT_EQ(place(photo, "Created"), "Greenland//Basel");
    EXPECT_TRUE(photo->valueForKey("gpsDateTime").isAbsent()) << "the position is written all the same";
    ASSERT_TRUE(photo->lastPhotoOperation());
    EXPECT_EQ(photo->lastPhotoOperation()->resultType(), KTPhotoOperation::Warning);
    EXPECT_EQ(photo->lastPhotoOperation()->resultDescription(), "places.example.org did not answer.");
    EXPECT_EQ(photo->photoOperations().size(), 1U) << "said once";
}

TEST_F(PhotoLocation, ShownTurnsTheDirectionTowardsIt) {
    struct Case {
        bool sets, overwrites, has, isGeotagged;
        const char* expected; // initial bearings on the ellipsoid, by geod -I
    };
    for (const auto& [sets, overwrites, has, isGeotagged, expected] : {Case{true, true, true, true, "90"},
                                                                       {true, false, true, true, "12"},
                                                                       {true, false, false, true, "90"},
                                                                       {false, true, true, true, "12"},
                                                                       {true, true, false, false, "0"}}) {
        set("defaultSetImageDirectionFromLatLonShown", sets);
        set("defautShouldOverwriteImageDirection", overwrites);
        auto photo = openWithUndo(makePhoto(folder, "a.jpg", {}));
        photo->setValueForKey("imageDirection", has ? KTValue(12) : KTValue());
        if (isGeotagged) {
            photo->setValueForKey("latitude", 0);
            photo->setValueForKey("longitude", 7);
        }
        const auto shown =
            KTLinkablePoint::initWithGeoPoint({.latitude = isGeotagged ? KTDecimal() : decimal("10"),
                                               .longitude = isGeotagged ? decimal("7.59") : KTDecimal()},
                                              KTLinkablePointTypeMapPoint);
        shown->waitUntilLocationDescriptionFetchIsCompleted();
        photo->setLocationShownFromLinkablePoint(shown);
        EXPECT_EQ(photo->valueForKey("imageDirection").description(), expected)
            << sets << overwrites << has << isGeotagged;
        EXPECT_TRUE(photo->hasLatitudeLongitudeShown());
        EXPECT_EQ(photo->geodesicToLocationShown() != nullptr, isGeotagged);
        EXPECT_EQ(place(photo, "Shown"), "Switzerland/Basel-City/Basel");
        EXPECT_EQ(place(photo, "Created"), "//");
        EXPECT_EQ(undo->undoActionName(), "Set Location Shown");
        undo->undo();
        EXPECT_EQ(photo->valueForKey("imageDirection").description(), has ? "12" : "");
        EXPECT_FALSE(photo->hasLatitudeLongitudeShown());
    }
}

TEST_F(PhotoLocation, IsWaitedForByWorkersButNotByTheMainThread) {
    auto photo = openWithUndo(makePhoto(folder, "a.jpg", {}));
    fake->hold();
    KTLatch isDone;
    std::jthread worker([&] {
        photo->setLocationCreatedFromLinkablePoint(point(KTLinkablePointTypeNext));
        isDone.signal();
    });
    fake->waitForQuestions(1);
    EXPECT_FALSE(photo->isGeotagged());
    fake->release();
    isDone.wait();
    EXPECT_EQ(place(photo, "Created"), "Switzerland/Basel-City/Basel");
    undo->undo();

    fake->hold();
    const auto slow = point(KTLinkablePointTypePreceding);
    photo->setLocationCreatedFromLinkablePoint(slow);
    set("defaultLatLonShownShouldReverseGeocodeLocationShown", false);
    photo->setLocationShownFromLinkablePoint(point(KTLinkablePointTypeMapPoint));
    EXPECT_FALSE(photo->isGeotagged());
    EXPECT_FALSE(photo->hasLatitudeLongitudeShown()) << "edits keep their order";
    fake->release();
    ASSERT_TRUE(runEventLoopUntil([&] { return photo->hasLatitudeLongitudeShown(); }));
    EXPECT_EQ(place(photo, "Created"), "Switzerland/Basel-City/Basel");
    EXPECT_EQ(undo->undoActionName(), "Set Location Shown");
    undo->undo();
    undo->undo();
    EXPECT_FALSE(photo->isGeotagged());
    EXPECT_FALSE(undo->canUndo());
}

TEST_F(PhotoLocation, AnEditThatIsPutOffYieldsToNewerOnes) {
    struct Case {
        const char* name;
        std::function<void(KTPhoto&)> edit;
        const char* expected; // latitude
    };
    for (const auto& [name, edit, expected] :
         {Case{"position typed", [](KTPhoto& photo) { photo.setValueForKey("latitude", 10); }, "10"},
          {"position removed", [](KTPhoto& photo) { photo.removeAllGPSValues(); }, ""},
          {"other time", [](KTPhoto& photo) { photo.setDateTimeOriginal(KTInstantNow()); }, "1"},
          {"caption typed", [](KTPhoto& photo) { photo.setValueForKey("caption", "Basel"); }, "47.56"},
          {"geotagged by a worker",
           [](KTPhoto& photo) {
               std::atomic<bool> isEdited = false;
               const std::jthread worker([&] {
                   photo.setValuesForKeysWithDictionary({{"latitude", 5}, {"longitude", 5}}, "Geotag Photos");
                   isEdited = true;
               });
               ASSERT_TRUE(runEventLoopUntil([&] { return isEdited.load(); }));
           },
           "5"}}) {
        TrackedPhoto photo(KTPhoto::init());
        photo->setValueForKey("latitude", 1);
        photo->setValueForKey("longitude", 1);
        fake->hold();
        photo->setLocationCreatedFromLinkablePoint(point(KTLinkablePointTypeNext));
        edit(*photo);
        EXPECT_TRUE(photo->isWaitingForPlaceNames());
        fake->release();
        ASSERT_TRUE(runEventLoopUntil([&] { return !photo->isWaitingForPlaceNames(); }));
        EXPECT_EQ(photo->valueForKey("latitude").description(), expected) << name;
        const bool isObsolete = std::string_view(expected) != "47.56";
        EXPECT_EQ(photo->photoOperations().size(), isObsolete ? 1U : 0U) << name;
    }
}

TEST_F(PhotoLocation, AnEditThatIsPutOffJudgesThePhotoAsItIsThen) {
    auto photo = openWithUndo(makePhoto(folder, "a.jpg", {}));
    set("defaultLatLonShownShouldReverseGeocodeLocationShown", false);
    fake->setAnswer({.error = "No network.", .isUnavailable = true});
    fake->hold();
    photo->setLocationCreatedFromLinkablePoint(point(KTLinkablePointTypeMapPoint));
    photo->setLocationShownFromLinkablePoint(KTLinkablePoint::initWithGeoPoint(
        {.latitude = decimal("48"), .longitude = decimal("7.59")}, KTLinkablePointTypeMapPoint));
    photo->setLocationCreatedFromLinkablePoint(point(KTLinkablePointTypeNext));
    fake->release();
    ASSERT_TRUE(runEventLoopUntil([&] { return !photo->isWaitingForPlaceNames(); }));
    EXPECT_EQ(photo->valueForKey("imageDirection").description(), "0") << "from the position given before";
    EXPECT_EQ(photo->valueForKey("gpsDateTime"), KTValue(taken));
    EXPECT_LE(fake->asked().size(), 2U) << "a dead geocoder is not asked for each photo";
}
