#pragma once
#include "photo/KTPhoto.h"

#include <unordered_map>
#include <unordered_set>

/// Follows photos and gathers which of them announced anything, on any thread; tells so on the main thread at
/// most once a few hundredths of a second. Made and used on the main thread.
class PhotoChangeCollector {
public:
    using Photos = std::vector<std::shared_ptr<KTPhoto>>;
    using Edited = std::unordered_set<const KTPhoto*>;

    /// @p whenEdited runs on the main thread, in its event loop; it takes what was gathered.
    explicit PhotoChangeCollector(std::function<void()> whenEdited);
    ~PhotoChangeCollector();

    /// Follows exactly these.
    void follow(const Photos& photos);
    /// The photos that announced something since the last call.
    Edited takeEdited();

private:
    struct Gathered;
    static void note(const std::shared_ptr<Gathered>& into, const KTPhoto* photo);

    const std::shared_ptr<Gathered> gathered;
    std::unordered_map<const KTPhoto*, KTObservable::Observation> observations;
};
