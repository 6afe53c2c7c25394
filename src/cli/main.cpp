#include "cli/Command.h"

#include "platform/gazetteer/KTGazetteer.h"

#include <QCoreApplication>

int main(int argc, char** argv) {
    QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName("waymark");
    const int status = runCommandLine(argc, argv);
    KTGazetteer::sharedGazetteer().close(); // while there still is an application
    return status;
}
