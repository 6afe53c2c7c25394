#pragma once
#include "photo/KTPhoto.h"

/// What an import tells whoever began it, on the main thread. Each may be missing.
struct KTPhotoImportHandlers {
    /// How many files there are, and texts for users about paths that stand for none; before the first is
    /// read.
    std::function<void(std::size_t files, const std::vector<std::string>& problems)> didList = {};
    /// What became of one file, as it was given or found: the photo, null where there is none, not valid
    /// where it could not be read; and the log of its reading. In the order of the import, after the photo
    /// was added.
    std::function<void(const std::filesystem::path& file, const std::shared_ptr<KTPhoto>& photo,
                       const std::vector<KTPhotoOperation>& operations)>
        didRead = {};
    /// The last of all, also when the import was cancelled.
    std::function<void()> didEnd = {};
};
