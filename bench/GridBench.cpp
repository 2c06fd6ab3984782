// Distances of the nodes of a whole lattice against the same question asked node by node, on rings
// of few and of many edges. Prints milliseconds and their ratio; the values must be the same.

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <vector>

#include "Simulation/NodeDistances.hpp"
#include "Simulation/PolygonGeometry.hpp"

using namespace Merivane::Simulation;

namespace {

using Clock = std::chrono::steady_clock;

std::vector<double> NodeByNode(const Polygon2D& polygon, const CalculationGrid& grid) {
    std::vector<double> distances;
    distances.reserve(grid.active.size());
    for (std::int32_t j = 0; j < grid.rows; ++j) {
        for (std::int32_t i = 0; i < grid.columns; ++i) {
            const Point2D node = NodePosition(grid, i, j);
            distances.push_back(IsInsidePolygon(polygon, node) ? DistanceToBoundary(polygon, node)
                                                               : OutsideNode);
        }
    }
    return distances;
}

Polygon2D WavyRing(int vertices) {
    Polygon2D polygon;
    for (int k = 0; k < vertices; ++k) {
        const double angle = 6.283185307179586 * k / vertices;
        const double radius = 10.0 + std::sin(7.0 * angle);
        polygon.outer.push_back({radius * std::cos(angle), radius * std::sin(angle)});
    }
    return polygon;
}

template <class Work> double Milliseconds(int repeats, std::vector<double>& result, Work work) {
    double best = 1e9;
    for (int k = 0; k < repeats; ++k) {
        const Clock::time_point start = Clock::now();
        result = work();
        best =
            std::min(best, std::chrono::duration<double, std::milli>(Clock::now() - start).count());
    }
    return best;
}

} // namespace

int main() {
    std::printf("%8s %10s %14s %14s %8s\n", "edges", "nodes", "lattice [ms]", "by node [ms]",
                "ratio");
    for (const int edges : {4, 16, 64, 256, 1024}) {
        const Polygon2D polygon = WavyRing(edges);
        GridSettings settings{0.0, 0.0, 0.0, 22.0 / 500.0};
        const CalculationGrid grid = BuildCalculationGrid(polygon, 0.0, settings);
        std::vector<double> lattice;
        std::vector<double> single;
        const double ours = Milliseconds(5, lattice, [&] { return NodeDistances(polygon, grid); });
        const double peer = Milliseconds(1, single, [&] { return NodeByNode(polygon, grid); });
        std::printf("%8d %10zu %14.2f %14.2f %8.1f%s\n", edges, lattice.size(), ours, peer,
                    peer / ours, lattice == single ? "" : "  DIFFERENT");
    }
    return 0;
}
