#pragma once
#include "platform/observing/KTObservable.h"

#include <QWidget>

class KTLinkablePoint;
class KTSingleSelectionLinkerViewController;
class QGridLayout;
class QLabel;
class QPushButton;

/// The candidates of the one selected photo: the track points before and after
/// it and the place between them, each with a button that takes it.
class StandardPanel : public QWidget {
    Q_OBJECT
public:
    /// @p linkerController must outlive the panel.
    explicit StandardPanel(KTSingleSelectionLinkerViewController& linkerController,
                           QWidget* parent = nullptr);

private:
    using Point = std::shared_ptr<KTLinkablePoint>;
    struct Row {
        Point (KTSingleSelectionLinkerViewController::*point)() const;
        QLabel *title, *text;
        QPushButton* button;
        Point shown;
        KTObservable::Observation observation; ///< of the shown point
    };

    void addRow(QGridLayout& grid, Point (KTSingleSelectionLinkerViewController::*point)() const,
                void (KTSingleSelectionLinkerViewController::*save)(), const QString& name,
                const QString& buttonName);
    void update();
    static void describe(Row& row);

    KTSingleSelectionLinkerViewController& controller;
    std::vector<std::unique_ptr<Row>> rows;
    KTObservable::Observation observation;
};
