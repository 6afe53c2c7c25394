#include "ui/windows/TagDetailsModel.h"

#include "ui/support/ObservationLink.h"
#include "ui/support/UIText.h"

TagDetailsModel::TagDetailsModel(KTTagDetailsWindowController& tagController, QObject* parent)
    : QAbstractTableModel(parent), controller(tagController) {
    observation = observeFor(this, controller, "rows", [this] { update(); });
    update();
}

void TagDetailsModel::update() {
    auto next = controller.rows();
    if (next == rows)
        return;
    beginResetModel();
    rows = std::move(next);
    endResetModel();
}

QVariant TagDetailsModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || (role != Qt::DisplayRole && role != Qt::ToolTipRole))
        return {};
    const auto& row = rows[std::size_t(index.row())];
    return QString::fromStdString(index.column() == KeyColumn ? row.key : row.value);
}

QVariant TagDetailsModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    return section == KeyColumn ? uiText("Tag") : uiText("Value");
}
