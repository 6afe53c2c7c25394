#pragma once
#include "app/WaymarkWindow.h"
#include "app/thumbnails/KTThumbnailService.h"
#include "platform/observing/KTObservable.h"
#include "ui/window/WindowPresenter.h"
#include "ui/window/WindowState.h"

#include <QMainWindow>

class DropHighlight;
class PhotoPane;
class QSplitter;
class WaymarkWindowController;

/// The main window: menu bar, tool bar, photos, map above console, inspector, status bar.
/// Takes files that are dropped on it. Its parts are made by setUp(), once
/// their controllers are.
class MainWindow : public QMainWindow, public WaymarkWindow {
    Q_OBJECT
public:
    MainWindow(WaymarkWindowController& windowController, KTThumbnailService& thumbnailService);
    ~MainWindow() override;

    KTViewHandle viewHandle() override { return static_cast<QWidget*>(this); }

    void chooseTagsToPaste(const KTCopiedTags& tags, std::size_t photoCount,
                           std::function<void(const KTCopiedTags& chosen)> paste) override;

    void presentAlert(KTAlert alert) override { presenter.presentAlert(std::move(alert)); }
    void presentFilePanel(KTFilePanel panel) override { presenter.presentFilePanel(std::move(panel)); }
    void presentSettingsSheet(KTSettingsSheet sheet) override {
        presenter.presentSettingsSheet(std::move(sheet));
    }
    void revealFiles(const std::vector<std::filesystem::path>& files) override {
        presenter.revealFiles(files);
    }

protected:
    void closeEvent(QCloseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dragLeaveEvent(QDragLeaveEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    void setUp();
    void addMap();
    void addConsole();
    void addInspector();
    void showMatches();
    void showOrHide();
    void showPanes();
    void restoreState();
    void saveState();
    void tryDemoTrip();

    WaymarkWindowController& controller;
    KTThumbnailService& thumbnails;
    WindowPresenter presenter;
    WindowState state;
    bool isSetUp = false;
    PhotoPane* photoPane = nullptr;
    QWidget *mapPane = nullptr, *consolePane = nullptr, *inspector = nullptr;
    QSplitter *columns = nullptr, *middle = nullptr;
    DropHighlight* dropHighlight;
    std::vector<KTObservable::Observation> observations;
};
