#pragma once
#include "platform/cartography/drawing/KTMapLayer.h"
#include "platform/cartography/drawing/tracks/KTTrackLine.h"

#include <QColor>
#include <map>

/// A track that a map shows.
struct KTMapTrack {
    std::int64_t id = 0; ///< of the track library; the track keeps its colour as long as it is shown
    std::string name;
    std::shared_ptr<const KTTrackLine> line; ///< never null
    QColor colour = {};                      ///< the user's choice; an invalid one leaves it to the map
};

/// The tracks on the map. Main thread.
class KTTrackLayer final : public KTMapLayer {
public:
    /// What lies under the pointer.
    struct Hit {
        KTMapTrack track;
        KTMapPoint position;
        std::optional<KTInstant> instant; ///< when the track was there; nothing where the file has no dates
        bool isInGap = false;             ///< nothing was recorded there: the instant is one between
    };

    KTTrackLayer() : KTMapLayer(Place::Tracks) {}
    ~KTTrackLayer() override;

    /// From below.
    void setTracks(std::vector<KTMapTrack> newTracks);
    const std::vector<KTMapTrack>& tracks() const { return shown; }
    /// The colour in which a shown track is drawn; for legends and lists.
    QColor colourOfTrack(std::int64_t id, bool isDark) const;

    /// The place of a track nearest to @p point of the view, within @p radius logical pixels.
    std::optional<Hit> hitTest(KTViewPoint point, const KTMapViewState& state, double radius = 8) const;
    std::shared_ptr<const KTMapDrawing> drawing(const KTMapViewState& state) override;

private:
    std::vector<KTMapTrack> shown;
    std::map<std::int64_t, std::size_t> colours; // numbers in the table of colours, by track
    std::shared_ptr<const KTMapDrawing> current; // null when there is none or it is out of date
};
