#pragma once
#include "platform/presentation/KTPresenter.h"

/// A presenter that keeps what it is asked; the test answers through the completions.
struct FakePresenter : KTPresenter {
    void presentAlert(KTAlert alert) override { alerts.push_back(std::move(alert)); }
    void presentFilePanel(KTFilePanel panel) override { panels.push_back(std::move(panel)); }
    void presentSettingsSheet(KTSettingsSheet sheet) override { sheets.push_back(std::move(sheet)); }
    void revealFiles(const std::vector<std::filesystem::path>& files) override { revealed.push_back(files); }

    std::vector<KTAlert> alerts;
    std::vector<KTFilePanel> panels;
    std::vector<KTSettingsSheet> sheets;
    std::vector<std::vector<std::filesystem::path>> revealed; ///< of each call
};
