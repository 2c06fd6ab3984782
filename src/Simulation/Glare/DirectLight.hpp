#pragma once

#include <array>
#include <vector>

#include "Simulation/Glare/RoomPatches.hpp"
#include "Simulation/Glare/RoomTransport.hpp"
#include "Simulation/Glare/StandardRoom.hpp"
#include "Simulation/Glare/SummedTable.hpp"
#include "Simulation/PlacedLuminaire.hpp"

/// What the patches of a standard room receive straight from its luminaires.
namespace Merivane::Simulation {

/// The regular grid of equal luminaires in the ceiling of a standard room.
struct LuminaireGrid {
    PlacedLuminaire first; ///< the one next to the origin
    int nx = 1;
    int ny = 1;
    double stepX = 0.0; ///< [m]
    double stepY = 0.0;
    double flux = 0.0; ///< of all of them [lm]; below 0 where the file's can't be integrated
};

/// `room` must outlive the grid.
LuminaireGrid BuildLuminaireGrid(const StandardRoom& room);

/// Illuminance of one patch by one luminaire [lux], at its middle, or as the mean of 3 x 3 points
/// where the luminaire is near.
double LightOnPatch(const PlacedLuminaire& luminaire, const Patch& patch);

/// Light of one luminaire on a patch by how many steps of the grid lie between them, for grids that
/// fit the patches (each covers a whole number of steps). It serves every room with the same steps
/// and heights. Sums over a rectangle of luminaires are ready.
struct OffsetLight {
    double stepX = 0.0; ///< [m]
    double stepY = 0.0;
    double z = 0.0;  ///< ceiling above the floor [m]
    int acrossX = 0; ///< steps that a patch covers; 0: nothing was tabulated
    int acrossY = 0;
    int nz = 0;    ///< rows of patches on the walls
    int mostX = 0; ///< luminaires that the table reaches over
    int mostY = 0;
    SummedTable floor; ///< steps apart along x, then y
    /// For the walls y = 0, y = Y, x = 0, x = X, row by row upwards: luminaires from the wall, then
    /// steps apart along it.
    std::array<std::vector<SummedTable>, 4> walls;
};

/// Tabulates the light of `grid.first` for grids of up to `mostX` x `mostY` luminaires; nothing
/// where the grid doesn't fit the patches.
OffsetLight BuildOffsetLight(const RoomCut& cut, const LuminaireGrid& grid, int mostX, int mostY);

/// True where `light` holds what the room needs. Whose light it is the caller knows.
bool ServesGrid(const OffsetLight& light, const RoomCut& cut, const LuminaireGrid& grid);

/// Direct light on the patches [lux], in parts, scaled so that the grid's whole flux lands on the
/// room. `light` is used where it fits, else each luminaire counts for itself.
MirrorParts DirectIrradiance(const RoomTransport& transport, const LuminaireGrid& grid,
                             const OffsetLight& light);

} // namespace Merivane::Simulation
