#include "ui/photos/PhotoViewOptions.h"

#include "platform/defaults/KTUserDefaults.h"
#include "ui/photos/PhotoTableView.h"
#include "ui/support/ObservationLink.h"
#include "ui/support/UIText.h"

#include <QCheckBox>
#include <QVBoxLayout>

PhotoViewOptions::PhotoViewOptions(PhotoTableView& photoTable, QWidget* parent) : QWidget(parent) {
    setAccessibleName(uiText("View Options"));
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(10, 6, 10, 2);
    column->setSpacing(2);
    addSetting("shouldShowTitleDefault", uiText("File names below thumbnails"),
               uiText("In the thumbnail browser"));
    addSetting("shouldShowSubtitleDefault", uiText("Positions below thumbnails"),
               uiText("In the thumbnail browser"));
    auto* const compact = new QCheckBox(uiText("Compact rows"));
    compact->setToolTip(uiText("Shows more photos in the table, with smaller pictures"));
    compact->setChecked(photoTable.hasCompactRows());
    connect(compact, &QCheckBox::clicked, &photoTable, &PhotoTableView::setCompactRows);
    connect(&photoTable, &PhotoTableView::layoutChanged, compact,
            [compact, &photoTable] { compact->setChecked(photoTable.hasCompactRows()); });
    column->addWidget(compact);
}

void PhotoViewOptions::addSetting(const char* key, const QString& title, const QString& tip) {
    auto* const box = new QCheckBox(title);
    box->setToolTip(tip);
    auto& defaults = KTUserDefaults::standardUserDefaults();
    auto show = [box, key, &defaults] { box->setChecked(defaults.boolForKey(key)); };
    connect(box, &QCheckBox::clicked, box, [key, &defaults](bool isOn) { defaults.setValue(key, isOn); });
    observations.push_back(observeFor(box, defaults, key, show));
    show();
    layout()->addWidget(box);
}
