#pragma once
#include "platform/desktop/KTFileStamp.h"
#include "platform/observing/KTObservable.h"

class QFileSystemWatcher;

/// Announces under "systemTimeZone", after the fact, that the computer's time zone was changed;
/// KTTimeZone::system() tells which it is now. Made and destroyed on the main thread, whose event loop
/// announces.
class KTSystemTimeZone : public KTObservable {
public:
    /// @p link is the file, or the link to one, that sets the zone. Where its folder cannot be watched,
    /// nothing is announced.
    explicit KTSystemTimeZone(std::filesystem::path link = "/etc/localtime");
    ~KTSystemTimeZone() override;

private:
    /// What the link leads to, and that file. Zones of the same rules may be one file.
    using Identity = std::pair<std::filesystem::path, std::optional<KTFileStamp>>;
    Identity identity() const;
    void folderDidChange();

    const std::filesystem::path path;
    Identity known;
    std::unique_ptr<QFileSystemWatcher> watcher;
};
