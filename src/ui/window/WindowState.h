#pragma once
#include <QByteArray>
#include <QMap>
#include <QSettings>

class QSplitter;
class QWidget;

/// How the windows were left, for the next start: places, sizes, columns. Kept in a file of its own, so that
/// it can be deleted to begin afresh; what cannot be understood is as if it were not there.
class WindowState {
public:
    /// windows.ini beside the user's settings.
    WindowState();

    /// False where nothing sound is kept.
    bool restoreGeometry(const QString& name, QWidget& window) const;
    void saveGeometry(const QString& name, const QWidget& window);
    /// False where nothing sound is kept.
    bool restoreSizes(const QString& name, QSplitter& splitter) const;
    void saveSizes(const QString& name, const QSplitter& splitter);
    QMap<QString, int> widths(const QString& name) const;
    void saveWidths(const QString& name, const QMap<QString, int>& widths);
    bool flag(const QString& name, bool usual) const { return file.value(name, usual).toBool(); }
    void saveFlag(const QString& name, bool value) { file.setValue(name, value); }

private:
    QSettings file;
};
