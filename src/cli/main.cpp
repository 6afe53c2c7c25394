#include "cli/Command.h"
#include "platform/desktop/KTUserLanguage.h"
#include "platform/desktop/KTWriteNote.h"

#include <QCoreApplication>

int main(int argc, char** argv) {
    QCoreApplication::setApplicationName("waymark");
    KTUseLanguageOfUser();
    KTWriteNote::setFolder(KTWriteNote::userFolder());
    return runCommandLine(argc, argv);
}
