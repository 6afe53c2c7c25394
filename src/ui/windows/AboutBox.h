#pragma once
#include <QDialog>

/// Name, versions of the engines, licences, and whose data the program carries.
class AboutBox : public QDialog {
    Q_OBJECT
public:
    explicit AboutBox(QWidget* parent);
};
