#include "tests/photo/PhotoFixture.h"

#include "metadata/KTMetadataFieldManager.h"
#include "platform/common/KTTimeZoneManager.h"

namespace {

class PhotoDates : public PhotoFixture {
protected:
    void SetUp() override {
        PhotoFixture::SetUp();
        set("defaultAssumedTimeZoneOffset", 7200);
    }
    TrackedPhoto datedPhoto() {
        return openWithUndo(makePhoto(
            folder, "a.jpg",
            {{"EXIF:DateTimeOriginal", "2014:06:01 12:00:00"}, {"EXIF:CreateDate", "2014:06:02 12:00:00"}}));
    }
    static std::string original(const TrackedPhoto& photo) {
        const auto date = photo->readingOf(KTPhotoDateFamily::Original).components;
        return date ? date->xmpString().value_or("") : "none";
    }
    static std::string instant(const std::optional<KTInstant>& date) {
        return date ? KTISO8601Text(*date) : "none";
    }
};

KTDateComponents components(const char* text, std::optional<KTTimeZone> zone) {
    KTDateComponents result = *KTDateComponents::dateComponentsWithString(text);
    result.timeZone = std::move(zone);
    return result;
}

} // namespace

TEST_F(PhotoDates, TheZoneMovesTheInstantAndKeepsTheReading) {
    auto photo = datedPhoto();
    EXPECT_EQ(instant(photo->dateTimeOriginal()), "2014-06-01T10:00:00Z");
    photo->setDateTimeOriginalTimeZone(KTTimeZone::utc());
    EXPECT_EQ(instant(photo->dateTimeOriginal()), "2014-06-01T12:00:00Z");
    EXPECT_EQ(original(photo), "2014:06:01 12:00:00");
    EXPECT_EQ(instant(photo->dateTimeDigitized()), "2014-06-02T10:00:00Z");
    EXPECT_FALSE(photo->hasUnsavedChanges()) << "no tag holds the zone";
    EXPECT_FALSE(undo->canUndo());
    EXPECT_EQ(photo->valueForKey("dateTimeOriginalTimeZone"), KTValue(KTTimeZone::utc()));
}

TEST_F(PhotoDates, AShiftCountsFromTheSavedDate) {
    auto photo = datedPhoto();
    photo->setDateTimeOriginalShift(7200);
    photo->setDateTimeOriginalShift(7200);
    EXPECT_EQ(original(photo), "2014:06:01 14:00:00");
    EXPECT_EQ(imageChanges(photo).valueForKey("EXIF:DateTimeOriginal"), KTValue("2014:06:01 14:00:00"));
    photo->setDateTimeOriginalShift(-86400);
    EXPECT_EQ(original(photo), "2014:05:31 12:00:00");
    EXPECT_EQ(photo->valueForKey("dateTimeOriginalShift"), KTValue(-86400));
    ASSERT_TRUE(undo->undo());
    EXPECT_EQ(original(photo), "2014:06:01 14:00:00");
    EXPECT_EQ(photo->readingOf(KTPhotoDateFamily::Original).shift, 7200);
    EXPECT_EQ(undo->redoActionName(), "Original Date Change");
    photo->setDateTimeOriginalShift(0);
    EXPECT_EQ(original(photo), "2014:06:01 12:00:00");
    EXPECT_FALSE(photo->hasUnsavedChanges());
    for (double impossible : {1e300, -1e12, std::numeric_limits<double>::quiet_NaN()})
        photo->setDateTimeOriginalShift(impossible);
    photo->setDateTimeOriginalShift(std::nullopt);
    EXPECT_EQ(original(photo), "2014:06:01 12:00:00");

    // After a save the file's date is the shifted one, so the shift is none.
    photo->setDateTimeOriginalShift(3600);
    photo->setDateTimeDigitizedShift(60);
    photo->saveWithBackupToFolder(std::nullopt);
    EXPECT_EQ(photo->readingOf(KTPhotoDateFamily::Original).shift, 0);
    EXPECT_EQ(photo->readingOf(KTPhotoDateFamily::Digitized).shift, 60);
    EXPECT_EQ(tagsOf(photo->fileURL()).valueForKey("EXIF:DateTimeOriginal"), KTValue("2014:06:01 13:00:00"));
    photo->setDateTimeOriginalShift(3600);
    EXPECT_EQ(original(photo), "2014:06:01 14:00:00");
}

TEST_F(PhotoDates, WithoutASavedDateThereIsNothingToShift) {
    auto photo = openWithUndo(makePhoto(folder, "a.jpg"));
    int announcements = 0;
    auto observation = photo->observe([&](const KTChange&) { ++announcements; });
    photo->setDateTimeOriginalShift(3600);
    photo->setDateTimeOriginalTimeZone(KTTimeZone::utc());
    EXPECT_EQ(announcements, 0);
    EXPECT_FALSE(undo->canUndo());

    photo->setDateTimeOriginalComponents(components("2014:06:01 12:00:00", std::nullopt));
    EXPECT_EQ(instant(photo->dateTimeOriginal()), "2014-06-01T10:00:00Z")
        << "a first date is taken in the assumed zone";
    photo->setDateTimeOriginalComponents(components("2014:06:01 12:00:00", std::nullopt));
    EXPECT_EQ(instant(photo->dateTimeOriginal()), "none") << "a later one as it is given";
}

TEST_F(PhotoDates, AnInstantIsReadInTheZoneOfTheApplication) {
    KTTimeZoneManager::sharedTimeZoneManager().setTimeZone(KTTimeZone::fixed(-3600));
    auto photo = datedPhoto();
    photo->setValueForKey("dateTimeOriginal", KTInstantFromMilliseconds(0));
    EXPECT_EQ(original(photo), "1969:12:31 23:00:00");
    EXPECT_EQ(instant(photo->dateTimeOriginal()), "1970-01-01T00:00:00Z");
    KTTimeZoneManager::sharedTimeZoneManager().setTimeZone(KTTimeZone::system());
    photo->setValueForKey("dateTimeOriginal", KTValue::null());
    EXPECT_EQ(instant(photo->dateTimeOriginal()), "none");
    EXPECT_TRUE(photo->valueForKey("dateTimeOriginalTimeZone").isAbsent());
    EXPECT_TRUE(imageChanges(photo).valueForKey("EXIF:DateTimeOriginal").isNull());
}

TEST_F(PhotoDates, APartialDateIsShiftedInItsOwnUnits) {
    auto photo = openWithUndo(makePhoto(folder, "a.jpg", {{"XMP:DateTimeOriginal", "2014:05"}}));
    ASSERT_EQ(original(photo), "2014:05");
    photo->setDateTimeOriginalShift(3600);
    EXPECT_EQ(original(photo), "2014:05");
    EXPECT_FALSE(undo->canUndo()) << "undoing it would seem to do nothing";
    photo->setDateTimeOriginalShift(31 * 86400.0);
    EXPECT_EQ(original(photo), "2014:06");
    photo->setDateTimeOriginalComponents(components("2015", KTTimeZone::utc()));
    EXPECT_EQ(instant(photo->dateTimeOriginal()), "none") << "a year is no instant";
}

TEST_F(PhotoDates, AnnouncesADateInFourKeysOutsideIn) {
    auto photo = datedPhoto();
    std::string heard;
    auto observation = photo->observe([&](const KTChange& change) {
        if (change.key.starts_with("dateTimeOriginal"))
            heard += (change.isPrior ? "<" : ">") + std::string(change.key.substr(16)) + " ";
    });
    photo->setDateTimeOriginalComponents(components("2014:06:03 12:00:00", KTTimeZone::utc()));
    EXPECT_EQ(heard, "<Components <TimeZone <Shift < > >Shift >TimeZone >Components ");
    heard.clear();
    photo->setDateTimeOriginalShift(60);
    EXPECT_EQ(heard, "<Components <Shift < > >Shift >Components ");
    heard.clear();
    photo->setDateTimeOriginalTimeZone(KTTimeZone::fixed(60));
    EXPECT_EQ(heard, "<Components <TimeZone < > >TimeZone >Components ");
}
