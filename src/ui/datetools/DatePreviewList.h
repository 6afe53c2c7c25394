#pragma once
#include "datetools/KTDateTool.h"

#include <QTreeWidget>

/// What a date tool would make of the photo in front, and of the first and the last photo that it changes.
class DatePreviewList : public QTreeWidget {
    Q_OBJECT
public:
    explicit DatePreviewList(QWidget* parent = nullptr);

    void setPreviews(const std::vector<KTDatePreview>& previews);
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return {200, sizeHint().height() / 2}; }

private:
    void addRow(const KTPhoto& photo, const QString& places, const KTDateChange& change);
};
