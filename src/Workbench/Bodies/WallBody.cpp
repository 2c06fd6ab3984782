#include "Workbench/Bodies/WallBody.hpp"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <numbers>

#include "Workbench/Bodies/PlateBody.hpp"
#include "Workbench/Bodies/PolygonRings.hpp"

namespace Merivane::Workbench {

namespace {

using Host::Coordinate;

/// Places on a wall's line nearer than this are one [m].
constexpr double SamePlace = 1e-6;

double ChordLength(const WallGeometry& wall) {
    return std::hypot(wall.end.x - wall.begin.x, wall.end.y - wall.begin.y);
}

bool IsBent(const WallGeometry& wall) {
    return std::abs(wall.bend) > 1e-9;
}

/// Radius of a bent wall's line [m].
double Radius(const WallGeometry& wall) {
    return ChordLength(wall) / (2.0 * std::sin(std::abs(wall.bend) / 2.0));
}

/// Both sides of a plate of this thickness at a place of the wall's line.
PlateStation StationAt(const WallGeometry& wall, double along, double thickness) {
    const double length = WallLength(wall);
    const Coordinate chord{(wall.end.x - wall.begin.x) / ChordLength(wall),
                           (wall.end.y - wall.begin.y) / ChordLength(wall)};
    // Direction of the line here: the chord's, turned back by half the bend at the begin and
    // forward by it at the end.
    const double turned = IsBent(wall) ? wall.bend * (along / length - 0.5) : 0.0;
    const Coordinate direction{chord.x * std::cos(turned) - chord.y * std::sin(turned),
                               chord.x * std::sin(turned) + chord.y * std::cos(turned)};
    Coordinate middle{wall.begin.x + chord.x * along, wall.begin.y + chord.y * along};
    if (IsBent(wall)) {
        // The centre lies on the left of a counter-clockwise arc.
        const double radius = std::copysign(Radius(wall), wall.bend);
        const double half = wall.bend / 2.0;
        const Coordinate start{chord.x * std::cos(half) + chord.y * std::sin(half),
                               chord.y * std::cos(half) - chord.x * std::sin(half)};
        const Coordinate center{wall.begin.x - start.y * radius, wall.begin.y + start.x * radius};
        middle = {center.x + direction.y * radius, center.y - direction.x * radius};
    }
    const double half = thickness / 2.0;
    return {along,
            {middle.x - direction.y * half, middle.y + direction.x * half},
            {middle.x + direction.y * half, middle.y - direction.x * half}};
}

/// Ascending, without what follows too closely.
std::vector<double> Distinct(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    std::vector<double> kept;
    for (const double value : values) {
        if (kept.empty() || value - kept.back() > SamePlace) {
            kept.push_back(value);
        }
    }
    return kept;
}

/// The wall's line in pieces from `begin` to `end`: at the given places, and on an arc where its
/// chords meet, but for joints so near to one of those places that a splinter would lie between.
std::vector<double> DivideLine(const WallGeometry& wall, std::vector<double> places, double begin,
                               double end) {
    places.push_back(begin);
    places.push_back(end);
    if (IsBent(wall)) {
        const std::vector<double> fixed = places;
        const int count = ChordCount(wall.bend);
        const double step = WallLength(wall) / count;
        for (int i = 1; i < count; ++i) {
            const double joint = step * i;
            const bool apart = std::none_of(fixed.begin(), fixed.end(), [&](double place) {
                return std::abs(place - joint) < step / 4.0;
            });
            if (apart && joint > begin && joint < end) {
                places.push_back(joint);
            }
        }
    }
    return Distinct(std::move(places));
}

/// A plate along part of a wall's line, its cells all of look 0.
Plate PlateOnWall(const WallGeometry& wall, double thickness, const std::vector<double>& places,
                  std::vector<double> heights) {
    Plate plate;
    for (const double along : places) {
        plate.stations.push_back(StationAt(wall, along, thickness));
    }
    plate.heights = Distinct(std::move(heights));
    plate.cells.assign((plate.stations.size() - 1) * (plate.heights.size() - 1), 0);
    plate.bent = IsBent(wall);
    return plate;
}

/// Gives the cells whose middles lie in a rectangle a look.
void SetCells(Plate& plate, const WallCut& cut, double bottom, int look) {
    const std::size_t columns = plate.stations.size() - 1;
    for (std::size_t cell = 0; cell < plate.cells.size(); ++cell) {
        const std::size_t column = cell % columns;
        const std::size_t row = cell / columns;
        const double along =
            (plate.stations[column].along + plate.stations[column + 1].along) / 2.0;
        const double height = (plate.heights[row] + plate.heights[row + 1]) / 2.0 - bottom;
        if (along > cut.begin && along < cut.end && height > cut.low && height < cut.high) {
            plate.cells[cell] = look;
        }
    }
}

/// The cut less the frame's members.
WallCut InsideFrame(const WallCut& cut, double frame) {
    const double below = cut.low > SamePlace ? frame : 0.0;
    return {cut.begin + frame, cut.end - frame, cut.low + below, cut.high - frame};
}

} // namespace

double WallLength(const WallGeometry& wall) {
    return IsBent(wall) ? Radius(wall) * std::abs(wall.bend) : ChordLength(wall);
}

bool IsSoundWall(const WallGeometry& wall) {
    if (!(ChordLength(wall) > SamePlace && wall.thickness > SamePlace && wall.height > SamePlace)) {
        return false;
    }
    return !IsBent(wall) || (std::abs(wall.bend) < 2.0 * std::numbers::pi - 1e-6 &&
                             Radius(wall) > wall.thickness / 2.0 + SamePlace);
}

bool CutOfOpening(const WallGeometry& wall, const OpeningGeometry& opening, WallCut& cut) {
    if (!IsSoundWall(wall)) {
        return false;
    }
    cut = {std::max(0.0, opening.along - opening.width / 2.0),
           std::min(WallLength(wall), opening.along + opening.width / 2.0),
           std::max(0.0, opening.sill), std::min(wall.height, opening.sill + opening.height)};
    return cut.end - cut.begin > SamePlace && cut.high - cut.low > SamePlace;
}

FacedBody BuildWallBody(const WallGeometry& wall, const std::vector<OpeningGeometry>& openings) {
    if (!IsSoundWall(wall)) {
        return {};
    }
    std::vector<WallCut> cuts;
    std::vector<double> places;
    std::vector<double> heights = {wall.bottom, wall.bottom + wall.height};
    for (const OpeningGeometry& opening : openings) {
        WallCut cut;
        if (CutOfOpening(wall, opening, cut)) {
            cuts.push_back(cut);
            places.insert(places.end(), {cut.begin, cut.end});
            heights.insert(heights.end(), {wall.bottom + cut.low, wall.bottom + cut.high});
        }
    }
    Plate plate =
        PlateOnWall(wall, wall.thickness,
                    DivideLine(wall, std::move(places), 0.0, WallLength(wall)), std::move(heights));
    plate.looks = {{FaceSurface(wall.leftSurface), FaceSurface(wall.rightSurface),
                    FaceSurface(wall.edgeSurface)}};
    for (const WallCut& cut : cuts) {
        SetCells(plate, cut, wall.bottom, EmptyCell);
    }
    return BuildPlate(plate);
}

FacedBody BuildOpeningBody(const WallGeometry& wall, const OpeningGeometry& opening) {
    WallCut cut;
    if (opening.open || !(opening.depth > 0.0) || !CutOfOpening(wall, opening, cut)) {
        return {};
    }
    const WallCut pane = InsideFrame(cut, std::max(0.0, opening.frame));
    const bool hasPane = pane.end - pane.begin > SamePlace && pane.high - pane.low > SamePlace;
    std::vector<double> places;
    std::vector<double> heights = {wall.bottom + cut.low, wall.bottom + cut.high};
    if (hasPane) {
        places = {pane.begin, pane.end};
        heights.insert(heights.end(), {wall.bottom + pane.low, wall.bottom + pane.high});
    }
    Plate plate =
        PlateOnWall(wall, opening.depth, DivideLine(wall, std::move(places), cut.begin, cut.end),
                    std::move(heights));
    const std::int32_t frame = FaceSurface(opening.frameSurface);
    const std::int32_t leaf = FaceSurface(opening.paneSurface);
    plate.looks = {{frame, frame, frame}, {leaf, leaf, frame}};
    if (hasPane) {
        SetCells(plate, pane, wall.bottom, 1);
    }
    return BuildPlate(plate);
}

FacedBody BuildOpeningRoom(const WallGeometry& wall, const OpeningGeometry& opening) {
    WallCut cut;
    if (!CutOfOpening(wall, opening, cut)) {
        return {};
    }
    Plate plate = PlateOnWall(wall, wall.thickness, DivideLine(wall, {}, cut.begin, cut.end),
                              {wall.bottom + cut.low, wall.bottom + cut.high});
    plate.looks = {{}};
    return BuildPlate(plate);
}

} // namespace Merivane::Workbench
