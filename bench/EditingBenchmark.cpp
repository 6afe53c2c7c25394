// Edits thousands of photos as the windows do: a shift of their dates, a caption, three keywords, undo and
// redo; and lets the metadata editor find what 20,000 selected photos share. Prints the times, and their
// ratio to the same work done without undo, records and announcements: setting, or reading, each photo's
// property one by one.
//
// EditingBenchmark PHOTO: the photos are copies, in memory, of the record of that one.
#include "app/editor/KTMetadataEditorViewController.h"
#include "app/editor/KTMetadataFieldMultipleValueArrayViewItem.h"
#include "datetools/KTDateShiftViewController.h"
#include "metadata/KTMetadataFieldManager.h"
#include "platform/common/KTTimeZoneManager.h"
#include "platform/defaults/KTComboBoxStoreController.h"
#include "platform/defaults/KTUserDefaults.h"
#include "platform/undo/KTUndoManager.h"

#include <QCoreApplication>
#include <cstdio>

namespace {

constexpr std::size_t kEdited = 2'000, kSelected = 20'000;

double secondsOf(const std::function<void()>& work) {
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

void print(const char* what, double seconds, double reference) {
    std::printf("%-42s %8.1f ms  %6.1f times the reference\n", what, seconds * 1000, seconds / reference);
}

struct Bench {
    Bench(const KTPhoto& model, std::size_t count) {
        manager.setUndoManager(undo, queue);
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

} // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    KTUserDefaults::useThrowAwayDomain();
    const auto model = argc == 2 ? KTPhoto::initWithFile(argv[1]) : nullptr;
    if (!model) {
        std::fprintf(stderr, "usage: EditingBenchmark PHOTO\n");
        return 2;
    }
    edit(*model);
    select(*model);
    return 0;
}
