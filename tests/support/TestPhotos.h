#pragma once
#include "metadata/KTTagDictionary.h"
#include "tests/support/TestSupport.h"

/// Makes a tiny photo in @p folder, its kind chosen by the extension (".png", ".tif", else JPEG), carrying @p
/// tags.
std::filesystem::path makePhoto(const TemporaryFolder& folder, const std::filesystem::path& name,
                                const KTTagDictionary& tags = {});

/// All tags of a file, read through the shared bridge.
KTTagDictionary tagsOf(const std::filesystem::path& file);
