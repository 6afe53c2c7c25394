#pragma once
#include <filesystem>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

/// The tags that the `exiftool` program finds in one file. Keys are "EXIF:IFD0:Make", group names of the
/// families 0, 1 and 3; a value is its text, that of a list or structure JSON with sorted keys, that of
/// binary data base64.
struct FileTags {
    struct Tag {
        std::string key, value;
    };
    std::vector<Tag> tags; ///< in the order of the file

    /// Whether some tag has that group of family 0.
    bool hasGroup(std::string_view group) const;
    /// The values of "EXIF:Make" wherever the file keeps it.
    std::vector<std::string> all(std::string_view groupAndName) const;
    /// The last of them, which is the one that counts; empty when there is none.
    std::string textOf(std::string_view groupAndName) const;
    /// By key; of tags that share a key each value, sorted.
    std::map<std::string, std::vector<std::string>> byKey() const;
};

/// "[\"a\",\"b\"]", and "a" for one element alone, as FileTags shows a list.
std::string listText(const std::vector<std::string>& elements);

// Each of the following is one process of the `exiftool` that is installed, over all files of a folder.

/// The tags of each file, by file name: everything that the program can show, composites apart.
std::map<std::string, FileTags> readTags(const std::filesystem::path& folder);
/// The names of the files that the program cannot write.
std::set<std::string> refusedFiles(const std::filesystem::path& folder);
/// Copies the JPEG files of @p folder without any metadata to @p into.
void stripFiles(const std::filesystem::path& folder, const std::filesystem::path& into);
/// Makes a sidecar from each file of @p folder, with all that XMP can hold of its metadata, in @p into.
void makeSidecars(const std::filesystem::path& folder, const std::filesystem::path& into);
