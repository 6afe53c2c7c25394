#include "tests/photo/PhotoFixture.h"

#include "metadata/KTMetadataFieldManager.h"
#include "photo/KTLinkablePoint.h"
#include "photo/KTWrittenValues.h"
#include "platform/desktop/KTFileDates.h"

#include <set>

namespace {

class PhotoSaving : public PhotoFixture {};

KTGeoPoint basel() {
    return {KTInstantFromMilliseconds(1401616799250), *KTDecimal::fromText("47.559601"),
            *KTDecimal::fromText("-7.588576"), *KTDecimal::fromText("-12.5")};
}

bool leftNothingBehind(const TemporaryFolder& folder, std::size_t files) {
    return std::size_t(std::distance(std::filesystem::directory_iterator(folder.path()), {})) == files;
}

} // namespace

TEST_F(PhotoSaving, GeotagsThroughOneSafeWrite) {
    auto file = makePhoto(folder, "a.jpg", {{"EXIF:Make", "Canon"}, {"EXIF:GPSAltitude", 7}});
    auto photo = open(file);
    for (const char* setting : {"defaultLatLonCreatedShouldReverseGeocodeLocationCreated",
                                "defaultLatLonCreatedShouldReverseGeocodeLocationShown"})
        set(setting, false);
    photo->setLocationCreatedFromLinkablePoint(
        KTLinkablePoint::initWithGeoPoint(basel(), KTLinkablePointTypeNext));
    photo->saveWithBackupToFolder(std::nullopt);
    EXPECT_FALSE(photo->hasUnsavedChanges()) << lastWrite(photo).resultDescription();
    EXPECT_EQ(lastWrite(photo).resultType(), KTPhotoOperation::Success)
        << lastWrite(photo).resultDescription();

    KTTagDictionary tags = tagsOf(file);
    auto shown = [&](const char* key) { return tags.valueForKey(key).description(); };
    EXPECT_EQ(shown("EXIF:GPSLatitudeRef") + shown("EXIF:GPSLongitudeRef"), "NW");
    EXPECT_NEAR(tags.valueForKey("EXIF:GPSLatitude")
                    .number()
                    .value_or(KTDecimal::fromText(shown("EXIF:GPSLatitude")).value())
                    .toDouble(),
                47.559601, 1e-7);
    EXPECT_EQ(shown("EXIF:GPSAltitude"), "12.5");
    EXPECT_EQ(shown("EXIF:GPSAltitudeRef"), "1");
    EXPECT_EQ(shown("EXIF:GPSDateStamp") + " " + shown("EXIF:GPSTimeStamp"), "2014:06:01 09:59:59");
    EXPECT_EQ(shown("EXIF:GPSMapDatum"), "WGS-84");
    EXPECT_EQ(shown("EXIF:GPSVersionID"), "2 2 0 0");
    EXPECT_EQ(shown("EXIF:Make"), "Canon");
    EXPECT_FALSE(tags.find("XMP:GPSLatitude")) << "a tag that XMP did not hold is not added to it";
    EXPECT_TRUE(tags.find("XMP:MetadataDate"));
    EXPECT_TRUE(leftNothingBehind(folder, 1));

    KTGeoPoint interpolated{{}, *KTDecimal::fromText("1.5"), *KTDecimal::fromText("2.5"), {}};
    photo->setLocationCreatedFromLinkablePoint(
        KTLinkablePoint::initWithGeoPoint(interpolated, KTLinkablePointTypeTimeWeighted));
    photo->saveWithBackupToFolder(std::nullopt);
    tags = tagsOf(file);
    EXPECT_FALSE(tags.find("EXIF:GPSTimeStamp")) << "a point without a date clears the GPS time";
    EXPECT_EQ(shown("EXIF:GPSAltitude"), "12.5") << "and one without elevation leaves the altitude";
}

TEST_F(PhotoSaving, WritesWhereTheStyleSays) {
    struct Case {
        int style;
        bool image, sidecar;
    };
    for (auto [style, image, sidecar] :
         {Case{0, true, false}, {1, true, false}, {2, false, true}, {3, true, true}, {4, true, false}}) {
        setStyle(style);
        const std::string stem = "style" + std::to_string(style);
        auto file = makePhoto(folder, stem + ".jpg", {{"EXIF:Make", "Canon"}, {"XMP:Label", "Red"}});
        const std::string before = contentOf(file);
        auto photo = open(file);
        photo->setValueForKey("title", "new");
        photo->saveWithBackupToFolder(std::nullopt);
        EXPECT_FALSE(photo->hasUnsavedChanges()) << style;
        EXPECT_EQ(contentOf(file) != before, image) << style;
        EXPECT_EQ(std::filesystem::exists(folder / (stem + ".xmp")), sidecar) << style;
        if (sidecar) {
            KTTagDictionary tags = tagsOf(folder / (stem + ".xmp"));
            EXPECT_EQ(tags.valueForKey("XMP:Title"), KTValue("new")) << style;
            EXPECT_EQ(tags.valueForKey("XMP:Label"), KTValue("Red")) << "a new sidecar holds everything";
        }
    }
    EXPECT_FALSE(saveTargets("a.CRW", 0, false).imageFile);
    EXPECT_TRUE(saveTargets("a.nef", 1, false).xmpSidecar);
    EXPECT_TRUE(saveTargets("a.jpg", 4, true).xmpSidecar);
    EXPECT_FALSE(saveTargets("a.jpg", 9, true).xmpSidecar || saveTargets("a.jpg", 9, true).imageFile);
}

TEST_F(PhotoSaving, AnExistingSidecarIsEditedNotRebuilt) {
    setStyle(2);
    auto file = makePhoto(folder, "a.jpg");
    auto sidecar = folder.file("a.xmp", R"(<?xpacket begin='' id='W5M0MpCehiHzreSzNTczkc9d'?>
<x:xmpmeta xmlns:x='adobe:ns:meta/'><rdf:RDF xmlns:rdf='http://www.w3.org/1999/02/22-rdf-syntax-ns#'>
<rdf:Description rdf:about='' xmlns:raw='http://example.org/rawdeveloper/1.0/' raw:history='kept'/>
<rdf:Description rdf:about='' xmlns:dc='http://purl.org/dc/elements/1.1/'><dc:title><rdf:Alt>
<rdf:li xml:lang='x-default'>English</rdf:li><rdf:li xml:lang='de'>Deutsch</rdf:li></rdf:Alt></dc:title></rdf:Description>
</rdf:RDF></x:xmpmeta>)");
    auto photo = open(file);
    EXPECT_EQ(photo->valueForKey("title"), KTValue("English"));
    photo->setValueForKey("title", "New");
    photo->saveWithBackupToFolder(std::nullopt);
    EXPECT_FALSE(photo->hasUnsavedChanges());
    const std::string content = contentOf(sidecar);
    EXPECT_NE(content.find("kept"), std::string::npos) << "what other programs keep there survives";
    EXPECT_NE(content.find("Deutsch"), std::string::npos) << "and so do other languages";
    EXPECT_EQ(tagsOf(sidecar).valueForKey("XMP:Title"), KTValue("New"));
}

TEST_F(PhotoSaving, ANewSidecarHoldsWhatThePhotoShowsAndNotWhatWasClearedOrRoundedInIt) {
    setStyle(2);
    auto file = makePhoto(folder, "a.jpg",
                          {{"EXIF:ImageDescription", "old"},
                           {"EXIF:GPSLatitude", 47},
                           {"EXIF:GPSLatitudeRef", "N"},
                           {"EXIF:GPSDateStamp", "2014:06:01"},
                           {"EXIF:GPSTimeStamp", "09:59:59.25"},
                           {"EXIF:DateTimeOriginal", "2014:06:01 12:00:00"},
                           {"XMP:DateTimeOriginal", "2014:06:01 12:00:00.25+02:00"},
                           {"XMP:DateCreated", "2014:06:01 12:00:00.25+02:00"},
                           {"IPTC:Headline", "old"},
                           {"IPTC:City", "Basel"},
                           {"XMP:Description", "old"},
                           {"XMP:Description-de", "alt"},
                           {"XMP:Subject", KTValue::listOfTexts({"old"})}});
    auto photo = open(file);
    photo->setValueForKey("latitude", {});
    EXPECT_TRUE(photo->hasUnsavedChanges()) << "the copy of the image would hold it";
    photo->setValueForKey("latitude", 47);
    EXPECT_FALSE(photo->hasUnsavedChanges());
    photo->setValueForKey("caption", "new");
    for (const char* key : {"latitude", "headline", "keywords"})
        photo->setValueForKey(key, {});
    photo->saveWithBackupToFolder(std::nullopt);
    const KTTagDictionary tags = tagsOf(folder / "a.xmp");
    for (const char* key : {"XMP:GPSLatitude", "XMP:Headline", "XMP:Subject"})
        EXPECT_FALSE(tags.find(key)) << key << " was cleared";
    EXPECT_EQ(tags.valueForKey("XMP:GPSDateTime"), KTValue("2014:06:01 09:59:59.25Z"));
    for (const char* key : {"XMP:DateTimeOriginal", "XMP:DateCreated"})
        EXPECT_EQ(tags.valueForKey(key), KTValue("2014:06:01 12:00:00.25+02:00")) << key;
    EXPECT_EQ(tags.valueForKey("XMP:City"), KTValue("Basel"));
    EXPECT_EQ(tags.valueForKey("XMP:Description-de"), KTValue("alt")) << "another language stays";
    EXPECT_EQ(open(file)->valueForKey("caption"), KTValue("new")) << "in every tag that is read";
    EXPECT_FALSE(photo->hasUnsavedChanges());
}

TEST_F(PhotoSaving, WhatIsClearedWhileTheImageIsWrittenIsNotInItsFirstSidecar) {
    setStyle(3);
    const auto file = makePhoto(folder, "a.jpg");
    auto photo = open(file);
    photo->setValueForKey("gpsDateTime", KTInstantFromMilliseconds(1401616799250));
    bool isSidecar = false;
    const KTPhotoSaving clearing{.proofTool = {},
                                 .didWrite =
                                     [&] {
                                         if (!std::exchange(isSidecar, true))
                                             photo->setValueForKey("gpsDateTime", {});
                                     },
                                 .didProve = {}};
    photo->saveWithBackupToFolder(std::nullopt, clearing);
    EXPECT_TRUE(tagsOf(file).find("EXIF:GPSDateStamp")) << "it was on its way";
    EXPECT_FALSE(tagsOf(folder / "a.xmp").find("XMP:GPSDateTime"));
    EXPECT_TRUE(photo->hasUnsavedChanges());
    photo->saveWithBackupToFolder(std::nullopt);
    EXPECT_FALSE(photo->hasUnsavedChanges());
    EXPECT_FALSE(tagsOf(file).find("EXIF:GPSDateStamp"));
    EXPECT_FALSE(photo->valueForKey("gpsDateTime").isSomething());
}

TEST_F(PhotoSaving, AnEditThatReachedTheSidecarAloneStaysOneForTheImage) {
    setStyle(3);
    auto photo = open(makePhoto(folder, "a.jpg"));
    photo->setValueForKey("label", "l");
    const KTPhotoSaving typing{
        .proofTool = {}, .didWrite = [&] { photo->setValueForKey("title", "t"); }, .didProve = {}};
    photo->saveWithBackupToFolder(std::nullopt, typing);
    ASSERT_EQ(tagsOf(folder / "a.xmp").valueForKey("XMP:Title"), KTValue("t"));
    for (const KTValue& value : {KTValue(), KTValue("t")}) {
        EXPECT_TRUE(photo->hasUnsavedChanges());
        photo->setValueForKey("title", value);
    }
    EXPECT_TRUE(imageChanges(photo).find("XMP:Title"));
}

TEST_F(PhotoSaving, AFailedSaveLeavesTheFileAndTheChanges) {
    auto file = makePhoto(folder, "a.jpg", {{"XMP:Title", "old"}});
    const std::string before = contentOf(file);
    auto photo = open(file);
    photo->setValueForKey("title", "new");
    photo->saveWithBackupToFolder(folder / "no such folder");
    const KTPhotoOperation failed = *photo->lastPhotoOperation();
    EXPECT_EQ(failed.operationDescription, "Copy original image to backup folder");
    EXPECT_EQ(failed.resultType(), KTPhotoOperation::Failure);
    EXPECT_EQ(failed.failureReason, 1U);
    EXPECT_TRUE(photo->hasUnsavedChanges());
    EXPECT_EQ(contentOf(file), before);
    EXPECT_TRUE(photo->valueForKey("metadataDate").isAbsent()) << "the stamps are withdrawn";

    std::filesystem::resize_file(file, 40); // damaged behind our back
    photo->saveWithBackupToFolder(std::nullopt);
    EXPECT_TRUE(photo->hasUnsavedChanges());
    EXPECT_EQ(contentOf(file), before.substr(0, 40));
    EXPECT_TRUE(leftNothingBehind(folder, 1));
}

TEST_F(PhotoSaving, AfterAFailedSaveInAnotherZoneThePhotoGoesBackToUnedited) {
    const auto file = makePhoto(folder, "a.jpg", {{"EXIF:ModifyDate", "2010:03:20 12:05:03"}});
    auto photo = openWithUndo(file);
    const KTValue shown = photo->valueForKey("modifyDate");
    // What has no zone reads otherwise from now on.
    KTMetadataFieldManager::sharedMetadataFieldManager().setAssumedTimeZone(KTTimeZone::fixed(5 * 3600));
    photo->setValueForKey("title", "Gipfel");
    std::filesystem::resize_file(file, 40);
    photo->saveWithBackupToFolder(std::nullopt);
    ASSERT_FALSE(lastWrite(photo).operationDidSucceed);
    EXPECT_TRUE(photo->hasUnsavedChanges());
    EXPECT_EQ(photo->valueForKey("modifyDate"), shown);
    ASSERT_TRUE(undo->undo());
    EXPECT_FALSE(photo->hasUnsavedChanges());
    EXPECT_TRUE(imageChanges(photo).empty());
}

TEST_F(PhotoSaving, WhenOnlyTheSidecarFailsTheImageCountsAsWrittenAndTheSidecarStaysPending) {
    setStyle(3);
    auto file = makePhoto(folder, "a.jpg");
    auto sidecar = folder.file("a.xmp", std::string_view("\1\2\3\4\0\6", 6));
    auto photo = open(file);
    photo->setValueForKey("title", "new");
    photo->saveWithBackupToFolder(std::nullopt);
    EXPECT_EQ(lastWrite(photo).resultType(), KTPhotoOperation::Failure);
    EXPECT_TRUE(photo->source(KTMetadataSource::Image).changes.empty());
    EXPECT_TRUE(photo->source(KTMetadataSource::Sidecar).changes.find("XMP:Title"));
    EXPECT_TRUE(photo->valueForKey("metadataDate").isSomething()) << "the image holds the stamp";
    EXPECT_EQ(tagsOf(file).valueForKey("XMP:Title"), KTValue("new"));
    EXPECT_EQ(contentOf(sidecar).size(), 6U);
    photo->setValueForKey("title", "other");
    photo->setValueForKey("title", "new");
    EXPECT_TRUE(photo->source(KTMetadataSource::Sidecar).changes.find("XMP:Title")) << "it lacks it still";
}

TEST_F(PhotoSaving, KeepsBackupsAndModificationDates) {
    KTUserDefaults::standardUserDefaults().setValue("defaultShouldPreserveModificationDate", true);
    auto file = makePhoto(folder, "a.jpg");
    const std::string before = contentOf(file);
    const auto modified = std::filesystem::last_write_time(file) - std::chrono::hours(48);
    std::filesystem::last_write_time(file, modified);
    std::filesystem::create_directory(folder / "backup");
    for (int round = 0; round < 2; ++round) {
        auto photo = open(file);
        photo->setValueForKey("title", "round " + std::to_string(round));
        photo->saveWithBackupToFolder(folder / "backup");
        EXPECT_FALSE(photo->hasUnsavedChanges());
    }
    EXPECT_EQ(std::filesystem::last_write_time(file), modified);
    EXPECT_EQ(contentOf(folder / "backup/a.jpg"), before);
    EXPECT_TRUE(std::filesystem::exists(folder / "backup/a-1.jpg"));
}

TEST_F(PhotoSaving, AValueThatTheFormatCannotHoldStaysPendingWithAWarning) {
    auto file = makePhoto(folder, "a.jpg", {{"IPTC:By-line", KTValue::listOfTexts({"old"})}});
    auto photo = open(file);
    photo->setValueForKey("creator", "Řž");
    photo->saveWithBackupToFolder(std::nullopt);
    EXPECT_EQ(lastWrite(photo).resultType(), KTPhotoOperation::Warning);
    EXPECT_NE(lastWrite(photo).resultDescription().find("IPTC:By-line"), std::string::npos);
    EXPECT_EQ(tagsOf(file).valueForKey("XMP:Creator").description(), "Řž");
}

TEST_F(PhotoSaving, IPTCFieldsThatDivergedKeepTheirValueWhenTheDigestIsRenewed) {
    auto file = makePhoto(folder, "a.jpg",
                          {{"IPTC:Headline", "iptc headline"},
                           {"XMP:Headline", "xmp headline"},
                           {"IPTC:ObjectName", "t"},
                           {"IPTC:Source", "iptc alone"},
                           {"XMP:Credit", "xmp alone"},
                           {"XMP:WebStatement", "url"},
                           {"Photoshop:URL", "other url"}});
    // A program that knows only IPTC changed it and left the digest of before.
    KTExifTool& tool = KTExifTool::sharedExifTool();
    tool.newExifTool();
    tool.evaluate("$exifTool->SetNewValue('Photoshop:IPTCDigest', '0' x 32, Protected => 1);");
    ASSERT_TRUE(tool.writeResultToFile(file).operationDidSucceed);
    auto photo = open(file);
    ASSERT_TRUE(photo->source(KTMetadataSource::Image).properties.hasIPTCChecksum &&
                !photo->source(KTMetadataSource::Image).properties.iptcChecksumDoesMatch);
    ASSERT_EQ(photo->valueForKey("headline"), KTValue("iptc headline"));
    ASSERT_TRUE(photo->valueForKey("credit").isAbsent());
    photo->setValueForKey("title", "new");
    photo->saveWithBackupToFolder(std::nullopt);
    EXPECT_EQ(open(file)->valueForKey("headline"), KTValue("iptc headline"));
    const KTTagDictionary tags = tagsOf(file);
    EXPECT_EQ(tags.valueForKey("XMP:Credit"), KTValue("xmp alone")) << "nothing is deleted unasked";
    EXPECT_EQ(photo->valueForKey("credit"), KTValue("xmp alone"))
        << "the photo shows what the file tells now";
    EXPECT_FALSE(tags.find("XMP:Source")) << "what only IPTC tells needs no second place";
    EXPECT_EQ(tags.valueForKey("Photoshop:URL"), KTValue("other url")) << "no business of the digest";
}

TEST_F(PhotoSaving, AFileThatAnotherProgramChangedKeepsWhatThatProgramWrote) {
    auto file = makePhoto(folder, "a.jpg", {{"XMP:Title", "old"}, {"XMP:Label", "old"}});
    auto photo = open(file);
    photo->setValueForKey("title", "ours");
    photo->setValueForKey("caption", "ours");
    KTExifTool::sharedExifTool().setValuesForKeysWithDictionary({{"XMP:Title", "theirs"},
                                                                 {"XMP:Label", "theirs"},
                                                                 {"XMP:Rating", 4},
                                                                 {"EXIF:ImageDescription", "theirs"},
                                                                 {"IPTC:Caption-Abstract", "theirs"}},
                                                                file);
    photo->saveWithBackupToFolder(std::nullopt);
    EXPECT_FALSE(photo->hasUnsavedChanges());
    EXPECT_EQ(lastWrite(photo).resultType(), KTPhotoOperation::Warning);
    EXPECT_EQ(lastWrite(photo).resultDescription(), "The file had changed since it was read.");
    const KTTagDictionary tags = tagsOf(file);
    EXPECT_EQ(tags.valueForKey("XMP:Title"), KTValue("ours"));
    EXPECT_EQ(tags.valueForKey("XMP:Label"), KTValue("theirs"));
    EXPECT_EQ(tags.valueForKey("XMP:Rating").description(), "4");
    for (const char* key : {"EXIF:ImageDescription", "IPTC:Caption-Abstract", "XMP:Description"})
        EXPECT_EQ(tags.valueForKey(key), KTValue("ours")) << key << ": blocks that were not there before";
    EXPECT_EQ(photo->valueForKey("label"), KTValue("theirs")) << "what was not edited follows the file";
    EXPECT_TRUE(photo->modifiedKeyValues().empty());

    // A file that was only touched is no matter.
    std::filesystem::last_write_time(file, std::filesystem::file_time_type::clock::now());
    photo->setValueForKey("title", "again");
    photo->saveWithBackupToFolder(std::nullopt);
    EXPECT_EQ(lastWrite(photo).resultType(), KTPhotoOperation::Success)
        << lastWrite(photo).resultDescription();
}

TEST_F(PhotoSaving, ASidecarThatAnotherProgramMadeMeanwhileIsEdited) {
    setStyle(2);
    auto file = makePhoto(folder, "a.jpg", {{"XMP:Title", "image"}, {"XMP:Label", "image"}});
    auto photo = open(file);
    photo->setValueForKey("title", "ours");
    auto sidecar = folder / "a.xmp";
    KTExifTool::sharedExifTool().setValuesForKeysWithDictionary({{"XMP:Rating", 3}}, sidecar,
                                                                makePhoto(folder, "empty.jpg"));
    photo->saveWithBackupToFolder(std::nullopt);
    EXPECT_FALSE(photo->hasUnsavedChanges());
    EXPECT_EQ(tagsOf(sidecar).valueForKey("XMP:Title"), KTValue("ours"));
    EXPECT_EQ(tagsOf(sidecar).valueForKey("XMP:Rating").description(), "3");
    EXPECT_FALSE(tagsOf(sidecar).find("XMP:Label")) << "it is theirs, not built from the image";
    EXPECT_EQ(photo->valueForKey("rating").number(), KTDecimal::fromInteger(3));

    std::filesystem::remove(sidecar); // and one that vanished is made from the image
    photo->setValueForKey("caption", "c");
    photo->saveWithBackupToFolder(std::nullopt);
    EXPECT_EQ(tagsOf(sidecar).valueForKey("XMP:Label"), KTValue("image"));
    EXPECT_EQ(tagsOf(sidecar).valueForKey("XMP:Title"), KTValue("ours"));
}

TEST_F(PhotoSaving, TwoPhotosThatShareASidecarLoseNothingOfEachOther) {
    setStyle(2);
    auto first = open(makePhoto(folder, "a.jpg")), second = open(makePhoto(folder, "a.tif"));
    first->setValueForKey("title", "first");
    second->setValueForKey("caption", "second");
    first->saveWithBackupToFolder(std::nullopt);
    second->saveWithBackupToFolder(std::nullopt);
    first->setValueForKey("label", "first");
    first->saveWithBackupToFolder(std::nullopt);
    const KTTagDictionary tags = tagsOf(folder / "a.xmp");
    EXPECT_EQ(tags.valueForKey("XMP:Title"), KTValue("first"));
    EXPECT_EQ(tags.valueForKey("XMP:Description"), KTValue("second"));
    EXPECT_EQ(tags.valueForKey("XMP:Label"), KTValue("first"));
}

TEST_F(PhotoSaving, TheCreationDateIsKeptAndMakesThePhotoUnsavedByItself) {
    auto file = makePhoto(folder, "a.jpg");
    const KTValue wish = KTInstantFromMilliseconds(1401616800000);
    auto photo = open(file);
    const KTValue original = photo->valueForKey("creationDate");
    photo->setValueForKey("creationDate", wish);
    EXPECT_TRUE(photo->unsavedFile() && photo->hasUnsavedChanges());
    photo->setValueForKey("creationDate", original);
    EXPECT_FALSE(photo->hasUnsavedChanges());
    photo->setValueForKey("creationDate", wish);
    photo->saveWithBackupToFolder(std::nullopt);
    EXPECT_FALSE(photo->hasUnsavedChanges());
    const KTPhotoOperation kept = operation(photo, "Set the creation date");
    if (kept.resultType() == KTPhotoOperation::Warning)
        GTEST_SKIP() << "this file system has no extended attributes: " << kept.resultDescription();
    EXPECT_EQ(kept.resultType(), KTPhotoOperation::Success);
    EXPECT_EQ(open(file)->valueForKey("creationDate"), wish);
    photo->setValueForKey("title", "t");
    photo->saveWithBackupToFolder(std::nullopt);
    EXPECT_EQ(open(file)->valueForKey("creationDate"), wish) << "another save keeps it";
}

TEST_F(PhotoSaving, AnUnobservedPhotoIsStampedToo) {
    auto file = makePhoto(folder, "a.jpg");
    auto tracked = open(file);
    tracked->setValueForKey("title", "t");
    auto photo = tracked.photo;
    tracked.tracker.reset();
    photo->saveWithBackupToFolder(std::nullopt);
    EXPECT_TRUE(tagsOf(file).find("XMP:MetadataDate") && tagsOf(file).find("XMP:ModifyDate"));
    EXPECT_EQ(photo->valueForKey("fileSize").number(),
              KTDecimal::fromInteger(std::int64_t(std::filesystem::file_size(file))));
}

TEST(WrittenValues, ComparesWithWhatTheFormatsGiveBack) {
    KTTagDictionary written{{"EXIF:GPSLatitude", *KTDecimal::fromText("47.9648628230")},
                            {"EXIF:ModifyDate", "2014:06:01 12:00:00+02:00"},
                            {"IPTC:TimeCreated", "12:00:00"},
                            {"XMP:Subject", KTValue::listOfTexts({"one"})},
                            {"XMP:Title", KTValue::null()},
                            {"XMP:Owner", KTValue::null()},
                            {"XMP:Headline", "not there"},
                            {"XMP:Label", "Řž"}};
    std::vector<KTTagDictionary::Entry> read;
    for (const auto& [key, value] : std::initializer_list<std::pair<const char*, const char*>>{
             {"EXIF:GPSLatitude", "47.9648628229722"},
             {"EXIF:ModifyDate", "2014:06:01 12:00:00"},
             {"EXIF:ModifyDate", "1999:01:01 00:00:00"}, // of the thumbnail's directory
             {"IPTC:TimeCreated", "12:00:00+00:00"},
             {"XMP:Subject", "one"},
             {"XMP:Owner", "still there"},
             {"XMP:Label", "?ž"}})
        read.push_back({KTTagKey(key), value});
    std::set<std::string> missing;
    for (const auto& [key, value] : valuesNotWritten(written, read))
        missing.insert(key.text());
    EXPECT_EQ(missing, (std::set<std::string>{"XMP:Headline", "XMP:Label", "XMP:Owner"}));
}

TEST_F(PhotoSaving, ADateOfTheThumbnailsDirectoryDoesNotHideThatTheWriteArrived) {
    auto file =
        makePhoto(folder, "a.tif", {{"IFD1:ModifyDate", "1999:01:01 00:00:00"}, {"IFD1:ImageWidth", 1}});
    auto photo = open(file);
    photo->setValueForKey("title", "new");
    photo->saveWithBackupToFolder(std::nullopt);
    EXPECT_EQ(lastWrite(photo).resultDescription(), "");
    EXPECT_FALSE(photo->hasUnsavedChanges());
}
