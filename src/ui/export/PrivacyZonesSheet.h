#pragma once
#include <QDialog>

class QLabel;
class QLineEdit;
class QPushButton;
class QSpinBox;
class QTreeWidget;

/// The circles around places that no export tells. Each change holds at once.
class PrivacyZonesSheet : public QDialog {
    Q_OBJECT
public:
    explicit PrivacyZonesSheet(QWidget* parent);

private:
    void fill();
    void add();
    void removeChosen();
    void updateButtons();

    QTreeWidget* list;
    QLineEdit *name, *place;
    QSpinBox* radius;
    QLabel* hint;
    QPushButton *addButton, *removeButton;
};
