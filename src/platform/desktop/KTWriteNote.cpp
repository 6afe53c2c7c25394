#include "platform/desktop/KTWriteNote.h"

#include "platform/desktop/KTProcessIdentity.h"

#include <algorithm>
#include <cstdlib>
#include <fcntl.h>
#include <fstream>
#include <iterator>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

constexpr std::string_view kEnd = "\nwrites\n"; // parts the process from the file

fs::path& folderOfNotes() {
    static fs::path folder;
    return folder;
}

struct Note {
    KTProcessIdentity owner;
    fs::path target;
};

/// A note whose end is missing was cut off before the write began.
Note noteIn(const fs::path& file) {
    std::ifstream stream(file, std::ios::binary);
    const std::string text(std::istreambuf_iterator<char>(stream), {});
    const std::size_t end = text.find(kEnd);
    if (end == std::string::npos)
        return {KTProcessIdentity::fromText(text), {}};
    return {KTProcessIdentity::fromText(text.substr(0, end + 1)), text.substr(end + kEnd.size())};
}

} // namespace

fs::path KTStateFolder() {
    const char* state = std::getenv("XDG_STATE_HOME");
    const char* home = std::getenv("HOME");
    return (state != nullptr && *state == '/' ? fs::path(state)
                                              : fs::path(home != nullptr ? home : ".") / ".local/state") /
           "waymark";
}

void KTWriteNote::setFolder(const fs::path& folder) {
    folderOfNotes() = folder;
    std::error_code error;
    if (!folder.empty() && fs::create_directories(folder, error))
        fs::permissions(folder, fs::perms::owner_all, error);
}

fs::path KTWriteNote::userFolder() {
    return KTStateFolder() / "writing";
}

KTWriteNote::KTWriteNote(const fs::path& target) {
    if (folderOfNotes().empty())
        return;
    std::string name = (folderOfNotes() / "XXXXXX").string();
    const int made = ::mkostemp(name.data(), O_CLOEXEC);
    if (made < 0)
        return;
    note = name;
    std::error_code error;
    const std::string text =
        KTProcessIdentity::ofThisProcess().text() + std::string(kEnd) + fs::absolute(target, error).string();
    [[maybe_unused]] const auto written = ::write(made, text.data(), text.size());
    ::close(made);
}

KTWriteNote::~KTWriteNote() {
    if (!note.empty())
        ::unlink(note.c_str());
}

std::vector<fs::path> KTWriteNote::takeLeftBehind() {
    std::vector<fs::path> targets;
    std::error_code error;
    for (fs::directory_iterator entry(folderOfNotes(), error), end; !error && entry != end;
         entry.increment(error)) {
        const Note note = noteIn(entry->path());
        if (!note.owner.isGone())
            continue;
        if (!note.target.empty())
            targets.push_back(note.target);
        std::error_code ignored;
        fs::remove(entry->path(), ignored);
    }
    std::ranges::sort(targets);
    const auto [first, last] = std::ranges::unique(targets);
    targets.erase(first, last);
    return targets;
}
