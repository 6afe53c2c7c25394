#pragma once
#include <memory>
#include <string>

class KTGazetteer;
class KTMetadataFieldManager;
class KTPhotoExportPluginManager;
class KTPhotoManager;
class KTPluginManager;
class KTSerialQueue;
class KTSystemTimeZone;
class KTTimeZoneManager;
class KTTrackManager;
class KTUndoManager;

/// What the application works on: made once, before its controllers, and outlives them all.
struct WaymarkModel {
    KTPhotoManager* photoManager = nullptr;
    KTMetadataFieldManager* metadataFieldManager = nullptr;
    KTTrackManager* trackManager = nullptr;
    KTTimeZoneManager* timeZoneManager = nullptr;
    KTGazetteer* gazetteer = nullptr;
    std::shared_ptr<KTSystemTimeZone> systemTimeZone =
        nullptr; ///< ends with the application, not the process
    /// Why trackManager does not stand on the user's library; empty when it does.
    std::string trackLibraryProblem = {};

    /// The objects that the process shares.
    static WaymarkModel shared();
};
