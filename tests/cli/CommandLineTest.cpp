#include "tests/cli/CommandLineWorld.h"

#include <QFileInfo>
#include <set>

namespace {

using CommandLine = CommandLineWorld;

std::set<std::string> outcomes(const QJsonValue& json) {
    std::set<std::string> result;
    const QJsonArray photos = json["photos"].toArray();
    for (const QJsonValue photo : photos)
        result.insert(QFileInfo(photo["path"].toString()).fileName().toStdString() + " " +
                      photo["outcome"].toString().toStdString() + " " +
                      photo["point"].toString().toStdString());
    return result;
}

} // namespace

TEST_F(CommandLine, DemoGeotagsItsTripAndTheFilesShowIt) {
    Result demo = run({"demo", "trip"});
    ASSERT_EQ(demo.status, 0) << demo.errors;
    EXPECT_NE(demo.output.find("9 photos can be geotagged"), std::string::npos) << demo.output;
    KTTagDictionary tags = tagsOf(folder / "trip/photos/IMG_0101.jpg");
    EXPECT_NEAR(std::stod(tags.valueForKey("EXIF:GPSLatitude").description()), 47.05, 0.05);
    EXPECT_EQ(tags.valueForKey("EXIF:GPSLatitudeRef"), KTValue("N"));
    EXPECT_FALSE(tagsOf(folder / "trip/photos/IMG_0111.jpg").find("EXIF:GPSLatitude")) << "no date";
    EXPECT_EQ(run({"demo", "trip"}).status, 1) << "a folder that holds something is not touched";
}

TEST_F(CommandLine, GeotagJudgesReportsAndCarriesOn) {
    ASSERT_EQ(run({"demo", "trip"}).status, 0);
    Result again = run(geotagDemo());
    EXPECT_EQ(again.status, 0) << again.errors;
    EXPECT_EQ(again.json()["counts"]["previouslyGeotaggedFailures"].toInt(), 9);
    EXPECT_EQ(again.json()["counts"]["timeCriteriaFailures"].toInt(), 2);
    EXPECT_EQ(again.json()["counts"]["noDateTimeOriginalFailures"].toInt(), 1);

    const std::string before = contentOf(folder / "trip/photos/IMG_0102.jpg");
    Result dry = run(geotagDemo({"--overwrite", "--time-weighted", "--dry-run"}));
    EXPECT_EQ(dry.json()["counts"]["totalSuccesses"].toInt(), 9);
    EXPECT_TRUE(outcomes(dry.json()).contains("IMG_0102.jpg geotagged timeWeighted"));
    EXPECT_EQ(contentOf(folder / "trip/photos/IMG_0102.jpg"), before);
    Result wide = run(geotagDemo({"--no-time", "--dry-run"}));
    EXPECT_TRUE(outcomes(wide.json()).contains("IMG_0108.jpg geotagged next") ||
                outcomes(wide.json()).contains("IMG_0112.jpg geotagged preceding"));
    auto cityOf = [](const Result& result) {
        return result.json()["photos"].toArray()[0].toObject()["city"].toString();
    };
    EXPECT_EQ(cityOf(dry), "Luzern");
    EXPECT_EQ(tagsOf(folder / "trip/photos/IMG_0101.jpg").valueForKey("XMP:Country"), KTValue("Switzerland"));
    EXPECT_EQ(cityOf(run(geotagDemo({"--overwrite", "--no-place", "--dry-run"}))), "");
    Result noServer = run(QStringList{"--set", "reverseGeocoder=server"} + geotagDemo({"--overwrite"}));
    EXPECT_EQ(noServer.status, 0) << "the position is written all the same";
    EXPECT_NE(noServer.errors.find("No server is set"), std::string::npos) << noServer.errors;
    Result otherZone = run(geotagDemo({"--time-zone", "Z", "--dry-run", "--overwrite"}));
    EXPECT_EQ(otherZone.status, 2) << "the zone is given twice";
}

TEST_F(CommandLine, ReadsAndSetsPhotos) {
    makePhoto(
        folder, "a.jpg",
        {{"EXIF:DateTimeOriginal", "2014:06:01 12:00:00"}, {"EXIF:FNumber", *KTDecimal::fromText("2.8")}});
    makePhoto(folder, "sub/B.jpg");
    Result set = run({"--set", "defaultAssumedTimeZoneOffset=7200", "set", "title=Ein = Titel",
                      "keywords=lake|walk", "rating=3", ".", "a.jpg"});
    EXPECT_EQ(set.status, 0) << set.errors;
    Result read = run({"--json", "--set", "defaultAssumedTimeZoneOffset=7200", "read", "."});
    const QJsonArray photos = read.json()["photos"].toArray();
    ASSERT_EQ(photos.size(), 2);
    const QJsonObject properties = photos[0]["properties"].toObject();
    EXPECT_EQ(properties["title"].toString(), "Ein = Titel");
    EXPECT_EQ(properties["keywords"].toArray().size(), 2);
    EXPECT_EQ(properties["rating"].toInt(), 3);
    EXPECT_EQ(properties["dateTimeOriginalComponents"].toString(), "2014-06-01T12:00:00");
    EXPECT_EQ(properties["dateTimeOriginalTimeZone"].toString(), "+02:00");
    EXPECT_EQ(properties["dateTimeOriginal"].toString(), "2014-06-01T10:00:00Z");
    EXPECT_FALSE(photos[1]["properties"].toObject().contains("dateTimeOriginal"));
    EXPECT_TRUE(photos[0]["flags"]["hasIPTCBlock"].isBool());
    EXPECT_EQ(run({"set", "title=", "a.jpg"}).status, 0);
    EXPECT_FALSE(tagsOf(folder / "a.jpg").find("XMP:Title"));
    Result text = run({"read", "a.jpg"});
    EXPECT_NE(text.output.find("Rating: 3"), std::string::npos) << text.output;
}

TEST_F(CommandLine, SetsTheZoneAndShowsInstants) {
    makePhoto(folder, "a.jpg", {{"EXIF:DateTimeOriginal", "2014:06:01 12:00:00"}});
    makePhoto(folder, "b.jpg");
    const std::string before = contentOf(folder / "a.jpg");
    const Result zone = run({"zone", "+02:00", "."});
    EXPECT_EQ(zone.status, 0) << zone.errors;
    EXPECT_EQ(zone.output, "./a.jpg: 2014-06-01T10:00:00Z\n./b.jpg: no capture date\n");
    EXPECT_EQ(contentOf(folder / "a.jpg"), before);
    EXPECT_FALSE(std::filesystem::exists(folder / "a.xmp"));
    const QJsonValue read = run({"--json", "read", "a.jpg"}).json()["photos"][0]["properties"];
    EXPECT_EQ(read["dateTimeOriginal"].toString(), "2014-06-01T10:00:00Z") << "the zone stays set";
    const Result region = run({"--json", "zone", "Asia/Kolkata", "a.jpg"});
    EXPECT_EQ(region.json()["timeZone"].toString(), "+05:30");
    EXPECT_EQ(region.json()["photos"][0]["dateTimeOriginal"].toString(), "2014-06-01T06:30:00Z");
    EXPECT_NE(region.errors.find("fixed offset +05:30"), std::string::npos) << region.errors;
    EXPECT_EQ(run({"zone", "--", "-03:00", "a.jpg"}).output, "a.jpg: 2014-06-01T15:00:00Z\n");
}

TEST_F(CommandLine, NamesPlaces) {
    const QJsonObject basel = run({"--json", "place", "47.5581", "7.5878"}).json().toObject();
    EXPECT_EQ(basel["description"].toString(), "Basel, Basel-City, Switzerland");
    EXPECT_EQ(basel["countryCode"].toString(), "CH");
    EXPECT_EQ(run({"place", "--", "-54.8019", "-68.303"}).output, "Ushuaia, Tierra del Fuego, Argentina\n");
    EXPECT_TRUE(run({"--json", "place", "30", "--", "-40"}).json().toObject().isEmpty()) << "the open sea";
    EXPECT_EQ(run({"place", "91", "0"}).status, 2);
    EXPECT_EQ(run({"--set", "reverseGeocoder=server", "place", "47", "7"}).status, 1);
}

TEST_F(CommandLine, KeepsATrackLibrary) {
    ASSERT_EQ(run({"demo", "trip"}).status, 0);
    EXPECT_EQ(run({"tracks", "import", "trip/walk.gpx"}).status, 0);
    Result twice = run({"--json", "tracks", "import", "trip/walk.gpx"});
    EXPECT_TRUE(twice.json()["imports"][0]["alreadyImported"].toBool());
    Result list = run({"--json", "tracks", "list"});
    ASSERT_EQ(list.json()["tracks"].toArray().size(), 2) << "the track and the waypoint";
    const QString id = QString::number(list.json()["tracks"][0]["id"].toInt());
    Result exported = run({"tracks", "export", id});
    EXPECT_NE(exported.output.find("<gpx"), std::string::npos);
    Result library =
        run({"--json", "geotag", "--time-zone", "+02:00", "--overwrite", "--dry-run", "trip/photos"});
    EXPECT_EQ(library.json()["counts"]["totalSuccesses"].toInt(), 9);
    EXPECT_EQ(run({"tracks", "remove", id}).status, 0);
    EXPECT_EQ(run({"tracks", "remove", id}).status, 1);
    EXPECT_EQ(run({"tracks", "import", "trip/photos/IMG_0101.jpg"}).status, 1);
}

TEST_F(CommandLine, SaysWhatIsWrongAndTouchesNothing) {
    auto file = makePhoto(folder, "a.jpg");
    const std::string before = contentOf(file);
    for (const QStringList& arguments : {QStringList{},
                                         {"nonsense"},
                                         {"--set", "noSuchKey=1", "read", "a.jpg"},
                                         {"set", "a.jpg"},
                                         {"set", "noSuchField=1", "a.jpg"},
                                         {"set", "cameraMake=x", "a.jpg"},
                                         {"set", "rating=many", "a.jpg"},
                                         {"set", "dateTimeOriginalComponents=yesterday", "a.jpg"},
                                         {"geotag", "--time-zone", "Mars", "a.jpg"},
                                         {"zone", "Mars", "a.jpg"},
                                         {"zone", "Z"},
                                         {"geotag", "--sidecar-style", "7", "a.jpg"},
                                         {"geotag"},
                                         {"tracks"}})
        EXPECT_EQ(run(arguments).status, 2) << arguments.join(" ").toStdString();
    EXPECT_EQ(contentOf(file), before);
    EXPECT_EQ(run({"read", "missing.jpg"}).status, 1);
    folder.file("broken.jpg", std::string_view("\1\2\3\4\0\6", 6));
    Result broken = run({"--json", "geotag", "broken.jpg"});
    EXPECT_EQ(broken.status, 1);
    EXPECT_EQ(broken.json()["photos"][0]["outcome"].toString(), "unreadable");
    EXPECT_EQ(run({"geotag", "--track", "missing.gpx", "a.jpg"}).status, 1);
    EXPECT_EQ(run({"--help"}).status, 0);
    EXPECT_EQ(run({"--version"}).status, 0);
}

TEST_F(CommandLine, MapDrawsPhotosAndTracksWithoutADisplay) {
    ASSERT_EQ(run({"demo", "trip"}).status, 0);
    const auto sizeOf = [](const std::string& png) {
        const auto number = [&](std::size_t at) {
            return static_cast<unsigned char>(png.at(at)) * 256 + static_cast<unsigned char>(png.at(at + 1));
        };
        return std::pair(number(18), number(22)); // the low halves of the header's width and height
    };
    const QStringList all = {"map",     "--out", "all.png", "--size",        "600x400",
                             "--scale", "2",     "--track", "trip/walk.gpx", "trip/photos"};
    const Result drawn = run(all);
    ASSERT_EQ(drawn.status, 0) << drawn.errors;
    const std::string picture = contentOf(folder / "all.png");
    EXPECT_EQ(picture.substr(1, 3), "PNG");
    EXPECT_EQ(sizeOf(picture), std::pair(1200, 800));
    ASSERT_EQ(run(QStringList(all) << "--dark").status, 0);
    EXPECT_NE(contentOf(folder / "all.png"), picture);

    EXPECT_EQ(run({"map", "--out", "world.png", "--size", "320x200"}).status, 0);
    EXPECT_EQ(sizeOf(contentOf(folder / "world.png")), std::pair(320, 200));
    EXPECT_EQ(run({"map", "--out", "x.png", "--size", "320"}).status, 2);
    EXPECT_EQ(run({"map", "--out", "x.png", "--tiles", "nobody's"}).status, 2);
    EXPECT_EQ(run({"map", "--out", "none/x.png"}).status, 1);
    EXPECT_EQ(run({"map", "--out", "x.png", "none.jpg"}).status, 1);
}
