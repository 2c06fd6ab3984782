#pragma once

#include "Workbench/Project/Project.hpp"
#include "exemplos/ProjectBuilder.hpp"

/// The sample project: an office of two storeys, from its ground to its roof.
namespace Merivane::Examples {

/// The whole project. Its luminaires are the parts of `authored`, whose libraries it takes over.
Workbench::Project BuildOfficeProject(const Workbench::Project& authored);

/// Walls with their windows and doors, slabs, ceilings, columns, beam, roof and ground.
void AddOfficeShell(ProjectBuilder& builder);

/// What is made of parts: stair, railing, curtain wall.
void AddOfficeAssemblies(ProjectBuilder& builder);

/// Furniture: library parts and where they stand.
void AddOfficeFurniture(ProjectBuilder& builder);

/// Forty luminaires of five types, whose parts the project has already.
void AddOfficeLuminaires(ProjectBuilder& builder);

/// Five Zones on two floors, and the activities of the first two.
void AddOfficeZones(ProjectBuilder& builder);

/// Axes and door swings, what earlier calculations left, a worksheet and a section.
void AddOfficeDrawings(ProjectBuilder& builder);

} // namespace Merivane::Examples
