#include "ui/windows/DateShiftPanel.h"

#include "metadata/KTDateFormatters.h"
#include "ui/support/ObservationLink.h"
#include "ui/support/PrimaryButton.h"
#include "ui/support/UIText.h"

#include <QCheckBox>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QSignalBlocker>
#include <QSpinBox>

namespace {

constexpr int kMostDays = 99'999;

QString instantText(const std::optional<KTInstant>& instant) {
    return instant ? QString::fromStdString(KTDateTimeFormatter().stringForObjectValue(*instant))
                   : QString("—");
}

} // namespace

DateShiftPanel::DateShiftPanel(KTDateShiftViewController& shiftController, QWidget* parent)
    : QWidget(parent), controller(shiftController),
      direction(new QComboBox), fields{makeField(Unit::Days, uiText("Days"), kMostDays),
                                       makeField(Unit::Hours, uiText("Hours"), 23),
                                       makeField(Unit::Minutes, uiText("Minutes"), 59),
                                       makeField(Unit::Seconds, uiText("Seconds"), 59)},
      all(new QCheckBox(uiText("all loaded photos, not only the selected ones"))),
      digitized(new QCheckBox(uiText("also the digitized date"))), example(new QLabel) {
    direction->addItems({uiText("Later by"), uiText("Earlier by")});
    direction->setToolTip(uiText("Whether the camera's clock was slow or fast"));
    connect(direction, &QComboBox::activated, this,
            [this](int index) { controller.setIsNegative(index == 1); });
    connect(all, &QCheckBox::clicked, this, [this](bool isOn) { controller.setShiftAllPhotos(isOn); });
    connect(digitized, &QCheckBox::clicked, this,
            [this](bool isOn) { controller.setShouldShiftDigitizedDate(isOn); });
    auto* const directionLabel = new QLabel(uiText("Move dates:"));
    directionLabel->setBuddy(direction);
    auto* const line = new QHBoxLayout;
    line->addWidget(directionLabel);
    line->addWidget(direction);
    for (QSpinBox* const field : fields) {
        auto* const label = new QLabel(field->accessibleName());
        label->setBuddy(field);
        line->addWidget(field);
        line->addWidget(label);
    }
    line->addStretch();

    auto* const revert = new QPushButton(uiText("Revert"));
    revert->setToolTip(uiText("Takes every shift back to what the files hold"));
    connect(revert, &QPushButton::clicked, this, [this] { controller.shiftDateTimeOriginalRevert(); });
    auto* const apply = new PrimaryButton(uiText("Apply"));
    apply->setToolTip(uiText("Moves the dates; nothing is written yet"));
    connect(apply, &QPushButton::clicked, this, [this] { controller.shiftDateTimeOriginalApply(); });
    auto* const buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(revert);
    buttons->addWidget(apply);
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addLayout(line);
    for (QWidget* widget :
         {static_cast<QWidget*>(digitized), static_cast<QWidget*>(all), static_cast<QWidget*>(example)})
        layout->addWidget(widget);
    layout->addLayout(buttons);
    observation = observeFor(this, controller, {}, [this] { update(); });
    update();
}

QSpinBox* DateShiftPanel::makeField(Unit unit, const QString& name, int maximum) {
    auto* const field = new QSpinBox;
    field->setAccessibleName(name);
    field->setToolTip(name);
    field->setRange(0, maximum);
    field->setWrapping(unit != Unit::Days);
    connect(field, &QSpinBox::valueChanged, this,
            [this, unit](int value) { controller.setMagnitude(unit, value); });
    return field;
}

void DateShiftPanel::update() {
    direction->setCurrentIndex(controller.isNegative() ? 1 : 0);
    for (std::size_t i = 0; i < fields.size(); ++i) {
        const QSignalBlocker quiet(fields[i]);
        fields[i]->setValue(int(controller.magnitude(Unit(i))));
    }
    all->setChecked(controller.shiftAllPhotos());
    digitized->setChecked(controller.shouldShiftDigitizedDate());
    example->setText(uiText("Photo in front: %1 → %2")
                         .arg(instantText(controller.currentImageSavedDate()),
                              instantText(controller.currentImageCorrectedDate())));
}
