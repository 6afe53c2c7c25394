#pragma once
#include "export/waymark/KTExportedPhoto.h"
#include "photo/KTPhoto.h"

/// A copy of a photo as plug-ins see it. Any thread.
class KTExportedPhotoCopy final : public KTExportedPhoto {
public:
    explicit KTExportedPhotoCopy(std::shared_ptr<KTPhoto> copy) : copied(std::move(copy)) {}

    /// Before the copy is handed out: plug-ins do not see where the photo was taken or what place it shows.
    void hideLocation() { isLocationHidden = true; }
    bool hidesLocation() const { return isLocationHidden; }

    /// The record itself, for the host.
    const std::shared_ptr<KTPhoto>& photo() const { return copied; }

    std::filesystem::path path() const override { return copied->fileURL(); }
    std::string filename() const override { return copied->filename(); }
    std::string uti() const override { return copied->uti().description(); }
    KTExportedValue valueForKey(std::string_view key) const override;

private:
    const std::shared_ptr<KTPhoto> copied;
    bool isLocationHidden = false;
};
