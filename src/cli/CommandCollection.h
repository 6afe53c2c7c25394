#pragma once
#include "cli/CommandSession.h"

#include "collection/KTBatchOperationController.h"
#include "collection/KTPhotoController.h"

class QSocketNotifier;

/// The shared collection as a command works with it: its photo controller and its batch runner, driven by the
/// main thread's event loop. Shows their own progress lines. An interruption (Ctrl-C) cancels the import and
/// stops the batch: the photo being read or written is finished, the rest is not begun. One at a time, on the
/// main thread.
class CommandCollection {
public:
    using Photos = KTPhotoManager::Photos;

    explicit CommandCollection(CommandSession& commandSession);
    /// Empties the collection.
    ~CommandCollection();
    CommandCollection(const CommandCollection&) = delete;
    CommandCollection& operator=(const CommandCollection&) = delete;

    KTPhotoManager& photoManager() { return manager; }
    KTPhotoController& photoController() { return controller; }
    KTBatchOperationController& batchOperationController() { return batches; }

    /// Reads the photos that @p paths stand for, and tells of each in the order of the import. Paths that
    /// stand for none are failures of the session, and so are photos that could not be read.
    void importPhotos(const std::vector<std::string>& paths,
                      decltype(KTPhotoImportHandlers::didRead) didRead);
    /// Saves those of @p photos that have unsaved changes, as one batch.
    void savePhotos(const Photos& photos);
    /// Runs the event loop until @p isDone, which must come about also when the import or the batch under way
    /// is stopped.
    void runUntil(const std::function<bool()>& isDone);

private:
    CommandSession& session;
    KTPhotoManager& manager;
    KTBatchOperationController batches;
    KTPhotoController controller;
    std::unique_ptr<QSocketNotifier> interruptions;
    KTObservable::Observation importProgress, batchProgress;
};
