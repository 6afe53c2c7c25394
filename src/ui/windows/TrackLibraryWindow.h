#pragma once
#include "ui/windows/ToolWindow.h"

class KTAppTrackPickerController;
class QListWidget;
class QSortFilterProxyModel;
class QTreeView;

/// The track library: its smart files on the left, the tracks and waypoints of
/// the chosen one on the right, and how far an import is.
class TrackLibraryWindow : public ToolWindow {
    Q_OBJECT
public:
    explicit TrackLibraryWindow(KTAppTrackPickerController& pickerController);

protected:
    void makeContent() override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    QListWidget* makeSources();
    QTreeView* makeTracks();
    QWidget* makeFoot();
    void showSelection();
    void takeSelection();
    void showImport();

    KTAppTrackPickerController& controller;
    QListWidget* sources = nullptr;
    QTreeView* tracks = nullptr;
    QSortFilterProxyModel* sorted = nullptr;
    class ImportProgressLine* progress = nullptr;
    bool isShowing = false;
    std::vector<KTObservable::Observation> observations;
};
