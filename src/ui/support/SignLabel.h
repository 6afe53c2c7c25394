#pragma once
#include "ui/photos/PhotoStatus.h"

#include <QWidget>

/// A heading with a sign before it, in the sign's colour.
class SignLabel : public QWidget {
    Q_OBJECT
public:
    explicit SignLabel(PhotoStatus::Sign sign, QWidget* parent = nullptr);

    void setText(const QString& text);
    QSize sizeHint() const override;
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QFont headingFont() const;
    int indent() const;

    const PhotoStatus::Sign mark;
    QString heading;
};
