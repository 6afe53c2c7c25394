#include "platform/transitions/Transitions.h"

#include <cmath>
#include <numbers>

namespace {

constexpr QRgb kPaper = 0xfff2f0ec, kShadow = 0xff000000;
constexpr unsigned kPaperWeight = 196; // what of the picture shows through on the back of the page
constexpr double kTilt = 0.25;         // of the height: by how much the upper corner comes later
constexpr double kRadius = 0.11;       // of the height
constexpr int kShadowWeight = 110;

/// A page that is rolled up from the right over a cylinder: up to its axis it lies flat, then it goes up
/// around the cylinder, then back to the left on top. In each row the axis is somewhat more to the left than
/// in the row above.
class PageCurl {
public:
    explicit PageCurl(const TransitionFrame& drawnFrame)
        : frame(drawnFrame), radius(std::max(2.0, kRadius * frame.height)), shadow(int(radius)),
          tilt(kTilt * frame.height) {
        for (int x = 0; x < int(radius); ++x)
            arcs.push_back(int(radius * std::asin(x / radius)));
        const double begin = frame.width + tilt, end = -radius - shadow;
        axisOfFirstRow = begin + (end - begin) * frame.progress;
    }

    void drawRow(int y) {
        const int axis = int(axisOfFirstRow - tilt * y / std::max(1, frame.height - 1));
        onto = frame.onto(y);
        from = frame.from(y);
        to = frame.to(y);
        copyRow(onto, from, std::min(axis, frame.width));
        if (axis >= frame.width)
            return;
        drawBackOnTop(axis);
        drawBehind(drawCylinder(axis));
    }

private:
    static unsigned shadowWeight(int distance, int width) {
        return unsigned(kShadowWeight * (width - distance) / width);
    }

    QRgb backOf(int column) const { return mixed(from[column], kPaper, kPaperWeight); }

    /// The part that has come around and lies over the page, with its shadow.
    void drawBackOnTop(int axis) {
        const int halfTurn = int(std::numbers::pi * radius);
        const int edge = 2 * axis + halfTurn - frame.width + 1; // where the page ends
        for (int x = std::max(0, edge); x < axis; ++x)
            onto[x] = backOf(2 * axis - x + halfTurn);
        for (int x = std::max(0, edge - shadow); x < std::min({edge, axis, frame.width}); ++x)
            onto[x] = mixed(onto[x], kShadow, shadowWeight(edge - x, shadow));
    }

    /// What is seen of the page from above on the cylinder; where it ends to the right.
    int drawCylinder(int axis) {
        const int halfTurn = int(std::numbers::pi * radius);
        int end = axis;
        for (int x = std::max(axis, 0); x < std::min(axis + int(arcs.size()), frame.width); ++x) {
            const int arc = arcs[std::size_t(x - axis)];
            const unsigned shade = unsigned(150.0 * arc / halfTurn); // the steeper, the darker
            if (axis + halfTurn - arc < frame.width)
                onto[x] = mixed(backOf(axis + halfTurn - arc), kShadow, shade);
            else if (axis + arc < frame.width)
                onto[x] = mixed(from[axis + arc], kShadow, shade);
            else
                break;
            end = x + 1;
        }
        return std::max(end, std::min(0, axis + int(arcs.size())));
    }

    /// The new picture, on which the roll throws a shadow.
    void drawBehind(int end) {
        const int shadowEnd = std::clamp(end + shadow, 0, frame.width), begin = std::max(end, 0);
        for (int x = begin; x < shadowEnd; ++x)
            onto[x] = mixed(to[x], kShadow, shadowWeight(x - end, shadow));
        const int rest = std::max(begin, shadowEnd);
        copyRow(onto + rest, to + rest, frame.width - rest);
    }

    const TransitionFrame& frame;
    const double radius;
    const int shadow; // its width
    const double tilt;
    double axisOfFirstRow = 0;
    std::vector<int> arcs; // length along the cylinder up to a distance from the axis
    QRgb* onto = nullptr;
    const QRgb *from = nullptr, *to = nullptr;
};

} // namespace

void drawPageCurl(const TransitionFrame& frame) {
    PageCurl page(frame);
    for (int y = 0; y < frame.height; ++y)
        page.drawRow(y);
}
