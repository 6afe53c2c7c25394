#include "platform/pictures/PictureFile.h"

#include <fcntl.h>

namespace {

bool open(QFile& into, const std::filesystem::path& file, int flags, QIODevice::OpenMode mode) {
    const int descriptor = ::open(file.c_str(), flags | O_CLOEXEC, 0666);
    return descriptor >= 0 && into.open(descriptor, mode, QFileDevice::AutoCloseHandle);
}

} // namespace

bool openPictureFile(QFile& into, const std::filesystem::path& file) {
    return open(into, file, O_RDONLY, QIODevice::ReadOnly);
}

bool openNewPictureFile(QFile& into, const std::filesystem::path& file) {
    return open(into, file, O_WRONLY | O_CREAT | O_EXCL, QIODevice::WriteOnly);
}
