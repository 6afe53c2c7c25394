#include "metadata/KTExifToolLease.h"

#include <thread>

namespace {

constexpr std::size_t kMostBridges = 4; // of some 60 MB each

struct Returned {
    std::mutex mutex;
    std::vector<std::unique_ptr<KTExifTool>> tools;

    static Returned& all() {
        static Returned& kept = *new Returned; // goes with the process: taking interpreters down takes time
        return kept;
    }
};

} // namespace

KTExifToolLease::KTExifToolLease() {
    Returned& returned = Returned::all();
    {
        std::lock_guard guard(returned.mutex);
        if (!returned.tools.empty()) {
            tool = std::move(returned.tools.back());
            returned.tools.pop_back();
        }
    }
    if (!tool)
        tool = std::make_unique<KTExifTool>();
}

KTExifToolLease::~KTExifToolLease() {
    Returned& returned = Returned::all();
    std::lock_guard guard(returned.mutex);
    returned.tools.push_back(std::move(tool));
}

unsigned KTExifToolLease::usefulBridges(std::size_t files, std::size_t repayingOne) {
    const std::size_t useful = std::min(kMostBridges, 1 + files / repayingOne);
    return static_cast<unsigned>(std::clamp<std::size_t>(std::thread::hardware_concurrency(), 1, useful));
}
