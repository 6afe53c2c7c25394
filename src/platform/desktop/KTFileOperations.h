#pragma once
#include <filesystem>
#include <functional>
#include <optional>
#include <string>

/// Steps on whole files. Each returns an error text for users, nothing when done. None throws. Any thread.

/// Copies the file @p source to @p destination, which must not exist yet: content, permissions and
/// modification date, and owner, extended attributes and access control list where the destination's file
/// system takes them. The content is on disk when the function returns; nothing is left behind when it fails.
/// A symbolic link as source stands for the file it leads to.
std::optional<std::string> KTCopyItem(const std::filesystem::path& source,
                                      const std::filesystem::path& destination);

/// Puts the file @p temporary, which must lie on the same volume, in the place of @p target, in one step:
/// whoever opens @p target sees the old content or the new one whole, also after a loss of power.
///
/// Where @p target exists, @p temporary first receives its permissions, its owner and group (where the
/// process may set them; a group that cannot be kept gets no more rights than others have), its extended
/// attributes and its access control list. A @p target that does not exist is made, with the permissions that
/// @p temporary has. A symbolic link stays, and the file it leads to is replaced. Other hard links to the old
/// file keep the old content: writing through them would give up the one-step replacement.
///
/// Fails, and leaves @p target as it was, when a step before the replacement fails, when @p target is not a
/// file, or when it is a file that the process may not write to (photographers protect their originals this
/// way). Only the last step, bringing the folder to disk, can fail after the replacement.
///
/// @p mayReplace, where given, is asked last, immediately before the replacement; nothing is replaced when it
/// says no.
std::optional<std::string> KTReplaceItem(const std::filesystem::path& target,
                                         const std::filesystem::path& temporary,
                                         const std::function<bool()>& mayReplace = {});

/// The name under which a copy of a file called @p name goes into @p folder: its own, or the first of
/// "base-1.ext", "base-2.ext", … that does not exist there yet.
std::filesystem::path KTBackupName(const std::filesystem::path& folder, const std::filesystem::path& name);

/// @p path, or what it leads to when its last part is a symbolic link, through any number of links; the last
/// link is returned for a link that leads nowhere in the end or into a circle.
std::filesystem::path KTLinkTarget(const std::filesystem::path& path);
