#include "ui/console/CriteriaView.h"

#include "platform/defaults/KTUserDefaults.h"
#include "ui/support/ObservationLink.h"
#include "ui/support/TypedQuantity.h"
#include "ui/support/UIText.h"
#include "ui/support/WrappingLine.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QVBoxLayout>

namespace {

constexpr const char *kUsesTime = "shouldUseTimeRestriction", *kTime = "timeRestriction",
                     *kUsesDistance = "shouldUseDistanceRestriction", *kDistance = "distanceRestriction",
                     *kBoth = "shouldANDRestrictions", *kWeighted = "shouldUseTimeWeightedAverage",
                     *kSkips = "shouldIgnorePreviouslyTaggedPhotos";

KTUserDefaults& defaults() {
    return KTUserDefaults::standardUserDefaults();
}

QLabel* labelFor(QWidget* buddy, const QString& text) {
    auto* const label = new QLabel(text);
    label->setBuddy(buddy);
    return label;
}

} // namespace

CriteriaView::CriteriaView(QWidget* parent)
    : QWidget(parent),
      usesTime(makeCheckBox(uiText("within"), kUsesTime,
                            uiText("Geotag only photos that were taken so close in time to a track point"))),
      usesDistance(
          makeCheckBox(uiText("points at most"), kUsesDistance,
                       uiText("Geotag only photos between two track points so close to each other"))),
      skipsGeotagged(makeCheckBox(uiText("skip photos already geotagged"), kSkips,
                                  uiText("Leave alone photos that have a location"))),
      time(makeField(uiText("Time to the nearest track point"), uiText("For example 5 min or 90 s"),
                     &CriteriaView::enterTime)),
      distance(makeField(uiText("Distance between the track points"), uiText("For example 25 m or 80 ft"),
                         &CriteriaView::enterDistance)),
      combination(new QComboBox), nearest(new QRadioButton(uiText("nearest point"))),
      weighted(new QRadioButton(uiText("time weighted average"))) {
    usesTime->setAccessibleName(uiText("Use the time criterion"));
    usesDistance->setAccessibleName(uiText("Use the distance criterion"));
    combination->addItems({uiText("either"), uiText("both")});
    combination->setToolTip(uiText("Whether one of the two criteria suffices or both must hold"));
    connect(combination, &QComboBox::activated, this,
            [](int index) { defaults().setValue(kBoth, index == 1); });
    nearest->setToolTip(uiText("Use the track point that is nearest in time"));
    weighted->setToolTip(uiText("Use the place between the two track points that the time tells"));
    for (QRadioButton* button : {nearest, weighted})
        connect(button, &QRadioButton::clicked, this,
                [this] { defaults().setValue(kWeighted, weighted->isChecked()); });

    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->setSpacing(2);
    layout->addLayout(new WrappingLine{usesTime, time, labelFor(time, uiText("of a track point"))});
    layout->addLayout(new WrappingLine{usesDistance, distance, labelFor(distance, uiText("apart"))});
    layout->addLayout(new WrappingLine{labelFor(combination, uiText("Require")), combination});
    layout->addWidget(nearest);
    layout->addWidget(weighted);
    layout->addWidget(skipsGeotagged);
    layout->addStretch();
    settingsObservation = observeFor(this, defaults(), {}, [this] { showSettings(); });
    unitsObservation =
        observeFor(this, KTUnitConverter::sharedUnitConverter(), {}, [this] { showSettings(); });
    showSettings();
}

QCheckBox* CriteriaView::makeCheckBox(const QString& text, const char* setting, const QString& tip) {
    auto* const box = new QCheckBox(text);
    box->setToolTip(tip);
    connect(box, &QCheckBox::clicked, this, [setting](bool isOn) { defaults().setValue(setting, isOn); });
    return box;
}

QLineEdit* CriteriaView::makeField(const QString& name, const QString& tip, void (CriteriaView::*entered)()) {
    auto* const field = new QLineEdit;
    field->setAccessibleName(name);
    field->setToolTip(tip);
    field->setFixedWidth(fontMetrics().horizontalAdvance("0000 min") + 12);
    connect(field, &QLineEdit::editingFinished, this, entered);
    return field;
}

void CriteriaView::enterTime() {
    if (const auto seconds = TypedQuantity::secondsFrom(time->text()); seconds && time->isModified())
        defaults().setValue(kTime, KTDecimal::fromDouble(*seconds));
    showSettings(); // what was no duration goes
}

void CriteriaView::enterDistance() {
    const auto units = KTUnitConverter::sharedUnitConverter().distanceUnits();
    if (const auto metres = TypedQuantity::metresFrom(distance->text(), units);
        metres && distance->isModified())
        defaults().setValue(kDistance, KTDecimal::fromDouble(*metres));
    showSettings();
}

void CriteriaView::showSettings() {
    usesTime->setChecked(defaults().boolForKey(kUsesTime));
    usesDistance->setChecked(defaults().boolForKey(kUsesDistance));
    skipsGeotagged->setChecked(defaults().boolForKey(kSkips));
    time->setEnabled(usesTime->isChecked());
    distance->setEnabled(usesDistance->isChecked());
    time->setText(TypedQuantity::textOfSeconds(defaults().doubleForKey(kTime)));
    distance->setText(TypedQuantity::textOfMetres(defaults().doubleForKey(kDistance),
                                                  KTUnitConverter::sharedUnitConverter().distanceUnits()));
    combination->setCurrentIndex(defaults().boolForKey(kBoth) ? 1 : 0);
    combination->setEnabled(usesTime->isChecked() && usesDistance->isChecked());
    (defaults().boolForKey(kWeighted) ? weighted : nearest)->setChecked(true);
}
