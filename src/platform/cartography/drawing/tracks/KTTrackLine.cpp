#include "platform/cartography/drawing/tracks/KTTrackLine.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

constexpr std::int64_t kUndated = std::numeric_limits<std::int64_t>::min();
constexpr double kTileSize = 256;     // logical pixels of the world at zoom 0
constexpr int kFinestZoom = 18;       // from here on every point is drawn
constexpr double kTolerance = 0.35;   // logical pixels
constexpr double kShortestGap = 4;    // logical pixels; shorter ones could not be told from the line
constexpr double kWorthALevel = 0.85; // of the points of the finer level

bool isPosition(KTMapPoint point) {
    return std::isfinite(point.x) && std::abs(point.y) <= 90 && std::abs(point.x) <= 360;
}

/// On a sphere, near enough for neighbours.
double metresBetween(KTMapPoint from, KTMapPoint to) {
    constexpr double kMetresOfDegree = 111'195, kRadiansOfDegree = 0.017453292519943295;
    const double x = std::remainder(to.x - from.x, 360) * std::cos((from.y + to.y) / 2 * kRadiansOfDegree);
    return std::hypot(x, to.y - from.y) * kMetresOfDegree;
}

bool isGap(const KTTrackPosition& from, const KTTrackPosition& to, bool beginsSegment) {
    const bool isLate =
        from.date && to.date && std::chrono::abs(*to.date - *from.date) > KTTrackLine::kGapTime;
    return (beginsSegment || isLate) && metresBetween(from.position, to.position) > KTTrackLine::kGapDistance;
}

KTWorldPoint between(KTWorldPoint from, KTWorldPoint to, double part) {
    return {from.x + (to.x - from.x) * part, from.y + (to.y - from.y) * part};
}

/// How far along the line from @p from to @p to the place nearest to @p point lies, from 0 to 1.
double nearestPart(KTWorldPoint from, KTWorldPoint to, KTWorldPoint point) {
    const double x = to.x - from.x, y = to.y - from.y, squared = x * x + y * y;
    if (squared == 0)
        return 0;
    return std::clamp(((point.x - from.x) * x + (point.y - from.y) * y) / squared, 0.0, 1.0);
}

double squaredDistance(KTWorldPoint a, KTWorldPoint b) {
    return (a.x - b.x) * (a.x - b.x) + (a.y - b.y) * (a.y - b.y);
}

double squaredDistance(const KTWorldRect& box, KTWorldPoint point) {
    const KTWorldPoint inside{std::clamp(point.x, box.left, box.right),
                              std::clamp(point.y, box.top, box.bottom)};
    return squaredDistance(inside, point);
}

} // namespace

KTTrackLine::KTTrackLine(const std::vector<std::vector<KTTrackPosition>>& segments) {
    std::size_t count = 0;
    for (const auto& segment : segments)
        count += segment.size();
    world.reserve(count);
    dates.reserve(count);
    const KTTrackPosition* last = nullptr;
    for (const auto& segment : segments) {
        bool beginsSegment = true;
        for (const KTTrackPosition& point : segment) {
            if (!isPosition(point.position))
                continue;
            append(point, !last || isGap(*last, point, beginsSegment));
            last = &point;
            beginsSegment = false;
        }
    }
    if (!world.empty())
        makeLevels();
}

void KTTrackLine::append(const KTTrackPosition& point, bool afterGap) {
    KTWorldPoint place = KTProject(point.position);
    if (world.empty()) {
        place.x -= std::floor(place.x);
        box = {place.x, place.y, place.x, place.y};
    } else {
        place.x -= std::round(place.x - world.back().x); // the short way round
        box = {std::min(box.left, place.x), std::min(box.top, place.y), std::max(box.right, place.x),
               std::max(box.bottom, place.y)};
    }
    if (afterGap)
        runs.push_back(std::uint32_t(world.size()));
    world.push_back(place);
    dates.push_back(point.date ? point.date->time_since_epoch().count() : kUndated);
}

void KTTrackLine::makeLevels() {
    levels.emplace_back(world, runs);
    levelOfZoom.assign(kFinestZoom + 1, 0);
    for (int zoom = kFinestZoom - 1; zoom >= 0; --zoom) {
        const double pixel = 1 / (kTileSize * std::exp2(zoom));
        TrackLevel level(levels.back(), world, kTolerance * pixel, kShortestGap * pixel);
        const std::size_t finer = levels.back().indexes().size();
        if (double(level.indexes().size()) < kWorthALevel * double(finer))
            levels.push_back(std::move(level));
        levelOfZoom[std::size_t(zoom)] = levels.size() - 1;
    }
}

const TrackLevel& KTTrackLine::levelForZoom(double zoom) const {
    static const TrackLevel nothing({}, {});
    if (levels.empty())
        return nothing;
    const double wanted = std::ceil(std::clamp(std::isnan(zoom) ? 0 : zoom, 0.0, double(kFinestZoom)));
    return levels[levelOfZoom[std::size_t(wanted)]];
}

std::optional<KTMapBounds> KTTrackLine::bounds() const {
    if (world.empty())
        return std::nullopt;
    const KTMapPoint northWest = KTUnproject({box.left, box.top}),
                     southEast = KTUnproject({box.right, box.bottom});
    const double width = std::min(southEast.x - northWest.x, 360.0);
    const double west = KTNormalizedLongitude(northWest.x);
    return KTMapBounds{west, southEast.y, west + width, northWest.y};
}

std::optional<KTTrackLine::Place> KTTrackLine::nearest(KTWorldPoint point, double radius, double zoom) const {
    const TrackLevel& level = levelForZoom(zoom);
    const auto& indexes = level.indexes();
    double best = radius * radius;
    std::optional<std::pair<std::size_t, std::size_t>> found; // the neighbours in the level
    const auto look = [&](std::size_t first, std::size_t second) {
        const KTWorldPoint from = world[first], to = world[second];
        const double distance = squaredDistance(between(from, to, nearestPart(from, to, point)), point);
        if (distance <= best) {
            best = distance;
            found = {first, second};
        }
    };
    for (const TrackLevel::Chunk& chunk : level.chunks()) {
        if (chunk.beginsRun && chunk.first > 0)
            look(indexes[chunk.first - 1], indexes[chunk.first]); // the gap
        if (squaredDistance(chunk.box, point) > best)
            continue;
        look(indexes[chunk.first], indexes[chunk.first]);
        for (std::size_t i = chunk.first; i < chunk.last; ++i)
            look(indexes[i], indexes[i + 1]);
    }
    if (!found)
        return std::nullopt;
    return placeAmong(found->first, found->second, point);
}

/// What the level has as one straight line may be many points in truth.
KTTrackLine::Place KTTrackLine::placeAmong(std::size_t first, std::size_t second, KTWorldPoint point) const {
    Place nearestPlace = placeBetween(first, second == first ? first : first + 1, point);
    for (std::size_t i = first + 1; i < second; ++i)
        if (const Place place = placeBetween(i, i + 1, point); place.distance < nearestPlace.distance)
            nearestPlace = place;
    return nearestPlace;
}

KTTrackLine::Place KTTrackLine::placeBetween(std::size_t first, std::size_t second,
                                             KTWorldPoint point) const {
    const double part = nearestPart(world[first], world[second], point);
    Place place{.point = between(world[first], world[second], part)};
    place.distance = std::sqrt(squaredDistance(place.point, point));
    place.isInGap = first != second && std::ranges::binary_search(runs, std::uint32_t(second));
    if (dates[first] != kUndated && dates[second] != kUndated)
        place.date = KTInstantFromMilliseconds(dates[first] +
                                               std::llround(part * double(dates[second] - dates[first])));
    return place;
}
