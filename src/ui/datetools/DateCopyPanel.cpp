#include "ui/datetools/DateCopyPanel.h"

#include "ui/support/ObservationLink.h"
#include "ui/support/UIText.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QRadioButton>

namespace {

// As KTDateCopyViewController::Date counts.
constexpr struct {
    const char *title, *meaning;
} kDates[] = {{"Original date", "When the picture was taken"},
              {"Digitized date", "When it was digitized; of a digital camera the same"},
              {"Creation date", "When the file was made, as its folder tells"}};

} // namespace

DateCopyPanel::DateCopyPanel(KTDateCopyViewController& copyController, QWidget* parent)
    : DateToolPanel(parent), controller(copyController) {
    auto* const grid = new QGridLayout(this);
    grid->setContentsMargins({});
    grid->setHorizontalSpacing(12);
    grid->setColumnStretch(4, 1);
    for (std::size_t i = 0; i < std::size(kDates); ++i) {
        const QString title = uiText(kDates[i].title), meaning = uiText(kDates[i].meaning);
        sources[i] = new QRadioButton(title);
        sources[i]->setAccessibleName(uiText("From: %1").arg(title));
        sources[i]->setToolTip(uiText("Copy this date. %1.").arg(meaning));
        connect(sources[i], &QRadioButton::clicked, this,
                [this, i] { controller.setSelectedCopyFromDate(unsigned(i)); });
        targets[i] = new QCheckBox(title);
        targets[i]->setAccessibleName(uiText("To: %1").arg(title));
        targets[i]->setToolTip(uiText("Replace this date. %1.").arg(meaning));
        connect(targets[i], &QCheckBox::clicked, this,
                [this, i](bool isOn) { controller.setShouldCopyTo(Date(i), isOn); });
        grid->addWidget(sources[i], int(i), 1);
        grid->addWidget(targets[i], int(i), 3);
    }
    grid->addWidget(labelFor(sources[0], uiText("Copy from:")), 0, 0);
    grid->addWidget(labelFor(targets[0], uiText("to:")), 0, 2);
    grid->setColumnMinimumWidth(2, 60);
    grid->itemAtPosition(0, 2)->setAlignment(Qt::AlignRight);
    observation = observeFor(this, controller, {}, [this] { update(); });
    update();
}

QString DateCopyPanel::applyTip() const {
    return uiText("Copies the date within each selected photo; nothing is written yet");
}

void DateCopyPanel::update() {
    sources[controller.selectedCopyFromDate()]->setChecked(true);
    for (std::size_t i = 0; i < targets.size(); ++i) {
        targets[i]->setEnabled(i != controller.selectedCopyFromDate());
        targets[i]->setChecked(controller.shouldCopyTo(Date(i)));
    }
}
