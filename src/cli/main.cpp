#include "cli/Command.h"

#include <QCoreApplication>

int main(int argc, char** argv) {
    QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName("waymark");
    return runCommandLine(argc, argv);
}
