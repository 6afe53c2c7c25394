#include "ui/photos/PhotoFilterBar.h"

#include "ui/photos/PhotoListModel.h"
#include "ui/support/UIText.h"

#include <QActionGroup>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QMenu>
#include <QToolButton>

namespace {

constexpr struct {
    PhotoFilter::Kind kind;
    const char* title;
} kKinds[] = {{PhotoFilter::Kind::All, "All Photos"},
              {PhotoFilter::Kind::WithoutLocation, "Without Location"},
              {PhotoFilter::Kind::Unsaved, "With Unsaved Changes"},
              {PhotoFilter::Kind::Failed, "Failed"},
              {PhotoFilter::Kind::WithoutDate, "Without Date"},
              {PhotoFilter::Kind::FarFromTracks, "Far From Any Track"}};

} // namespace

PhotoFilterBar::PhotoFilterBar(PhotoListModel& filtered, QWidget* parent)
    : QWidget(parent), list(filtered), field(new QLineEdit), kindButton(new QToolButton) {
    field->setAccessibleName(uiText("Filter photos"));
    field->setPlaceholderText(uiText("Filter by name or tag"));
    field->setToolTip(uiText("Shows only photos with these words in file name, keywords, people or places"));
    field->setClearButtonEnabled(true);
    field->setMinimumWidth(120);
    connect(field, &QLineEdit::textChanged, this, [this](const QString& text) { list.setFilterText(text); });

    auto* const menu = new QMenu(this);
    auto* const group = new QActionGroup(this);
    for (const auto& [kind, title] : kKinds) {
        QAction* const action = group->addAction(menu->addAction(uiText(title)));
        action->setCheckable(true);
        action->setChecked(kind == PhotoFilter::Kind::All);
        connect(action, &QAction::triggered, this, [this, chosen = kind] {
            list.setFilterKind(chosen);
            showKind();
        });
    }
    kindButton->setMenu(menu);
    kindButton->setPopupMode(QToolButton::InstantPopup);
    kindButton->setIcon(QIcon::fromTheme("view-filter"));
    kindButton->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    kindButton->setToolTip(uiText("Which photos are shown"));
    auto* const layout = new QHBoxLayout(this);
    layout->setContentsMargins(8, 0, 0, 0);
    layout->setSpacing(4);
    layout->addWidget(field, 1);
    layout->addWidget(kindButton);
    setMaximumWidth(360);
    showKind();
}

void PhotoFilterBar::focusField() {
    field->setFocus(Qt::ShortcutFocusReason);
    field->selectAll();
}

void PhotoFilterBar::showKind() {
    const PhotoFilter::Kind shown = list.filter().kind();
    const auto entry = std::ranges::find_if(kKinds, [&](const auto& each) { return each.kind == shown; });
    kindButton->setText(shown == PhotoFilter::Kind::All ? QString() : uiText(entry->title));
    kindButton->setToolButtonStyle(shown == PhotoFilter::Kind::All ? Qt::ToolButtonIconOnly
                                                                   : Qt::ToolButtonTextBesideIcon);
    kindButton->setAccessibleName(uiText("Filter: %1").arg(uiText(entry->title)));
}
