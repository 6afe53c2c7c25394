#include "ui/slideshow/ScreenSaverInhibitor.h"
#include "tests/support/EventLoop.h"

#include <QCoreApplication>
#include <QDBusContext>
#include <QDBusObjectPath>
#include <QDBusServer>
#include <QVariantMap>
#include <gtest/gtest.h>

using namespace std::chrono_literals;

namespace {

/// What the desktop has: notes who keeps the screen awake.
class Desktop : public QObject, protected QDBusContext {
    Q_OBJECT
public:
    QStringList events;
};

class ScreenSaver : public Desktop {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.ScreenSaver")
public slots: // NOLINT
    uint Inhibit(const QString&, const QString& reason) {
        events << "inhibit " + reason;
        return 17;
    }
    void UnInhibit(uint cookie) { events << "release " + QString::number(cookie); }
};

class Portal : public Desktop {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Inhibit")
public slots: // NOLINT
    QDBusObjectPath Inhibit(const QString&, uint flags, const QVariantMap& options) {
        events << "inhibit " + QString::number(flags) + ' ' + options["reason"].toString();
        return QDBusObjectPath("/request/1");
    }
};

class PortalRequest : public Desktop {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Request")
public slots: // NOLINT
    void Close() { events << "close"; }
};

/// A connection of two without a bus between them.
class ScreenSaverInhibitorTest : public testing::Test {
protected:
    ScreenSaverInhibitorTest() {
        QObject::connect(&server, &QDBusServer::newConnection, &server, [this](QDBusConnection connection) {
            desktop = std::make_unique<QDBusConnection>(connection);
            for (const auto& [path, object] : objects)
                connection.registerObject(path, object, QDBusConnection::ExportAllSlots);
        });
    }
    ~ScreenSaverInhibitorTest() override { QDBusConnection::disconnectFromPeer(kName); }

    QDBusConnection connectTo(std::map<QString, QObject*> served) {
        objects = std::move(served);
        const QDBusConnection made = QDBusConnection::connectToPeer(server.address(), kName);
        EXPECT_TRUE(runEventLoopUntil([&] { return desktop != nullptr; }));
        return made;
    }

    static constexpr const char* kName = "ScreenSaverInhibitorTest";
    QDBusServer server;
    std::map<QString, QObject*> objects;
    std::unique_ptr<QDBusConnection> desktop;
};

} // namespace

TEST_F(ScreenSaverInhibitorTest, KeepsTheScreenAwakeAsLongAsItLives) {
    ScreenSaver saver;
    const QDBusConnection bus = connectTo({{"/org/freedesktop/ScreenSaver", &saver}});
    for (const std::chrono::milliseconds life : {0ms, 60ms}) { // before and after the answer has come
        saver.events.clear();
        auto inhibitor = std::make_unique<ScreenSaverInhibitor>("a show", bus, nullptr);
        ASSERT_TRUE(runEventLoopUntil([&] { return saver.events.size() == 1; }));
        const auto end = std::chrono::steady_clock::now() + life;
        runEventLoopUntil([&] { return std::chrono::steady_clock::now() >= end; });
        EXPECT_EQ(saver.events, QStringList{"inhibit a show"});
        inhibitor.reset();
        ASSERT_TRUE(runEventLoopUntil([&] { return saver.events.size() == 2; }));
        EXPECT_EQ(saver.events.last(), "release 17");
    }
}

TEST_F(ScreenSaverInhibitorTest, AsksThePortalWhereThereIsNoScreenSaver) {
    Portal portal;
    PortalRequest request;
    const QDBusConnection bus =
        connectTo({{"/org/freedesktop/portal/desktop", &portal}, {"/request/1", &request}});
    auto inhibitor = std::make_unique<ScreenSaverInhibitor>("a show", bus, nullptr);
    ASSERT_TRUE(runEventLoopUntil([&] { return portal.events.size() == 1; }));
    EXPECT_EQ(portal.events, QStringList{"inhibit 8 a show"});
    inhibitor.reset();
    EXPECT_TRUE(runEventLoopUntil([&] { return request.events == QStringList{"close"}; }));
}

TEST_F(ScreenSaverInhibitorTest, DoesWithoutABus) {
    ScreenSaverInhibitor inhibitor("a show", QDBusConnection("there is no such connection"), nullptr);
    QCoreApplication::processEvents();
}

#include "ScreenSaverInhibitorTest.moc"
