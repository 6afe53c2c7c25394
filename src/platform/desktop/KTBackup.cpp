#include "platform/desktop/KTBackup.h"

#include "platform/desktop/KTItemReplacement.h"

KTBackup KTBackup::of(const std::filesystem::path& original, const std::filesystem::path& folder) {
    const std::filesystem::path copy = folder / KTBackupName(folder, original.filename());
    const KTItemReplacement place(copy);
    if (place.error())
        return {{}, place.error()};
    auto failure = KTCopyItem(original, place.temporaryItem());
    if (!failure)
        failure = KTReplaceItem(copy, place.temporaryItem(), [&copy] {
            std::error_code error;
            return !std::filesystem::exists(std::filesystem::symlink_status(copy, error));
        });
    return failure ? KTBackup{{}, failure} : KTBackup{copy, std::nullopt};
}
