#include "Simulation/PreviewFrame.hpp"

#include <algorithm>
#include <cmath>

#include "Simulation/PrintedValue.hpp"
#include "Text/Number.hpp"

namespace Merivane::Simulation {

namespace {

constexpr double Margin = 14.0;
constexpr double ZoomStep = 1.25;
constexpr double SmallestZoom = 0.5;
constexpr double LargestZoom = 200.0;
constexpr double LongestBar = 80.0;
constexpr Point2D Center = {PreviewWidth / 2.0, PreviewHeight / 2.0};

double PointsPerMetre(const PreviewFrame& frame) {
    return frame.scale * frame.zoom;
}

} // namespace

PreviewFrame FrameAll(const std::vector<Point2D>& points) {
    PreviewFrame frame;
    if (points.empty()) {
        return frame;
    }
    Point2D lowest = points.front();
    Point2D highest = points.front();
    for (const Point2D& point : points) {
        lowest = {std::min(lowest.x, point.x), std::min(lowest.y, point.y)};
        highest = {std::max(highest.x, point.x), std::max(highest.y, point.y)};
    }
    frame.middle = {(lowest.x + highest.x) / 2.0, (lowest.y + highest.y) / 2.0};
    const double across = (highest.x - lowest.x) / (PreviewWidth - 2.0 * Margin);
    const double upright = (highest.y - lowest.y) / (PreviewHeight - 2.0 * Margin);
    const double metresPerPoint = std::max(across, upright);
    if (metresPerPoint > 0.0) {
        frame.scale = 1.0 / metresPerPoint;
    }
    return frame;
}

bool IsUntouched(const PreviewFrame& frame) {
    return frame.zoom == 1.0 && frame.pan == Point2D();
}

Point2D ToPicture(const PreviewFrame& frame, const Point2D& point) {
    const double scale = PointsPerMetre(frame);
    return {Center.x + frame.pan.x + (point.x - frame.middle.x) * scale,
            Center.y + frame.pan.y - (point.y - frame.middle.y) * scale};
}

Point2D ToPlane(const PreviewFrame& frame, const Point2D& point) {
    const double scale = PointsPerMetre(frame);
    return {frame.middle.x + (point.x - Center.x - frame.pan.x) / scale,
            frame.middle.y - (point.y - Center.y - frame.pan.y) / scale};
}

void ZoomAt(PreviewFrame& frame, const Point2D& cursor, int notches) {
    const double zoom =
        std::clamp(frame.zoom * std::pow(ZoomStep, notches), SmallestZoom, LargestZoom);
    const double growth = zoom / frame.zoom;
    const Point2D fromCenter = {cursor.x - Center.x, cursor.y - Center.y};
    frame.pan = {fromCenter.x - (fromCenter.x - frame.pan.x) * growth,
                 fromCenter.y - (fromCenter.y - frame.pan.y) * growth};
    frame.zoom = zoom;
}

void Pan(PreviewFrame& frame, const Point2D& by) {
    frame.pan = {frame.pan.x + by.x, frame.pan.y + by.y};
}

double ScaleBarLength(const PreviewFrame& frame) {
    const double longest = LongestBar / PointsPerMetre(frame);
    const double power = std::pow(10.0, std::floor(std::log10(longest)));
    for (const double step : {5.0, 2.0}) {
        if (power * step <= longest) {
            return power * step;
        }
    }
    return power;
}

std::string ScaleBarText(double length) {
    constexpr double centimetre = 0.01;
    if (length >= 1.0) {
        return Text::FormatGeneral(length) + " m";
    }
    return length >= centimetre ? Text::FormatGeneral(length * 100.0) + " cm"
                                : Text::FormatGeneral(length * 1000.0) + " mm";
}

std::string CentimetreText(double length) {
    return FormatDecimal(length * 100.0, 2) + " cm";
}

} // namespace Merivane::Simulation
