#pragma once
#include <atomic>
#include <fcntl.h>
#include <string>

/// The file that a call is about, told as the call tells it.
struct FilePlace {
    FilePlace(int file) : descriptor(file) {}
    FilePlace(const char* path) : name(path) {}
    FilePlace(int folder, const char* path) : descriptor(folder), name(path) {}
    std::string path() const;

    int descriptor = AT_FDCWD;
    const char* name = "";
};

/// What becomes of one call: it fails with `error`, or does half of its work, or is left alone.
struct FaultDecision {
    int error = 0;
    bool half = false;
};

/// Enters the call into the list of the watch and decides by its plan. errno stays as it is.
FaultDecision decideOn(const char* call, const FilePlace& place, bool changes);

/// True while there is a watch; false before anything of this program has run.
extern constinit std::atomic<bool> isWatchingFiles;
