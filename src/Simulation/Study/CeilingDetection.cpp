#include "Simulation/Study/CeilingDetection.hpp"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <map>
#include <utility>

namespace Merivane::Simulation {

namespace {

constexpr double LevelTolerance = 0.002; // [m]
constexpr double LeastHeight = 1.8;      // [m]: below are tables, shelves, doors
constexpr int CellsPerSide = 24;
constexpr double Rounding = 1e-9; // [m]: 3.10 + 1.80 is not quite 4.90

bool IsLevel(const SceneSurface& surface) {
    if (surface.vertices.size() < 3) {
        return false;
    }
    const double z = surface.vertices.front().z;
    return std::all_of(surface.vertices.begin(), surface.vertices.end(), [z](const Point3D& at) {
        return std::abs(at.z - z) <= LevelTolerance + Rounding;
    });
}

LevelFace FaceOf(const SceneSurface& surface) {
    LevelFace face;
    face.outline.outer.reserve(surface.vertices.size());
    for (const Point3D& at : surface.vertices) {
        face.outline.outer.push_back({at.x, at.y});
    }
    face.bounds = OuterBounds(face.outline);
    face.z = surface.vertices.front().z;
    return face;
}

bool HoldsPoint(const Bounds2D& bounds, Point2D point) {
    return point.x >= bounds.minimum.x - OnBoundary && point.x <= bounds.maximum.x + OnBoundary &&
           point.y >= bounds.minimum.y - OnBoundary && point.y <= bounds.maximum.y + OnBoundary;
}

/// The places of the lattice over a room that lie within it.
std::vector<Point2D> SamplesOf(const Polygon2D& room, const Bounds2D& bounds) {
    const auto place = [](int cell, double low, double high) {
        return low + (cell + 0.5) * (high - low) / CellsPerSide;
    };
    std::vector<Point2D> samples;
    for (int j = 0; j < CellsPerSide; ++j) {
        for (int i = 0; i < CellsPerSide; ++i) {
            const Point2D sample = {place(i, bounds.minimum.x, bounds.maximum.x),
                                    place(j, bounds.minimum.y, bounds.maximum.y)};
            if (IsInsidePolygon(room, sample)) {
                samples.push_back(sample);
            }
        }
    }
    return samples;
}

bool Overlap(const Bounds2D& a, const Bounds2D& b) {
    return a.minimum.x <= b.maximum.x && b.minimum.x <= a.maximum.x && a.minimum.y <= b.maximum.y &&
           b.minimum.y <= a.maximum.y;
}

/// Places below one height in whole centimetres, and the lowest face that they found there.
struct Votes {
    std::size_t count = 0;
    double z = 0.0;
};

using VotesByCentimetre = std::map<std::int64_t, Votes>;

// Lowest face first, so that a place is done with the first face over it.
VotesByCentimetre CountVotes(std::vector<Point2D> samples, const Bounds2D& room, double lowest,
                             const std::vector<LevelFace>& faces) {
    VotesByCentimetre votes;
    const auto first = std::lower_bound(faces.begin(), faces.end(), lowest,
                                        [](const LevelFace& face, double z) { return face.z < z; });
    for (auto face = first; face != faces.end() && !samples.empty(); ++face) {
        if (!Overlap(face->bounds, room)) {
            continue;
        }
        const std::size_t covered = std::erase_if(samples, [&face](Point2D sample) {
            return HoldsPoint(face->bounds, sample) && IsInsidePolygon(face->outline, sample);
        });
        if (covered > 0) {
            const auto entry = votes.try_emplace(std::llround(face->z * 100.0), Votes{0, face->z});
            entry.first->second.count += covered;
        }
    }
    return votes;
}

} // namespace

std::vector<LevelFace> CollectLevelFaces(const std::vector<SceneSurface>& surfaces) {
    std::vector<LevelFace> faces;
    for (const SceneSurface& surface : surfaces) {
        if (IsLevel(surface)) {
            faces.push_back(FaceOf(surface));
        }
    }
    std::stable_sort(faces.begin(), faces.end(),
                     [](const LevelFace& a, const LevelFace& b) { return a.z < b.z; });
    return faces;
}

std::optional<DetectedCeiling> DetectCeiling(const Polygon2D& polygon, double floorLevel,
                                             const std::vector<LevelFace>& faces) {
    const Bounds2D bounds = OuterBounds(polygon);
    const std::vector<Point2D> samples = SamplesOf(polygon, bounds);
    const VotesByCentimetre votes =
        CountVotes(samples, bounds, floorLevel + LeastHeight - Rounding, faces);
    // The first of equals is the lowest, as the map ascends.
    const auto winner =
        std::max_element(votes.begin(), votes.end(), [](const auto& a, const auto& b) {
            return a.second.count < b.second.count;
        });
    if (winner == votes.end() || 2 * winner->second.count < samples.size()) {
        return std::nullopt;
    }
    return DetectedCeiling{winner->second.z - floorLevel,
                           static_cast<double>(winner->second.count) /
                               static_cast<double>(samples.size())};
}

} // namespace Merivane::Simulation
