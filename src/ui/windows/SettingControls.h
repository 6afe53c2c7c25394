#pragma once
#include "platform/observing/KTObservable.h"

#include <QWidget>
#include <string>

class QFormLayout;

/// Makes the controls of settings, each of which shows its setting and stores
/// it as soon as it is changed. What a setting is called and which choices it
/// has stands in one table.
class SettingControls {
public:
    /// Adds the control of the setting @p key to @p form; nothing for a setting
    /// without one. @p owner owns what is made.
    static void add(const std::string& key, QFormLayout& form, QWidget& owner,
                    std::vector<KTObservable::Observation>& observations);
};
