#include "ui/windows/PreferencesWindow.h"

#include "ui/support/ObservationLink.h"
#include "ui/support/UIText.h"
#include "ui/windows/SettingControls.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QScrollArea>
#include <QStackedWidget>

namespace {

/// What the panes' icons are called among those of the desktop.
QIcon iconNamed(const std::string& name) {
    static const std::pair<const char*, const char*> names[] = {{"General", "configure"},
                                                                {"Geotagging", "mark-location"},
                                                                {"Photos", "folder-pictures"},
                                                                {"Maps", "map-globe"},
                                                                {"Scroll", "map-flat"}};
    for (const auto& [own, standard] : names)
        if (name == own)
            return QIcon::fromTheme(standard);
    return {};
}

QLabel* heading(const QString& text) {
    auto* const label = new QLabel(text);
    QFont bold = label->font();
    bold.setBold(true);
    label->setFont(bold);
    label->setContentsMargins(0, 12, 0, 0);
    return label;
}

QLabel* faintLabel() {
    auto* const label = new QLabel;
    label->setWordWrap(true);
    label->setForegroundRole(QPalette::PlaceholderText);
    return label;
}

} // namespace

PreferencesWindow::PreferencesWindow(AppPreferencesWindowController& preferencesController)
    : ToolWindow(
          "preferences", uiText("Preferences"), {760, 540},
          {preferencesController, "isWindowVisible",
           [&preferencesController] { return preferencesController.isWindowVisible(); },
           [&preferencesController](bool isVisible) { preferencesController.setWindowVisible(isVisible); }}),
      controller(preferencesController) {}

void PreferencesWindow::makeContent() {
    auto* const list = new QListWidget;
    list->setAccessibleName(uiText("Panes"));
    list->setFixedWidth(190);
    list->setIconSize({22, 22});
    auto* const stack = new QStackedWidget;
    for (const auto& pane : controller.panes()) {
        list->addItem(new QListWidgetItem(iconNamed(pane.icon), QString::fromStdString(pane.label)));
        auto* const scroll = new QScrollArea;
        scroll->setFrameShape(QFrame::NoFrame);
        scroll->setWidgetResizable(true);
        scroll->setWidget(makePane(pane));
        stack->addWidget(scroll);
    }
    connect(list, &QListWidget::currentRowChanged, stack, &QStackedWidget::setCurrentIndex);
    list->setCurrentRow(0);
    auto* const layout = new QHBoxLayout(this);
    layout->addWidget(list);
    layout->addWidget(stack, 1);
}

QWidget* PreferencesWindow::makePane(const AppPreferencesWindowController::Pane& pane) {
    auto* const widget = new QWidget;
    widget->setAccessibleName(QString::fromStdString(pane.label));
    auto* const form = new QFormLayout(widget);
    form->setFieldGrowthPolicy(QFormLayout::ExpandingFieldsGrow);
    for (const std::string& key : pane.settings) {
        if (key == "defaultShouldBackupWhenWritingToImageFiles")
            addBackups(*form);
        else if (key == "AltitudeFieldIsEditableDefault")
            addAltitude(*form);
        else if (key == "defaultSampleLatitude")
            addSample(*form);
        else if (key == "mapTilesContact") {
            addMapStart(*form);
            form->addRow(heading(uiText("Tiles of a server, shown once it is chosen on the map")));
            SettingControls::add(key, *form, *widget, observations);
        } else
            SettingControls::add(key, *form, *widget, observations);
    }
    return widget;
}

void PreferencesWindow::addBackups(QFormLayout& form) {
    auto* const box = new QCheckBox(uiText("Copy image files into a backup folder before writing to them"));
    box->setToolTip(uiText("Each batch makes a folder of its own, named by date and time"));
    auto* const choose = new QPushButton(uiText("Choose Folder…"));
    choose->setToolTip(uiText("Choose where the backups go"));
    auto* const path = faintLabel();
    path->setAccessibleName(uiText("Backup folder"));
    connect(box, &QCheckBox::clicked, this,
            [this](bool isOn) { controller.setShouldBackupImageFiles(isOn); });
    connect(choose, &QPushButton::clicked, this, [this] { controller.chooseBackupFolder(); });
    auto show = [this, box, path] {
        box->setChecked(controller.shouldBackupImageFiles());
        path->setText(controller.backupPath().empty() ? uiText("No folder is chosen.")
                                                      : uiPath(controller.backupPath()));
    };
    observations.push_back(observeFor(box, controller, {}, show));
    show();
    form.addRow(box);
    form.addRow(choose, path);
}

void PreferencesWindow::addAltitude(QFormLayout& form) {
    auto* const box = new QCheckBox(uiText("Let altitudes be typed"));
    box->setToolTip(uiText("Else they come from tracks only"));
    box->setChecked(controller.allowManualEditingOfAltitudeField());
    connect(box, &QCheckBox::clicked, this,
            [this](bool isOn) { controller.setAllowManualEditingOfAltitudeField(isOn); });
    form.addRow(box);
}

void PreferencesWindow::addSample(QFormLayout& form) {
    auto addField = [&](const QString& title, std::optional<KTDecimal> value, auto store) {
        auto* const field = new QLineEdit(value ? QString::fromStdString(value->toText()) : QString());
        auto* const label = new QLabel(title);
        label->setBuddy(field);
        connect(field, &QLineEdit::editingFinished, this, [this, field, store] {
            (controller.*store)(KTDecimal::fromText(field->text().trimmed().toStdString()));
        });
        form.addRow(label, field);
    };
    addField(uiText("Sample latitude:"), controller.sampleLatitude(),
             &AppPreferencesWindowController::setSampleLatitude);
    addField(uiText("Sample longitude:"), controller.sampleLongitude(),
             &AppPreferencesWindowController::setSampleLongitude);
    auto* const button = new QPushButton(uiText("Try"));
    button->setAccessibleName(uiText("Look up the sample position"));
    button->setToolTip(button->accessibleName());
    connect(button, &QPushButton::clicked, this, [this] { controller.sample(); });
    auto* const answer = faintLabel();
    answer->setAccessibleName(uiText("Place names of the sample position"));
    auto show = [this, answer] { answer->setText(QString::fromStdString(controller.sampleDescription())); };
    observations.push_back(observeFor(answer, controller, "sampleDescription", show));
    show();
    form.addRow(button, answer);
}

void PreferencesWindow::addMapStart(QFormLayout& form) {
    auto* const button = new QPushButton(uiText("Begin Where the Map Is Now"));
    button->setToolTip(uiText("Keeps the map's present place, scale and source for later starts"));
    connect(button, &QPushButton::clicked, this, [this] { controller.setMapCenterDefaultAction(); });
    auto* const line = new QHBoxLayout;
    line->addWidget(button);
    line->addStretch();
    form.addRow(line);
}
