#pragma once

#include <cstdint>
#include <vector>

#include "Simulation/ContourRecords.hpp"
#include "Simulation/GridField.hpp"
#include "Simulation/LevelList.hpp"

namespace Merivane::Tests {

/// What went wrong while bands were built; all 0 for finite values.
struct BandTrouble {
    int openLoops = 0;      ///< loops round a part of a cell that did not close
    int abandonedRings = 0; ///< boundaries that did not close
};

/// Curves the slow way, with dictionaries and multimaps, one level after the other: the fast way
/// must give the same, bit for bit.
std::vector<Simulation::IsoCurve> ReferenceIsolines(const Simulation::GridField& field,
                                                    const Simulation::LevelList& levels);

/// Bands the slow way: each band of each cell is fed into a multiset of directed edges, and what
/// does not cancel is stitched. `signedAreas`, where given, receives for each band the sum of the
/// signed areas of its rings before they are simplified [m2].
std::vector<Simulation::ColorBand> ReferenceBands(const Simulation::GridField& field,
                                                  const Simulation::LevelList& levels,
                                                  BandTrouble& trouble,
                                                  std::vector<double>* signedAreas = nullptr);

/// A ring simplified by taking its vertices out one by one.
std::vector<Simulation::Point2D> ReferenceSimplify(std::vector<Simulation::Point2D> ring);

} // namespace Merivane::Tests
