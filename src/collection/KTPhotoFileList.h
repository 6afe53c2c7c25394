#pragma once
#include <filesystem>
#include <span>
#include <stop_token>
#include <string>
#include <vector>

/// The photo files that dropped, opened or typed paths stand for. A value type.
struct KTPhotoFileList {
    /// As given, or as found below a given folder, ordered without regard to letter case. Symbolic links are
    /// not resolved in them, but no two lead to the same file: of those that do, the first in order stays.
    std::vector<std::filesystem::path> files;
    /// Texts for users that name a folder that cannot be read, a file that is not there, or a given path that
    /// stands for no photo.
    std::vector<std::string> problems;

    /// Looks up @p paths: a folder stands for the images below it at any depth, an XMP sidecar for the first
    /// image, by name, that lies beside it under the same name, another file for itself if it is an image.
    /// Symbolic links to files are followed; links to folders only where they are given themselves, so that
    /// circles do no harm. Folders of replacements under way are left out. Reads no image. Ends early, with
    /// what it has, when @p stop is asked for. Any thread.
    static KTPhotoFileList fromPaths(const std::vector<std::filesystem::path>& paths,
                                     const std::stop_token& stop = {});

    /// The accepted file name extensions, without the dot: those of images, and at the end that of XMP
    /// sidecars.
    static std::span<const std::string_view> validFileTypes();
    /// Whether @p path ends with a dot and an accepted extension, in any letter case and with any diacritical
    /// marks.
    static bool validFileTypePredicate(std::string_view path);
    /// The same for the images alone.
    static bool validPhotoTypePredicate(std::string_view path);
};
