#pragma once
#include "platform/observing/KTObservable.h"

/// What the menu asks of the window that lists the exports. Announces "toggleWindowDescription". Main thread.
class KTExportProgressWindow : public KTObservable {
public:
    /// The menu item's title, which says what toggleWindow would do.
    virtual std::string toggleWindowDescription() const = 0;
    virtual void toggleWindow() = 0;
    virtual void tearDown() = 0;
};
