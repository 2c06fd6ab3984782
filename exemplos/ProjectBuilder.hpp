#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "Host/Elements.hpp"
#include "Host/Types.hpp"
#include "Workbench/Project/GuidSource.hpp"
#include "Workbench/Project/Project.hpp"

/// A project while a program makes it. Guids come from a seed and numbers are rounded, so that the
/// same program makes the same project everywhere.
namespace Merivane::Examples {

struct ProjectBuilder {
    Workbench::Project project;
    Workbench::GuidSource guids;
};

/// What is shared by the elements of one kind: where they stand.
struct Place {
    Host::AttributeIndex layer;
    std::int16_t floorIndex = 0;
};

/// An upright box [m].
struct Box {
    Host::Coordinate3D lowest;
    Host::Coordinate3D highest;
};

/// The layer of this name, made where it is missing.
Host::AttributeIndex LayerOf(ProjectBuilder& builder, const std::string& name);

/// The surface or line type of this name; none where it is missing.
Host::AttributeIndex SurfaceOf(const ProjectBuilder& builder, const std::string& name);
Host::AttributeIndex LineTypeOf(const ProjectBuilder& builder, const std::string& name);

/// Adds an empty element. The reference lasts until the next one is added.
Workbench::ProjectElement& AddElement(ProjectBuilder& builder, Host::ElementType type,
                                      const Place& place);

/// Adds an element of this geometry or record.
Host::Guid AddGeometry(ProjectBuilder& builder, Host::ElementType type, const Place& place,
                       Workbench::ModelGeometry geometry);
Host::Guid AddData(ProjectBuilder& builder, Host::ElementType type, const Place& place,
                   Host::ElementData data, Host::ElementMemo memo = {});

/// A part of an element that is made of parts.
Workbench::ElementPart MakePart(ProjectBuilder& builder, Host::ElementType type,
                                Workbench::ModelGeometry geometry);

/// The nearest micrometre, never minus zero.
double Rounded(double length);

Host::Contour Outline(std::vector<Host::Coordinate> vertices);

/// An upright rectangle between two corners [m].
Host::Contour Rectangle(const Host::Coordinate& low, const Host::Coordinate& high);

/// A circle of four quarter arcs.
Host::Contour Circle(const Host::Coordinate& center, double radius);

/// A closed box of one surface.
Workbench::GivenBody BoxBody(const Box& box, Host::AttributeIndex surface);

/// The same of surfaces of a library part's own: one below, one for all else.
Workbench::GivenBody BoxBody(const Box& box, const std::string& below, const std::string& rest);

/// An upright cylinder of 16 sides about the part's axis, as above.
Workbench::GivenBody CylinderBody(double radius, double bottom, double top,
                                  const std::string& below, const std::string& rest);

} // namespace Merivane::Examples
