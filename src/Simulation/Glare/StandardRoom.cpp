#include "Simulation/Glare/StandardRoom.hpp"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <numbers>

namespace Merivane::Simulation {

namespace {

constexpr double SpacingToHeight = 0.25;
constexpr double MostCopies = 1e6; // a room out of all proportion must not overflow the count

enum Material : std::int32_t { Ceiling = 0, Walls = 1, Floor = 2 };

SceneMaterial Grey(const char* name, double reflectance) {
    SceneMaterial material;
    material.name = name;
    material.red = reflectance;
    material.green = reflectance;
    material.blue = reflectance;
    return material;
}

SceneSurface Face(Material material, const std::vector<Point3D>& vertices) {
    SceneSurface surface;
    surface.materialIndex = material;
    surface.vertices = vertices;
    return surface;
}

// A closed box from the origin; every face looks inwards.
std::vector<SceneSurface> Box(double x, double y, double z) {
    return {Face(Floor, {{0, 0, 0}, {x, 0, 0}, {x, y, 0}, {0, y, 0}}),
            Face(Ceiling, {{0, 0, z}, {0, y, z}, {x, y, z}, {x, 0, z}}),
            Face(Walls, {{0, 0, 0}, {0, 0, z}, {x, 0, z}, {x, 0, 0}}),
            Face(Walls, {{0, y, 0}, {x, y, 0}, {x, y, z}, {0, y, z}}),
            Face(Walls, {{0, 0, 0}, {0, y, 0}, {0, y, z}, {0, 0, z}}),
            Face(Walls, {{x, 0, 0}, {x, 0, z}, {x, y, z}, {x, y, 0}})};
}

std::int32_t CopiesAlong(double side, double height) {
    const double copies = std::round(side / (SpacingToHeight * height));
    return copies >= 1.0 && std::isfinite(copies)
               ? static_cast<std::int32_t>(std::min(copies, MostCopies))
               : 1;
}

SceneLuminaire Grid(const SceneLuminaire& luminaire, const UgrRoom& room) {
    SceneLuminaire grid = luminaire;
    Photometry::LuminaireSettings& contract = grid.contract;
    contract.centerX = contract.centerY = contract.centerZ = 0.0;
    contract.c0Rotation = contract.tiltAngle = contract.tiltDirection = 0.0;
    grid.dimming = 1.0;
    grid.mirrored = false;
    grid.rotation = room.crosswise ? std::numbers::pi / 2.0 : 0.0;
    grid.arrayCountX = CopiesAlong(room.lengthX, room.height);
    grid.arrayCountY = CopiesAlong(room.lengthY, room.height);
    grid.arrayStepX = room.lengthX / grid.arrayCountX;
    grid.arrayStepY = room.lengthY / grid.arrayCountY;
    grid.x = 0.5 * grid.arrayStepX;
    grid.y = 0.5 * grid.arrayStepY;
    grid.z = room.height + room.eyeHeight;
    return grid;
}

} // namespace

StandardRoom BuildStandardRoom(const SceneLuminaire& luminaire, const UgrRoom& room) {
    const double x = room.lengthX;
    const double y = room.lengthY;
    const double eye = room.eyeHeight;
    StandardRoom built;
    built.scene.materials = {Grey("teto", room.ceilingReflectance),
                             Grey("paredes", room.wallReflectance),
                             Grey("piso", room.floorReflectance)};
    built.scene.surfaces = Box(x, y, room.height + eye);
    built.scene.luminaires.push_back(Grid(luminaire, room));
    built.observers = {
        {{x / 2, ObserverClearance, eye, 0, 1, "meio da parede y = 0, olhando ao longo de Y"},
         {x / 2, y - ObserverClearance, eye, 0, -1, "meio da parede y = Y, olhando ao longo de Y"},
         {ObserverClearance, y / 2, eye, 1, 0, "meio da parede x = 0, olhando ao longo de X"},
         {x - ObserverClearance, y / 2, eye, -1, 0,
          "meio da parede x = X, olhando ao longo de X"}}};
    return built;
}

UgrRoom ReferenceRoom(double height, bool crosswise) {
    return TableRoom({4, 8}, ReflectanceSets[0], height, crosswise);
}

UgrRoom TableRoom(UgrRoomSize size, const ReflectanceSet& reflectances, double height,
                  bool crosswise) {
    UgrRoom room;
    room.lengthX = size.x * height;
    room.lengthY = size.y * height;
    room.height = height;
    room.ceilingReflectance = reflectances.ceiling;
    room.wallReflectance = reflectances.walls;
    room.floorReflectance = reflectances.floor;
    room.crosswise = crosswise;
    return room;
}

} // namespace Merivane::Simulation
