#include "photo/KTPhotoSaveStep.h"

namespace {

constexpr std::size_t kFilesThatRepayAnInterpreter = 16; // it proves half of what is to be done for each

} // namespace

std::vector<std::shared_ptr<KTOperation>> KTPhotoSaveStep::stepsForPhotos(const Photos& photos,
                                                                          const BackupFolder& backupFolder) {
    const auto proof = std::make_shared<ProofBridge>();
    proof->isWorthwhile = KTExifToolLease::usefulBridges(photos.size(), kFilesThatRepayAnInterpreter) > 1;
    std::vector<std::shared_ptr<KTOperation>> steps;
    std::shared_ptr<Progress> previous;
    for (const auto& photo : photos) {
        const std::shared_ptr<KTPhotoSaveStep> step(new KTPhotoSaveStep);
        step->photo = photo;
        step->backupFolder = backupFolder;
        step->proof = proof;
        step->previous = std::exchange(previous, step->progress);
        steps.push_back(step);
    }
    return steps;
}

KTPhotoSaveStep::~KTPhotoSaveStep() {
    signalAll();
}

void KTPhotoSaveStep::signalAll() {
    for (KTLatch* latch : {&progress->didWrite, &progress->didProve, &progress->didEnd})
        latch->signal();
}

void KTPhotoSaveStep::main() {
    const auto waitFor = [this](KTLatch Progress::*what) {
        if (previous)
            (previous.get()->*what).wait();
    };
    waitFor(&Progress::didWrite);
    if (isCancelled())
        return signalAll();
    photo->saveWithBackupToFolder(backupFolder, {.proofTool = [this] { return proof->tool(); },
                                                 .didWrite =
                                                     [&] {
                                                         progress->didWrite.signal();
                                                         waitFor(&Progress::didProve);
                                                     },
                                                 .didProve = [&] { progress->didProve.signal(); }});
    waitFor(&Progress::didEnd);
    previous = nullptr;
    signalAll();
}

KTExifTool* KTPhotoSaveStep::ProofBridge::tool() {
    if (!isWorthwhile)
        return nullptr;
    std::call_once(isMade, [this] { lease.emplace(); });
    return &**lease;
}
