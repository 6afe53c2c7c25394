#include "platform/desktop/KTBackup.h"

#include "platform/desktop/KTItemReplacement.h"

#include <mutex>

KTBackup KTBackup::of(const std::filesystem::path& original, const std::filesystem::path& folder) {
    static std::mutex mutex; // photos of one name that are saved at a time must not choose one place
    std::lock_guard guard(mutex);
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
