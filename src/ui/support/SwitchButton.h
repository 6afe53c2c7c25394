#pragma once
#include <QToolButton>

/// A tool button whose pressed state shows in the colour of the selection: styles show it by a shade of the
/// ground alone, which in the dark is hardly to be seen.
class SwitchButton : public QToolButton {
    Q_OBJECT
public:
    explicit SwitchButton(QWidget* parent = nullptr);

protected:
    void changeEvent(QEvent* event) override;

private:
    void colour();
    bool isColouring = false;
};
