#pragma once
#include "collection/KTPhotoManager.h"

class KTMetadataField;

/// The values of one photo, taken to be given to others: the user chooses which. Main thread.
class KTCopiedTags {
public:
    /// A value that can be pasted; a position is one, and so is the position shown.
    struct Row {
        const KTMetadataField* field = nullptr; ///< of the catalogue
        KTValue::Dictionary values = {};        ///< by key
        std::string text = {};                  ///< for display
        bool isChosen = false;                  ///< at first, what can be typed in the editor
    };

    /// What @p photo has, in the catalogue's order; what it lacks, and what nobody can edit, is not there.
    static KTCopiedTags fromPhoto(const KTPhoto& photo);

    const std::vector<Row>& rows() const { return copiedRows; }
    void setChosen(std::size_t row, bool isChosen) { copiedRows.at(row).isChosen = isChosen; }
    bool hasChosenRows() const;
    /// Gives the chosen values to @p photos as one undo step, "Paste Tags"; everything else of them stays. A
    /// capture date is given as the reading of the camera's clock.
    void pasteOnto(KTPhotoManager& collection, const KTPhotoManager::Snapshot& photos) const;

private:
    std::vector<Row> copiedRows;
};
