#include "ui/export/ExportListModel.h"

#include "ui/support/ObservationLink.h"
#include "ui/support/UIText.h"

#include <QPixmap>
#include <QSize>
#include <QUrl>

ExportListModel::ExportListModel(KTPhotoExportOperationController& history, QObject* parent)
    : QAbstractTableModel(parent), controller(history) {
    observation = observeFor(this, controller, "exportOperations", [this] { synchronize(); });
    synchronize();
}

/// Progress comes many times a second; only a list of other rows, or rows of another height, is laid out
/// anew.
void ExportListModel::synchronize() {
    std::vector<bool> inProgress;
    for (const Record& record : controller.exportOperations())
        inProgress.push_back(record->inProgress);
    if (shown != controller.exportOperations()) {
        beginResetModel();
        shown = controller.exportOperations();
        endResetModel();
    } else if (inProgress != wasInProgress) {
        emit layoutAboutToBeChanged();
        emit layoutChanged();
    }
    wasInProgress = std::move(inProgress);
    if (!shown.empty())
        emit dataChanged(index(0, 0), index(rowCount() - 1, ColumnCount - 1));
}

QVariant ExportListModel::data(const QModelIndex& index, int role) const {
    const KTPhotoExportOperation& record = *recordAt(index.row());
    const QString state =
        QString::fromStdString(record.inProgress ? record.progressDescription : record.resultDescription);
    const QString address =
        QUrl(QString::fromStdString(record.destinationURL)).toString(QUrl::PreferLocalFile);
    if (role == Qt::SizeHintRole)
        return QSize(0, int(KTPhotoExportProgressWindowController::heightOfRow(record)));
    switch (index.column()) {
    case IconColumn:
        if (role == Qt::DecorationRole) {
            QPixmap icon;
            icon.loadFromData(QByteArray::fromStdString(record.icon));
            return icon.isNull() ? QIcon::fromTheme("document-export") : QIcon(icon);
        }
        break;
    case DescriptionColumn:
        if (role == Qt::DisplayRole)
            return QString::fromStdString(record.name) + '\n' + state;
        if (role == Qt::ToolTipRole)
            return state;
        break;
    case RevealColumn:
        if (role == Qt::ToolTipRole)
            return address;
        if (role == Qt::AccessibleTextRole)
            return address.isEmpty() ? uiText("No destination") : uiText("Show Destination: %1").arg(address);
        if (role == Qt::DecorationRole && !address.isEmpty())
            return QIcon::fromTheme("document-open-folder", QIcon::fromTheme("folder-open"));
        break;
    }
    return {};
}

QVariant ExportListModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    const char* const titles[] = {"Icon", "Description", "Reveal"};
    return uiText(titles[section]);
}
