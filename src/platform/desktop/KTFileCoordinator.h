#pragma once
#include "platform/desktop/KTFilePresenter.h"

/// Keeps the parts of this program out of each other's way on one file: any number read it, or one writes it.
/// Other programs are not kept out; whoever writes asks KTFileStamp whether one was there. Accessors must
/// neither announce nor wait for the main thread. Any thread.
class KTFileCoordinator {
public:
    /// @p owner is not told of what this coordinator writes, nor are presenters of files that belong to its
    /// file.
    explicit KTFileCoordinator(const KTFilePresenter* owner = nullptr) : ownPresenter(owner) {}

    /// From now on @p presenter is told when its file was written, until it is removed; its file must stay
    /// the same meanwhile. Adding twice counts once.
    static void addFilePresenter(KTFilePresenter& presenter);
    static void removeFilePresenter(KTFilePresenter& presenter);

    /// Calls @p read with the file to read. Returns an error text, and does not call, when the file is not
    /// there, is no file, or may not be read.
    std::optional<std::string>
    coordinateReadingItemAtURL(const std::filesystem::path& file,
                               const std::function<void(const std::filesystem::path&)>& read) const;

    /// Calls @p write, which puts something in the place of @p file and returns an error text, nothing when
    /// done; then tells the presenters. Returns what it returned.
    std::optional<std::string>
    coordinateWritingItemAtURL(const std::filesystem::path& file,
                               const std::function<std::optional<std::string>()>& write) const;

private:
    void tellPresenters(const std::filesystem::path& file) const;

    const KTFilePresenter* const ownPresenter;
};
