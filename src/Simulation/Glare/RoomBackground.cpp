#include "Simulation/Glare/RoomBackground.hpp"

#include "Simulation/Glare/DirectLight.hpp"
#include "Simulation/Glare/RoomRadiosity.hpp"
#include "Simulation/Glare/RoomTransport.hpp"

namespace Merivane::Simulation {

std::array<double, 4> RoomBackground(const UgrRoom& room, const SceneLuminaire& luminaire) {
    return RoomBackgrounds(room, luminaire,
                           {{room.ceilingReflectance, room.wallReflectance, room.floorReflectance}})
        .front();
}

std::vector<std::array<double, 4>> RoomBackgrounds(const UgrRoom& room,
                                                   const SceneLuminaire& luminaire,
                                                   const std::vector<ReflectanceSet>& sets) {
    std::vector<std::array<double, 4>> backgrounds;
    const RoomCut cut = CutRoom(room);
    if (!IsRoom(cut)) {
        backgrounds.resize(sets.size());
        return backgrounds;
    }
    const StandardRoom built = BuildStandardRoom(luminaire, room);
    const RoomTransport transport = BuildRoomTransport(cut, built.observers, RoomViews::All);
    const LuminaireGrid grid = BuildLuminaireGrid(built);
    const MirrorParts irradiance =
        DirectIrradiance(transport, grid, BuildOffsetLight(cut, grid, grid.nx, grid.ny));
    std::vector<RadiosityCase> cases;
    cases.reserve(sets.size());
    for (const ReflectanceSet& set : sets) {
        cases.push_back({irradiance, set});
    }
    for (const MirrorParts& radiosity : SolveRadiosity(transport, cases)) {
        backgrounds.push_back(LightOnObservers(transport, radiosity));
    }
    return backgrounds;
}

} // namespace Merivane::Simulation
