#include "tests/metadata/FieldTestSupport.h"

#include "metadata/KTMetadataCameraFields.h"
#include "metadata/KTMetadataDateFields.h"
#include "metadata/KTMetadataPositionFields.h"

#include <thread>

namespace {

class CatalogueTest : public FieldTest {
protected:
    KTMetadataFieldManager& manager = KTMetadataFieldManager::sharedMetadataFieldManager();
};

TEST_F(CatalogueTest, HasTheFieldsInOrder) {
    const auto& keys = manager.photoKeys();
    ASSERT_EQ(keys.size(), 89u);
    EXPECT_EQ(std::vector(keys.begin(), keys.begin() + 3),
              (std::vector<std::string>{"cameraMake", "cameraModel", "exifVersion"}));
    EXPECT_EQ(std::vector(keys.end() - 3, keys.end()),
              (std::vector<std::string>{"owner", "source", "usageTerms"}));
    EXPECT_EQ(manager.metadataKeyField().size(), 89u) << "every key once";
    const auto& tagKeys = manager.exifToolKeys();
    EXPECT_EQ(std::vector(tagKeys.begin(), tagKeys.begin() + 7),
              (std::vector<std::string>{"EXIF:Make", "XMP:Make", "EXIF:Model", "XMP:Model",
                                        "EXIF:ExifVersion", "XMP:ExifVersion", "Composite:LensID"}));
    std::vector<std::pair<std::string, std::size_t>> groups;
    for (const auto& group : manager.metadataGroups())
        groups.emplace_back(group->name(), group->fields().size());
    EXPECT_EQ(groups, (std::vector<std::pair<std::string, std::size_t>>{{"Camera", 7},
                                                                        {"Digitization Attributes", 11},
                                                                        {"Document", 8},
                                                                        {"GPS", 9},
                                                                        {"Location Created", 11},
                                                                        {"Location Shown", 8},
                                                                        {"Newscodes", 5},
                                                                        {"Organization", 5},
                                                                        {"Photo Description", 6},
                                                                        {"Photographer", 2},
                                                                        {"Photographer Contact Info", 8},
                                                                        {"Rights", 9}}));
    EXPECT_EQ(manager.metadataFieldForKey("nonsense"), nullptr);
}

TEST_F(CatalogueTest, FieldsAreWhatTheTableSays) {
    const auto& original = field("dateTimeOriginalComponents");
    EXPECT_TRUE(dynamic_cast<const KTMetadataDateTimeOriginalField*>(&original));
    EXPECT_EQ(original.name(), "Original Date");
    EXPECT_EQ(original.secondaryName(), "Original Time");
    EXPECT_EQ(original.exifToolKeys(),
              (std::vector<std::string>{"EXIF:DateTimeOriginal", "XMP:DateTimeOriginal", "XMP:DateCreated",
                                        "IPTC:DateCreated", "IPTC:TimeCreated"}));
    EXPECT_EQ(field("keywords").singularName(), "Keyword");
    EXPECT_EQ(field("worldRegionShown").propertyType(), Text);
    EXPECT_EQ(field("worldRegionShown").exifToolPropertyType(), List);
    EXPECT_EQ(field("altitude").exifToolPropertyType(), Decimal);
    EXPECT_TRUE(field("aperture").formatter());
    EXPECT_FALSE(field("title").formatter());
    EXPECT_TRUE(field("cameraMake").readonly());
    EXPECT_FALSE(field("latitude").readonly() || field("latitude").directlyUserEditable());
    EXPECT_TRUE(field("headline").directlyUserEditable());
    EXPECT_FALSE(field("headline").readonly());
    for (const auto& each : manager.metadataFields())
        EXPECT_TRUE(each->usageDescription().starts_with("\u2598")) << each->key();
}

TEST_F(CatalogueTest, CopiesKeepClassAndTagsAndLeaveTheCatalogueAlone) {
    for (const auto& each : manager.metadataFields()) {
        auto copy = each->copy();
        EXPECT_EQ(typeid(*copy), typeid(*each)) << each->key();
        EXPECT_EQ(copy->exifToolKeys(), each->exifToolKeys());
    }
    auto group = manager.metadataGroups()[8]->copy();
    group->fields()[0]->setName("Taken");
    EXPECT_EQ(field("dateTimeOriginalComponents").name(), "Original Date");
    std::vector<std::string> keys;
    for (const auto& each : manager.defaultGroups())
        for (const auto& member : each->fields())
            keys.push_back(member->key());
    EXPECT_EQ(keys,
              (std::vector<std::string>{"filename", "dateTimeOriginalComponents", "caption", "people",
                                        "keywords", "creator", "event", "latitude", "altitude", "cityCreated",
                                        "stateCreated", "countryCreated", "locationCreated"}));
}

TEST_F(CatalogueTest, AltitudeIsEditableByASettingThatCopiesShare) {
    auto copy = field("altitude").copy();
    EXPECT_FALSE(copy->directlyUserEditable());
    copy->setDirectlyUserEditable(true);
    EXPECT_TRUE(field("altitude").directlyUserEditable());
    EXPECT_TRUE(KTUserDefaults::standardUserDefaults().boolForKey("AltitudeFieldIsEditableDefault"));
}

TEST_F(CatalogueTest, ArchivedGroupsGetTheCatalogueDefinitions) {
    auto archive = KTValue::Dictionary{
        {"name", "Mine"},
        {"fields", KTValue::List{KTValue::Dictionary{{"key", "keywords"}, {"name", "Tags"}},
                                 KTValue::Dictionary{{"key", "unknown"}, {"name", "x"}}, "nonsense",
                                 KTValue::Dictionary{{"key", "latitude"}}}}};
    auto group = KTMetadataGroup::decode(archive);
    EXPECT_EQ(group->name(), "Mine");
    ASSERT_EQ(group->fields().size(), 2u);
    const auto& tags = group->fields()[0];
    EXPECT_TRUE(dynamic_cast<const KTMetadataKeywordsField*>(tags.get()));
    EXPECT_EQ(tags->name(), "Tags");
    EXPECT_EQ(tags->exifToolKeys(), (std::vector<std::string>{"IPTC:Keywords", "XMP:Subject"}));
    EXPECT_EQ(group->fields()[1]->name(), "Latitude");
    auto again = group->encode();
    EXPECT_EQ(KTMetadataGroup::decode(again)->encode(), again);
    EXPECT_EQ(
        field("latitude").encode(),
        (KTValue::Dictionary{{"key", "latitude"}, {"name", "Latitude"}, {"secondaryName", "Longitude"}}));
    EXPECT_EQ(KTMetadataGroup::decode({})->name(), "Untitled");
}

TEST_F(CatalogueTest, GroupsAnnounceInsertionsRemovalsAndMoves) {
    KTMetadataGroup group("G");
    std::string announced;
    auto observation = group.observe([&](const KTChange& change) {
        if (!change.isPrior && change.key == "fields")
            announced += std::string(change.kind == KTChange::Kind::Insertion ? "+" : "-") +
                         std::to_string(change.indexes.at(0));
    });
    for (const char* key : {"title", "rating", "label"})
        EXPECT_TRUE(group.addField(field(key).copy()));
    EXPECT_FALSE(group.addField(field("event").copy(), 4));
    EXPECT_TRUE(group.addField(field("event").copy(), 0));
    EXPECT_TRUE(group.moveFieldFromIndex(0, 3));
    EXPECT_FALSE(group.moveFieldFromIndex(0, 4));
    EXPECT_FALSE(group.removeField(field("title"))) << "another object of the same field";
    EXPECT_TRUE(group.removeField(*group.fields()[1]));
    EXPECT_EQ(announced, "+0+1+2+0-0+3-1");
    EXPECT_EQ(group.fields().back()->key(), "event");
}

TEST_F(CatalogueTest, AssumedZoneIsAnnouncedAlwaysAndStoredWhenItDiffers) {
    KTUserDefaults& defaults = KTUserDefaults::standardUserDefaults();
    int announced = 0, stored = 0;
    auto heard = manager.observe([&](const KTChange& change) {
        announced += !change.isPrior && change.key == "assumedTimeZone" ? 1 : 0;
    });
    auto storing = defaults.observe([&](const KTChange& change) { stored += change.isPrior ? 0 : 1; });
    manager.setAssumedTimeZone(KTTimeZone::fixed(7200));
    EXPECT_EQ(std::pair(announced, stored), std::pair(1, 0));
    manager.setAssumedTimeZone(KTTimeZone::fixed(-3600));
    EXPECT_EQ(std::pair(announced, stored), std::pair(2, 1));
    EXPECT_EQ(defaults.integerForKey("defaultAssumedTimeZoneOffset"), -3600);
    defaults.setValue("defaultAssumedTimeZoneOffset", 1800);
    EXPECT_EQ(manager.assumedTimeZone(), KTTimeZone::fixed(1800));
    KTUserDefaults::useThrowAwayDomain();
    EXPECT_EQ(manager.assumedTimeZone().secondsFromGMT({}),
              KTTimeZone::system().secondsFromGMT(KTInstantNow()));
}

} // namespace
