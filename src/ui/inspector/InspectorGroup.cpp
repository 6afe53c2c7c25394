#include "ui/inspector/InspectorGroup.h"

#include "app/editor/KTMetadataEditorViewController.h"
#include "ui/inspector/FieldRow.h"
#include "ui/support/UIText.h"
#include "ui/window/WindowState.h"

#include <QFrame>
#include <QToolButton>
#include <QUrl>

InspectorGroup::InspectorGroup(KTMetadataEditorViewController& editor, const KTMetadataGroup& group,
                               RowUpdates& rowUpdates)
    : heading(new QToolButton), fields(new QWidget) {
    auto* const lines = new QVBoxLayout(fields);
    QFont bold = heading->font();
    bold.setBold(true);
    heading->setFont(bold);
    heading->setAutoRaise(true);
    heading->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    heading->setFocusPolicy(Qt::StrongFocus);
    heading->setToolTip(uiText("Show or hide the fields of this group"));
    connect(heading, &QToolButton::clicked, this, [this] {
        fold(!fields->isHidden());
        WindowState().saveFlag(stateKey(), fields->isHidden());
    });
    lines->setContentsMargins(2, 2, 2, 2);
    lines->setSpacing(6);
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->setSpacing(2);
    layout->addWidget(heading, 0, Qt::AlignLeft);
    layout->addWidget(fields);
    auto* const rule = new QFrame;
    rule->setFrameStyle(QFrame::HLine | QFrame::Sunken);
    layout->addSpacing(6);
    layout->addWidget(rule);
    const QString name = QString::fromStdString(group.name());
    heading->setText(QString(name).replace('&', "&&"));
    heading->setAccessibleName(uiText("Group %1").arg(name));
    for (const auto& field : group.fields())
        if (auto item = editor.arrayViewItemForObject(group, field))
            lines->addWidget(new FieldRow(std::move(item), name, rowUpdates));
    fold(WindowState().flag(stateKey(), false));
}

QString InspectorGroup::stateKey() const {
    return "inspector/folded-" + QString::fromLatin1(QUrl::toPercentEncoding(heading->text()));
}

void InspectorGroup::fold(bool isFoldedNow) {
    heading->setArrowType(isFoldedNow ? Qt::RightArrow : Qt::DownArrow);
    heading->setAccessibleDescription(isFoldedNow ? uiText("folded") : uiText("open"));
    fields->setVisible(!isFoldedNow);
}
