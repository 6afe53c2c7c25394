#pragma once
#include "collection/KTBatchOperationController.h"
#include "geotagging/KTGeotagger.h"
#include "metadata/KTExifToolLease.h"
#include "platform/undo/KTUndoManager.h"
#include "tests/soak/SoakModel.h"
#include "tests/support/TestSupport.h"

#include <random>
#include <set>

/// A collection, its tracks and its geotagger under random work on files that may be harmed, compared with
/// the model after every step. All choices follow from the seed, but for what several threads make of them:
/// how far a save or an import had come when it was stopped or met an edit.
class Soak {
public:
    using Path = std::filesystem::path;

    /// @p files are photos below @p folder, copies; their sidecars lie beside them.
    Soak(std::uint64_t seed, std::vector<Path> files, int sidecarStyle);
    ~Soak();

    /// Does something at random, and looks at everything afterwards.
    void step();
    /// Opens every file anew, and compares it with what it must hold.
    void checkFiles();
    /// What was done lately, and what went wrong first; empty while nothing did.
    std::string problem() const;
    std::string summary() const;

private:
    using Photo = KTPhotoManager::Photo;
    using Photos = KTPhotoManager::Photos;
    struct Action {
        const char* name;
        int weight;
        void (Soak::*run)();
    };
    static const std::vector<Action>& actions();

    // Actions (SoakActions.cpp)
    void import();
    void removePhotos();
    void edit();
    void shiftDate();
    void undo();
    void redo();
    void save();
    void geotag();
    void importTrack();
    void deleteTrack();
    void changeZone();

    // Checks (Soak.cpp)
    void require(bool isRight, const std::string& text);
    void checkRecords();
    void checkStamps(const std::set<Path>& mayChange);
    void checkSaved(const Photos& saved, const SoakModel::Records& before);
    std::string changesSince(const SoakModel::Records& before) const;
    static std::string pendingOf(const KTPhoto& photo);
    bool isInImage(const Path& file, const KTValue& value);
    SoakModel::Values readImageAlone(const Path& file);
    static bool lastWriteFailed(const KTPhoto& photo, const Path& file);
    void noteImageBehind(const Photo& photo, const SoakModel::Values& disk);
    SoakModel::Values readAnew(const Path& file);
    std::vector<std::optional<KTFileStamp>> stampsOf(const Path& file) const;

    std::size_t number(std::size_t below); ///< below @p below, which is not 0
    std::string word();
    Photo anyPhoto();
    Photos somePhotos();
    /// Edits one property of @p photo as a user would.
    void editOneProperty(const Photo& photo);
    std::size_t expectedSuccesses(const Photos& selected,
                                  std::map<const KTPhoto*, std::pair<double, double>>& positions) const;
    SoakModel::Records shown() const;
    void waitUntil(const std::function<bool()>& isDone);
    void noteSeen();

    std::mt19937_64 random;
    std::size_t words = 0;
    std::vector<Path> files;
    SoakModel model;
    std::map<Path, std::vector<std::optional<KTFileStamp>>> stamps;
    std::map<Path, std::vector<SoakModel::Values>> seen; ///< what records showed since the save began
    std::vector<std::string> lately;
    std::string failure;
    std::map<std::string, std::size_t> done;

    TemporaryFolder trackFiles;
    std::shared_ptr<KTSerialQueue> queue =
        std::make_shared<KTSerialQueue>("com.Brightfold.UndoQueue", KTSerialQueue::Kind::Announcing);
    std::shared_ptr<KTUndoManager> undoManager = std::make_shared<KTUndoManager>(queue);
    KTBatchOperationController batches{undoManager};
    KTTrackManager tracks;
    KTPhotoManager manager;
    KTPhotoController controller{manager};
    KTGeotagger geotagger{controller, {&tracks}, batches};
    KTExifToolLease reader; ///< for fresh readings
};
