#include "export/KTPluginError.h"

#include "platform/common/KTLocalizedString.h"
#include "platform/common/KTLog.h"
#include "platform/common/KTText.h"

namespace {

std::string textOfCurrentException() {
    try {
        throw;
    } catch (const std::exception& error) {
        return KTValidUTF8(error.what());
    } catch (...) {
        return KTLocalizedString("an exception without text");
    }
}

} // namespace

KTPluginError KTPluginError::ofCurrentException(const std::filesystem::path& plugin,
                                                std::string_view throwing) {
    return {Threw, KTValidUTF8(plugin.string()),
            KTStringWithFormat(KTLocalizedString("It failed in %@: %@."),
                               {std::string(throwing), textOfCurrentException()})};
}

void KTPluginError::log() const {
    KTLog(KTStringWithFormat(
        "%@\n%@\n%@ Code: %ld",
        {userInfo, KTLocalizedString("The plug-in cannot be used."), failureReason, std::to_string(code)}));
}
