#include "cli/CommandCollection.h"

#include <QCoreApplication>
#include <QSocketNotifier>
#include <unistd.h>

/// There is no undo manager: nobody can take back what a command has done, so no edit needs to keep its way
/// back.
CommandCollection::CommandCollection(CommandSession& commandSession)
    : session(commandSession), manager(KTPhotoManager::sharedPhotoManager()), batches(nullptr),
      controller(manager) {
    manager.setBatchOperationController(&batches);
    controller.setBatchOperationController(&batches);
    controller.setup();
    importProgress = manager.observe([this](const KTChange& change) {
        if (change.key == "importDescription" && !change.isPrior)
            session.showProgress(manager.importDescription());
    });
    batchProgress = batches.observe([this](const KTChange& change) {
        if (change.key == "batchProgressDescription" && !change.isPrior)
            session.showProgress(batches.batchProgressDescription());
    });
    const int interruption = CommandSession::noteInterruptions();
    interruptions = std::make_unique<QSocketNotifier>(interruption, QSocketNotifier::Read);
    QObject::connect(interruptions.get(), &QSocketNotifier::activated, [interruption] {
        std::uint64_t count = 0; // the event loop has woken up; that is all it is for
        [[maybe_unused]] const auto ignored = ::read(interruption, &count, sizeof count);
    });
}

CommandCollection::~CommandCollection() {
    controller.tearDown();
    manager.removePhotos(*manager.photos());
    manager.setBatchOperationController(nullptr);
}

void CommandCollection::importPhotos(const std::vector<std::string>& paths,
                                     decltype(KTPhotoImportHandlers::didRead) didRead) {
    bool hasEnded = false;
    KTPhotoImportHandlers handlers;
    handlers.didList = [this](std::size_t, const std::vector<std::string>& problems) {
        for (const std::string& problem : problems)
            session.failure(problem);
    };
    handlers.didRead = [&](const auto& file, const auto& photo, const auto& operations) {
        if (!photo || !photo->isValid())
            session.setFailed();
        session.endProgress();
        didRead(file, photo, operations);
    };
    handlers.didEnd = [&] { hasEnded = true; };
    manager.importPhotosAtPaths(paths, std::move(handlers));
    runUntil([&] { return hasEnded; });
}

void CommandCollection::savePhotos(const Photos& photos) {
    if (CommandSession::isInterrupted())
        return;
    bool isSaved = false;
    manager.savePhotos(photos, [&] { isSaved = true; });
    runUntil([&] { return isSaved; });
}

void CommandCollection::runUntil(const std::function<bool()>& isDone) {
    bool wasStopped = false;
    while (!isDone()) {
        if (CommandSession::isInterrupted() && !std::exchange(wasStopped, true)) {
            manager.setShouldCancelImport();
            batches.abortBatch();
        }
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    session.endProgress();
}
