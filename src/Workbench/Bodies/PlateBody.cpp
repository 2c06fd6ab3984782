#include "Workbench/Bodies/PlateBody.hpp"

#include <algorithm>
#include <array>
#include <cstddef>
#include <iterator>
#include <map>
#include <utility>

// Corners of cells are told as (column, row) of the grid, seen from the plate's right side: there
// columns run to the right and rows up, so a loop with its cells on the left is counter-clockwise
// from outside. The left side has the same loops walked backwards.
namespace Merivane::Workbench {

namespace {

struct Corner {
    int column = 0;
    int row = 0;

    auto operator<=>(const Corner&) const = default;
};

/// Directions in the order of left turns: right, up, left, down.
constexpr std::array<Corner, 4> Steps = {{{1, 0}, {0, 1}, {-1, 0}, {0, -1}}};

/// A closed walk around cells that stay on its left.
struct Loop {
    std::vector<Corner> corners;
    std::vector<int> directions; ///< of the side that begins at each corner
    std::vector<bool> exposed;   ///< no cell on the other side of that side
};

/// Cells of one face.
struct Region {
    int look = EmptyCell;
    std::vector<Loop> loops;
};

class PlateTracer {
public:
    explicit PlateTracer(const Plate& traced)
        : plate(traced), columns(static_cast<int>(traced.stations.size()) - 1),
          rows(static_cast<int>(traced.heights.size()) - 1),
          regionOf(static_cast<std::size_t>(columns * rows), -1) {}

    std::vector<Region> Trace() {
        for (int row = 0; row < rows; ++row) {
            for (int column = 0; column < columns; ++column) {
                if (LookAt(column, row) != EmptyCell && RegionAt(column, row) < 0) {
                    Flood({column, row});
                }
            }
        }
        for (int region = 0; region < static_cast<int>(regions.size()); ++region) {
            TraceLoops(region);
        }
        return std::move(regions);
    }

private:
    bool Holds(int column, int row) const {
        return column >= 0 && row >= 0 && column < columns && row < rows;
    }
    std::size_t Place(int column, int row) const {
        return static_cast<std::size_t>(row) * static_cast<std::size_t>(columns) +
               static_cast<std::size_t>(column);
    }
    int LookAt(int column, int row) const {
        return Holds(column, row) ? plate.cells[Place(column, row)] : EmptyCell;
    }
    int RegionAt(int column, int row) const {
        return Holds(column, row) ? regionOf[Place(column, row)] : -1;
    }

    void Flood(Corner start) {
        const int region = static_cast<int>(regions.size());
        const int look = LookAt(start.column, start.row);
        regions.push_back({look, {}});
        std::vector<Corner> open = {start};
        regionOf[Place(start.column, start.row)] = region;
        while (!open.empty()) {
            const Corner cell = open.back();
            open.pop_back();
            for (const Corner& step : Steps) {
                const int column = cell.column + step.column;
                const int row = cell.row + step.row;
                if ((plate.bent && step.column != 0) || LookAt(column, row) != look ||
                    RegionAt(column, row) >= 0) {
                    continue;
                }
                regionOf[Place(column, row)] = region;
                open.push_back({column, row});
            }
        }
    }

    /// The cell on the left (`side` 0) or right (`side` 1) of the side that leaves a corner.
    static Corner CellBeside(Corner corner, int direction, int side) {
        static constexpr std::array<Corner, 4> left = {{{0, 0}, {-1, 0}, {-1, -1}, {0, -1}}};
        const Corner& off = left[static_cast<std::size_t>((direction + 3 * side) % 4)];
        return {corner.column + off.column, corner.row + off.row};
    }

    bool IsSide(Corner corner, int direction, int region) const {
        const Corner inside = CellBeside(corner, direction, 0);
        const Corner outside = CellBeside(corner, direction, 1);
        return RegionAt(inside.column, inside.row) == region &&
               RegionAt(outside.column, outside.row) != region;
    }

    void TraceLoops(int region) {
        std::map<std::pair<Corner, int>, bool> walked;
        for (int row = 0; row < rows; ++row) {
            for (int column = 0; column < columns; ++column) {
                // Every loop has a side that runs to the right: an outline its lowest, a hole its
                // highest.
                if (IsSide({column, row}, 0, region) && !walked[{{column, row}, 0}]) {
                    Walk({column, row}, 0, region, walked);
                }
            }
        }
        std::vector<Loop>& loops = regions[static_cast<std::size_t>(region)].loops;
        const auto outline = std::find_if(loops.begin(), loops.end(),
                                          [](const Loop& loop) { return DoubledArea(loop) > 0; });
        std::iter_swap(loops.begin(), outline);
    }

    void Walk(Corner start, int startDirection, int region,
              std::map<std::pair<Corner, int>, bool>& walked) {
        Loop loop;
        Corner corner = start;
        int direction = startDirection;
        do {
            walked[{corner, direction}] = true;
            const Corner outside = CellBeside(corner, direction, 1);
            loop.corners.push_back(corner);
            loop.directions.push_back(direction);
            loop.exposed.push_back(LookAt(outside.column, outside.row) == EmptyCell);
            const Corner& step = Steps[static_cast<std::size_t>(direction)];
            corner = {corner.column + step.column, corner.row + step.row};
            // The right turn first: where cells touch by a corner only, the walk stays with the
            // opening, so that openings that touch by a corner remain two.
            for (const int turn : {3, 0, 1}) {
                if (IsSide(corner, (direction + turn) % 4, region)) {
                    direction = (direction + turn) % 4;
                    break;
                }
            }
        } while (!(corner == start && direction == startDirection));
        regions[static_cast<std::size_t>(region)].loops.push_back(std::move(loop));
    }

    static long DoubledArea(const Loop& loop) {
        long area = 0;
        for (std::size_t i = 0; i < loop.corners.size(); ++i) {
            const Corner& a = loop.corners[i];
            const Corner& b = loop.corners[(i + 1) % loop.corners.size()];
            area += static_cast<long>(a.column) * b.row - static_cast<long>(b.column) * a.row;
        }
        return area;
    }

    const Plate& plate;
    int columns;
    int rows;
    std::vector<int> regionOf;
    std::vector<Region> regions;
};

/// Corners at which any loop turns: the vertices of the body. A loop that runs straight past one
/// has a vertex there too, since faces share their edges whole.
std::map<Corner, std::int32_t> NumberVertices(const std::vector<Region>& regions) {
    std::map<Corner, std::int32_t> vertices;
    for (const Region& region : regions) {
        for (const Loop& loop : region.loops) {
            for (std::size_t i = 0; i < loop.corners.size(); ++i) {
                const std::size_t before = (i + loop.corners.size() - 1) % loop.corners.size();
                if (loop.directions[before] != loop.directions[i]) {
                    vertices[loop.corners[i]] = 0;
                }
            }
        }
    }
    std::int32_t number = 0;
    for (auto& [corner, vertex] : vertices) {
        vertex = number;
        number += 2;
    }
    return vertices;
}

/// A loop by the vertices of the right side that it meets, and which stretches between them bound
/// no other cell.
struct VertexLoop {
    std::vector<std::int32_t> vertices;
    std::vector<bool> exposed;
};

VertexLoop MeetVertices(const Loop& loop, const std::map<Corner, std::int32_t>& numbers) {
    VertexLoop met;
    for (std::size_t i = 0; i < loop.corners.size(); ++i) {
        const auto vertex = numbers.find(loop.corners[i]);
        if (vertex != numbers.end()) {
            met.vertices.push_back(vertex->second);
            met.exposed.push_back(loop.exposed[i]);
        }
    }
    return met;
}

/// Left vertices are one behind those of the right.
std::vector<std::int32_t> LeftContour(std::vector<std::int32_t> contour) {
    std::reverse(contour.begin(), contour.end());
    for (std::int32_t& vertex : contour) {
        ++vertex;
    }
    return contour;
}

void AddReveals(const VertexLoop& loop, std::int32_t surface, std::vector<ContouredFace>& reveals) {
    for (std::size_t i = 0; i < loop.vertices.size(); ++i) {
        if (loop.exposed[i]) {
            const std::int32_t from = loop.vertices[i];
            const std::int32_t to = loop.vertices[(i + 1) % loop.vertices.size()];
            reveals.push_back({{{to, from, from + 1, to + 1}}, surface});
        }
    }
}

} // namespace

FacedBody BuildPlate(const Plate& plate) {
    const std::vector<Region> regions = PlateTracer(plate).Trace();
    const std::map<Corner, std::int32_t> numbers = NumberVertices(regions);
    FacedBody body;
    for (const auto& [corner, number] : numbers) {
        const PlateStation& station = plate.stations[static_cast<std::size_t>(corner.column)];
        const double height = plate.heights[static_cast<std::size_t>(corner.row)];
        body.vertices.push_back({station.right.x, station.right.y, height});
        body.vertices.push_back({station.left.x, station.left.y, height});
    }
    std::vector<ContouredFace> reveals;
    for (const Region& region : regions) {
        const PlateLook& look = plate.looks[static_cast<std::size_t>(region.look)];
        ContouredFace right{{}, look.right};
        ContouredFace left{{}, look.left};
        for (const Loop& loop : region.loops) {
            const VertexLoop met = MeetVertices(loop, numbers);
            AddReveals(met, look.edge, reveals);
            right.contours.push_back(met.vertices);
            left.contours.push_back(LeftContour(met.vertices));
        }
        body.faces.push_back(std::move(left));
        body.faces.push_back(std::move(right));
    }
    std::move(reveals.begin(), reveals.end(), std::back_inserter(body.faces));
    return body;
}

} // namespace Merivane::Workbench
