#pragma once

#include <cstdint>
#include <vector>

#include "Host/Types.hpp"
#include "Workbench/Bodies/FacedBody.hpp"

/// Upright plates with things cut out of them: walls, and the frames and panes in their openings.
/// A plate is a grid unrolled along its line, columns between stations and rows between heights,
/// each cell of one look or empty.
namespace Merivane::Workbench {

/// Both sides of a plate at one place of its line, in plan [m].
struct PlateStation {
    double along = 0.0; ///< from the line's begin [m]
    Host::Coordinate left;
    Host::Coordinate right;
};

/// Surfaces of the cells of one kind, as in `Host::BodyFace`.
struct PlateLook {
    std::int32_t left = -1;
    std::int32_t right = -1;
    std::int32_t edge = -1; ///< where the cells end: top, bottom, ends and reveals
};

inline constexpr int EmptyCell = -1;

struct Plate {
    std::vector<PlateStation> stations; ///< columns + 1, in order along the line
    std::vector<double> heights;        ///< rows + 1, ascending [m]
    std::vector<int> cells;             ///< into `looks`; row * columns + column
    std::vector<PlateLook> looks;
    bool bent = false; ///< sides turn at every station: no face goes past one
};

/// The closed body of a plate's cells, without faces where cells touch. Cells that lie in a plane
/// and have one look are one face, its openings holes where they lie inside it.
FacedBody BuildPlate(const Plate& plate);

} // namespace Merivane::Workbench
