#include "photo/KTiPhotoTool.h"

#include "metadata/KTMetadataField.h"
#include "platform/common/KTCalendar.h"
#include "platform/common/KTLocalizedString.h"
#include "platform/common/KTLog.h"
#include "platform/common/KTTimeZoneManager.h"
#include "platform/defaults/KTUserDefaults.h"

#include <charconv>
#include <condition_variable>

namespace {

constexpr int kPositionDigits = 12; // after the point

/// The properties of a photo that iPhoto lets others set, by the keys of the changes.
constexpr std::pair<std::string_view, std::string_view> kPropertyCodes[] = {
    {"latitude", "lati"}, {"longitude", "lngt"}, {"altitude", "alti"},
    {"caption", "pcom"},  {"title", "titl"},     {"rating", "rate"}};

/// The attributes that pass into the record as they are.
constexpr std::pair<const char*, const char*> kPlainAttributes[] = {
    {"xml:title", "Caption"},
    {"xml:caption", "Comment"},
    {"xml:dateInterval", "DateAsTimerInterval"},
    {"xml:URL", "URL"},
    {"xml:originalURL", "originalURL"},
    {"xml:metaModDateInterval", "MetaModDateAsTimerInterval"}};

KTValue attribute(const KTValue::Dictionary& attributes, std::string_view name) {
    const auto found = attributes.find(name);
    return found != attributes.end() && found->second.isSomething() ? found->second : KTValue();
}

KTValue rounded(const KTValue& degrees) {
    const auto number = degrees.number();
    return number ? KTValue(number->rounded(kPositionDigits)) : degrees;
}

/// Absent for "not rated", which a library says with a 0.
KTValue ratingOrNone(const KTValue& rating) {
    const auto number = KTMetadataField::coerceExifToolValue(rating, KTValueType::Decimal).number();
    return number && number->toInteger() != 0 ? rating : KTValue();
}

KTValue namesOfFaces(const KTValue& faces) {
    if (!faces.list())
        return {};
    KTValue::List names;
    for (const KTValue& face : *faces.list())
        if (const auto* entry = face.dictionary(); entry != nullptr)
            if (KTValue name = attribute(*entry, "name"); name.isSomething())
                names.push_back(std::move(name));
    return names;
}

void addKeywords(const KTValue& keywords, KTTagDictionary& record) {
    if (!keywords.isSomething())
        return;
    auto words = KTMetadataField::coerceExifToolValue(keywords, KTValueType::List).texts();
    const bool lastIsEvent =
        KTUserDefaults::standardUserDefaults().boolForKey("defaultShouldInterpretLastKeywordAsEvent");
    if (lastIsEvent && !words.empty()) {
        record.set("xml:event", words.back());
        words.pop_back();
    }
    record.set("xml:keywords", KTValue::listOfTexts(words));
}

} // namespace

/// What is known of the library's sources so far.
struct KTiPhotoTool::Sources {
    struct Entry {
        const std::string identifier;
        std::shared_ptr<KTMediaSource> source = nullptr;
        bool didLoad = false;
    };

    std::mutex mutex;
    std::condition_variable_any changed;
    bool didLoad = false; // it is known which sources there are
    Entry iPhoto{kiPhotoIdentifier}, aperture{kApertureIdentifier};

    Entry* entryFor(std::string_view identifier) {
        for (Entry* entry : {&iPhoto, &aperture})
            if (entry->identifier == identifier)
                return entry;
        return nullptr;
    }
    static void take(const std::shared_ptr<Sources>& known,
                     const std::vector<std::shared_ptr<KTMediaSource>>& found);
};

void KTiPhotoTool::Sources::take(const std::shared_ptr<Sources>& known,
                                 const std::vector<std::shared_ptr<KTMediaSource>>& found) {
    {
        std::lock_guard guard(known->mutex);
        for (const auto& source : found)
            if (Entry* entry = known->entryFor(source->mediaSourceIdentifier()))
                entry->source = source;
        known->didLoad = true;
        known->changed.notify_all();
    }
    for (const auto& source : found)
        if (Entry* entry = known->entryFor(source->mediaSourceIdentifier()))
            source->loadRootGroup([weak = std::weak_ptr(known), entry] {
                auto alive = weak.lock();
                if (!alive)
                    return;
                std::lock_guard guard(alive->mutex);
                entry->didLoad = true;
                alive->changed.notify_all();
            });
}

KTiPhotoTool& KTiPhotoTool::sharediPhotoTool() {
    static KTiPhotoTool tool(nullptr, Waits());
    return tool;
}

KTiPhotoTool::KTiPhotoTool(std::shared_ptr<KTMediaPlatform> mediaPlatform, Waits waitLimits)
    : platform(std::move(mediaPlatform)), waits(waitLimits), sources(std::make_shared<Sources>()) {
    if (platform)
        library = platform->mediaLibrary({KTMediaLibrary::kImages, {kiPhotoIdentifier, kApertureIdentifier}});
    if (library)
        library->loadMediaSources([weak = std::weak_ptr(sources)](const auto& found) {
            if (auto alive = weak.lock())
                Sources::take(alive, found);
        });
}

std::shared_ptr<KTMediaSource> KTiPhotoTool::iPhotoSource() const {
    std::lock_guard guard(sources->mutex);
    return sources->iPhoto.source;
}

std::shared_ptr<KTMediaSource> KTiPhotoTool::apertureSource() const {
    std::lock_guard guard(sources->mutex);
    return sources->aperture.source;
}

bool KTiPhotoTool::mediaSourcesDidLoad() const {
    std::lock_guard guard(sources->mutex);
    return sources->didLoad;
}

bool KTiPhotoTool::mediaiPhotoSourceDidLoad() const {
    std::lock_guard guard(sources->mutex);
    return sources->iPhoto.didLoad;
}

bool KTiPhotoTool::mediaApertureSourceDidLoad() const {
    std::lock_guard guard(sources->mutex);
    return sources->aperture.didLoad;
}

std::shared_ptr<KTMediaSource> KTiPhotoTool::loadedSource(const std::string& sourceIdentifier,
                                                          Deadline deadline,
                                                          const std::stop_token& stop) const {
    const Sources::Entry* entry = sources->entryFor(sourceIdentifier);
    if (!library || entry == nullptr)
        return nullptr;
    std::unique_lock lock(sources->mutex);
    sources->changed.wait_until(lock, stop, deadline, [&] {
        const bool isMissing = sources->didLoad && !entry->source;
        return entry->didLoad || isMissing;
    });
    return entry->didLoad ? entry->source : nullptr;
}

bool KTiPhotoTool::waitUntilMediaSourceLoadsWithIdentifier(const std::string& sourceIdentifier,
                                                           const std::stop_token& stop) {
    return loadedSource(sourceIdentifier, deadlineFromNow(), stop) != nullptr;
}

std::shared_ptr<const KTMediaObject>
KTiPhotoTool::mediaObjectFromSource(const std::string& sourceIdentifier,
                                    const std::string& withObjectIdentifier, const std::stop_token& stop) {
    const auto source = loadedSource(sourceIdentifier, deadlineFromNow(), stop);
    return source ? source->mediaObjectForIdentifier(withObjectIdentifier) : nullptr;
}

std::shared_ptr<const KTMediaObject>
KTiPhotoTool::waitForMediaObjectFromSource(const std::string& sourceIdentifier,
                                           const std::string& withObjectIdentifier,
                                           const std::stop_token& stop) {
    const Deadline deadline = deadlineFromNow();
    const auto source = loadedSource(sourceIdentifier, deadline, stop);
    while (source) {
        if (auto object = source->mediaObjectForIdentifier(withObjectIdentifier))
            return object;
        const Deadline now = std::chrono::steady_clock::now();
        if (stop.stop_requested() || now >= deadline)
            break;
        std::unique_lock lock(sources->mutex);
        sources->changed.wait_until(lock, stop, std::min(deadline, now + waits.objectStep),
                                    [] { return false; });
    }
    return nullptr;
}

KTTagDictionary KTiPhotoTool::normalizeMediaObjectAttributes(const KTValue::Dictionary& attributes) {
    KTTagDictionary record; // setting a key to an absent value leaves it out
    for (const auto& [key, name] : kPlainAttributes)
        record.set(key, attribute(attributes, name));
    record.set("xml:rating", ratingOrNone(attribute(attributes, "Rating")));
    record.set("xml:latitude", rounded(attribute(attributes, "latitude")));
    record.set("xml:longitude", rounded(attribute(attributes, "longitude")));
    record.set("xml:people", namesOfFaces(attribute(attributes, "FaceList")));
    addKeywords(attribute(attributes, "Keywords"), record);
    return record;
}

std::shared_ptr<KTScriptingApplication> KTiPhotoTool::iPhoto() {
    std::lock_guard guard(applicationMutex);
    if (!application && platform)
        application = platform->applicationWithBundleIdentifier(kiPhotoIdentifier);
    return application;
}

int KTiPhotoTool::majorApplicationVersion() const {
    const std::string version =
        platform ? platform->versionOfApplication(kiPhotoIdentifier).value_or("") : std::string();
    int major = 0;
    std::from_chars(version.data(), version.data() + version.size(), major);
    return major;
}

std::shared_ptr<KTScriptingPhoto> KTiPhotoTool::photoFromFile(const std::filesystem::path& file) {
    const auto program = iPhoto();
    if (!program) {
        KTLog("Failed to obtain iPhoto app handler.");
        return nullptr;
    }
    if (const auto current = program->photosWhose("imagePath", file.string()); !current.empty())
        return current.front();
    const auto originals = program->photosWhose("originalPath", file.string());
    return originals.empty() ? nullptr : originals.back();
}

/// The instant that the text of a changed date stands for; nothing where this iPhoto's dates are not set.
std::optional<KTInstant> KTiPhotoTool::dateForiPhoto(const KTValue& date) const {
    const auto reading =
        date.text() ? KTDateComponents::dateComponentsWithString(*date.text()) : std::nullopt;
    if (!reading)
        return std::nullopt;
    switch (majorApplicationVersion()) {
    case 8: {
        const int offset = KTTimeZone::system().secondsFromGMT(KTInstantNow());
        return KTCalendar(KTTimeZone::fixed(offset)).dateFromComponents(*reading);
    }
    case 9:
        return KTCalendar(KTTimeZoneManager::sharedTimeZoneManager().timeZone()).dateFromComponents(*reading);
    default:
        return std::nullopt;
    }
}

KTPhotoOperation KTiPhotoTool::setValuesForKeysWithDictionary(const KTTagDictionary& changes,
                                                              const KTMediaObject& toMediaObject) {
    KTPhotoOperation operation;
    operation.url = toMediaObject.URL;
    operation.operationDescription = KTLocalizedString("Write metadata to iPhoto using ScriptingBridge");
    KTTagDictionary pending = changes;
    pending.remove("keywords");
    if (pending.empty()) {
        operation.operationDidSucceed = true;
        return operation;
    }

    const auto photo = photoFromFile(toMediaObject.URL);
    if (!photo) {
        operation.failureReason = 1;
        operation.failureDescription =
            KTLocalizedString("Unable to set the photos metadata using ScriptingBridge");
        return operation;
    }
    for (const auto& [key, code] : kPropertyCodes)
        if (const KTValue* value = pending.find(key))
            photo->setProperty(code, *value);
    if (const auto date = dateForiPhoto(pending.valueForKey("date")))
        photo->setDate(*date);
    if (pending.find("latitude") != nullptr || pending.find("longitude") != nullptr)
        photo->reverseGeocode();
    operation.operationDidSucceed = true;
    return operation;
}
