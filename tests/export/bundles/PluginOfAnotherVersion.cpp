#include <QtPlugin>

#include <QObject>
#include <cstdlib>

/// A library for interfaces that this host does not have. Its code must not run.
class PluginOfAnotherVersion : public QObject {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "waymark.PhotoExportPluginFactory/1")

public:
    PluginOfAnotherVersion() { std::abort(); }
};

#include "PluginOfAnotherVersion.moc"
