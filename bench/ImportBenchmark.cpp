// Imports a GPX file of a million points into a new track library and lets gpsbabel read the same file in
// turn; then searches the library. Prints the times, their ratio and the import's memory.
#include "platform/tracklibrary/KTTrackManager.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

constexpr int kPoints = 1'000'000, kSearches = 10'000, kRounds = 3;
constexpr std::int64_t kStart = 1'401'616'800'000; // 2014-06-01T10:00:00Z, one point a second from then on

double secondsOf(const std::function<void()>& work) {
    auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

void writeMillionPoints(const std::filesystem::path& file) {
    std::ofstream out(file);
    out << "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<gpx version=\"1.1\" creator=\"Waymark\" "
           "xmlns=\"http://www.topografix.com/GPX/1/1\">\n<trk><name>Million</name><trkseg>\n";
    std::array<char, 160> line;
    for (std::int64_t i = 0; i < kPoints; ++i) {
        std::snprintf(line.data(), line.size(),
                      "<trkpt lat=\"%.7f\" lon=\"%.7f\"><ele>%.1f</ele><time>%s</time></trkpt>\n",
                      46 + static_cast<double>(i) * 1.3e-6, 14 + static_cast<double>(i * 7919 % 10007) * 1e-6,
                      300 + static_cast<double>(i % 977) * 0.7,
                      KTISO8601Text(KTInstantFromMilliseconds(kStart + i * 1000)).c_str());
        out << line.data();
    }
    out << "</trkseg></trk></gpx>\n";
}

/// Runs @p work in a process of its own, so that its peak memory can be told; returns it in MB, or -1 on
/// failure.
long peakMemoryOf(const std::function<bool()>& work) {
    pid_t child = fork();
    if (child == 0)
        _exit(work() ? 0 : 1);
    int status = 0;
    rusage usage{};
    wait4(child, &status, 0, &usage);
    return status == 0 ? usage.ru_maxrss / 1024 : -1;
}

bool importInto(const std::filesystem::path& library, const std::filesystem::path& gpx) {
    auto opened = KTTrackStore::open(library);
    if (!opened.store)
        return false;
    return KTTrackManager(std::move(opened.store)).importFile(gpx).pointCount == kPoints;
}

bool readWithGPSBabel(const std::filesystem::path& gpx) {
    return peakMemoryOf([&] {
               execlp("gpsbabel", "gpsbabel", "-i", "gpx", "-f", gpx.c_str(), "-o", "unicsv", "-F",
                      "/dev/null", nullptr);
               return false;
           }) >= 0;
}

void benchmarkImport(const std::filesystem::path& folder, const std::filesystem::path& gpx) {
    double ours = 1e9, theirs = 1e9;
    long memory = 0;
    bool hasWorked = true;
    for (int round = 0; round < kRounds; ++round) {
        auto library = folder / ("library" + std::to_string(round));
        ours = std::min(ours, secondsOf([&] {
                            memory = std::max(memory, peakMemoryOf([&] { return importInto(library, gpx); }));
                        }));
        theirs = std::min(theirs, secondsOf([&] { hasWorked &= readWithGPSBabel(gpx); }));
    }
    std::printf(
        "import of %d points: %.2f s, %ld MB%s; gpsbabel reads them in %.2f s%s; ratio %.2f (aim 0.60)\n",
        kPoints, ours, memory, memory > 0 ? "" : " (FAILED)", theirs, hasWorked ? "" : " (FAILED)",
        ours / theirs);
}

void benchmarkSearch(const std::filesystem::path& library) {
    auto opened = KTTrackStore::open(library);
    if (!opened.store) {
        std::printf("search: %s\n", opened.error.c_str());
        return;
    }
    int found = 0;
    double seconds = secondsOf([&] {
        for (std::int64_t i = 0; i < kSearches; ++i) {
            KTInstant time = KTInstantFromMilliseconds(kStart + 500 + i * 7919 % kPoints * 1000);
            found += opened.store->pointPrecedingTime(time).has_value();
            found += opened.store->pointFollowingTime(time).has_value();
        }
    });
    std::printf("%d searches of preceding and next among %d points: %.3f s, %d found (aim 1 s)\n", kSearches,
                kPoints, seconds, found);
}

} // namespace

int main() {
    std::string pattern = (std::filesystem::temp_directory_path() / "waymark-bench-XXXXXX").string();
    if (!mkdtemp(pattern.data())) {
        std::perror("waymark-bench");
        return 1;
    }
    std::filesystem::path folder = pattern, gpx = folder / "million.gpx";
    writeMillionPoints(gpx);
    benchmarkImport(folder, gpx);
    benchmarkSearch(folder / "library0");
    std::filesystem::remove_all(folder);
}
