#pragma once

#include <cmath>

#include <optional>

#include "Photometry/IesFile.hpp"

namespace Merivane::Photometry {

/// One degree in radians.
inline constexpr double RadiansInADegree = 0.017453292519943295;

/// Angles that differ by no more than this are one direction in all of photometry [deg].
inline constexpr double AngleTolerance = 1e-6;

/// True when two angles [deg] differ by at most `AngleTolerance`.
inline bool AnglesEqual(double a, double b) {
    return std::abs(a - b) <= AngleTolerance;
}

/// Metres in one unit of length of an IES file: 0.3048 for 1 (feet), 1 for anything else.
double UnitsToMetres(int unitsType);

/// Largest value of the table times the multiplier [cd]; 0 for a table without a value above 0.
double PeakCandela(const IesFile& file);

/// Luminous flux of the candela table [lm], by the exact integral of intensities that vary
/// linearly in the vertical angle and trapezoids over the horizontal one. A table over a part of
/// the circle counts for the whole of it. Neither ballast factor nor lamp lumens play a part.
///
/// -1 when the table can't be integrated: not of type C, without angles, or not one row of the
/// right length for each horizontal angle.
double TotalFlux(const IesFile& file);

/// Angle from the axis at which the mean intensity over the planes has fallen to half of that on
/// the axis [deg], up to 90. Nothing where there is no light on the axis, as with an indirect
/// luminaire, or where it does not fall so far.
std::optional<double> FindBeamHalfAngle(const IesFile& file);

/// Angle from the axis [deg] at which the mean intensity of all planes first falls to half of that
/// on the axis, interpolated linearly between whole degrees. 45 when there is no such angle up to
/// 90, no light on the axis, or no type C table.
double BeamHalfAngle(const IesFile& file);

} // namespace Merivane::Photometry
