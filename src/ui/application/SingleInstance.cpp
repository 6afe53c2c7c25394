#include "ui/application/SingleInstance.h"

#include "ui/support/DroppedPaths.h"

#include <QDBusAbstractAdaptor>
#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QVariantMap>

namespace {

constexpr const char *kPath = "/org/waymark/Waymark", *kInterface = "org.freedesktop.Application";
constexpr int kPatience = 3000; // milliseconds; an instance that does not answer is no use

/// Lets the window manager bring the first instance's window forward.
QVariantMap platformData() {
    QVariantMap data;
    const QByteArray token = qgetenv("XDG_ACTIVATION_TOKEN"), startup = qgetenv("DESKTOP_STARTUP_ID");
    if (!token.isEmpty())
        data["activation-token"] = QString::fromUtf8(token);
    if (!startup.isEmpty())
        data["desktop-startup-id"] = QString::fromUtf8(startup);
    return data;
}

} // namespace

/// What org.freedesktop.Application asks for.
class ApplicationAdaptor : public QDBusAbstractAdaptor {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")
public:
    explicit ApplicationAdaptor(SingleInstance& owner) : QDBusAbstractAdaptor(&owner), instance(owner) {}

public slots: // NOLINT
    void Activate(const QVariantMap&) { instance.openAddresses({}); }
    void Open(const QStringList& uris, const QVariantMap&) { instance.openAddresses(uris); }
    void ActivateAction(const QString&, const QVariantList&, const QVariantMap&) {
        instance.openAddresses({});
    }

private:
    SingleInstance& instance;
};

bool SingleInstance::handedOver(const Paths& files) {
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected() || !bus.interface()->isServiceRegistered(kName))
        return false;
    QDBusMessage call =
        QDBusMessage::createMethodCall(kName, kPath, kInterface, files.empty() ? "Activate" : "Open");
    if (!files.empty())
        call << addressesOf(files);
    call << platformData();
    return bus.call(call, QDBus::Block, kPatience).type() == QDBusMessage::ReplyMessage;
}

SingleInstance::SingleInstance(std::function<void(const Paths& files)> openFiles)
    : open(std::move(openFiles)) {
    new ApplicationAdaptor(*this);
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (bus.isConnected() && bus.registerObject(kPath, this))
        bus.registerService(kName);
}

void SingleInstance::openAddresses(const QStringList& addresses) const {
    open(pathsOfAddresses(addresses));
}

#include "SingleInstance.moc"
