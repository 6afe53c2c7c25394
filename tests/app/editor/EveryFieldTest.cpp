#include "tests/app/editor/EditorFixture.h"

#include "app/editor/KTMetadataFieldMultipleValueArrayViewItem.h"
#include "collection/KTPhotoFileList.h"
#include "tests/corpus/StockExifTool.h"

#include <cstdlib>

namespace {

struct Row {
    const char* key;
    const char* typed;                     ///< into the field's editor
    std::vector<std::string_view> holders; ///< tags of which one must hold it
    std::string_view held;                 ///< part of that tag's text
};

// What the stock program calls the tags; structures are shown whole.
const Row kRows[] = {
    {"title", "Sample title", {"XMP:Title"}, "Sample title"},
    {"headline", "Sample headline", {"XMP:Headline"}, "Sample headline"},
    {"caption", "Ein Café am See", {"XMP:Description"}, "Ein Café am See"},
    {"captionWriter", "Sample writer", {"XMP:CaptionWriter"}, "Sample writer"},
    {"keywords", "sample keyword", {"XMP:Subject"}, "sample keyword"},
    {"people", "Ada Example", {"XMP:PersonInImage"}, "Ada Example"},
    {"event", "Sample event", {"XMP:Event"}, "Sample event"},
    {"creator", "Sample creator", {"XMP:Creator"}, "Sample creator"},
    {"creatorJobtitle", "Sample job", {"XMP:AuthorsPosition"}, "Sample job"},
    {"creatorAddress", "Sample street", {"XMP:CreatorContactInfo"}, "Sample street"},
    {"creatorCity", "Sample town", {"XMP:CreatorContactInfo"}, "Sample town"},
    {"creatorState", "Sample region", {"XMP:CreatorContactInfo"}, "Sample region"},
    {"creatorPostalCode", "A-1010", {"XMP:CreatorContactInfo"}, "A-1010"},
    {"creatorCountry", "Sample land", {"XMP:CreatorContactInfo"}, "Sample land"},
    {"creatorWorkTelephone", "+43 1 234", {"XMP:CreatorContactInfo"}, "+43 1 234"},
    {"creatorWorkEmail", "a@example.org", {"XMP:CreatorContactInfo"}, "a@example.org"},
    {"creatorURL", "https://example.org/a", {"XMP:CreatorContactInfo"}, "example.org"},
    {"certificate", "Sample certificate", {"XMP:Certificate"}, "Sample certificate"},
    {"copyrightNotice", "Sample rights", {"XMP:Rights"}, "Sample rights"},
    {"copyrightURL", "https://example.org/c", {"XMP:WebStatement"}, "https://example.org/c"},
    {"credit", "Sample credit", {"XMP:Credit"}, "Sample credit"},
    {"instructions", "Sample instruction", {"XMP:Instructions"}, "Sample instruction"},
    {"owner", "Sample owner", {"XMP:Owner"}, "Sample owner"},
    {"source", "Sample source", {"XMP:Source"}, "Sample source"},
    {"usageTerms", "Sample terms", {"XMP:UsageTerms"}, "Sample terms"},
    {"marked", "Copyrighted", {"XMP:Marked"}, "true"},
    {"rating", "4", {"XMP:Rating"}, "4"},
    {"label", "Sample label", {"XMP:Label"}, "Sample label"},
    {"category", "sam", {"XMP:Category"}, "sam"},
    {"supplementalCategories", "Sample other", {"XMP:SupplementalCategories"}, "Sample other"},
    {"intellectualGenre", "Sample genre", {"XMP:IntellectualGenre"}, "Sample genre"},
    {"sceneCodes", "011200", {"XMP:Scene"}, "011200"},
    {"subjectCodes", "IPTC:15054000:SPO", {"XMP:SubjectCode"}, "15054000"},
    {"transmissionReference", "Sample job 7", {"XMP:TransmissionReference"}, "Sample job 7"},
    {"worldRegionCreated", "Sample created region", {"XMP:LocationCreated"}, "Sample created region"},
    {"countryCodeCreated", "ch", {"XMP:LocationCreated"}, "\"CH\""},
    {"countryCreated", "Sample created country", {"XMP:LocationCreated"}, "Sample created country"},
    {"stateCreated", "Sample created state", {"XMP:LocationCreated"}, "Sample created state"},
    {"cityCreated", "Sample created city", {"XMP:LocationCreated"}, "Sample created city"},
    {"locationCreated", "Sample created place", {"XMP:LocationCreated"}, "Sample created place"},
    {"worldRegionShown", "Sample shown region", {"XMP:LocationShown"}, "Sample shown region"},
    {"countryCodeShown", "aut", {"XMP:CountryCode"}, "AUT"},
    {"countryShown", "Sample shown country", {"XMP:Country"}, "Sample shown country"},
    {"stateShown", "Sample shown state", {"XMP:State"}, "Sample shown state"},
    {"cityShown", "Sample shown city", {"XMP:City"}, "Sample shown city"},
    {"locationShown", "Sample shown place", {"XMP:LocationShown"}, "Sample shown place"},
    {"latitude", "33.856784 S, 151.215297 E", {"EXIF:GPSLatitude", "XMP:GPSLatitude"}, "33.856784"},
    {"latitudeShown", "-33.9, 151.25", {"EXIF:GPSDestLongitude", "XMP:GPSDestLongitude"}, "151.25"},
    {"altitude", "434.5 m", {"EXIF:GPSAltitude", "XMP:GPSAltitude"}, "434.5"},
    {"gpsDateTime", "2013-05-06 05:08:09Z", {"EXIF:GPSTimeStamp", "XMP:GPSDateTime"}, "05:08:09"},
    {"dateTimeOriginalComponents", "2013-05-06 07:08:09", {"XMP:DateCreated"}, "2013:05:06 07:08:09"},
    {"dateTimeDigitizedComponents", "2014-07-08 09:10:11", {"XMP:CreateDate"}, "2014:07:08 09:10:11"},
};

class EveryField : public EditorFixture {
protected:
    void SetUp() override {
        EditorFixture::SetUp();
        set("AltitudeFieldIsEditableDefault", true);
        set("defaultAssumedTimeZoneOffset", 7200);
    }

    void typeEverything() {
        for (const Row& row : kRows) {
            const auto editorOfField = item(row.key);
            ASSERT_TRUE(editorOfField && editorOfField->isEditable()) << row.key;
            using Lists = KTMetadataFieldMultipleValueArrayViewItem;
            const auto list = dynamic_cast<Lists*>(editorOfField.get());
            if (list != nullptr)
                list->setValue(row.typed, list->values().size());
            else if (editorOfField->kind() == KTMetadataFieldItemKind::Marked)
                editorOfField->setValue(row.typed);
            else
                editorOfField->setText(row.typed);
            EXPECT_EQ(editorOfField->problem(), "") << row.key;
            editorOfField->endEditing();
        }
    }
    /// Each editable field is typed for all photos in the folder "photos", saved, and looked for with the
    /// stock program.
    void expectEveryFieldInTheFiles() {
        typeEverything();
        bool isSaved = false;
        manager.savePhotos(*manager.photos(), [&] { isSaved = true; });
        ASSERT_TRUE(runEventLoopUntil([&] { return isSaved; }));
        const auto files = readTags(folder / "photos");
        for (const auto& photo : *manager.photos()) {
            EXPECT_FALSE(photo->hasUnsavedChanges()) << photo->path();
            const auto written = photo->writingToXMPSidecar() ? photo->xmpURL() : photo->fileURL();
            for (const Row& row : kRows) {
                std::string found;
                const FileTags& tags = files.at(written.filename().string());
                for (const std::string_view holder : row.holders)
                    found += tags.textOf(holder) + "\n";
                EXPECT_NE(found.find(row.held), std::string::npos)
                    << photo->filename() << ": " << row.key << " is " << found;
            }
        }
    }
};

bool isRaw(const std::filesystem::path& file) {
    const std::string extension = KTLowercase(file.extension().string());
    return extension == ".nef" || extension == ".cr2" || extension == ".arw" || extension == ".orf";
}

/// The kind of file that a photo is an example of; empty for none that is wanted.
std::string kindOf(const KTPhoto& photo) {
    const std::string extension = KTLowercase(photo.fileURL().extension().string());
    const KTMetadataProperties has = photo.source(KTMetadataSource::Image).properties;
    if (extension == ".jpg" && has.hasEXIFBlock && has.hasIPTCBlock && has.hasXMPBlock)
        return "JPEG with all blocks";
    return extension == ".tif" || extension == ".png" ? extension : isRaw(photo.fileURL()) ? "raw" : "";
}

} // namespace

TEST_F(EveryField, IsAmongThoseTyped) {
    // Each save stamps two of these anew; the third is no tag but the date of the file.
    std::set<std::string_view> typed = {"metadataDate", "modifyDate", "creationDate"};
    for (const Row& row : kRows)
        typed.insert(row.key);
    add("a.jpg");
    selectAll();
    for (const auto& field : catalogue.metadataFields()) {
        const auto editorOfField = item(field->key().c_str());
        EXPECT_EQ(editorOfField && editorOfField->isEditable(), typed.contains(field->key())) << field->key();
    }
}

TEST_F(EveryField, ReachesMadeFiles) {
    std::filesystem::create_directory(folder / "photos");
    add("photos/blocks.jpg", {{"EXIF:Make", "Maker"}, {"IPTC:Headline", "Old"}, {"XMP:Label", "Old"}});
    for (const char* name : {"photos/none.jpg", "photos/a.tif", "photos/a.png", "photos/raw.nef"})
        add(name);
    const std::string oldSidecar =
        R"(<x:xmpmeta xmlns:x='adobe:ns:meta/'><rdf:RDF xmlns:rdf='http://www.w3.org/1999/02/22-rdf-syntax-ns#'>)"
        R"(<rdf:Description rdf:about='' xmlns:xmp='http://ns.adobe.com/xap/1.0/' xmp:Label='Old'/></rdf:RDF></x:xmpmeta>)";
    folder.file("photos/sidecar.xmp", oldSidecar);
    EXPECT_TRUE(add("photos/sidecar.nef")->writingToXMPSidecar());
    selectAll();
    expectEveryFieldInTheFiles();
}

/// On demand: on copies of real files, of the folder that WAYMARK_CORPUS names.
TEST_F(EveryField, ReachesRealFiles) {
    const char* corpus = std::getenv("WAYMARK_CORPUS");
    if (corpus == nullptr)
        GTEST_SKIP() << "WAYMARK_CORPUS names no folder of photos";
    const auto photos = folder / "photos", stripped = folder / "stripped";
    std::filesystem::create_directory(photos);
    std::set<std::string> kinds;
    for (const auto& file : KTPhotoFileList::fromPaths({corpus}).files) {
        const auto photo = KTPhoto::initWithFile(file);
        if (!photo || kindOf(*photo).empty() || kinds.contains(kindOf(*photo)))
            continue;
        const auto copy = photos / file.filename();
        std::filesystem::copy_file(file, copy);
        std::filesystem::permissions(copy, std::filesystem::perms::owner_write,
                                     std::filesystem::perm_options::add);
        if (refusedFiles(photos).empty())
            kinds.insert(kindOf(*photo));
        else
            std::filesystem::remove(copy); // damaged: nobody can write it
    }
    EXPECT_EQ(kinds.size(), 4u);
    stripFiles(photos, stripped);
    for (const auto& file : std::filesystem::directory_iterator(stripped))
        std::filesystem::rename(file, photos / "none.jpg");
    for (const auto& file : std::filesystem::directory_iterator(photos))
        manager.addNewPhoto(KTPhoto::initWithFile(file));
    EXPECT_EQ(manager.photos()->size(), 5u);
    selectAll();
    expectEveryFieldInTheFiles();
}
