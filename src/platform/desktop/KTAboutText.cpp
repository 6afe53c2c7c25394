#include "platform/desktop/KTAboutText.h"

#include "platform/desktop/KTResources.h"

#include <fstream>
#include <iterator>

std::string KTAboutText(const std::string& program) {
    std::ifstream credits(KTResourcePath("data/credits.txt"));
    return program + " " WAYMARK_VERSION "\n\n" +
           std::string(std::istreambuf_iterator(credits), std::istreambuf_iterator<char>());
}
