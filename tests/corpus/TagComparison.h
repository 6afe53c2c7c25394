#pragma once
#include "tests/corpus/IntendedTags.h"

/// Where @p after is neither @p before nor @p intended, one line a tag, apart from what every write may
/// change: stamps, digests, offsets, and what ExifTool does of its own accord (TagComparison.cpp lists that
/// with the reasons).
std::vector<std::string> differences(const FileTags& before, const FileTags& after,
                                     const IntendedTags& intended);

/// Takes out of @p differences of a file of the common corpus what has a reason of its own.
void removeKnownDeviations(const std::string& file, std::vector<std::string>& differences);
/// Whether some value of @p edit cannot be written into @p file, so that the photo stays unsaved.
bool mustStayUnsaved(const std::string& file, Edit edit);
