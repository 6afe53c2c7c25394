#pragma once
#include "ui/windows/ToolWindow.h"

class CoverFlowView;
class DatePreviewList;
class DateToolPanel;
class KTDateToolsWindowController;
class KTThumbnailService;
class QLabel;
class QPushButton;
class QScrollBar;
class QTabBar;
class QVBoxLayout;

/// The date tools: shift, set and copy the capture dates of the selected photos. A strip of these photos,
/// what the tool is told, what would become of some of them, and the button that does it. Floats above the
/// window from which it was opened; undo and redo are those of the photos.
class DateToolsWindow : public ToolWindow {
    Q_OBJECT
public:
    /// Both must outlive the window.
    DateToolsWindow(KTDateToolsWindowController& toolsController, KTThumbnailService& thumbnailService);

protected:
    void makeContent() override;
    void showEvent(QShowEvent* event) override;

private:
    QWidget* makeStrip();
    QWidget* makeButtons();
    void showTool();
    void removePanel();
    void orderFocus();
    void fitHeight();
    void showPhotos();
    void showPreviews();
    void apply();
    void revert();

    KTDateToolsWindowController& controller;
    KTThumbnailService& thumbnails;
    QTabBar* tabs = nullptr;
    CoverFlowView* strip = nullptr;
    QScrollBar* bar = nullptr;
    QLabel *name = nullptr, *date = nullptr, *concerned = nullptr;
    QVBoxLayout* place = nullptr;
    DateToolPanel* panel = nullptr;
    DatePreviewList* previews = nullptr;
    QPushButton *revertButton = nullptr, *applyButton = nullptr;
    KTObservable::Observation windowObservation, photosObservation, previewsObservation;
};
