#pragma once
#include "metadata/KTTagDictionary.h"

#include <filesystem>
#include <optional>
#include <string>

class KTExifTool;

/// Where a photo was taken and what place it shows, as far as its file tells, in whatever block. The contact
/// of the photographer does not count. A value type.
class KTLocationTraces {
public:
    /// What a file that holds @p tags tells; with @p shown, the names of places that the user sees.
    KTLocationTraces(const KTTagDictionary& tags, const std::vector<std::string>& shown);

    /// Whether a tag tells of a place, by its name: a position or a part of one, a place's name, or the
    /// history of edits, in which either may stand.
    static bool isPlaceKey(std::string_view key);

    /// @p tags without the tags that tell of a place, and without list elements that are the name of one.
    KTTagDictionary removedFrom(const KTTagDictionary& tags) const;
    /// The changes that remove from a file that holds @p tags what removedFrom leaves out.
    KTTagDictionary removalsFor(const KTTagDictionary& tags) const;
    /// What in @p file, read by @p tool, still tells a place, for users; nothing when it tells none. Looks at
    /// every tag of every block and at the positions and names in embedded pictures and unknown blocks.
    std::optional<std::string> foundIn(const std::filesystem::path& file, KTExifTool& tool) const;

private:
    bool isName(std::string_view text) const;
    std::optional<std::string> nameIn(std::string_view text) const;
    KTValue withoutNames(const KTValue& value) const;

    std::vector<std::string> names; // in small letters
};
