#include "ui/inspector/PasteTagsSheet.h"

#include "metadata/KTMetadataField.h"
#include "ui/support/CellList.h"
#include "ui/support/UICount.h"
#include "ui/support/UIText.h"

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QStandardItemModel>

namespace {

QStandardItem* cell(const std::string& text) {
    auto* const item = new QStandardItem(QString::fromStdString(text).simplified());
    item->setEditable(false);
    item->setToolTip(QString::fromStdString(text));
    return item;
}

} // namespace

PasteTagsSheet::PasteTagsSheet(KTCopiedTags copied, std::size_t photoCount,
                               std::function<void(const KTCopiedTags&)> pasteTags, QWidget* window)
    : QDialog(window), tags(std::move(copied)), rows(new QStandardItemModel(this)), paste(nullptr) {
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(uiText("Paste Tags"));
    resize(520, 460);
    rows->setHorizontalHeaderLabels({uiText("Field"), uiText("Value")});
    for (const KTCopiedTags::Row& row : tags.rows()) {
        QStandardItem* const name = cell(row.field->name());
        name->setCheckable(true);
        name->setCheckState(row.isChosen ? Qt::Checked : Qt::Unchecked);
        rows->appendRow({name, cell(row.text)});
    }
    auto* const list = new QTreeView;
    setUpCellList(*list, uiText("Copied tags"));
    list->setToolTip(uiText("The checked values replace those of the selected photos"));
    list->setModel(rows);
    list->setColumnWidth(0, 180);
    list->setCurrentIndex(rows->index(0, 0));
    auto* const label = new QLabel(uiCount("Paste the checked values onto the selected photo:",
                                           "Paste the checked values onto %d photos:", photoCount));
    label->setBuddy(list);
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Cancel);
    paste = buttons->addButton(uiText("Paste Tags"), QDialogButtonBox::AcceptRole);
    paste->setDefault(true);
    auto* const lower = new QHBoxLayout;
    for (const bool isAll : {true, false}) {
        auto* const button = new QPushButton(isAll ? uiText("Check All") : uiText("Check None"));
        button->setAutoDefault(false);
        connect(button, &QPushButton::clicked, this, [this, isAll] { chooseAll(isAll); });
        lower->addWidget(button);
    }
    lower->addWidget(buttons, 1);
    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(label);
    layout->addWidget(list, 1);
    layout->addLayout(lower);
    connect(rows, &QStandardItemModel::itemChanged, this, [this](const QStandardItem* item) {
        if (item->column() == 0)
            choose(item->row(), item->checkState() == Qt::Checked);
    });
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(this, &QDialog::accepted, this, [this, run = std::move(pasteTags)] { run(tags); });
    paste->setEnabled(tags.hasChosenRows());
}

void PasteTagsSheet::choose(int row, bool isChosen) {
    tags.setChosen(std::size_t(row), isChosen);
    paste->setEnabled(tags.hasChosenRows());
}

void PasteTagsSheet::chooseAll(bool isChosen) {
    for (int row = 0; row < rows->rowCount(); ++row)
        rows->item(row)->setCheckState(isChosen ? Qt::Checked : Qt::Unchecked);
}
