// Edits thousands of photos as the windows do: a shift of their dates, a caption, three keywords, undo and
// redo; and lets the metadata editor find what 20,000 selected photos share. Prints the times, and their
// ratio to the same work done without undo, records and announcements: setting, or reading, each photo's
// property one by one.
//
// EditingBenchmark PHOTO: the photos are copies, in memory, of the record of that one.
//
// EditingBenchmark PHOTO PHOTO…: the photos are 2,000 copies of these files, which are edited, put back by
// undo, edited by redo and saved, ten times over; prints times and the memory in use after each round.
#include "app/editor/KTMetadataEditorViewController.h"
#include "app/editor/KTMetadataFieldMultipleValueArrayViewItem.h"
#include "collection/KTBatchOperationController.h"
#include "datetools/KTDateShiftViewController.h"
#include "metadata/KTMetadataFieldManager.h"
#include "platform/common/KTTimeZoneManager.h"
#include "platform/defaults/KTComboBoxStoreController.h"
#include "platform/defaults/KTUserDefaults.h"
#include "platform/undo/KTUndoManager.h"

#include <QCoreApplication>
#include <QTemporaryDir>
#include <cstdio>
#include <fstream>

namespace {

constexpr std::size_t kEdited = 2'000, kSelected = 20'000;
constexpr int kRounds = 10;

double secondsOf(const std::function<void()>& work) {
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

void print(const char* what, double seconds, double reference) {
    std::printf("%-42s %8.1f ms  %6.1f times the reference\n", what, seconds * 1000, seconds / reference);
}

struct Bench {
    Bench() {
        manager.setUndoManager(undo, queue);
        manager.setBatchOperationController(&batches);
    }
    Bench(const KTPhoto& model, std::size_t count) : Bench() {
        for (std::size_t i = 0; i < count; ++i) {
            manager.insertObject(model.copyWithZone(), i);
            loose.push_back(model.copyWithZone());
        }
        manager.setSelectedPhotos(*manager.photos());
    }
    std::unique_ptr<KTMetadataFieldArrayViewItem> item(const char* key) {
        return editor.arrayViewItemForObject(group, catalogue.metadataFieldForKey(key)->copy());
    }
    double plainly(const char* key, const KTValue& value) {
        return secondsOf([&] {
            for (const auto& photo : loose)
                photo->setValueForKey(key, value);
        });
    }

    std::shared_ptr<KTSerialQueue> queue =
        std::make_shared<KTSerialQueue>("com.Brightfold.UndoQueue", KTSerialQueue::Kind::Announcing);
    std::shared_ptr<KTUndoManager> undo = std::make_shared<KTUndoManager>(queue);
    KTMetadataFieldManager& catalogue = KTMetadataFieldManager::sharedMetadataFieldManager();
    KTBatchOperationController batches{undo};
    KTPhotoManager manager;
    std::vector<std::shared_ptr<KTPhoto>> loose; // in no collection
    KTComboBoxStoreController store{"/dev/null/none"};
    KTMetadataEditorViewController editor{manager, catalogue, store};
    KTMetadataGroup group;
};

void edit(const KTPhoto& model) {
    Bench bench(model, kEdited);
    const double caption = bench.plainly("caption", "A caption");
    KTDateShiftViewController tool(bench.manager, bench.catalogue,
                                   KTTimeZoneManager::sharedTimeZoneManager());
    tool.setup();
    tool.setIsNegative(true);
    tool.setMagnitude(KTDateShiftViewController::Seconds, 91785);
    std::printf("%zu photos\n", kEdited);
    print("shift by -91785 s, both dates", secondsOf([&] { tool.shiftDateTimeOriginalApply(); }), caption);
    print("undo", secondsOf([&] { bench.undo->undo(); }), caption);
    print("redo", secondsOf([&] { bench.undo->redo(); }), caption);
    tool.tearDown();
    print("a caption", secondsOf([&] {
              const auto item = bench.item("caption");
              item->setText("A caption");
              item->endEditing();
          }),
          caption);
    print("undo", secondsOf([&] { bench.undo->undo(); }), caption);
    print("redo", secondsOf([&] { bench.undo->redo(); }), caption);
    print("three keywords", secondsOf([&] {
              const auto item = bench.item("keywords");
              auto& list = dynamic_cast<KTMetadataFieldMultipleValueArrayViewItem&>(*item);
              for (const char* keyword : {"alpha", "beta", "gamma"})
                  list.setValue(keyword, list.values().size());
          }),
          caption);
}

void select(const KTPhoto& model) {
    Bench bench(model, kSelected);
    std::vector<std::unique_ptr<KTMetadataFieldArrayViewItem>> items;
    for (const auto& group : bench.editor.groups())
        for (const auto& field : group->fields())
            if (auto item = bench.editor.arrayViewItemForObject(*group, field))
                items.push_back(std::move(item));
    auto readAll = [&] {
        std::size_t length = 0;
        for (const auto& item : items)
            length += item->text().size() + item->placeholder().size() + item->hasUnsavedEdit();
        return length;
    };
    bench.manager.setSelectedPhotos({});
    const double reference = secondsOf([&] {
        for (const auto& item : items)
            for (const auto& photo : bench.loose)
                photo->valueForKey(item->representedObject()->key());
    });
    const double selecting = secondsOf([&] { bench.manager.setSelectedPhotos(*bench.manager.photos()); });
    std::size_t length = 0;
    const double reading = secondsOf([&] { length = readAll(); });
    std::printf("%zu photos that agree, %zu fields shown (%zu)\n", kSelected, items.size(), length);
    print("selecting all", selecting, reference);
    print("finding what they share", reading, reference);
}

double megabytesInUse() {
    std::ifstream statm("/proc/self/statm");
    std::size_t all = 0, resident = 0;
    statm >> all >> resident;
    return double(resident) * 4096 / 1e6;
}

void setCaptionAndKeywords(Bench& bench, const std::string& round) {
    const auto caption = bench.item("caption");
    caption->setText("A caption " + round);
    caption->endEditing();
    const auto keywords = bench.item("keywords");
    auto& list = dynamic_cast<KTMetadataFieldMultipleValueArrayViewItem&>(*keywords);
    for (const char* keyword : {"alpha", "beta", "gamma"})
        list.setValue(keyword + round, list.values().size());
    while (list.values().size() > 3) // those of the round before: the files do not grow
        list.setValue("", 0);
}

void saveAll(Bench& bench) {
    bool isSaved = false;
    bench.manager.savePhotos(*bench.manager.photos(), [&] { isSaved = true; });
    while (!isSaved)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

/// Every photo is edited in four steps, or more, which undo takes back one by one.
int workOnFiles(int count, char** files) {
    const QTemporaryDir folder;
    Bench bench;
    int refused = 0;
    for (std::size_t i = 0; i < kEdited; ++i) {
        const std::filesystem::path file = files[i % std::size_t(count)];
        const auto copy = std::filesystem::path(folder.path().toStdString()) /
                          (std::to_string(i) + "-" + file.filename().string());
        std::filesystem::copy_file(file, copy);
        std::filesystem::permissions(copy, std::filesystem::perms::owner_write,
                                     std::filesystem::perm_options::add);
        if (auto photo = KTPhoto::initWithFile(copy); !photo || !bench.manager.addNewPhoto(photo))
            ++refused;
    }
    bench.manager.setSelectedPhotos(*bench.manager.photos());
    KTDateShiftViewController tool(bench.manager, bench.catalogue,
                                   KTTimeZoneManager::sharedTimeZoneManager());
    tool.setup();
    std::printf("%zu copies of %d files, %d refused; %.0f MB in use\n", bench.manager.photos()->size(), count,
                refused, megabytesInUse());
    for (int round = 0; round < kRounds; ++round) {
        tool.setIsNegative(round % 2 == 0);
        tool.setMagnitude(KTDateShiftViewController::Seconds, 91785);
        const double shift = secondsOf([&] { tool.shiftDateTimeOriginalApply(); });
        const double texts = secondsOf([&] { setCaptionAndKeywords(bench, std::to_string(round)); });
        const int steps = round == 0 ? 5 : 8; // the shift, the caption, keywords that come and go
        const double undo = secondsOf([&] {
            for (int step = 0; step < steps; ++step)
                bench.undo->undo();
        });
        const std::size_t unsaved = bench.manager.unsavedPhotos()->size();
        const double redo = secondsOf([&] {
            for (int step = 0; step < steps; ++step)
                bench.undo->redo();
        });
        const double save = secondsOf([&] { saveAll(bench); });
        std::printf(
            "round %2d: shift %4.0f ms, caption and keywords %4.0f ms, undo of %d steps %4.0f ms (%zu "
            "unsaved), redo %4.0f ms, save %5.1f s (%zu unsaved); %.0f MB in use\n",
            round + 1, shift * 1000, texts * 1000, steps, undo * 1000, unsaved, redo * 1000, save,
            bench.manager.unsavedPhotos()->size(), megabytesInUse());
        std::fflush(stdout);
    }
    tool.tearDown();
    return 0;
}

} // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    KTUserDefaults::useThrowAwayDomain();
    if (argc > 2)
        return workOnFiles(argc - 1, argv + 1);
    const auto model = argc == 2 ? KTPhoto::initWithFile(argv[1]) : nullptr;
    if (!model) {
        std::fprintf(stderr, "usage: EditingBenchmark PHOTO…\n");
        return 2;
    }
    edit(*model);
    select(*model);
    return 0;
}
