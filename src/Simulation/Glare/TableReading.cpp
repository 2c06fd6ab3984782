#include "Simulation/Glare/TableReading.hpp"

#include <algorithm>
#include <cmath>
#include <limits>

namespace Merivane::Simulation {

namespace {

constexpr double Margin = 1e-12; // that a later entry has to beat an earlier one by
constexpr double LeastRatio = 1e-6;

} // namespace

std::size_t NearestReflectanceSet(double ceiling, double walls) {
    std::size_t nearest = 0;
    double best = std::numeric_limits<double>::infinity();
    for (std::size_t i = 0; i < ReflectanceSets.size(); ++i) {
        const double dc = ReflectanceSets[i].ceiling - ceiling;
        const double dw = ReflectanceSets[i].walls - walls;
        const double distance = dc * dc + dw * dw;
        if (distance < best - Margin) {
            best = distance;
            nearest = i;
        }
    }
    return nearest;
}

UgrRoomSize NearestStandardRoom(double x, double y) {
    UgrRoomSize nearest = StandardRooms[0];
    double best = std::numeric_limits<double>::infinity();
    for (const UgrRoomSize& room : StandardRooms) {
        const double dx = std::log(std::max(x, LeastRatio) / room.x);
        const double dy = std::log(std::max(y, LeastRatio) / room.y);
        const double distance = dx * dx + dy * dy;
        if (distance < best - Margin) {
            best = distance;
            nearest = room;
        }
    }
    return nearest;
}

} // namespace Merivane::Simulation
