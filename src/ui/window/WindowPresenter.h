#pragma once
#include "platform/presentation/KTPresenter.h"

#include <QPointer>

class QWidget;

/// Shows questions as sheets of a window, or as windows of their own where there is none. No call waits for
/// an answer.
class WindowPresenter : public KTPresenter {
public:
    explicit WindowPresenter(QWidget* window = nullptr);

    void presentAlert(KTAlert alert) override;
    void presentFilePanel(KTFilePanel panel) override;
    void presentSettingsSheet(KTSettingsSheet sheet) override;
    void revealFiles(const std::vector<std::filesystem::path>& files) override;

private:
    QPointer<QWidget> window;
};
