#pragma once
#include <functional>

class KTExifTool;

/// How a save works beside those of other photos.
struct KTPhotoSaving {
    /// Gives the bridge that reads new files back, null for the shared one, which writes them; empty for the
    /// same.
    std::function<KTExifTool*()> proofTool;
    /// Called whenever a new file is written and about to be proved, and when it is proved and about to be
    /// brought to disk.
    std::function<void()> didWrite, didProve;
};
