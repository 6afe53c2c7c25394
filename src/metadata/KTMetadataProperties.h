#pragma once

/// What is known of an image file's metadata blocks when it was read. Decides which block wins where several
/// hold the same fact, and which tags a change touches.
struct KTMetadataProperties {
    bool hasEXIFBlock = false;
    bool hasIPTCBlock = false;
    bool hasXMPBlock = false;
    bool hasIPTCChecksum = false;       ///< the file stores a digest of its IPTC data
    bool iptcChecksumDoesMatch = false; ///< and the digest is that of the IPTC data

    bool operator==(const KTMetadataProperties&) const = default;
};
