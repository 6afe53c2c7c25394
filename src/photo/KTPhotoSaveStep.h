#pragma once
#include "metadata/KTExifToolLease.h"
#include "photo/KTPhoto.h"
#include "platform/concurrency/KTOperation.h"

/// One photo's save in a batch of them. Saves overlap: while the new files of one photo are proved, by a
/// bridge of their own, those of the next are written, and those of the ones before are brought to disk,
/// which mostly is waiting. They write, prove and end in the order of the batch. Saves are to be begun in
/// that order; one that is dropped or cancelled keeps nobody waiting. For a KTOperationQueue of width
/// kOverlapping.
class KTPhotoSaveStep : public KTOperation {
public:
    using Photos = std::vector<std::shared_ptr<KTPhoto>>;
    using BackupFolder = std::optional<std::filesystem::path>;
    /// How many saves of a batch may be under way at a time.
    static constexpr std::size_t kOverlapping = 8;

    /// The saves of @p photos.
    static std::vector<std::shared_ptr<KTOperation>> stepsForPhotos(const Photos& photos,
                                                                    const BackupFolder& backupFolder);
    ~KTPhotoSaveStep() override;

protected:
    /// Does nothing when it is cancelled before its turn to write has come.
    void main() override;

private:
    struct Progress {
        KTLatch didWrite, didProve, didEnd;
    };
    /// Made when the first proof is due.
    struct ProofBridge {
        std::once_flag isMade;
        std::optional<KTExifToolLease> lease;
        bool isWorthwhile = false;
        KTExifTool* tool();
    };

    KTPhotoSaveStep() = default;
    void signalAll();

    std::shared_ptr<KTPhoto> photo;
    BackupFolder backupFolder;
    std::shared_ptr<ProofBridge> proof;
    std::shared_ptr<Progress> previous; // null for the first
    const std::shared_ptr<Progress> progress = std::make_shared<Progress>();
};
