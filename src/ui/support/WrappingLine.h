#pragma once
#include <QLayout>
#include <memory>
#include <vector>

/// Lays widgets out in a line, as words are in a text: what does not fit goes on in the next line.
class WrappingLine : public QLayout {
public:
    explicit WrappingLine(std::initializer_list<QWidget*> widgets);
    ~WrappingLine() override;

    void addItem(QLayoutItem* item) override;
    int count() const override { return int(items.size()); }
    QLayoutItem* itemAt(int index) const override;
    QLayoutItem* takeAt(int index) override;
    Qt::Orientations expandingDirections() const override { return {}; }
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override { return layOut({0, 0, width, 0}, false); }
    QSize sizeHint() const override;
    QSize minimumSize() const override;
    void setGeometry(const QRect& place) override;

private:
    int layOut(const QRect& place, bool isMeant) const;

    std::vector<std::unique_ptr<QLayoutItem>> items;
};
