#pragma once
#include "platform/observing/KTObservable.h"

#include <QWidget>

class QCheckBox;
class QComboBox;
class QLineEdit;
class QRadioButton;

/// What the user asks of a track point before a photo takes its place from it: the settings of the criteria,
/// each of which holds as soon as it is entered.
class CriteriaView : public QWidget {
    Q_OBJECT
public:
    explicit CriteriaView(QWidget* parent = nullptr);

private:
    void showSettings();
    void enterTime();
    void enterDistance();
    QLineEdit* makeField(const QString& name, const QString& tip, void (CriteriaView::*entered)());
    QCheckBox* makeCheckBox(const QString& text, const char* setting, const QString& tip);

    QCheckBox *usesTime, *usesDistance, *skipsGeotagged;
    QLineEdit *time, *distance;
    QComboBox* combination;
    QRadioButton *nearest, *weighted;
    KTObservable::Observation settingsObservation, unitsObservation;
};
