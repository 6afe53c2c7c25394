#pragma once
#include <filesystem>
#include <vector>

/// A note, for as long as this object lives, that a file is being written. A process that is killed leaves
/// its notes behind, so that a later one can tell the user which files that were. Notes are files in one
/// folder, which only this user can read; without a folder none are made. A note that cannot be made keeps
/// nobody from writing. Any thread.
class KTWriteNote {
public:
    /// Where notes are kept; empty, as at first, for nowhere. To be called at the program's start.
    static void setFolder(const std::filesystem::path& folder);
    /// The user's own place for them: "$XDG_STATE_HOME/waymark/writing", "~/.local/state" where that is
    /// unset.
    static std::filesystem::path userFolder();

    explicit KTWriteNote(const std::filesystem::path& target);
    ~KTWriteNote();
    KTWriteNote(const KTWriteNote&) = delete;
    KTWriteNote& operator=(const KTWriteNote&) = delete;

    /// The files that processes were writing which have certainly ended meanwhile, each once and sorted. Each
    /// is told once: their notes are removed.
    static std::vector<std::filesystem::path> takeLeftBehind();

private:
    std::filesystem::path note;
};

/// The user's folder for what the program notes of its own runs: "$XDG_STATE_HOME/waymark".
std::filesystem::path KTStateFolder();
