#pragma once
#include <cstdint>
#include <string>

/// An export in the history: one that runs, or ended at some time. Main thread.
struct KTPhotoExportOperation {
    // Kept
    std::int64_t id = 0;                ///< in the store; 0 where that could not be opened
    std::string name = {};              ///< of the plug-in
    std::string icon = {};              ///< the bytes of an image file; empty for none
    std::string destinationURL = {};    ///< empty as long as there is none
    std::string resultDescription = {}; ///< what was done; empty until then

    // Of one that runs
    bool inProgress = false;
    bool indeterminateProgress = false;
    std::string progressDescription = {};
    std::uint64_t currentValue = 0, totalValue = 0;
};
