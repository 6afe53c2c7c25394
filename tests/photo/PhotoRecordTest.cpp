#include "tests/photo/PhotoFixture.h"

#include "metadata/KTMetadataFieldManager.h"
#include "photo/KTPhotoPropertyTable.h"
#include "platform/cartography/KTMultiPointGeometry.h"
#include "platform/cartography/KTStyle.h"
#include "platform/common/KTCallContext.h"

namespace {

class PhotoRecord : public PhotoFixture {
protected:
    static KTDecimal decimal(const char* text) { return *KTDecimal::fromText(text); }
};

/// What a photo announces, each key with "<" before and ">" after the change.
class Announcements {
public:
    explicit Announcements(KTPhoto& photo)
        : observation(photo.observe([this](const KTChange& change) {
              texts += (change.isPrior ? "<" : ">") + std::string(change.key) + " ";
          })) {}
    std::string take() { return std::exchange(texts, {}); }

private:
    std::string texts;
    KTObservable::Observation observation;
};

constexpr const char* kChanges[] = {"exifToolImageMetadataChangesDictionary",
                                    "exifToolSidecarMetadataChangesDictionary",
                                    "iPhotoMetadataChangesDictionary"};

} // namespace

TEST_F(PhotoRecord, ReadsPropertiesAndFlags) {
    auto photo = open(makePhoto(folder, "a.jpg",
                                {{"EXIF:DateTimeOriginal", "2014:06:01 12:00:00"},
                                 {"XMP:Title", "t"},
                                 {"IPTC:Keywords", KTValue::listOfTexts({"a", "b"})}}));
    EXPECT_TRUE(photo->isValid());
    EXPECT_EQ(photo->valueForKey("title"), KTValue("t"));
    EXPECT_EQ(photo->valueForKey("filename"), KTValue("a.jpg"));
    EXPECT_EQ(photo->valueForKey("keywords"), KTValue::listOfTexts({"a", "b"}));
    EXPECT_EQ(photo->valueForKey("uti"), KTValue("public.jpeg"));
    const KTMetadataProperties flags = photo->source(KTMetadataSource::Image).properties;
    EXPECT_TRUE(flags.hasIPTCChecksum && flags.iptcChecksumDoesMatch);
    EXPECT_TRUE(flags.hasEXIFBlock);
    EXPECT_TRUE(photo->dateTimeOriginal());
    EXPECT_FALSE(photo->hasUnsavedChanges());
    EXPECT_TRUE(photo->modifiedKeyValues().empty());

    auto garbage = open(folder.file("x.jpg", std::string_view("\1\2\3\4\0\6", 6)));
    EXPECT_FALSE(garbage->isValid());
    EXPECT_EQ(garbage->lastPhotoOperation()->resultType(), KTPhotoOperation::Failure);
    EXPECT_EQ(garbage->lastPhotoOperation()->operationDescription, "Read metadata from image file");
    garbage->setValueForKey("title", "x");
    garbage->saveWithBackupToFolder(std::nullopt);
    EXPECT_EQ(contentOf(folder / "x.jpg").size(), 6U);

    std::vector<KTPhotoOperation> log;
    EXPECT_FALSE(KTPhoto::initWithFile(folder / "none.jpg", {}, nullptr, {.log = &log}));
    ASSERT_EQ(log.size(), 1U);
    EXPECT_EQ(log[0].operationDescription, "Read from primary file URL.");
    EXPECT_EQ(log[0].failureReason, 0U);
    EXPECT_FALSE(log[0].resultDescription().empty());
}

TEST_F(PhotoRecord, ASidecarThatASaveWritesToWinsWhereBothHaveAValue) {
    for (const char* name : {"a.jpg", "b.nef"}) { // the second is a JPEG that is treated as a raw file
        std::filesystem::path file =
            makePhoto(folder, "image.jpg", {{"XMP:Title", "image"}, {"XMP:Label", "l"}});
        std::filesystem::rename(file, folder / name);
        std::filesystem::path sidecar = std::filesystem::path(folder / name).replace_extension("xmp");
        KTExifTool::sharedExifTool().setValuesForKeysWithDictionary({{"XMP:Title", "sidecar"}}, sidecar,
                                                                    makePhoto(folder, "empty.jpg"));
        auto photo = open(folder / name);
        const bool isRaw = name == std::string("b.nef");
        EXPECT_EQ(photo->valueForKey("title"), KTValue(isRaw ? "sidecar" : "image"));
        EXPECT_EQ(photo->valueForKey("label"), KTValue("l"));
        EXPECT_TRUE(photo->modifiedKeyValues().empty()) << "what is shown is what counts as saved";
        photo->setValueForKey("title", isRaw ? "image" : "other");
        EXPECT_TRUE(photo->hasUnsavedChanges()) << "the value of the other file is an edit";
        EXPECT_EQ(photo->modifiedKeyValues().size(), 1U);
        photo->setValueForKey("title", isRaw ? "sidecar" : "image");
        EXPECT_FALSE(photo->hasUnsavedChanges());
    }
}

TEST_F(PhotoRecord, ARawFileGetsASidecarOnlyWhereThatIsWanted) {
    auto file = makePhoto(folder, "image.jpg", {{"XMP:Title", "t"}});
    std::filesystem::rename(file, folder / "a.CRW");
    EXPECT_FALSE(std::filesystem::exists(folder / "a.xmp") || open(folder / "a.CRW")->hasXMPSidecar());
    auto photo = KTPhoto::initWithFile(folder / "a.CRW", {}, nullptr, {.createsSidecarOfRawFile = true});
    EXPECT_TRUE(photo->hasXMPSidecar());
    EXPECT_EQ(photo->source(KTMetadataSource::Sidecar).saved->valueForKey("XMP:Title"), KTValue("t"));
    EXPECT_EQ(photo->photoOperations().front().operationDescription, "Write metadata to file");
}

TEST_F(PhotoRecord, AnEditBackToTheSavedValueLeavesNothingUnsaved) {
    auto photo = open(makePhoto(folder, "a.jpg",
                                {{"XMP:Title", "old"},
                                 {"EXIF:GPSLatitude", 10},
                                 {"EXIF:GPSLatitudeRef", "S"},
                                 {"EXIF:GPSLongitude", 0},
                                 {"EXIF:GPSLongitudeRef", "E"},
                                 {"EXIF:GPSImgDirection", 90},
                                 {"EXIF:GPSImgDirectionRef", "M"},
                                 {"IPTC:Headline", "iptc"},
                                 {"XMP:Headline", "xmp"}}));
    const char* keys[] = {"title",    "latitude",       "longitude", "caption",
                          "headline", "imageDirection", "keywords",  "dateTimeOriginalComponents"};
    std::map<std::string, KTValue> before;
    for (const char* key : keys)
        before[key] = photo->valueForKey(key);
    photo->setValueForKey("title", "new");
    for (const char* number : {"latitude", "longitude", "imageDirection"})
        photo->setValueForKey(number, decimal("33.8"));
    photo->setValueForKey("caption", "c");
    photo->setValueForKey("headline", "h");
    photo->setValueForKey("keywords", KTValue::listOfTexts({"k"}));
    photo->setValueForKey("dateTimeOriginalComponents",
                          *KTDateComponents::dateComponentsWithString("2014:06:01 12:00:00"));
    EXPECT_TRUE(photo->hasUnsavedChanges());
    EXPECT_EQ(photo->modifiedKeyValues().size(), std::size(keys));
    for (const auto& [key, value] : before)
        photo->setValueForKey(key, value);
    EXPECT_FALSE(photo->hasUnsavedChanges());
    EXPECT_TRUE(imageChanges(photo).empty() && sidecarChanges(photo).empty());

    photo->setValueForKey("title", KTValue::null());
    EXPECT_EQ(photo->modifiedKeyValues(), (KTValue::Dictionary{{"title", KTValue::null()}}));
    EXPECT_TRUE(imageChanges(photo).valueForKey("XMP:Title").isNull());
}

TEST_F(PhotoRecord, AnnouncesEditsAndTheDictionariesOfChangesInOrder) {
    auto file = makePhoto(folder, "a.jpg");
    auto photo = open(file);
    Announcements heard(*photo);
    photo->setValueForKey("title", "t");
    const std::string dictionaries = "<" + std::string(kChanges[0]) + " <" + kChanges[1] + " <" +
                                     kChanges[2] + " >" + kChanges[2] + " >" + kChanges[1] + " >" +
                                     kChanges[0] + " ";
    EXPECT_EQ(heard.take(), "<title " + dictionaries + "<hasUnsavedChanges >hasUnsavedChanges >title ")
        << "the record is up to date before the announcement is over";
    photo->setValueForKey("latitude", 1);
    const std::string coordinate = heard.take();
    EXPECT_TRUE(coordinate.starts_with("<imageSubtitle <latitude ")) << coordinate;
    EXPECT_TRUE(coordinate.ends_with(">latitude >imageSubtitle ")) << coordinate;
    EXPECT_NE(coordinate.find(">geodesicToLocationShown <isGeotagged >isGeotagged"), std::string::npos);
    EXPECT_NE(coordinate.find("<geometry >geometry"), std::string::npos);
    photo->addPhotoOperation(std::nullopt);
    EXPECT_EQ(heard.take(), "");
    photo->addPhotoOperation(KTPhotoOperation());
    EXPECT_EQ(heard.take(), "<photoOperations <lastPhotoOperation >lastPhotoOperation >photoOperations ");
}

TEST_F(PhotoRecord, NormalizesWhatItIsGiven) {
    auto photo = open(makePhoto(folder, "a.jpg"));
    photo->setValueForKey("latitude", "47.123456789");
    EXPECT_EQ(photo->valueForKey("latitude"), KTValue(decimal("47.12345679")));
    photo->setValueForKey("latitude", "north");
    EXPECT_TRUE(photo->valueForKey("latitude").isAbsent());
    photo->setValueForKey("altitude", KTDecimal::notANumber());
    EXPECT_TRUE(photo->valueForKey("altitude").isAbsent());
    photo->setValueForKey("rating", decimal("3.3"));
    EXPECT_EQ(photo->valueForKey("rating"), KTValue(decimal("3.3").rounded(8)));
    photo->setValueForKey("noSuchProperty", 1);
    photo->setValueForKey("hasXMPSidecar", true);
    EXPECT_TRUE(photo->valueForKey("noSuchProperty").isAbsent());
    EXPECT_EQ(photo->valueForKey("hasXMPSidecar"), KTValue(false));
}

TEST_F(PhotoRecord, EveryPropertyHasOneRowAndEveryFieldIsOne) {
    std::map<std::string_view, int> rows;
    for (const KTPhotoProperty& property : KTPhotoPropertyTable::properties())
        ++rows[property.key];
    for (const auto& [key, count] : rows)
        EXPECT_EQ(count, 1) << key;
    for (const auto& field : KTMetadataFieldManager::sharedMetadataFieldManager().metadataFields())
        EXPECT_EQ(KTPhotoPropertyTable::propertyForKey(field->key())->field, field.get()) << field->key();
}

TEST_F(PhotoRecord, ShowsItselfToBrowserAndMap) {
    auto photo = open(makePhoto(folder, "a.jpg"));
    EXPECT_EQ(photo->imageSubtitle(), "Not geotagged");
    EXPECT_TRUE(photo->geometry()->isEmpty());
    photo->setValueForKey("latitude", decimal("48.1"));
    EXPECT_FALSE(photo->isGeotagged());
    photo->setValueForKey("longitude", decimal("11.5"));
    EXPECT_TRUE(photo->isGeotagged());
    EXPECT_EQ(photo->imageSubtitle(), "(11.5000, 48.1000)");
    EXPECT_EQ(photo->geometry()->points().front(), (KTMapPoint{11.5, 48.1}));
    EXPECT_FALSE(photo->geodesicToLocationShown());
    photo->setValueForKey("latitudeShown", decimal("48.2"));
    photo->setValueForKey("longitudeShown", decimal("11.5"));
    ASSERT_TRUE(photo->geodesicToLocationShown());
    EXPECT_EQ(photo->geodesicToLocationShown()->points().back(), (KTMapPoint{11.5, 48.2}));
    photo->setValueForKey("latitude", {});
    EXPECT_TRUE(photo->geometry()->isEmpty());
    EXPECT_FALSE(photo->geodesicToLocationShown());
    ASSERT_EQ(photo->style()->rules.size(), 5U);
    EXPECT_EQ(photo->style()->rules[3].symbolizers.size(), 2U);
    EXPECT_TRUE(photo->description().ends_with(", a.jpg"));
    EXPECT_EQ(photo->valueForKey("imageTitle"), KTValue("a.jpg"));
}

TEST_F(PhotoRecord, ACopyIsANewRecordOfTheSameValues) {
    auto file = makePhoto(folder, "a.jpg", {{"EXIF:DateTimeOriginal", "2014:06:01 12:00:00"}});
    auto photo = open(file);
    photo->setValueForKey("title", "t");
    photo->setValueForKey("latitude", 1);
    photo->setValueForKey("longitude", 2);
    photo->setDateTimeOriginalShift(60);
    auto copy = photo->copyWithZone();
    EXPECT_EQ(copy->valueForKey("title"), KTValue("t"));
    EXPECT_TRUE(copy->isGeotagged());
    EXPECT_EQ(copy->dateTimeOriginal(), photo->dateTimeOriginal());
    EXPECT_EQ(copy->readingOf(KTPhotoDateFamily::Original).shift, 0);
    EXPECT_EQ(copy->source(KTMetadataSource::Image).changes, imageChanges(photo));
    EXPECT_TRUE(copy->photoOperations().empty());
    copy->setValueForKey("title", "other");
    EXPECT_EQ(photo->valueForKey("title"), KTValue("t"));
}

TEST_F(PhotoRecord, SynchronizingMarksEverySourceThatDiffers) {
    setStyle(3);
    auto file = makePhoto(folder, "a.jpg", {{"XMP:Title", "image"}, {"XMP:Label", "both"}});
    KTExifTool::sharedExifTool().setValuesForKeysWithDictionary(
        {{"XMP:Title", "sidecar"}, {"XMP:Label", "both"}}, folder / "a.xmp", makePhoto(folder, "e.jpg"));
    auto photo = openWithUndo(file);
    EXPECT_FALSE(photo->hasUnsavedChanges());
    photo->synchronizeMetadataSources();
    EXPECT_EQ(imageChanges(photo).valueForKey("XMP:Title"), KTValue("sidecar"));
    EXPECT_FALSE(imageChanges(photo).find("XMP:Label"));
    EXPECT_FALSE(sidecarChanges(photo).find("XMP:Title"));
    EXPECT_TRUE(photo->hasUnsavedChanges());
    EXPECT_FALSE(undo->canUndo()) << "there is nothing to undo about it";
    photo->saveWithBackupToFolder(std::nullopt);
    EXPECT_EQ(tagsOf(file).valueForKey("XMP:Title"), KTValue("sidecar"));
}

TEST_F(PhotoRecord, ALaterSidecarMakesTheTargetsChange) {
    setStyle(4);
    auto photo = open(makePhoto(folder, "a.jpg"));
    EXPECT_TRUE(photo->writingToImageFile());
    folder.file("a.xmp", "");
    EXPECT_TRUE(photo->writingToXMPSidecar() && !photo->writingToImageFile());
    photo->setValueForKey("creationDate", KTInstantFromMilliseconds(0));
    EXPECT_FALSE(photo->hasUnsavedChanges()) << "the date is the image file's";
    std::filesystem::remove(folder / "a.xmp");
    EXPECT_TRUE(photo->unsavedFile() && !photo->unsavedSidecar());
}
