#include "cli/Command.h"

#include <QCoreApplication>

int main(int argc, char** argv) {
    QCoreApplication::setApplicationName("waymark");
    return runCommandLine(argc, argv);
}
