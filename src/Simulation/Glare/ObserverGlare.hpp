#pragma once

#include <string>
#include <vector>

#include "Simulation/Glare/GlareRecords.hpp"
#include "Simulation/PlacedLuminaire.hpp"

namespace Merivane::Simulation {

/// An opening that shows less than this is a small source of CIE 147 [m2].
inline constexpr double SmallSourceArea = 0.005;

/// Guth's position index in the form of CIE 117, capped at 16. `sigma` [deg] is the angle of the
/// source from the line of sight, `tau` [deg] its turn about the line of sight from the vertical.
double PositionIndex(double tau, double sigma);

/// UGR at one observer. `verticalIlluminance` [lux] is that on the eye, at right angles to the line
/// of sight, without the sources' own direct light; background luminance is it over pi.
///
/// `terms`, when given, receives a record for each luminaire, in order, left out or not. Their sum
/// S and the background Lb give the value again: UGR = 8 log10(0.25 S / Lb).
GlareResult ObserverGlare(const UgrObserver& observer,
                          const std::vector<PlacedLuminaire>& luminaires,
                          double verticalIlluminance, const GlareOptions& options,
                          std::vector<GlareTerm>* terms = nullptr);

/// What the sources alone give an observer, before any background.
struct GlareSum {
    double sum = 0.0;   ///< of their terms [cd2/m4]
    GlareResult counts; ///< its counters; background and value are still missing
};

/// The sum of `ObserverGlare` without its background, for rooms that differ in reflectances alone.
GlareSum SumSources(const UgrObserver& observer, const std::vector<PlacedLuminaire>& luminaires,
                    const GlareOptions& options, std::vector<GlareTerm>* terms = nullptr);

/// The result of a sum of sources against a background, see `ObserverGlare`.
GlareResult RateSum(const GlareSum& sum, double verticalIlluminance);

/// "< 10" below 10 (9.96 too), else one decimal with a decimal comma.
std::string FormatUgr(double value);

} // namespace Merivane::Simulation
