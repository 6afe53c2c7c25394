#include "photo/KTPhoto.h"

#include "metadata/KTMetadataFieldManager.h"
#include "photo/KTPhotoPropertyTable.h"
#include "photo/KTPhotoSidecar.h"
#include "platform/common/KTCallContext.h"
#include "platform/common/KTText.h"
#include "platform/desktop/KTMediaObject.h"
#include "platform/desktop/KTTypeIdentifiers.h"

#include <cerrno>
#include <sys/stat.h>

KTPhoto::KTPhoto(std::filesystem::path file, std::shared_ptr<const KTMediaObject> item)
    : imageURL(std::move(file)),
      libraryItem(std::move(item)), dates{KTPhotoDateFamily(KTPhotoDateFamily::Original),
                                          KTPhotoDateFamily(KTPhotoDateFamily::Digitized)},
      values(KTPhotoPropertyTable::storedValues()), sources{KTMetadataSource(KTMetadataSource::Image),
                                                            KTMetadataSource(KTMetadataSource::Sidecar),
                                                            KTMetadataSource(KTMetadataSource::Library)},
      photoSidecar(std::make_unique<KTPhotoSidecar>(*this)) {
    sources[KTMetadataSource::Sidecar].properties.hasXMPBlock = true;
}

KTPhoto::~KTPhoto() {
    photoSidecar.reset(); // it may be telling this photo of its file
}

std::shared_ptr<KTPhoto> KTPhoto::init() {
    return std::shared_ptr<KTPhoto>(new KTPhoto({}, nullptr));
}

std::shared_ptr<KTPhoto> KTPhoto::copyWithZone() const {
    std::shared_ptr<KTPhoto> copy(new KTPhoto(imageURL, nullptr));
    const KTCallMark untracked(copy.get());
    {
        std::scoped_lock guard(mutex, copy->mutex);
        copy->values = values;
        copy->knownCreationDate = knownCreationDate;
        for (const auto kind : {KTMetadataSource::Image, KTMetadataSource::Sidecar}) {
            copy->sources[kind].saved = sources[kind].saved;
            copy->sources[kind].changes = sources[kind].changes;
            copy->sources[kind].properties = sources[kind].properties;
            copy->sources[kind].stamp = sources[kind].stamp;
            copy->sources[kind].revision = sources[kind].revision;
        }
        copy->recordedEdits = recordedEdits;
        copy->valid = valid;
    }
    for (const auto which : {KTPhotoDateFamily::Original, KTPhotoDateFamily::Digitized})
        copy->setDateComponents(which, readingOf(which).components);
    copy->unsaved = copy->computeHasUnsavedChanges(copy->targets());
    return copy;
}

std::filesystem::path KTPhoto::xmpURL() const {
    return std::filesystem::path(imageURL).replace_extension("xmp");
}

bool KTPhoto::hasXMPSidecar() const {
    if (imageURL.empty())
        return false;
    // xmpURL, but asked for at each edit: without taking the path to pieces.
    std::string sidecar = imageURL.native();
    sidecar.resize(sidecar.size() - imageURL.extension().native().size());
    struct stat status;
    if (::stat((sidecar + ".xmp").c_str(), &status) == 0)
        return true;
    // Where the disk does not answer, it counts as there: a save would else write into the image instead.
    return errno != ENOENT && errno != ENOTDIR && errno != ENAMETOOLONG && errno != ELOOP;
}

KTValue KTPhoto::uti() const {
    return KTTypeIdentifierForPath(imageURL);
}

std::string KTPhoto::description() const {
    char generic[40];
    std::snprintf(generic, sizeof generic, "<KTPhoto: %p>", static_cast<const void*>(this));
    return KTStringWithFormat("%@, %@", {generic, filename()});
}

bool KTPhoto::isValid() const {
    std::lock_guard guard(mutex);
    return valid;
}

KTMetadataSource KTPhoto::source(KTMetadataSource::Kind kind) const {
    std::lock_guard guard(mutex);
    return sources[kind];
}

std::vector<KTPhotoOperation> KTPhoto::photoOperations() const {
    std::lock_guard guard(mutex);
    return operations;
}

std::optional<KTPhotoOperation> KTPhoto::lastPhotoOperation() const {
    std::lock_guard guard(mutex);
    return operations.empty() ? std::nullopt : std::optional(operations.back());
}

void KTPhoto::addPhotoOperation(const std::optional<KTPhotoOperation>& operation) {
    if (!operation)
        return;
    std::size_t index;
    {
        std::lock_guard guard(mutex);
        index = operations.size();
    }
    willChange("photoOperations", KTChange::Kind::Insertion, {index});
    willChange("lastPhotoOperation");
    {
        std::lock_guard guard(mutex);
        operations.push_back(*operation);
    }
    didChange("lastPhotoOperation");
    didChange("photoOperations", KTChange::Kind::Insertion, {index});
}

KTValue KTPhoto::storedValue(std::size_t place) const {
    std::lock_guard guard(mutex);
    return values[place];
}

KTValue KTPhoto::valueForKey(std::string_view key) const {
    const KTPhotoProperty* property = KTPhotoPropertyTable::propertyForKey(key);
    if (property == nullptr)
        return {};
    return property->get != nullptr ? property->get(*this) : storedValue(property->place);
}

std::optional<KTDecimal> KTPhoto::decimalForKey(std::string_view key) const {
    return valueForKey(key).number();
}

void KTPhoto::setValueForKey(std::string_view key, const KTValue& value) {
    const KTPhotoProperty* property = KTPhotoPropertyTable::propertyForKey(key);
    if (property == nullptr)
        return;
    if (property->set != nullptr)
        property->set(*this, value);
    else if (property->get == nullptr)
        setStoredValue(*property, value);
}

KTPhoto::EditUnderWay::EditUnderWay(KTPhoto& edited, std::string_view editedKey)
    : photo(edited), key(editedKey) {
    std::lock_guard guard(photo.mutex);
    photo.editsUnderWay.push_back(key);
}

KTPhoto::EditUnderWay::~EditUnderWay() {
    std::lock_guard guard(photo.mutex);
    photo.editsUnderWay.erase(std::ranges::find(photo.editsUnderWay, key));
}

bool KTPhoto::isBeingEdited(std::string_view key) const {
    return std::ranges::find(editsUnderWay, key) != editsUnderWay.end();
}

void KTPhoto::setStoredValue(const KTPhotoProperty& property, const KTValue& value) {
    const EditUnderWay edit(*this, property.key);
    storeAndAnnounce(property, value.isNull() ? KTValue() : value, false);
}

void KTPhoto::storeAndAnnounce(const KTPhotoProperty& property, KTValue value, bool unlessEdited) {
    if (property.normalized != nullptr)
        value = property.normalized(value);
    if (!property.alsoChanges.empty())
        willChange(property.alsoChanges);
    willChange(property.key);
    {
        std::lock_guard guard(mutex);
        if (unlessEdited && isBeingEdited(property.key))
            value = values[property.place];
        std::swap(values[property.place], value);
    }
    didChange(property.key, KTChange::Kind::Setting, {}, std::move(value));
    if (!property.alsoChanges.empty())
        didChange(property.alsoChanges);
}

void KTPhoto::removeAllGPSValues() {
    for (const char* key :
         {"latitude", "longitude", "altitude", "gpsDateTime", "gpsMapDatum", "gpsVersionID"})
        setValueForKey(key, {});
}
