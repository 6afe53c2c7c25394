#pragma once
#include "app/thumbnails/ThumbnailFileCache.h"
#include "platform/observing/KTObservable.h"
#include "platform/pictures/RawPicture.h"

#include <condition_variable>
#include <list>
#include <memory>
#include <thread>
#include <unordered_map>
#include <unordered_set>

/// Pictures of files for views, made by a few threads and kept in memory within bounds. A view says which
/// files it shows, the nearest first, each time that changes; what nobody wants any more is not made. Asking
/// for a thumbnail never touches the disk. A file that cannot be shown is not tried again.
///
/// Announces "thumbnails" on the main thread, at most once a turn of its event loop, when there are more
/// thumbnails. For the main thread.
class KTThumbnailService : public KTObservable {
public:
    struct Wish {
        std::filesystem::path file;
        int edge = 0; ///< pixels that the longer edge has to fill
        bool operator==(const Wish&) const = default;
    };
    struct Thumbnail {
        QImage image;        ///< null while there is none
        std::string problem; ///< why there will be none, in the user's language
    };
    struct Limits {
        std::size_t memory = 96u << 20; ///< bytes of the pictures kept
        unsigned threads = 2;
    };

    explicit KTThumbnailService(ThumbnailFileCache sharedCache = ThumbnailFileCache())
        : KTThumbnailService(std::move(sharedCache), Limits{}) {}
    KTThumbnailService(ThumbnailFileCache sharedCache, Limits chosenLimits);
    /// Waits for the pictures being made, and for nothing else.
    ~KTThumbnailService() override;

    /// What is there now: the picture of that size, or of another one until it comes.
    Thumbnail thumbnail(const std::filesystem::path& file, int edge);
    /// Replaces what @p client, any address, wanted before. None to end it.
    void setWishes(const void* client, std::vector<Wish> wishes);
    /// Makes it anew when it is next wanted.
    void forget(const std::filesystem::path& file);

    std::size_t bytesInMemory() const;
    /// Pictures made from photos and read from the shared cache since the beginning.
    std::size_t picturesMade() const;

private:
    struct Key {
        std::string file;
        ThumbnailSize size;
        bool operator==(const Key&) const = default;
    };
    struct KeyHash {
        std::size_t operator()(const Key& key) const {
            return std::hash<std::string>()(key.file) * 31 + std::size_t(key.size);
        }
    };
    struct Kept {
        Key key;
        QImage image;
    };
    using KeptList = std::list<Kept>; // most recently used first

    // The mutex must be held.
    void planWork();
    bool isDone(const Key& key) const;
    void keep(const Key& key, QImage image);
    void dropExcess();

    void startThreads();
    void work();
    DecodedPicture make(const Key& key) const;
    DecodedPicture makeWithoutSidecar(const Key& key) const;
    void announceSoon();

    const ThumbnailFileCache cache;
    const Limits limits;

    mutable std::mutex mutex;
    std::condition_variable changed;
    std::vector<std::pair<const void*, std::vector<Key>>> wishesOfClients;
    std::list<Key> plan; // what is to be made, in order
    std::unordered_set<Key, KeyHash> underWay;
    KeptList kept;
    std::unordered_map<Key, KeptList::iterator, KeyHash> places;
    std::unordered_map<std::string, std::string> problems; // by file
    std::size_t bytes = 0, made = 0, madeAtLastReturn = 0;
    bool isStopping = false;
    bool isAnnouncementDue = false;

    const std::shared_ptr<KTThumbnailService*> self; // for what is posted
    std::vector<std::thread> threads;
};
