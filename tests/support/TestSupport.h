#pragma once
#include <filesystem>
#include <string>
#include <string_view>

/// A new empty folder, removed with its contents at the end of its life.
class TemporaryFolder {
public:
    TemporaryFolder();
    ~TemporaryFolder();
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    const std::filesystem::path& path() const { return folder; }
    std::filesystem::path operator/(const std::filesystem::path& name) const { return folder / name; }
    /// Writes @p content into a new file of this folder and returns its path.
    std::filesystem::path file(const std::filesystem::path& name, std::string_view content) const;

private:
    std::filesystem::path folder;
};

std::string contentOf(const std::filesystem::path& file);
