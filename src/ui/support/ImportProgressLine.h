#pragma once
#include <QWidget>
#include <functional>

class QLabel;
class QProgressBar;

/// A line that tells how far an import is, with a button that stops it. Keeps its height while there is none.
class ImportProgressLine : public QWidget {
    Q_OBJECT
public:
    explicit ImportProgressLine(std::function<void()> cancel, QWidget* parent = nullptr);

    void show(const QString& text, int done, int all);
    void showNothing();

private:
    QWidget* content;
    QLabel* line;
    QProgressBar* bar;
};
