#include "app/WaymarkAppDelegate.h"
#include "ui/application/ApplicationLook.h"
#include "ui/application/ApplicationUserInterface.h"
#include "ui/application/SingleInstance.h"
#include "ui/map/AccessibleMap.h"
#include "ui/windows/ToolWindow.h"

#include <QApplication>
#include <QIcon>
#include <cstdio>

namespace {

/// Qt ends a program that finds no screen without a word that helps.
bool hasScreen() {
    return qEnvironmentVariableIsSet("DISPLAY") || qEnvironmentVariableIsSet("WAYLAND_DISPLAY") ||
           qEnvironmentVariableIsSet("QT_QPA_PLATFORM");
}

SingleInstance::Paths filesFrom(int argc, char** argv) {
    SingleInstance::Paths files;
    for (int i = 1; i < argc; ++i)
        files.push_back(std::filesystem::absolute(argv[i]));
    return files;
}

} // namespace

int main(int argc, char** argv) {
    if (!hasScreen()) {
        std::fputs("waymark: There is no display. Start it in a desktop session, "
                   "or set DISPLAY; without one,\n"
                   "the command line does the same work: waymark-cli --help\n",
                   stderr);
        return 1;
    }
    QApplication application(argc, argv); // takes out its own arguments
    QApplication::setApplicationName("waymark");
    QApplication::setApplicationDisplayName("Waymark");
    QApplication::setApplicationVersion(WAYMARK_VERSION);
    QApplication::setDesktopFileName(SingleInstance::kName);
    QApplication::setQuitOnLastWindowClosed(false); // the application controller decides
    QApplication::setWindowIcon(QIcon::fromTheme(SingleInstance::kName));
    applyLook(application);
    AccessibleMap::install();
    ToolWindow::installAccessibility();

    const SingleInstance::Paths files = filesFrom(argc, argv);
    if (SingleInstance::handedOver(files))
        return 0;
    ApplicationUserInterface screen;
    WaymarkAppDelegate delegate(screen);
    delegate.applicationDidFinishLaunching();
    const SingleInstance instance([&](const SingleInstance::Paths& opened) {
        if (WaymarkAppController* const controller = delegate.waymarkAppController())
            controller->showWaymarkWindow();
        if (!opened.empty())
            delegate.applicationOpenFiles(opened);
    });
    if (!files.empty())
        delegate.applicationOpenFiles(files);
    const int status = QApplication::exec();
    delegate.applicationWillTerminate();
    return status;
}
