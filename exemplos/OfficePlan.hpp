#pragma once

#include "Host/Types.hpp"

/// Measures that the pieces of the sample office share [m]. Outer walls stand on a rectangle of
/// 18 x 10 m, 0.2 m thick, inner ones are 0.1 m thick.
namespace Merivane::Examples {

inline constexpr double FloorHeight = 3.2;   ///< from one floor to the next
inline constexpr double RoomHeight = 3.0;    ///< from a floor to the slab above
inline constexpr double CeilingHeight = 2.6; ///< of the false ceilings

/// The shaft that goes through both floors.
inline constexpr Host::Coordinate ShaftLow = {3.4, 5.4};
inline constexpr Host::Coordinate ShaftHigh = {4.6, 6.6};

/// Of the one column of each floor, in the hall: where work is done nothing stands in the light.
inline constexpr Host::Coordinate ColumnFoot = {13.55, 7.75};

/// The hole for the stair in the upper slab.
inline constexpr Host::Coordinate StairLow = {13.9, 1.9};
inline constexpr Host::Coordinate StairHigh = {15.3, 7.3};

} // namespace Merivane::Examples
