#include "ui/window/MainToolBar.h"

#include "app/WaymarkAppController.h"
#include "app/WaymarkMainMenu.h"
#include "app/WaymarkWindowController.h"
#include "collection/KTPhotoManagerToolbarController.h"
#include "platform/defaults/KTUserDefaults.h"
#include "ui/photos/PhotoPane.h"
#include "ui/support/ObservationLink.h"
#include "ui/support/PrimaryButton.h"
#include "ui/support/SwitchButton.h"
#include "ui/support/UIText.h"

#include <QButtonGroup>
#include <QToolButton>

MainToolBar::MainToolBar(WaymarkWindowController& windowController, QWidget* filterBar, QWidget* parent)
    : QToolBar(uiText("Main Toolbar"), parent), controller(windowController),
      app(windowController.appController()) {
    setObjectName("mainToolBar");
    setMovable(false);
    setFloatable(false);
    setContextMenuPolicy(Qt::PreventContextMenu);
    setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    setIconSize(QSize(16, 16));
    addButton(uiText("Photos…"), "list-add", uiText("Add photos"), [this] {
        app.loadPhotosFromFiles();
    })->setAccessibleName(uiText("Add Photos"));
    addButton(uiText("Tracks…"), "list-add", uiText("Add GPS tracks"), [this] {
        app.loadTracksFromFile();
    })->setAccessibleName(uiText("Add Tracks"));
    addSeparator();
    undoButton = addButton({}, "edit-undo", {}, [this] { app.mainMenu()->performCommand("undo"); });
    redoButton = addButton({}, "edit-redo", {}, [this] { app.mainMenu()->performCommand("redo"); });
    addSeparator();
    addViewButtons();
    addWidget(filterBar);
    auto* const space = new QWidget;
    space->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    addWidget(space);
    addPaneButton(WaymarkPane::MapView, uiText("Map"), "map-globe", uiText("Show or hide the map"));
    addPaneButton(WaymarkPane::GeotaggingView, uiText("Geotag"), "mark-location",
                  uiText("Show or hide the geotagging console"));
    addPaneButton(WaymarkPane::MetadataView, uiText("Tags"), "documentinfo",
                  uiText("Show or hide the metadata of the selected photos"));
    addSeparator();
    addWriteButton();
    observations.push_back(observeFor(this, *app.mainMenu(), "mainMenu", [this] { showUndo(); }));
    showUndo();
}

QToolButton* MainToolBar::addButton(const QString& text, const char* icon, const QString& tip,
                                    std::function<void()> command) {
    auto* const button = new SwitchButton;
    button->setText(text);
    button->setIcon(QIcon::fromTheme(icon));
    button->setToolButtonStyle(text.isEmpty() ? Qt::ToolButtonIconOnly : Qt::ToolButtonTextBesideIcon);
    button->setToolTip(tip);
    button->setFocusPolicy(Qt::TabFocus);
    if (command)
        connect(button, &QToolButton::clicked, this, [run = std::move(command)] { run(); });
    addWidget(button);
    return button;
}

void MainToolBar::addViewButtons() {
    auto* const group = new QButtonGroup(this);
    auto add = [&](PhotoPane::View view, const QString& text, const char* icon, const QString& tip) {
        QToolButton* const button = addButton(text, icon, tip, [view] { PhotoPane::setShownView(view); });
        button->setCheckable(true);
        group->addButton(button, int(view));
    };
    add(PhotoPane::Table, uiText("Table"), "view-list-details", uiText("Show the photos as a table"));
    add(PhotoPane::Thumbnails, uiText("Thumbnails"), "view-list-icons",
        uiText("Show the photos as thumbnails"));
    auto check = [group] { group->button(int(PhotoPane::shownView()))->setChecked(true); };
    observations.push_back(
        observeFor(this, KTUserDefaults::standardUserDefaults(), "defaultPhotoView", check));
    check();
}

void MainToolBar::addPaneButton(WaymarkPane pane, const QString& text, const char* icon, const QString& tip) {
    QToolButton* const button = addButton(text, icon, tip, {});
    button->setCheckable(true);
    connect(button, &QToolButton::clicked, this,
            [this, pane](bool isOn) { controller.setPaneShown(pane, isOn); });
    auto check = [this, pane, button] { button->setChecked(controller.isPaneShown(pane)); };
    observations.push_back(observeFor(this, controller, "shownPanes", check));
    check();
}

void MainToolBar::addWriteButton() {
    KTPhotoManagerToolbarController& toolbar = *controller.photoManagerToolbarController();
    auto* const button = new PrimaryButton(QString::fromStdString(toolbar.unsavedPhotosButtonTitle()));
    button->setAccessibleName(button->text());
    button->setToolTip(uiText("Write all unsaved changes to the photos"));
    button->setAutoDefault(false);
    WaymarkMainMenu& menu = *app.mainMenu();
    connect(button, &QPushButton::clicked, this, [&menu] { menu.performCommand("writeChangedTags"); });
    auto enable = [button, &menu] {
        button->setEnabled(menu.itemWithIdentifier("writeChangedTags")->isEnabled);
    };
    observations.push_back(observeFor(this, menu, "mainMenu", enable));
    enable();
    addWidget(button);
}

void MainToolBar::showUndo() {
    auto show = [this](QToolButton& button, const char* command) {
        const KTMenuItem item = app.mainMenu()->itemWithIdentifier(command).value_or(KTMenuItem());
        const QString text = QString::fromStdString(item.title);
        button.setEnabled(item.isEnabled);
        button.setToolTip(text);
        button.setAccessibleName(text);
    };
    show(*undoButton, "undo");
    show(*redoButton, "redo");
}
