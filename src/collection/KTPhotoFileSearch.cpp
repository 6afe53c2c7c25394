#include "collection/KTPhotoFileSearch.h"

#include "platform/common/KTLocalizedString.h"
#include "platform/common/KTText.h"
#include "platform/common/KTTextFolding.h"
#include "platform/desktop/KTItemReplacement.h"

#include <algorithm>
#include <unordered_set>

namespace fs = std::filesystem;

void KTPhotoFileSearch::add(const fs::path& path) {
    const std::size_t filesBefore = files.size(), problemsBefore = problems.size();
    std::error_code error;
    if (fs::is_directory(path, error))
        addFolder(path);
    else if (KTEqualIgnoringCase(path.extension().native(), ".xmp"))
        addSidecar(path);
    else
        addFile(path);
    if (files.size() == filesBefore && problems.size() == problemsBefore && !stop.stop_requested())
        problems.push_back(KTStringWithFormat(KTLocalizedString("There is no photo at “%@”."),
                                              {KTValidUTF8(path.string())}));
}

KTPhotoFileList KTPhotoFileSearch::result() {
    std::vector<std::pair<std::string, File>> ordered;
    for (File& file : files) {
        std::string folded = KTCaseFolded(file.path.native());
        ordered.emplace_back(std::move(folded), std::move(file));
    }
    std::ranges::sort(ordered, [](const auto& left, const auto& right) {
        const int byFolded = left.first.compare(right.first);
        return byFolded != 0 ? byFolded < 0 : left.second.path.native() < right.second.path.native();
    });
    KTPhotoFileList list;
    std::unordered_set<std::string> known;
    for (auto& [folded, file] : ordered)
        if (known.insert(file.real.native()).second)
            list.files.push_back(std::move(file.path));
    list.problems = std::move(problems);
    return list;
}

void KTPhotoFileSearch::addProblem(const fs::path& path, const std::error_code& error) {
    problems.push_back(KTStringWithFormat(KTLocalizedString("“%@” cannot be read: %@"),
                                          {KTValidUTF8(path.string()), error.message()}));
}

void KTPhotoFileSearch::addFolder(const fs::path& folder) {
    std::error_code error;
    std::vector<File> folders = {{folder, fs::canonical(folder, error)}};
    if (error)
        return addProblem(folder, error);
    while (!folders.empty() && !stop.stop_requested()) {
        const File next = std::move(folders.back());
        folders.pop_back();
        listFolder(next, folders);
    }
}

void KTPhotoFileSearch::listFolder(const File& folder, std::vector<File>& foldersBelow) {
    std::error_code error;
    fs::directory_iterator entry(folder.path, error);
    for (; !error && entry != fs::directory_iterator() && !stop.stop_requested(); entry.increment(error)) {
        const fs::path name = entry->path().filename();
        std::error_code
            ignored; // the kind comes with the listing, without asking again for each of many files
        if (entry->is_symlink(ignored)) {
            if (KTPhotoFileList::validPhotoTypePredicate(name.native()))
                addLink(entry->path());
        } else if (entry->is_directory(ignored)) {
            if (!KTItemReplacement::isReplacementFolder(name))
                foldersBelow.push_back({entry->path(), folder.real / name});
        } else if (KTPhotoFileList::validPhotoTypePredicate(name.native()) &&
                   entry->is_regular_file(ignored)) {
            files.push_back({entry->path(), folder.real / name});
        }
    }
    if (error)
        addProblem(folder.path, error);
}

void KTPhotoFileSearch::addLink(const fs::path& link) {
    std::error_code error;
    const fs::path real = fs::canonical(link, error);
    if (error)
        addProblem(link, error);
    else if (fs::is_regular_file(real, error))
        files.push_back({link, real});
}

void KTPhotoFileSearch::addFile(const fs::path& file) {
    std::error_code error;
    const fs::path real = fs::canonical(file, error);
    if (!error && !fs::is_regular_file(real, error) && !error)
        error = std::make_error_code(std::errc::invalid_argument);
    if (error)
        addProblem(file, error);
    else if (KTPhotoFileList::validPhotoTypePredicate(file.native()))
        files.push_back({file, real});
}

void KTPhotoFileSearch::addSidecar(const fs::path& sidecar) {
    std::error_code error;
    if (!fs::exists(sidecar, error))
        return addProblem(sidecar,
                          error ? error : std::make_error_code(std::errc::no_such_file_or_directory));
    const auto& images = imagesByStem(sidecar.parent_path());
    if (auto image = images.find(sidecar.stem().native()); image != images.end())
        addFile(sidecar.parent_path() / image->second);
}

const std::map<std::string, std::string>& KTPhotoFileSearch::imagesByStem(const fs::path& folder) {
    auto [known, isNew] = imagesByFolder.try_emplace(folder);
    std::map<std::string, std::string>& images = known->second;
    if (!isNew)
        return images;
    std::error_code error, ignored;
    fs::directory_iterator entry(folder.empty() ? "." : folder, error);
    for (; !error && entry != fs::directory_iterator() && !stop.stop_requested(); entry.increment(error)) {
        const fs::path name = entry->path().filename();
        if (!KTPhotoFileList::validPhotoTypePredicate(name.native()) || !entry->is_regular_file(ignored))
            continue;
        auto [image, isFirst] = images.try_emplace(name.stem().native(), name.native());
        if (!isFirst)
            image->second = std::min(image->second, name.native());
    }
    if (error)
        addProblem(folder, error);
    return images;
}
