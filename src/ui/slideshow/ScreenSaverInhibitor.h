#pragma once
#include <QDBusConnection>
#include <QObject>

/// Keeps the screen awake as long as it lives, by org.freedesktop.ScreenSaver or, where that is absent, by
/// the desktop portal. Waits for no answer; where neither is there, nothing happens.
class ScreenSaverInhibitor : public QObject {
    Q_OBJECT
public:
    /// @p reason is what the desktop may show the user.
    ScreenSaverInhibitor(const QString& reason, const QDBusConnection& sessionBus, QObject* parent);
    ~ScreenSaverInhibitor() override;

private:
    void askScreenSaver(const QString& reason);
    void askPortal(const QString& reason);

    QDBusConnection bus;
    std::function<void()> release; // empty while nobody has agreed
};
