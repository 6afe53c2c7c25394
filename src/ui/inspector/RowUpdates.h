#pragma once
#include <QObject>
#include <QPointer>
#include <deque>

class FieldRow;

/// Brings rows of the inspector up to date, in their order, from the event loop: a few milliseconds a turn,
/// since finding what thousands of photos share takes its time.
class RowUpdates : public QObject {
    Q_OBJECT
public:
    explicit RowUpdates(QObject* parent = nullptr);

    void add(FieldRow& row);

private:
    void work();

    std::deque<QPointer<FieldRow>> due;
    class QTimer* timer;
};
