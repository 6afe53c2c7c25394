#include "ui/photos/PhotoFilter.h"

#include "photo/KTPhotoPropertyTable.h"

#include <QStringList>

namespace {

constexpr std::string_view kSearchedKeys[] = {"filename",       "keywords",  "people",      "event",
                                              "description",    "title",     "cityCreated", "stateCreated",
                                              "countryCreated", "cityShown", "stateShown",  "countryShown"};

/// What a reader types and what a file holds may differ in letter case and in how accents are composed.
QString folded(const QString& text) {
    return text.normalized(QString::NormalizationForm_KC).toCaseFolded();
}

} // namespace

void PhotoFilter::setText(const QString& text) {
    wanted = text;
    words = folded(text).split(' ', Qt::SkipEmptyParts);
}

std::size_t PhotoFilter::prepare(const std::vector<std::shared_ptr<KTPhoto>>& photos, std::size_t from,
                                 std::chrono::milliseconds time) {
    if (words.isEmpty())
        return photos.size();
    const auto end = std::chrono::steady_clock::now() + time;
    while (from < photos.size() && std::chrono::steady_clock::now() < end)
        textsOf(*photos[from++]);
    return from;
}

bool PhotoFilter::matches(const std::shared_ptr<KTPhoto>& photo) {
    if (!isOfKind(photo))
        return false;
    return words.isEmpty() ||
           std::ranges::all_of(words, [&, searched = &textsOf(*photo)](const QString& word) {
               return searched->contains(word);
           });
}

bool PhotoFilter::isOfKind(const std::shared_ptr<KTPhoto>& photo) const {
    switch (wantedKind) {
    case Kind::All:
        return true;
    case Kind::WithoutLocation:
        return !photo->isGeotagged();
    case Kind::Unsaved:
        return photo->hasUnsavedChanges();
    case Kind::Failed: {
        const auto last = photo->lastPhotoOperation();
        return last && last->resultType() == KTPhotoOperation::Failure;
    }
    case Kind::WithoutDate:
        return !photo->dateTimeOriginal();
    case Kind::FarFromTracks:
        return isFar && isFar(photo);
    }
    return true;
}

const QString& PhotoFilter::textsOf(const KTPhoto& photo) {
    const auto known = texts.find(&photo);
    if (known != texts.end())
        return known->second;
    QString all;
    for (const std::string_view key : kSearchedKeys)
        if (const KTValue value = photo.valueForKey(key); value.isSomething())
            all += QString::fromStdString(value.description()) + '\n';
    return texts[&photo] = folded(all);
}
