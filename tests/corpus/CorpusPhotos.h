#pragma once
#include "tests/support/TestSupport.h"

#include <vector>

/// The photos of the corpus, copied into a folder of their own, each with its sidecar if it has one. A
/// sidecar that belongs to no photo is put beside one more copy of one of the JPEG files.
class CorpusPhotos {
public:
    /// The folder of photos that the environment variable WAYMARK_CORPUS names; empty when there is none.
    static std::filesystem::path source();

    CorpusPhotos();

    const std::filesystem::path& folder() const { return copies.path(); }
    const std::vector<std::filesystem::path>& photos() const { return files; }

private:
    void add(const std::filesystem::path& photo, const std::filesystem::path& sidecar);

    TemporaryFolder copies;
    std::vector<std::filesystem::path> files;
};

/// "IMG_1.jpg" of the copy "1042-IMG_1.jpg".
std::string nameInCorpus(const std::filesystem::path& copy);
