#include "ui/application/ApplicationLook.h"

#include <QApplication>
#include <QEvent>
#include <QIcon>
#include <QPalette>
#include <algorithm>
#include <cmath>

namespace {

constexpr double kWantedContrast = kReadableContrast + 0.1; // screens show colours in whole steps

struct TextOnGround {
    QPalette::ColorRole text, ground;
};
constexpr TextOnGround kTexts[] = {
    {QPalette::WindowText, QPalette::Window},
    {QPalette::Text, QPalette::Base},
    {QPalette::Text, QPalette::AlternateBase},
    {QPalette::ButtonText, QPalette::Button},
    {QPalette::HighlightedText, QPalette::Highlight},
    {QPalette::ToolTipText, QPalette::ToolTipBase},
    {QPalette::PlaceholderText, QPalette::Base},
    {QPalette::PlaceholderText, QPalette::Window},
    {QPalette::PlaceholderText, QPalette::AlternateBase},
    {QPalette::Link, QPalette::Base},
    {QPalette::Link, QPalette::Window},
};

QColor mixed(const QColor& one, const QColor& other, double part) {
    return QColor::fromRgbF(float(one.redF() + (other.redF() - one.redF()) * part),
                            float(one.greenF() + (other.greenF() - one.greenF()) * part),
                            float(one.blueF() + (other.blueF() - one.blueF()) * part));
}

/// @p text as it shows on @p ground, and as much nearer to black or white as it takes to be read there.
QColor readable(const QColor& text, const QColor& ground) {
    QColor shown = mixed(ground, text, text.alphaF());
    if (contrastRatio(shown, ground) >= kWantedContrast)
        return shown;
    const bool isLight = contrastRatio(Qt::white, ground) > contrastRatio(Qt::black, ground);
    for (double part = 0.05; part < 1; part += 0.05)
        if (const QColor nearer = mixed(shown, isLight ? Qt::white : Qt::black, part);
            contrastRatio(nearer, ground) >= kWantedContrast)
            return nearer;
    return isLight ? Qt::white : Qt::black;
}

/// Styles that draw selections or placeholders so pale that some people cannot read them are common, Qt's own
/// among them. What is switched off may be pale.
QPalette withReadableTexts(const QPalette& desktop) {
    QPalette mended = desktop;
    for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive})
        for (const TextOnGround& pair : kTexts) {
            const QColor text = mended.color(group, pair.text), ground = mended.color(group, pair.ground);
            if (contrastRatio(mixed(ground, text, text.alphaF()), ground) < kWantedContrast)
                mended.setColor(group, pair.text, readable(text, ground));
        }
    return mended;
}

/// Qt 6.4's own style draws the frames of check boxes and radio buttons by darkening their Window colour.
void mendPalette(const QPalette& desktop) {
    const QPalette mended = withReadableTexts(desktop);
    if (mended != desktop)
        QApplication::setPalette(mended);
    if (isDarkPalette(desktop)) {
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

double contrastRatio(const QColor& one, const QColor& other) {
    const auto luminance = [](const QColor& color) {
        const auto linear = [](double part) {
            return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
        };
        return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
               0.0722 * linear(color.blueF());
    };
    const double first = luminance(one), second = luminance(other);
    return (std::max(first, second) + 0.05) / (std::min(first, second) + 0.05);
}

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
    mendPalette(desktop);
    chooseIcons(desktop);
}
