#include "Workbench/Display/ShownModel.hpp"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <variant>

#include "Workbench/Bodies/PolygonRings.hpp"
#include "Workbench/Display/DrawnElements.hpp"
#include "Workbench/Model/ElementBodies.hpp"
#include "Workbench/Model/ScriptSurfaces.hpp"
#include "Workbench/Project/ElementIndex.hpp"

namespace Merivane::Workbench {

namespace {

constexpr double SeenThrough = 0.05; // share of light from which a surface counts as glass

void AddBodies(const std::vector<Host::Body>& bodies, const ViewFrame& frame, ShownElement& shown) {
    for (const Host::Body& body : bodies) {
        ViewBody view = MakeViewBody(body, frame);
        if (!view.faces.empty()) {
            shown.bodies.push_back(std::move(view));
        }
    }
}

ShownElement ShowElement(const BodySource& source, const ProjectElement& element,
                         const ViewFrame& frame) {
    ShownElement shown{&element, {}};
    std::vector<Host::Body> bodies;
    if (BuildElementBodies(source, element, bodies)) {
        AddBodies(bodies, frame, shown);
    }
    for (const ElementPart& part : element.parts) {
        if (BuildPartBodies(source, element, part, bodies)) {
            AddBodies(bodies, frame, shown);
        }
    }
    return shown;
}

// The area of a face as its plane shows it, holes taken off.
double FaceArea(const ViewBody& body, const ViewFace& face) {
    double area = 0.0;
    for (const std::vector<std::int32_t>& contour : face.contours) {
        Host::Coordinate3D sum;
        for (std::size_t i = 0; i < contour.size(); ++i) {
            const auto& a = body.vertices[static_cast<std::size_t>(contour[i])];
            const auto& b =
                body.vertices[static_cast<std::size_t>(contour[(i + 1) % contour.size()])];
            sum.x += (a.y - b.y) * (a.z + b.z);
            sum.y += (a.z - b.z) * (a.x + b.x);
            sum.z += (a.x - b.x) * (a.y + b.y);
        }
        area += Dot(sum, face.normal) / 2.0;
    }
    return std::abs(area);
}

} // namespace

std::vector<ShownElement> CollectShownElements(const Project& project, const ViewFrame& frame) {
    const ElementIndex index = BuildElementIndex(project.elements);
    BodySource source;
    source.project = &project;
    source.index = &index;
    std::vector<ShownElement> shown;
    for (const ProjectElement& element : project.elements) {
        if (IsOnVisibleLayer(project, element)) {
            ShownElement next = ShowElement(source, element, frame);
            if (!next.bodies.empty() ||
                std::holds_alternative<Host::ObjectData>(element.element.data)) {
                shown.push_back(std::move(next));
            }
        }
    }
    return shown;
}

double LowestDepth(const ViewBody& body) {
    double lowest = HUGE_VAL;
    for (const Host::Coordinate3D& vertex : body.vertices) {
        lowest = std::min(lowest, vertex.z);
    }
    return lowest;
}

double HighestDepth(const ViewBody& body) {
    double highest = -HUGE_VAL;
    for (const Host::Coordinate3D& vertex : body.vertices) {
        highest = std::max(highest, vertex.z);
    }
    return highest;
}

Host::ModelSurface SurfaceOfFace(const Project& project, const ViewFace& face) {
    if (face.surface >= Host::FirstScriptSurface) {
        if (const Host::ModelSurface* own = FindScriptSurface(project, face.surface)) {
            return *own;
        }
    }
    const auto found = project.surfaces.find(face.surface);
    return found != project.surfaces.end() ? found->second
                                           : Host::ModelSurface{"", {0.8, 0.8, 0.8}, 0.8, 0.0};
}

bool IsMostlyGlass(const Project& project, const ViewBody& body) {
    double glass = 0.0;
    double all = 0.0;
    for (const ViewFace& face : body.faces) {
        const double area = FaceArea(body, face);
        all += area;
        glass += SurfaceOfFace(project, face).transparency > SeenThrough ? area : 0.0;
    }
    return glass > all / 2.0;
}

bool HasGlass(const Project& project, const ViewBody& body) {
    return std::any_of(body.faces.begin(), body.faces.end(), [&](const ViewFace& face) {
        return SurfaceOfFace(project, face).transparency > SeenThrough;
    });
}

} // namespace Merivane::Workbench
