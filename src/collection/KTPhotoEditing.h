#pragma once
#include "collection/KTPhotoManager.h"

/// Makes @p change of each of @p photos and lets the undo manager of @p collection take all of it back in one
/// step called @p actionName, which edits of the last or the next second do not join. On the main thread, not
/// from code run by an announcement.
void KTEditPhotos(KTPhotoManager& collection, const KTPhotoManager::Photos& photos, std::string actionName,
                  const std::function<void(KTPhoto&)>& change);
