#pragma once
#include <string>
#include <unordered_set>
#include <vector>

class KTExifTool;

/// Those of @p keys ("EXIF:Artist") that are among the bridge's writable tags and that it takes. Unlike the
/// list of all of them, which takes seconds to make, this looks only at what is asked for, and leaves out
/// names that the library has merely met in some file. @p tool must not be in use by another thread.
std::unordered_set<std::string> KTWritableTagsAmong(const std::vector<std::string>& keys, KTExifTool& tool);
