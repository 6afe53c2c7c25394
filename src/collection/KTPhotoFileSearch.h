#pragma once
#include "collection/KTPhotoFileList.h"

#include <map>

/// Collects the photo files for one list. One thread.
class KTPhotoFileSearch {
public:
    explicit KTPhotoFileSearch(std::stop_token stopToken) : stop(std::move(stopToken)) {}

    /// Adds the photos that @p path stands for, and what is to be said about it.
    void add(const std::filesystem::path& path);
    /// What was found, in order and without duplicates. Ends the search.
    KTPhotoFileList result();

private:
    struct File {
        std::filesystem::path path, real; // as listed; absolute, without symbolic links
    };

    void addFolder(const std::filesystem::path& folder);
    void addSidecar(const std::filesystem::path& sidecar);
    void addFile(const std::filesystem::path& file);
    void addProblem(const std::filesystem::path& path, const std::error_code& error);
    void listFolder(const File& folder, std::vector<File>& foldersBelow);
    void addLink(const std::filesystem::path& link);
    const std::map<std::string, std::string>& imagesByStem(const std::filesystem::path& folder);

    std::stop_token stop;
    std::vector<File> files; // in the order found, with duplicates
    std::vector<std::string> problems;
    // By folder: the first image of each name without extension, kept because sidecars come in numbers.
    std::map<std::filesystem::path, std::map<std::string, std::string>> imagesByFolder;
};
