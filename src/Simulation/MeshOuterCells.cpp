// The slow but rare half of the mesh: cells on the edge of the area that has values.
#include <algorithm>
#include <utility>

#include "Simulation/MeshBuilder.hpp"

namespace Merivane::Simulation {

namespace {

/// A cell at work.
struct Cell {
    std::size_t i = 0;
    std::size_t j = 0;
    std::size_t place = 0;                 ///< in `MeshBuilder::valid`
    std::array<std::int32_t, 4> reached{}; ///< levels reached by its corners
    std::array<double, 4> values{};
    std::array<std::uint32_t*, 4> ids{}; ///< vertex numbers on its edges, by level
};

Cell CellAt(MeshBuilder& b, std::size_t i, std::size_t j) {
    Cell cell;
    cell.i = i;
    cell.j = j;
    cell.place = (j + 1) * (b.columns + 1) + i + 1;
    const std::int32_t* reached = &b.mesh.reached[j * b.columns + i];
    const double* values = &b.values[j * b.columns + i];
    cell.reached = {reached[0], reached[1], reached[b.columns + 1], reached[b.columns]};
    cell.values = {values[0], values[1], values[b.columns + 1], values[b.columns]};
    const EdgeNumbers ids = NumbersAt(b, i);
    cell.ids = {ids.bottom, ids.right, ids.top, ids.left};
    return cell;
}

std::uint32_t AddVertex(MeshBuilder& b, Point2D point, std::uint32_t level, std::uint32_t key) {
    const std::uint32_t number = b.mesh.count++;
    b.mesh.vertices[number] = {point.x, point.y, level, key};
    b.mesh.links[number] = {NoSlot, NoSlot};
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
    const Point2D a{b.xs[i], b.ys[j]};
    const Point2D z{b.xs[i + 1 - upright], b.ys[j + upright]};
    const double fa = cell.values[startCorner[e]];
    const double fz = cell.values[endCorner[e]];
    const double t = (b.levels[level] - fa) / (fz - fa);
    const auto key = static_cast<std::uint32_t>(2 * (j * b.columns + i) + upright);
    cell.ids[e][level] = AddVertex(b, {a.x + t * (z.x - a.x), a.y + t * (z.y - a.y)},
                                   static_cast<std::uint32_t>(level), key);
}

unsigned CornersAbove(const std::array<std::int32_t, 4>& reached, std::size_t level) {
    const auto l = static_cast<std::int32_t>(level);
    return (reached[0] > l ? 1U : 0U) | (reached[1] > l ? 2U : 0U) | (reached[2] > l ? 4U : 0U) |
           (reached[3] > l ? 8U : 0U);
}

/// Edges with a crossing, as bits: those between a corner above and one below.
unsigned CrossedEdges(unsigned above) {
    return above ^ ((above >> 1U) | ((above & 1U) << 3U));
}

/// Lays the crossings on the edges told by bits.
void AddCrossings(MeshBuilder& b, const Cell& cell, unsigned edges, std::size_t level) {
    for (unsigned e = 0; e < 4; ++e) {
        if (((edges >> e) & 1U) != 0) {
            AddCrossing(b, cell, e, level);
        }
    }
}

/// Edges that no cell before this one has laid, as bits.
unsigned NewEdges(const MeshBuilder& b, const Cell& cell) {
    const unsigned lower = b.valid[cell.place - (b.columns + 1)] != 0 ? 0U : 1U;
    const unsigned before = b.valid[cell.place - 1] != 0 ? 0U : 8U;
    return 6U | lower | before;
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
    const Point2D point{b.xs[cell.i + (corner == 1 || corner == 2 ? 1 : 0)],
                        b.ys[cell.j + (corner >= 2 ? 1 : 0)]};
    number = AddVertex(b, point, static_cast<std::uint32_t>(cell.reached[corner]), NoKey);
}

/// One piece of the area's edge, from vertex `from` by its way `way` to the slot `to`.
void AddBorderPiece(MeshBuilder& b, std::uint32_t from, MeshWay way, std::uint32_t to) {
    if (b.mesh.vertices[from].key != NoKey) {
        b.mesh.links[from][way] = to;
        return;
    }
    auto& [first, second] = b.mesh.links[from];
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

/// Links the crossings of one level in a cell.
void LinkCell(MeshBuilder& b, const Cell& cell, unsigned above, std::size_t level) {
    const DirectedSegments& segments = Directed[SegmentsEntry(above, cell.values, b.levels[level])];
    for (std::size_t s = 0; s < segments.count; ++s) {
        LinkCrossings(b.mesh.links.get(), cell.ids[segments.falling[s]][level],
                      cell.ids[segments.rising[s]][level]);
    }
}

} // namespace

void AddOuterCell(MeshBuilder& b, std::size_t i, std::size_t j) {
    const Cell cell = CellAt(b, i, j);
    const auto [low, high] = std::minmax_element(cell.reached.begin(), cell.reached.end());
    const auto first = static_cast<std::size_t>(*low);
    const auto last = static_cast<std::size_t>(*high);
    const unsigned newEdges = NewEdges(b, cell);
    if (b.border) {
        // The first band meets the corners and the crossings of its upper level in turns.
        const unsigned crossed =
            first < last ? CrossedEdges(CornersAbove(cell.reached, first)) & newEdges : 0;
        for (unsigned e = 0; e < 4; ++e) {
            AddCorner(b, cell, e);
            AddCrossings(b, cell, crossed & (1U << e), first);
        }
    }
    for (std::size_t level = first; level < last; ++level) {
        const unsigned above = CornersAbove(cell.reached, level);
        if (!b.border || level > first) {
            AddCrossings(b, cell, CrossedEdges(above) & newEdges, level);
        }
        LinkCell(b, cell, above, level);
    }
    if (b.border) {
        AddBorder(b, cell);
    }
}

} // namespace Merivane::Simulation
