#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

#include "Simulation/Geometry.hpp"

/// Unified Glare Rating (CIE 117, small sources after CIE 147).
namespace Merivane::Simulation {

/// Height of a seated person's eye above the floor [m].
inline constexpr double SeatedEyeHeight = 1.2;

/// Distance of an observer at mid-wall from the wall behind [m].
inline constexpr double ObserverClearance = 0.01;

/// A standard room of the tabular method. Its height is `height` + `eyeHeight`.
struct UgrRoom {
    double lengthX = 0.0; ///< across the line of sight [m]
    double lengthY = 0.0; ///< along the line of sight [m]
    double height = 0.0;  ///< H: photometric centre above the eye [m]
    double eyeHeight = SeatedEyeHeight;
    double ceilingReflectance = 0.0; ///< [0..1]
    double wallReflectance = 0.0;
    double floorReflectance = 0.0;
    bool crosswise = false; ///< luminaires turned by 90 degrees about the vertical
};

/// A person's eye [m] and level line of sight (dx, dy), of any length above 0.
struct UgrObserver {
    double x = 0.0;
    double y = 0.0;
    double z = 0.0;
    double dx = 0.0;
    double dy = 0.0;
    std::string label;
};

/// Which terms and limits one evaluation takes.
struct GlareOptions {
    bool smallSourceTerm = false; ///< CIE 147 for openings that show less than 0.005 m2
    bool tableFieldLimit = false; ///< only H/R up to 1.9 and T/R up to 3, as the index's table
};

/// What one observer sees.
struct GlareResult {
    bool valid = false;            ///< there is a background luminance
    double ugr = 0.0;              ///< 0 when not valid, and where nothing entered the sum
    double background = 0.0;       ///< Lb [cd/m2]
    std::int32_t sources = 0;      ///< luminaires in the sum
    std::int32_t smallSources = 0; ///< of those, with the small-source term
    std::int32_t largeSources = 0; ///< of those, with a solid angle above 1 sr
    std::int32_t withoutArea = 0;  ///< left out: no luminous area shows
    std::int32_t outOfField = 0;   ///< left out by the limits of the position index's table
};

/// Why a luminaire is not in an observer's sum.
enum class GlareOmission {
    None,        ///< it is in the sum
    AtTheEye,    ///< no distance
    NotAhead,    ///< beside or behind
    NotAbove,    ///< not above the eye
    OutOfField,  ///< beyond H/R 1.9 or T/R 3
    NoArea,      ///< no luminous area shows
    NoIntensity, ///< no light towards the eye
};

/// One luminaire in the eyes of one observer. Values that were not reached before the luminaire
/// was left out are 0.
struct GlareTerm {
    std::size_t luminaire = 0; ///< into the luminaires evaluated
    GlareOmission omission = GlareOmission::None;
    double distance = 0.0;      ///< r [m]
    double heightRatio = 0.0;   ///< H/R: height above the eye over the distance ahead
    double sideRatio = 0.0;     ///< T/R: sideways distance over the distance ahead
    double sigma = 0.0;         ///< angle from the line of sight [deg]
    double tau = 0.0;           ///< turn about the line of sight, from the vertical [deg]
    double intensity = 0.0;     ///< towards the eye [cd]
    double apparentArea = 0.0;  ///< [m2]
    double luminance = 0.0;     ///< L [cd/m2]
    double solidAngle = 0.0;    ///< w [sr]
    double positionIndex = 0.0; ///< p
    double term = 0.0;          ///< L2 w / p2, or 200 I2 / (r2 p2) of a small source [cd2/m4]
    bool smallSource = false;
};

/// Tabular value of a Zone, with the standard room that it was read in.
struct TabularUgr {
    double ugr = 0.0;   ///< the worst of both readings and both directions
    double roomX = 0.0; ///< standard room, multiples of H
    double roomY = 0.0;
    double ratioX = 0.0; ///< the Zone's own multiples of H
    double ratioY = 0.0;
    std::int32_t reflectanceSet = 0; ///< into `ReflectanceSets`
    bool crosswise = false;
};

} // namespace Merivane::Simulation
