#pragma once
#include "export/waymark/KTExportedTrack.h"
#include "platform/tracklibrary/KTTrackStore.h"

/// A track of the library as plug-ins see it. Any thread.
class KTExportedLibraryTrack final : public KTExportedTrack {
public:
    /// @p library outlives the object.
    KTExportedLibraryTrack(KTTrack listed, const KTTrackStore& library)
        : track(std::move(listed)), store(library) {}

    std::string name() const override { return track.name; }
    std::vector<std::vector<KTExportedPoint>> segments() const override;

private:
    const KTTrack track;
    const KTTrackStore& store;
};
