#include "platform/tracklibrary/KTGPSReceivers.h"

#include "platform/tracklibrary/KTTrackPickerController.h"
#include "tests/platform/tracklibrary/TrackTestSupport.h"
#include "tests/support/EventLoop.h"
#include "tests/support/FakePresenter.h"

TEST(GPSReceiversTest, FindsTheTracksOfMountedReceivers) {
    TemporaryFolder folder;
    for (const char* file : {"disk/GARMIN/GPX/Current/a.gpx", "disk/Garmin/Activity/b.FIT",
                             "disk/garmin/x.txt", "disk/Pictures/c.gpx", "logger/gpslog/d.nmea", "e.gpx"}) {
        std::filesystem::create_directories((folder / file).parent_path());
        folder.file(file, "");
    }
    std::filesystem::create_directory_symlink(folder / "disk", folder / "again");
    EXPECT_EQ(KTGPSReceivers::trackFiles({folder.path(), folder / "missing", folder.path()}),
              (std::vector<std::filesystem::path>{folder / "disk/GARMIN/GPX/Current/a.gpx",
                                                  folder / "disk/Garmin/Activity/b.FIT",
                                                  folder / "logger/gpslog/d.nmea"}));
}

TEST(GPSReceiversTest, ImportsThemOrSaysThatThereAreNone) {
    TemporaryFolder folder;
    KTTrackManager manager(openStore());
    KTTrackPickerController picker(manager);
    FakePresenter presenter;
    picker.setPresenter(&presenter);
    picker.downloadFromGPSAction({folder.path()});
    EXPECT_TRUE(runEventLoopUntil([&] { return !presenter.alerts.empty(); }));
    EXPECT_EQ(presenter.alerts[0].message, "No tracks of a GPS receiver were found.");
    std::filesystem::create_directories(folder / "disk/Garmin");
    folder.file("disk/Garmin/a.gpx", gpxTrack(trackPoint("1", "2", "2014-06-01T10:00:00Z")));
    picker.downloadFromGPSAction({folder.path()});
    EXPECT_TRUE(runEventLoopUntil([&] { return manager.store().tracks().size() == 1; }));
    EXPECT_TRUE(runEventLoopUntil([&] { return manager.isIdle() && !manager.importInProgress(); }));
}
