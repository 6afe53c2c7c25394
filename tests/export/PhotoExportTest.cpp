#include "tests/export/ExportFixture.h"

#include "metadata/KTExifTool.h"
#include "photo/KTPhotoChangeTracker.h"
#include "platform/defaults/KTUserDefaults.h"

#include <QColorSpace>
#include <QImage>
#include <QImageReader>
#include <csignal>
#include <fstream>
#include <sys/resource.h>
#include <sys/stat.h>

namespace fs = std::filesystem;

namespace {

/// Exports photos of the test's own making without a plug-in.
class PhotoExportTest : public testing::Test {
protected:
    PhotoExportTest() { KTUserDefaults::useThrowAwayDomain(); }

    fs::path picture(const fs::path& name, const QSize& size, const KTTagDictionary& tags = {},
                     QImage::Format format = QImage::Format_RGB32, QColorSpace colors = {}) {
        QImage image(size, format);
        image.fill(Qt::darkGreen);
        image.setColorSpace(colors);
        const fs::path file = folder / name;
        EXPECT_TRUE(image.save(QString::fromStdString(file)));
        EXPECT_TRUE(
            tags.empty() ||
            KTExifTool::sharedExifTool().setValuesForKeysWithDictionary(tags, file).operationDidSucceed);
        return file;
    }

    /// The result for the photo in @p file, exported as @p name; its record may be edited before.
    KTPhotoExportResult exportFile(
        const fs::path& file, const fs::path& name, const KTPhotoExportOptions& options = {},
        const std::function<void(KTPhoto&)>& edit = [](KTPhoto&) {}) {
        operation = KTPhotoExportManagerOperation::make();
        const auto photo = KTPhoto::initWithFile(file);
        edit(*photo);
        operation->setPhotos({std::make_shared<KTExportedPhotoCopy>(photo->copyWithZone())}, {0});
        return operation->exportPhoto(*operation->photos().front(), folder / name, options);
    }

    static QSize sizeOf(const fs::path& file) { return QImageReader(QString::fromStdString(file)).size(); }

    std::string names(const fs::path& of) const {
        std::set<std::string> sorted;
        for (const auto& entry : fs::directory_iterator(of))
            sorted.insert(entry.path().filename());
        std::string all;
        for (const std::string& name : sorted)
            all += name + ' ';
        return all;
    }

    const TemporaryFolder folder;
    std::shared_ptr<KTPhotoExportManagerOperation> operation;
};

const KTTagDictionary kPlace = {{"EXIF:GPSLatitude", KTValue(46)},
                                {"EXIF:GPSLatitudeRef", "N"},
                                {"EXIF:GPSLongitude", KTValue(14)},
                                {"EXIF:GPSLongitudeRef", "E"},
                                {"EXIF:GPSAltitude", KTValue(300)},
                                {"EXIF:GPSTimeStamp", "12:00:00"},
                                {"EXIF:GPSMapDatum", "WGS-84"},
                                {"EXIF:GPSVersionID", "2 3 0 0"},
                                {"XMP:GPSLatitude", KTValue(46)},
                                {"XMP:GPSLongitude", KTValue(14)},
                                {"XMP:City", "Radovljica"},
                                {"IPTC:City", "Radovljica"},
                                {"IPTC:Country-PrimaryLocationName", "Slovenia"},
                                {"XMP:LocationShownCity", KTValue::listOfTexts({"Radovljica"})},
                                {"XMP:LocationCreatedSublocation", "Linhart Square"},
                                {"XMP:Subject", KTValue::listOfTexts({"summer", "Radovljica"})},
                                {"XMP:History", "cropped in Radovljica"},
                                {"XMP:HistoryAction", KTValue::listOfTexts({"saved"})},
                                {"XMP:CreatorCity", "Radovljica"},
                                {"XMP:Title", "market"},
                                {"EXIF:Artist", "Ana"}};

bool isPosition(std::string_view key) {
    return key.find("GPS") != std::string_view::npos;
}

} // namespace

TEST_F(PhotoExportTest, WithoutSizeAndTypeIsACopyWithTheMetadataAsShown) {
    const auto file = picture("a.jpg", {40, 30}, {{"EXIF:Artist", "Ana"}, {"XMP:Title", "market"}});
    ASSERT_TRUE(exportFile(file, "same.jpg"));
    EXPECT_EQ(contentOf(folder / "same.jpg"), contentOf(file));
    // Edits that are not saved, and those that a sidecar alone holds.
    ASSERT_TRUE(exportFile(file, "edited.jpg", {}, [](KTPhoto& photo) {
        const KTPhotoChangeTracker tracker(photo);
        photo.setValueForKey("title", "fair");
    }));
    EXPECT_EQ(tagsOf(folder / "edited.jpg").valueForKey("XMP:Title"), KTValue("fair"));
    EXPECT_EQ(tagsOf(folder / "edited.jpg").valueForKey("EXIF:Artist"), KTValue("Ana"));
    EXPECT_EQ(QImage(QString::fromStdString(folder / "edited.jpg")), QImage(QString::fromStdString(file)));
    EXPECT_EQ(tagsOf(file).valueForKey("XMP:Title"), KTValue("market"));
}

TEST_F(PhotoExportTest, SizesAreExactAndPicturesUpright) {
    struct Case {
        QSize size;
        KTImageSize box;
        int orientation;
        QSize expected;
    };
    for (const Case& one :
         {Case{{400, 300}, {100, 100}, 1, {100, 75}}, Case{{300, 400}, {100, 100}, 1, {75, 100}},
          Case{{400, 300}, {100, 50}, 6, {38, 50}}, Case{{400, 300}, {800, 800}, 1, {800, 600}},
          Case{{400, 300}, {100, 50}, 3, {67, 50}}}) {
        const auto file = picture("a.jpg", one.size,
                                  {{"EXIF:Orientation", KTValue(one.orientation)},
                                   {"EXIF:ExifImageWidth", KTValue(one.size.width())},
                                   {"EXIF:ExifImageHeight", KTValue(one.size.height())},
                                   {"EXIF:Artist", "Ana"}});
        ASSERT_TRUE(exportFile(file, "b.jpg", {{KTImageSizeOption, one.box}, {KTImageQualityOption, 0.9}}));
        EXPECT_EQ(sizeOf(folder / "b.jpg"), one.expected);
        const auto tags = tagsOf(folder / "b.jpg");
        EXPECT_EQ(tags.valueForKey("EXIF:Orientation"), KTValue(1));
        EXPECT_EQ(tags.valueForKey("EXIF:ExifImageWidth"), KTValue(one.expected.width()));
        EXPECT_EQ(tags.valueForKey("EXIF:Artist"), KTValue("Ana"));
        fs::remove(folder / "b.jpg");
    }
}

TEST_F(PhotoExportTest, OrientationCountsOnceWhereverItStands) {
    const auto file = picture("a.jpg", {400, 300}, {{"EXIF:Artist", "Ana"}});
    picture("b.png", {400, 300}, {{"EXIF:Orientation", KTValue(6)}}); // its reader does not turn it
    ASSERT_TRUE(KTExifTool::sharedExifTool()
                    .setValuesForKeysWithDictionary({{"XMP:Orientation", KTValue(6)}}, folder / "a.xmp", file)
                    .operationDidSucceed);
    for (const char* name : {"a.jpg", "b.png"}) {
        const KTPhotoExportOptions small = {{KTImageSizeOption, KTImageSize{100, 100}},
                                            {KTImageTypeOption, "public.jpeg"}};
        ASSERT_TRUE(exportFile(folder / name, "made.jpg", small));
        EXPECT_EQ(sizeOf(folder / "made.jpg"), QSize(75, 100)) << name;
        const KTValue left = tagsOf(folder / "made.jpg").valueForKey("EXIF:Orientation");
        EXPECT_TRUE(!left.isSomething() || left == KTValue(1)) << name;
        fs::remove(folder / "made.jpg");
        for (const bool excludes : {false, true}) {
            const fs::path copy = "copy" + fs::path(name).extension().string();
            ASSERT_TRUE(exportFile(folder / name, copy, {{KTExcludeLocationOption, excludes}}));
            EXPECT_EQ(sizeOf(folder / copy), QSize(400, 300)) << name;
            EXPECT_EQ(tagsOf(folder / copy).valueForKey("EXIF:Orientation"), KTValue(6)) << name;
            fs::remove(folder / copy);
        }
    }
}

TEST_F(PhotoExportTest, TypesProfilesAndDepthsAreKeptOrTold) {
    const auto wide = picture("wide.png", {64, 48}, {{"XMP:Title", "market"}}, QImage::Format_RGBX64,
                              QColorSpace(QColorSpace::AdobeRgb));
    for (const auto& [type, extension] :
         {std::pair("public.jpeg", "jpg"), std::pair("public.tiff", "tif"), std::pair("public.png", "png")}) {
        const auto name = std::string("out.") + extension;
        KTPhotoExportOptions options = {{KTImageTypeOption, type}, {KTImageSizeOption, KTImageSize{32, 32}}};
        const auto result = exportFile(wide, name, options);
        ASSERT_TRUE(result) << result.reason;
        const QImage image(QString::fromStdString(folder / name));
        EXPECT_EQ(image.size(), QSize(32, 24));
        EXPECT_EQ(image.colorSpace().primaries(), QColorSpace::Primaries::AdobeRgb) << type;
        EXPECT_NEAR(image.pixelColor(10, 10).green(), QColor(Qt::darkGreen).green(), 2);
        const auto tags = tagsOf(folder / name);
        EXPECT_EQ(tags.valueForKey("XMP:Title"), KTValue("market"));
        EXPECT_EQ(tags.valueForKey("File:MIMEType"),
                  KTValue(type == std::string("public.jpeg")   ? "image/jpeg"
                          : type == std::string("public.tiff") ? "image/tiff"
                                                               : "image/png"));
    }
    EXPECT_FALSE(exportFile(wide, "x.gif", {{KTImageTypeOption, "com.compuserve.gif"}}));
    EXPECT_FALSE(exportFile(wide, "x.what", {{KTImageTypeOption, "what"}}));
    EXPECT_FALSE(exportFile(folder.file("broken.jpg", "\xff\xd8\xff"), "x.jpg",
                            {{KTImageSizeOption, KTImageSize{10, 10}}}));
    EXPECT_EQ(names(folder.path()), "broken.jpg out.jpg out.png out.tif wide.png ");
    for (const char* readable : {"x.JPG", "x.tif", "x.png", "x.nef"})
        EXPECT_TRUE(operation->isImageIOSupported(readable)) << readable;
    for (const char* other : {"x", "x.gpx", "x.psd", ".png"})
        EXPECT_FALSE(operation->isImageIOSupported(other)) << other;
    EXPECT_EQ(operation->validExportFormats(),
              (std::vector<std::string>{"public.jpeg", "public.png", "public.tiff"}));
}

TEST_F(PhotoExportTest, WithoutLocationNothingOfThePlaceRemains) {
    for (const char* name : {"a.jpg", "a.png", "a.tif"}) {
        const auto file = picture(name, {64, 48}, kPlace);
        const std::string before = contentOf(file);
        int number = 0;
        for (KTPhotoExportOptions options :
             {KTPhotoExportOptions{},
              {{KTImageSizeOption, KTImageSize{32, 32}}, {KTImageTypeOption, "public.jpeg"}}}) {
            options[KTExcludeLocationOption] = true;
            const auto out = std::to_string(++number) +
                             (options.size() > 1 ? ".jpg" : fs::path(name).extension().string());
            const auto result = exportFile(file, out, options);
            ASSERT_TRUE(result) << name << ' ' << result.reason;
            const auto tags = tagsOf(folder / out);
            for (const auto& [key, value] : tags)
                EXPECT_FALSE(isPosition(key)) << key.text();
            const std::string content = contentOf(folder / out);
            EXPECT_EQ(content.find("Slovenia"), std::string::npos);
            EXPECT_EQ(content.find("Linhart"), std::string::npos);
            EXPECT_FALSE(tags.hasValue("XMP:City") || tags.hasValue("IPTC:City") ||
                         tags.hasValue("XMP:History"));
            EXPECT_EQ(tags.valueForKey("XMP:Subject"), KTValue("summer")); // the other one named the place
            EXPECT_EQ(tags.valueForKey("XMP:Title"), KTValue("market"));
            EXPECT_EQ(tags.valueForKey("XMP:CreatorCity"), KTValue("Radovljica")); // where to reach her
            EXPECT_EQ(tags.valueForKey("EXIF:Artist"), KTValue("Ana"));
            fs::remove(folder / out);
        }
        EXPECT_EQ(contentOf(file), before);
        fs::remove(file);
    }
}

TEST_F(PhotoExportTest, APlaceThatCannotBeRemovedKeepsThePhotoFromBeingExported) {
    KTTagDictionary tags = kPlace;
    tags.set("XMP:Description", "A day in Radovljica");
    const auto result =
        exportFile(picture("a.jpg", {64, 48}, tags), "b.jpg", {{KTExcludeLocationOption, true}});
    EXPECT_FALSE(result);
    EXPECT_NE(result.reason.find("XMP:Description"), std::string::npos) << result.reason;
    // Behind the picture of a TIFF file lies a preview with a position of its own.
    const auto file = picture("c.tif", {64, 48});
    std::ofstream(file, std::ios::app)
        << contentOf(picture("d.jpg", {8, 8}, {{"EXIF:GPSLatitude", KTValue(46)}}));
    EXPECT_FALSE(exportFile(file, "e.tif", {{KTExcludeLocationOption, true}}));
    // A JPEG file is rebuilt, so that what lies behind its picture does not come with it.
    const auto jpeg = picture("f.jpg", {64, 48});
    std::ofstream(jpeg, std::ios::app) << contentOf(folder / "d.jpg");
    EXPECT_TRUE(exportFile(jpeg, "g.jpg", {{KTExcludeLocationOption, true}}));
    EXPECT_EQ(names(folder.path()), "a.jpg c.tif d.jpg f.jpg g.jpg ");
}

TEST_F(PhotoExportTest, PrivacyZonesHoldForPhotosAndTracksInEveryExport) {
    const auto file = picture("a.jpg", {64, 48}, kPlace);
    auto& settings = KTUserDefaults::standardUserDefaults();
    const auto latitude = [this] { return operation->photos().front()->valueForKey("latitude"); };
    settings.setValue("exportPrivacyZones",
                      KTValue::listOfTexts({"46.5 14 1000 far", "46.01 14 2000 Home sweet home"}));
    ASSERT_TRUE(exportFile(file, "near.jpg"));
    EXPECT_FALSE(tagsOf(folder / "near.jpg").hasValue("EXIF:GPSLatitude"));
    EXPECT_EQ(latitude(), KTExportedValue());
    EXPECT_EQ(operation->photos().front()->valueForKey("title"), KTExportedValue("market"));
    settings.setValue("exportPrivacyZones", KTValue::listOfTexts({"46.01 14 1000"}));
    ASSERT_TRUE(exportFile(file, "outside.jpg"));
    EXPECT_TRUE(tagsOf(folder / "outside.jpg").hasValue("EXIF:GPSLatitude"));
    EXPECT_EQ(latitude(), KTExportedValue(46.0));
    for (const char* damaged : {"home", "46 14", "46 14 0", "91 14 100", "46 181 100"}) {
        settings.setValue("exportPrivacyZones", KTValue::listOfTexts({damaged}));
        EXPECT_FALSE(exportFile(file, "damaged.jpg")) << damaged;
    }
    EXPECT_EQ(KTPrivacyZone::fromText("46.01  14 2000 Home sweet home")->text(),
              "46.01 14 2000 Home sweet home");
}

TEST_F(PhotoExportTest, NothingIsReplacedUnlessAllowedAndThenInOneStep) {
    const auto file = picture("a.jpg", {64, 48});
    const auto old = folder.file("b.jpg", "mine");
    EXPECT_FALSE(exportFile(file, "b.jpg"));
    EXPECT_EQ(contentOf(old), "mine");
    EXPECT_FALSE(exportFile(file, "a.jpg")); // the photo itself
    operation->allowReplacing({folder / "a.jpg", folder / "x" / ".." / "b.jpg"});
    const auto& photo = *operation->photos().front();
    EXPECT_FALSE(operation->exportPhoto(photo, file, {}));
    EXPECT_TRUE(operation->exportPhoto(photo, old, {}));
    EXPECT_EQ(contentOf(old), contentOf(file));
    EXPECT_FALSE(operation->exportPhoto(photo, old, {})); // another photo of the same export
    EXPECT_FALSE(operation->exportPhoto(photo, folder / "no folder" / "b.jpg", {}));
    fs::remove(file);
    EXPECT_FALSE(operation->exportPhoto(photo, folder / "c.jpg", {}));
    EXPECT_EQ(names(folder.path()), "b.jpg ");
}

TEST_F(PhotoExportTest, AFullDiskLeavesNoHalfFile) {
    const auto file = picture("a.jpg", {1200, 900}, {{"EXIF:Artist", "Ana"}});
    const auto old = folder.file("b.jpg", "mine");
    rlimit before = {};
    getrlimit(RLIMIT_FSIZE, &before);
    const auto handler = std::signal(SIGXFSZ, SIG_IGN); // a write beyond the limit then fails
    const rlimit limit = {4000, before.rlim_max};
    setrlimit(RLIMIT_FSIZE, &limit);
    for (KTPhotoExportOptions options : {KTPhotoExportOptions{},
                                         {{KTImageSizeOption, KTImageSize{1000, 1000}}},
                                         {{KTExcludeLocationOption, true}}}) {
        EXPECT_FALSE(exportFile(file, "c.jpg", options));
        operation->allowReplacing({old});
        EXPECT_FALSE(operation->exportPhoto(*operation->photos().front(), old, options));
    }
    setrlimit(RLIMIT_FSIZE, &before);
    std::signal(SIGXFSZ, handler);
    EXPECT_EQ(contentOf(old), "mine");
    EXPECT_EQ(names(folder.path()), "a.jpg b.jpg ");
}
