#include "ui/console/BatchPanel.h"

#include "geotagging/KTMultipleSelectionLinkerViewController.h"
#include "ui/support/ObservationLink.h"
#include "ui/support/PrimaryButton.h"
#include "ui/support/SignLabel.h"
#include "ui/support/UIText.h"

#include <QFrame>
#include <QLabel>
#include <QVBoxLayout>

namespace {

QLabel* sentence(QPalette::ColorRole role = QPalette::WindowText) {
    auto* const label = new QLabel;
    label->setWordWrap(true);
    label->setForegroundRole(role);
    return label;
}

void showSentence(QLabel& label, bool isShown, const std::string& text) {
    label.setText(QString::fromStdString(text));
    label.setVisible(isShown);
}

void showSentence(SignLabel& label, bool isShown, const std::string& text) {
    label.setText(QString::fromStdString(text));
    label.setVisible(isShown);
}

} // namespace

BatchPanel::BatchPanel(KTMultipleSelectionLinkerViewController& linkerController, QWidget* parent)
    : QWidget(parent), controller(linkerController), successTitle(new SignLabel(PhotoStatus::Geotagged)),
      failureTitle(new SignLabel(PhotoStatus::Failed)), success(sentence()), failure(sentence()),
      tip(sentence(QPalette::PlaceholderText)), already(sentence(QPalette::PlaceholderText)),
      rule(new QFrame), geotag(new PrimaryButton) {
    static_cast<QFrame*>(rule)->setFrameStyle(QFrame::HLine | QFrame::Sunken);
    geotag->setToolTip(uiText("Gives the photos their proposed locations; nothing is written yet"));
    geotag->setDefault(true);
    connect(geotag, &QPushButton::clicked, this, [this] { controller.batchSaveAction(); });
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->setSpacing(6);
    layout->addWidget(successTitle);
    layout->addWidget(success);
    layout->addWidget(geotag, 0, Qt::AlignLeft);
    for (QWidget* widget : {rule, static_cast<QWidget*>(failureTitle), static_cast<QWidget*>(failure),
                            static_cast<QWidget*>(tip), static_cast<QWidget*>(already)})
        layout->addWidget(widget);
    layout->addStretch();
    observation = observeFor(this, controller, {}, [this] { update(); });
    update();
}

void BatchPanel::update() {
    const KTGeotaggingSummary& texts = controller.summary();
    showSentence(*successTitle, texts.hasSuccesses, texts.successTitle);
    showSentence(*success, texts.hasSuccesses, texts.successDescription);
    geotag->setText(QString::fromStdString(texts.successButtonTitle));
    geotag->setAccessibleName(geotag->text());
    geotag->setEnabled(texts.hasSuccesses);
    rule->setVisible(texts.hasFailures || texts.hasAlreadyGeotagged);
    showSentence(*failureTitle, texts.hasFailures, texts.failureTitle);
    showSentence(*failure, texts.hasFailures, texts.failureDescription);
    showSentence(*tip, texts.hasFailureTip, texts.failureTip);
    showSentence(*already, texts.hasAlreadyGeotagged, texts.alreadyGeotaggedDescription);
}
