#include "Workbench/Script/BodyBooleans.hpp"

#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

#include "Workbench/Script/BodyClipping.hpp"
#include "Workbench/Script/BodyMending.hpp"
#include "Workbench/Script/FaceSplitting.hpp"
#include "Workbench/Script/ShapeVectors.hpp"

namespace Merivane::Workbench {

namespace {

using Host::Coordinate3D;
using Contour = std::vector<std::int32_t>;

/// A stretch of a line; empty while `begin` is behind `end`.
struct LineStretch {
    double begin = SpaceBox::Far;
    double end = -SpaceBox::Far;
};

void Reach(LineStretch& stretch, double place) {
    stretch.begin = std::min(stretch.begin, place);
    stretch.end = std::max(stretch.end, place);
}

/// From the first to the last place in which a face meets a plane, along a line in both.
LineStretch MeetPlane(const FacedBody& body, const ContouredFace& face, const CuttingPlane& plane,
                      const Coordinate3D& line) {
    LineStretch stretch;
    for (const Contour& contour : face.contours) {
        Coordinate3D a = body.vertices[static_cast<std::size_t>(contour.back())];
        double before = Dot(Difference(a, plane.point), plane.normal);
        for (const std::int32_t vertex : contour) {
            const Coordinate3D& b = body.vertices[static_cast<std::size_t>(vertex)];
            const double here = Dot(Difference(b, plane.point), plane.normal);
            if (std::abs(here) <= SamePlace) {
                Reach(stretch, Dot(b, line));
            } else if ((here > 0.0) != (before > 0.0) && std::abs(before) > SamePlace) {
                const double share = before / (before - here);
                Reach(stretch, Dot(a, line) * (1.0 - share) + Dot(b, line) * share);
            }
            a = b;
            before = here;
        }
    }
    return stretch;
}

/// A face of one body while the other's faces part it.
struct FaceInPieces {
    FacedBody body; ///< the pieces, with vertices of their own
    std::vector<SpaceBox> boxes;
    CuttingPlane plane;
};

FaceInPieces StartFace(const FacedBody& body, const ContouredFace& face) {
    FaceInPieces whole;
    ContouredFace& copy = whole.body.faces.emplace_back(face);
    for (Contour& contour : copy.contours) {
        for (std::int32_t& vertex : contour) {
            whole.body.vertices.push_back(body.vertices[static_cast<std::size_t>(vertex)]);
            vertex = static_cast<std::int32_t>(whole.body.vertices.size() - 1);
        }
    }
    whole.boxes.push_back(FaceBox(whole.body, copy));
    whole.plane = FacePlane(whole.body, copy);
    return whole;
}

/// Whether a face of the other body parts a piece: both meet along more than a point.
bool PartsPiece(const FaceInPieces& whole, const ContouredFace& piece, const CuttingPlane& plane,
                const LineStretch& cut, const Coordinate3D& line) {
    constexpr double least = SamePlace / 4.0;
    const LineStretch own = MeetPlane(whole.body, piece, plane, line);
    return std::min(own.end, cut.end) - std::max(own.begin, cut.begin) > least;
}

bool HasBothSides(const PlaneCut& cut, const ContouredFace& piece) {
    bool beyond = false;
    bool below = false;
    for (const std::int32_t vertex : piece.contours.front()) {
        const double distance = cut.distances[static_cast<std::size_t>(vertex)];
        beyond = beyond || distance > 0.0;
        below = below || distance < 0.0;
    }
    return beyond && below;
}

/// Parts the pieces that one face of the other body meets.
void PartBy(FaceInPieces& whole, const FacedBody& other, const ContouredFace& face,
            const CuttingPlane& plane) {
    const Coordinate3D line = Unit(Cross(plane.normal, whole.plane.normal));
    const LineStretch stretch = MeetPlane(other, face, whole.plane, line);
    if (!(stretch.end > stretch.begin)) {
        return;
    }
    const SpaceBox box = FaceBox(other, face);
    PlaneCut cut = StartCut(whole.body, plane);
    const std::size_t count = whole.boxes.size();
    for (std::size_t i = 0; i < count; ++i) {
        const ContouredFace& piece = whole.body.faces[i];
        if (!BoxesMeet(whole.boxes[i], box, SamePlace) || !HasBothSides(cut, piece) ||
            !PartsPiece(whole, piece, plane, stretch, line)) {
            continue;
        }
        FaceParts parts = SplitFace(cut, piece, true);
        std::move(parts.gone.begin(), parts.gone.end(), std::back_inserter(parts.kept));
        if (parts.kept.empty()) {
            continue;
        }
        whole.body.faces[i] = std::move(parts.kept.front());
        whole.boxes[i] = FaceBox(whole.body, whole.body.faces[i]);
        for (std::size_t part = 1; part < parts.kept.size(); ++part) {
            whole.boxes.push_back(FaceBox(whole.body, parts.kept[part]));
            whole.body.faces.push_back(std::move(parts.kept[part]));
        }
    }
}

/// What becomes of the pieces on each side of the other body.
struct KeptSides {
    bool inside = false;
    bool outside = false;
    bool along = false;
    bool against = false;
    bool turned = false;
};

KeptSides SidesOfFirst(BodyOperation operation) {
    switch (operation) {
    case BodyOperation::Difference:
        return {false, true, false, true, false};
    case BodyOperation::Intersection:
        return {true, false, true, false, false};
    case BodyOperation::Union:
        return {false, true, true, false, false};
    }
    return {};
}

KeptSides SidesOfSecond(BodyOperation operation) {
    return {operation != BodyOperation::Union, operation == BodyOperation::Union, false, false,
            operation == BodyOperation::Difference};
}

bool IsKept(const KeptSides& sides, SolidSide side) {
    switch (side) {
    case SolidSide::Inside:
        return sides.inside;
    case SolidSide::Outside:
        return sides.outside;
    case SolidSide::FaceAlong:
        return sides.along;
    case SolidSide::FaceAgainst:
        return sides.against;
    }
    return false;
}

/// Adds a piece to those of the result, its vertices behind the ones that are there.
void KeepPiece(BodyPieces& result, const FaceInPieces& whole, std::size_t piece, bool turned,
               std::int32_t origin, std::size_t oldVertices) {
    ContouredFace kept = whole.body.faces[piece];
    for (Contour& contour : kept.contours) {
        if (turned) {
            std::reverse(contour.begin(), contour.end());
        }
        for (std::int32_t& vertex : contour) {
            const auto from = static_cast<std::size_t>(vertex);
            vertex = static_cast<std::int32_t>(result.body.vertices.size());
            result.body.vertices.push_back(whole.body.vertices[from]);
            result.isNew.push_back(from >= oldVertices);
        }
    }
    result.body.faces.push_back(std::move(kept));
    result.origins.push_back(origin);
}

/// Parts the faces of a body by those of the other one, and keeps the pieces that are asked for.
/// False when the budget does not reach.
bool CollectPieces(const FacedBody& body, const SolidProbe& other, const KeptSides& sides,
                   SolidBudget& budget, BodyPieces& result) {
    std::vector<std::int32_t> meeting;
    const auto firstOrigin = result.origins.empty() ? 0 : result.origins.back() + 1;
    for (std::size_t i = 0; i < body.faces.size(); ++i) {
        FaceInPieces whole = StartFace(body, body.faces[i]);
        const std::size_t oldVertices = whole.body.vertices.size();
        if (whole.plane.normal == Coordinate3D{}) {
            continue;
        }
        FindBoxes(other.tree, whole.boxes.front(), SamePlace, meeting);
        for (const std::int32_t at : meeting) {
            const ContouredFace& face = other.body->faces[static_cast<std::size_t>(at)];
            const CuttingPlane& plane = other.planes[static_cast<std::size_t>(at)];
            if (!Spend(budget, whole.body.vertices.size() + whole.boxes.size() +
                                   face.contours.front().size())) {
                return false;
            }
            if (plane.normal != Coordinate3D{}) {
                PartBy(whole, *other.body, face, plane);
            }
        }
        for (std::size_t piece = 0; piece < whole.body.faces.size(); ++piece) {
            const ContouredFace& face = whole.body.faces[piece];
            constexpr std::size_t asking = 16; // of a place is about so many looks
            if (!Spend(budget, face.contours.front().size() + asking)) {
                return false;
            }
            const auto place = InnerPlace(whole.body, face, whole.plane);
            std::size_t looks = 0;
            if (place && IsKept(sides, LocatePlace(other, *place, whole.plane.normal, looks))) {
                KeepPiece(result, whole, piece, sides.turned,
                          firstOrigin + static_cast<std::int32_t>(i), oldVertices);
            }
            if (!Spend(budget, looks)) {
                return false;
            }
        }
    }
    return true;
}

bool CombineOnce(const FacedBody& first, bool firstClosed, const SolidProbe& second,
                 BodyOperation operation, SolidBudget& budget, FacedBody& result) {
    BodyPieces pieces;
    if (!CollectPieces(first, second, SidesOfFirst(operation), budget, pieces)) {
        return false;
    }
    if (firstClosed &&
        !CollectPieces(*second.body, BuildProbe(first), SidesOfSecond(operation), budget, pieces)) {
        return false;
    }
    if (!MendPieces(pieces, budget)) {
        return false;
    }
    result = std::move(pieces.body);
    return true;
}

/// What two bodies that do not meet leave of the first.
void CombineApart(FacedBody& first, BodyOperation operation) {
    if (operation == BodyOperation::Intersection) {
        first = {};
    }
}

/// Adds the parts of a line on one side of a body; what hangs together is one line.
void ClipLine(const BodyLine& line, const SolidProbe& body, bool inside, std::size_t& looks,
              std::vector<BodyLine>& kept) {
    SpaceBox box;
    Enclose(box, line[0]);
    Enclose(box, line[1]);
    std::vector<std::int32_t> meeting;
    FindBoxes(body.tree, box, SamePlace, meeting);
    std::vector<double> shares = {0.0, 1.0};
    for (const std::int32_t at : meeting) {
        const CuttingPlane& plane = body.planes[static_cast<std::size_t>(at)];
        const double begin = Dot(Difference(line[0], plane.point), plane.normal);
        const double end = Dot(Difference(line[1], plane.point), plane.normal);
        if ((begin > 0.0) != (end > 0.0)) {
            shares.push_back(begin / (begin - end));
        }
    }
    std::sort(shares.begin(), shares.end());
    const auto placeAt = [&](double share) {
        return Sum(line[0], Scaled(Difference(line[1], line[0]), share));
    };
    bool joins = false;
    for (std::size_t i = 0; i + 1 < shares.size(); ++i) {
        if (!(shares[i + 1] > shares[i])) {
            continue;
        }
        const Coordinate3D middle = placeAt((shares[i] + shares[i + 1]) / 2.0);
        const bool isInside = LocatePlace(body, middle, {}, looks) == SolidSide::Inside;
        if (isInside != inside) {
            joins = false;
            continue;
        }
        const Coordinate3D end = i + 2 == shares.size() ? line[1] : placeAt(shares[i + 1]);
        if (joins) {
            kept.back()[1] = end;
        } else {
            kept.push_back({i == 0 ? line[0] : placeAt(shares[i]), end});
        }
        joins = true;
    }
    looks += meeting.size();
}

} // namespace

BooleanTool MakeTool(const FacedBody& body) {
    return {&body, BuildProbe(body), IsClosedBody(body)};
}

bool BodiesMeet(const FacedBody& first, const BooleanTool& second) {
    return !first.faces.empty() && !second.body->faces.empty() &&
           BoxesMeet(BodyBox(first), second.probe.box, SamePlace);
}

bool CombineBodies(FacedBody& first, const BooleanTool& second, BodyOperation operation,
                   SolidBudget& budget) {
    if (!second.closed || !BodiesMeet(first, second)) {
        CombineApart(first, operation);
        return true;
    }
    const bool closed = IsClosedBody(first);
    FacedBody exact;
    if (!CombineOnce(first, closed, second.probe, operation, budget, exact)) {
        return false;
    }
    // Faces that nearly meet can be told apart differently from both sides, which leaves a gap.
    // Then the second body is moved by less than can be seen, and differently each time.
    constexpr Coordinate3D ways[] = {{3e-7, 2e-7, 1e-7}, {-2e-7, 5e-7, -3e-7}, {4e-7, -9e-7, 7e-7}};
    for (const Coordinate3D& way : ways) {
        if (!closed || exact.faces.empty() || IsClosedBody(exact)) {
            break;
        }
        FacedBody moved = *second.body;
        for (Coordinate3D& vertex : moved.vertices) {
            vertex = Sum(vertex, way);
        }
        FacedBody other;
        if (!CombineOnce(first, closed, BuildProbe(moved), operation, budget, other)) {
            return false;
        }
        if (IsClosedBody(other)) {
            exact = std::move(other);
        }
    }
    first = std::move(exact);
    return true;
}

bool ClipLines(std::vector<BodyLine>& lines, const BooleanTool& body, bool inside,
               SolidBudget& budget) {
    std::vector<BodyLine> kept;
    for (const BodyLine& line : lines) {
        std::size_t looks = 1;
        if (body.closed) {
            ClipLine(line, body.probe, inside, looks, kept);
        } else if (!inside) {
            kept.push_back(line);
        }
        if (!Spend(budget, looks)) {
            return false;
        }
    }
    lines = std::move(kept);
    return true;
}

} // namespace Merivane::Workbench
