#include "ui/inspector/RowUpdates.h"

#include "ui/inspector/FieldRow.h"

#include <QElapsedTimer>

namespace {

constexpr qint64 kTurn = 12; // milliseconds

} // namespace

RowUpdates::RowUpdates(QObject* parent) : QObject(parent), timer(new QTimer(this)) {
    timer->setInterval(0);
    connect(timer, &QTimer::timeout, this, &RowUpdates::work);
}

void RowUpdates::add(FieldRow& row) {
    due.emplace_back(&row);
    timer->start();
}

void RowUpdates::work() {
    QElapsedTimer clock;
    clock.start();
    while (!due.empty() && clock.elapsed() < kTurn) {
        const QPointer<FieldRow> row = due.front();
        due.pop_front();
        if (row && row->isVisible())
            row->bringUpToDate();
    }
    if (due.empty())
        timer->stop();
}
