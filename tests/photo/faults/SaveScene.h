#pragma once
#include "tests/photo/PhotoFixture.h"
#include "tests/photo/faults/FaultPlan.h"

/// A folder with one photo whose caption is saved in a certain way, laid out anew for each round.
class SaveScene {
public:
    struct Way {
        int style = 0;             ///< of sidecars, by the setting's numbers
        bool hasSidecar = false;   ///< there is one already
        bool keepsBackups = false; ///< a copy of what is replaced goes into a folder
        bool setsDates = false;    ///< the creation date is edited too, the modification date preserved
    };
    /// What the files look like after a save.
    struct Outcome {
        bool isWhole; ///< each is byte for byte what it was (or not there), or new: whole, with the edit and
                      ///< all that it held besides; new only where the save writes to
        bool isSaved; ///< each that the save writes to is new
    };

    explicit SaveScene(const Way& way);

    /// Makes the folder what it was, with nothing of earlier rounds, and the settings those of this way.
    void layOut() const;
    TrackedPhoto openAndEdit() const;
    void save(TrackedPhoto& photo) const;
    /// Lays out, opens, edits and saves under no plan; the calls that the save made.
    std::vector<FileCall> callsOfSave() const;

    const std::filesystem::path& folder() const { return home; }
    const std::filesystem::path& imageFile() const { return originals[0].file; }
    const std::filesystem::path& sidecarFile() const { return originals[1].file; }
    bool writesImage() const { return originals[0].isTarget; }

    Outcome outcome() const;
    /// Whether the existing files that the save writes to kept permissions, attributes and, where it is asked
    /// for, the dates.
    bool keptRightsAndDates() const;
    /// Whether no copy in the backup folder is cut off.
    bool hasWholeBackups() const;
    /// The folders for new versions that are still there.
    std::vector<std::filesystem::path> foldersLeftBehind() const;

private:
    struct Original {
        std::filesystem::path file;
        std::string content; ///< empty where there is no file
        bool isTarget;
        KTMetadataSource::Kind kind;
    };
    bool isOld(const Original& original) const;
    bool isNew(const Original& original, const KTPhoto& photo) const;

    const Way way;
    TemporaryFolder temporary;
    const std::filesystem::path home;
    std::vector<Original> originals;
    bool hasAttributes = false;
};
