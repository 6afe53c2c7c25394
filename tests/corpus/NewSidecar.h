#pragma once
#include "tests/corpus/IntendedTags.h"

/// Where a sidecar that a save has made is neither what `exiftool` itself makes of the image, @p made, nor
/// @p intended, nor the place in XMP of what the image tells elsewhere: one line a tag.
std::vector<std::string> differencesOfNewSidecar(const FileTags& image, const FileTags& made,
                                                 const FileTags& found, IntendedTags intended);
