#include "ui/window/WindowState.h"

#include "platform/defaults/KTUserDefaults.h"

#include <QFile>
#include <QSplitter>

namespace {

constexpr int kLargestSensible = 20'000;

QString stateFile() {
    return QFile::decodeName((KTUserDefaults::userFile().parent_path() / "windows.ini").c_str());
}

bool isSensible(int pixels) {
    return pixels >= 0 && pixels <= kLargestSensible;
}

} // namespace

WindowState::WindowState() : file(stateFile(), QSettings::IniFormat) {}

bool WindowState::restoreGeometry(const QString& name, QWidget& window) const {
    return window.restoreGeometry(file.value(name + "/geometry").toByteArray()); // checks what it is given
}

void WindowState::saveGeometry(const QString& name, const QWidget& window) {
    file.setValue(name + "/geometry", window.saveGeometry());
}

bool WindowState::restoreSizes(const QString& name, QSplitter& splitter) const {
    QList<int> sizes;
    for (const QVariant& size : file.value(name + "/sizes").toList())
        sizes << size.toInt();
    if (sizes.size() != splitter.count() || !std::ranges::all_of(sizes, isSensible) ||
        std::ranges::all_of(sizes, [](int size) { return size == 0; }))
        return false;
    splitter.setSizes(sizes);
    return true;
}

void WindowState::saveSizes(const QString& name, const QSplitter& splitter) {
    QVariantList sizes;
    for (const int size : splitter.sizes())
        sizes << size;
    file.setValue(name + "/sizes", sizes);
}

QMap<QString, int> WindowState::widths(const QString& name) const {
    QMap<QString, int> result;
    const QVariantMap kept = file.value(name + "/widths").toMap();
    for (auto entry = kept.begin(); entry != kept.end(); ++entry)
        if (const int width = entry.value().toInt(); width > 0 && isSensible(width))
            result[entry.key()] = width;
    return result;
}

void WindowState::saveWidths(const QString& name, const QMap<QString, int>& widths) {
    QVariantMap kept;
    for (auto entry = widths.begin(); entry != widths.end(); ++entry)
        kept[entry.key()] = entry.value();
    file.setValue(name + "/widths", kept);
}
