#pragma once
#include "photo/KTPhoto.h"

#include <map>
#include <set>

/// The simplest bookkeeping of what a collection under random work must hold: what each record shows, what a
/// fresh reading of each file shows, what can be undone, which track points there are.
class SoakModel {
public:
    using Path = std::filesystem::path;
    using Values = std::map<std::string, KTValue>; // by key; absent where there is none
    using Records = std::map<Path, Values>;        // of several photos
    struct TrackPoint {
        std::int64_t milliseconds; // since 1970
        double latitude, longitude;
    };

    /// The properties that are looked at.
    static const std::vector<std::string>& keys();
    static Values valuesOf(const KTPhoto& photo);
    /// Numbers within what files can hold of them, dates to the second.
    static bool isSame(const KTValue& left, const KTValue& right);
    static bool isSame(const Values& left, const Values& right);

    /// What was done, as one step to undo: each record's values before. Those that are the same now are no
    /// part of it.
    void note(const Records& before, const Records& after);
    /// The same of several edits: collects what each changed in a step, and notes it at the end.
    static void addChanges(Records& step, const Records& before, const Records& after);
    void noteStep(Records step, const Records& after);
    /// Takes back the last step, or does it again; false without one.
    bool undo() { return move(undoSteps, redoSteps); }
    bool redo() { return move(redoSteps, undoSteps); }
    void forget(const Path& file);

    /// Whether a loaded record shows other than its file holds, or than its image does that a save left
    /// behind; also that of a save which the image refused.
    bool mustBeSaved(const Path& file) const;

    /// The position that a photo of that instant gets under the default criteria: of the nearer track point,
    /// less than 300 s away; of two that are as near the earlier. Nothing where there is none.
    std::optional<std::pair<double, double>> positionAt(std::int64_t milliseconds) const;

    Records records; ///< of the loaded photos
    Records disk;    ///< of every file that was ever looked at
    Records behind;  ///< of images whose sidecar alone was written
    /// Images that refused a save whose sidecar was written: they lack its dates, whatever is edited.
    std::set<Path> refusedDates;
    std::map<std::int64_t, std::vector<TrackPoint>> tracks; ///< by identifier

private:
    using Steps = std::vector<Records>;
    bool move(Steps& from, Steps& to);

    Steps undoSteps, redoSteps;
};
