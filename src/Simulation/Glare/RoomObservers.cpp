#include "Simulation/Glare/RoomObservers.hpp"

#include <algorithm>
#include <cmath>
#include <string>

#include "Simulation/PolygonGeometry.hpp"
#include "Simulation/PrintedValue.hpp"

namespace Merivane::Simulation {

namespace {

constexpr double Overhang = 1.0; // of a middle line beyond the bounding box [m]

std::string Label(bool alongX, double wall) {
    return std::string("meio da parede ") + (alongX ? "x" : "y") + " = " + FormatDecimal(wall, 2) +
           ", olhando ao longo de " + (alongX ? "X" : "Y");
}

// A line along x or y that crosses the whole bounding box; a place on it is told by the coordinate
// that runs.
struct MiddleLine {
    bool alongX = false;
    double fixed = 0.0; // m
    double start = 0.0;
    double end = 0.0;
};

Point2D PlaceOn(const MiddleLine& line, double coordinate) {
    return line.alongX ? Point2D{coordinate, line.fixed} : Point2D{line.fixed, coordinate};
}

UgrObserver Observer(const MiddleLine& line, double wall, double eye, double sight, double z) {
    const Point2D place = PlaceOn(line, eye);
    return {place.x,
            place.y,
            z,
            line.alongX ? sight : 0.0,
            line.alongX ? 0.0 : sight,
            Label(line.alongX, wall)};
}

void AppendObservers(const ZoneSpace& zone, const MiddleLine& line,
                     std::vector<UgrObserver>& observers) {
    const std::vector<SegmentSpan> spans =
        SpanInsidePolygon(zone.polygon, PlaceOn(line, line.start), PlaceOn(line, line.end));
    if (spans.empty()) {
        return;
    }
    // In a recess narrower than two clearances the eye stands in its middle.
    const auto clearance = [](const SegmentSpan& span) {
        return std::min(ObserverClearance, 0.5 * (span.end - span.start));
    };
    const double z = zone.floorLevel + SeatedEyeHeight;
    const double first = line.start + spans.front().start;
    const double last = line.start + spans.back().end;
    observers.push_back(Observer(line, first, first + clearance(spans.front()), 1.0, z));
    observers.push_back(Observer(line, last, last - clearance(spans.back()), -1.0, z));
}

} // namespace

std::vector<UgrObserver> MidWallObservers(const ZoneSpace& zone) {
    std::vector<UgrObserver> observers;
    if (!(zone.height > SeatedEyeHeight)) {
        return observers;
    }
    const auto [low, high] = OuterBounds(zone.polygon);
    const MiddleLine alongY = {false, 0.5 * (low.x + high.x), low.y - Overhang, high.y + Overhang};
    const MiddleLine alongX = {true, 0.5 * (low.y + high.y), low.x - Overhang, high.x + Overhang};
    AppendObservers(zone, alongY, observers);
    AppendObservers(zone, alongX, observers);
    return observers;
}

ScenePoint ObserverView(const UgrObserver& observer) {
    const double length = std::hypot(observer.dx, observer.dy);
    const double scale = length > 0.0 ? 1.0 / length : 0.0;
    return {observer.x, observer.y, observer.z, observer.dx * scale, observer.dy * scale, 0.0};
}

bool HoldsObserver(const ZoneSpace& zone, const UgrObserver& observer) {
    return observer.z >= zone.floorLevel && observer.z < zone.floorLevel + zone.height &&
           IsInsidePolygon(zone.polygon, {observer.x, observer.y});
}

} // namespace Merivane::Simulation
