#pragma once
#include "platform/observing/KTObservable.h"

#include <QWidget>

/// The settings of slide shows.
class SlideShowSettingsView : public QWidget {
    Q_OBJECT
public:
    SlideShowSettingsView();

private:
    std::vector<KTObservable::Observation> observations;
};
