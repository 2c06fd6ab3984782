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
#include <limits>
#include <memory>
#include <utility>

namespace Merivane::Simulation {

namespace {

using Corners = std::array<std::int32_t, 4>;

/// What a cell of the row at hand has to lay.
enum CellWork : std::uint8_t {
    Nothing, ///< no level runs through it
    Inner,   ///< crossings on its right and top edges only
    Outer    ///< it stands on the edge of the area that has values
};

struct MeshBuilder {
    const std::vector<double>& values;
    const LevelList& levels;
    bool border;
    std::size_t columns;
    std::size_t rows;
    ContourMesh mesh;
    std::vector<double> xs; ///< of the columns [m]
    std::vector<double> ys; ///< of the rows [m]
    /// Cells with four values, with one cell of nothing all round: (columns + 1) x (rows + 1).
    std::vector<std::uint8_t> valid;
    std::vector<std::uint8_t> work; ///< `CellWork` of the cells of the row at hand
    /// Vertex numbers by column and level on the bottom and top edges of the row at hand, by level
    /// on the left and right edges of the cell at hand, and by node on the bottom and top.
    std::vector<std::uint32_t> bottom, top, left, right;
    std::vector<std::uint32_t> bottomNodes, topNodes;
};

/// A cell at work.
struct Cell {
    std::size_t i = 0;
    std::size_t j = 0;
    std::size_t place = 0; ///< in `MeshBuilder::valid`
    Corners reached{};     ///< levels reached by its corners
    std::array<double, 4> values{};
    std::array<std::uint32_t*, 4> ids{}; ///< vertex numbers on its edges, by level
};

/// Smallest and largest of `size` values; those that are no number are passed over. Four at a time,
/// for vector instructions.
std::pair<double, double> RangeOf(const double* values, std::size_t size) {
    constexpr double infinity = std::numeric_limits<double>::infinity();
    std::array<double, 4> low{infinity, infinity, infinity, infinity};
    std::array<double, 4> high{-infinity, -infinity, -infinity, -infinity};
    for (std::size_t n = 0; n < size; n += low.size()) {
        for (std::size_t lane = 0; lane < low.size(); ++lane) {
            const double v = values[n + lane];
            low[lane] = v < low[lane] ? v : low[lane];
            high[lane] = v > high[lane] ? v : high[lane];
        }
    }
    return {std::min(std::min(low[0], low[1]), std::min(low[2], low[3])),
            std::max(std::max(high[0], high[1]), std::max(high[2], high[3]))};
}

/// A search for the level of each node would guess wrong at every other node of a noisy field. So
/// nodes are compared in blocks with all the levels within the block's range.
std::vector<std::int32_t> CountLevelsReached(const std::vector<double>& values,
                                             std::size_t nodeCount, const LevelList& levels) {
    constexpr std::size_t blockSize = 32;
    std::vector<std::int32_t> reached(nodeCount);
    std::array<double, blockSize> block{};
    std::array<double, blockSize> count{}; // as wide as the values
    for (std::size_t first = 0; first < nodeCount; first += blockSize) {
        const std::size_t size = std::min(blockSize, nodeCount - first);
        std::copy_n(&values[first], size, block.begin());
        const auto [low, high] = RangeOf(block.data(), blockSize);
        auto level = std::upper_bound(levels.begin(), levels.end(), low);
        const auto reachedByAll = static_cast<double>(level - levels.begin());
        for (std::size_t n = 0; n < blockSize; ++n) {
            count[n] = block[n] == block[n] ? reachedByAll : -1.0;
        }
        for (; level != levels.end() && *level <= high; ++level) {
            const double lux = *level;
            for (std::size_t n = 0; n < blockSize; ++n) {
                count[n] += block[n] >= lux ? 1.0 : 0.0;
            }
        }
        for (std::size_t n = 0; n < size; ++n) {
            reached[first + n] = static_cast<std::int32_t>(count[n]);
        }
    }
    return reached;
}

void MarkValidCells(MeshBuilder& b) {
    b.valid.assign((b.columns + 1) * (b.rows + 1), 0);
    for (std::size_t j = 0; j + 1 < b.rows; ++j) {
        const std::int32_t* low = &b.mesh.reached[j * b.columns];
        const std::int32_t* high = low + b.columns;
        std::uint8_t* out = &b.valid[(j + 1) * (b.columns + 1) + 1];
        for (std::size_t i = 0; i + 1 < b.columns; ++i) {
            out[i] = (low[i] | low[i + 1] | high[i] | high[i + 1]) >= 0 ? 1 : 0;
        }
    }
}

/// Finds what the cells of row j have to lay. Plain loops over bytes, for vector instructions.
void MarkWork(MeshBuilder& b, std::size_t j) {
    const std::int32_t* low = &b.mesh.reached[j * b.columns];
    const std::int32_t* high = low + b.columns;
    const std::size_t stride = b.columns + 1;
    const std::uint8_t* here = &b.valid[(j + 1) * stride + 1];
    const std::uint8_t* below = here - stride;
    const std::uint8_t* above = here + stride;
    std::uint8_t* work = b.work.data();
    const std::size_t cells = b.columns - 1;
    for (std::size_t i = 0; i < cells; ++i) {
        const std::int32_t differs =
            (low[i] ^ low[i + 1]) | (low[i] ^ high[i]) | (low[i] ^ high[i + 1]);
        work[i] = static_cast<std::uint8_t>(here[i] & (differs != 0 ? 1 : 0));
    }
    if (!b.border) {
        for (std::size_t i = 0; i < cells; ++i) {
            const int laid = below[i] & here[i - 1];
            work[i] = static_cast<std::uint8_t>(work[i] + (work[i] & ~laid)); // Inner or Outer
        }
        return;
    }
    for (std::size_t i = 0; i < cells; ++i) {
        const int middle = below[i] & here[i] & above[i];
        const int before = below[i - 1] & here[i - 1] & above[i - 1];
        const int after = below[i + 1] & here[i + 1] & above[i + 1];
        const int outer = here[i] & ~(middle & before & after);
        work[i] = static_cast<std::uint8_t>((work[i] & ~outer) + outer + outer);
    }
}

std::uint32_t AddVertex(MeshBuilder& b, Point2D point, std::uint32_t level, std::uint32_t key) {
    const std::uint32_t number = b.mesh.count++;
    b.mesh.vertices[number] = {point.x, point.y, {NoSlot, NoSlot}, level, key};
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

/// The pieces of curve of a cell from falling to rising edge, by the corners above; 16 and 17 are
/// the saddles with the centre above.
struct DirectedSegments {
    std::uint8_t count = 0;
    std::array<std::uint8_t, 2> falling{};
    std::array<std::uint8_t, 2> rising{};
};

constexpr std::array<DirectedSegments, 18> DirectSegments() {
    std::array<DirectedSegments, 18> table{};
    for (unsigned k = 0; k < table.size(); ++k) {
        const unsigned above = k == 16 ? SaddleUpwards : k == 17 ? SaddleDownwards : k;
        const CellSegmentList list = SegmentsOfCase(above, k >= 16);
        table[k].count = static_cast<std::uint8_t>(list.count);
        for (std::size_t s = 0; s < list.count; ++s) {
            const auto [first, second] = list.pairs[s];
            // Walking the perimeter, an edge falls when the corner that begins it lies above.
            const bool firstFalls = ((above >> first) & 1U) != 0;
            table[k].falling[s] = firstFalls ? first : second;
            table[k].rising[s] = firstFalls ? second : first;
        }
    }
    return table;
}

constexpr std::array<DirectedSegments, 18> Directed = DirectSegments();

void LinkCrossings(MeshBuilder& b, const Cell& cell, unsigned above, std::size_t level) {
    unsigned entry = above;
    if (above == SaddleUpwards || above == SaddleDownwards) {
        const auto& v = cell.values;
        if ((v[0] + v[1] + v[2] + v[3]) * 0.25 >= b.levels[level]) {
            entry = above == SaddleUpwards ? 16 : 17;
        }
    }
    const DirectedSegments& segments = Directed[entry];
    for (std::size_t s = 0; s < segments.count; ++s) {
        const std::uint32_t falling = cell.ids[segments.falling[s]][level];
        const std::uint32_t rising = cell.ids[segments.rising[s]][level];
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
    const Point2D point{b.xs[cell.i + (corner == 1 || corner == 2 ? 1 : 0)],
                        b.ys[cell.j + (corner >= 2 ? 1 : 0)]};
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

/// Lays the vertices of an outer cell that are new, in the order of its perimeter band by band,
/// and links them. The corners belong to the first band.
void AddOuterCell(MeshBuilder& b, const Cell& cell) {
    const auto [low, high] = std::minmax_element(cell.reached.begin(), cell.reached.end());
    const unsigned newEdges = NewEdges(b, cell);
    const auto first = static_cast<std::size_t>(*low);
    const auto last = static_cast<std::size_t>(*high);
    for (std::size_t level = first; level < std::max(last, first + 1); ++level) {
        const unsigned above = level < last ? CornersAbove(cell.reached, level) : 0;
        const unsigned crossed = CrossedEdges(above) & newEdges;
        for (unsigned e = 0; e < 4; ++e) {
            if (b.border && level == first) {
                AddCorner(b, cell, e);
            }
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

/// Lays the crossings of an inner cell and links them. Noise decides at random which edges are
/// crossed, so both are reckoned and written, and the count tells which stay: a wrong guess of the
/// processor costs more.
void AddInnerCell(MeshBuilder& b, const Cell& cell) {
    const auto& v = cell.values;
    const auto& r = cell.reached;
    const std::int32_t first = std::min(std::min(r[0], r[1]), std::min(r[2], r[3]));
    const std::int32_t last = std::max(std::max(r[0], r[1]), std::max(r[2], r[3]));
    const Point2D c1{b.xs[cell.i + 1], b.ys[cell.j]};
    const Point2D c2{c1.x, b.ys[cell.j + 1]};
    const Point2D c3{b.xs[cell.i], c2.y};
    const std::size_t node = cell.j * b.columns + cell.i;
    const auto rightKey = static_cast<std::uint32_t>(2 * (node + 1) + 1);
    const auto topKey = static_cast<std::uint32_t>(2 * (node + b.columns));
    const Point2D upwards{c2.x - c1.x, c2.y - c1.y};
    const Point2D onwards{c2.x - c3.x, c2.y - c3.y};
    for (auto level = static_cast<std::uint32_t>(first); level < static_cast<std::uint32_t>(last);
         ++level) {
        const double lux = b.levels[level];
        const unsigned above = CornersAbove(r, level);
        const unsigned crossed = CrossedEdges(above);
        const double t1 = (lux - v[1]) / (v[2] - v[1]);
        const double t2 = (lux - v[3]) / (v[2] - v[3]);
        std::uint32_t number = b.mesh.count;
        MeshVertex* vertices = b.mesh.vertices.get();
        vertices[number] = {
            c1.x + t1 * upwards.x, c1.y + t1 * upwards.y, {NoSlot, NoSlot}, level, rightKey};
        cell.ids[1][level] = number;
        number += (crossed >> 1U) & 1U;
        vertices[number] = {
            c3.x + t2 * onwards.x, c3.y + t2 * onwards.y, {NoSlot, NoSlot}, level, topKey};
        cell.ids[2][level] = number;
        number += (crossed >> 2U) & 1U;
        b.mesh.count = number;
        LinkCrossings(b, cell, above, level);
    }
}

/// Makes room for all that a row can lay.
void ReserveRow(MeshBuilder& b) {
    const std::size_t most = b.columns * (3 * b.levels.size() + 2) + 2;
    if (b.mesh.capacity - b.mesh.count >= most) {
        return;
    }
    b.mesh.capacity = 2 * b.mesh.capacity + most;
    std::unique_ptr<MeshVertex[]> larger(new MeshVertex[b.mesh.capacity]);
    std::copy_n(b.mesh.vertices.get(), b.mesh.count, larger.get());
    b.mesh.vertices = std::move(larger);
}

Cell CellAt(MeshBuilder& b, std::size_t i, std::size_t j) {
    Cell cell;
    cell.i = i;
    cell.j = j;
    cell.place = (j + 1) * (b.columns + 1) + i + 1;
    const std::int32_t* reached = &b.mesh.reached[j * b.columns + i];
    const double* values = &b.values[j * b.columns + i];
    cell.reached = {reached[0], reached[1], reached[b.columns + 1], reached[b.columns]};
    cell.values = {values[0], values[1], values[b.columns + 1], values[b.columns]};
    const std::size_t stripe = i * b.levels.size();
    cell.ids = {b.bottom.data() + stripe, b.right.data(), b.top.data() + stripe, b.left.data()};
    // The right edge of a cell is the left edge of the next.
    if ((i & 1U) != 0) {
        std::swap(cell.ids[1], cell.ids[3]);
    }
    return cell;
}

void AddRow(MeshBuilder& b, std::size_t j) {
    MarkWork(b, j);
    ReserveRow(b);
    const std::uint8_t* const begin = b.work.data();
    const std::uint8_t* const end = begin + b.columns - 1;
    for (const std::uint8_t* work = begin; work != end; ++work) {
        if (*work == Nothing) {
            continue;
        }
        const Cell cell = CellAt(b, static_cast<std::size_t>(work - begin), j);
        if (*work == Inner) {
            AddInnerCell(b, cell);
        } else {
            AddOuterCell(b, cell);
        }
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
    MeshBuilder b{field.values,
                  levels,
                  border == MeshBorder::Corners,
                  columns,
                  rows,
                  {},
                  {},
                  {},
                  {},
                  {},
                  {},
                  {},
                  {},
                  {},
                  {},
                  {}};
    b.mesh.reached = CountLevelsReached(field.values, columns * rows, levels);
    for (std::size_t i = 0; i < columns; ++i) {
        b.xs.push_back(grid.originX + static_cast<double>(i) * grid.stepX);
    }
    for (std::size_t j = 0; j < rows; ++j) {
        b.ys.push_back(grid.originY + static_cast<double>(j) * grid.stepY);
    }
    b.work.resize(columns);
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
