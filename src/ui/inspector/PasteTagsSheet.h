#pragma once
#include "app/editor/KTCopiedTags.h"

#include <QDialog>
#include <functional>

class QPushButton;
class QStandardItemModel;

/// The sheet in which one chooses which of the copied values are pasted.
class PasteTagsSheet : public QDialog {
    Q_OBJECT
public:
    /// @p pasteTags is called with what was chosen, unless the sheet is cancelled. @p photoCount photos will
    /// get them. The sheet deletes itself.
    PasteTagsSheet(KTCopiedTags copied, std::size_t photoCount,
                   std::function<void(const KTCopiedTags&)> pasteTags, QWidget* window);

private:
    void choose(int row, bool isChosen);
    void chooseAll(bool isChosen);

    KTCopiedTags tags;
    QStandardItemModel* rows;
    QPushButton* paste;
};
