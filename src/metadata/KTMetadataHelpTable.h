#pragma once
#include <array>
#include <span>
#include <string_view>

/// What the help text of one field is made of; English.
struct KTMetadataHelpRow {
    std::string_view key;
    std::string_view description;
    std::array<std::string_view, 3> examples; ///< as the program shows the value; the unused ones empty
    /// The tags by block, in the order EXIF, IPTC, XMP, others. XMP copies of EXIF tags are left out. Empty
    /// for fields that no tag holds.
    std::string_view source = {};
    std::string_view note = {};
};

/// The rows in catalogue order: the groups Camera, Digitization Attributes, Document and GPS.
std::span<const KTMetadataHelpRow> KTMetadataHelpRowsOfCapture();
/// The groups Location Created and Location Shown.
std::span<const KTMetadataHelpRow> KTMetadataHelpRowsOfPlaces();
/// The groups from Newscodes to Rights.
std::span<const KTMetadataHelpRow> KTMetadataHelpRowsOfDescription();
