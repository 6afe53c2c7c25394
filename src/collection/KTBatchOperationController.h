#pragma once
#include "platform/concurrency/KTOperationQueue.h"

#include <deque>

class KTUndoManager;

/// Runs long jobs made of one step a photo, one step after the other and never on the main thread, while a
/// sheet shows where the job stands and lets the user stop the rest. All edits of a job are one undo step.
///
/// A job opens the undo group, runs its steps in order, waits for what they registered for undo, closes the
/// group, and runs its completion. A job that is started while another one runs follows it. Observable under
/// the names of its properties, which change on the main thread; the sheet shows while "batchSaveInProgress".
/// Everything here is for the main thread, whose event loop must run.
class KTBatchOperationController : public KTObservable {
public:
    using Operations = std::vector<std::shared_ptr<KTOperation>>;
    using Completion = std::function<void()>;

    /// @p undo is that of the photos; null for none.
    explicit KTBatchOperationController(std::shared_ptr<KTUndoManager> undo);
    /// Drops the steps that have not started and waits for the running one; completions do not run any more.
    ~KTBatchOperationController() override;

    /// Begins a job and returns at once; a job without operations ends at once. @p withDescription is the
    /// progress text, with two "%u" for the steps done and their total; empty for "Saving to photo %u of %u".
    /// @p completionBlock runs exactly once, also when the job was stopped. Steps that are made to overlap
    /// may be @p atATime.
    void batchProcessOperations(Operations operations, std::string withDescription = {},
                                Completion completionBlock = {}, std::size_t atATime = 1);
    /// Lets the running step of the present job finish and drops its others.
    void abortBatch();

    bool batchSaveInProgress() const { return isInProgress; }
    const std::string& batchProgressDescription() const { return progressLine; }
    std::uint64_t batchProgressMin() const { return 0; }
    std::uint64_t batchProgressMax() const { return steps; }
    std::uint64_t batchProgressValue() const { return done; }

private:
    struct Job {
        Operations operations;
        std::string progressDescription;
        Completion completionBlock;
        std::size_t atATime = 1;
    };

    void start(Job job);
    void noteOperationCount(std::uint64_t ofJob, std::size_t unfinished);
    void showProgress(std::uint64_t stepsDone);
    void end();
    template<class Property>
    void set(std::string_view key, Property& property, Property value);

    const std::shared_ptr<KTUndoManager> undoManager;
    std::deque<Job> waiting;
    Job running;
    std::uint64_t jobs = 0; // begun so far
    bool isInProgress = false;
    bool isEnding = false;
    std::uint64_t steps = 0, done = 0;
    std::string progressLine;
    const std::shared_ptr<KTBatchOperationController*> self; // for what is posted to the main thread
    Observation countObservation;
    KTOperationQueue operationQueue;
};

/// @p text with its percent signs doubled, so that it may become part of a progress format.
std::string KTEscapedForFormat(std::string_view text);
