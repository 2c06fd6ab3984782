#include "Workbench/Script/SweptShapes.hpp"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <numbers>
#include <vector>

#include "Workbench/Script/ShapeLoft.hpp"
#include "Workbench/Script/ShapeProfile.hpp"
#include "Workbench/Script/ShapeVectors.hpp"

namespace Merivane::Workbench {

namespace {

using Host::Coordinate;
using Host::Coordinate3D;

constexpr double Degree = std::numbers::pi / 180.0;
constexpr RowLayout StatusRows = {3, 2};

constexpr std::int32_t BeginBit = 1;
constexpr std::int32_t EndBit = 2;
constexpr std::int32_t ClosingBit = 4;

/// The rows of a profile whose places in the arguments end before the last.
std::string ReadHeadProfile(ShapeInput& input, const ShapeSketch& sketch, std::size_t count,
                            std::size_t pathNumbers, ShapeProfile& profile) {
    if (std::string refusal = CheckRest(input, count * StatusRows.columns + pathNumbers);
        !refusal.empty()) {
        return refusal;
    }
    const auto pathBegin = static_cast<std::ptrdiff_t>(input.numbers.size() - pathNumbers);
    const std::vector<double> path(input.numbers.begin() + pathBegin, input.numbers.end());
    input.numbers.resize(input.numbers.size() - pathNumbers);
    std::string refusal = ReadProfile(input, sketch, count, StatusRows, profile);
    input.numbers.insert(input.numbers.end(), path.begin(), path.end());
    return refusal;
}

/// A place of a path, and the axes of the profile there.
struct PathFrame {
    Coordinate3D place;
    Coordinate3D u;
    Coordinate3D v;
};

/// The profile at a frame, turned [rad] and scaled.
LoftSection AddProfile(ShapeSketch& sketch, const PlanRing& points, const PathFrame& frame,
                       double turned, double scale) {
    const double cosine = scale * std::cos(turned);
    const double sine = scale * std::sin(turned);
    return AddSection(sketch, points.size(), [&](std::size_t i) {
        const double u = points[i].x * cosine - points[i].y * sine;
        const double v = points[i].x * sine + points[i].y * cosine;
        return Sum(frame.place, Sum(Scaled(frame.u, u), Scaled(frame.v, v)));
    });
}

void AddSweep(ShapeSketch& sketch, const Loft& loft, const std::vector<LoftSection>& sections,
              std::int32_t surface, std::int32_t mask) {
    AddCap(sketch, loft, sections.front(), surface, HasBits(mask, BeginBit), true);
    for (std::size_t i = 0; i + 1 < sections.size(); ++i) {
        AddBand(sketch, loft, sections[i], sections[i + 1]);
    }
    AddCap(sketch, loft, sections.back(), surface, HasBits(mask, EndBit), false);
}

/// The least rotation that takes one direction to another, of a vector.
Coordinate3D Carried(const Coordinate3D& vector, const Coordinate3D& from, const Coordinate3D& to) {
    const Coordinate3D axis = Cross(from, to);
    const double cosine = Dot(from, to);
    constexpr double opposite = -1.0 + 1e-12;
    if (cosine <= opposite) {
        return vector;
    }
    // Rodrigues with sine and cosine from the directions themselves.
    return Sum(Sum(Scaled(vector, cosine), Cross(axis, vector)),
               Scaled(axis, Dot(axis, vector) / (1.0 + cosine)));
}

/// Places that follow on themselves count once.
std::vector<Coordinate3D> TakePath(ShapeInput& input, std::size_t count, bool withAngle,
                                   std::vector<double>& angles) {
    std::vector<Coordinate3D> path;
    for (std::size_t i = 0; i < count; ++i) {
        const Coordinate3D place = TakePlace(input);
        const double angle = withAngle ? TakeNumber(input) * Degree : 0.0;
        if (path.empty() || Length(Difference(place, path.back())) > NoShapeLength) {
            path.push_back(place);
            angles.push_back(angle);
        }
    }
    return path;
}

/// The axes of a tube along each stretch of its path: v upright over the direction; along z they
/// are carried on from the stretch before.
std::vector<PathFrame> TubeFrames(const std::vector<Coordinate3D>& path) {
    constexpr double upright = 1e-6;
    std::vector<PathFrame> frames;
    Coordinate3D before = {0.0, 0.0, 1.0};
    PathFrame frame = {{}, {1.0, 0.0, 0.0}, {0.0, 1.0, 0.0}};
    for (std::size_t i = 0; i + 1 < path.size(); ++i) {
        const Coordinate3D ahead = Unit(Difference(path[i + 1], path[i]));
        const Coordinate3D left = Cross({0.0, 0.0, 1.0}, ahead);
        if (Length(left) > upright) {
            frame.u = Unit(left);
            frame.v = Cross(ahead, frame.u);
        } else {
            frame.u = Unit(Carried(frame.u, before, ahead));
            frame.v = Cross(ahead, frame.u);
        }
        before = ahead;
        frames.push_back(frame);
    }
    return frames;
}

/// The frame in the plane half way between two stretches: what both give, met in the middle.
PathFrame MitredFrame(const std::vector<Coordinate3D>& path, const std::vector<PathFrame>& frames,
                      std::size_t node) {
    const Coordinate3D in = Unit(Difference(path[node], path[node - 1]));
    const Coordinate3D out = Unit(Difference(path[node + 1], path[node]));
    const Coordinate3D normal = Sum(in, out);
    const auto onPlane = [&](const Coordinate3D& axis, const Coordinate3D& along) {
        const double slope = Dot(along, normal);
        constexpr double turnsBack = 1e-6;
        return slope > turnsBack ? Difference(axis, Scaled(along, Dot(axis, normal) / slope))
                                 : axis;
    };
    const auto between = [&](const Coordinate3D& first, const Coordinate3D& second) {
        return Scaled(Sum(onPlane(first, in), onPlane(second, out)), 1.0 / 2.0);
    };
    return {path[node], between(frames[node - 1].u, frames[node].u),
            between(frames[node - 1].v, frames[node].v)};
}

std::string SketchAnyTube(ShapeInput& input, ShapeSketch& sketch, bool withAngle) {
    constexpr std::size_t fewestPlaces = 3;
    constexpr std::size_t placeNumbers = 3;
    std::size_t count = 0;
    std::size_t places = 0;
    if (std::string refusal = TakeCount(input, 2, count); !refusal.empty()) {
        return refusal;
    }
    if (std::string refusal = TakeCount(input, fewestPlaces, places); !refusal.empty()) {
        return refusal;
    }
    const std::int32_t mask = TakeBits(input);
    ShapeProfile profile;
    if (std::string refusal = ReadHeadProfile(
            input, sketch, count, places * (placeNumbers + (withAngle ? 1 : 0)), profile);
        !refusal.empty() || !KeepProfileOpen(profile)) {
        return refusal;
    }
    std::vector<double> angles;
    const std::vector<Coordinate3D> path = TakePath(input, places, withAngle, angles);
    if (path.size() < fewestPlaces + 1) {
        return {};
    }
    const PlanRing points = ProfilePoints(profile);
    if (std::string refusal = CheckLoftRoom(sketch, points.size(), path.size() - fewestPlaces);
        !refusal.empty()) {
        return refusal;
    }
    const std::vector<PathFrame> frames = TubeFrames(path);
    std::vector<LoftSection> sections;
    for (std::size_t node = 1; node + 1 < path.size(); ++node) {
        sections.push_back(
            AddProfile(sketch, points, MitredFrame(path, frames, node), angles[node], 1.0));
    }
    AddSweep(sketch, ProfileLoft(profile, input.surface, false), sections, input.surface, mask);
    return {};
}

} // namespace

std::string SketchExtrusion(ShapeInput& input, ShapeSketch& sketch) {
    std::size_t count = 0;
    if (std::string refusal = TakeCount(input, 2, count); !refusal.empty()) {
        return refusal;
    }
    const Coordinate3D way = TakePlace(input);
    const std::int32_t mask = TakeBits(input);
    ShapeProfile profile;
    if (std::string refusal = ReadProfile(input, sketch, count, StatusRows, profile);
        !refusal.empty() || !KeepProfileOpen(profile)) {
        return refusal;
    }
    if (Length(way) <= NoShapeLength) {
        return {};
    }
    const PlanRing points = ProfilePoints(profile);
    if (std::string refusal = CheckLoftRoom(sketch, points.size(), 1); !refusal.empty()) {
        return refusal;
    }
    const PathFrame begin = {{}, {1.0, 0.0, 0.0}, {0.0, 1.0, 0.0}};
    const PathFrame end = {way, begin.u, begin.v};
    const std::vector<LoftSection> sections = {AddProfile(sketch, points, begin, 0.0, 1.0),
                                               AddProfile(sketch, points, end, 0.0, 1.0)};
    AddSweep(sketch, ProfileLoft(profile, input.surface, HasBits(mask, ClosingBit)), sections,
             input.surface, mask);
    return {};
}

std::string SketchPyramid(ShapeInput& input, ShapeSketch& sketch) {
    std::size_t count = 0;
    if (std::string refusal = TakeCount(input, 2, count); !refusal.empty()) {
        return refusal;
    }
    const double height = TakeNumber(input);
    const std::int32_t mask = TakeBits(input);
    ShapeProfile profile;
    if (std::string refusal = ReadProfile(input, sketch, count, StatusRows, profile);
        !refusal.empty() || !KeepProfileOpen(profile)) {
        return refusal;
    }
    const PlanRing points = ProfilePoints(profile);
    if (std::string refusal = CheckLoftRoom(sketch, points.size(), 1); !refusal.empty()) {
        return refusal;
    }
    const Loft loft = ProfileLoft(profile, input.surface, HasBits(mask, ClosingBit));
    const PathFrame ground = {{}, {1.0, 0.0, 0.0}, {0.0, 1.0, 0.0}};
    const LoftSection base = AddProfile(sketch, points, ground, 0.0, 1.0);
    if (std::abs(height) <= NoShapeLength) {
        sketch.oriented = true;
        const bool turned = SignedArea(profile.rings.front().points) < 0.0;
        AddCap(sketch, loft, base, input.surface, HasBits(mask, BeginBit), turned);
        return {};
    }
    AddCap(sketch, loft, base, input.surface, HasBits(mask, BeginBit), true);
    AddBand(sketch, loft, base, AddPeak(sketch, points.size(), {0.0, 0.0, height}));
    return {};
}

std::string SketchRuled(ShapeInput& input, ShapeSketch& sketch) {
    constexpr std::size_t planeNumbers = 3;
    std::size_t count = 0;
    if (std::string refusal = TakeCount(input, 2, count); !refusal.empty()) {
        return refusal;
    }
    const std::int32_t mask = TakeBits(input);
    if (std::string refusal = CheckRest(input, 2 * planeNumbers * count); !refusal.empty()) {
        return refusal;
    }
    if (std::string refusal = CheckLoftRoom(sketch, 2 * count, 1); !refusal.empty()) {
        return refusal;
    }
    std::vector<Coordinate3D> first;
    std::vector<Coordinate3D> second;
    for (std::size_t i = 0; i < count; ++i) {
        const double u = TakeNumber(input);
        const double v = TakeNumber(input);
        TakeNumber(input); // the status tells how edges are drawn
        first.push_back({u, v, 0.0});
    }
    for (std::size_t i = 0; i < count; ++i) {
        second.push_back(TakePlace(input));
    }
    const auto isClosed = [](const std::vector<Coordinate3D>& places) {
        return places.size() > 2 &&
               Length(Difference(places.front(), places.back())) <= NoShapeLength;
    };
    const bool closed = isClosed(first) && isClosed(second);
    if (closed) {
        first.pop_back();
        second.pop_back();
    }
    Loft loft = RingLoft(first.size(), input.surface);
    loft.edges.back().present = closed || HasBits(mask, ClosingBit);
    const auto add = [&](const std::vector<Coordinate3D>& places) {
        LoftSection section;
        for (const Coordinate3D& place : places) {
            const bool same =
                !section.empty() &&
                Length(Difference(place, sketch.body.vertices.back())) <= NoShapeLength;
            section.push_back(same ? section.back() : AddVertex(sketch, place));
        }
        return section;
    };
    const std::vector<LoftSection> sections = {add(first), add(second)};
    AddSweep(sketch, loft, sections, input.surface, mask);
    return {};
}

std::string SketchSweep(ShapeInput& input, ShapeSketch& sketch) {
    constexpr std::size_t placeNumbers = 3;
    std::size_t count = 0;
    std::size_t places = 0;
    if (std::string refusal = TakeCount(input, 2, count); !refusal.empty()) {
        return refusal;
    }
    if (std::string refusal = TakeCount(input, 2, places); !refusal.empty()) {
        return refusal;
    }
    const double turn = TakeNumber(input) * Degree;
    const double growth = TakeNumber(input);
    const std::int32_t mask = TakeBits(input);
    ShapeProfile profile;
    if (std::string refusal = ReadHeadProfile(input, sketch, count, places * placeNumbers, profile);
        !refusal.empty() || !KeepProfileOpen(profile)) {
        return refusal;
    }
    std::vector<double> angles;
    std::vector<Coordinate3D> path = TakePath(input, places, false, angles);
    const PlanRing points = ProfilePoints(profile);
    if (std::string refusal = CheckLoftRoom(sketch, points.size(), path.size());
        !refusal.empty() || path.size() < 2) {
        return refusal;
    }
    // A path that begins elsewhere is moved along z to begin on the x-y plane.
    const double level = path.front().z;
    PathFrame frame = {{}, {1.0, 0.0, 0.0}, {0.0, 1.0, 0.0}};
    Coordinate3D before = {0.0, 0.0, 1.0};
    std::vector<LoftSection> sections;
    for (std::size_t i = 0; i < path.size(); ++i) {
        if (i > 0) {
            const Coordinate3D ahead = Unit(Difference(path[i], path[i - 1]));
            frame.u = Carried(frame.u, before, ahead);
            frame.v = Carried(frame.v, before, ahead);
            before = ahead;
        }
        frame.place = {path[i].x, path[i].y, path[i].z - level};
        sections.push_back(AddProfile(sketch, points, frame, turn * static_cast<double>(i),
                                      std::pow(growth, static_cast<double>(i))));
    }
    AddSweep(sketch, ProfileLoft(profile, input.surface, HasBits(mask, ClosingBit)), sections,
             input.surface, mask);
    return {};
}

std::string SketchTube(ShapeInput& input, ShapeSketch& sketch) {
    return SketchAnyTube(input, sketch, true);
}

std::string SketchUprightTube(ShapeInput& input, ShapeSketch& sketch) {
    return SketchAnyTube(input, sketch, false);
}

} // namespace Merivane::Workbench
