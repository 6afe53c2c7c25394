#include "ui/windows/OperationLogModel.h"

#include "metadata/KTDateFormatters.h"
#include "ui/support/UIText.h"

#include <QIcon>

namespace {

constexpr std::chrono::milliseconds kPause{50};
constexpr const char* kTitles[] = {"Result", "Time", "File", "Step", "Text"};

QString resultText(const KTPhotoOperation& operation) {
    switch (operation.resultType()) {
    case KTPhotoOperation::Success:
        return uiText("Done");
    case KTPhotoOperation::Warning:
        return uiText("Warning");
    case KTPhotoOperation::Failure:
        return uiText("Failed");
    }
    return {};
}

const char* resultIcon(const KTPhotoOperation& operation) {
    switch (operation.resultType()) {
    case KTPhotoOperation::Success:
        return "dialog-ok-apply";
    case KTPhotoOperation::Warning:
        return "dialog-warning";
    default:
        return "dialog-error";
    }
}

} // namespace

OperationLogModel::OperationLogModel(KTPhotoOperationController& operationController, QObject* parent)
    : QAbstractTableModel(parent), controller(operationController), mask(controller.operationTypeMask()) {
    timer.setSingleShot(true);
    connect(&timer, &QTimer::timeout, this, &OperationLogModel::synchronize);
    observation = controller.observe([this](const KTChange& change) {
        if (change.isPrior || change.key != "arrangedObjects")
            return;
        if (change.kind != KTChange::Kind::Insertion)
            synchronize();
        else if (!timer.isActive())
            timer.start(kPause);
    });
    rows = int(controller.arrangedObjects().size());
}

/// The log only grows; another filter is another list.
void OperationLogModel::synchronize() {
    const int next = int(controller.arrangedObjects().size());
    if (mask != controller.operationTypeMask() || next < rows) {
        beginResetModel();
        mask = controller.operationTypeMask();
        rows = next;
        endResetModel();
    } else if (next > rows) {
        beginInsertRows({}, rows, next - 1);
        rows = next;
        endInsertRows();
    }
}

QString OperationLogModel::lineOf(int row) const {
    QStringList cells;
    for (int column = 0; column < ColumnCount; ++column)
        cells << data(index(row, column), Qt::DisplayRole).toString().replace('\n', ' ');
    return cells.join('\t');
}

QVariant OperationLogModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid())
        return {};
    const KTPhotoOperation& operation = operationAt(index.row());
    if (role == Qt::DecorationRole && index.column() == ResultColumn)
        return QIcon::fromTheme(resultIcon(operation));
    if (role == Qt::ToolTipRole)
        return index.column() == FileColumn ? QVariant(uiPath(operation.url)) : data(index, Qt::DisplayRole);
    if (role != Qt::DisplayRole)
        return {};
    switch (index.column()) {
    case ResultColumn:
        return resultText(operation);
    case TimeColumn:
        return QString::fromStdString(KTDateTimeFormatter().stringForObjectValue(operation.operationTime));
    case FileColumn:
        return uiPath(operation.url.filename());
    case StepColumn:
        return QString::fromStdString(operation.operationDescription);
    default:
        return QString::fromStdString(operation.resultDescription());
    }
}

QVariant OperationLogModel::headerData(int section, Qt::Orientation orientation, int role) const {
    return orientation == Qt::Horizontal && role == Qt::DisplayRole ? QVariant(uiText(kTitles[section]))
                                                                    : QVariant();
}
