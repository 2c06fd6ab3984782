// Notation: I(t, c) intensity at the vertical angle t and the horizontal angle c; the flux is the
// integral of I sin t over t and c, exact for an I that is linear between the table's angles t.

#include "Photometry/PhotometricQuantities.hpp"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "Photometry/CandelaLookup.hpp"

namespace Merivane::Photometry {

namespace {

constexpr double MetresInAFoot = 0.3048;
constexpr double UnknownBeamHalfAngle = 45.0; // [deg], where the light has no beam

bool HasWholeTypeCTable(const IesFile& file) {
    const std::size_t verticals = file.verticalAngles.size();
    return file.photometricType == 1 && verticals > 0 && !file.horizontalAngles.empty() &&
           file.candela.size() == file.horizontalAngles.size() &&
           std::all_of(file.candela.begin(), file.candela.end(),
                       [verticals](const auto& row) { return row.size() == verticals; });
}

/// Integral of I sin t over one segment [rad] with the values `a` and `b` at its ends.
double SegmentIntegral(double t1, double t2, double a, double b) {
    const double width = t2 - t1;
    if (!(width > 0.0)) {
        return 0.0;
    }
    const double slope = (b - a) / width;
    return (std::cos(t1) - std::cos(t2)) * a +
           (std::sin(t2) - std::sin(t1) - std::cos(t2) * width) * slope;
}

double RowIntegral(const std::vector<double>& angles, const std::vector<double>& row) {
    double integral = 0.0;
    for (std::size_t i = 0; i + 1 < angles.size(); ++i) {
        integral += SegmentIntegral(angles[i] * RadiansInADegree, angles[i + 1] * RadiansInADegree,
                                    row[i], row[i + 1]);
    }
    return integral;
}

} // namespace

double UnitsToMetres(int unitsType) {
    return unitsType == 1 ? MetresInAFoot : 1.0;
}

double PeakCandela(const IesFile& file) {
    double peak = 0.0;
    for (const std::vector<double>& row : file.candela) {
        for (const double value : row) {
            peak = std::max(peak, value);
        }
    }
    return peak * file.candelaMultiplier;
}

double TotalFlux(const IesFile& file) {
    if (!HasWholeTypeCTable(file)) {
        return -1.0;
    }
    const std::vector<double>& planes = file.horizontalAngles;
    double previous = RowIntegral(file.verticalAngles, file.candela[0]);
    if (planes.size() == 1) {
        return previous * 2.0 * std::numbers::pi * file.candelaMultiplier;
    }
    double flux = 0.0;
    for (std::size_t i = 1; i < planes.size(); ++i) {
        const double row = RowIntegral(file.verticalAngles, file.candela[i]);
        flux += (planes[i] - planes[i - 1]) * RadiansInADegree * (previous + row) / 2.0;
        previous = row;
    }
    // What the table leaves out of the circle is its mirror image.
    const double span = planes.back() - planes.front();
    if (span > AngleTolerance) {
        flux *= 360.0 / span;
    }
    return flux * file.candelaMultiplier;
}

std::optional<double> FindBeamHalfAngle(const IesFile& file) {
    const double onAxis = MeanCandelaAtVertical(file, 0.0);
    if (!(onAxis > 0.0)) {
        return std::nullopt;
    }
    const double level = onAxis / 2.0;
    double previous = onAxis;
    for (int degree = 1; degree <= 90; ++degree) {
        const double mean = MeanCandelaAtVertical(file, degree);
        if (mean <= level) {
            const double fall = previous - mean;
            return fall > 0.0 ? degree - 1 + (previous - level) / fall : degree;
        }
        previous = mean;
    }
    return std::nullopt;
}

double BeamHalfAngle(const IesFile& file) {
    return FindBeamHalfAngle(file).value_or(UnknownBeamHalfAngle);
}

} // namespace Merivane::Photometry
