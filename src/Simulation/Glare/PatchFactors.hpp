#pragma once

#include <vector>

#include "Simulation/Glare/RoomPatches.hpp"

namespace Merivane::Simulation {

/// Form factors between all patches of a room, times the area of the patch that emits and made
/// reciprocal by the mean of both directions [m2], not closed. They depend only on how far two
/// patches stand apart in steps of the lattice, so few are worked out.
struct PatchFactors {
    RoomCut cut;
    /// One for each distinct pair of places; see `FactorBetween` for what the indices are.
    std::vector<double> floorToCeiling; ///< nx x ny: steps apart along x and y
    std::vector<double> wallYToWallY;   ///< nx x nz
    std::vector<double> wallXToWallX;   ///< ny x nz
    std::vector<double> levelToWallY;   ///< nx x ny x nz: apart, from the wall, from the level
    std::vector<double> levelToWallX;   ///< ny x nx x nz
    std::vector<double> wallYToWallX;   ///< nx x ny x nz: from the wall x, from the wall y, apart
};

PatchFactors BuildPatchFactors(const RoomCut& cut);

/// Factor between two patches, the same in both orders; 0 in one plane [m2].
double FactorBetween(const PatchFactors& factors, const PatchPlace& a, const PatchPlace& b);

} // namespace Merivane::Simulation
