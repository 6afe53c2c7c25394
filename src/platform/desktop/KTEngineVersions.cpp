#include "platform/desktop/KTEngineVersions.h"

#include <GeographicLib/Config.h>
#include <QtGlobal>
#include <expat.h>
#include <sqlite3.h>

std::vector<std::pair<std::string, std::string>> KTEngineVersions() {
    const XML_Expat_Version expat = XML_ExpatVersionInfo();
    return {{"Qt", qVersion()},
            {"SQLite", sqlite3_libversion()},
            {"Expat", std::to_string(expat.major) + "." + std::to_string(expat.minor) + "." +
                          std::to_string(expat.micro)},
            {"GeographicLib", GEOGRAPHICLIB_VERSION_STRING}};
}
