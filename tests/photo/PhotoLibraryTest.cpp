#include "tests/photo/PhotoFixture.h"

#include "platform/desktop/KTMediaObject.h"

#include <set>

namespace {

class PhotoLibrary : public PhotoFixture {
protected:
    static TrackedPhoto openItem(const std::filesystem::path& file, const char* source,
                                 KTValue::Dictionary attributes) {
        auto item = std::make_shared<KTMediaObject>();
        item->mediaSourceIdentifier = source;
        item->attributes = std::move(attributes);
        item->URL = file;
        return TrackedPhoto(KTPhoto::initWithFile(file, {}, std::move(item)));
    }
};

const KTValue kWords = KTValue::listOfTexts({"Beach", "Sun", "Holiday 2013"});

} // namespace

TEST_F(PhotoLibrary, TheLibraryWinsButForEventPeopleAndKeywords) {
    auto file = makePhoto(folder, "a.jpg",
                          {{"XMP:Title", "file"},
                           {"XMP:Event", "file"},
                           {"XMP:Label", "file"},
                           {"XMP:Subject", KTValue::listOfTexts({"file"})}});
    auto photo =
        openItem(file, "com.apple.iPhoto", {{"Caption", "library"}, {"Keywords", kWords}, {"Rating", 3}});
    EXPECT_TRUE(photo->shouldUseIPhotoProperties() && photo->shouldUseMediaObjectProperties());
    EXPECT_EQ(photo->valueForKey("title"), KTValue("library"));
    EXPECT_EQ(photo->valueForKey("event"), KTValue("file"));
    EXPECT_EQ(photo->valueForKey("keywords"), KTValue::listOfTexts({"file"}));
    EXPECT_EQ(photo->valueForKey("label"), KTValue("file"));
    EXPECT_EQ(photo->valueForKey("rating"), KTValue(3));
    EXPECT_TRUE(photo->modifiedKeyValues().empty());
    EXPECT_FALSE(photo->hasUnsavedChanges());

    auto aperture = openItem(file, "com.apple.Aperture", {{"Caption", "library"}});
    EXPECT_EQ(aperture->valueForKey("title"), KTValue("library"));
    EXPECT_FALSE(aperture->shouldUseIPhotoProperties());
    aperture->setValueForKey("caption", "c");
    EXPECT_FALSE(aperture->unsavedIPhoto()) << "only the one library is written to";
}

TEST_F(PhotoLibrary, AnEditIsPendingForTheLibraryUntilItTakesIt) {
    auto file = makePhoto(folder, "a.jpg");
    auto photo = openItem(file, "com.apple.iPhoto", {{"Caption", "library"}});
    photo->setValueForKey("title", "new");
    EXPECT_EQ(photo->source(KTMetadataSource::Library).changes, (KTTagDictionary{{"title", "new"}}));
    photo->saveWithBackupToFolder(std::nullopt);
    EXPECT_EQ(tagsOf(file).valueForKey("XMP:Title"), KTValue("new"));
    EXPECT_FALSE(photo->unsavedFile());
    // This platform has no such library to write to.
    EXPECT_TRUE(photo->unsavedIPhoto() && photo->hasUnsavedChanges());
    const KTPhotoOperation last = *photo->lastPhotoOperation();
    EXPECT_EQ(last.operationDescription, "Write metadata to iPhoto using ScriptingBridge");
    EXPECT_EQ(last.resultDescription(), "Unable to set the photos metadata using ScriptingBridge");

    auto words = openItem(makePhoto(folder, "b.jpg"), "com.apple.iPhoto", {{"Comment", "c"}});
    words->setValueForKey("keywords", KTValue::listOfTexts({"k"}));
    EXPECT_TRUE(words->unsavedIPhoto());
    words->saveWithBackupToFolder(std::nullopt);
    EXPECT_EQ(words->lastPhotoOperation()->resultType(), KTPhotoOperation::Success)
        << "they are never written";
    EXPECT_FALSE(words->hasUnsavedChanges());
    EXPECT_EQ(words->source(KTMetadataSource::Library).saved->valueForKey("xml:keywords"),
              KTValue::listOfTexts({"k"}));
}

TEST_F(PhotoLibrary, TheOriginalBesideAnEditedVersionReceivesTheEdits) {
    auto original = makePhoto(folder, "original.jpg", {{"XMP:Label", "same"}, {"XMP:Owner", "kept"}});
    auto edited = makePhoto(folder, "edited.jpg", {{"XMP:Owner", "other"}});
    auto photo = openItem(edited, "com.apple.Aperture",
                          {{"URL", edited.string()}, {"originalURL", original.string()}});
    photo->setValueForKey("title", "new");
    photo->setValueForKey("label", "same");
    photo->saveWithBackupToFolder(std::nullopt);
    EXPECT_EQ(tagsOf(original).valueForKey("XMP:Title"), KTValue("new"));
    EXPECT_EQ(tagsOf(original).valueForKey("XMP:Owner"), KTValue("kept")) << "only edits are handed on";
    EXPECT_EQ(tagsOf(edited).valueForKey("XMP:Title"), KTValue("new"));
    std::set<std::string> files;
    for (const KTPhotoOperation& entry : photo->photoOperations())
        files.insert(entry.filename());
    EXPECT_EQ(files, (std::set<std::string>{"original.jpg", "edited.jpg"})) << "one log tells of both";
}
