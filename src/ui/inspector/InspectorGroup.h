#pragma once
#include <QWidget>

class KTMetadataEditorViewController;
class KTMetadataGroup;
class QToolButton;
class RowUpdates;

/// A group of fields under a heading that folds it; whether it is folded is kept for the next start.
class InspectorGroup : public QWidget {
    Q_OBJECT
public:
    /// Shows the fields that @p group has now. @p editor and @p rowUpdates must outlive the widget.
    InspectorGroup(KTMetadataEditorViewController& editor, const KTMetadataGroup& group,
                   RowUpdates& rowUpdates);

private:
    void fold(bool isFoldedNow);
    QString stateKey() const;

    QToolButton* heading;
    QWidget* fields;
};
