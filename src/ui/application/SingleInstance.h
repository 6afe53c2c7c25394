#pragma once
#include <QObject>
#include <QStringList>
#include <filesystem>
#include <functional>
#include <vector>

/// Keeps the program to one running instance a user session: a second start hands its files to the first one,
/// over D-Bus, and ends. Where there is no session bus, each start is an instance of its own.
class SingleInstance : public QObject {
    Q_OBJECT
public:
    using Paths = std::vector<std::filesystem::path>;

    /// The program's name on the bus and of its desktop entry.
    static constexpr const char* kName = "org.waymark.Waymark";

    /// True when another instance runs and has taken @p files and come forward.
    static bool handedOver(const Paths& files);
    /// Makes this one the instance. @p openFiles is called with what later starts hand over; also with none,
    /// when the window is to come forward.
    explicit SingleInstance(std::function<void(const Paths& files)> openFiles);

    /// For the bus.
    void openAddresses(const QStringList& addresses) const;

private:
    const std::function<void(const Paths& files)> open;
};
