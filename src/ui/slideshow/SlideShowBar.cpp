#include "ui/slideshow/SlideShowBar.h"

#include "ui/support/ObservationLink.h"
#include "ui/support/UIText.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QToolButton>

namespace {

constexpr int kWidthOfName = 260;

} // namespace

SlideShowBar::SlideShowBar(SlideShowController& slideShow, QWidget* parent)
    : QFrame(parent), show(slideShow), row(new QHBoxLayout(this)), photo(new QLabel) {
    setAccessibleName(uiText("Slide show controls"));
    setFrameShape(QFrame::StyledPanel);
    setAutoFillBackground(true);
    setCursor(Qt::ArrowCursor);
    setAttribute(Qt::WA_NoMousePropagation); // what misses a button is no click on the photo
    add("media-skip-backward", uiText("Previous Photo"), "←", [this] { show.previousPhoto(); });
    pause = add("media-playback-pause", uiText("Pause"), uiText("Space"),
                [this] { show.setAutomaticallyAdvances(!show.automaticallyAdvances()); });
    pause->setEnabled(show.hasInterval());
    add("media-skip-forward", uiText("Next Photo"), "→", [this] { show.nextPhoto(); });
    photo->setFixedWidth(kWidthOfName);
    photo->setAlignment(Qt::AlignCenter);
    photo->setAccessibleName(uiText("Photo shown"));
    row->addWidget(photo);
    map = add("mark-location", uiText("Map"), "M", [this] { emit mapWanted(map->isChecked()); });
    map->setCheckable(true);
    cycling = add("media-playlist-shuffle", uiText("Change Transitions"), "C",
                  [this] { show.setCyclesTransitionStyles(cycling->isChecked()); });
    cycling->setCheckable(true);
    add("window-close", uiText("End the Slide Show"), uiText("Escape"), [this] { show.stop(); });
    observation = observeFor(this, show, "", [this] { follow(); });
    follow();
}

/// The keys are the window's, so the buttons take no focus.
QToolButton* SlideShowBar::add(const char* icon, const QString& name, const QString& key,
                               std::function<void()> command) {
    auto* const button = new QToolButton;
    button->setIcon(QIcon::fromTheme(icon));
    button->setIconSize({22, 22});
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::NoFocus);
    button->setAccessibleName(name);
    button->setToolTip(name + " (" + key + ')');
    connect(button, &QToolButton::clicked, this, [run = std::move(command)] { run(); });
    row->addWidget(button);
    return button;
}

void SlideShowBar::setMapShown(bool isShown) {
    map->setChecked(isShown);
}

void SlideShowBar::follow() {
    const bool goesOn = show.automaticallyAdvances() && show.hasInterval();
    pause->setIcon(QIcon::fromTheme(goesOn ? "media-playback-pause" : "media-playback-start"));
    pause->setAccessibleName(goesOn ? uiText("Pause") : uiText("Go On"));
    pause->setToolTip(pause->accessibleName() + " (" + uiText("Space") + ')');
    cycling->setChecked(show.cyclesTransitionStyles());
    if (const auto current = show.photoBeside()) {
        const QString number = QString("%1 / %2  ").arg(*show.currentIndex() + 1).arg(show.photos().size());
        const int left = kWidthOfName - photo->fontMetrics().horizontalAdvance(number) - 8;
        photo->setText(number +
                       photo->fontMetrics().elidedText(uiPath(current->filename()), Qt::ElideMiddle, left));
    }
}
