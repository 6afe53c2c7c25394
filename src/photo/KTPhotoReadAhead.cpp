#include "photo/KTPhotoReadAhead.h"

namespace {

constexpr std::size_t kFilesThatRepayAnInterpreter = 16;
constexpr std::size_t kLead = 16; // photos that may wait to be asked for

unsigned threadsFor(std::size_t files, unsigned wanted) {
    if (wanted != 0)
        return wanted;
    const std::size_t useful = 1 + files / kFilesThatRepayAnInterpreter;
    return static_cast<unsigned>(std::clamp<std::size_t>(std::thread::hardware_concurrency(), 1, useful));
}

} // namespace

KTPhotoReadAhead::KTPhotoReadAhead(std::vector<std::filesystem::path> photoFiles, unsigned threads)
    : files(std::move(photoFiles)) {
    for (unsigned i = 0; i < threadsFor(files.size(), threads); ++i)
        readers.emplace_back([this, i] { readPhotos(i == 0); });
}

KTPhotoReadAhead::~KTPhotoReadAhead() {
    std::lock_guard guard(mutex);
    stopping = true;
    changed.notify_all();
}

void KTPhotoReadAhead::readPhotos(bool withSharedTool) {
    std::unique_ptr<KTExifTool> own = withSharedTool ? nullptr : std::make_unique<KTExifTool>();
    KTExifTool& tool = withSharedTool ? KTExifTool::sharedExifTool() : *own;
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
