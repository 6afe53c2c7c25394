#pragma once
#include <cstddef>
#include <filesystem>
#include <string>
#include <vector>

/// One call of the C library that concerned the watched folder.
struct FileCall {
    std::string name; ///< the library's name of it, without a "64"
    std::string file; ///< relative to the watched folder; ".waymark" for each ".waymark-XXXXXX"
    bool changes;     ///< changes something on disk, or finds out that a change did not arrive
};

/// What shall happen at one of these calls.
struct FaultPlan {
    enum Manner {
        Nothing,      ///< only watch
        FailOnce,     ///< it fails with `error`
        FailFromThen, ///< it and every later call that changes something (with ENOSPC: that takes space) fail
        WriteHalf,    ///< it writes half of what it is given, and every later call that takes space fails
        KillProcess,  ///< the process is killed before it
        RemoveTheFile, ///< another program removes `victim` before it
    };
    Manner manner = Nothing;
    std::size_t number = 0; ///< of the call, counted from 1 while watching
    int error = 0;
    std::filesystem::path victim = {};
};

/// Watches every file call below a folder during its life, whoever makes it (this program, the C++ library,
/// the interpreter and what it runs), and lets one of them fail as planned. One at a time.
class FaultWatch {
public:
    FaultWatch(const std::filesystem::path& folder, const FaultPlan& plan);
    ~FaultWatch();
    FaultWatch(const FaultWatch&) = delete;
    FaultWatch& operator=(const FaultWatch&) = delete;

    /// The calls so far.
    std::vector<FileCall> calls() const;
    /// Whether the plan's call came.
    bool didFire() const;
};
