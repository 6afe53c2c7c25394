#include "tests/collection/CollectionFixture.h"

#include "datetools/KTDateCopyViewController.h"
#include "datetools/KTDateSetViewController.h"
#include "datetools/KTDateShiftViewController.h"
#include "datetools/KTDateToolsWindowController.h"
#include "metadata/KTMetadataFieldManager.h"
#include "platform/common/KTTimeZoneManager.h"

namespace {

constexpr auto kOriginal = "dateTimeOriginalComponents", kDigitized = "dateTimeDigitizedComponents";

KTInstant instant(const char* text) {
    return *KTCalendar(KTTimeZone::utc())
                .dateFromComponents(*KTDateComponents::dateComponentsWithString(text));
}

/// The window of the tools over a collection of photos that are all selected; clocks at +02:00.
class DateTools : public CollectionFixture {
protected:
    void SetUp() override {
        CollectionFixture::SetUp();
        set("defaultAssumedTimeZoneOffset", 7200);
        displayZone.setTimeZone(KTTimeZone::fixed(7200));
    }
    void TearDown() override { window.tearDown(); }

    std::shared_ptr<KTPhoto> add(const char* name, const char* original, const char* digitized = nullptr) {
        KTTagDictionary tags;
        if (original != nullptr)
            tags.set("EXIF:DateTimeOriginal", original);
        if (digitized != nullptr)
            tags.set("EXIF:CreateDate", digitized);
        auto photo = KTPhoto::initWithFile(makePhoto(folder, name, tags));
        manager.addNewPhoto(photo);
        manager.setSelectedPhotos(*manager.photos());
        return photo;
    }
    KTDateShiftViewController& shiftTool() {
        window.setSelectedDateTool(KTDateToolsWindowController::Shift);
        return *window.dateShiftViewController();
    }
    KTDateCopyViewController& copyTool(KTDateCopyViewController::Date from,
                                       std::initializer_list<KTDateCopyViewController::Date> to) {
        window.setSelectedDateTool(KTDateToolsWindowController::Closed);
        window.setSelectedDateTool(KTDateToolsWindowController::Copy);
        auto& tool = *window.dateCopyViewController();
        tool.setSelectedCopyFromDate(from);
        for (const auto target : to)
            tool.setShouldCopyTo(target, true);
        return tool;
    }
    static std::string reading(const KTPhoto& photo, const char* key = kOriginal) {
        const KTValue value = photo.valueForKey(key);
        return value.components() ? value.components()->xmpString().value_or("") : "none";
    }
    static std::vector<std::int64_t> fields(const KTDateShiftViewController& tool) {
        using Tool = KTDateShiftViewController;
        return {tool.isNegative() ? 1 : 0, tool.magnitude(Tool::Days), tool.magnitude(Tool::Hours),
                tool.magnitude(Tool::Minutes), tool.magnitude(Tool::Seconds)};
    }
    /// The preview promises what the button then does, to every photo, and one undo takes all back.
    void expectPromiseKept(const KTDateTool& tool, const std::function<void()>& press) {
        std::vector<KTDateChange> promised;
        std::vector<KTValue> before;
        for (const auto& photo : *manager.photos()) {
            const auto changes = tool.changesOf(*photo);
            for (const char* key : {kOriginal, kDigitized, "creationDate"}) {
                const auto change = std::ranges::find(changes, key, &KTDateChange::key);
                before.push_back(photo->valueForKey(key));
                promised.push_back({key, {}, change != changes.end() ? change->newDate : before.back()});
            }
        }
        press();
        for (std::size_t i = 0; i < promised.size(); ++i)
            EXPECT_EQ((*manager.photos())[i / 3]->valueForKey(promised[i].key), promised[i].newDate)
                << i / 3 << promised[i].key;
        ASSERT_TRUE(undo->undo());
        for (std::size_t i = 0; i < promised.size(); ++i)
            EXPECT_EQ((*manager.photos())[i / 3]->valueForKey(promised[i].key), before[i]);
        EXPECT_TRUE(manager.unsavedPhotos()->empty());
        EXPECT_FALSE(undo->canUndo()) << "one press, one step";
    }

    KTMetadataFieldManager& catalogue = KTMetadataFieldManager::sharedMetadataFieldManager();
    KTTimeZoneManager displayZone;
    KTDateToolsWindowController window{manager, catalogue, displayZone};
};

using Shift = KTDateShiftViewController;
using Copy = KTDateCopyViewController;
using SetDate = KTDateSetViewController;

} // namespace

TEST_F(DateTools, TheCorrectedDateGivesTheShift) {
    const auto photo = add("a.jpg", "2014:05:03 10:00:00", "2014:05:03 10:00:02");
    const auto other = add("b.jpg", nullptr);
    auto& tool = shiftTool();
    EXPECT_EQ(tool.currentImageSavedDate(), instant("2014:05:03 08:00:00"));
    tool.setCurrentImageCorrectedDate(instant("2014:05:02 06:30:15"));
    EXPECT_EQ(fields(tool), (std::vector<std::int64_t>{1, 1, 1, 29, 45}));
    EXPECT_EQ(tool.shiftInSeconds(), -91785);
    EXPECT_EQ(tool.currentImageCorrectedDate(), instant("2014:05:02 06:30:15"));
    tool.shiftDateTimeOriginalApply();
    EXPECT_EQ(photo->readingOf(KTPhotoDateFamily::Original).shift, -91785);
    EXPECT_EQ(reading(*photo), "2014:05:02 08:30:15");
    EXPECT_EQ(reading(*photo, kDigitized), "2014:05:02 08:30:17");
    EXPECT_EQ(reading(*other), "none");
    EXPECT_EQ(undo->undoActionName(), "Original Date Change");
    tool.shiftDateTimeOriginalApply();
    EXPECT_EQ(reading(*photo), "2014:05:02 08:30:15") << "stored, not added";

    window.setSelectedDateTool(KTDateToolsWindowController::Closed);
    auto& again = shiftTool();
    EXPECT_EQ(fields(again), (std::vector<std::int64_t>{1, 1, 1, 29, 45})) << "the shift in force";
    again.shiftDateTimeOriginalRevert();
    EXPECT_EQ(fields(again), (std::vector<std::int64_t>{0, 0, 0, 0, 0}));
    EXPECT_EQ(reading(*photo), "2014:05:03 10:00:00");
    EXPECT_FALSE(photo->hasUnsavedChanges());
}

TEST_F(DateTools, TheFieldsOfTheShift) {
    add("a.jpg", "2014:05:03 10:00:00");
    auto& tool = shiftTool();
    int press = 0;
    auto step = [&](std::optional<Shift::Unit> unit, int by) {
        tool.setEditedUnit(unit);
        tool.setStepperValue(press += by);
        return tool.magnitude(unit.value_or(Shift::Days));
    };
    EXPECT_EQ(step(Shift::Hours, -1), 23);
    EXPECT_EQ(step(Shift::Hours, 1), 0);
    EXPECT_EQ(step(Shift::Seconds, -1), 59);
    EXPECT_EQ(step(Shift::Seconds, 1), 0);
    EXPECT_EQ(step({}, -1), 0) << "days, not below 0";
    EXPECT_EQ(step({}, 1), 1);
    EXPECT_EQ(tool.shiftInSeconds(), 86400);
    tool.setMagnitude(Shift::Minutes, 7);
    tool.setMagnitude(Shift::Minutes, std::nullopt);
    EXPECT_EQ(tool.magnitude(Shift::Minutes), 0);
    tool.setMagnitude(Shift::Days, INT64_MAX);
    EXPECT_TRUE(tool.changesOf(*tool.currentPhoto()).empty()) << "no date has such a year";
    tool.shiftDateTimeOriginalApply();
    EXPECT_FALSE(undo->canUndo());
}

TEST_F(DateTools, WhichPhotosAndDatesAreShifted) {
    const auto inside = add("a.jpg", "2014:05:03 10:00:00", "2014:05:03 10:00:00");
    const auto outside = add("b.jpg", "2014:05:04 10:00:00");
    manager.setSelectedPhotos({inside});
    auto& tool = shiftTool();
    tool.setMagnitude(Shift::Hours, 1);
    tool.setShouldShiftDigitizedDate(false);
    tool.shiftDateTimeOriginalApply();
    EXPECT_EQ(reading(*inside), "2014:05:03 11:00:00");
    EXPECT_EQ(reading(*inside, kDigitized), "2014:05:03 10:00:00");
    EXPECT_EQ(reading(*outside), "2014:05:04 10:00:00");
    tool.setShiftAllPhotos(true);
    ASSERT_EQ(tool.previews().size(), 3u);
    EXPECT_EQ(tool.previews()[2].photo, outside);
    tool.shiftDateTimeOriginalApply();
    EXPECT_EQ(reading(*outside), "2014:05:04 11:00:00");
    ASSERT_TRUE(undo->undo());
    EXPECT_EQ(reading(*inside), "2014:05:03 11:00:00") << "as before this press";
}

TEST_F(DateTools, NoInstantIsMadeUpForAPartialDate) {
    const auto year = add("a.jpg", "2014:  :     :  :  "), day = add("b.jpg", "2014:05:03   :  :  "),
               minute = add("c.jpg", "2014:05:03 10:00:  ");
    ASSERT_EQ(reading(*year), "2014");
    for (const auto& photo : {year, day, minute})
        EXPECT_FALSE(photo->dateTimeOriginal()) << reading(*photo);
    auto& tool = shiftTool();
    EXPECT_FALSE(tool.currentImageSavedDate());
    tool.setIsNegative(true);
    tool.setMagnitude(Shift::Seconds, 1);
    EXPECT_EQ(tool.previews().size(), 1u) << "the photo in front, which stays as it is";
    tool.shiftDateTimeOriginalApply();
    EXPECT_TRUE(manager.unsavedPhotos()->empty()) << "a second earlier than 2014 is not 2013";
    tool.setMagnitude(Shift::Seconds, 0);
    tool.setMagnitude(Shift::Days, 1);
    ASSERT_EQ(tool.previews().size(), 3u);
    EXPECT_EQ(tool.previews()[1].photo, day);
    EXPECT_EQ(tool.previews()[2].photo, minute);
    EXPECT_NE(tool.previews()[1].changes[0].newText().find("2"), std::string::npos);
    tool.shiftDateTimeOriginalApply();
    EXPECT_EQ(reading(*year), "2014");
    EXPECT_EQ(reading(*day), "2014:05:02");
    EXPECT_EQ(reading(*minute), "2014:05:02 10:00");
}

TEST_F(DateTools, TheStripFollowsTheSelection) {
    const auto a = add("a.jpg", "2014:05:03 10:00:00"), b = add("b.jpg", "2014:05:04 10:00:00"),
               c = add("c.jpg", "2014:05:05 10:00:00");
    auto& tool = shiftTool();
    EXPECT_EQ(tool.currentPhoto(), a);
    tool.setCurrentImageIndex(1);
    tool.setMagnitude(Shift::Hours, 3);
    manager.setSelectedPhotos({b, c});
    EXPECT_EQ(tool.currentPhoto(), b);
    EXPECT_EQ(tool.currentImageIndex(), 0u);
    EXPECT_EQ(tool.currentImageCorrectedDate(), instant("2014:05:04 11:00:00")) << "the fields stay";
    manager.removePhotos({b});
    EXPECT_EQ(tool.currentPhoto(), c);
    manager.setSelectedPhotos({});
    EXPECT_FALSE(tool.currentImageIndex());
    EXPECT_FALSE(tool.currentImageCorrectedDate());
    EXPECT_TRUE(tool.previews().empty());

    int announced = 0;
    const auto observation = tool.observe([&](const KTChange& change) {
        announced += change.key == "currentImageCorrectedDate" && !change.isPrior ? 1 : 0;
    });
    displayZone.setTimeZone(KTTimeZone::utc());
    EXPECT_EQ(announced, 1);
    EXPECT_EQ(tool.displayTimeZone(), KTTimeZone::utc());
}

TEST_F(DateTools, ASavedShiftIsTheNewBeginning) {
    const auto photo = add("a.jpg", "2014:05:03 10:00:00");
    auto& tool = shiftTool();
    tool.setMagnitude(Shift::Hours, 1);
    tool.shiftDateTimeOriginalApply();
    bool isSaved = false;
    manager.savePhotos({photo}, [&] { isSaved = true; });
    ASSERT_TRUE(runEventLoopUntil([&] { return isSaved; }));
    EXPECT_EQ(tool.currentImageSavedDate(), instant("2014:05:03 09:00:00"));
    EXPECT_EQ(tool.currentImageCorrectedDate(), instant("2014:05:03 10:00:00"));
}

TEST_F(DateTools, CopiesADateToOthers) {
    const auto photo = add("a.jpg", "2012:07:14 15:30:00", "2012:08:01 09:00:00");
    const auto without = add("b.jpg", nullptr), partial = add("c.jpg", "2012:07:     :  :  ");
    const KTValue created = photo->valueForKey("creationDate");
    const KTValue partialCreated = partial->valueForKey("creationDate");
    auto& tool = copyTool(Copy::Original, {Copy::Original, Copy::Digitized, Copy::Creation});
    EXPECT_EQ(tool.changesOf(*photo).size(), 2u) << "the source is no target";
    tool.copyDateTimeApply();
    EXPECT_EQ(photo->valueForKey(kDigitized), photo->valueForKey(kOriginal));
    EXPECT_EQ(photo->valueForKey("creationDate"), KTValue(instant("2012:07:14 13:30:00")));
    EXPECT_FALSE(without->hasUnsavedChanges());
    EXPECT_EQ(reading(*partial, kDigitized), "2012:07");
    EXPECT_EQ(partial->valueForKey("creationDate"), partialCreated) << "a month is no instant";
    EXPECT_EQ(undo->undoActionName(), "Copy Date Time Original");
    ASSERT_TRUE(undo->undo());
    EXPECT_EQ(reading(*photo, kDigitized), "2012:08:01 09:00:00");
    EXPECT_EQ(photo->valueForKey("creationDate"), created);
    EXPECT_TRUE(manager.unsavedPhotos()->empty());

    copyTool(Copy::Digitized, {Copy::Original}).copyDateTimeApply();
    EXPECT_EQ(reading(*photo), "2012:08:01 09:00:00");
    EXPECT_EQ(photo->valueForKey("creationDate"), created);
    EXPECT_EQ(undo->undoActionName(), "Copy Date Time Digitized");

    photo->setValueForKey("creationDate", instant("2013:01:01 10:00:00"));
    copyTool(Copy::Creation, {Copy::Original, Copy::Digitized}).copyDateTimeApply();
    for (const char* key : {kOriginal, kDigitized}) {
        EXPECT_EQ(reading(*photo, key), "2013:01:01 12:00:00");
        EXPECT_EQ(photo->valueForKey(key).components()->timeZone, KTTimeZone::fixed(7200));
    }
    EXPECT_EQ(undo->undoActionName(), "Copy Date Time Created");
}

TEST_F(DateTools, SetsADateAtItsPrecision) {
    const auto photo = add("a.jpg", "2012:07:14 15:30:00", "2012:07:14 15:30:00");
    const auto without = add("b.png", nullptr);
    photo->setDateTimeOriginalTimeZone(KTTimeZone::fixed(-3600));
    window.setSelectedDateTool(KTDateToolsWindowController::Set);
    auto& tool = *window.dateSetViewController();
    EXPECT_TRUE(tool.hasDateTimeOriginalTag());
    tool.setPrecisionVariableDate(instant("2014:05:03 15:41:09")); // 17:41:09 in the picker's zone
    const std::pair<unsigned, const char*> expected[] = {
        {0, "2014:05:03 17:41:09"}, {1, "2014:05:03 17:41"},   {2, "2014:05:03"}, {3, "2014:05"}, {4, "2014"},
        {5, "2014:05:03 17:00"},    {7, "2014:05:03 17:41:09"}};
    for (const auto& [precision, text] : expected) {
        tool.setSelectedPrecision(precision);
        tool.setDateTimeOriginalApply();
        EXPECT_EQ(reading(*photo), text);
        EXPECT_EQ(reading(*without), text);
        EXPECT_EQ(photo->valueForKey("dateTimeOriginalTimeZone"), KTValue(KTTimeZone::fixed(-3600)));
        EXPECT_EQ(without->valueForKey("dateTimeOriginalTimeZone"), KTValue(KTTimeZone::fixed(7200)));
        EXPECT_EQ(without->dateTimeOriginal().has_value(), precision == 0 || precision == 7);
    }
    EXPECT_EQ(tool.visibleElements(), (std::array<bool, 6>{true})) << "an unknown one shows the year";
    EXPECT_EQ(reading(*photo, kDigitized), "2012:07:14 15:30:00");

    for (const unsigned precision : {3u, 2u, 1u, 0u}) { // written, read back and shown as it was set
        tool.setSelectedPrecision(precision);
        tool.setDateTimeOriginalApply();
        const std::string wanted = reading(*photo);
        bool isSaved = false;
        manager.savePhotos(*manager.photos(), [&] { isSaved = true; });
        ASSERT_TRUE(runEventLoopUntil([&] { return isSaved; }));
        EXPECT_TRUE(manager.unsavedPhotos()->empty()) << precision;
        for (const char* name : {"a.jpg", "b.png"})
            EXPECT_EQ(reading(*KTPhoto::initWithFile(folder / name)), wanted) << name;
    }
}

TEST_F(DateTools, PreviewsPromiseWhatThePressDoes) {
    add("a.jpg", "2014:05:03 10:00:00", "2014:05:03 10:00:02");
    add("b.jpg", nullptr, "2013:01:01 00:00:00");
    add("c.jpg", "2014:05:     :  :  ", "2014:05:03   :  :  ");
    add("d.tif", "0001:01:01 00:00:00");
    add("e.png", nullptr);
    auto& shift = shiftTool();
    for (const std::int64_t seconds : {-91785, 86400, 1}) {
        shift.setIsNegative(seconds < 0);
        shift.setMagnitude(Shift::Seconds, std::abs(seconds));
        expectPromiseKept(shift, [&] { shift.shiftDateTimeOriginalApply(); });
    }
    for (const auto source : {Copy::Original, Copy::Digitized, Copy::Creation}) {
        auto& copy = copyTool(source, {Copy::Original, Copy::Digitized, Copy::Creation});
        expectPromiseKept(copy, [&] { copy.copyDateTimeApply(); });
    }
}

TEST_F(DateTools, OneWindowHoldsOneTool) {
    add("a.jpg", "2014:05:03 10:00:00");
    window.setup();
    EXPECT_EQ(window.selectedDateTool(), 4u);
    EXPECT_EQ(window.currentSubviewController(), nullptr);
    window.toggleDateTool(0);
    EXPECT_NE(window.dateShiftViewController(), nullptr);
    window.toggleDateTool(2);
    ASSERT_NE(window.dateCopyViewController(), nullptr);
    window.dateCopyViewController()->setShouldCopyTo(Copy::Creation, true);
    window.toggleDateTool(1);
    window.toggleDateTool(2);
    EXPECT_FALSE(window.dateCopyViewController()->shouldCopyTo(Copy::Creation)) << "made afresh";
    window.toggleDateTool(2);
    EXPECT_EQ(window.selectedDateTool(), 4u);
    window.setSelectedDateTool(3);
    EXPECT_EQ(window.currentSubviewController(), nullptr);
    EXPECT_EQ(window.windowWillReturnUndoManager(), undo);
}
