#include "ui/application/ApplicationLook.h"

#include <QApplication>
#include <QEvent>
#include <QIcon>
#include <QPalette>

namespace {

/// Qt 6.4's own style draws the frames of check boxes and radio buttons by darkening their Window colour, and
/// makes placeholder texts nearly black on dark palettes.
void mendDarkPalette(const QPalette& desktop) {
    QPalette mended = desktop;
    if (isDarkPalette(desktop)) {
        QColor placeholder = desktop.color(QPalette::Text);
        placeholder.setAlphaF(0.6F);
        mended.setColor(QPalette::PlaceholderText, placeholder);
        QApplication::setPalette(mended);
        QPalette framed = mended;
        framed.setColor(QPalette::Window, desktop.color(QPalette::WindowText).darker(105));
        QApplication::setPalette(framed, "QCheckBox");
        QApplication::setPalette(framed, "QRadioButton");
    }
}

void chooseIcons(const QPalette& palette) {
    const QString theme = isDarkPalette(palette) ? "breeze-dark" : "breeze";
    QIcon::setFallbackThemeName(theme);
    if (QIcon::themeName() == "hicolor" || QIcon::themeName().isEmpty() ||
        QIcon::themeName().startsWith("breeze"))
        QIcon::setThemeName(theme);
}

class LookKeeper : public QObject {
public:
    using QObject::QObject;
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::ThemeChange)
            applyLook(*qApp);
        return false;
    }
};

} // namespace

bool isDarkPalette(const QPalette& palette) {
    return palette.color(QPalette::WindowText).lightness() > palette.color(QPalette::Window).lightness();
}

void applyLook(QApplication& application) {
    static LookKeeper* keeper = nullptr;
    if (keeper == nullptr) {
        keeper = new LookKeeper(&application);
        application.installEventFilter(keeper);
    }
    const QPalette desktop = QApplication::palette();
    mendDarkPalette(desktop);
    chooseIcons(desktop);
}
