#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

#include "Simulation/Geometry.hpp"
#include "Simulation/GridField.hpp"
#include "Simulation/LevelList.hpp"

namespace Merivane::Simulation {

/// No vertex follows.
inline constexpr std::uint32_t NoSlot = 0xFFFFFFFF;

/// Set in a slot whose vertex has two ways out: two separate cells touch in that node.
inline constexpr std::uint32_t PinchFlag = 0x80000000;

/// The two ways out of a vertex. The way on is stored as a slot: 2 x vertex number + the way out
/// that is to be taken there.
enum MeshWay : std::uint32_t {
    HighOnLeft = 0, ///< along the edge of the band above a level
    LowOnLeft = 1   ///< along the edge of the band below it
};

/// A place that curves or the edges of bands run through: a crossing of one level with one edge of
/// the grid, or a grid node on the edge of the area that has values ("corner"). Without defaults,
/// so that room for many costs nothing.
struct MeshVertex {
    double x; ///< [m]
    double y;
    std::uint32_t level; ///< index of the level; of a corner the band it lies in
    std::uint32_t key;   ///< edge key; of a corner `NoKey`

    Point2D Point() const { return {x, y}; }
};

/// Where the ways out of a vertex lead, by `MeshWay`; those of a corner are in ascending order of
/// the vertices they reach.
using MeshLinks = std::array<std::uint32_t, 2>;

/// Key of a vertex that is a corner. A grid edge has the key 2n when it runs from node n to the
/// right, and 2n + 1 when it runs upwards.
inline constexpr std::uint32_t NoKey = 0xFFFFFFFF;

/// Whether the edges of the area that has values are laid too.
enum class MeshBorder { None, Corners };

/// Every crossing of every level with the grid, linked across the cells. The vertices stand in the
/// order in which a walk over the cells meets them (rows ascending, columns ascending): in a cell
/// band by band, in a band along the cell's perimeter.
struct ContourMesh {
    std::unique_ptr<MeshVertex[]> vertices;
    std::unique_ptr<MeshLinks[]> links; ///< not in the vertices: who follows them wants few bytes
    std::uint32_t count = 0;            ///< of vertices and of links, below 2^30
    std::vector<std::int32_t> reached;  ///< per node: how many levels its value reaches, -1 for NaN
};

/// True when the field can be contoured: it has a grid of at least 2 x 2 nodes and a value for each
/// of them.
bool HasCells(const GridField& field);

/// Lays the mesh of a field with `HasCells`. With `MeshBorder::Corners` the perimeter of every band
/// is closed along the edge of the area that has values; without it curves end there.
ContourMesh BuildContourMesh(const GridField& field, const LevelList& levels, MeshBorder border);

} // namespace Merivane::Simulation
