#include "ui/export/PrivacyZonesSheet.h"

#include "export/KTPrivacyZones.h"
#include "platform/defaults/KTUserDefaults.h"
#include "platform/geodesy/KTCoordinates.h"
#include "ui/support/UIText.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QShortcut>
#include <QSpinBox>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace {

constexpr const char* kSetting = "exportPrivacyZones";
constexpr int kUsualRadius = 500, kLeastRadius = 10, kMostRadius = 100'000; // metres

std::vector<std::string> entries() {
    return KTUserDefaults::standardUserDefaults().textsForKey(kSetting);
}

void store(const std::vector<std::string>& texts) {
    KTUserDefaults::standardUserDefaults().setValue(kSetting, KTValue::listOfTexts(texts));
}

} // namespace

PrivacyZonesSheet::PrivacyZonesSheet(QWidget* parent)
    : QDialog(parent), list(new QTreeWidget), name(new QLineEdit), place(new QLineEdit), radius(new QSpinBox),
      hint(new QLabel), addButton(new QPushButton(uiText("Add"))),
      removeButton(new QPushButton(uiText("Remove"))) {
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(uiText("Privacy Zones"));
    auto* const text =
        new QLabel(uiText("Photos taken or shown inside these circles are exported without their "
                          "location, and tracks without their points there."));
    text->setWordWrap(true);
    list->setAccessibleName(uiText("Privacy Zones"));
    list->setHeaderLabels({uiText("Name"), uiText("Centre"), uiText("Radius")});
    list->setRootIsDecorated(false);
    list->setSelectionMode(QAbstractItemView::ExtendedSelection);
    list->header()->setStretchLastSection(false);
    list->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    list->header()->setSectionResizeMode(0, QHeaderView::Stretch);
    place->setPlaceholderText("46.05108, 14.50513");
    place->setToolTip(uiText("A position in any notation, or a link to a map"));
    radius->setRange(kLeastRadius, kMostRadius);
    radius->setSingleStep(100);
    radius->setValue(kUsualRadius);
    radius->setSuffix(" m");
    hint->setWordWrap(true);
    auto* const form = new QFormLayout;
    form->addRow(uiText("Name:"), name);
    form->addRow(uiText("Centre:"), place);
    form->addRow(uiText("Radius:"), radius);
    form->addRow(QString(), hint);
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    for (QPushButton* const button : {buttons->button(QDialogButtonBox::Close), removeButton})
        button->setAutoDefault(false); // else Return in a field would close and lose what is typed there
    addButton->setDefault(true);
    buttons->addButton(addButton, QDialogButtonBox::ActionRole);
    buttons->addButton(removeButton, QDialogButtonBox::ActionRole);
    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(text);
    layout->addWidget(list);
    layout->addLayout(form);
    layout->addWidget(buttons);
    resize(480, 420);
    connect(addButton, &QPushButton::clicked, this, &PrivacyZonesSheet::add);
    connect(removeButton, &QPushButton::clicked, this, &PrivacyZonesSheet::removeChosen);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(place, &QLineEdit::textChanged, this, &PrivacyZonesSheet::updateButtons);
    connect(list, &QTreeWidget::itemSelectionChanged, this, &PrivacyZonesSheet::updateButtons);
    connect(new QShortcut(QKeySequence::Delete, list, nullptr, nullptr, Qt::WidgetShortcut),
            &QShortcut::activated, this, &PrivacyZonesSheet::removeChosen);
    fill();
    name->setFocus();
}

/// Entries that cannot be read are shown too: as long as one is there, nothing is exported.
void PrivacyZonesSheet::fill() {
    list->clear();
    for (const std::string& text : entries()) {
        const auto zone = KTPrivacyZone::fromText(text);
        const QString centre =
            zone ? QString("%1, %2").arg(zone->latitude, 0, 'f', 5).arg(zone->longitude, 0, 'f', 5)
                 : uiText("cannot be read");
        list->addTopLevelItem(new QTreeWidgetItem({QString::fromStdString(zone ? zone->name : text), centre,
                                                   zone ? QString("%1 m").arg(zone->radius) : QString()}));
    }
    updateButtons();
}

void PrivacyZonesSheet::updateButtons() {
    const auto centre = KTCoordinates::fromText(place->text().toStdString());
    addButton->setEnabled(centre.has_value());
    removeButton->setEnabled(!list->selectedItems().isEmpty());
    hint->setText(centre || place->text().isEmpty() ? QString() : uiText("This is not a position."));
}

void PrivacyZonesSheet::add() {
    const auto centre = KTCoordinates::fromText(place->text().toStdString());
    if (!centre)
        return;
    auto texts = entries();
    texts.push_back(KTPrivacyZone{centre->latitude.toDouble(), centre->longitude.toDouble(),
                                  double(radius->value()), name->text().simplified().toStdString()}
                        .text());
    store(texts);
    name->clear();
    place->clear();
    fill();
    name->setFocus();
}

void PrivacyZonesSheet::removeChosen() {
    auto texts = entries();
    for (int row = list->topLevelItemCount() - 1; row >= 0; --row)
        if (list->topLevelItem(row)->isSelected())
            texts.erase(texts.begin() + row);
    store(texts);
    fill();
}
