#include "platform/desktop/KTFileDescriptor.h"

#include "platform/common/KTLocalizedString.h"
#include "platform/common/KTText.h"

#include <fcntl.h>
#include <system_error>
#include <unistd.h>

KTFileDescriptor::KTFileDescriptor(const std::filesystem::path& path, int flags, unsigned mode)
    : number(::open(path.c_str(), flags | O_CLOEXEC, mode)) {}

bool KTFileDescriptor::close() {
    return number < 0 || ::close(std::exchange(number, -1)) == 0;
}

std::string KTSystemErrorText(int error) {
    return std::generic_category().message(error);
}

std::string KTFileErrorText(std::string_view format, const std::filesystem::path& file, int error) {
    return KTStringWithFormat(KTLocalizedString(format),
                              {KTValidUTF8(file.string()), KTSystemErrorText(error)});
}
