#include "Simulation/LuminousOpening.hpp"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "Photometry/PhotometricQuantities.hpp"
#include "Simulation/LengthScale.hpp"

namespace Merivane::Simulation {

LuminousOpening DeclaredOpening(const Photometry::IesFile& file, double lengthScale) {
    double width = file.width;
    double length = file.length;
    ScaleLongerSide(width, length, lengthScale);
    const double unit = Photometry::UnitsToMetres(file.unitsType);
    LuminousOpening opening;
    opening.round = width < 0.0 || length < 0.0;
    opening.width = std::abs(width) * unit;
    opening.length = std::abs(length) * unit;
    opening.height = std::abs(file.height) * unit;
    // Editions up to 1995 tell a round shape by one negative side and 0 for the other.
    if (opening.round && opening.width == 0.0) {
        opening.width = opening.length;
    }
    return opening;
}

double ApparentArea(const LuminousOpening& opening, const std::array<double, 3>& direction) {
    const double down = std::max(-direction[2], 0.0);
    if (opening.round) {
        const double sideways = std::hypot(direction[0], direction[1]);
        return sideways * opening.width * opening.height +
               std::numbers::pi * opening.width * opening.width / 4.0 * down;
    }
    return opening.width * opening.length * down +
           std::abs(direction[0]) * opening.width * opening.height +
           std::abs(direction[1]) * opening.length * opening.height;
}

double DownwardArea(const LuminousOpening& opening) {
    return ApparentArea(opening, {0.0, 0.0, -1.0});
}

} // namespace Merivane::Simulation
