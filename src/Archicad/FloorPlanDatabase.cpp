#include "Archicad/FloorPlanDatabase.hpp"

namespace Merivane::Archicad {

FloorPlanDatabase::FloorPlanDatabase() {
    if (Host::GetCurrentDatabase(before) == Host::NoError &&
        before.type != Host::WindowType::FloorPlan) {
        changed = Host::ChangeCurrentDatabase({}) == Host::NoError;
    }
}

FloorPlanDatabase::~FloorPlanDatabase() {
    if (changed) {
        Host::ChangeCurrentDatabase(before);
    }
}

} // namespace Merivane::Archicad
