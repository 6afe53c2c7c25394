#include "tests/photo/PhotoFixture.h"

#include "platform/common/KTCallContext.h"
#include "platform/concurrency/KTLatch.h"

#include <rapidcheck/gtest.h>
#include <thread>

namespace {

class PhotoUndo : public PhotoFixture {};

} // namespace

TEST_F(PhotoUndo, QuickEditsOfOnePropertyAreOneStep) {
    auto photo = openWithUndo(makePhoto(folder, "a.jpg", {{"XMP:Title", "old"}}));
    for (int i = 0; i < 10; ++i)
        photo->setValueForKey("title", std::to_string(i));
    EXPECT_EQ(photo->lastRecordedUndoKey(), KTValue("title"));
    photo->setValueForKey("caption", "c");
    photo->setValueForKey("title", "10");
    ASSERT_TRUE(undo->undo());
    EXPECT_EQ(photo->valueForKey("title"), KTValue("9")) << "an edit in between began a new step";
    EXPECT_TRUE(photo->lastRecordedUndoKey().isAbsent());
    ASSERT_TRUE(undo->undo());
    EXPECT_TRUE(photo->valueForKey("caption").isAbsent());
    EXPECT_EQ(undo->undoActionName(), "Edit Title");
    ASSERT_TRUE(undo->undo());
    EXPECT_EQ(photo->valueForKey("title"), KTValue("old"));
    EXPECT_FALSE(photo->hasUnsavedChanges());
    EXPECT_FALSE(undo->canUndo());
    for (int i = 0; i < 3; ++i)
        ASSERT_TRUE(undo->redo());
    EXPECT_EQ(photo->valueForKey("title"), KTValue("10"));
    EXPECT_TRUE(photo->hasUnsavedChanges());

    photo->setValueForKey("title", "10");
    EXPECT_EQ(undo->undoActionName(), "Edit Title");
    ASSERT_TRUE(undo->undo());
    EXPECT_EQ(photo->valueForKey("title"), KTValue("9")) << "an edit that changes nothing is no step";

    photo->setValueForKey("title", "x");
    photo->invalidateLastRecordedUndoKey(); // as a second without edits does
    photo->setValueForKey("title", "y");
    ASSERT_TRUE(undo->undo());
    EXPECT_EQ(photo->valueForKey("title"), KTValue("x"));
}

TEST_F(PhotoUndo, AGroupedEditIsOneStepWithItsName) {
    auto photo = openWithUndo(makePhoto(folder, "a.jpg", {{"EXIF:DateTimeOriginal", "2014:06:01 12:00:00"}}));
    photo->setDateTimeOriginalShift(3600);
    const KTValue shifted = photo->valueForKey("dateTimeOriginalComponents");
    photo->setValuesForKeysWithDictionary({{"latitude", 1},
                                           {"longitude", 2},
                                           {"title", "t"},
                                           {"caption", KTValue::null()},
                                           {"dateTimeOriginalComponents", KTValue::null()}},
                                          "Geotag Photos");
    EXPECT_EQ(photo->doNotTrackChangesStack(), 0);
    EXPECT_TRUE(photo->isGeotagged());
    EXPECT_EQ(undo->undoActionName(), "Geotag Photos");
    ASSERT_TRUE(undo->undo());
    EXPECT_FALSE(photo->isGeotagged());
    EXPECT_TRUE(photo->valueForKey("title").isAbsent());
    EXPECT_EQ(photo->valueForKey("dateTimeOriginalComponents"), shifted);
    EXPECT_EQ(photo->readingOf(KTPhotoDateFamily::Original).shift, 3600)
        << "a date comes back with its shift";
    EXPECT_EQ(undo->redoActionName(), "Geotag Photos");
    EXPECT_EQ(undo->undoActionName(), "Original Date Change");
    ASSERT_TRUE(undo->redo());
    EXPECT_TRUE(photo->isGeotagged() && !photo->dateTimeOriginal());
    ASSERT_TRUE(undo->undo());
    ASSERT_TRUE(undo->undo());
    EXPECT_FALSE(photo->hasUnsavedChanges());
}

TEST_F(PhotoUndo, GuardsKeepEditsOfTheirLogicalCallAloneOutOfUndo) {
    auto photo = openWithUndo(makePhoto(folder, "a.jpg"));
    {
        const KTCallMark untracked(photo.photo.get());
        photo->setValueForKey("title", "untracked");
        photo->setValuesForKeysWithDictionary({{"caption", "untracked"}}, "name");
        KTLatch edited; // waiting for it serves the other thread's calls
        std::jthread other([&] {
            photo->setValueForKey("label", "tracked");
            edited.signal();
        });
        edited.wait();
    }
    queue->drain();
    EXPECT_EQ(undo->undoActionName(), "Edit Label");
    ASSERT_TRUE(undo->undo());
    EXPECT_FALSE(undo->canUndo());
}

RC_GTEST_FIXTURE_PROP(PhotoUndo, UndoAndRedoRetraceEverySequenceOfEdits, ()) {
    const auto photo = KTPhoto::init();
    const KTPhotoChangeTracker tracker(*photo);
    photo->setUndoManager(undo);
    photo->setUndoQueue(queue);
    const char* keys[] = {"title", "caption", "keywords", "latitude", "longitude", "dateTimeOriginal"};
    auto state = [&] {
        KTValue::Dictionary values;
        for (const char* key : keys)
            values[key] = photo->valueForKey(key);
        values["changes"] = photo->valueForKey("exifToolImageMetadataChangesDictionary");
        return values;
    };
    std::vector<KTValue::Dictionary> states{state()};
    const int edits = *rc::gen::inRange(1, 12);
    for (int i = 0; i < edits; ++i) {
        const std::string key =
            *rc::gen::elementOf(std::vector<std::string>(std::begin(keys), std::end(keys)));
        const int number = i + 1;
        const KTValue value = key == "keywords"           ? KTValue::listOfTexts({std::to_string(number)})
                              : key == "dateTimeOriginal" ? KTValue(KTInstantFromMilliseconds(number * 1000))
                                                          : KTValue(std::to_string(number));
        photo->invalidateLastRecordedUndoKey();
        if (*rc::gen::arbitrary<bool>())
            photo->setValuesForKeysWithDictionary({{key, value}, {"label", std::to_string(number)}}, "group");
        else
            photo->setValueForKey(key, value);
        states.push_back(state());
    }
    for (auto expected = states.rbegin() + 1; expected != states.rend(); ++expected) {
        RC_ASSERT(undo->undo());
        RC_ASSERT(state() == *expected);
    }
    RC_ASSERT(!undo->undo());
    for (auto expected = states.begin() + 1; expected != states.end(); ++expected) {
        RC_ASSERT(undo->redo());
        RC_ASSERT(state() == *expected);
    }
    while (undo->undo())
        ;
    RC_ASSERT(!photo->hasUnsavedChanges());
}
