#include "platform/tracklibrary/KTTrackManager.h"

#include <cstdlib>

namespace {

struct SharedLibrary {
    SharedLibrary() {
        KTTrackStore::Opened opened = KTTrackStore::open(KTTrackManager::userLibraryFile());
        if (!opened.store) {
            problem = opened.error;
            opened = KTTrackStore::open(":memory:");
        }
        manager = std::make_unique<KTTrackManager>(std::move(opened.store));
    }

    std::string problem;
    std::unique_ptr<KTTrackManager> manager;
};

SharedLibrary& sharedLibrary() {
    static SharedLibrary library;
    return library;
}

} // namespace

KTTrackManager& KTTrackManager::sharedTrackManager() {
    return *sharedLibrary().manager;
}

const std::string& KTTrackManager::sharedTrackManagerProblem() {
    return sharedLibrary().problem;
}

std::filesystem::path KTTrackManager::userLibraryFile() {
    const char* data = std::getenv("XDG_DATA_HOME");
    const char* home = std::getenv("HOME");
    std::filesystem::path folder = data != nullptr && *data == '/'
                                       ? std::filesystem::path(data)
                                       : std::filesystem::path(home != nullptr ? home : ".") / ".local/share";
    return folder / "waymark" / "tracks.sqlite";
}
