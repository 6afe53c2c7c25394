#include "tests/platform/tracklibrary/TrackTestSupport.h"

namespace {

constexpr std::int64_t kHour = 3600'000, kDay = 24 * kHour;

std::string waypoint(std::string_view name, std::string_view time) {
    return "<wpt lat=\"1\" lon=\"2\">" + (time.empty() ? "" : "<time>" + std::string(time) + "</time>") +
           "<name>" + std::string(name) + "</name></wpt>\n";
}

} // namespace

TEST(TrackPredicateTest, DaysAroundDatesBecomeSpansThatDoNotMeet) {
    KTTrackManager manager(openStore());
    const std::vector<KTInstant> dates = {instant(10 * kDay), instant(0), instant(2 * kDay), instant(0)};
    const KTNearbyPredicates near = manager.nearbyPredicatesForDates(dates);
    EXPECT_EQ(near.trackPredicate, near.waypointPredicate);
    ASSERT_EQ(near.trackPredicate.spans.size(), 2u); // two days touch at their ends
    EXPECT_EQ(near.trackPredicate.spans[0], (KTTrackPredicate::Span{instant(-kDay), instant(3 * kDay)}));
    EXPECT_EQ(near.trackPredicate.spans[1], (KTTrackPredicate::Span{instant(9 * kDay), instant(11 * kDay)}));

    EXPECT_TRUE(near.trackPredicate.matches(instant(3 * kDay), instant(4 * kDay)));
    EXPECT_TRUE(near.trackPredicate.matches(instant(-5 * kDay), instant(20 * kDay)));
    EXPECT_FALSE(near.trackPredicate.matches(instant(3 * kDay + 1), instant(9 * kDay - 1)));
    EXPECT_FALSE(near.trackPredicate.matches(instant(11 * kDay + 1), instant(20 * kDay)));
    EXPECT_TRUE(manager.nearbyPredicatesForDates({}).trackPredicate.spans.empty());
}

TEST(TrackPredicateTest, FindsTracksAndWaypointsOfThatTime) {
    TemporaryFolder folder;
    KTTrackManager manager(openStore(folder / "library"));
    const std::string content =
        waypoint("late", "2014-06-02T12:00:00Z") + waypoint("undated", "") +
        waypoint("early", "2014-05-31T12:00:00Z") + waypoint("a second after", "2014-06-02T12:00:01Z") +
        "<rte><name>plan</name><rtept lat=\"1\" lon=\"2\"/></rte>\n"
        "<trk><name>around</name><trkseg>" +
        trackPoint("1", "2", "2014-05-01T00:00:00Z") + trackPoint("1", "2", "2014-07-01T00:00:00Z") +
        "</trkseg></trk>\n<trk><name>before</name><trkseg>" + trackPoint("1", "2", "2014-05-31T11:59:59Z") +
        "</trkseg></trk>\n<trk><name>within</name><trkseg>" + trackPoint("1", "2", "2014-06-02T00:00:00Z") +
        "</trkseg></trk>\n" +
        "<trk><name>undated</name><trkseg><trkpt lat=\"1\" lon=\"2\"/></trkseg></trk>\n";
    ASSERT_EQ(manager.importFile(folder.file("trip.gpx", gpx(content))).error, "");

    const auto near = manager.nearbyPredicatesForDates({instant(1401624000'000)}); // 2014-06-01T12:00:00Z
    std::vector<std::string> tracks, waypoints;
    for (const KTTrack& track : manager.tracksForPredicate(near.trackPredicate))
        tracks.push_back(track.name);
    for (const KTWaypoint& found : manager.waypointsForPredicate(near.waypointPredicate))
        waypoints.push_back(found.name);
    EXPECT_EQ(tracks, (std::vector<std::string>{"around", "within"}));
    EXPECT_EQ(waypoints, (std::vector<std::string>{"early", "late"}));
    EXPECT_TRUE(manager.tracksForPredicate({}).empty());
}
