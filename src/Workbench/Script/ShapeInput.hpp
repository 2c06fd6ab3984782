#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "Workbench/Script/ModelStatements.hpp"
#include "Workbench/Script/ScriptPolyline.hpp"
#include "Workbench/Script/ScriptValue.hpp"
#include "Workbench/Script/ShapeSketch.hpp"

/// The arguments of one statement while it reads them, and what is in force for it. Refusals are
/// Portuguese, without the place; an empty text is none.
namespace Merivane::Workbench {

struct ShapeInput {
    std::vector<double> numbers; ///< finite
    std::size_t at = 0;          ///< the next to be read
    CurveResolution curves;
    std::int32_t surface = -1;
    std::size_t ownSurfaces = 0; ///< how many the scripts have defined
    bool wire = false;           ///< MODEL WIRE: lines alone
};

/// Reads arguments as numbers; a text and what is not finite is refused.
std::string ReadNumbers(const std::vector<ScriptValue>& arguments, std::vector<double>& numbers);

/// The next argument; 0 behind the last.
double TakeNumber(ShapeInput& input);

/// An argument as a whole number, a status or a mask.
std::int32_t WholeArgument(double number);

/// The next argument as a set of bits.
std::int32_t TakeBits(ShapeInput& input);

/// A surface that an argument names, as faces name it: an attribute's number; -1, -2... and from
/// `Host::FirstScriptSurface` up the surfaces that the scripts define. -1, the colour of the pen,
/// for 0 and for a surface of its own that there is not.
std::int32_t SurfaceNumber(const ShapeInput& input, double number);

/// The next argument as a surface.
std::int32_t TakeSurface(ShapeInput& input);

/// The next argument as a number of nodes, `least` or more.
std::string TakeCount(ShapeInput& input, std::size_t least, std::size_t& count);

/// Whether exactly so many arguments are left.
std::string CheckRest(const ShapeInput& input, std::size_t rest);

/// The next three arguments as a place.
Host::Coordinate3D TakePlace(ShapeInput& input);

/// Chords of a whole circle of this radius [m].
std::size_t ChordsOf(const ShapeInput& input, double radius);

/// Angle of point i of a circle in `count` chords [rad].
double AngleAt(std::size_t i, std::size_t count);

/// What statements say of a radius or a length below 0.
inline constexpr const char* NegativeLength = "pede medidas que não sejam negativas";

/// True where all the bits of `bits` are set in a mask.
inline bool HasBits(std::int32_t mask, std::int32_t bits) {
    return (mask & bits) == bits;
}

} // namespace Merivane::Workbench
