#include "Simulation/Glare/RoomSamples.hpp"

#include <cmath>
#include <numbers>
#include <utility>

#include "Simulation/Glare/StandardRoom.hpp"

namespace Merivane::Tests {

namespace {

constexpr double Radian = std::numbers::pi / 180.0;

double SkewIntensity(double vertical, double horizontal) {
    const double down = std::cos(vertical * Radian);
    const double around =
        1.0 + 0.6 * std::cos((horizontal - 40.0) * Radian) * std::sin(vertical * Radian);
    return (down > 0.0 ? 120.0 + 700.0 * down : 120.0) * around;
}

Simulation::SceneLuminaire Skew(double turned) {
    Simulation::SceneLuminaire luminaire;
    Photometry::IesFile& file = luminaire.photometry;
    for (int v = 0; v <= 180; v += 10) {
        file.verticalAngles.push_back(v);
    }
    for (int h = 0; h <= 360; h += 30) {
        file.horizontalAngles.push_back(h);
        std::vector<double>& row = file.candela.emplace_back();
        for (const double vertical : file.verticalAngles) {
            row.push_back(SkewIntensity(vertical, h - turned));
        }
    }
    file.width = 0.3;
    file.length = 0.8;
    file.height = 0.06;
    return luminaire;
}

} // namespace

Simulation::SceneLuminaire SkewLuminaire() {
    return Skew(0.0);
}

Simulation::SceneLuminaire TurnedSkewLuminaire(int quarters) {
    Simulation::SceneLuminaire luminaire = Skew(90.0 * quarters);
    if (quarters % 2 != 0) {
        std::swap(luminaire.photometry.width, luminaire.photometry.length);
    }
    return luminaire;
}

Simulation::SceneLuminaire EvenLuminaire() {
    Simulation::SceneLuminaire luminaire;
    Photometry::IesFile& file = luminaire.photometry;
    file.horizontalAngles = {0};
    file.candela.resize(1);
    for (int v = 0; v <= 90; v += 5) {
        file.verticalAngles.push_back(v);
        file.candela[0].push_back(1000.0 * std::cos(v * Radian));
    }
    file.width = file.length = 0.6;
    return luminaire;
}

Simulation::UgrRoom RoomOf(double x, double y, double height, bool crosswise) {
    Simulation::UgrRoom room = Simulation::TableRoom({1, 1}, {0.7, 0.5, 0.2}, height, crosswise);
    room.lengthX = x;
    room.lengthY = y;
    return room;
}

} // namespace Merivane::Tests
