#include "app/WaymarkAppDelegate.h"
#include "metadata/KTExifToolFolder.h"
#include "platform/common/KTLocalizedString.h"
#include "platform/concurrency/KTThreadPool.h"
#include "platform/desktop/KTLogFile.h"
#include "platform/desktop/KTUserLanguage.h"
#include "platform/desktop/KTWriteNote.h"
#include "ui/application/ApplicationLook.h"
#include "ui/application/ApplicationUserInterface.h"
#include "ui/application/SessionEnd.h"
#include "ui/application/SingleInstance.h"
#include "ui/application/StartOptions.h"
#include "ui/map/AccessibleMap.h"
#include "ui/windows/ToolWindow.h"

#include <QApplication>
#include <QIcon>
#include <QLibraryInfo>
#include <QTranslator>
#include <cstdio>

namespace {

/// Qt ends a program that finds no screen without a word that helps.
bool hasScreen() {
    return qEnvironmentVariableIsSet("DISPLAY") || qEnvironmentVariableIsSet("WAYLAND_DISPLAY") ||
           qEnvironmentVariableIsSet("QT_QPA_PLATFORM");
}

/// What the program keeps of its own runs: a log, and which files are being written.
void keepRecords() {
    KTWriteNote::setFolder(KTWriteNote::userFolder());
    KTLogFile::keepLogIn(KTLogFile::userFile());
    KTLogFile::note("Waymark " WAYMARK_VERSION " begins, on Qt " + std::string(qVersion()));
}

void tellProblems(WaymarkAppController& controller, const std::optional<std::string>& exifToolProblem) {
    if (exifToolProblem)
        controller.tellProblem(KTLocalizedString("The chosen Image::ExifTool cannot be used."),
                               *exifToolProblem);
    const auto writesCutShort = KTWriteNote::takeLeftBehind();
    if (!writesCutShort.empty())
        controller.tellOfFormerRun(writesCutShort);
}

} // namespace

int main(int argc, char** argv) {
    const QString language = QString::fromStdString(KTUseLanguageOfUser());
    if (const auto answer = StartOptions::of(argc, argv).answer) {
        std::fputs(answer->c_str(), stdout);
        return 0;
    }
    if (!hasScreen()) {
        const std::string text =
            "waymark: " +
            KTLocalizedString(
                "There is no display. Start it in a desktop session, or set DISPLAY; without one,\n"
                "the command line does the same work: waymark-cli --help\n");
        std::fputs(text.c_str(), stderr);
        return 1;
    }
    QApplication application(argc, argv); // takes out its own arguments
    qAddPostRoutine(KTEndThreadPool);     // the toolkit keeps fonts for each thread
    QTranslator toolkitTexts;
    if (toolkitTexts.load("qtbase_" + language, QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QApplication::installTranslator(&toolkitTexts);
    QApplication::setApplicationName("waymark");
    QApplication::setApplicationDisplayName("Waymark");
    QApplication::setApplicationVersion(WAYMARK_VERSION);
    QApplication::setDesktopFileName(SingleInstance::kName);
    QApplication::setQuitOnLastWindowClosed(false); // the application controller decides
    QApplication::setWindowIcon(QIcon::fromTheme(SingleInstance::kName));
    applyLook(application);
    AccessibleMap::install();
    ToolWindow::installAccessibility();

    const StartOptions options = StartOptions::of(argc, argv);
    if (options.mistake) {
        std::fprintf(stderr, "waymark: %s\n%s", options.mistake->c_str(),
                     StartOptions::manual().help().c_str());
        return 2;
    }
    if (SingleInstance::handedOver(options.files))
        return 0;
    keepRecords();
    const auto exifToolProblem = KTUseExifToolFolder(options.exifToolFolder);
    ApplicationUserInterface screen;
    WaymarkAppDelegate delegate(screen);
    delegate.applicationDidFinishLaunching();
    const SingleInstance instance([&](const SingleInstance::Paths& opened) {
        if (WaymarkAppController* const controller = delegate.waymarkAppController())
            controller->showWaymarkWindow();
        if (!opened.empty())
            delegate.applicationOpenFiles(opened);
    });
    const SessionEnd sessionEnd(
        [&] { return delegate.applicationShouldTerminate() == WaymarkAppController::TerminateReply::Now; },
        [&] { screen.terminate(); });
    if (WaymarkAppController* const controller = delegate.waymarkAppController())
        tellProblems(*controller, exifToolProblem);
    if (!options.files.empty())
        delegate.applicationOpenFiles(options.files);
    const int status = QApplication::exec();
    delegate.applicationWillTerminate();
    KTLogFile::note("Waymark ends");
    return status;
}
