#pragma once
#include <QFile>
#include <filesystem>

/// For QImageReader, whose own limit large panoramas exceed: megabytes of one decoded picture. The toolkit
/// keeps one limit for the process.
inline constexpr int kPictureAllocationLimit = 2048;

/// Opens @p file for reading by the bytes of its name, which need not be UTF-8. Whether it could.
bool openPictureFile(QFile& into, const std::filesystem::path& file);
/// The same for a new file, which must not be there yet.
bool openNewPictureFile(QFile& into, const std::filesystem::path& file);
