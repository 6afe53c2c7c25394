#pragma once
#include "export/KTLocationTraces.h"

#include <QSize>

class KTPhoto;

/// The tags that an exported file of a photo is to have. A value type.
class KTExportedTags {
public:
    /// What @p photo's image file holds, with the values that the record shows: edits that are not saved, and
    /// those of the sidecar.
    explicit KTExportedTags(const KTPhoto& photo);

    const KTTagDictionary& saved() const { return savedTags; }       ///< of the image file
    const KTTagDictionary& differences() const { return differing; } ///< of what is shown from it
    /// The names of places that the record shows.
    const std::vector<std::string>& placeNames() const { return places; }
    /// All, of those that may be put into another file. Tags of a file's own structure are not among them,
    /// nor are those that no bridge carries (previews).
    KTTagDictionary all(KTExifTool& tool) const;
    /// The same for a picture of @p size that stands upright.
    KTTagDictionary allForPicture(const QSize& size, KTExifTool& tool) const;

private:
    KTTagDictionary savedTags, differing;
    std::vector<std::string> places;
};
