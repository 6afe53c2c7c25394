#pragma once
#include "photo/KTPhoto.h"

#include <condition_variable>
#include <thread>

/// Reads photos on threads of its own, each with an interpreter of its own, a few ahead of the one that is
/// asked for, and hands them out strictly in the order of their files. For reading only: a photo that is
/// handed out may have been read before an earlier one was dealt with. One thread asks.
class KTPhotoReadAhead {
public:
    /// @p threads 0 takes as many as are useful.
    explicit KTPhotoReadAhead(std::vector<std::filesystem::path> photoFiles, unsigned threads = 0);
    /// Waits for the photos that are being read; no further one is begun.
    ~KTPhotoReadAhead();
    KTPhotoReadAhead(const KTPhotoReadAhead&) = delete;
    KTPhotoReadAhead& operator=(const KTPhotoReadAhead&) = delete;

    struct Result {
        std::shared_ptr<KTPhoto> photo;        ///< as KTPhoto::initWithFile gives it
        std::vector<KTPhotoOperation> failure; ///< why there is no photo
    };
    /// The next file's. Not after the last one.
    Result next();

private:
    void readPhotos(bool withSharedTool);

    const std::vector<std::filesystem::path> files;
    std::mutex mutex;
    std::condition_variable changed;
    std::map<std::size_t, Result> finished;
    std::size_t begun = 0;     // files that a thread has taken
    std::size_t handedOut = 0; // photos that next() has given
    bool stopping = false;
    std::vector<std::jthread> readers; // last, so that they end before what they use
};
