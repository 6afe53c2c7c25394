#pragma once
#include "platform/common/KTTimeZone.h"

#include <QDialog>
#include <functional>

class QLineEdit;
class QSortFilterProxyModel;
class QTreeView;

/// The sheet in which a time zone is looked for, by region, city or offset.
class TimeZonePicker : public QDialog {
    Q_OBJECT
public:
    /// @p chosen is called with the zone that the user picks. The picker deletes itself.
    TimeZonePicker(std::function<void(const KTTimeZone&)> chosen, QWidget* window);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void narrow(const QString& text);
    void choose();

    const std::function<void(const KTTimeZone&)> whenChosen;
    QLineEdit* field;
    QTreeView* list;
    class TimeZoneList* zones;
    QSortFilterProxyModel* narrowed;
};
