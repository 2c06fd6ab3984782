// One pass over the cells lays the crossings of all levels. A cell needs the numbers of crossings
// on its own four edges only, so two rows of horizontal edges and two vertical ones are kept, and
// nothing is looked up by key.
//
// Along a cell's perimeter, counter-clockwise, a level is left at a falling crossing and entered at
// a rising one. The piece of curve from the falling to the rising crossing has the high side on its
// left; seen from the neighbour cell the same crossing turns from falling into rising. So each cell
// sets one way out of each of its crossings, and the neighbour the other.
#include "Simulation/ContourMesh.hpp"

#include "Simulation/CellSegments.hpp"

#include <algorithm>
#include <cstddef>
#include <cstring>

namespace Merivane::Simulation {

namespace {

using Corners = std::array<std::int32_t, 4>;

struct MeshBuilder {
    const CalculationGrid& grid;
    const std::vector<double>& values;
    const LevelList& levels;
    bool border;
    std::size_t columns;
    std::size_t levelCount;
    ContourMesh mesh;
    /// Cells with four values, with one cell of nothing all round: (columns + 1) x (rows + 1).
    std::vector<std::uint8_t> valid;
    std::vector<std::uint8_t> busy; ///< cells of the row at hand that lay something
    /// Vertex numbers by column and level on the bottom and top edges of the row at hand, by level
    /// on the left and right edges of the cell at hand, and by node on the bottom and top.
    std::vector<std::uint32_t> bottom, top, left, right;
    std::vector<std::uint32_t> bottomNodes, topNodes;
};

/// A cell at work.
struct Cell {
    std::size_t i = 0;
    std::size_t j = 0;
    std::size_t node = 0;  ///< lower left corner
    std::size_t place = 0; ///< in `MeshBuilder::valid`
    Corners reached{};     ///< levels reached by its corners
    std::array<double, 4> values{};
    std::array<std::uint32_t*, 4> ids{}; ///< vertex numbers on its edges, by level
};

std::vector<std::int32_t> CountLevelsReached(const std::vector<double>& values,
                                             std::size_t nodeCount, const LevelList& levels) {
    std::vector<std::int32_t> reached(nodeCount);
    // Blocks that stay in the first cache, a plain loop over each: the compiler makes vector
    // instructions of it.
    constexpr std::size_t blockSize = 1024;
    for (std::size_t first = 0; first < nodeCount; first += blockSize) {
        const std::size_t last = std::min(first + blockSize, nodeCount);
        for (std::size_t n = first; n < last; ++n) {
            reached[n] = values[n] == values[n] ? 0 : -1;
        }
        for (const double level : levels) {
            for (std::size_t n = first; n < last; ++n) {
                reached[n] += values[n] >= level ? 1 : 0;
            }
        }
    }
    return reached;
}

void MarkValidCells(MeshBuilder& b) {
    const std::size_t rows = static_cast<std::size_t>(b.grid.rows);
    b.valid.assign((b.columns + 1) * (rows + 1), 0);
    for (std::size_t j = 0; j + 1 < rows; ++j) {
        const std::int32_t* low = &b.mesh.reached[j * b.columns];
        const std::int32_t* high = low + b.columns;
        std::uint8_t* out = &b.valid[(j + 1) * (b.columns + 1) + 1];
        for (std::size_t i = 0; i + 1 < b.columns; ++i) {
            out[i] = (low[i] | low[i + 1] | high[i] | high[i + 1]) >= 0 ? 1 : 0;
        }
    }
}

/// Finds the cells of row j that lay something: those that a level runs through and, where the
/// border is wanted, those that touch it.
void MarkBusyCells(MeshBuilder& b, std::size_t j) {
    const std::int32_t* low = &b.mesh.reached[j * b.columns];
    const std::int32_t* high = low + b.columns;
    const std::size_t stride = b.columns + 1;
    const std::uint8_t* here = &b.valid[(j + 1) * stride + 1];
    std::uint8_t* busy = b.busy.data();
    const std::size_t cells = b.columns - 1;
    for (std::size_t i = 0; i < cells; ++i) {
        const std::int32_t differs =
            (low[i] ^ low[i + 1]) | (low[i] ^ high[i]) | (low[i] ^ high[i + 1]);
        busy[i] = static_cast<std::uint8_t>(here[i] & (differs != 0 ? 1 : 0));
    }
    if (!b.border) {
        return;
    }
    const std::uint8_t* below = here - stride;
    const std::uint8_t* above = here + stride;
    for (std::size_t i = 0; i < cells; ++i) {
        const int inner = below[i] & here[i] & above[i];
        const int before = below[i - 1] & here[i - 1] & above[i - 1];
        const int after = below[i + 1] & here[i + 1] & above[i + 1];
        busy[i] = static_cast<std::uint8_t>(busy[i] | (here[i] & ~(inner & before & after)));
    }
}

Point2D NodePoint(const CalculationGrid& grid, std::size_t i, std::size_t j) {
    return {grid.originX + static_cast<double>(i) * grid.stepX,
            grid.originY + static_cast<double>(j) * grid.stepY};
}

std::uint32_t AddVertex(MeshBuilder& b, Point2D point, std::uint32_t level, std::uint32_t key) {
    const auto number = static_cast<std::uint32_t>(b.mesh.vertices.size());
    b.mesh.vertices.push_back({point, {NoSlot, NoSlot}, level, key});
    return number;
}

/// Lays the crossing of a level with edge `e`, always reckoned from the lower or left end, so that
/// both cells of an edge mean the same place.
void AddCrossing(MeshBuilder& b, const Cell& cell, unsigned e, std::size_t level) {
    constexpr std::array<std::size_t, 4> startRight{0, 1, 0, 0};
    constexpr std::array<std::size_t, 4> startUp{0, 0, 1, 0};
    constexpr std::array<unsigned, 4> startCorner{0, 1, 3, 0};
    constexpr std::array<unsigned, 4> endCorner{1, 2, 2, 3};
    const std::size_t i = cell.i + startRight[e];
    const std::size_t j = cell.j + startUp[e];
    const std::size_t upright = e & 1U;
    const Point2D a = NodePoint(b.grid, i, j);
    const Point2D z = NodePoint(b.grid, i + 1 - upright, j + upright);
    const double fa = cell.values[startCorner[e]];
    const double fz = cell.values[endCorner[e]];
    const double t = (b.levels[level] - fa) / (fz - fa);
    const auto key = static_cast<std::uint32_t>(2 * (j * b.columns + i) + upright);
    cell.ids[e][level] = AddVertex(b, {a.x + t * (z.x - a.x), a.y + t * (z.y - a.y)},
                                   static_cast<std::uint32_t>(level), key);
}

unsigned CornersAbove(const Corners& reached, std::size_t level) {
    const auto l = static_cast<std::int32_t>(level);
    return (reached[0] > l ? 1U : 0U) | (reached[1] > l ? 2U : 0U) | (reached[2] > l ? 4U : 0U) |
           (reached[3] > l ? 8U : 0U);
}

/// Edges with a crossing, as bits: those between a corner above and one below.
unsigned CrossedEdges(unsigned above) {
    return above ^ ((above >> 1U) | ((above & 1U) << 3U));
}

/// Edges that no cell before this one has laid, as bits.
unsigned NewEdges(const MeshBuilder& b, const Cell& cell) {
    const unsigned lower = b.valid[cell.place - (b.columns + 1)] != 0 ? 0U : 1U;
    const unsigned before = b.valid[cell.place - 1] != 0 ? 0U : 8U;
    return 6U | lower | before;
}

void LinkCrossings(MeshBuilder& b, const Cell& cell, unsigned above, std::size_t level) {
    bool centreAbove = false;
    if (above == 5 || above == 10) {
        const auto& v = cell.values;
        centreAbove = (v[0] + v[1] + v[2] + v[3]) * 0.25 >= b.levels[level];
    }
    const CellSegmentList& list = CellSegments(above, centreAbove);
    for (std::size_t s = 0; s < list.count; ++s) {
        const EdgePair pair = list.pairs[s];
        // Walking the perimeter, an edge falls when the corner that begins it lies above.
        const bool firstFalls = ((above >> pair.first) & 1U) != 0;
        const std::uint32_t falling = cell.ids[firstFalls ? pair.first : pair.second][level];
        const std::uint32_t rising = cell.ids[firstFalls ? pair.second : pair.first][level];
        b.mesh.vertices[falling].next[HighOnLeft] = 2 * rising + HighOnLeft;
        b.mesh.vertices[rising].next[LowOnLeft] = 2 * falling + LowOnLeft;
    }
}

/// How many of the four cells round a node have values, and whether they are just two that touch
/// in the node only. `corner` tells which corner of the cell the node is.
struct Surroundings {
    bool edgeOfArea = false;
    bool pinch = false;
};

Surroundings LookAround(const MeshBuilder& b, const Cell& cell, unsigned corner) {
    const std::size_t stride = b.columns + 1;
    const std::size_t right = corner == 1 || corner == 2 ? 1 : 0;
    const std::size_t up = corner >= 2 ? 1 : 0;
    const std::uint8_t* upperRight = &b.valid[cell.place + right + up * stride];
    const int ur = upperRight[0];
    const int ul = *(upperRight - 1);
    const int lr = *(upperRight - stride);
    const int ll = *(upperRight - stride - 1);
    return {ur + ul + lr + ll < 4, ur == ll && ul == lr && ur != ul};
}

std::uint32_t& CornerNumber(MeshBuilder& b, const Cell& cell, unsigned corner) {
    auto& nodes = corner >= 2 ? b.topNodes : b.bottomNodes;
    return nodes[cell.i + (corner == 1 || corner == 2 ? 1 : 0)];
}

void AddCorner(MeshBuilder& b, const Cell& cell, unsigned corner) {
    std::uint32_t& number = CornerNumber(b, cell, corner);
    if (number != NoSlot || !LookAround(b, cell, corner).edgeOfArea) {
        return;
    }
    const Point2D point = NodePoint(b.grid, cell.i + (corner == 1 || corner == 2 ? 1 : 0),
                                    cell.j + (corner >= 2 ? 1 : 0));
    number = AddVertex(b, point, static_cast<std::uint32_t>(cell.reached[corner]), NoKey);
}

/// One piece of the area's edge, from vertex `from` by its way `way` to the slot `to`.
void AddBorderPiece(MeshBuilder& b, std::uint32_t from, MeshWay way, std::uint32_t to) {
    MeshVertex& vertex = b.mesh.vertices[from];
    if (vertex.key != NoKey) {
        vertex.next[way] = to;
        return;
    }
    auto& [first, second] = vertex.next;
    if (first == NoSlot) {
        first = to;
    } else {
        second = to;
        if ((second & ~PinchFlag) < (first & ~PinchFlag)) {
            std::swap(first, second);
        }
    }
}

/// Lays the pieces along edge `e`, beyond which there is nothing, from corner to corner with the
/// crossings between: rising, each is entered by the band below its level and left by the one
/// above.
void AddBorderEdge(MeshBuilder& b, const Cell& cell, unsigned e) {
    const unsigned endCorner = (e + 1) & 3U;
    std::int32_t band = cell.reached[e];
    const std::int32_t endBand = cell.reached[endCorner];
    std::uint32_t from = CornerNumber(b, cell, e);
    MeshWay way = HighOnLeft;
    while (band != endBand) {
        const bool rising = band < endBand;
        const std::uint32_t crossing = cell.ids[e][rising ? band : band - 1];
        AddBorderPiece(b, from, way, 2 * crossing + (rising ? LowOnLeft : HighOnLeft));
        from = crossing;
        way = rising ? HighOnLeft : LowOnLeft;
        band += rising ? 1 : -1;
    }
    const std::uint32_t pinch = LookAround(b, cell, endCorner).pinch ? PinchFlag : 0;
    AddBorderPiece(b, from, way, (2 * CornerNumber(b, cell, endCorner)) | pinch);
}

void AddBorder(MeshBuilder& b, const Cell& cell) {
    const std::size_t stride = b.columns + 1;
    const std::array<std::size_t, 4> neighbours{cell.place - stride, cell.place + 1,
                                                cell.place + stride, cell.place - 1};
    for (unsigned e = 0; e < 4; ++e) {
        if (b.valid[neighbours[e]] == 0) {
            AddBorderEdge(b, cell, e);
        }
    }
}

/// Lays the vertices of the cell that are new, in the order of its perimeter band by band, and
/// links them. Only the corners belong to the first band whatever the levels.
void AddCell(MeshBuilder& b, const Cell& cell) {
    const auto [low, high] = std::minmax_element(cell.reached.begin(), cell.reached.end());
    const unsigned newEdges = NewEdges(b, cell);
    const auto first = static_cast<std::size_t>(*low);
    const auto last = static_cast<std::size_t>(*high);
    if (b.border) {
        const unsigned above = first < last ? CornersAbove(cell.reached, first) : 0;
        const unsigned crossed = CrossedEdges(above) & newEdges;
        for (unsigned e = 0; e < 4; ++e) {
            AddCorner(b, cell, e);
            if (((crossed >> e) & 1U) != 0) {
                AddCrossing(b, cell, e, first);
            }
        }
    }
    for (std::size_t level = first; level < last; ++level) {
        const unsigned above = CornersAbove(cell.reached, level);
        const unsigned crossed = CrossedEdges(above) & newEdges;
        for (unsigned e = 0; e < 4 && !(b.border && level == first); ++e) {
            if (((crossed >> e) & 1U) != 0) {
                AddCrossing(b, cell, e, level);
            }
        }
        LinkCrossings(b, cell, above, level);
    }
    if (b.border) {
        AddBorder(b, cell);
    }
}

void AddRow(MeshBuilder& b, std::size_t j) {
    MarkBusyCells(b, j);
    const std::size_t cells = b.columns - 1;
    for (std::size_t i = 0; i < cells; ++i) {
        if (b.busy[i] == 0) {
            continue;
        }
        Cell cell;
        cell.i = i;
        cell.j = j;
        cell.node = j * b.columns + i;
        cell.place = (j + 1) * (b.columns + 1) + i + 1;
        const std::array<std::size_t, 4> nodes{cell.node, cell.node + 1, cell.node + b.columns + 1,
                                               cell.node + b.columns};
        for (std::size_t c = 0; c < 4; ++c) {
            cell.reached[c] = b.mesh.reached[nodes[c]];
            cell.values[c] = b.values[nodes[c]];
        }
        const std::size_t stripe = i * b.levelCount;
        std::uint32_t* leftIds = b.left.data();
        std::uint32_t* rightIds = b.right.data();
        if ((i & 1U) != 0) {
            std::swap(leftIds, rightIds);
        }
        cell.ids = {b.bottom.data() + stripe, rightIds, b.top.data() + stripe, leftIds};
        AddCell(b, cell);
    }
}

} // namespace

bool HasCells(const GridField& field) {
    const CalculationGrid* grid = field.grid;
    return grid != nullptr && grid->columns >= 2 && grid->rows >= 2 &&
           field.values.size() >=
               static_cast<std::size_t>(grid->columns) * static_cast<std::size_t>(grid->rows);
}

ContourMesh BuildContourMesh(const GridField& field, const LevelList& levels, MeshBorder border) {
    const CalculationGrid& grid = *field.grid;
    const auto columns = static_cast<std::size_t>(grid.columns);
    const auto rows = static_cast<std::size_t>(grid.rows);
    MeshBuilder b{grid,    field.values,
                  levels,  border == MeshBorder::Corners,
                  columns, levels.size(),
                  {},      {},
                  {},      {},
                  {},      {},
                  {},      {},
                  {}};
    b.mesh.reached = CountLevelsReached(field.values, columns * rows, levels);
    b.busy.resize(columns);
    b.bottom.resize(columns * levels.size());
    b.top.resize(columns * levels.size());
    b.left.resize(levels.size());
    b.right.resize(levels.size());
    b.bottomNodes.assign(columns, NoSlot);
    b.topNodes.assign(columns, NoSlot);
    MarkValidCells(b);
    for (std::size_t j = 0; j + 1 < rows; ++j) {
        AddRow(b, j);
        std::swap(b.bottom, b.top);
        std::swap(b.bottomNodes, b.topNodes);
        std::fill(b.topNodes.begin(), b.topNodes.end(), NoSlot);
    }
    return std::move(b.mesh);
}

} // namespace Merivane::Simulation
