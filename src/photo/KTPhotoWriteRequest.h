#pragma once
#include "photo/KTPhoto.h"

/// One file's write as a save decides on it.
struct KTPhoto::WriteRequest {
    KTMetadataSource::Kind kind;
    std::filesystem::path target;        ///< the file to replace or to make
    std::filesystem::path contentFrom;   ///< the file whose content the new version begins with
    KTTagDictionary changes;             ///< what was pending
    KTTagDictionary written;             ///< what is handed to the bridge: more than the changes, or adapted
    std::optional<KTFileStamp> expected; ///< the target as the changes were made for it; nothing where none
    std::optional<std::string> warning;  ///< what the user should know of this write
    std::optional<std::filesystem::path> backupFolder;
    const KTPhotoSaving* saving = nullptr; ///< that of the save; set before it is carried out
};
