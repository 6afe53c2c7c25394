#include "ui/map/MapPane.h"

#include "ui/support/ObservationLink.h"
#include "ui/support/UIText.h"

#include <QActionGroup>
#include <QMenu>
#include <QToolButton>
#include <QVBoxLayout>

namespace {

constexpr int kMargin = 10;
constexpr std::pair<const char*, const char*> kSources[] = {
    {"", "Offline Map"}, {"openstreetmap", "OpenStreetMap"}, {"custom", "Own Tile Server"}};

QString titleOf(const std::string& source) {
    for (const auto& [name, title] : kSources)
        if (source == name)
            return uiText(title);
    return QString::fromStdString(source);
}

/// Buttons on the map have a ground of their own.
void setUp(QToolButton& button, const QString& name) {
    button.setAccessibleName(name);
    button.setToolTip(name);
    button.setAutoFillBackground(true);
    button.setAutoRaise(false);
}

} // namespace

MapPane::MapPane(KTMapController& mapController, MapFeatures features, KTThumbnailService& thumbnails,
                 std::function<void()> fit, QWidget* parent)
    : QWidget(parent), map(new MapView(mapController, std::move(features), thumbnails, this)),
      scaleButtons(new QWidget(this)), sourceButton(new QToolButton(this)) {
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(map);
    makeScaleButtons(std::move(fit));
    makeSourceButton();
    place();
}

void MapPane::makeScaleButtons(std::function<void()> fit) {
    auto* const column = new QVBoxLayout(scaleButtons);
    column->setContentsMargins({});
    column->setSpacing(0);
    auto add = [&](const QString& sign, const QString& name, std::function<void()> command) {
        auto* const button = new QToolButton;
        setUp(*button, name);
        if (sign.isEmpty())
            button->setIcon(QIcon::fromTheme("zoom-fit-best"));
        button->setText(sign);
        QFont large = button->font();
        large.setPointSizeF(large.pointSizeF() * 1.3);
        button->setFont(large);
        button->setFixedSize(30, 30);
        connect(button, &QToolButton::clicked, this, [run = std::move(command)] { run(); });
        column->addWidget(button);
    };
    add("+", uiText("Zoom In"), [this] { map->zoomBy(1); });
    add(QString(QChar(0x2212)), uiText("Zoom Out"), [this] { map->zoomBy(-1); });
    add({}, uiText("Fit the Selection"), std::move(fit));
}

void MapPane::makeSourceButton() {
    setUp(*sourceButton, uiText("Source of the map"));
    sourceButton->setPopupMode(QToolButton::InstantPopup);
    sourceButton->setToolButtonStyle(Qt::ToolButtonTextOnly);
    auto* const menu = new QMenu(this);
    auto* const group = new QActionGroup(this);
    for (const auto& [name, title] : kSources) {
        QAction* const action = group->addAction(menu->addAction(uiText(title)));
        action->setCheckable(true);
        action->setData(QString(name));
        connect(action, &QAction::triggered, this,
                [this, chosen = std::string(name)] { map->controller().setMapDataSource(chosen); });
    }
    sourceButton->setMenu(menu);
    observation = observeFor(this, map->controller(), "mapDataSource", [this] { showSource(); });
    showSource();
}

void MapPane::showSource() {
    const std::string source = map->controller().mapDataSource();
    sourceButton->setText(titleOf(source));
    sourceButton->setAccessibleName(uiText("Source of the map: %1").arg(sourceButton->text()));
    for (QAction* const action : sourceButton->menu()->actions())
        action->setChecked(action->data().toString().toStdString() == source);
    place();
}

void MapPane::place() {
    scaleButtons->adjustSize();
    scaleButtons->move(kMargin, kMargin);
    sourceButton->adjustSize();
    sourceButton->move(width() - sourceButton->width() - kMargin, kMargin);
}

void MapPane::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    place();
}
