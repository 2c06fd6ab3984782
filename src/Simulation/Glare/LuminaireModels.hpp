#pragma once

#include <vector>

#include "Photometry/IesFile.hpp"
#include "Simulation/Glare/ZoneGlare.hpp"
#include "Simulation/PlacedLuminaire.hpp"
#include "Simulation/Scene.hpp"

namespace Merivane::Simulation {

/// True where two files give the same light: their tables with multiplier, and their openings as
/// told. Header texts, lamps and watts do not count.
bool SamePhotometry(const Photometry::IesFile& a, const Photometry::IesFile& b);

/// True for a tape or a piece of a continuous line: its type says so, or its photometry is scaled
/// to a length. Such luminaires make no regular grid.
bool IsContinuousLine(const SceneLuminaire& luminaire);

/// The models that `lights` are of, in the order of their first light: photometry and continuous
/// lines told apart. `eyeLevel` [m] is what H counts from. Names, counts and heights are set. A
/// model goes by the name of its luminaires where all have one, else by that of its type.
std::vector<ModelGlare> GroupModels(const std::vector<PlacedLuminaire>& lights, double eyeLevel);

} // namespace Merivane::Simulation
