#pragma once
#include <QWidget>

/// What lies over the window while files are dragged over it: a frame, and what dropping them would do.
class DropHighlight : public QWidget {
    Q_OBJECT
public:
    explicit DropHighlight(QWidget& window);

    void showText(const QString& text);
    const QString& text() const { return promise; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString promise;
};
