#include "app/thumbnails/KTThumbnailService.h"

#include "app/thumbnails/ThumbnailDecoder.h"
#include "platform/common/KTLocalizedString.h"
#include "platform/concurrency/KTMainThread.h"
#include "platform/concurrency/KTThreadHeap.h"
#include "platform/pictures/PictureTurn.h"

namespace {

constexpr std::size_t kPicturesPerReturn = 12; // of the memory that decoding took

} // namespace

KTThumbnailService::KTThumbnailService(ThumbnailFileCache sharedCache, Limits chosenLimits)
    : cache(std::move(sharedCache)), limits(chosenLimits), self(std::make_shared<KTThumbnailService*>(this)) {
}

KTThumbnailService::~KTThumbnailService() {
    *self = nullptr;
    {
        std::lock_guard guard(mutex);
        isStopping = true;
        changed.notify_all();
    }
    for (std::thread& thread : threads)
        thread.join();
}

KTThumbnailService::Thumbnail KTThumbnailService::thumbnail(const std::filesystem::path& file, int edge) {
    std::lock_guard guard(mutex);
    if (const auto problem = problems.find(file.native()); problem != problems.end())
        return {{}, problem->second};
    const ThumbnailSize wanted = thumbnailSizeForEdge(edge);
    auto look = [&](ThumbnailSize size) -> QImage {
        const auto place = places.find(Key{file.native(), size});
        if (place == places.end())
            return {};
        kept.splice(kept.begin(), kept, place->second);
        return place->second->image;
    };
    QImage image = look(wanted);
    for (auto size = std::rbegin(kThumbnailSizes); image.isNull() && size != std::rend(kThumbnailSizes);
         ++size)
        image = look(*size);
    return {image, {}};
}

void KTThumbnailService::setWishes(const void* client, std::vector<Wish> wishes) {
    std::vector<Key> keys;
    keys.reserve(wishes.size());
    for (const Wish& wish : wishes)
        keys.push_back({wish.file.native(), thumbnailSizeForEdge(wish.edge)});
    {
        std::lock_guard guard(mutex);
        std::erase_if(wishesOfClients, [&](const auto& entry) { return entry.first == client; });
        if (!keys.empty())
            wishesOfClients.emplace(wishesOfClients.begin(), client, std::move(keys));
        planWork();
        changed.notify_all();
    }
    if (!wishes.empty())
        startThreads();
}

void KTThumbnailService::forget(const std::filesystem::path& file) {
    std::lock_guard guard(mutex);
    problems.erase(file.native());
    for (const ThumbnailSize size : kThumbnailSizes)
        if (const auto place = places.find(Key{file.native(), size}); place != places.end()) {
            bytes -= std::size_t(place->second->image.sizeInBytes());
            kept.erase(place->second);
            places.erase(place);
        }
    planWork();
    changed.notify_all();
}

std::size_t KTThumbnailService::bytesInMemory() const {
    std::lock_guard guard(mutex);
    return bytes;
}

std::size_t KTThumbnailService::picturesMade() const {
    std::lock_guard guard(mutex);
    return made;
}

/// What the clients want, each file once; the client that spoke last comes first.
void KTThumbnailService::planWork() {
    plan.clear();
    std::unordered_set<Key, KeyHash> planned;
    for (const auto& [client, keys] : wishesOfClients)
        for (const Key& key : keys)
            if (!isDone(key) && planned.insert(key).second)
                plan.push_back(key);
}

bool KTThumbnailService::isDone(const Key& key) const {
    return places.contains(key) || underWay.contains(key) || problems.contains(key.file);
}

void KTThumbnailService::keep(const Key& key, QImage image) {
    bytes += std::size_t(image.sizeInBytes());
    kept.push_front({key, std::move(image)});
    places[key] = kept.begin();
    dropExcess();
}

/// The picture that was made last stays, however large.
void KTThumbnailService::dropExcess() {
    while (bytes > limits.memory && kept.size() > 1) {
        bytes -= std::size_t(kept.back().image.sizeInBytes());
        places.erase(kept.back().key);
        kept.pop_back();
    }
}

/// Threads begin with the first wish, so that a start of the program does not pay for them.
void KTThumbnailService::startThreads() {
    while (threads.size() < limits.threads)
        threads.emplace_back([this] { work(); });
}

void KTThumbnailService::work() {
    std::unique_lock lock(mutex);
    for (;;) {
        changed.wait(lock, [this] { return isStopping || !plan.empty(); });
        if (isStopping)
            return;
        const Key key = plan.front();
        plan.pop_front();
        if (isDone(key))
            continue;
        underWay.insert(key);
        lock.unlock();
        DecodedPicture picture = make(key);
        lock.lock();
        underWay.erase(key);
        ++made;
        if (picture.image.isNull())
            problems[key.file] = picture.problem;
        else
            keep(key, std::move(picture.image));
        announceSoon();
        if (plan.empty() && made - madeAtLastReturn >= kPicturesPerReturn) {
            madeAtLastReturn = made;
            lock.unlock();
            KTReturnFreeMemory(); // decoding takes much for a short time
            lock.lock();
        }
    }
}

DecodedPicture KTThumbnailService::make(const Key& key) const {
    DecodedPicture result = makeWithoutSidecar(key);
    if (!result.image.isNull())
        result.image = turnedByFlip(result.image, pictureTurnBeyondDecoding(key.file));
    return result;
}

/// The shared cache belongs to all programs, and its pictures are those of the file alone.
DecodedPicture KTThumbnailService::makeWithoutSidecar(const Key& key) const {
    if (const QImage shared = cache.load(key.file, key.size); !shared.isNull())
        return {shared.convertToFormat(QImage::Format_ARGB32_Premultiplied), {}};
    if (cache.hasFailed(key.file))
        return {{}, KTLocalizedString("This file could not be shown before and has not changed since.")};
    DecodedPicture result = decodeThumbnail(key.file, key.size);
    if (result.image.isNull()) {
        if (result.problem.empty())
            result.problem = KTLocalizedString("The file holds no picture that can be shown.");
        cache.noteFailure(key.file);
        return result;
    }
    cache.store(key.file, key.size, result.image);
    result.image.convertTo(QImage::Format_ARGB32_Premultiplied); // draws fastest
    return result;
}

void KTThumbnailService::announceSoon() {
    if (std::exchange(isAnnouncementDue, true))
        return;
    KTPerformOnMainThread([service = self] {
        if (KTThumbnailService* const here = *service) {
            {
                std::lock_guard guard(here->mutex);
                here->isAnnouncementDue = false;
            }
            here->willChange("thumbnails");
            here->didChange("thumbnails");
        }
    });
}
