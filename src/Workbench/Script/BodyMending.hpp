#pragma once

#include <cstdint>
#include <vector>

#include "Workbench/Bodies/FacedBody.hpp"
#include "Workbench/Script/SolidBudget.hpp"

/// Making one closed body of pieces of faces that were cut one by one: their vertices lie in the
/// same places only up to rounding, and one may lie on a side of another piece.
namespace Merivane::Workbench {

struct BodyPieces {
    FacedBody body;
    std::vector<std::int32_t> origins; ///< of each face: the whole face that it is a piece of
    std::vector<bool> isNew;           ///< of each vertex: it goes again where no side turns at it
};

/// Joins vertices in the same place, puts those that lie on sides into them, and puts pieces of one
/// face together again. False when the budget does not reach.
bool MendPieces(BodyPieces& pieces, SolidBudget& budget);

/// Joins vertices in the same place and puts those that lie on sides into them. False when the
/// budget does not reach.
bool JoinVertices(FacedBody& body, SolidBudget& budget);

} // namespace Merivane::Workbench
