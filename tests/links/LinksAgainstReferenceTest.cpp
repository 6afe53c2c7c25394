#include "geotagging/KTLinkingOperation.h"
#include "photo/KTPhoto.h"
#include "platform/concurrency/KTOperationQueue.h"
#include "platform/tracklibrary/KTTrackManager.h"
#include "platform/tracklibrary/KTTrackStore.h"
#include "tests/support/TestSupport.h"

#include <cmath>
#include <cstdlib>
#include <ctime>
#include <fstream>
#include <gtest/gtest.h>
#include <sstream>

namespace fs = std::filesystem;

namespace {

struct Expectation {
    std::int64_t seconds;
    std::string preceding, next, weighted;
};

/// What the reference says of each file, by path.
std::map<fs::path, std::vector<Expectation>> expectations(const fs::path& table) {
    std::map<fs::path, std::vector<Expectation>> result;
    std::ifstream stream(table);
    for (std::string line; std::getline(stream, line);) {
        std::istringstream columns(line);
        std::string file, seconds;
        Expectation expected;
        std::getline(columns, file, '\t');
        std::getline(columns, seconds, '\t');
        std::getline(columns, expected.preceding, '\t');
        std::getline(columns, expected.next, '\t');
        std::getline(columns, expected.weighted, '\t');
        expected.seconds = std::stoll(seconds);
        result[file].push_back(std::move(expected));
    }
    return result;
}

std::string textOf(const KTLinkedPoints::Point& point) {
    auto number = [](const std::optional<KTDecimal>& value) { return value ? value->toText() : ""; };
    return point ? number(point->latitude()) + "," + number(point->longitude()) + "," +
                       number(point->elevation())
                 : "-";
}

bool isSameNumber(const std::string& left, const std::string& right) {
    if (left.empty() || right.empty())
        return left == right;
    constexpr double step = 1e-9; // degrees, metres
    return std::abs(std::stod(left) - std::stod(right)) <= step;
}

/// Whether @p found is one of the positions of @p allowed.
bool isAmong(const std::string& allowed, const std::string& found) {
    std::istringstream positions(allowed);
    for (std::string position; std::getline(positions, position, ';');) {
        std::istringstream left(position), right(found);
        bool isSame = (position == "-") == (found == "-");
        for (int i = 0; i < 3 && isSame && found != "-"; ++i) {
            std::string a, b;
            std::getline(left, a, ',');
            std::getline(right, b, ',');
            isSame = isSameNumber(a, b);
        }
        if (isSame)
            return true;
    }
    return false;
}

class LinksAgainstReference : public testing::Test {
protected:
    /// Links a photo of that instant; its three points as text.
    std::array<std::string, 3> linked(std::int64_t seconds) {
        const auto photo = KTPhoto::init();
        photo->setDateTimeOriginal(KTInstantFromMilliseconds(seconds * 1000));
        const auto operation = std::make_shared<KTLinkingOperation>(photo, search);
        queue.addOperation(operation);
        operation->waitUntilFinished();
        return {textOf(operation->precedingPoint()), textOf(operation->nextPoint()),
                textOf(operation->interpolatedPoint())};
    }

    std::shared_ptr<const KTTrackPointSearch> search;
    KTOperationQueue queue;
};

} // namespace

TEST_F(LinksAgainstReference, FindsTheSamePoints) {
    const char* tracks = std::getenv("WAYMARK_TRACKS");
    if (tracks == nullptr)
        GTEST_SKIP() << "WAYMARK_TRACKS names no folder of tracks";
    const char* given = std::getenv("WAYMARK_SEED");
    const std::string seed = given != nullptr ? given : std::to_string(std::time(nullptr));
    std::printf("WAYMARK_SEED=%s\n", seed.c_str());
    TemporaryFolder folder, crossings;
    const fs::path table = folder / "expected.tsv";
    const std::string command = "python3 '" WAYMARK_REFERENCE "' '" + std::string(tracks) + "' '" + seed +
                                "' '" + table.string() + "' '" + crossings.path().string() + "'";
    ASSERT_EQ(std::system(command.c_str()), 0);

    std::size_t files = 0, instants = 0, weighted = 0;
    for (const auto& [file, expected] : expectations(table)) {
        KTTrackManager library(KTTrackStore::open(":memory:").store);
        const auto imported = library.importFile(file);
        if (!imported.succeeded()) {
            ADD_FAILURE() << file << " is readable for the reference, but: " << imported.error;
            continue;
        }
        search =
            std::make_shared<const KTTrackPointSearch>(std::vector<const KTTrackStore*>{&library.store()});
        ++files;
        for (const Expectation& instant : expected) {
            const auto [preceding, next, between] = linked(instant.seconds);
            EXPECT_TRUE(isAmong(instant.preceding, preceding) && isAmong(instant.next, next) &&
                        isAmong(instant.weighted, between))
                << file << " at " << instant.seconds << ": " << preceding << " | " << next << " | " << between
                << " instead of " << instant.preceding << " | " << instant.next << " | " << instant.weighted;
            ++instants;
            weighted += instant.weighted != "-";
        }
    }
    std::printf("%zu files, %zu instants, %zu of them between points\n", files, instants, weighted);
    EXPECT_GT(weighted, 0U);
}
