#include "Photometry/CandelaLookup.hpp"

#include <algorithm>
#include <cmath>

#include "Photometry/PhotometricQuantities.hpp"

namespace Merivane::Photometry {

namespace {

constexpr int MeanPlanes = 36;

/// Value of one row in a cell; at its last value, that value. A row cut short has no light.
double RowValue(const std::vector<double>& row, std::size_t index, double fraction) {
    if (index >= row.size()) {
        return 0.0;
    }
    const double next = index + 1 < row.size() ? row[index + 1] : row[index];
    return row[index] + (next - row[index]) * fraction;
}

} // namespace

bool FindAngleCell(const std::vector<double>& angles, double x, std::size_t& index,
                   double& fraction) {
    if (angles.empty() || x < angles.front() - AngleTolerance ||
        x > angles.back() + AngleTolerance) {
        return false;
    }
    std::size_t cell = 0;
    while (cell + 2 < angles.size() && x > angles[cell + 1]) {
        ++cell;
    }
    index = cell;
    fraction = 0.0;
    if (angles.size() > 1) {
        const double width = angles[cell + 1] - angles[cell];
        fraction = width > 0.0 ? std::clamp((x - angles[cell]) / width, 0.0, 1.0) : 0.0;
    }
    return true;
}

double FoldHorizontal(const IesFile& file, double horizontal) {
    double angle = std::fmod(horizontal, 360.0);
    if (angle < 0.0) {
        angle += 360.0;
    }
    const double first = file.horizontalAngles.front();
    const double last = file.horizontalAngles.back();
    const bool quadrant = AnglesEqual(first, 0.0) && AnglesEqual(last, 90.0);
    const bool aboutC0 = AnglesEqual(first, 0.0) && AnglesEqual(last, 180.0);
    const bool aboutC90 = AnglesEqual(first, 90.0) && AnglesEqual(last, 270.0);
    if (quadrant || aboutC0) {
        angle = angle > 180.0 ? 360.0 - angle : angle;
    }
    if (quadrant) {
        angle = angle > 90.0 ? 180.0 - angle : angle;
    }
    if (aboutC90 && angle < 90.0) {
        angle = 180.0 - angle;
    } else if (aboutC90 && angle > 270.0) {
        angle = 540.0 - angle;
    }
    return std::max(first, std::min(angle, last));
}

double CandelaAt(const IesFile& file, double vertical, double horizontal) {
    std::size_t cell = 0;
    double down = 0.0;
    if (file.photometricType != 1 || file.horizontalAngles.empty() ||
        file.candela.size() != file.horizontalAngles.size() ||
        !FindAngleCell(file.verticalAngles, vertical, cell, down)) {
        return 0.0;
    }
    if (file.horizontalAngles.size() == 1) {
        return RowValue(file.candela[0], cell, down) * file.candelaMultiplier;
    }
    std::size_t plane = 0;
    double around = 0.0;
    FindAngleCell(file.horizontalAngles, FoldHorizontal(file, horizontal), plane, around);
    const double here = RowValue(file.candela[plane], cell, down);
    const double there = RowValue(file.candela[plane + 1], cell, down);
    return (here + (there - here) * around) * file.candelaMultiplier;
}

double MeanCandelaAtVertical(const IesFile& file, double vertical) {
    double sum = 0.0;
    for (int plane = 0; plane < MeanPlanes; ++plane) {
        sum += CandelaAt(file, vertical, plane * 360.0 / MeanPlanes);
    }
    return sum / MeanPlanes;
}

} // namespace Merivane::Photometry
