// Two facts make the whole lattice cheap. Distance changes by no more than one moves: with R half
// the diagonal of a block of nodes and d the distance of its centre to the nearest edge, no edge
// farther than d + 2R from the centre is the nearest of any node of the block. And along a row the
// crossings of the even-odd rule are the same for every node.

#include "Simulation/NodeDistances.hpp"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <limits>

#include "Simulation/PolygonGeometry.hpp"

namespace Merivane::Simulation {

namespace {

struct NodeBlock {
    std::size_t firstColumn, endColumn;
    std::size_t firstRow, endRow;
};

struct Lattice {
    std::vector<double> x; // of each column
    std::vector<double> y; // of each row
};

Lattice NodeCoordinates(const CalculationGrid& grid) {
    Lattice lattice;
    for (std::int32_t i = 0; i < grid.columns; ++i) {
        lattice.x.push_back(NodePosition(grid, i, 0).x);
    }
    for (std::int32_t j = 0; j < grid.rows; ++j) {
        lattice.y.push_back(NodePosition(grid, 0, j).y);
    }
    return lattice;
}

// Computed distances err by a few units in the last place of the coordinates; an edge is left out
// only when it is farther by more than that.
double RoundingSlack(const Lattice& lattice, const std::vector<Edge2D>& edges) {
    double largest = 0.0;
    const auto include = [&](double coordinate) {
        largest = std::max(largest, std::abs(coordinate));
    };
    for (const Edge2D& edge : edges) {
        include(edge.from.x);
        include(edge.from.y);
    }
    include(lattice.x.front());
    include(lattice.x.back());
    include(lattice.y.front());
    include(lattice.y.back());
    return 1e-12 * largest;
}

// The squared distances of the nodes, in the making.
struct DistanceField {
    const Lattice& nodes;
    double slack;
    std::vector<double>& squared;
};

void FillNodes(const DistanceField& field, const NodeBlock& block,
               const std::vector<Edge2D>& candidates) {
    const Lattice& nodes = field.nodes;
    for (std::size_t j = block.firstRow; j < block.endRow; ++j) {
        double* row = field.squared.data() + j * nodes.x.size();
        for (std::size_t i = block.firstColumn; i < block.endColumn; ++i) {
            double nearest = std::numeric_limits<double>::infinity();
            for (const Edge2D& edge : candidates) {
                const double distance = SquaredDistance(edge, {nodes.x[i], nodes.y[j]});
                nearest = distance < nearest ? distance : nearest;
            }
            row[i] = nearest;
        }
    }
}

std::vector<Edge2D> EdgesNearBlock(const DistanceField& field, const NodeBlock& block,
                                   const std::vector<Edge2D>& candidates) {
    const double left = field.nodes.x[block.firstColumn];
    const double right = field.nodes.x[block.endColumn - 1];
    const double bottom = field.nodes.y[block.firstRow];
    const double top = field.nodes.y[block.endRow - 1];
    const Point2D centre{0.5 * (left + right), 0.5 * (bottom + top)};

    std::vector<double> distances;
    distances.reserve(candidates.size());
    double nearest = std::numeric_limits<double>::infinity();
    for (const Edge2D& edge : candidates) {
        const double distance = std::sqrt(SquaredDistance(edge, centre));
        distances.push_back(distance);
        nearest = distance < nearest ? distance : nearest;
    }
    const double limit = nearest + std::hypot(right - left, top - bottom) + field.slack;

    std::vector<Edge2D> near;
    for (std::size_t i = 0; i < candidates.size(); ++i) {
        if (!(distances[i] > limit)) { // keeps what is no number
            near.push_back(candidates[i]);
        }
    }
    return near;
}

// Halves the block until few edges or few nodes are left.
void FillBlock(const DistanceField& field, const NodeBlock& block,
               const std::vector<Edge2D>& candidates) {
    const std::size_t columns = block.endColumn - block.firstColumn;
    const std::size_t rows = block.endRow - block.firstRow;
    if (candidates.size() <= 4 || columns * rows <= 64) {
        FillNodes(field, block, candidates);
        return;
    }
    NodeBlock low = block;
    NodeBlock high = block;
    if (columns >= rows) {
        low.endColumn = high.firstColumn = block.firstColumn + columns / 2;
    } else {
        low.endRow = high.firstRow = block.firstRow + rows / 2;
    }
    FillBlock(field, low, EdgesNearBlock(field, low, candidates));
    FillBlock(field, high, EdgesNearBlock(field, high, candidates));
}

// Writes `value` to the nodes of a row that `ring` encloses by the even-odd rule. A crossing at x
// counts for every node left of x, a run of nodes from the start of the row; `ends` are the ends of
// these runs. A node is enclosed where an odd number of runs reach beyond it; a closed ring crosses
// a height an even number of times.
void MarkEnclosed(const std::vector<Point2D>& ring, double y, const std::vector<double>& nodes,
                  std::vector<char>& row, char value) {
    std::vector<std::size_t> ends;
    for (std::size_t k = 0; k < ring.size(); ++k) {
        const Point2D& from = ring[k];
        const Point2D& to = ring[k + 1 < ring.size() ? k + 1 : 0];
        if (!CrossesHeight(from, to, y)) {
            continue;
        }
        const double x = CrossingX(from, to, y); // what is no number ends a run of no nodes
        ends.push_back(static_cast<std::size_t>(std::lower_bound(nodes.begin(), nodes.end(), x) -
                                                nodes.begin()));
    }
    std::sort(ends.begin(), ends.end());
    for (std::size_t k = 0; k < ends.size(); k += 2) {
        std::fill(row.begin() + static_cast<std::ptrdiff_t>(ends[k]),
                  row.begin() + static_cast<std::ptrdiff_t>(ends[k + 1]), value);
    }
}

// Turns the squared distances of one row into distances, those of nodes outside excepted.
void FinishRow(const std::vector<char>& inside, double* row) {
    for (std::size_t i = 0; i < inside.size(); ++i) {
        const double distance = std::sqrt(row[i]);
        row[i] = inside[i] != 0 || distance <= OnBoundary ? distance : OutsideNode;
    }
}

} // namespace

std::vector<double> NodeDistances(const Polygon2D& polygon, const CalculationGrid& lattice) {
    if (lattice.columns <= 0 || lattice.rows <= 0) {
        return {};
    }
    const Lattice nodes = NodeCoordinates(lattice);
    const std::size_t columns = nodes.x.size();
    const std::size_t rows = nodes.y.size();
    if (polygon.outer.size() < 3) {
        return std::vector<double>(columns * rows, OutsideNode);
    }

    std::vector<double> distances(columns * rows);
    const std::vector<Edge2D> edges = BoundaryEdges(polygon);
    FillBlock({nodes, RoundingSlack(nodes, edges), distances}, {0, columns, 0, rows}, edges);

    std::vector<char> inside(columns);
    for (std::size_t j = 0; j < rows; ++j) {
        std::fill(inside.begin(), inside.end(), '\0');
        MarkEnclosed(polygon.outer, nodes.y[j], nodes.x, inside, 1);
        for (const std::vector<Point2D>& hole : polygon.holes) {
            if (hole.size() >= 3) {
                MarkEnclosed(hole, nodes.y[j], nodes.x, inside, 0);
            }
        }
        FinishRow(inside, distances.data() + j * columns);
    }
    return distances;
}

} // namespace Merivane::Simulation
