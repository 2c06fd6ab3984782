#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "Simulation/Glare/GlareRecords.hpp"
#include "Simulation/Scene.hpp"
#include "Simulation/Study/LightingStudy.hpp"
#include "Simulation/ZoneSpace.hpp"
#include "Simulation/ZoneSurfaces.hpp"

namespace Merivane::Simulation {

/// What a plane of calculation points stands for in its Zone.
enum class PlaneKind { WorkPlane, Wall, Ceiling, Floor };

/// Whose points a sensor plane holds.
struct PlaneRole {
    std::size_t zone = 0; ///< into `LightingStudy::zones`
    PlaneKind kind = PlaneKind::WorkPlane;
    int wall = 0; ///< serial number of the wall within its Zone, from 1; 0 on the others
};

/// An observer of glare in a Zone. One who stands in several Zones counts in each.
struct StudyObserver {
    std::size_t zone = 0;  ///< into `LightingStudy::zones`
    std::size_t point = 0; ///< the observer's view, into `Scene::points`
    bool placed = false;   ///< one of the study's; else at mid-wall
    UgrObserver observer;
};

/// A study's scene, ready to be calculated.
struct StudyScene {
    Scene scene;
    std::vector<PlaneRole> planes; ///< one for each sensor plane of the scene, same order
    std::size_t pointCount = 0;    ///< points of the study; the observers' views stand behind
    std::vector<StudyObserver> observers; ///< Zone by Zone, at mid-wall first
    std::vector<std::string> notices;     ///< Portuguese sentences, nothing that stops the work
};

/// The room that a Zone of the study stands for.
ZoneSpace SpaceOf(const StudyZone& zone);

/// The kind as results tell it: "plano de trabalho", "parede", "teto" or "piso".
std::string PlaneKindName(PlaneKind kind);

/// The surfaces of a Zone whose points the study wants: walls, ceiling, floor, in this order.
std::vector<ZoneSurface> WantedSurfaces(const StudyZone& zone);

/// Which kind of plane the points of a surface make.
PlaneKind KindOfSurface(const ZoneSurface& surface);

/// Lays the calculation points of every Zone, in the study's order: its work plane, then its
/// walls, its ceiling and its floor where the study asks for them. Planes are named after their
/// Zone: "Sala", "Sala parede 1", "Sala teto", "Sala piso". A plane that has no room for a point,
/// or would need more than `MaximumGridNodes` nodes, is empty. Behind the study's points stand the
/// views of the observers where it asks for glare: those at mid-wall of every Zone, and those of
/// the study that stand inside one; a notice counts the others.
StudyScene BuildStudyScene(const LightingStudy& study);

/// Index of a Zone's work plane among the planes of `built`, which has one for every Zone.
std::size_t WorkPlaneOf(const StudyScene& built, std::size_t zone);

} // namespace Merivane::Simulation
