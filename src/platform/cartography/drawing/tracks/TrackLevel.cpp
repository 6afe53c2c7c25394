#include "platform/cartography/drawing/tracks/TrackLevel.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr std::size_t kPointsOfChunk = 128;

struct Vector {
    double x, y;
};

Vector operator-(const KTWorldPoint& to, const KTWorldPoint& from) {
    return {to.x - from.x, to.y - from.y};
}

double cross(Vector a, Vector b) {
    return a.x * b.y - a.y * b.x;
}

double dot(Vector a, Vector b) {
    return a.x * b.x + a.y * b.y;
}

double distance(const KTWorldPoint& from, const KTWorldPoint& to) {
    return std::hypot(to.x - from.x, to.y - from.y);
}

/// The directions from a point in which a line passes every point seen so far within the tolerance.
class Sleeve {
public:
    Sleeve(KTWorldPoint start, double widest) : anchor(start), tolerance(widest) {}

    /// Whether a line to @p point passes those before it; takes the point in.
    bool takes(KTWorldPoint point) {
        const Vector to = point - anchor;
        const double squared = dot(to, to);
        if (squared <= tolerance * tolerance)
            return farthest <= 2 * tolerance; // else the line has come back
        const double length = std::sqrt(squared);
        if (length < farthest - tolerance) // it turns back on itself
            return false;
        farthest = std::max(farthest, length);
        if (hasSides && (cross(right, to) < 0 || cross(left, to) > 0 || dot(left, to) <= 0))
            return false;
        narrow(to, squared, std::sqrt(squared - tolerance * tolerance));
        return true;
    }

private:
    /// The tangents from the anchor to the circle of the tolerance around the end of @p to.
    void narrow(Vector to, double squared, double tangent) {
        const double along = tangent / squared, aside = tolerance / squared;
        const Vector ahead = {to.x * along, to.y * along}, across = {-to.y * aside, to.x * aside};
        const Vector newLeft = {ahead.x + across.x, ahead.y + across.y};
        const Vector newRight = {ahead.x - across.x, ahead.y - across.y};
        if (!hasSides || cross(left, newLeft) < 0)
            left = newLeft;
        if (!hasSides || cross(right, newRight) > 0)
            right = newRight;
        hasSides = true;
    }

    KTWorldPoint anchor;
    double tolerance, farthest = 0;
    bool hasSides = false;
    Vector left = {}, right = {};
};

KTWorldRect boxAround(const KTWorldPoint& point) {
    return {point.x, point.y, point.x, point.y};
}

void widen(KTWorldRect& box, const KTWorldPoint& point) {
    box.left = std::min(box.left, point.x);
    box.right = std::max(box.right, point.x);
    box.top = std::min(box.top, point.y);
    box.bottom = std::max(box.bottom, point.y);
}

} // namespace

TrackLevel::TrackLevel(const std::vector<KTWorldPoint>& points, const std::vector<std::uint32_t>& starts) {
    chosen.reserve(points.size());
    for (std::size_t run = 0; run < starts.size(); ++run) {
        const std::size_t begin = chosen.size();
        const std::size_t end = run + 1 < starts.size() ? starts[run + 1] : points.size();
        for (std::size_t index = starts[run]; index < end; ++index)
            chosen.push_back(std::uint32_t(index));
        addRun(begin, points);
    }
}

TrackLevel::TrackLevel(const TrackLevel& finer, const std::vector<KTWorldPoint>& points, double tolerance,
                       double shortestGap) {
    std::vector<std::uint32_t> run;
    for (const Chunk& chunk : finer.pieces) {
        const std::uint32_t first = finer.chosen[chunk.first];
        if (chunk.beginsRun && !run.empty() && distance(points[run.back()], points[first]) > shortestGap) {
            simplifyRun(run, points, tolerance);
            run.clear();
        }
        const auto begin = finer.chosen.begin() + chunk.first + (chunk.beginsRun ? 0 : 1);
        run.insert(run.end(), begin, finer.chosen.begin() + chunk.last + 1);
    }
    if (!run.empty())
        simplifyRun(run, points, tolerance);
    chosen.shrink_to_fit();
}

/// One pass: from each point that is kept, as far as one straight line stays near enough to what it replaces.
void TrackLevel::simplifyRun(const std::vector<std::uint32_t>& run, const std::vector<KTWorldPoint>& points,
                             double tolerance) {
    const std::size_t begin = chosen.size();
    chosen.push_back(run.front());
    Sleeve sleeve(points[run.front()], tolerance);
    for (std::size_t i = 1; i < run.size(); ++i) {
        if (sleeve.takes(points[run[i]]))
            continue;
        if (chosen.back() != run[i - 1])
            chosen.push_back(run[i - 1]);
        sleeve = Sleeve(points[run[i - 1]], tolerance);
        sleeve.takes(points[run[i]]);
    }
    if (run.size() > 1)
        chosen.push_back(run.back());
    addRun(begin, points);
}

void TrackLevel::addRun(std::size_t begin, const std::vector<KTWorldPoint>& points) {
    const std::size_t end = chosen.size() - 1; // the last one's
    for (std::size_t first = begin; first < end || first == begin; first += kPointsOfChunk) {
        Chunk chunk{boxAround(points[chosen[first]]), std::uint32_t(first),
                    std::uint32_t(std::min(first + kPointsOfChunk, end)), first == begin};
        for (std::size_t i = first + 1; i <= chunk.last; ++i)
            widen(chunk.box, points[chosen[i]]);
        pieces.push_back(chunk);
    }
}
