#pragma once

#include "Host/Stories.hpp"

namespace Merivane::Archicad {

/// Makes the floor plan the current database for as long as it lives, whatever window a command was
/// called from: lists of elements are those of the current database.
class FloorPlanDatabase {
public:
    FloorPlanDatabase();
    ~FloorPlanDatabase();
    FloorPlanDatabase(const FloorPlanDatabase&) = delete;
    FloorPlanDatabase& operator=(const FloorPlanDatabase&) = delete;

private:
    Host::Window before;
    bool changed = false;
};

} // namespace Merivane::Archicad
