#include "ui/slideshow/SlideShowScreen.h"

#include "ui/slideshow/SlideShowSettingsView.h"
#include "ui/slideshow/SlideShowWindow.h"

#include <QDir>
#include <QIcon>

/// A view that went with a window in which it was is not destroyed again.
std::shared_ptr<void> SlideShowScreen::makeSettingsView() {
    QWidget* const view = new SlideShowSettingsView;
    return {view, [guard = QPointer(view)](QWidget*) { delete guard.data(); }};
}

std::unique_ptr<KTSlideShowWindow> SlideShowScreen::makeWindow(SlideShowController& controller,
                                                               KTViewHandle beside) {
    return std::make_unique<SlideShowWindow>(controller, lines, static_cast<QWidget*>(beside));
}

/// Icon themes arrange sizes and kinds either way round.
std::filesystem::path SlideShowScreen::folderIcon() {
    for (const QString& folder : QIcon::themeSearchPaths())
        for (const char* place :
             {"places/64/folder.svg", "scalable/places/folder.svg", "64x64/places/folder.png"}) {
            const QString file = folder + '/' + QIcon::themeName() + '/' + place;
            if (QFile::exists(file))
                return QFile::encodeName(file).toStdString();
        }
    return {};
}
