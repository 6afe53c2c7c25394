#pragma once
#include "photo/KTPhoto.h"

#include <QStringList>
#include <unordered_map>
#include <unordered_set>

/// Which photos the views list: those with all the words of a text in their file name, keywords, people or
/// place names, and of a kind. Remembers each photo's texts until it is told that they changed. Main thread.
class PhotoFilter {
public:
    enum class Kind { All, WithoutLocation, Unsaved, Failed, WithoutDate, FarFromTracks };

    /// Whether a photo is far from every track; without it none is.
    using IsFar = std::function<bool(const std::shared_ptr<KTPhoto>&)>;
    void setIsFar(IsFar question) { isFar = std::move(question); }

    const QString& text() const { return wanted; }
    void setText(const QString& text);
    Kind kind() const { return wantedKind; }
    void setKind(Kind kind) { wantedKind = kind; }

    bool letsAllThrough() const { return words.isEmpty() && wantedKind == Kind::All; }
    /// Reads the texts that matches() needs of @p photos, from number @p from on, for some @p time at most;
    /// the number of the first one that is left.
    std::size_t prepare(const std::vector<std::shared_ptr<KTPhoto>>& photos, std::size_t from,
                        std::chrono::milliseconds time);
    bool matches(const std::shared_ptr<KTPhoto>& photo);
    /// Its texts are looked up anew.
    void forget(const KTPhoto* photo) { texts.erase(photo); }

private:
    bool isOfKind(const std::shared_ptr<KTPhoto>& photo) const;
    const QString& textsOf(const KTPhoto& photo);

    QString wanted;
    QStringList words;
    Kind wantedKind = Kind::All;
    IsFar isFar;
    std::unordered_map<const KTPhoto*, QString> texts;
};
