// Imports copies of the photos of a folder, 200 and 2,000 of them, each time in a process of its own; sorts
// them, edits each as one undo step, undoes and redoes that, and saves them in one batch, with all
// controllers of the collection looking on. Prints each step's processor time a photo, the ratio of the two,
// and the memory a photo. Usage: CollectionBenchmark FOLDER [SMALLER LARGER]
#include "collection/KTBatchOperationController.h"
#include "collection/KTPhotoController.h"
#include "collection/KTPhotoFileList.h"
#include "collection/KTPhotoManagerToolbarController.h"
#include "collection/KTPhotoOperationWindowController.h"
#include "collection/KTPhotoSpatialObjectController.h"
#include "collection/KTTagDetailsWindowController.h"
#include "collection/PhotoManagerMenuBarController.h"
#include "metadata/KTExifTool.h"
#include "platform/defaults/KTUserDefaults.h"
#include "platform/undo/KTUndoManager.h"

#include <QCoreApplication>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <fstream>
#include <malloc.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

namespace fs = std::filesystem;

/// What one run found out: seconds and kilobytes, all together.
struct Figures {
    enum Step { Import, Sort, Select, Edit, Undo, Redo, Save, kSteps };
    static constexpr const char* kNames[] = {"import", "sort", "select", "edit", "undo", "redo", "save"};
    double seconds[kSteps] = {};
    double kilobytes = 0; // that the loaded photos take
    std::size_t loaded = 0, tags = 0, unsaved = 0;
};

/// Of the processor, for all threads: what else runs on the machine does not count.
double secondsOf(const std::function<void()>& work) {
    const std::clock_t start = std::clock();
    work();
    return static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
}

double residentKilobytes() {
    malloc_trim(0);
    long total = 0, resident = 0;
    std::ifstream("/proc/self/statm") >> total >> resident;
    return static_cast<double>(resident) * static_cast<double>(sysconf(_SC_PAGESIZE)) / 1024;
}

void runEventLoopUntil(const std::function<bool()>& isDone) {
    while (!isDone())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    QCoreApplication::processEvents();
}

/// A collection with everything that the main window puts on it.
class Collection {
public:
    Collection() {
        manager.setUndoManager(undo, queue);
        manager.setBatchOperationController(&batches);
        controller.setup();
        layer.setup();
        menuBar.setup();
        log.setup();
        tagDetails.setup();
    }
    ~Collection() {
        tagDetails.tearDown();
        log.tearDown();
        layer.tearDown();
        controller.tearDown();
    }

    void import(const fs::path& folder) {
        bool hasEnded = false;
        manager.importPhotosAtURLs({folder}, {.didEnd = [&] { hasEnded = true; }});
        runEventLoopUntil([&] { return hasEnded && !manager.importInProgress(); });
    }

    void sort() {
        manager.setPhotoSortDescriptors({{"dateTimeOriginal", false}, {"filename", true}});
        manager.setPhotoSortDescriptors({{"latitude", true}});
        controller.photos();
    }

    /// All of them, with the tags that they have in common.
    std::size_t select() {
        manager.setSelectedPhotos(*manager.photos());
        return tagDetails.rows().size();
    }

    /// What the user does to all photos: a text that each gets, and a position.
    void edit() {
        undo->beginUndoGrouping("Edit");
        for (const auto& photo : *manager.photos()) {
            photo->setValueForKey("title", "Seen from " + photo->filename());
            photo->setValuesForKeysWithDictionary({{"latitude", 47}, {"longitude", 8}}, "Geotag Photos");
        }
        undo->endUndoGrouping();
        runEventLoopUntil([] { return true; });
    }

    void save() {
        bool isSaved = false;
        manager.savePhotos(*manager.unsavedPhotos(), [&] { isSaved = true; });
        runEventLoopUntil([&] { return isSaved; });
    }

    std::shared_ptr<KTSerialQueue> queue =
        std::make_shared<KTSerialQueue>("com.Brightfold.UndoQueue", KTSerialQueue::Kind::Announcing);
    std::shared_ptr<KTUndoManager> undo = std::make_shared<KTUndoManager>(queue);
    KTBatchOperationController batches{undo};
    KTPhotoManager manager;
    KTPhotoController controller{manager};
    KTPhotoSpatialObjectController layer{manager};
    KTPhotoManagerToolbarController toolbar{manager};
    PhotoManagerMenuBarController menuBar{manager};
    KTPhotoOperationWindowController log{manager};
    KTTagDetailsWindowController tagDetails{manager};
};

void copyPhotos(const std::vector<fs::path>& photos, std::size_t count, const fs::path& folder) {
    for (std::size_t i = 0; i < count; ++i) {
        const fs::path& photo = photos[i % photos.size()];
        const std::string number = std::to_string(100'000 + i) + "-";
        fs::copy_file(photo, folder / (number + photo.filename().string()));
        if (const fs::path sidecar = fs::path(photo).replace_extension(".xmp"); fs::exists(sidecar))
            fs::copy_file(sidecar, folder / (number + sidecar.filename().string()));
    }
}

Figures measure(const std::vector<fs::path>& photos, std::size_t count, const fs::path& folder) {
    int argc = 0;
    const QCoreApplication application(argc, nullptr);
    KTUserDefaults::useThrowAwayDomain();
    // Start-up: the interpreter with what it loads for each kind of photo.
    fs::create_directories(folder / "warm");
    copyPhotos(photos, photos.size(), folder / "warm");
    { Collection().import(folder / "warm"); }
    fs::create_directories(folder / "photos");
    copyPhotos(photos, count, folder / "photos");

    Collection collection;
    Figures figures;
    const double before = residentKilobytes();
    const auto time = [&](Figures::Step step, const std::function<void()>& work) {
        figures.seconds[step] = secondsOf(work);
    };
    time(Figures::Import, [&] { collection.import(folder / "photos"); });
    figures.kilobytes = residentKilobytes() - before;
    figures.loaded = collection.manager.numberOfPhotos();
    time(Figures::Sort, [&] { collection.sort(); });
    time(Figures::Select, [&] { figures.tags = collection.select(); });
    time(Figures::Edit, [&] { collection.edit(); });
    time(Figures::Undo, [&] { collection.undo->undo(); });
    time(Figures::Redo, [&] { collection.undo->redo(); });
    time(Figures::Save, [&] { collection.save(); });
    figures.unsaved = collection.manager.unsavedPhotos()->size();
    return figures;
}

/// In a process of its own, so that neither run finds what the other one left in memory.
Figures measureApart(const std::vector<fs::path>& photos, std::size_t count) {
    std::string pattern = (fs::temp_directory_path() / "waymark-bench-XXXXXX").string();
    int ends[2] = {};
    if (mkdtemp(pattern.data()) == nullptr || pipe(ends) != 0)
        return {};
    const pid_t child = fork();
    if (child == 0) {
        const Figures figures = measure(photos, count, pattern);
        _exit(write(ends[1], &figures, sizeof figures) == sizeof figures ? 0 : 1);
    }
    close(ends[1]);
    Figures figures;
    if (read(ends[0], &figures, sizeof figures) != sizeof figures)
        std::printf("the run of %zu photos failed\n", count);
    close(ends[0]);
    waitpid(child, nullptr, 0);
    fs::remove_all(pattern);
    return figures;
}

/// Finds the photos of a folder with many entries; walks over its entries in turn.
void measureListing() {
    constexpr int kEntries = 20'000;
    std::string folder = (fs::temp_directory_path() / "waymark-bench-XXXXXX").string();
    if (mkdtemp(folder.data()) == nullptr)
        return;
    for (int i = 0; i < kEntries; ++i)
        std::ofstream(fs::path(folder) / ("IMG_" + std::to_string(i) + (i % 2 == 0 ? ".JPG" : ".xmp")));
    std::size_t found = 0, walked = 0;
    const double ours = secondsOf([&] { found = KTPhotoFileList::fromPaths({folder}).files.size(); });
    const double plain = secondsOf([&] {
        for (const auto& entry : fs::recursive_directory_iterator(folder))
            walked += entry.is_regular_file() ? 1 : 0;
    });
    std::printf("%zu photos found among %zu entries in %.1f ms; a walk over them takes %.1f ms: ratio %.1f\n",
                found, walked, ours * 1e3, plain * 1e3, ours / plain);
    fs::remove_all(folder);
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 2 && argc != 4) {
        std::fprintf(stderr, "Usage: CollectionBenchmark FOLDER [SMALLER LARGER]\n");
        return 2;
    }
    const auto photos = KTPhotoFileList::fromPaths({argv[1]}).files;
    const std::size_t smaller = argc == 4 ? std::strtoul(argv[2], nullptr, 10) : 200;
    const std::size_t larger = argc == 4 ? std::strtoul(argv[3], nullptr, 10) : 2000;
    if (photos.empty())
        return 1;
    const Figures few = measureApart(photos, smaller), many = measureApart(photos, larger);
    std::printf("%zu of %zu and %zu of %zu files are photos, with %zu and %zu tags; unsaved at the end: %zu "
                "and %zu\n",
                few.loaded, smaller, many.loaded, larger, few.tags, many.tags, few.unsaved, many.unsaved);
    for (int step = 0; step < Figures::kSteps; ++step) {
        const double ofFew = few.seconds[step] / static_cast<double>(smaller) * 1e3,
                     ofMany = many.seconds[step] / static_cast<double>(larger) * 1e3;
        std::printf("%-6s  %8.4f ms a photo of %zu, %8.4f of %zu: ratio %.2f (aim 1.30)\n",
                    Figures::kNames[step], ofFew, smaller, ofMany, larger, ofMany / ofFew);
    }
    std::printf("memory: %.1f KB a photo of %zu, %.1f of %zu (aim 60)\n",
                few.kilobytes / static_cast<double>(smaller), smaller,
                many.kilobytes / static_cast<double>(larger), larger);
    measureListing();
    return 0;
}
