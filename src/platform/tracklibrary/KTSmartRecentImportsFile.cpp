#include "platform/tracklibrary/KTSmartRecentImportsFile.h"

#include "platform/common/KTLocalizedString.h"
#include "platform/tracklibrary/KTTrackManager.h"

KTSmartRecentImportsFile::KTSmartRecentImportsFile(KTTrackManager& library)
    : KTSmartFile(KTLocalizedString("Recent Imports")), manager(library) {
    observation = manager.observe([this](const KTChange& change) {
        if (change.key == "recentImportsPredicate" && !change.isPrior)
            update();
    });
    update();
}

void KTSmartRecentImportsFile::update() {
    const KTTrackPredicate recent = manager.recentImportsPredicate();
    setTrackPredicate(recent);
    setWaypointPredicate(recent);
}
