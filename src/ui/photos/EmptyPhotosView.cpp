#include "ui/photos/EmptyPhotosView.h"

#include "ui/support/PrimaryButton.h"
#include "ui/support/UIText.h"

#include <QLabel>
#include <QPainter>
#include <QVBoxLayout>

EmptyPhotosView::EmptyPhotosView(const Commands& commands, QWidget* parent) : QWidget(parent) {
    setAccessibleName(uiText("No photos"));
    setBackgroundRole(QPalette::Base);
    setAutoFillBackground(true);
    auto* const title = new QLabel(uiText("Drop photos here"));
    QFont large = title->font();
    large.setPointSizeF(large.pointSizeF() * 1.6);
    large.setBold(true);
    title->setFont(large);
    auto* const explanation = new QLabel(
        uiText("Photos or whole folders, and the GPS tracks of the same days. Nothing is changed in them "
               "before you press \"Write Changed Tags\"."));
    explanation->setForegroundRole(QPalette::PlaceholderText);
    for (QLabel* label : {title, explanation}) {
        label->setAlignment(Qt::AlignCenter);
        label->setWordWrap(true);
    }

    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(32, 32, 32, 32);
    layout->setSpacing(10);
    layout->addStretch();
    layout->addWidget(title);
    layout->addWidget(explanation);
    layout->addSpacing(10);
    auto add = [&](QPushButton* button, const std::function<void()>& command, const QString& tip) {
        button->setToolTip(tip);
        button->setAutoDefault(false);
        connect(button, &QPushButton::clicked, this, [command] { command(); });
        layout->addWidget(button, 0, Qt::AlignHCenter);
    };
    add(new PrimaryButton(uiText("Add Photos…")), commands.addPhotos,
        uiText("Choose the photos to be geotagged"));
    add(new QPushButton(uiText("Add Tracks…")), commands.addTracks,
        uiText("Choose track files of a GPS receiver"));
    if (commands.tryDemoTrip)
        add(new QPushButton(uiText("Try the Demo Trip")), commands.tryDemoTrip,
            uiText("Makes a small trip with a track to try the program on"));
    layout->addStretch();
}

void EmptyPhotosView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(palette().color(QPalette::PlaceholderText), 1.5, Qt::DashLine));
    painter.drawRoundedRect(QRectF(rect()).adjusted(12, 12, -12, -12), 10, 10);
}
