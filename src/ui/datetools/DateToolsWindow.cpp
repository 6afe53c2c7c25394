#include "ui/datetools/DateToolsWindow.h"

#include "datetools/KTDateToolsWindowController.h"
#include "metadata/KTDateFormatters.h"
#include "photo/KTSameValue.h"
#include "platform/undo/KTUndoManager.h"
#include "ui/datetools/CoverFlowView.h"
#include "ui/datetools/DateCopyPanel.h"
#include "ui/datetools/DatePreviewList.h"
#include "ui/datetools/DateSetPanel.h"
#include "ui/datetools/DateShiftPanel.h"
#include "ui/support/ObservationLink.h"
#include "ui/support/PrimaryButton.h"
#include "ui/support/UICount.h"
#include "ui/support/UIText.h"

#include <QApplication>
#include <QPropertyAnimation>
#include <QScreen>
#include <QScrollBar>
#include <QShortcut>
#include <QSignalBlocker>
#include <QTabBar>
#include <QWindow>

namespace {

constexpr int kScreenMargin = 8;

// As the controller's tools count.
constexpr struct {
    const char *title, *tip;
} kTools[] = {{"Shift", "Correct the dates of a camera whose clock was wrong"},
              {"Set", "Give the photos one date, as far as it is known"},
              {"Copy", "Copy one of a photo's dates to others of it"}};

/// What the photo in front is dated now.
QString dateText(const KTPhoto& photo) {
    constexpr auto key = "dateTimeOriginalComponents";
    const KTValue date = photo.valueForKey(key);
    if (!date.components())
        return uiText("without a capture date");
    const QString text = QString::fromStdString(KTDateComponentsFormatter().stringForObjectValue(date));
    return KTIsSameValue(date, photo.savedPropertyWithKey(key)) ? text
                                                                : uiText("%1, not yet written").arg(text);
}

} // namespace

DateToolsWindow::DateToolsWindow(KTDateToolsWindowController& toolsController,
                                 KTThumbnailService& thumbnailService)
    : ToolWindow("dateTools", uiText("Date & Time Tools"), {760, 690},
                 {toolsController, "selectedDateTool",
                  [&toolsController] {
                      return toolsController.selectedDateTool() != KTDateToolsWindowController::Closed;
                  },
                  [&toolsController](bool isVisible) {
                      if (!isVisible)
                          toolsController.windowWillClose();
                  }}),
      controller(toolsController), thumbnails(thumbnailService) {}

void DateToolsWindow::makeContent() {
    tabs = new QTabBar;
    tabs->setAccessibleName(uiText("Date tool"));
    tabs->setExpanding(false);
    for (const auto& tool : kTools)
        tabs->setTabToolTip(tabs->addTab(uiText(tool.title)), uiText(tool.tip));
    connect(tabs, &QTabBar::currentChanged, this,
            [this](int index) { controller.setSelectedDateTool(unsigned(index)); });
    previews = new DatePreviewList;
    place = new QVBoxLayout;
    auto* const below = new QVBoxLayout;
    below->setContentsMargins(14, 10, 14, 12);
    below->setSpacing(10);
    below->addLayout(place);
    below->addWidget(previews);
    below->addWidget(makeButtons());
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 6, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(tabs);
    layout->addWidget(makeStrip(), 1);
    layout->addLayout(below);

    connect(new QShortcut(QKeySequence::Undo, this), &QShortcut::activated, this,
            [this] { controller.windowWillReturnUndoManager()->undo(); });
    connect(new QShortcut(QKeySequence::Redo, this), &QShortcut::activated, this,
            [this] { controller.windowWillReturnUndoManager()->redo(); });
    windowObservation = controller.observe([this](const KTChange& change) {
        if (change.key != "currentSubviewController")
            return;
        if (change.isPrior)
            removePanel();
        else
            showTool();
    });
    showTool();
}

QWidget* DateToolsWindow::makeStrip() {
    strip = new CoverFlowView(thumbnails);
    bar = new QScrollBar(Qt::Horizontal);
    bar->setAccessibleName(uiText("Photo in front"));
    bar->setToolTip(uiText("Brings another of the selected photos to the front"));
    name = new QLabel;
    date = new QLabel;
    QFont strong = name->font();
    strong.setBold(true);
    name->setFont(strong);
    auto choose = [this](std::size_t index) {
        if (KTDateTool* const tool = controller.currentSubviewController())
            tool->setCurrentImageIndex(index);
    };
    connect(strip, &CoverFlowView::frontChosen, this, choose);
    connect(bar, &QScrollBar::valueChanged, this, [choose](int value) { choose(std::size_t(value)); });
    auto* const box = new QWidget;
    auto* const layout = new QVBoxLayout(box);
    layout->setContentsMargins({});
    layout->setSpacing(2);
    layout->addWidget(strip, 1);
    layout->addWidget(bar);
    layout->addSpacing(4);
    for (QLabel* const line : {name, date}) {
        line->setAlignment(Qt::AlignHCenter);
        line->setTextFormat(Qt::PlainText);
        layout->addWidget(line);
    }
    return box;
}

QWidget* DateToolsWindow::makeButtons() {
    concerned = new QLabel;
    revertButton = new QPushButton(uiText("Revert"));
    revertButton->setToolTip(uiText("Takes the shifts back: the photos get the dates that their files hold"));
    connect(revertButton, &QPushButton::clicked, this, &DateToolsWindow::revert);
    applyButton = new PrimaryButton(uiText("Apply"));
    connect(applyButton, &QPushButton::clicked, this, &DateToolsWindow::apply);
    for (const auto key : {Qt::Key_Return, Qt::Key_Enter})
        connect(new QShortcut(key, this), &QShortcut::activated, this, [this] {
            auto* const focused = qobject_cast<QPushButton*>(focusWidget());
            (focused ? focused : applyButton)->click();
        });
    auto* const box = new QWidget;
    auto* const line = new QHBoxLayout(box);
    line->setContentsMargins({});
    line->addWidget(concerned, 1);
    line->addWidget(revertButton);
    line->addWidget(applyButton);
    return box;
}

/// It floats above the window in which its command was given.
void DateToolsWindow::showEvent(QShowEvent* event) {
    ToolWindow::showEvent(event);
    strip->setFocus();
    const QWidget* const opener = QApplication::activeWindow();
    if (opener == nullptr || opener == this)
        return;
    windowHandle()->setTransientParent(opener->windowHandle());
    if (!testAttribute(Qt::WA_Moved))
        move(opener->geometry().center() - rect().center());
}

/// Not at once: a control of the panel may be what had it replaced.
void DateToolsWindow::removePanel() {
    photosObservation = {};
    previewsObservation = {};
    if (panel == nullptr)
        return;
    panel->hide();
    place->removeWidget(panel);
    panel->deleteLater();
    panel = nullptr;
}

void DateToolsWindow::showTool() {
    removePanel();
    if (auto* const shift = controller.dateShiftViewController())
        panel = new DateShiftPanel(*shift);
    else if (auto* const set = controller.dateSetViewController())
        panel = new DateSetPanel(*set);
    else if (auto* const copy = controller.dateCopyViewController())
        panel = new DateCopyPanel(*copy);
    if (panel == nullptr)
        return;
    tabs->setCurrentIndex(int(controller.selectedDateTool()));
    panel->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
    place->addWidget(panel);
    panel->show(); // now, so that the layout counts it
    orderFocus();
    applyButton->setToolTip(panel->applyTip());
    revertButton->setVisible(panel->canRevert());
    KTDateTool& tool = *controller.currentSubviewController();
    photosObservation = observeFor(this, tool, "currentImageIndex", [this] { showPhotos(); });
    previewsObservation = observeFor(this, tool, "previews", [this] { showPreviews(); });
    showPhotos();
    showPreviews();
    fitHeight();
}

/// From the strip through the panel to what would change.
void DateToolsWindow::orderFocus() {
    QWidget* last = bar;
    for (QWidget* const control : panel->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly))
        if ((control->focusPolicy() & Qt::TabFocus) != 0) {
            setTabOrder(last, control);
            last = control;
        }
    setTabOrder(last, previews);
}

/// The window becomes as high as this tool needs it, its upper edge in place; where the screen ends before,
/// the strip gives way, and then the edge.
void DateToolsWindow::fitHeight() {
    layout()->activate();
    const int room = screen()->availableGeometry().bottom() - geometry().top() - kScreenMargin;
    const int wanted = layout()->hasHeightForWidth() ? layout()->totalHeightForWidth(width())
                                                     : layout()->totalSizeHint().height();
    const int least = std::min(wanted, layout()->totalMinimumSize().height());
    const int height = std::clamp(room, least, wanted);
    if (isVisible() && height > room)
        move(x(), std::max(screen()->availableGeometry().top(), y() - (height - room)));
    auto* const growth = new QPropertyAnimation(this, "size", this);
    growth->setDuration(isVisible() ? style()->styleHint(QStyle::SH_Widget_Animation_Duration) : 0);
    growth->setEndValue(QSize(width(), height));
    growth->start(QAbstractAnimation::DeleteWhenStopped);
}

void DateToolsWindow::showPhotos() {
    const KTDateTool& tool = *controller.currentSubviewController();
    const auto selected = tool.selectedPhotos();
    const auto front = tool.currentImageIndex();
    strip->setPhotos(selected, front);
    const QSignalBlocker quiet(bar);
    bar->setRange(0, std::max(0, int(selected->size()) - 1));
    bar->setPageStep(std::max(1, 2 * strip->reach() - 4));
    bar->setValue(int(front.value_or(0)));
    bar->setEnabled(selected->size() > 1);
}

void DateToolsWindow::showPreviews() {
    const KTDateTool& tool = *controller.currentSubviewController();
    concerned->setText(
        uiCount("1 photo is concerned.", "%d photos are concerned.", tool.photosConcerned()->size()));
    const auto shown = tool.previews();
    previews->setPreviews(shown);
    applyButton->setEnabled(
        std::ranges::any_of(shown, [](const KTDatePreview& preview) { return !preview.changes.empty(); }));
    revertButton->setEnabled(!tool.photosConcerned()->empty());

    const auto photo = tool.currentPhoto();
    name->setText(strip->frontText());
    date->setText(photo ? dateText(*photo) : QString());
}

/// Afterwards undo is that of the photos, no longer that of a field.
void DateToolsWindow::apply() {
    applyButton->setFocus();
    panel->apply();
}

void DateToolsWindow::revert() {
    revertButton->setFocus();
    panel->revert();
}
