#include "photo/KTPhotoReadAhead.h"

#include "metadata/KTExifToolLease.h"
#include "platform/concurrency/KTThreadHeap.h"

namespace {

constexpr std::size_t kLead = 32; // photos that may wait to be asked for
/// To load one takes as long as to read some forty photos, which the first one reads meanwhile.
constexpr std::size_t kFilesThatRepayAnInterpreter = 100;
constexpr std::size_t kMemoryOfAnInterpreter = std::size_t(48) << 20;

} // namespace

KTPhotoReadAhead::KTPhotoReadAhead(std::vector<std::filesystem::path> photoFiles, unsigned threads)
    : files(std::move(photoFiles)) {
    const unsigned count =
        threads != 0 ? threads : KTExifToolLease::usefulBridges(files.size(), kFilesThatRepayAnInterpreter);
    for (unsigned i = 0; i < count; ++i)
        readers.emplace_back([this, i] { readPhotos(i == 0); });
}

KTPhotoReadAhead::~KTPhotoReadAhead() {
    std::lock_guard guard(mutex);
    stopping = true;
    changed.notify_all();
}

void KTPhotoReadAhead::readPhotos(bool withSharedTool) {
    KTReserveThreadHeap(kMemoryOfAnInterpreter);
    std::optional<KTExifToolLease> own;
    if (!withSharedTool)
        own.emplace();
    KTExifTool& tool = own ? **own : KTExifTool::sharedExifTool();
    std::unique_lock lock(mutex);
    for (;;) {
        changed.wait(lock, [this] { return stopping || begun == files.size() || begun < handedOut + kLead; });
        if (stopping || begun == files.size())
            return;
        const std::size_t index = begun++;
        lock.unlock();
        Result result;
        result.photo =
            KTPhoto::initWithFile(files[index], {}, nullptr, {.exifTool = &tool, .log = &result.failure});
        lock.lock();
        finished.emplace(index, std::move(result));
        changed.notify_all();
    }
}

KTPhotoReadAhead::Result KTPhotoReadAhead::next() {
    std::unique_lock lock(mutex);
    changed.wait(lock, [this] { return finished.contains(handedOut); });
    Result result = std::move(finished.extract(handedOut).mapped());
    ++handedOut;
    changed.notify_all();
    return result;
}
