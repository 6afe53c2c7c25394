#pragma once
#include <filesystem>
#include <stop_token>
#include <vector>

/// What dropped or opened paths hold for whom. A value type.
struct DroppedFiles {
    using Paths = std::vector<std::filesystem::path>;

    /// Photos and sidecars, and those of the given folders that hold any, whole: the photo manager lists
    /// folders itself.
    Paths photos;
    /// Track files, by path; also those in the given folders, at any depth. Links to folders are followed
    /// only where they are given themselves.
    Paths tracks;
    /// Plug-in bundles among the given paths, where these are asked for.
    Paths bundles;

    /// Looks through the folders among @p paths. With @p bundlesAreFiles a bundle, a folder named
    /// "*.ktplugin", is one of `bundles` and not looked into; without, it is a folder as others. Ends early,
    /// with what it has, when @p stop is requested. What cannot be read is left out. Any thread.
    static DroppedFiles inPaths(const Paths& paths, bool bundlesAreFiles, const std::stop_token& stop = {});

private:
    bool lookThrough(const std::filesystem::path& folder, bool bundlesAreFiles, const std::stop_token& stop);
};
