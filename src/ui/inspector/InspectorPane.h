#pragma once
#include "platform/observing/KTObservable.h"

#include <QWidget>
#include <deque>
#include <functional>

class KTMetadataCustomizationViewController;
class KTMetadataEditorViewController;
class KTMetadataGroup;
class QLabel;
class QMenu;
class QStackedWidget;
class QToolButton;
class QVBoxLayout;
class RowUpdates;

/// The metadata inspector: the values of the selected photos, in groups of fields that the user arranges. The
/// fields are made after the pane has been painted for the first time, a group a turn of the event loop, so
/// that the window is up before.
class InspectorPane : public QWidget {
    Q_OBJECT
public:
    /// Both must outlive the pane. @p customize begins and ends the mode in which fields are arranged.
    InspectorPane(KTMetadataEditorViewController& editorController,
                  KTMetadataCustomizationViewController& customizationController,
                  std::function<void(bool isOn)> customize, QWidget* parent = nullptr);
    ~InspectorPane() override;

    /// Whether all groups are there.
    bool isFilled() const { return hasBegun && remaining.empty(); }

protected:
    bool event(QEvent* event) override;

private:
    QWidget* makeHead();
    QWidget* makeEmptyPage();
    QWidget* makeForm();
    void begin();
    void showGroups();
    void addGroup();
    void showTemplates();
    void showSelection();
    void customizationDidChange();
    void showPage();

    KTMetadataEditorViewController& editor;
    KTMetadataCustomizationViewController& customization;
    const std::function<void(bool isOn)> setCustomizing;
    bool hasBegun = false;
    std::deque<std::shared_ptr<KTMetadataGroup>> remaining; // to be added
    QLabel *title = nullptr, *emptyTitle = nullptr;
    QToolButton* customizeButton = nullptr;
    QMenu* templates = nullptr;
    QVBoxLayout* groups = nullptr;
    QStackedWidget* pages = nullptr;
    QWidget *emptyPage = nullptr, *form = nullptr, *arrangement = nullptr;
    class QTimer* filling = nullptr;
    RowUpdates* updates;
    std::vector<KTObservable::Observation> observations;
};
