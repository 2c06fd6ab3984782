#pragma once

#include <cstdint>
#include <string>
#include <variant>
#include <vector>

#include "Drawing/DisplayList.hpp"
#include "Host/Elements.hpp"
#include "Workbench/Project/Project.hpp"

/// Small projects and their sheets.
namespace Merivane::Tests {

/// A project of one story with the element layers 1 "Camada principal" and 2 "Oculta" (hidden), and
/// the line type 2 with dashes 3 and gaps 1.5 mm.
Workbench::Project DisplayProject();

/// Adds an element on layer 1 of floor 0. The reference lasts until the next one.
Workbench::ProjectElement& AddDrawn(Workbench::Project& project, Host::ElementType type,
                                    Host::ElementData data = {});

/// Adds a straight wall 0.2 m thick and 3 m high.
Host::Guid AddPlainWall(Workbench::Project& project, Host::Coordinate begin, Host::Coordinate end);

/// A closed box of one surface.
Workbench::GivenBody PlainBox(Host::Coordinate3D low, Host::Coordinate3D high,
                              std::int32_t surface = 1);

/// Adds a shell that is such a box.
Workbench::ProjectElement& AddBox(Workbench::Project& project, Host::Coordinate3D low,
                                  Host::Coordinate3D high, std::int32_t surface = 1);

Host::Contour PlainRectangle(double x, double y, double width, double depth);

/// The elements of one kind of a sheet's layer, in order; the layer by its name.
template <typename Kind>
std::vector<Kind> Drawn(const Drawing::DisplayList& list, const std::string& layerName) {
    std::vector<Kind> found;
    for (const Drawing::Layer& layer : list.layers) {
        for (const Drawing::Element& element : layer.elements) {
            const auto* const kind = std::get_if<Kind>(&element);
            if (kind != nullptr && layer.name == layerName) {
                found.push_back(*kind);
            }
        }
    }
    return found;
}

/// The extent of places on paper [mm].
struct PaperBox {
    double left = 1e9;
    double bottom = 1e9;
    double right = -1e9;
    double top = -1e9;

    void Add(const std::vector<Drawing::Point>& points);
    double Width() const { return right - left; }
    double Height() const { return top - bottom; }
};

PaperBox BoxOf(const std::vector<Drawing::Polyline>& lines);
PaperBox BoxOf(const std::vector<Drawing::Area>& areas);

/// Area inside the rings of a fill, holes taken off [mm2].
double AreaOf(const Drawing::Area& area);

} // namespace Merivane::Tests
