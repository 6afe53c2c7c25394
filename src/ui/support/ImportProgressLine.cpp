#include "ui/support/ImportProgressLine.h"

#include "ui/support/UIText.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>

ImportProgressLine::ImportProgressLine(std::function<void()> cancel, QWidget* parent)
    : QWidget(parent), content(new QWidget), line(new QLabel), bar(new QProgressBar) {
    line->setAccessibleName(uiText("Import"));
    bar->setAccessibleName(uiText("Import progress"));
    bar->setTextVisible(false);
    bar->setFixedWidth(160);
    bar->setMaximumHeight(10);
    auto* const button = new QPushButton(uiText("Cancel Import"));
    button->setToolTip(uiText("Finishes the file that is being read and leaves out the rest"));
    button->setAutoDefault(false);
    connect(button, &QPushButton::clicked, this, [run = std::move(cancel)] { run(); });
    auto* const inner = new QHBoxLayout(content);
    inner->setContentsMargins({});
    for (QWidget* widget :
         {static_cast<QWidget*>(line), static_cast<QWidget*>(bar), static_cast<QWidget*>(button)})
        inner->addWidget(widget);
    auto* const layout = new QHBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(content);
    setMinimumHeight(button->sizeHint().height());
    showNothing();
}

void ImportProgressLine::show(const QString& text, int done, int all) {
    line->setText(text);
    bar->setMaximum(all);
    bar->setValue(done);
    content->show();
}

void ImportProgressLine::showNothing() {
    content->hide();
}
