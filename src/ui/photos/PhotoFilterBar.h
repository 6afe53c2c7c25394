#pragma once
#include <QWidget>

class PhotoListModel;
class QLineEdit;
class QToolButton;

/// The field and the menu that narrow the lists of photos.
class PhotoFilterBar : public QWidget {
    Q_OBJECT
public:
    explicit PhotoFilterBar(PhotoListModel& filtered, QWidget* parent = nullptr);

    void focusField();

private:
    void showKind();

    PhotoListModel& list;
    QLineEdit* field;
    QToolButton* kindButton;
};
