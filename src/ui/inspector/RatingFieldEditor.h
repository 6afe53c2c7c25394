#pragma once
#include "ui/inspector/FieldEditor.h"

class RatingStars;

/// The rating.
class RatingFieldEditor : public FieldEditor {
    Q_OBJECT
public:
    explicit RatingFieldEditor(Item& edited);

    void showValue() override;
    QList<QWidget*> fields() const override;

private:
    RatingStars* stars;
    bool isShowing = false;
};
