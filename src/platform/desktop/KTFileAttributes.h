#pragma once

/// Brings owner, group, permissions, extended attributes and access control list of the open file @p from to
/// the open file @p to, as far as the file system of @p to has such things and the process may set them.
/// Attributes that belong to the system's security and not to the file's user are not touched. A group that
/// cannot be kept gets no more rights than others have, and no access control list is then brought over.
/// Returns 0, or the error number when something that should be possible failed (no space, for example).
int KTCopyFileAttributes(int from, int to);
