#include "photo/KTiPhotoTool.h"
#include "platform/common/KTTimeZoneManager.h"
#include "platform/defaults/KTUserDefaults.h"

#include <gtest/gtest.h>

#include <thread>

using namespace std::chrono_literals;

namespace {

constexpr KTiPhotoTool::Waits kShort{.limit = 60ms, .objectStep = 5ms};
constexpr KTiPhotoTool::Waits kLong{.limit = 10min, .objectStep = 10min};

class FakePhoto : public KTScriptingPhoto {
public:
    FakePhoto(std::string current, std::string original)
        : imagePath(std::move(current)), originalPath(std::move(original)) {}

    void setProperty(std::string_view code, const KTValue& value) override {
        calls.push_back(std::string(code) + "=" + (value.isNull() ? "null" : value.description()));
    }
    void setDate(KTInstant date) override { calls.push_back(KTISO8601Text(date)); }
    void reverseGeocode() override { calls.emplace_back("reverse geocode"); }

    const std::string imagePath, originalPath;
    std::vector<std::string> calls;
};

struct FakeApplication : KTScriptingApplication {
    std::vector<std::shared_ptr<FakePhoto>> photos;

    std::vector<std::shared_ptr<KTScriptingPhoto>> photosWhose(std::string_view property,
                                                               const std::string& value) override {
        std::vector<std::shared_ptr<KTScriptingPhoto>> result;
        for (const auto& photo : photos)
            if ((property == "imagePath" ? photo->imagePath : photo->originalPath) == value)
                result.push_back(photo);
        return result;
    }
};

/// A source whose loading ends when the test says so, and which knows its one item from some look on.
struct FakeSource : KTMediaSource {
    std::string identifier;
    std::function<void()> didLoad;
    std::atomic<int> looks = 0;
    int looksInVain = 0;

    explicit FakeSource(std::string name) : identifier(std::move(name)) {}
    std::string mediaSourceIdentifier() const override { return identifier; }
    void loadRootGroup(std::function<void()> whenLoaded) override { didLoad = std::move(whenLoaded); }
    std::shared_ptr<const KTMediaObject> mediaObjectForIdentifier(const std::string& wanted) override {
        if (looks++ < looksInVain || wanted != "item")
            return nullptr;
        return std::make_shared<KTMediaObject>(KTMediaObject{.identifier = wanted});
    }
};

struct FakeLibrary : KTMediaLibrary {
    std::function<void(const std::vector<std::shared_ptr<KTMediaSource>>&)> didLoad;
    void loadMediaSources(decltype(didLoad) whenLoaded) override { didLoad = std::move(whenLoaded); }
};

struct FakePlatform : KTMediaPlatform {
    std::shared_ptr<FakeLibrary> library = std::make_shared<FakeLibrary>();
    std::shared_ptr<FakeApplication> application = std::make_shared<FakeApplication>();
    std::string version = "9.6.1";

    std::shared_ptr<KTMediaLibrary> mediaLibrary(const KTMediaLibrary::Options&) override { return library; }
    std::shared_ptr<KTScriptingApplication> applicationWithBundleIdentifier(const std::string&) override {
        return application;
    }
    std::optional<std::string> versionOfApplication(const std::string&) override { return version; }
};

class LibraryTool : public testing::Test {
protected:
    void SetUp() override { KTUserDefaults::useThrowAwayDomain(); }

    std::shared_ptr<FakePhoto> addPhoto(std::string current, std::string original) {
        platform->application->photos.push_back(
            std::make_shared<FakePhoto>(std::move(current), std::move(original)));
        return platform->application->photos.back();
    }
    /// What iPhoto is told to do about a photo whose changes are @p changes.
    std::vector<std::string> callsFor(const KTTagDictionary& changes) {
        const auto photo = addPhoto("/a.jpg", "/o.jpg");
        KTiPhotoTool tool(platform, kShort);
        EXPECT_TRUE(tool.setValuesForKeysWithDictionary(changes, {.URL = "/a.jpg"}).operationDidSucceed);
        platform->application->photos.clear();
        return photo->calls;
    }

    std::shared_ptr<FakePlatform> platform = std::make_shared<FakePlatform>();
};

using Calls = std::vector<std::string>;

KTTagDictionary normalized(const KTValue::Dictionary& attributes) {
    return KTiPhotoTool::normalizeMediaObjectAttributes(attributes);
}

TEST_F(LibraryTool, TurnsAttributesIntoARecord) {
    const KTValue face = KTValue::Dictionary{{"name", "Ada"}, {"rectangle", "…"}};
    const KTTagDictionary record =
        normalized({{"Caption", "t"},
                    {"Comment", KTValue::null()},
                    {"DateAsTimerInterval", *KTDecimal::fromText("426859199.25")},
                    {"Rating", 3},
                    {"URL", "/lib/modified.jpg"},
                    {"originalURL", "/lib/master.jpg"},
                    {"latitude", *KTDecimal::fromText("47.1234567890125")},
                    {"longitude", *KTDecimal::fromText("-7.1234567890125")},
                    {"FaceList", KTValue::List{face, KTValue::Dictionary{}, "no face"}},
                    {"Roll", 7}});
    const KTTagDictionary expected{{"xml:title", "t"},
                                   {"xml:dateInterval", *KTDecimal::fromText("426859199.25")},
                                   {"xml:rating", 3},
                                   {"xml:URL", "/lib/modified.jpg"},
                                   {"xml:originalURL", "/lib/master.jpg"},
                                   {"xml:latitude", *KTDecimal::fromText("47.123456789013")},
                                   {"xml:longitude", *KTDecimal::fromText("-7.123456789013")},
                                   {"xml:people", KTValue::listOfTexts({"Ada"})}};
    EXPECT_EQ(record, expected);
    EXPECT_TRUE(normalized({}).empty());
    EXPECT_TRUE(normalized({{"Rating", 0}}).empty());
    EXPECT_EQ(normalized({{"latitude", "unknown"}}).valueForKey("xml:latitude"), KTValue("unknown"));
}

TEST_F(LibraryTool, TheLastKeywordIsTheEventWhereTheSettingSaysSo) {
    const KTValue::Dictionary three{{"Keywords", KTValue::listOfTexts({"Beach", "Sun", "Holiday 2013"})}};
    const KTValue::Dictionary one{{"Keywords", KTValue::listOfTexts({"Holiday 2013"})}};
    const KTValue::Dictionary none{{"Keywords", KTValue::List()}};
    EXPECT_EQ(normalized(three), (KTTagDictionary{{"xml:event", "Holiday 2013"},
                                                  {"xml:keywords", KTValue::listOfTexts({"Beach", "Sun"})}}));
    EXPECT_EQ(normalized(one),
              (KTTagDictionary{{"xml:event", "Holiday 2013"}, {"xml:keywords", KTValue::List()}}));
    EXPECT_EQ(normalized(none), (KTTagDictionary{{"xml:keywords", KTValue::List()}}));

    KTUserDefaults::standardUserDefaults().setValue("defaultShouldInterpretLastKeywordAsEvent", false);
    EXPECT_EQ(normalized(three), (KTTagDictionary{{"xml:keywords", three.at("Keywords")}}));
}

TEST_F(LibraryTool, TellsiPhotoWhatChanged) {
    EXPECT_EQ(callsFor({{"title", "t"},
                        {"caption", KTValue::null()},
                        {"rating", 4},
                        {"keywords", KTValue::listOfTexts({"k"})},
                        {"altitude", 12}}),
              (Calls{"alti=12", "pcom=null", "titl=t", "rate=4"}));
    EXPECT_EQ(callsFor({{"longitude", 8}, {"latitude", 47}}),
              (Calls{"lati=47", "lngt=8", "reverse geocode"}));
    EXPECT_EQ(callsFor({{"longitude", 8}}), (Calls{"lngt=8", "reverse geocode"}));
    EXPECT_EQ(callsFor({{"keywords", KTValue::null()}}), Calls{});
}

TEST_F(LibraryTool, TheZoneOfADateFollowsFromTheVersion) {
    auto& manager = KTTimeZoneManager::sharedTimeZoneManager();
    const KTTimeZone before = manager.timeZone();
    manager.setTimeZone(*KTTimeZone::named("Asia/Tokyo"));
    const KTTagDictionary changes{{"date", "2014:06:01 12:00:00"}};
    EXPECT_EQ(callsFor(changes), Calls{"2014-06-01T03:00:00Z"});
    EXPECT_EQ(callsFor({{"date", KTValue::null()}}), Calls{});
    EXPECT_EQ(callsFor({{"date", "some day"}}), Calls{});

    platform->version = "8.1.2";
    const int offset = KTTimeZone::system().secondsFromGMT(KTInstantNow());
    const KTInstant noon = std::chrono::sys_days(std::chrono::year(2014) / 6 / 1) + 12h;
    EXPECT_EQ(callsFor(changes), Calls{KTISO8601Text(noon - std::chrono::seconds(offset))});
    for (const char* version : {"7.1", "10.0", "", "beta 9"}) {
        platform->version = version;
        EXPECT_EQ(callsFor(changes), Calls{}) << version;
    }
    manager.setTimeZone(before);
}

TEST_F(LibraryTool, FindsAPhotoByItsCurrentFileBeforeItsOriginal) {
    const auto edited = addPhoto("/edited.jpg", "/master.jpg");
    const auto copy = addPhoto("/copy.jpg", "/master.jpg");
    const auto plain = addPhoto("/master2.jpg", "/edited.jpg");
    KTiPhotoTool tool(platform, kShort);
    EXPECT_EQ(tool.photoFromFile("/edited.jpg"), edited);
    EXPECT_EQ(tool.photoFromFile("/master.jpg"), copy);
    EXPECT_EQ(tool.photoFromFile("/master2.jpg"), plain);
    EXPECT_EQ(tool.photoFromFile("/elsewhere.jpg"), nullptr);

    const KTPhotoOperation operation =
        tool.setValuesForKeysWithDictionary({{"title", "t"}}, {.URL = "/elsewhere.jpg"});
    EXPECT_FALSE(operation.operationDidSucceed);
    EXPECT_EQ(operation.url, "/elsewhere.jpg");
}

TEST_F(LibraryTool, WithoutLibrariesNothingIsFoundAndWritesSayWhy) {
    KTiPhotoTool& tool = KTiPhotoTool::sharediPhotoTool();
    EXPECT_EQ(tool.mediaLibrary(), nullptr);
    EXPECT_EQ(tool.majorApplicationVersion(), 0);
    EXPECT_FALSE(tool.waitUntilMediaSourceLoadsWithIdentifier("com.apple.iPhoto"));
    EXPECT_EQ(tool.waitForMediaObjectFromSource("com.apple.iPhoto", "item"), nullptr);

    testing::internal::CaptureStderr();
    const KTPhotoOperation failed = tool.setValuesForKeysWithDictionary({{"title", "t"}}, {.URL = "/a.jpg"});
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "Failed to obtain iPhoto app handler.\n");
    EXPECT_EQ(failed.operationDescription, "Write metadata to iPhoto using ScriptingBridge");
    EXPECT_EQ(failed.resultType(), KTPhotoOperation::Failure);
    EXPECT_EQ(failed.failureReason, 1U);
    EXPECT_EQ(failed.failureDescription, "Unable to set the photos metadata using ScriptingBridge");
    EXPECT_TRUE(tool.setValuesForKeysWithDictionary({{"keywords", KTValue::null()}}, {.URL = "/a.jpg"})
                    .operationDidSucceed);
}

class LibraryToolWaiting : public LibraryTool {
protected:
    std::shared_ptr<FakeSource> source = std::make_shared<FakeSource>("com.apple.iPhoto");
};

TEST_F(LibraryToolWaiting, EndsWhenTheSourceIsLoaded) {
    KTiPhotoTool tool(platform, kLong);
    EXPECT_FALSE(tool.mediaSourcesDidLoad());
    std::jthread loading([&] {
        std::this_thread::sleep_for(5ms);
        platform->library->didLoad({source});
        std::this_thread::sleep_for(5ms);
        source->didLoad();
    });
    EXPECT_NE(tool.mediaObjectFromSource("com.apple.iPhoto", "item"), nullptr);
    EXPECT_TRUE(tool.mediaSourcesDidLoad() && tool.mediaiPhotoSourceDidLoad());
    EXPECT_EQ(tool.iPhotoSource(), source);
    EXPECT_EQ(tool.mediaObjectFromSource("com.apple.iPhoto", "another"), nullptr);

    EXPECT_FALSE(tool.mediaApertureSourceDidLoad());
    EXPECT_FALSE(tool.waitUntilMediaSourceLoadsWithIdentifier("com.apple.Aperture"))
        << "the library lacks it";
    EXPECT_FALSE(tool.waitUntilMediaSourceLoadsWithIdentifier("com.example.other"));
}

TEST_F(LibraryToolWaiting, LooksAgainUntilTheItemIsThere) {
    KTiPhotoTool tool(platform, {.limit = 10min, .objectStep = 1ms});
    source->looksInVain = 3;
    platform->library->didLoad({source});
    source->didLoad();
    EXPECT_NE(tool.waitForMediaObjectFromSource("com.apple.iPhoto", "item"), nullptr);
    EXPECT_EQ(source->looks, 4);
}

TEST_F(LibraryToolWaiting, EndsAtTheLimit) {
    KTiPhotoTool tool(platform, kShort);
    EXPECT_FALSE(tool.waitUntilMediaSourceLoadsWithIdentifier("com.apple.iPhoto"));
    platform->library->didLoad({source});
    EXPECT_EQ(tool.waitForMediaObjectFromSource("com.apple.iPhoto", "item"), nullptr);
    EXPECT_EQ(source->looks, 0);
    source->didLoad();
    EXPECT_EQ(tool.waitForMediaObjectFromSource("com.apple.iPhoto", "another"), nullptr);
    EXPECT_GT(source->looks, 1);
}

TEST_F(LibraryToolWaiting, CanBeCancelled) {
    KTiPhotoTool tool(platform, kLong);
    std::jthread forSource([&](const std::stop_token& stop) {
        EXPECT_FALSE(tool.waitUntilMediaSourceLoadsWithIdentifier("com.apple.iPhoto", stop));
    });
    std::this_thread::sleep_for(5ms);
    forSource.request_stop();
    forSource.join();

    platform->library->didLoad({source});
    source->didLoad();
    std::jthread forItem([&](const std::stop_token& stop) {
        EXPECT_EQ(tool.waitForMediaObjectFromSource("com.apple.iPhoto", "another", stop), nullptr);
    });
    while (source->looks == 0)
        std::this_thread::yield();
    forItem.request_stop();
}

TEST_F(LibraryToolWaiting, ALibraryMayAnswerWhenTheToolIsGone) {
    std::make_unique<KTiPhotoTool>(platform, kShort).reset();
    platform->library->didLoad({source});
    auto tool = std::make_unique<KTiPhotoTool>(platform, kShort);
    platform->library->didLoad({source});
    tool.reset();
    source->didLoad();
}

} // namespace
