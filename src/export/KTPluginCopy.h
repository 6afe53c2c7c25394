#pragma once
#include <filesystem>
#include <optional>

/// What the name of a plug-in bundle ends with.
inline constexpr const char* kPluginExtension = ".ktplugin";

/// Copies the folder @p bundle, with all that is in it, into @p folder under its own name, and returns the
/// copy's path. It appears there whole, in one step. Nothing, and nothing left behind, when that name is
/// taken, when a file cannot be copied, and when the bundle holds a link that would lead out of the copy, or
/// anything but files, folders and links. Any thread.
std::optional<std::filesystem::path> KTCopyPlugin(const std::filesystem::path& bundle,
                                                  const std::filesystem::path& folder);
