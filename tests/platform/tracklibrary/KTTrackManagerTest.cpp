#include "platform/tracklibrary/KTTrackManager.h"

#include "platform/tracklibrary/GPSBabelReader.h"
#include "platform/tracklibrary/KMZArchive.h"
#include "tests/platform/tracklibrary/TrackTestSupport.h"

#include <fstream>
#include <minizip/zip.h>
#include <sstream>

namespace {

const std::string kMixed = gpx(R"(<wpt lat="1" lon="2"><name>Hut &lt;"&amp;"&gt;</name><desc>warm
dry</desc></wpt>
<rte><name>Plan</name><rtept lat="3" lon="4"/></rte>
<trk><name>Čaven</name><trkseg><trkpt lat="46.1234567890123456" lon="-179.99"><ele>-12.50</ele>
<time>2014-06-01T10:00:00.025Z</time></trkpt><trkpt lat="5" lon="6"/></trkseg><trkseg/>
<trkseg><trkpt lat="7" lon="8"><time>2014-06-01T09:00:00Z</time></trkpt></trkseg></trk>
<trk><trkseg><trkpt lat="9" lon="10"/></trkseg></trk><trk><name>empty</name></trk>
)");

void writeZip(const std::filesystem::path& file,
              const std::vector<std::pair<std::string, std::string>>& members) {
    zipFile zip = zipOpen64(file.c_str(), APPEND_STATUS_CREATE);
    for (const auto& [name, content] : members) {
        zipOpenNewFileInZip64(zip, name.c_str(), nullptr, nullptr, 0, nullptr, 0, nullptr, Z_DEFLATED, 6, 1);
        zipWriteInFileInZip(zip, content.data(), static_cast<unsigned>(content.size()));
        zipCloseFileInZip(zip);
    }
    zipClose(zip, nullptr);
}

const std::string kKML = R"(<?xml version="1.0"?><kml xmlns="http://www.opengis.net/kml/2.2"
xmlns:gx="http://www.google.com/kml/ext/2.2"><Document><Placemark><gx:Track><when>2014-06-01T10:00:00Z</when>
<when>2014-06-01T10:00:10Z</when><gx:coord>14.5 46.05 300</gx:coord><gx:coord>14.6 46.06 301</gx:coord></gx:Track>
</Placemark></Document></kml>)";

class KTTrackManagerTest : public testing::Test {
protected:
    KTTrackManagerTest() {
        manager.addHandler([this](const KTTrackNotification& notification) {
            heard += std::string(notification.name) + ' ' + std::to_string(notification.trackIDs.size()) +
                     ' ' + std::to_string(manager.store().tracks().size()) +
                     '\n'; // committed, and no lock is held
        });
    }
    std::string exported() {
        std::vector<std::int64_t> ids;
        for (const KTTrack& track : manager.store().tracks())
            ids.push_back(track.id);
        std::ostringstream out;
        EXPECT_EQ(manager.store().exportGPX(ids, out), "");
        return out.str();
    }

    TemporaryFolder folder;
    KTTrackManager manager{openStore(folder / "library")};
    std::string heard;
};

} // namespace

TEST_F(KTTrackManagerTest, ListsWhatItImported) {
    auto file = folder.file("trip.GPX", kMixed);
    auto result = manager.importFile(file);
    ASSERT_EQ(result.error, "");
    EXPECT_EQ(result.trackCount, 2);
    EXPECT_EQ(result.routeCount, 1);
    EXPECT_EQ(result.pointCount, 5);
    EXPECT_EQ(result.datedPointCount, 2);
    EXPECT_EQ(result.waypointCount, 1);
    auto tracks = manager.store().tracks();
    ASSERT_EQ(tracks.size(), 4u);
    const std::tuple<KTTrack::Kind, std::string, std::int64_t> expected[] = {
        {KTTrack::Kind::Waypoints, "trip.GPX", 0},
        {KTTrack::Kind::Route, "Plan", 1},
        {KTTrack::Kind::Track, "Čaven", 3},
        {KTTrack::Kind::Track, "trip.GPX", 1},
    };
    for (std::size_t i = 0; i < 4; ++i) {
        EXPECT_EQ(tracks[i].id, result.trackIDs[i]);
        EXPECT_EQ(std::tuple(tracks[i].kind, tracks[i].name, tracks[i].pointCount), expected[i]);
        EXPECT_EQ(tracks[i].sourceFile, file.string());
    }
    EXPECT_EQ(tracks[2].firstDate, instant(1401613200000));
    EXPECT_EQ(tracks[2].lastDate, instant(1401616800025));
    EXPECT_EQ(tracks[0].waypointCount, 1);
    EXPECT_EQ(manager.store().waypoints(tracks[0].id).at(0).comment, "warm\ndry");
    const auto segments = manager.store().segments(tracks[2].id);
    const auto positions = manager.store().positions(tracks[2].id);
    EXPECT_EQ(segments.size(), 2u);
    ASSERT_EQ(positions.size(), segments.size());
    for (std::size_t i = 0; i < segments.size(); ++i) {
        std::vector<KTGeoPoint> placed = segments[i];
        std::erase_if(placed, [](const KTGeoPoint& point) { return !point.latitude; });
        ASSERT_EQ(positions[i].size(), placed.size());
        for (std::size_t k = 0; k < placed.size(); ++k) {
            EXPECT_EQ(positions[i][k].date, placed[k].date);
            EXPECT_EQ(positions[i][k].position.x, placed[k].longitude->toDouble());
            EXPECT_EQ(positions[i][k].position.y, placed[k].latitude->toDouble());
        }
    }
    EXPECT_EQ(heard, "KTTrackManagerDidAddNewImportSource 4 4\n");
}

TEST_F(KTTrackManagerTest, TheSameContentIsThereOnceUntilItIsDeleted) {
    auto file = folder.file("a.gpx", kMixed), copy = folder.file("b.gpx", kMixed);
    auto first = manager.importFile(file);
    for (const auto& again : {file, copy}) {
        auto second = manager.importFile(again);
        EXPECT_TRUE(second.alreadyImported);
        EXPECT_EQ(second.trackIDs, first.trackIDs);
        EXPECT_EQ(second.pointCount, first.pointCount);
        EXPECT_EQ(second.waypointCount, 1);
    }
    EXPECT_EQ(manager.store().countOfDatedPoints(), 2);
    EXPECT_EQ(heard, "KTTrackManagerDidAddNewImportSource 4 4\n");

    heard.clear();
    auto deletion = manager.deleteTracks({first.trackIDs[2], 999, first.trackIDs[0]});
    EXPECT_EQ(deletion.deleted, (std::vector{first.trackIDs[2], first.trackIDs[0]}));
    EXPECT_EQ(deletion.unknown, std::vector<std::int64_t>{999});
    EXPECT_EQ(manager.store().countOfDatedPoints(), 0);
    EXPECT_TRUE(manager.store().waypoints(first.trackIDs[0]).empty());
    EXPECT_FALSE(manager.store().pointPrecedingTime(instant(1500000000000)));
    manager.deleteTracks({999});
    EXPECT_EQ(heard, "KTTrackManagerDidDeleteObjects 2 2\n");

    EXPECT_FALSE(manager.importFile(copy).alreadyImported) << "replaces what was left of the first import";
    EXPECT_EQ(manager.store().tracks().size(), 4u);
    std::vector<std::int64_t> all;
    for (const KTTrack& track : manager.store().tracks())
        all.push_back(track.id);
    manager.deleteTracks(all);
    auto again = manager.importFile(file);
    EXPECT_FALSE(again.alreadyImported);
    EXPECT_EQ(manager.store().tracks().size(), 4u);
    EXPECT_GT(again.trackIDs.front(), all.back()) << "ids are not used twice";
}

TEST_F(KTTrackManagerTest, AnExportReadsBackAsTheSame) {
    manager.importFile(folder.file("a.gpx", kMixed));
    std::string first = exported();
    CollectingSink sink;
    GPXReader reader(sink);
    ASSERT_TRUE(reader.append(first) && reader.finish()) << reader.problem()->text;
    EXPECT_EQ(sink.waypoints.at(0).name, "Hut <\"&\">");
    EXPECT_EQ(sink.tracks.at(1).segments, manager.store().segments(3));
    EXPECT_EQ(sink.tracks.at(1).segments[0][0].latitude, decimal("46.1234567890123456"));
    EXPECT_EQ(sink.tracks.at(1).segments[0][0].date, instant(1401616800025));

    KTTrackManager other(openStore());
    ASSERT_EQ(other.importFile(folder.file("a.gpx", first)).error, "");
    std::ostringstream second, none;
    EXPECT_EQ(other.store().exportGPX({4, 3, 3, 2, 1}, second), "");
    EXPECT_EQ(second.str().size(), first.size());
    EXPECT_NE(other.store().exportGPX({1, 77}, none).find("77"), std::string::npos);
    EXPECT_EQ(none.str(), "");
    std::ofstream full("/dev/full");
    EXPECT_NE(other.store().exportGPX({1}, full), "");
}

TEST_F(KTTrackManagerTest, RefusesWhatIsNoTrackFileAndAddsNothing) {
    SKIP_UNDER_THREAD_SANITIZER();
    std::filesystem::create_directory(folder / "folder.gpx");
    auto broken = gpxTrack(trackPoint("1", "2", "2014-06-01T10:00:00Z") + trackPoint("100", "2", ""));
    std::string kmz = folder / "noise.kmz";
    writeZip(kmz, {{"picture.png", "x"}});
    const std::pair<std::filesystem::path, const char*> files[] = {
        {folder / "missing.gpx", "no such file"},
        {folder / "folder.gpx", "folder"},
        {"/dev/null", "not a file"},
        {folder.file("broken.gpx", broken), "broken.gpx, line 5: “100” is not a latitude"},
        {folder.file("notes.txt", "hello"), "not a track file that Waymark knows (GPX, NMEA"},
        {folder.file("page.xml", "<html/>"), "not a track file"},
        {folder.file("bad.kmz", "PK\x03\x04 not really"), "KMZ archive is damaged"},
        {kmz, "holds no KML"},
        {folder.file("bad.kml", "<kml><Placemark>"), "gpsbabel cannot read it: "},
        {folder.file("bad.fit", "not a fit"), "gpsbabel cannot read it: "},
        {folder.file("blank.nmea", "\n"), "gpsbabel found no points"},
        {folder.file("odd.csv", "a,b\n1,2\n"), "gpsbabel"},
    };
    for (const auto& [file, words] : files) {
        auto result = manager.importFile(file);
        EXPECT_NE(result.error.find(words), std::string::npos) << result.error;
        EXPECT_NE(result.error.find(file.string()), std::string::npos) << result.error;
        EXPECT_TRUE(result.trackIDs.empty());
    }
    EXPECT_EQ(manager.importFile(folder.file("nothing.gpx", gpx(""))).error, "");
    EXPECT_TRUE(manager.store().tracks().empty());
    EXPECT_EQ(heard, "");
}

TEST_F(KTTrackManagerTest, ReadsOtherKindsOfTrackFiles) {
    SKIP_UNDER_THREAD_SANITIZER();
    const std::string nmea = "$GPRMC,100000.000,A,4603.0000,N,01430.0000,E,0.0,0.0,010614,,*07\n"
                             "$GPRMC,100010.000,A,4603.6000,N,01436.0000,E,0.0,0.0,010614,,*06\n";
    const std::string tcx =
        "<TrainingCenterDatabase "
        "xmlns=\"http://www.garmin.com/xmlschemas/TrainingCenterDatabase/v2\"><Activities>"
        "<Activity Sport=\"Biking\"><Id>2014-06-01T10:00:00Z</Id><Lap "
        "StartTime=\"2014-06-01T10:00:00Z\"><Track>"
        "<Trackpoint><Time>2014-06-01T10:00:00Z</Time><Position><LatitudeDegrees>46.05</LatitudeDegrees>"
        "<LongitudeDegrees>14.5</LongitudeDegrees></Position></Trackpoint></Track></Lap></Activity></"
        "Activities>"
        "</TrainingCenterDatabase>";
    const std::string igc = "AXXX001 test\r\nHFDTE010614\r\nB1000004603000N01430000EA0030000300\r\n"
                            "B1000104603600N01436000EA0030000300\r\n";
    const std::string csv = "Latitude,Longitude,Date,Time\n46.05,14.5,2014/06/01,10:00:00\n";
    std::string kmz = folder / "Trip š & $HOME.KMZ";
    writeZip(kmz, {{"files/other.kml", "<kml/>"}, {"doc.kml", kKML}});
    const std::filesystem::path files[] = {
        folder.file("a'b \"c\".kml", kKML),
        kmz,
        folder.file("-f.nmea", nmea),
        folder.file("log.txt", nmea),
        folder.file("a.TCX", tcx),
        folder.file("tcx.xml", tcx),
        folder.file("a.igc", igc),
        folder.file("a.csv", csv),
        folder.file("gpx.xml", gpxTrack(trackPoint("46.05", "14.5", "2014-06-01T12:00:00+02:00"))),
    };
    for (const auto& file : files) {
        KTTrackManager fresh(openStore());
        auto result = fresh.importFile(file);
        ASSERT_EQ(result.error, "");
        auto point = fresh.store().pointFollowingTime(instant(0));
        ASSERT_TRUE(point) << file;
        EXPECT_EQ(point->date, instant(1401616800000)) << file;
        EXPECT_EQ(point->latitude, decimal("46.05")) << file;
        EXPECT_EQ(point->longitude, decimal("14.5")) << file;
    }
}

TEST_F(KTTrackManagerTest, AMissingOrEndlessConverterIsAClearError) {
    SKIP_UNDER_THREAD_SANITIZER();
    CollectingSink sink;
    GPSBabelReader missing{.program = "/nowhere/gpsbabel"};
    EXPECT_NE(missing.read("a.kml", "kml", sink)->text.find("apt install gpsbabel"), std::string::npos);
    auto script = folder.file("slow", "#!/bin/sh\nexec sleep 60\n");
    std::filesystem::permissions(script, std::filesystem::perms::owner_all);
    GPSBabelReader slow{.program = script.string(), .timeLimit = std::chrono::milliseconds(300)};
    EXPECT_NE(slow.read("a.kml", "kml", sink)->text.find("too long"), std::string::npos);
}

TEST_F(KTTrackManagerTest, ARemovedHandlerHearsNothing) {
    int calls = 0;
    int number = manager.addHandler([&](const KTTrackNotification&) { ++calls; });
    manager.removeHandler(number);
    manager.importFile(folder.file("a.gpx", kMixed));
    EXPECT_EQ(calls, 0);
    EXPECT_NE(heard, "");
}
