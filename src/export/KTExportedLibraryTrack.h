#pragma once
#include "export/KTPrivacyZones.h"
#include "export/waymark/KTExportedTrack.h"
#include "platform/tracklibrary/KTTrackStore.h"

#include <memory>

/// A track of the library as plug-ins see it. Any thread.
class KTExportedLibraryTrack final : public KTExportedTrack {
public:
    /// @p library outlives the object. Points inside @p hidden are left out.
    KTExportedLibraryTrack(KTTrack listed, const KTTrackStore& library,
                           std::shared_ptr<const KTPrivacyZones> hidden)
        : track(std::move(listed)), store(library), zones(std::move(hidden)) {}

    std::string name() const override { return track.name; }
    std::vector<std::vector<KTExportedPoint>> segments() const override;

private:
    const KTTrack track;
    const KTTrackStore& store;
    const std::shared_ptr<const KTPrivacyZones> zones;
};
