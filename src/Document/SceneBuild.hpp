#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "Document/SceneDocument.hpp"
#include "Simulation/Glare/GlareRecords.hpp"
#include "Simulation/Scene.hpp"
#include "Simulation/ZoneSpace.hpp"

namespace Merivane::Document {

/// What a plane of calculation points stands for in its Zone.
enum class PlaneKind { WorkPlane, Wall, Ceiling, Floor };

/// Whose points a sensor plane holds.
struct PlaneRole {
    std::size_t zone = 0; ///< into `SceneDocument::zones`
    PlaneKind kind = PlaneKind::WorkPlane;
    int wall = 0; ///< serial number of the wall within its Zone, from 1; 0 on the others
};

/// An observer of glare in a Zone. One who stands in several Zones counts in each.
struct SceneObserver {
    std::size_t zone = 0;  ///< into `SceneDocument::zones`
    std::size_t point = 0; ///< the observer's view, into `Scene::points`
    bool placed = false;   ///< one of the document's; else at mid-wall
    Simulation::UgrObserver observer;
};

/// A document's scene, ready to be calculated.
struct BuiltScene {
    Simulation::Scene scene;
    std::vector<PlaneRole> planes; ///< one for each sensor plane of the scene, same order
    std::size_t pointCount = 0;    ///< points of the document; the observers' views stand behind
    std::vector<SceneObserver> observers; ///< Zone by Zone, at mid-wall first
    std::vector<std::string> notices;     ///< Portuguese sentences, nothing that stops the work
};

/// The room that a Zone of the document stands for.
Simulation::ZoneSpace SpaceOf(const DocumentZone& zone);

/// The kind as results tell it: "plano de trabalho", "parede", "teto" or "piso".
std::string PlaneKindName(PlaneKind kind);

/// Lays the calculation points of every Zone, in the document's order: its work plane, then its
/// walls, its ceiling and its floor where the document asks for them. Planes are named after their
/// Zone: "Sala", "Sala parede 1", "Sala teto", "Sala piso". Behind the document's points stand the
/// views of the observers: those at mid-wall of every Zone, and those of the document that stand
/// inside one; a notice counts the others.
///
/// Returns false with one Portuguese sentence that names the Zone when a work plane has no point or
/// a plane would need more than `MaximumGridNodes` nodes; `built` must then not be used.
bool BuildScene(const SceneDocument& document, BuiltScene& built, std::string& error);

} // namespace Merivane::Document
