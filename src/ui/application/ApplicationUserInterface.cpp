#include "ui/application/ApplicationUserInterface.h"

#include "geotagging/KTAppTrackPickerController.h"
#include "ui/datetools/DateToolsWindow.h"
#include "ui/export/ExportListWindow.h"
#include "ui/window/MainWindow.h"
#include "ui/windows/AboutBox.h"
#include "ui/windows/MediaBrowserWindow.h"
#include "ui/windows/OperationLogWindow.h"
#include "ui/windows/PreferencesWindow.h"
#include "ui/windows/TagDetailsWindow.h"
#include "ui/windows/TrackLibraryWindow.h"

#include <QApplication>
#include <QClipboard>
#include <QDesktopServices>
#include <QFile>
#include <QLibraryInfo>
#include <QStandardPaths>
#include <QUrl>
#include <QVersionNumber>

ApplicationUserInterface::ApplicationUserInterface()
    : alone(std::make_unique<WindowPresenter>()), thumbnails(std::make_unique<KTThumbnailService>()) {}

ApplicationUserInterface::~ApplicationUserInterface() = default;

std::unique_ptr<WaymarkWindow>
ApplicationUserInterface::makeWaymarkWindow(WaymarkWindowController& controller) {
    return std::make_unique<MainWindow>(controller, *thumbnails);
}

WaymarkUserInterface::Window
ApplicationUserInterface::makePreferencesWindow(AppPreferencesWindowController& controller) {
    return std::make_unique<PreferencesWindow>(controller);
}

WaymarkUserInterface::Window
ApplicationUserInterface::makeTagDetailsWindow(KTTagDetailsWindowController& controller) {
    return std::make_unique<TagDetailsWindow>(controller);
}

WaymarkUserInterface::Window
ApplicationUserInterface::makePhotoOperationWindow(KTPhotoOperationWindowController& controller) {
    return std::make_unique<OperationLogWindow>(controller);
}

WaymarkUserInterface::Window
ApplicationUserInterface::makeTrackPickerWindow(KTAppTrackPickerController& controller) {
    return std::make_unique<TrackLibraryWindow>(controller);
}

WaymarkUserInterface::Window
ApplicationUserInterface::makeDateToolsWindow(KTDateToolsWindowController& controller) {
    return std::make_unique<DateToolsWindow>(controller, *thumbnails);
}

WaymarkUserInterface::Window
ApplicationUserInterface::makeMediaBrowserWindow(MediaBrowserWindowController& controller) {
    return std::make_unique<MediaBrowserWindow>(controller, *thumbnails);
}

std::filesystem::path ApplicationUserInterface::picturesFolder() const {
    return QFile::encodeName(QStandardPaths::writableLocation(QStandardPaths::PicturesLocation))
        .toStdString();
}

WaymarkUserInterface::Window
ApplicationUserInterface::makeExportListWindow(KTPhotoExportProgressWindowController& controller) {
    return std::make_unique<ExportListWindow>(controller);
}

void ApplicationUserInterface::openURL(const std::string& url) {
    QDesktopServices::openUrl(QUrl::fromEncoded(QByteArray::fromStdString(url)));
}

void ApplicationUserInterface::showAboutBox() {
    (new AboutBox(QApplication::activeWindow()))->open();
}

std::string ApplicationUserInterface::clipboardText() {
    return QApplication::clipboard()->text().toStdString();
}

void ApplicationUserInterface::setClipboardText(const std::string& text) {
    QApplication::clipboard()->setText(QString::fromStdString(text));
}

/// Not QApplication::quit: it asks every window whether it may be closed, and the main window has the
/// application asked in its turn, without end.
void ApplicationUserInterface::terminate() {
    QMetaObject::invokeMethod(
        qApp, [] { QCoreApplication::exit(); }, Qt::QueuedConnection);
}

int ApplicationUserInterface::toolkitVersion() const {
    const QVersionNumber version = QLibraryInfo::version();
    return version.majorVersion() * 10000 + version.minorVersion() * 100 + version.microVersion();
}
