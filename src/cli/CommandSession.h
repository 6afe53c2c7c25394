#pragma once
#include "photo/KTPhoto.h"
#include "platform/tracklibrary/KTTrackManager.h"

#include <filesystem>

enum ExitStatus : int {
    kExitDone = 0,
    kExitSomethingFailed = 1,
    kExitUsage = 2,
    kExitInterrupted = 130,
};

/// What all commands of one run share: the global options, messages, progress, the track library, Ctrl-C.
class CommandSession {
public:
    bool json = false;
    std::string libraryFile; ///< ":memory:", a path, or empty for the user's own
    enum class Progress { Auto, Always, Never } progress = Progress::Auto;

    /// The photo files that @p paths stand for, in the order in which they are worked on. Paths that lead to
    /// none are named on standard error and remembered as failures.
    std::vector<std::filesystem::path> photoFiles(const std::vector<std::string>& paths);

    /// The track library, opened on first use; null, with a message, when it cannot be.
    KTTrackManager* tracks();

    /// The warnings and failures among a photo's @p operations, as messages.
    void messages(const std::filesystem::path& photo, const std::vector<KTPhotoOperation>& operations) const;
    /// A line on standard error.
    void message(const std::string& text) const;
    /// A message about something that did not work: the run's exit status becomes 1.
    void failure(const std::string& text);
    bool hasFailed() const { return failed; }
    void setFailed() { failed = true; }

    /// Shows @p line, in the user's language, in place of the last progress line.
    void showProgress(const std::string& line);
    /// The same, with @p format filled with the count of photos done and their total.
    void showProgress(std::string_view format, std::size_t done, std::size_t total);
    void endProgress();

    /// From now on Ctrl-C (and a request to terminate) is noted instead of ending the process, so that the
    /// photo being written is finished. Returns a file descriptor that can be read from then on.
    static int noteInterruptions();
    static bool isInterrupted();
    /// The exit status that the session's course calls for.
    int exitStatus() const;

private:
    bool showsProgress() const;

    std::unique_ptr<KTTrackManager> trackManager;
    bool failed = false;
    bool progressShown = false;
};
