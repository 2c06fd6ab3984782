#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "Host/Elements.hpp"
#include "Host/LibraryParameter.hpp"
#include "Photometry/IesFile.hpp"
#include "Workbench/Project/Project.hpp"

/// Small projects for the tests of the model bridge.
namespace Merivane::Tests {

/// "{0000000N-0000-0000-0000-000000000000}", N in hexadecimal.
Host::Guid NumberedGuid(std::uint32_t number);

/// A rectangle in plan [m].
Host::Contour PlanRectangle(double x, double y, double width, double depth);

/// Two stories, 0 at level 0.0 and 1 at 3.0 m; layers 1 "Camada principal", 2 "Oculta" (hidden),
/// 3 "Travada" (locked), 4 "Vantoro - Resultado", 5 "Merivane - Antigo", 6 "Ambiente Vantoro - x";
/// the surfaces of an empty project.
Workbench::Project SampleProject();

/// Adds an element on layer 1 and floor 0.
Workbench::ProjectElement& AddElement(Workbench::Project& project, std::uint32_t number,
                                      Host::ElementType type);

/// A Zone of 3 m height over this polygon.
Workbench::ProjectElement& AddZone(Workbench::Project& project, std::uint32_t number,
                                   const std::string& name, const Host::Polygon& polygon);

/// A slab with surfaces 1 above, 2 below, 3 around.
Workbench::ProjectElement& AddSlab(Workbench::Project& project, std::uint32_t number,
                                   const Host::Polygon& polygon, double top, double thickness);

/// A straight wall 0.2 m thick and 3 m high with surfaces 1 left, 2 right, 3 edges.
Workbench::ProjectElement& AddWall(Workbench::Project& project, std::uint32_t number,
                                   Host::Coordinate begin, Host::Coordinate end);

/// A closed box from the origin's middle: 0.2 by 0.2 by 0.1 m, its faces of one script surface.
Workbench::GivenBody BoxBody(const std::string& scriptSurface);

/// A lamp's part with the whole contract and a body of its own surface "Difusor". Returns its
/// library index.
std::int32_t AddLampPart(Workbench::Project& project, const std::string& name);

/// A lamp of that part at a place 2.5 m above floor 0.
Workbench::ProjectElement& AddLamp(Workbench::Project& project, std::uint32_t number,
                                   std::int32_t part, Host::Coordinate position);

/// Sets a parameter of a part or of a placed one, adding it where it is missing.
void SetNumber(std::vector<Host::LibraryParameter>& parameters, const std::string& name,
               double number);
void SetText(std::vector<Host::LibraryParameter>& parameters, const std::string& name,
             const std::string& text);
void DropParameter(std::vector<Host::LibraryParameter>& parameters, const std::string& name);

/// Opens a session with this project.
void OpenSample(Workbench::Project project);

} // namespace Merivane::Tests
