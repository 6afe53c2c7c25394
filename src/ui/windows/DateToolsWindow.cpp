#include "ui/windows/DateToolsWindow.h"

#include "datetools/KTDateCopyViewController.h"
#include "datetools/KTDateSetViewController.h"
#include "datetools/KTDateShiftViewController.h"
#include "datetools/KTDateToolsWindowController.h"
#include "ui/support/CellList.h"
#include "ui/support/ObservationLink.h"
#include "ui/support/UIText.h"
#include "ui/windows/DateCopyPanel.h"
#include "ui/windows/DateSetPanel.h"
#include "ui/windows/DateShiftPanel.h"

#include <QLabel>
#include <QTabBar>
#include <QTreeWidget>
#include <QVBoxLayout>

DateToolsWindow::DateToolsWindow(KTDateToolsWindowController& toolsController)
    : ToolWindow("dateTools", uiText("Date & Time Tools"), {560, 520},
                 {toolsController, "selectedDateTool",
                  [&toolsController] {
                      return toolsController.selectedDateTool() != KTDateToolsWindowController::Closed;
                  },
                  [&toolsController](bool isVisible) {
                      if (!isVisible)
                          toolsController.windowWillClose();
                  }}),
      controller(toolsController) {}

void DateToolsWindow::makeContent() {
    tabs = new QTabBar;
    tabs->setAccessibleName(uiText("Date tool"));
    for (const char* title : {"Shift", "Set", "Copy"})
        tabs->addTab(uiText(title));
    connect(tabs, &QTabBar::tabBarClicked, this,
            [this](int index) { controller.setSelectedDateTool(unsigned(index)); });
    selectionLine = new QLabel;
    previews = new QTreeWidget;
    setUpCellList(*previews, uiText("What would change"));
    previews->setHeaderLabels({uiText("Photo"), uiText("Date"), uiText("Now"), uiText("Then")});
    previews->setMaximumHeight(150);
    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(tabs);
    layout->addWidget(selectionLine);
    place = new QVBoxLayout;
    layout->addLayout(place);
    layout->addStretch();
    layout->addWidget(previews);
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

/// Not at once: a control of the panel may be what had it replaced.
void DateToolsWindow::removePanel() {
    toolObservation = {};
    if (panel == nullptr)
        return;
    panel->hide();
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
    place->addWidget(panel);
    toolObservation =
        observeFor(this, *controller.currentSubviewController(), {}, [this] { showPreviews(); });
    showPreviews();
}

void DateToolsWindow::showPreviews() {
    const KTDateTool& tool = *controller.currentSubviewController();
    const std::size_t count = tool.photosConcerned()->size();
    selectionLine->setText(count == 1 ? uiText("1 photo is concerned.")
                                      : uiText("%1 photos are concerned.").arg(count));
    previews->clear();
    for (const KTDatePreview& preview : tool.previews())
        for (const KTDateChange& change : preview.changes)
            new QTreeWidgetItem(previews,
                                {uiPath(preview.photo->filename()), QString::fromStdString(change.name()),
                                 QString::fromStdString(change.oldText()),
                                 QString::fromStdString(change.newText())});
}
