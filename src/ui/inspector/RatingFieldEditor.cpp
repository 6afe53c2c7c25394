#include "ui/inspector/RatingFieldEditor.h"

#include "app/editor/KTRating.h"
#include "ui/inspector/RatingStars.h"

RatingFieldEditor::RatingFieldEditor(Item& edited) : FieldEditor(edited), stars(new RatingStars) {
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(stars);
    auto rate = [this](int chosen) {
        if (!isShowing)
            item.setValue(KTRatingOfStars(chosen));
    };
    connect(stars, &RatingStars::chosen, this, rate);
    connect(stars, &QAbstractSlider::valueChanged, this, rate); // by assistive technology
}

QList<QWidget*> RatingFieldEditor::fields() const {
    return {stars};
}

void RatingFieldEditor::showValue() {
    isShowing = true;
    stars->setValue(KTStarsOfRating(item.selectedValue()));
    stars->setPlaceholder(shown(item.placeholder()));
    stars->setEnabled(item.isEditable());
    isShowing = false;
}
