#include "ui/inspector/InspectorPane.h"

#include "app/editor/KTMetadataCustomizationViewController.h"
#include "ui/inspector/ArrangementView.h"
#include "ui/inspector/InspectorGroup.h"
#include "ui/inspector/RowUpdates.h"
#include "ui/inspector/TemplateSheets.h"
#include "ui/support/MenuBuilder.h"
#include "ui/support/ObservationLink.h"
#include "ui/support/UIText.h"

#include <QEvent>
#include <QFrame>
#include <QMenu>
#include <QScrollArea>
#include <QStackedWidget>
#include <QToolButton>

InspectorPane::InspectorPane(KTMetadataEditorViewController& editorController,
                             KTMetadataCustomizationViewController& customizationController,
                             std::function<void(bool isOn)> customize, QWidget* parent)
    : QWidget(parent), editor(editorController), customization(customizationController),
      setCustomizing(std::move(customize)), pages(new QStackedWidget), filling(new QTimer(this)),
      updates(new RowUpdates(this)) {
    setAccessibleName(uiText("Metadata"));
    setMinimumWidth(260);
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->setSpacing(0);
    layout->addWidget(makeHead());
    layout->addWidget(pages, 1);
    emptyPage = makeEmptyPage();
    form = makeForm();
    pages->addWidget(emptyPage);
    pages->addWidget(form);
    filling->setInterval(0);
    connect(filling, &QTimer::timeout, this, &InspectorPane::addGroup);
    auto follow = [this](KTObservable& observed, const char* key, void (InspectorPane::*handler)()) {
        observations.push_back(observeFor(this, observed, key, [this, handler] { (this->*handler)(); }));
    };
    follow(editor.selection(), "photos", &InspectorPane::showSelection);
    follow(editor, "inCustomizationMode", &InspectorPane::customizationDidChange);
    follow(editor, "groups", &InspectorPane::showGroups);
    follow(customization, "templatesMenu", &InspectorPane::showTemplates);
    showSelection();
}

InspectorPane::~InspectorPane() = default;

QWidget* InspectorPane::makeHead() {
    auto* const head = new QFrame;
    auto* const line = new QHBoxLayout(head);
    line->setContentsMargins(8, 3, 4, 3);
    line->setSpacing(0);
    title = new QLabel;
    QFont bold = title->font();
    bold.setBold(true);
    title->setFont(bold);
    title->setAccessibleName(uiText("Selected photos"));
    line->addWidget(title, 1);
    auto add = [&](const QString& text, const QString& tip) {
        auto* const button = new QToolButton;
        button->setText(text);
        button->setAccessibleName(text);
        button->setToolTip(tip);
        button->setAutoRaise(true);
        button->setFocusPolicy(Qt::TabFocus);
        line->addWidget(button);
        return button;
    };
    QToolButton* const menuButton =
        add(uiText("Templates"), uiText("Choose, save and remove arrangements of fields"));
    templates = new QMenu(menuButton);
    menuButton->setMenu(templates);
    menuButton->setPopupMode(QToolButton::InstantPopup);
    customizeButton = add(uiText("Customize"), uiText("Choose which fields are shown, in which groups"));
    customizeButton->setCheckable(true);
    connect(customizeButton, &QToolButton::clicked, this, [this](bool isOn) { setCustomizing(isOn); });
    return head;
}

QWidget* InspectorPane::makeEmptyPage() {
    auto* const page = new QWidget;
    auto* const layout = new QVBoxLayout(page);
    layout->setContentsMargins(24, 24, 24, 24);
    emptyTitle = new QLabel;
    auto* const explanation = new QLabel(uiText("Select photos to see and edit their metadata."));
    for (QLabel* const label : {emptyTitle, explanation}) {
        label->setAlignment(Qt::AlignCenter);
        label->setWordWrap(true);
        label->setForegroundRole(QPalette::PlaceholderText);
    }
    QFont large = emptyTitle->font();
    large.setPointSizeF(large.pointSizeF() * 1.2);
    emptyTitle->setFont(large);
    layout->addStretch(2);
    layout->addWidget(emptyTitle);
    layout->addWidget(explanation);
    layout->addStretch(3);
    return page;
}

QWidget* InspectorPane::makeForm() {
    auto* const content = new QWidget;
    groups = new QVBoxLayout(content);
    groups->setContentsMargins(4, 6, 8, 10);
    groups->setSpacing(6);
    groups->addStretch();
    auto* const scroll = new QScrollArea;
    scroll->setAccessibleName(uiText("Metadata fields"));
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setWidgetResizable(true);
    scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    scroll->setFocusPolicy(Qt::NoFocus);
    scroll->setWidget(content);
    return scroll;
}

bool InspectorPane::event(QEvent* event) {
    const bool result = QWidget::event(event);
    if (event->type() == QEvent::Paint && !std::exchange(hasBegun, true))
        QTimer::singleShot(0, this, &InspectorPane::begin);
    return result;
}

void InspectorPane::begin() {
    new TemplateSheets(customization, *this);
    customization.setupTemplates();
    showGroups();
}

/// Makes all fields anew. What is arranged is shown when the arranging ends.
void InspectorPane::showGroups() {
    if (!hasBegun || editor.inCustomizationMode())
        return;
    remaining.assign(editor.groups().begin(), editor.groups().end());
    while (QLayoutItem* const item = groups->count() > 1 ? groups->takeAt(0) : nullptr) {
        delete item->widget();
        delete item;
    }
    filling->start();
}

void InspectorPane::addGroup() {
    if (!remaining.empty()) {
        groups->insertWidget(groups->count() - 1, new InspectorGroup(editor, *remaining.front(), *updates));
        remaining.pop_front();
    }
    if (remaining.empty())
        filling->stop();
}

/// The first entry is the title of the pull-down, which the button has.
void InspectorPane::showTemplates() {
    KTMenu items = customization.buildTemplatesMenu();
    items.erase(items.begin());
    templates->clear();
    appendMenuItems(*templates, items);
}

void InspectorPane::showSelection() {
    title->setText(QString::fromStdString(editor.title()));
    emptyTitle->setText(title->text());
    showPage();
}

void InspectorPane::customizationDidChange() {
    showPage();
    showGroups();
}

void InspectorPane::showPage() {
    const bool isCustomizing = editor.inCustomizationMode();
    if (isCustomizing && arrangement == nullptr) {
        arrangement = new ArrangementView(editor, [this] { setCustomizing(false); });
        pages->addWidget(arrangement);
    }
    customizeButton->setChecked(isCustomizing);
    pages->setCurrentWidget(isCustomizing                          ? arrangement
                            : editor.selection().photos()->empty() ? emptyPage
                                                                   : form);
}
