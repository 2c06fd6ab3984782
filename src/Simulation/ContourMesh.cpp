// One pass over the cells lays the crossings of all levels.
//
// Along a cell's perimeter, counter-clockwise, a level is left at a falling crossing and entered at
// a rising one. The piece of curve from the falling to the rising crossing has the high side on its
// left; seen from the neighbour cell the same crossing turns from falling into rising. So each cell
// sets one way out of each of its crossings, and the neighbour the other.
#include "Simulation/ContourMesh.hpp"

#include <algorithm>
#include <cstdlib>
#include <utility>

#include "Simulation/LevelsReached.hpp"
#include "Simulation/MeshBuilder.hpp"

namespace Merivane::Simulation {

namespace {

void MarkValidCells(MeshBuilder& b) {
    const std::size_t cells = b.columns - 1; // kept here, as bytes may overlap anything
    b.valid.assign((b.columns + 1) * (b.rows + 1), 0);
    for (std::size_t j = 0; j + 1 < b.rows; ++j) {
        const std::int32_t* low = &b.mesh.reached[j * b.columns];
        const std::int32_t* high = low + b.columns;
        std::uint8_t* out = &b.valid[(j + 1) * (b.columns + 1) + 1];
        for (std::size_t i = 0; i < cells; ++i) {
            out[i] = (low[i] | low[i + 1] | high[i] | high[i + 1]) >= 0 ? 1 : 0;
        }
    }
}

/// Finds what the cells of row j have to lay. Plain loops over bytes, for vector instructions.
void MarkWork(MeshBuilder& b, std::size_t j) {
    const std::int32_t* low = &b.mesh.reached[j * b.columns];
    const std::int32_t* high = low + b.columns;
    const std::size_t stride = b.columns + 1;
    const std::uint8_t* here = &b.valid[(j + 1) * stride]; // one cell before the first
    const std::uint8_t* below = here - stride;
    const std::uint8_t* above = here + stride;
    std::uint8_t* work = b.work.data();
    const std::size_t cells = b.columns - 1;
    for (std::size_t i = 0; i < cells; ++i) {
        const std::int32_t differs =
            (low[i] ^ low[i + 1]) | (low[i] ^ high[i]) | (low[i] ^ high[i + 1]);
        work[i] = static_cast<std::uint8_t>(here[i + 1] & (differs != 0 ? 1 : 0));
    }
    if (!b.border) {
        for (std::size_t i = 0; i < cells; ++i) {
            const int laid = below[i + 1] & here[i];
            work[i] = static_cast<std::uint8_t>(work[i] + (work[i] & ~laid)); // Inner or Outer
        }
        return;
    }
    for (std::size_t i = 0; i < cells; ++i) {
        const int before = below[i] & here[i] & above[i];
        const int middle = below[i + 1] & here[i + 1] & above[i + 1];
        const int after = below[i + 2] & here[i + 2] & above[i + 2];
        const int outer = here[i + 1] & ~(before & middle & after);
        work[i] = static_cast<std::uint8_t>((work[i] & ~outer) + outer + outer);
    }
}

/// Lays the crossings of cell (i, j) of kind `Inner` and links them. Noise decides at random which
/// edges are crossed, so both new ones are reckoned and written, and the count tells which stay: a
/// wrong guess of the processor would cost more.
void AddInnerCell(MeshBuilder& b, std::size_t i, std::size_t j) {
    const std::size_t node = j * b.columns + i;
    const std::int32_t* r = &b.mesh.reached[node];
    const double* values = &b.values[node];
    const std::array<double, 4> v{values[0], values[1], values[b.columns + 1], values[b.columns]};
    const std::int32_t r0 = r[0];
    const std::int32_t r1 = r[1];
    const std::int32_t r2 = r[b.columns + 1];
    const std::int32_t r3 = r[b.columns];
    const std::int32_t first = std::min(std::min(r0, r1), std::min(r2, r3));
    const std::int32_t last = std::max(std::max(r0, r1), std::max(r2, r3));
    const Point2D c1{b.xs[i + 1], b.ys[j]};
    const Point2D c2{c1.x, b.ys[j + 1]};
    const Point2D c3{b.xs[i], c2.y};
    const auto rightKey = static_cast<std::uint32_t>(2 * (node + 1) + 1);
    const auto topKey = static_cast<std::uint32_t>(2 * (node + b.columns));
    const EdgeNumbers ids = NumbersAt(b, i);
    const double* levels = b.levels.data();
    MeshVertex* vertices = b.mesh.vertices.get();
    MeshLinks* links = b.mesh.links.get();
    std::uint32_t number = b.mesh.count;
    for (std::int32_t k = first; k < last; ++k) {
        const double t1 = (levels[k] - v[1]) / (v[2] - v[1]);
        const double t2 = (levels[k] - v[3]) / (v[2] - v[3]);
        const unsigned above1 = r1 > k ? 1 : 0;
        const unsigned above2 = r2 > k ? 1 : 0;
        const unsigned above3 = r3 > k ? 1 : 0;
        const unsigned above = (r0 > k ? 1U : 0U) | above1 << 1U | above2 << 2U | above3 << 3U;
        const auto level = static_cast<std::uint32_t>(k);
        std::array<std::uint32_t, 4> id{ids.bottom[k], number, 0, ids.left[k]};
        vertices[number] = {c1.x + t1 * (c2.x - c1.x), c1.y + t1 * (c2.y - c1.y), level, rightKey};
        links[number] = {NoSlot, NoSlot};
        ids.right[k] = number;
        number += above1 ^ above2;
        vertices[number] = {c3.x + t2 * (c2.x - c3.x), c3.y + t2 * (c2.y - c3.y), level, topKey};
        links[number] = {NoSlot, NoSlot};
        ids.top[k] = number;
        id[2] = number;
        number += above2 ^ above3;
        const DirectedSegments& segments = Directed[SegmentsEntry(above, v, levels[k])];
        LinkCrossings(links, id[segments.falling[0]], id[segments.rising[0]]);
        if (segments.count == 2) {
            LinkCrossings(links, id[segments.falling[1]], id[segments.rising[1]]);
        }
    }
    b.mesh.count = number;
}

/// How many crossings there are on the edges between the nodes of a row, and on those that rise
/// from it to the row `high`. Edges that end in a node without a value count for more than nothing.
std::size_t CountCrossings(const std::int32_t* low, const std::int32_t* high, std::size_t columns) {
    std::int64_t along = 0;
    for (std::size_t i = 0; i + 1 < columns; ++i) {
        along += std::abs(low[i + 1] - low[i]);
    }
    std::int64_t upwards = 0;
    for (std::size_t i = 0; i < columns; ++i) {
        upwards += std::abs(high[i] - low[i]);
    }
    return static_cast<std::size_t>(along) + static_cast<std::size_t>(upwards);
}

/// Makes room for all vertices at once: growing step by step would cost more than counting.
void ReserveVertices(MeshBuilder& b) {
    std::size_t most = 2; // written, but not counted, by the last inner cell
    for (std::size_t j = 0; j < b.rows; ++j) {
        const std::int32_t* low = &b.mesh.reached[j * b.columns];
        most += CountCrossings(low, j + 1 < b.rows ? low + b.columns : low, b.columns);
    }
    if (b.border) {
        const auto missing =
            static_cast<std::size_t>(std::count(b.valid.begin(), b.valid.end(), 0));
        most += std::min(4 * missing, b.columns * b.rows);
    }
    b.mesh.vertices.reset(new MeshVertex[most]);
    b.mesh.links.reset(new MeshLinks[most]);
}

void AddRow(MeshBuilder& b, std::size_t j) {
    MarkWork(b, j);
    const std::size_t cells = b.columns - 1;
    const std::uint8_t* work = b.work.data();
    for (std::size_t i = 0; i < cells; ++i) {
        if (work[i] == Inner) {
            AddInnerCell(b, i, j);
        } else if (work[i] == Outer) {
            AddOuterCell(b, i, j);
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
    MeshBuilder b{field.values, levels, border == MeshBorder::Corners, columns, rows};
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
    ReserveVertices(b);
    for (std::size_t j = 0; j + 1 < rows; ++j) {
        AddRow(b, j);
        std::swap(b.bottom, b.top);
        std::swap(b.bottomNodes, b.topNodes);
        std::fill(b.topNodes.begin(), b.topNodes.end(), NoSlot);
    }
    return std::move(b.mesh);
}

} // namespace Merivane::Simulation
