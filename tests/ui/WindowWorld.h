#pragma once
#include "app/WaymarkAppController.h"
#include "app/WaymarkWindowController.h"
#include "collection/DemoTrip.h"
#include "collection/KTBatchOperationController.h"
#include "collection/KTPhotoManager.h"
#include "metadata/KTMetadataFieldManager.h"
#include "platform/common/KTTimeZoneManager.h"
#include "platform/defaults/KTUserDefaults.h"
#include "platform/desktop/KTSystemTimeZone.h"
#include "platform/gazetteer/KTGazetteer.h"
#include "tests/platform/tracklibrary/TrackTestSupport.h"
#include "tests/support/EventLoop.h"
#include "tests/support/TestPhotos.h"
#include "ui/application/ApplicationUserInterface.h"
#include "ui/window/MainWindow.h"

#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <QTest>
#include <memory>

/// The whole application with its real windows, on a collection, a track library and a home of its own.
class WindowWorld {
public:
    WindowWorld() {
        KTUserDefaults::useThrowAwayDomain();
        for (const auto& [variable, name] : {std::pair{"XDG_DATA_HOME", "data"},
                                             {"XDG_CONFIG_HOME", "config"},
                                             {"WAYMARK_PLUGINS", "plugins"}})
            setenv(variable, (folder / name).c_str(), 1);
        for (const char* key : {"defaultLatLonCreatedShouldReverseGeocodeLocationCreated",
                                "defaultLatLonCreatedShouldReverseGeocodeLocationShown",
                                "defaultLatLonShownShouldReverseGeocodeLocationShown"})
            KTUserDefaults::standardUserDefaults().setValue(key, false);
        app = std::make_unique<WaymarkAppController>(
            ui, WaymarkModel{.photoManager = &manager,
                             .metadataFieldManager = &KTMetadataFieldManager::sharedMetadataFieldManager(),
                             .trackManager = &tracks,
                             .timeZoneManager = &KTTimeZoneManager::sharedTimeZoneManager(),
                             .gazetteer = &KTGazetteer::sharedGazetteer(),
                             .systemTimeZone = std::make_shared<KTSystemTimeZone>()});
        app->setupModel();
        app->setupControllers();
        app->showWaymarkWindow();
    }
    ~WindowWorld() {
        app->applicationWillTerminate();
        app.reset();
        KTUserDefaults::useThrowAwayDomain();
    }

    MainWindow& window() {
        return *static_cast<MainWindow*>(
            static_cast<QWidget*>(app->waymarkWindowController()->window()->viewHandle()));
    }
    /// What is shown and has that accessible name; null for none.
    template<class Widget = QWidget>
    Widget* find(const QString& name) {
        for (QWidget* const each : QApplication::allWidgets())
            if (auto* const widget = qobject_cast<Widget*>(each);
                widget && widget->isVisible() && widget->accessibleName() == name)
                return widget;
        return nullptr;
    }
    /// A button with that text that can be pressed.
    QAbstractButton* button(const QString& text) {
        for (QWidget* const each : QApplication::allWidgets())
            if (auto* const found = qobject_cast<QAbstractButton*>(each);
                found && found->isVisible() && found->isEnabled() && found->text() == text)
                return found;
        return nullptr;
    }
    bool waitForButton(const QString& text) {
        return runEventLoopUntil([&] { return button(text) != nullptr; });
    }
    void press(const QString& text) {
        ASSERT_TRUE(waitForButton(text)) << text.toStdString();
        QTest::mouseClick(button(text), Qt::LeftButton);
    }
    bool shows(const QString& text) {
        for (QWidget* const each : QApplication::allWidgets())
            if (auto* const label = qobject_cast<QLabel*>(each);
                label && label->isVisible() && label->text() == text)
                return true;
        return false;
    }
    bool waitForText(const QString& text) {
        return runEventLoopUntil([&] { return shows(text); });
    }
    /// Drops files on the main window, as a file manager does.
    void drop(const std::vector<std::filesystem::path>& files);
    bool waitForTrip(std::size_t photos) {
        return runEventLoopUntil([&] {
            return manager.numberOfPhotos() == photos && !manager.importInProgress() &&
                   !tracks.store().tracks().empty() && !tracks.importInProgress();
        });
    }
    bool isQuiet() {
        return !app->waymarkWindowController()->batchOperationController()->batchSaveInProgress();
    }

    TemporaryFolder folder;
    ApplicationUserInterface ui;
    KTTrackManager tracks{openStore()};
    KTPhotoManager manager;
    std::unique_ptr<WaymarkAppController> app;
};
