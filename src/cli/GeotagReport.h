#pragma once
#include "cli/CommandSession.h"
#include "cli/JSONOutput.h"
#include "geotagging/KTGeotaggingComputation.h"
#include "geotagging/KTGeotaggingSummary.h"

/// One file of the import, as it was given or found.
struct GeotagFile {
    std::filesystem::path path;
    KTPhotoManager::Photo photo;              ///< null or not valid where it could not be read
    std::vector<KTPhotoOperation> operations; ///< the log of its reading
};

/// What became of one photo.
struct GeotagOutcome {
    const GeotagFile* file = nullptr;
    const KTGeotaggingFate* fate = nullptr; ///< null for a file that could not be read
    bool isToBeSaved = false;               ///< its changes were pending when the saves began
    std::size_t operationsBefore = 0;       ///< in its log at that time

    /// "geotagged", "alreadyGeotagged", "noTimeStamp", "timeCriteria", "distanceCriteria", "timeAndDistance",
    /// "noPoint" or "unreadable".
    std::string_view name() const;
    /// The point that the photo gets; null for none.
    std::shared_ptr<KTLinkablePoint> point() const;
    /// "preceding", "next" or "timeWeighted"; absent without a point.
    KTValue pointName() const;
    bool isSaved() const { return !fate->photo->hasUnsavedChanges(); }
    /// Of a photo that was to be saved, after the saves: whether its turn came.
    bool wasSavingTried() const;
    std::vector<KTPhotoOperation> operations() const;
};

/// Prints the outcomes, as text or JSON, in the order of the import and as they come about, and the summary
/// at the end.
class GeotagReport {
public:
    GeotagReport(CommandSession& commandSession, bool isDryRun);
    /// Before the saves. @p computation tells of every photo of @p files; both must outlive the report.
    void begin(const std::vector<GeotagFile>& files, const KTGeotaggingComputation& computation);
    /// Prints the outcomes up to that of the photo whose save comes after the first @p saves.
    void printUntilSave(std::uint64_t saves);
    /// Prints the rest. After Ctrl-C, photos that should have been written and whose turn never came are left
    /// out.
    void finish();

private:
    bool wasLeftOut(const GeotagOutcome& outcome) const;
    void print(const GeotagOutcome& outcome);
    void printMessages(const GeotagOutcome& outcome) const;
    void printJSON(const GeotagOutcome& outcome);
    void printText(const GeotagOutcome& outcome) const;
    void printJSONSummary(const KTGeotaggingSummary& summary);
    void printTextSummary(const KTGeotaggingSummary& summary) const;

    CommandSession& session;
    const bool dryRun;
    const KTGeotaggingComputation* computed = nullptr;
    std::vector<GeotagOutcome> outcomes;
    std::size_t printed = 0;        // of the outcomes
    std::uint64_t printedSaves = 0; // of those, photos that were to be saved
    std::optional<JSONOutput> json;
    std::size_t unreadable = 0, unsaved = 0;
};
