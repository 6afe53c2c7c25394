#pragma once
#include "platform/observing/KTObservable.h"

#include <QWidget>

class ImportProgressLine;
class KTPhotoManager;
class KTPhotoManagerToolbarController;
class QLabel;

/// The line at the lower edge of the main window: how many photos are loaded and unsaved, and how far an
/// import is, which can be stopped there.
class WindowStatusBar : public QWidget {
    Q_OBJECT
public:
    WindowStatusBar(KTPhotoManagerToolbarController& toolbar, KTPhotoManager& collection,
                    QWidget* parent = nullptr);

private:
    void showCounts();
    void showImport();

    KTPhotoManagerToolbarController& controller;
    KTPhotoManager& manager;
    QLabel* counts;
    ImportProgressLine* progress;
    KTObservable::Observation controllerObservation, managerObservation;
};
