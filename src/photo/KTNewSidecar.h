#pragma once
#include "photo/KTMetadataSource.h"

#include <functional>

/// A new sidecar begins as a copy of the image's metadata, in which the values of its changes, and what the
/// functions below tell, are then set.

/// What must be written so that it holds what the photo shows: every value, not only the edited ones. A date
/// that the image's XMP tells more exactly stays as it stands there.
KTTagDictionary valuesOfNewSidecar(const KTMetadataSource& image, const KTMetadataProperties& ofSidecar,
                                   const std::function<KTValue(const KTMetadataField&)>& shownValue);
/// Enters into the changes of a @p sidecar that does not exist yet that the copy must not hold the value of
/// @p field, which was cleared.
void recordClearedInNewSidecar(const KTMetadataField& field, const KTMetadataSource& image,
                               KTMetadataSource& sidecar);
