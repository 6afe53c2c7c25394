#include "app/WaymarkModel.h"

#include "collection/KTPhotoManager.h"
#include "metadata/KTMetadataFieldManager.h"
#include "platform/common/KTTimeZoneManager.h"
#include "platform/desktop/KTSystemTimeZone.h"
#include "platform/gazetteer/KTGazetteer.h"
#include "platform/tracklibrary/KTTrackManager.h"

WaymarkModel WaymarkModel::shared() {
    return {.photoManager = &KTPhotoManager::sharedPhotoManager(),
            .metadataFieldManager = &KTMetadataFieldManager::sharedMetadataFieldManager(),
            .trackManager = &KTTrackManager::sharedTrackManager(),
            .timeZoneManager = &KTTimeZoneManager::sharedTimeZoneManager(),
            .gazetteer = &KTGazetteer::sharedGazetteer(),
            .systemTimeZone = std::make_shared<KTSystemTimeZone>(),
            .trackLibraryProblem = KTTrackManager::sharedTrackManagerProblem()};
}
