#include "metadata/KTExifToolLease.h"
#include "metadata/KTWritableTags.h"

#include "platform/common/KTText.h"
#include "tests/support/TestPhotos.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <thread>

namespace {

KTExifTool& tool() {
    return KTExifTool::sharedExifTool();
}

/// Reads a file tag by tag, by statements alone: the reference for the walk inside the interpreter.
KTTagDictionary readByStatements(const std::filesystem::path& file) {
    KTExifTool& bridge = tool();
    bridge.evaluate("$fetchTool = new Image::ExifTool;");
    bridge.evaluate("$fetchTool->Options(FixBase=>'', IgnoreMinorErrors=>1, Composite=>1, Duplicates => 1, "
                    "PrintConv => 0, Sort => 'Group0', Exclude => 'ThumbnailImage');");
    bridge.setValueForVariable(file.string(), "fetchToolPath");
    bridge.evaluate("$imageInfo = $fetchTool->ImageInfo($fetchToolPath);");
    KTTagDictionary tags;
    KTValue count = bridge.evaluate("@tagList = $fetchTool->GetTagList( $imageInfo );");
    for (std::int64_t i = 0; i < *count.integer(); ++i) {
        const std::string tag = "$tagList[" + std::to_string(i) + "]";
        KTValue group = bridge.evaluate("$temp = $fetchTool->GetGroup(" + tag + ", 0);");
        KTValue name = bridge.evaluate("$temp = Image::ExifTool::GetTagName(" + tag + ");");
        KTValue value;
        if (name == "LensID")
            value = bridge.evaluate("$fetchTool->GetValue('LensID', 'PrintConv');");
        else if (name == "DateTimeOriginal" &&
                 bridge.evaluate("$temp = $fetchTool->GetGroup(" + tag + ", 1);") == "IFD0")
            continue;
        else
            value = bridge.evaluate("$temp = $$imageInfo{" + tag + "};");
        if (value.isSomething())
            tags.set(group.description() + ":" + name.description(), value);
    }
    return tags;
}

} // namespace

TEST(ExifTool, ConvertsScalarsByTheirKind) {
    EXPECT_EQ(tool().evaluate("1/3"), KTValue(*KTDecimal::fromText("0.333333333333")));
    EXPECT_TRUE(tool().evaluate("my $x = '2.5'; my $y = $x + 0; $x").decimal()) << "text used as a number";
    EXPECT_EQ(tool().evaluate("'2.50'"), KTValue("2.50"));
    EXPECT_TRUE(tool().evaluate("42").integer());
    EXPECT_EQ(tool().evaluate("18446744073709551615"), KTValue(KTDecimal::fromUnsigned(UINT64_MAX)));
    EXPECT_EQ(tool().evaluate("['a', undef, {}, 3, ['b']]"),
              KTValue(KTValue::List{"a", 3, KTValue(KTValue::List{"b"})}));
    EXPECT_EQ(tool().evaluate("\\'bytes'"), KTValue("bytes"));
    EXPECT_TRUE(tool().evaluate("{a => 1}").isAbsent());
    EXPECT_TRUE(tool().evaluate("sub {}").isAbsent());
    EXPECT_TRUE(tool().evaluate("\"\\xff\\xfe\"").isAbsent()) << "not UTF-8";
    EXPECT_TRUE(tool().evaluate("die 'reported, not fatal'").isAbsent());
}

TEST(ExifTool, VariablesTakeTextsOnlyAndKeepTheirValueOtherwise) {
    tool().setValueForVariable("$dollar 'quote' \"double\" \\ \n € 🙂", "stringValue");
    EXPECT_EQ(tool().valueForVariable("stringValue"), KTValue("$dollar 'quote' \"double\" \\ \n € 🙂"));
    tool().setValueForVariable(7, "stringValue");
    EXPECT_EQ(tool().valueForVariable("stringValue"), KTValue("$dollar 'quote' \"double\" \\ \n € 🙂"));
    EXPECT_TRUE(tool().valueForVariable("noSuchVariable").isAbsent());
}

TEST(ExifTool, ReadsTheSameByOneWalkAsTagByTag) {
    TemporaryFolder folder;
    KTTagDictionary written{{"EXIF:Make", "Canon"},
                            {"EXIF:Model", "Canon EOS 5D"},
                            {"EXIF:DateTimeOriginal", "2014:06:01 12:00:00"},
                            {"EXIF:FNumber", *KTDecimal::fromText("2.8")},
                            {"EXIF:FocalLength", 50},
                            {"EXIF:LensModel", "EF50mm f/1.4"},
                            {"EXIF:GPSLatitude", *KTDecimal::fromText("47.5")},
                            {"EXIF:GPSLatitudeRef", "N"},
                            {"IPTC:Keywords", KTValue::listOfTexts({"a", "b"})},
                            {"XMP:Subject", KTValue::listOfTexts({"c"})},
                            {"XMP:Title", "Zürich | „quoted“"}};
    for (const char* name : {"a.jpg", "b.png", "c.tif"}) {
        auto file = makePhoto(folder, name, written);
        KTTagDictionary walked = tagsOf(file);
        EXPECT_GT(walked.size(), 30U);
        KTTagDictionary reference = readByStatements(file);
        for (KTTagDictionary* tags : {&walked, &reference})
            tags->remove("File:FileAccessDate"); // reading the file may move it
        EXPECT_EQ(walked, reference) << name;
        EXPECT_EQ(walked.valueForKey("XMP:Title"), KTValue("Zürich | „quoted“"));
        EXPECT_TRUE(walked.find("Composite:Aperture")) << "composite tags are read";
    }
}

TEST(ExifTool, CaptureDateOfTheFirstDirectoryNeverStandsForTheOneOfTheExifDirectory) {
    TemporaryFolder folder;
    auto file = makePhoto(folder, "a.tif",
                          {{"ExifIFD:DateTimeOriginal", "2014:06:01 12:00:00"},
                           {"IFD0:DateTimeOriginal", "1999:01:01 00:00:00"}});
    EXPECT_EQ(tagsOf(file).valueForKey("EXIF:DateTimeOriginal"), KTValue("2014:06:01 12:00:00"));
    auto alone = makePhoto(folder, "b.tif", {{"IFD0:DateTimeOriginal", "1999:01:01 00:00:00"}});
    EXPECT_FALSE(tagsOf(alone).find("EXIF:DateTimeOriginal"));
}

TEST(ExifTool, AnyPathCrossesUnharmed) {
    TemporaryFolder folder;
    for (const char* name :
         {"ordinary.jpg", "Ünï©ödé 写真 🙂.jpg", "new\nline.jpg", "quo'te\"d.jpg", "$dollar@at%.jpg",
          "back\\slash.jpg", "latin1-\xe9.jpg", "-dash.jpg", "pipe|.jpg", " blank .jpg"}) {
        auto file = makePhoto(folder, name, {{"XMP:Title", name}});
        KTTagDictionary tags = tagsOf(file);
        EXPECT_EQ(tags.valueForKey("File:FileType"), KTValue("JPEG")) << name;
        // A text is UTF-8 and loses the blanks at its ends in XMP; a path may be any bytes.
        if (KTIsUTF8(name) && KTTrimmed(name) == name) {
            EXPECT_EQ(tags.valueForKey("XMP:Title"), KTValue(name)) << name;
        }
    }
}

TEST(ExifTool, WritesDeletesAndRefuses) {
    TemporaryFolder folder;
    auto file =
        makePhoto(folder, "a.jpg", {{"XMP:Title", "t"}, {"XMP:Subject", KTValue::listOfTexts({"a", "b"})}});
    const std::string before = contentOf(file);

    auto refused = tool().setValuesForKeysWithDictionary({{"XMP:Ti'tle", "x"}, {"XMP:Title", "y"}}, file);
    EXPECT_EQ(refused.resultType(), KTPhotoOperation::Failure);
    EXPECT_EQ(refused.failureReason, 1U);
    EXPECT_EQ(contentOf(file), before);

    auto destination = folder / "copy.jpg";
    auto written = tool().setValuesForKeysWithDictionary({{"XMP:Title", KTValue::null()},
                                                          {"XMP:Subject", KTValue(KTValue::List{})},
                                                          {"XMP:Rating", KTDecimal::fromInteger(3)},
                                                          {"EXIF:FNumber", *KTDecimal::fromText("5.6")},
                                                          {"XMP:NoSuchTag", "x"}},
                                                         destination, file);
    EXPECT_EQ(written.resultType(), KTPhotoOperation::Warning)
        << "the unknown tag is named, the rest written";
    EXPECT_NE(written.resultDescription().find("NoSuchTag"), std::string::npos);
    EXPECT_EQ(contentOf(file), before) << "the source stays as it was";
    KTTagDictionary tags = tagsOf(destination);
    EXPECT_FALSE(tags.find("XMP:Title"));
    EXPECT_FALSE(tags.find("XMP:Subject"));
    EXPECT_EQ(tags.valueForKey("XMP:Rating").description(), "3");
    EXPECT_EQ(tags.valueForKey("EXIF:FNumber").description(), "5.6");

    auto unchanged = tool().setValuesForKeysWithDictionary({}, file);
    EXPECT_EQ(unchanged.resultType(), KTPhotoOperation::Success) << "nothing changed counts as success";
    auto missing = tool().setValuesForKeysWithDictionary({{"XMP:Title", "x"}}, folder / "missing.jpg");
    EXPECT_EQ(missing.resultType(), KTPhotoOperation::Failure);
    EXPECT_FALSE(missing.resultDescription().empty());
}

TEST(ExifTool, RenewsTheIPTCDigestOnlyWithIPTCData) {
    TemporaryFolder folder;
    auto file = makePhoto(folder, "a.jpg", {{"IPTC:Keywords", KTValue::listOfTexts({"a", "b"})}});
    KTTagDictionary tags = tagsOf(file);
    EXPECT_TRUE(tags.find("Photoshop:IPTCDigest"));
    EXPECT_EQ(tags.valueForKey("Photoshop:IPTCDigest"), tags.valueForKey("File:CurrentIPTCDigest"));
    EXPECT_EQ(tags.valueForKey("IPTC:Keywords"), KTValue::listOfTexts({"a", "b"}));
    auto other = makePhoto(folder, "b.jpg", {{"XMP:Title", "x"}});
    EXPECT_FALSE(tagsOf(other).find("Photoshop:IPTCDigest"));
}

TEST(ExifTool, MakesASidecarOfEveryTagOverriddenByTheChanges) {
    TemporaryFolder folder;
    auto file =
        makePhoto(folder, "a.jpg", {{"EXIF:Make", "Canon"}, {"XMP:Title", "old"}, {"EXIF:Model", "M"}});
    auto sidecar = folder / "a.XMP";
    auto written = tool().setValuesForKeysWithDictionary({{"XMP:Title", "new"}}, sidecar, file);
    EXPECT_TRUE(written.operationDidSucceed) << written.resultDescription();
    KTTagDictionary tags = tagsOf(sidecar);
    EXPECT_EQ(tags.valueForKey("XMP:Make"), KTValue("Canon"));
    EXPECT_EQ(tags.valueForKey("XMP:Title"), KTValue("new"));
    EXPECT_FALSE(tags.find("XMP:ThumbnailImage"));
    EXPECT_TRUE(tool().setValuesForKeysWithDictionary({{"XMP:Label", "Red"}}, sidecar).operationDidSucceed);
    EXPECT_EQ(tagsOf(sidecar).valueForKey("XMP:Label"), KTValue("Red"));
}

TEST(ExifTool, ReportsFilesThatCannotBeRead) {
    TemporaryFolder folder;
    KTTagDictionary tags;
    auto missing = tool().extractAllKeysIntoDictionary(tags, folder / "missing.jpg");
    EXPECT_FALSE(missing.operationDidSucceed);
    EXPECT_EQ(missing.failureReason, 0U);
    EXPECT_FALSE(missing.resultDescription().empty());
    auto garbage =
        tool().extractAllKeysIntoDictionary(tags, folder.file("x.jpg", std::string_view("\1\2\3\4\0\6", 6)));
    EXPECT_EQ(garbage.resultType(), KTPhotoOperation::Failure);
}

TEST(ExifTool, KnowsWhatCanBeWritten) {
    auto keys = tool().writableTags();
    EXPECT_EQ(keys, tool().writableTags());
    auto has = [&](std::string_view key) { return std::ranges::find(keys, key) != keys.end(); };
    EXPECT_TRUE(has("EXIF:Make") && has("XMP:Title") && has("IPTC:Keywords"));
    EXPECT_FALSE(has("Photoshop:IPTCDigest") || has("XMP:XMPToolkit") || has("EXIF:Compression"));
    // Asking for some gives what the list gives.
    const std::vector<std::string> some = {"EXIF:Make",
                                           "XMP:Title",
                                           "IPTC:Keywords",
                                           "Photoshop:IPTCDigest",
                                           "XMP:XMPToolkit",
                                           "EXIF:Compression",
                                           "XMP:LocationShownCity",
                                           "MakerNotes:Rating",
                                           "Composite:GPSPosition",
                                           "File:FileName",
                                           "EXIF:NoSuchTag",
                                           "ICC_Profile:ProfileClass",
                                           "Photoshop:XResolution"};
    const auto among = KTWritableTagsAmong(some, tool());
    for (const std::string& key : some)
        EXPECT_EQ(among.contains(key), has(key)) << key;
    EXPECT_TRUE(tool().canWriteToFile("a.jpg"));
    EXPECT_FALSE(tool().canWriteToFile("a.doc"));
    EXPECT_FALSE(tool().canWriteToFile("a'.jpg"));
}

TEST(ExifTool, SharesOneInterpreterAmongThreads) {
    TemporaryFolder folder;
    std::vector<std::thread> threads;
    std::array<bool, 4> right{};
    for (int n = 0; n < 4; ++n)
        threads.emplace_back([&, n] {
            const std::string title = "title " + std::to_string(n);
            auto file = folder.file(title + ".xmp",
                                    "<x:xmpmeta xmlns:x='adobe:ns:meta/'><rdf:RDF "
                                    "xmlns:rdf='http://www.w3.org/1999/02/22-rdf-syntax-ns#'/></x:xmpmeta>");
            bool all = true;
            for (int round = 0; round < 5; ++round) {
                all &=
                    tool().setValuesForKeysWithDictionary({{"XMP:Title", title}}, file).operationDidSucceed;
                all &= tagsOf(file).valueForKey("XMP:Title") == KTValue(title);
            }
            right[std::size_t(n)] = all;
        });
    for (std::thread& thread : threads)
        thread.join();
    EXPECT_EQ(right, (std::array<bool, 4>{true, true, true, true}));
}

TEST(PhotoOperation, DerivesItsResult) {
    KTPhotoOperation operation;
    EXPECT_EQ(operation.resultType(), KTPhotoOperation::Failure);
    operation.operationDidSucceed = true;
    EXPECT_EQ(operation.resultDescription(), "");
    EXPECT_EQ(operation.resultImagePath().filename(), "statusGreen.tiff");
    operation.isWarning = true;
    operation.warningDescription = "warning";
    EXPECT_EQ(operation.resultType(), KTPhotoOperation::Warning);
    operation.operationDidSucceed = false;
    operation.failureDescription = "failure";
    EXPECT_EQ(operation.resultType(), KTPhotoOperation::Failure);
    EXPECT_EQ(operation.resultDescription(), "failure");
}

TEST(ExifToolLease, GivesABridgeOfItsOwnAndKeepsItForTheNext) {
    TemporaryFolder folder;
    const auto photo = makePhoto(folder, "a.jpg", {{"XMP:Title", "Title"}});
    const KTExifTool* first = nullptr;
    {
        const KTExifToolLease one, other;
        first = &*other;
        EXPECT_NE(&*one, &*other);
        EXPECT_NE(&*one, &KTExifTool::sharedExifTool());
        KTTagDictionary tags;
        EXPECT_TRUE((*one).extractAllKeysIntoDictionary(tags, photo).operationDidSucceed);
        EXPECT_EQ(tags.valueForKey("XMP:Title"), "Title");
    }
    const KTExifToolLease again, another;
    EXPECT_TRUE(&*again == first || &*another == first);
    EXPECT_EQ(KTExifToolLease::usefulBridges(15, 16), 1U);
    EXPECT_LE(KTExifToolLease::usefulBridges(100'000, 16), 4U);
}
