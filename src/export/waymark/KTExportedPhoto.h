#pragma once
#include <chrono>
#include <filesystem>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

/// A moment in time, in whole milliseconds since 1970-01-01T00:00:00Z.
using KTExportedInstant = std::chrono::sys_time<std::chrono::milliseconds>;

/// A value of a photo: none, text, number, flag, list of texts or moment. Dates without a known time zone are
/// text ("2014:06:01 12:00:00").
using KTExportedValue =
    std::variant<std::monostate, std::string, double, bool, std::vector<std::string>, KTExportedInstant>;

/// A photo to be exported, as it was when the export was chosen: the user's later edits do not show in it.
/// Made by the host. Any thread.
class KTExportedPhoto {
public:
    virtual ~KTExportedPhoto() = default;

    /// The image file, which is read only and may be gone.
    virtual std::filesystem::path path() const = 0;
    /// The file's name with its extension.
    virtual std::string filename() const = 0;
    /// The file's type identifier ("public.jpeg"); empty for an unknown one.
    virtual std::string uti() const = 0;
    /// The value of a field of KTPhotoExportManager::metadataFields, edits that are not saved included; none
    /// for an unknown key. Of a photo whose place the user keeps to himself (near a place that no export may
    /// tell, or in an export without locations), position and place names are none.
    virtual KTExportedValue valueForKey(std::string_view key) const = 0;
};
