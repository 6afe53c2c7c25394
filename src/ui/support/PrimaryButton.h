#pragma once
#include <QPushButton>

/// The button of a view's main command, in the colour of the selection.
class PrimaryButton : public QPushButton {
    Q_OBJECT
public:
    explicit PrimaryButton(const QString& text = {}, QWidget* parent = nullptr);

protected:
    void changeEvent(QEvent* event) override;

private:
    void colour();
    bool isColouring = false;
};
