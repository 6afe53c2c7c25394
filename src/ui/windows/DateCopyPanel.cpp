#include "ui/windows/DateCopyPanel.h"

#include "ui/support/ObservationLink.h"
#include "ui/support/PrimaryButton.h"
#include "ui/support/UIText.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>

namespace {

using Controller = KTDateCopyViewController;

constexpr const char* kTitles[] = {"Original date", "Digitized date",
                                   "Creation date"}; // as Controller::Date counts

} // namespace

DateCopyPanel::DateCopyPanel(Controller& copyController, QWidget* parent)
    : QWidget(parent), controller(copyController), source(new QComboBox) {
    auto* const form = new QFormLayout(this);
    form->setContentsMargins({});
    for (const char* title : kTitles)
        source->addItem(uiText(title));
    source->setToolTip(uiText("The date that is copied"));
    connect(source, &QComboBox::activated, this,
            [this](int index) { controller.setSelectedCopyFromDate(unsigned(index)); });
    form->addRow(uiText("From:"), source);
    for (std::size_t i = 0; i < targets.size(); ++i) {
        targets[i] = new QCheckBox(uiText(kTitles[i]));
        targets[i]->setAccessibleName(uiText("To: %1").arg(targets[i]->text()));
        targets[i]->setToolTip(uiText("Whether it is replaced"));
        connect(targets[i], &QCheckBox::clicked, this,
                [this, i](bool isOn) { controller.setShouldCopyTo(Controller::Date(i), isOn); });
        form->addRow(i == 0 ? uiText("To:") : QString(), targets[i]);
    }
    auto* const apply = new PrimaryButton(uiText("Apply"));
    apply->setToolTip(uiText("Copies the dates; nothing is written yet"));
    connect(apply, &QPushButton::clicked, this, [this] { controller.copyDateTimeApply(); });
    form->addRow(apply);
    observation = observeFor(this, controller, {}, [this] { update(); });
    update();
}

void DateCopyPanel::update() {
    source->setCurrentIndex(int(controller.selectedCopyFromDate()));
    for (std::size_t i = 0; i < targets.size(); ++i) {
        targets[i]->setEnabled(i != controller.selectedCopyFromDate());
        targets[i]->setChecked(controller.shouldCopyTo(Controller::Date(i)));
    }
}
