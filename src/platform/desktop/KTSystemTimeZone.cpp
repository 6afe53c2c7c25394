#include "platform/desktop/KTSystemTimeZone.h"

#include <QFileSystemWatcher>

/// The folder is watched, because the link is replaced, not written.
KTSystemTimeZone::KTSystemTimeZone(std::filesystem::path link)
    : path(std::move(link)), watcher(std::make_unique<QFileSystemWatcher>()) {
    watcher->addPath(QString::fromStdString(path.parent_path().string()));
    QObject::connect(watcher.get(), &QFileSystemWatcher::directoryChanged, [this] { folderDidChange(); });
    known = identity();
}

KTSystemTimeZone::~KTSystemTimeZone() = default;

KTSystemTimeZone::Identity KTSystemTimeZone::identity() const {
    std::error_code noLink;
    return {std::filesystem::read_symlink(path, noLink), KTFileStamp::of(path)};
}

/// Most changes of that folder are others.
void KTSystemTimeZone::folderDidChange() {
    Identity now = identity();
    if (now == known)
        return;
    known = std::move(now);
    didChange("systemTimeZone");
}
