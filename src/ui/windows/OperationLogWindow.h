#pragma once
#include "ui/windows/ToolWindow.h"

class KTPhotoOperationWindowController;
class OperationLogModel;
class QComboBox;
class QTreeView;

/// The operation log. A double click selects the photo of an operation; the
/// lines can be copied and saved as text.
class OperationLogWindow : public ToolWindow {
    Q_OBJECT
public:
    explicit OperationLogWindow(KTPhotoOperationWindowController& logController);

protected:
    void makeContent() override;

private:
    QWidget* makeHead();
    void selectPhoto(int row);
    QString chosenText() const;
    void save();

    KTPhotoOperationWindowController& controller;
    OperationLogModel* model = nullptr;
    QTreeView* list = nullptr;
    QComboBox* filter = nullptr;
    KTObservable::Observation filterObservation;
};
