#include "collection/KTBatchOperationController.h"

#include "platform/common/KTLocalizedString.h"
#include "platform/common/KTText.h"
#include "platform/concurrency/KTMainThread.h"
#include "platform/undo/KTUndoManager.h"

std::string KTEscapedForFormat(std::string_view text) {
    std::string escaped;
    for (char letter : text)
        escaped.append(letter == '%' ? 2 : 1, letter);
    return escaped;
}

KTBatchOperationController::KTBatchOperationController(std::shared_ptr<KTUndoManager> undo)
    : undoManager(std::move(undo)), self(std::make_shared<KTBatchOperationController*>(this)) {}

KTBatchOperationController::~KTBatchOperationController() {
    countObservation.stop();
    operationQueue.cancelAllOperations();
    operationQueue.waitUntilAllOperationsAreFinished();
    if (isInProgress && undoManager)
        undoManager->endUndoGrouping();
}

void KTBatchOperationController::batchProcessOperations(Operations operations, std::string withDescription,
                                                        Completion completionBlock, std::size_t atATime) {
    Job job{std::move(operations), std::move(withDescription), std::move(completionBlock), atATime};
    if (isInProgress || isEnding)
        waiting.push_back(std::move(job));
    else
        start(std::move(job));
}

void KTBatchOperationController::abortBatch() {
    operationQueue.cancelAllOperations();
}

template<class Property>
void KTBatchOperationController::set(std::string_view key, Property& property, Property value) {
    willChange(key);
    property = std::move(value);
    didChange(key);
}

void KTBatchOperationController::start(Job job) {
    running = std::move(job);
    if (running.progressDescription.empty())
        running.progressDescription = KTLocalizedString("Saving to photo %u of %u");
    const std::uint64_t number = ++jobs;
    set("batchProgressMax", steps, std::uint64_t(running.operations.size()));
    showProgress(0);
    set("batchSaveInProgress", isInProgress, true);
    if (undoManager)
        undoManager->beginUndoGrouping();
    if (running.operations.empty())
        return end();
    // The count is announced where a step ends; the display is brought up to date on the main thread.
    countObservation =
        operationQueue.observe([weak = std::weak_ptr(self), number, this](const KTChange& change) {
            if (!change.isPrior)
                KTPerformOnMainThread([weak, number, unfinished = operationQueue.operationCount()] {
                    if (const auto alive = weak.lock())
                        (*alive)->noteOperationCount(number, unfinished);
                });
        });
    operationQueue.setMaxConcurrentOperationCount(running.atATime);
    operationQueue.addOperations(std::move(running.operations));
}

/// The end may be told of more than once, and late.
void KTBatchOperationController::noteOperationCount(std::uint64_t ofJob, std::size_t unfinished) {
    if (!isInProgress || ofJob != jobs)
        return;
    if (unfinished != 0)
        showProgress(steps - unfinished);
    else
        end();
}

void KTBatchOperationController::showProgress(std::uint64_t stepsDone) {
    set("batchProgressValue", done, stepsDone);
    set("batchProgressDescription", progressLine,
        KTStringWithFormat(running.progressDescription, {std::to_string(done), std::to_string(steps)}));
}

/// Jobs that are started meanwhile, by observers or the completion, begin after it.
void KTBatchOperationController::end() {
    countObservation.stop();
    const Completion completion = std::exchange(running, {}).completionBlock;
    isEnding = true;
    set("batchSaveInProgress", isInProgress, false);
    if (undoManager)
        undoManager->endUndoGrouping(); // first lets the undo queue finish
    if (completion)
        completion();
    isEnding = false;
    if (waiting.empty())
        return;
    Job next = std::move(waiting.front());
    waiting.pop_front();
    start(std::move(next));
}
