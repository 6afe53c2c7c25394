#pragma once
#include "app/editor/KTEditorSelection.h"

/// One of the copyright statuses that a photo can have.
struct KTCopyrightStatus {
    std::string title; ///< in the user's language
    KTValue value;     ///< of the photo's property "marked"
};

/// Unknown, copyrighted, public domain.
std::vector<KTCopyrightStatus> KTCopyrightStatuses();
/// The place in that list of what the selected photos have; nothing where they differ, or none is selected.
std::optional<std::size_t> KTCopyrightStatusIndex(const KTSelectedValue& value);
