#include "DisplaySample.hpp"

#include <algorithm>
#include <cmath>
#include <utility>

namespace Merivane::Tests {

Workbench::Project DisplayProject() {
    Workbench::Project project = Workbench::MakeEmptyProject();
    project.layers[2] = {"Oculta", true, false};
    project.lineTypes[2] = {"Tracejada", {3.0, 1.5}};
    return project;
}

Workbench::ProjectElement& AddDrawn(Workbench::Project& project, Host::ElementType type,
                                    Host::ElementData data) {
    Workbench::ProjectElement& added = project.elements.emplace_back();
    added.element.header.type = type;
    added.element.header.guid.bytes[0] = static_cast<std::uint8_t>(project.elements.size());
    added.element.header.layer = {1};
    added.element.data = std::move(data);
    return added;
}

Host::Guid AddPlainWall(Workbench::Project& project, Host::Coordinate begin, Host::Coordinate end) {
    Workbench::ProjectElement& added = AddDrawn(project, Host::ElementType::Wall);
    added.geometry = Workbench::WallGeometry{begin, end, 0.0, 0.2, 0.0, 3.0, {1}, {1}, {1}};
    return added.element.header.guid;
}

Workbench::GivenBody PlainBox(Host::Coordinate3D low, Host::Coordinate3D high,
                              std::int32_t surface) {
    Workbench::GivenBody body;
    body.vertices = {{low.x, low.y, low.z},    {high.x, low.y, low.z}, {high.x, high.y, low.z},
                     {low.x, high.y, low.z},   {low.x, low.y, high.z}, {high.x, low.y, high.z},
                     {high.x, high.y, high.z}, {low.x, high.y, high.z}};
    for (const std::vector<std::int32_t>& contour : std::vector<std::vector<std::int32_t>>{
             {0, 3, 2, 1}, {4, 5, 6, 7}, {0, 1, 5, 4}, {1, 2, 6, 5}, {2, 3, 7, 6}, {3, 0, 4, 7}}) {
        body.faces.push_back({{contour}, {surface}, ""});
    }
    return body;
}

Workbench::ProjectElement& AddBox(Workbench::Project& project, Host::Coordinate3D low,
                                  Host::Coordinate3D high, std::int32_t surface) {
    Workbench::ProjectElement& added = AddDrawn(project, Host::ElementType::Shell);
    added.geometry = PlainBox(low, high, surface);
    return added;
}

Host::Contour PlainRectangle(double x, double y, double width, double depth) {
    return {{{x, y}, {x + width, y}, {x + width, y + depth}, {x, y + depth}}, {}};
}

void PaperBox::Add(const std::vector<Drawing::Point>& points) {
    for (const Drawing::Point& point : points) {
        left = std::min(left, point.x);
        bottom = std::min(bottom, point.y);
        right = std::max(right, point.x);
        top = std::max(top, point.y);
    }
}

PaperBox BoxOf(const std::vector<Drawing::Polyline>& lines) {
    PaperBox box;
    for (const Drawing::Polyline& line : lines) {
        box.Add(line.points);
    }
    return box;
}

PaperBox BoxOf(const std::vector<Drawing::Area>& areas) {
    PaperBox box;
    for (const Drawing::Area& area : areas) {
        for (const std::vector<Drawing::Point>& ring : area.rings) {
            box.Add(ring);
        }
    }
    return box;
}

double AreaOf(const Drawing::Area& area) {
    double largest = 0.0;
    double sum = 0.0;
    for (const std::vector<Drawing::Point>& ring : area.rings) {
        double twice = 0.0;
        for (std::size_t i = 0; i < ring.size(); ++i) {
            const Drawing::Point& a = ring[i];
            const Drawing::Point& b = ring[(i + 1) % ring.size()];
            twice += a.x * b.y - b.x * a.y;
        }
        largest = std::max(largest, std::abs(twice) / 2.0);
        sum += std::abs(twice) / 2.0;
    }
    return 2.0 * largest - sum;
}

} // namespace Merivane::Tests
