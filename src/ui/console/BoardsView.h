#pragma once
#include <QScrollArea>

class QBoxLayout;

/// Boards side by side, or one below the other where they do not fit beside each other. Scrolls up and down.
class BoardsView : public QScrollArea {
    Q_OBJECT
public:
    explicit BoardsView(QWidget* parent = nullptr);

    /// @p name is the accessible one; @p title may be empty. What takes room beyond what it wishes for is
    /// told by @p stretch.
    void addBoard(const QString& name, const QString& title, QWidget* content, int stretch);

protected:
    void resizeEvent(QResizeEvent* event) override;
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    void arrange();

    QBoxLayout* boards;
};
