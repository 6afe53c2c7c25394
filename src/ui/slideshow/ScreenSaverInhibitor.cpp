#include "ui/slideshow/ScreenSaverInhibitor.h"

#include <QCoreApplication>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QPointer>

namespace {

constexpr const char *kSaver = "org.freedesktop.ScreenSaver", *kSaverPath = "/org/freedesktop/ScreenSaver";
constexpr const char *kPortal = "org.freedesktop.portal.Desktop",
                     *kPortalPath = "/org/freedesktop/portal/desktop";
constexpr unsigned kIdle = 8; // of what the portal can inhibit

void callUnInhibit(const QDBusConnection& bus, unsigned cookie) {
    QDBusMessage call = QDBusMessage::createMethodCall(kSaver, kSaverPath, kSaver, "UnInhibit");
    call << cookie;
    bus.send(call);
}

void closeRequest(const QDBusConnection& bus, const QString& path) {
    bus.send(QDBusMessage::createMethodCall(kPortal, path, "org.freedesktop.portal.Request", "Close"));
}

/// Calls @p handler with the answer, also when whoever asked is gone.
template<class Value>
void ask(const QDBusConnection& bus, const QDBusMessage& call,
         const std::function<void(const QDBusPendingReply<Value>&)>& handler) {
    auto* const answer = new QDBusPendingCallWatcher(bus.asyncCall(call));
    QObject::connect(answer, &QDBusPendingCallWatcher::finished, answer, [answer, handler] {
        handler(QDBusPendingReply<Value>(*answer));
        answer->deleteLater();
    });
}

} // namespace

ScreenSaverInhibitor::ScreenSaverInhibitor(const QString& reason, const QDBusConnection& sessionBus,
                                           QObject* parent)
    : QObject(parent), bus(sessionBus) {
    if (bus.isConnected())
        askScreenSaver(reason);
}

ScreenSaverInhibitor::~ScreenSaverInhibitor() {
    if (release)
        release();
}

void ScreenSaverInhibitor::askScreenSaver(const QString& reason) {
    QDBusMessage call = QDBusMessage::createMethodCall(kSaver, kSaverPath, kSaver, "Inhibit");
    call << QCoreApplication::applicationName() << reason;
    ask<unsigned>(bus, call, [guard = QPointer(this), connection = bus, reason](const auto& reply) {
        if (reply.isError()) {
            if (guard)
                guard->askPortal(reason);
        } else if (guard) {
            guard->release = [connection, cookie = reply.value()] { callUnInhibit(connection, cookie); };
        } else {
            callUnInhibit(connection, reply.value()); // nobody needs it any more
        }
    });
}

void ScreenSaverInhibitor::askPortal(const QString& reason) {
    QDBusMessage call =
        QDBusMessage::createMethodCall(kPortal, kPortalPath, "org.freedesktop.portal.Inhibit", "Inhibit");
    call << QString() << kIdle << QVariantMap{{"reason", reason}};
    ask<QDBusObjectPath>(bus, call, [guard = QPointer(this), connection = bus](const auto& reply) {
        if (reply.isError())
            return;
        const QString path = reply.value().path();
        if (guard)
            guard->release = [connection, path] { closeRequest(connection, path); };
        else
            closeRequest(connection, path);
    });
}
