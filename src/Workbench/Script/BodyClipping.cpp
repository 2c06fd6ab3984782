#include "Workbench/Script/BodyClipping.hpp"

#include <algorithm>
#include <cstddef>
#include <unordered_map>
#include <utility>
#include <vector>

#include "Workbench/Script/FaceSplitting.hpp"
#include "Workbench/Script/ShapeVectors.hpp"

namespace Merivane::Workbench {

namespace {

using Contour = std::vector<std::int32_t>;

/// The closed contours of a cut: against the seams of the faces, from each one's end to its begin.
std::vector<Contour> JoinSeams(const std::vector<FaceParts::Seam>& seams) {
    std::unordered_map<std::int32_t, std::vector<std::int32_t>> nextOf;
    for (const FaceParts::Seam& seam : seams) {
        nextOf[seam.to].push_back(seam.from);
    }
    std::vector<Contour> contours;
    for (const FaceParts::Seam& seam : seams) {
        Contour contour;
        std::int32_t at = seam.to;
        for (auto found = nextOf.find(at); found != nextOf.end() && !found->second.empty();
             found = nextOf.find(at)) {
            contour.push_back(at);
            at = found->second.back();
            found->second.pop_back();
        }
        if (contour.size() > 2 && at == contour.front()) {
            contours.push_back(std::move(contour));
        }
    }
    return contours;
}

} // namespace

bool IsClosedBody(const FacedBody& body) {
    std::unordered_map<std::uint64_t, int> walked;
    for (const ContouredFace& face : body.faces) {
        for (const Contour& contour : face.contours) {
            for (std::size_t i = 0; i < contour.size(); ++i) {
                const std::int32_t from = contour[i];
                const std::int32_t to = contour[(i + 1) % contour.size()];
                const auto low = static_cast<std::uint32_t>(std::min(from, to));
                const auto high = static_cast<std::uint32_t>(std::max(from, to));
                walked[static_cast<std::uint64_t>(low) << 32U | high] += from < to ? 1 : -1;
            }
        }
    }
    return !body.faces.empty() &&
           std::all_of(walked.begin(), walked.end(), [](const auto& w) { return w.second == 0; });
}

void CutBody(FacedBody& body, const CuttingPlane& plane, bool capped, std::int32_t surface) {
    PlaneCut cut = StartCut(body, plane);
    const auto holds = [&](auto&& test) {
        return std::any_of(cut.distances.begin(), cut.distances.end(), test);
    };
    if (!holds([](double distance) { return distance > 0.0; })) {
        return;
    }
    if (!holds([](double distance) { return distance < 0.0; })) {
        body = {};
        return;
    }
    std::vector<ContouredFace> kept;
    std::vector<FaceParts::Seam> seams;
    for (const ContouredFace& face : body.faces) {
        FaceParts parts = SplitFace(cut, face, false);
        std::move(parts.kept.begin(), parts.kept.end(), std::back_inserter(kept));
        seams.insert(seams.end(), parts.seams.begin(), parts.seams.end());
    }
    if (capped) {
        for (ContouredFace& cap : NestContours(body, cut.normal, JoinSeams(seams), surface)) {
            kept.push_back(std::move(cap));
        }
    }
    body.faces = std::move(kept);
    DropUnusedVertices(body);
}

void SplitFaces(FacedBody& body, const CuttingPlane& plane) {
    PlaneCut cut = StartCut(body, plane);
    std::vector<ContouredFace> faces;
    faces.reserve(body.faces.size());
    for (const ContouredFace& face : body.faces) {
        FaceParts parts = SplitFace(cut, face, true);
        std::move(parts.kept.begin(), parts.kept.end(), std::back_inserter(faces));
        std::move(parts.gone.begin(), parts.gone.end(), std::back_inserter(faces));
    }
    body.faces = std::move(faces);
}

bool CutLine(Host::Coordinate3D& begin, Host::Coordinate3D& end, const CuttingPlane& plane) {
    const double first = Dot(Difference(begin, plane.point), plane.normal);
    const double second = Dot(Difference(end, plane.point), plane.normal);
    if (first <= 0.0 && second <= 0.0) {
        return true;
    }
    if (first >= 0.0 && second >= 0.0) {
        return false;
    }
    const Host::Coordinate3D place =
        Sum(begin, Scaled(Difference(end, begin), first / (first - second)));
    (first > 0.0 ? begin : end) = place;
    return true;
}

void DropUnusedVertices(FacedBody& body) {
    std::vector<std::int32_t> numbers(body.vertices.size(), -1);
    std::vector<Host::Coordinate3D> used;
    for (ContouredFace& face : body.faces) {
        for (Contour& contour : face.contours) {
            for (std::int32_t& vertex : contour) {
                std::int32_t& number = numbers[static_cast<std::size_t>(vertex)];
                if (number < 0) {
                    number = static_cast<std::int32_t>(used.size());
                    used.push_back(body.vertices[static_cast<std::size_t>(vertex)]);
                }
                vertex = number;
            }
        }
    }
    body.vertices = std::move(used);
}

} // namespace Merivane::Workbench
