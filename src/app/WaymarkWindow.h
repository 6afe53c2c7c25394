#pragma once
#include "app/WaymarkUserInterface.h"

#include <functional>
#include <optional>
#include <string_view>

class KTCopiedTags;

/// The parts of the main window that can be shown and hidden.
enum class WaymarkPane {
    MetadataView,              ///< the inspector
    ThumbnailView,             ///< the thumbnails beside the photo table
    MapView,                   ///< the map
    GeotaggingView,            ///< the geotagging console
    MetadataCustomizationView, ///< which fields the inspector has
    ViewOptions,               ///< what the photo table and the thumbnails show
};

/// The main window, as far as its controller needs it. Main thread. It follows the controller's
/// "isWindowVisible" and the visibility of its panes, and asks the user in sheets of its own.
class WaymarkWindow : public KTWindow, public KTPresenter {
public:
    /// What export plug-ins may attach windows to; null for none.
    virtual KTViewHandle viewHandle() = 0;
    /// Lets the user choose which of the copied values @p photoCount photos get. @p paste is called once with
    /// what was chosen; not at all when the user gives it up.
    virtual void chooseTagsToPaste(const KTCopiedTags& tags, std::size_t photoCount,
                                   std::function<void(const KTCopiedTags& chosen)> paste) = 0;
};
