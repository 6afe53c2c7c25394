#pragma once
#include "platform/observing/KTObservable.h"

#include <QWidget>

class PhotoTableView;
class QCheckBox;

/// What the thumbnails show below the pictures, and how high the table's rows are. Follows the settings.
class PhotoViewOptions : public QWidget {
    Q_OBJECT
public:
    /// @p photoTable must outlive the options.
    explicit PhotoViewOptions(PhotoTableView& photoTable, QWidget* parent = nullptr);

private:
    void addSetting(const char* key, const QString& title, const QString& tip);

    std::vector<KTObservable::Observation> observations;
};
