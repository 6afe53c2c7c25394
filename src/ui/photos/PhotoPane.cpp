#include "ui/photos/PhotoPane.h"

#include "platform/common/KTText.h"
#include "platform/defaults/KTUserDefaults.h"
#include "ui/photos/PhotoViewOptions.h"
#include "ui/photos/ThumbnailBrowser.h"
#include "ui/support/ObservationLink.h"
#include "ui/support/UICount.h"
#include "ui/support/UIText.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QSlider>
#include <QStackedWidget>
#include <QVBoxLayout>

namespace {

constexpr const char *kViewSetting = "defaultPhotoView", *kSizeSetting = "defaultPhotoCellSize";

} // namespace

PhotoPane::PhotoPane(KTPhotoController& photoController, KTThumbnailService& thumbnails,
                     const EmptyPhotosView::Commands& commands, QWidget* parent)
    : QWidget(parent), controller(photoController), list(new PhotoListModel(photoController)),
      tableView(new PhotoTableView(*list, photoController, thumbnails)),
      browser(new ThumbnailBrowser(*list, photoController, thumbnails)), stack(new QStackedWidget),
      selectionLine(new QLabel), nothingFound(new QLabel(uiText("No photo matches the filter."))),
      sizeSlider(new QSlider(Qt::Horizontal)), viewOptions(new PhotoViewOptions(*tableView)) {
    viewOptions->hide();
    list->setParent(this);
    nothingFound->setAlignment(Qt::AlignCenter);
    nothingFound->setForegroundRole(QPalette::PlaceholderText);
    nothingFound->setBackgroundRole(QPalette::Base);
    nothingFound->setAutoFillBackground(true);
    stack->addWidget(new EmptyPhotosView(commands));
    for (QWidget* widget : {static_cast<QWidget*>(nothingFound), static_cast<QWidget*>(browser),
                            static_cast<QWidget*>(tableView)})
        stack->addWidget(widget);
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->setSpacing(0);
    layout->addWidget(stack, 1);
    layout->addWidget(viewOptions);
    layout->addWidget(makeFoot());

    connect(list, &QAbstractItemModel::modelReset, this, &PhotoPane::showView);
    connect(list, &QAbstractItemModel::rowsInserted, this, &PhotoPane::showView);
    controllerObservation = observeFor(this, controller, {}, [this] { showView(); });
    settingObservation =
        observeFor(this, KTUserDefaults::standardUserDefaults(), kViewSetting, [this] { showView(); });
    showView();
}

PhotoPane::~PhotoPane() {
    // The views look at the model to the end.
    delete viewOptions;
    delete tableView;
    delete browser;
}

PhotoPane::View PhotoPane::shownView() {
    return KTUserDefaults::standardUserDefaults().integerForKey(kViewSetting) == Thumbnails ? Thumbnails
                                                                                            : Table;
}

void PhotoPane::setShownView(View view) {
    KTUserDefaults::standardUserDefaults().setValue(kViewSetting, std::int64_t(view));
}

void PhotoPane::setViewOptionsShown(bool areShown) {
    viewOptions->setVisible(areShown);
}

QWidget* PhotoPane::makeFoot() {
    auto* const foot = new QWidget;
    auto* const layout = new QHBoxLayout(foot);
    layout->setContentsMargins(10, 4, 10, 4);
    selectionLine->setAccessibleName(uiText("Selected photos"));
    sizeSlider->setAccessibleName(uiText("Size of the thumbnails"));
    sizeSlider->setToolTip(uiText("Size of the thumbnails"));
    sizeSlider->setRange(48, 400);
    sizeSlider->setValue(int(KTUserDefaults::standardUserDefaults().doubleForKey(kSizeSetting)));
    sizeSlider->setMaximumWidth(140);
    connect(sizeSlider, &QSlider::valueChanged, this, [](int edge) {
        KTUserDefaults::standardUserDefaults().setValue(kSizeSetting, KTDecimal::fromDouble(edge));
    });
    layout->addWidget(selectionLine, 1);
    layout->addWidget(sizeSlider);
    return foot;
}

void PhotoPane::showView() {
    const bool hasPhotos = controller.photoManager().numberOfPhotos() > 0;
    const bool areThumbnails = shownView() == Thumbnails;
    QWidget* const shown = !hasPhotos              ? stack->widget(0)
                           : list->rowCount() == 0 ? nothingFound
                           : areThumbnails         ? static_cast<QWidget*>(browser)
                                                   : tableView;
    const bool hadFocus = stack->currentWidget() && stack->currentWidget()->hasFocus();
    stack->setCurrentWidget(shown);
    if (hadFocus)
        shown->setFocus();
    sizeSlider->setVisible(areThumbnails);
    showSelectionCount();
}

void PhotoPane::showSelectionCount() {
    const std::size_t selected = controller.selectedPhotoIndexes().size();
    const std::size_t all = controller.photoManager().numberOfPhotos();
    const std::string selectedText =
        KTLocalizedCount("%@ of 1 photo selected", "%@ of %d photos selected", all);
    QString text = QString::fromStdString(KTStringWithFormat(selectedText, {std::to_string(selected)}));
    if (!list->filter().letsAllThrough())
        text += uiCount(", %d shown", ", %d shown", std::size_t(list->rowCount()));
    selectionLine->setText(all == 0 ? QString() : text);
}
