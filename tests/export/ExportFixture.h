#pragma once
#include "collection/KTPhotoController.h"
#include "metadata/KTMetadataFieldManager.h"
#include "platform/concurrency/KTMainThread.h"
#include "tests/export/PluginFixture.h"
#include "tests/support/EventLoop.h"
#include "tests/support/FakePresenter.h"
#include "tests/support/TestPhotos.h"

/// Three photos, the second and the first selected, with a presenter and tracks.
class ExportFixture : public PluginFixture {
protected:
    ExportFixture() : tracks(KTTrackStore::open(":memory:").store) {
        const char* dates[] = {"2014:06:01 12:00:00", "2014:06:02 12:00:00", "2014:09:01 12:00:00"};
        for (int number = 0; number < 3; ++number) {
            const std::string name = "IMG_" + std::to_string(number + 1) + ".jpg";
            const auto file = makePhoto(folder, name,
                                        {{"EXIF:DateTimeOriginal", dates[number]},
                                         {"XMP:Description", "caption " + std::to_string(number + 1)},
                                         {"EXIF:GPSLatitude", KTValue(46 + number)},
                                         {"EXIF:GPSLatitudeRef", "N"},
                                         {"EXIF:GPSLongitude", KTValue(14)},
                                         {"EXIF:GPSLongitudeRef", "E"}});
            photos.addNewPhoto(KTPhoto::initWithFile(file));
        }
        photos.setSelectedPhotos({photos.photos()->at(1), photos.photos()->at(0)});
        tracks.importFile(
            folder.file("trip.gpx", R"(<gpx version="1.1" xmlns="http://www.topografix.com/GPX/1/1">
<wpt lat="1" lon="2"><time>2014-06-01T13:00:00Z</time><name>hut</name></wpt>
<trk><name>near</name><trkseg><trkpt lat="46.5" lon="14.5"><ele>300</ele><time>2014-06-01T10:00:00Z</time></trkpt>
</trkseg></trk><trk><name>far</name><trkseg><trkpt lat="1" lon="2"><time>2014-09-01T12:00:00Z</time></trkpt>
</trkseg></trk></gpx>)"));
        exports->setPhotoController(&controller);
        exports->setMetadataController(&KTMetadataFieldManager::sharedMetadataFieldManager());
        exports->setTrackManager(&tracks);
        exports->setPresenter(&presenter);
    }
    ~ExportFixture() override { endAll(); }

    /// Lets go of every export, and of its plug-in.
    void endAll() {
        endManager();
        presenter = {};
        bool isDone = false;
        KTPerformOnMainThread([&] { isDone = true; }); // after all that was posted before
        runEventLoopUntil([&] { return isDone; });
    }

    void endManager() {
        plugins.reset();
        exports.reset();
    }

    KTPhotoManager photos;
    KTPhotoController controller{photos};
    KTTrackManager tracks;
    FakePresenter presenter;
};
