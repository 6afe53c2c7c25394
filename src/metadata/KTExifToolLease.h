#pragma once
#include "metadata/KTExifTool.h"

/// A bridge beside the shared one, with an interpreter of its own, for one thread's use over some time: what
/// reads ahead, or proves what was written. Bridges that are given back are kept to the end of the process,
/// because each has loaded what it takes some tenths of a second to load.
class KTExifToolLease {
public:
    /// Takes one that was given back, or makes one. Any thread.
    KTExifToolLease();
    ~KTExifToolLease();
    KTExifToolLease(const KTExifToolLease&) = delete;
    KTExifToolLease& operator=(const KTExifToolLease&) = delete;

    KTExifTool& operator*() const { return *tool; }

    /// How many bridges, the shared one included, are worth having for work on @p files, of which
    /// @p repayingOne repay the making and the memory of one: one a core, four at most.
    static unsigned usefulBridges(std::size_t files, std::size_t repayingOne);

private:
    std::unique_ptr<KTExifTool> tool;
};
