#include "Simulation/Glare/UgrTable.hpp"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <optional>
#include <vector>

#include "Simulation/Glare/DirectLight.hpp"
#include "Simulation/Glare/ObserverGlare.hpp"
#include "Simulation/Glare/RoomBackground.hpp"
#include "Simulation/Glare/RoomRadiosity.hpp"
#include "Simulation/Glare/RoomTransport.hpp"
#include "Simulation/Glare/StandardRoom.hpp"
#include "Simulation/Glare/TableReading.hpp"

namespace Merivane::Simulation {

namespace {

// The observers whose value counts in a table: those who look along Y.
constexpr std::size_t TableObservers = 2;

// Index 1 of whatever comes in both directions is the crosswise one.
constexpr std::size_t Directions = 2;

/// What every case of a table has in common.
struct TableTask {
    const SceneLuminaire& luminaire;
    double height = 0.0; ///< H [m]
    GlareOptions options;
    int mostX = 0; ///< luminaires in the largest room
    int mostY = 0;
    std::array<OffsetLight, Directions> light; ///< kept from room to room
};

/// Values of one room with a number of reflectances, by direction.
using RoomValues = std::array<std::vector<double>, Directions>;

TableTask BuildTask(const SceneLuminaire& luminaire, double height, const GlareOptions& options,
                    UgrRoomSize largest) {
    TableTask task{luminaire, height, options, 0, 0, {}};
    const StandardRoom room = BuildStandardRoom(luminaire, TableRoom(largest, {}, height, false));
    task.mostX = room.scene.luminaires.front().arrayCountX;
    task.mostY = room.scene.luminaires.front().arrayCountY;
    return task;
}

std::vector<double> DirectedValues(const TableTask& task, const StandardRoom& room,
                                   const std::vector<std::array<double, 4>>& backgrounds) {
    const std::vector<PlacedLuminaire> luminaires = PlaceLuminaires(room.scene.luminaires);
    std::vector<double> values(backgrounds.size());
    for (std::size_t k = 0; k < TableObservers; ++k) {
        const GlareSum sum = SumSources(room.observers[k], luminaires, task.options);
        for (std::size_t set = 0; set < values.size(); ++set) {
            const double ugr = RateSum(sum, backgrounds[set][k]).ugr; // 0 when not valid
            values[set] = k == 0 ? ugr : std::max(values[set], ugr);
        }
    }
    return values;
}

RoomValues EvaluateTableRoom(TableTask& task, UgrRoomSize size,
                             const std::vector<ReflectanceSet>& sets) {
    std::array<StandardRoom, Directions> rooms;
    for (std::size_t direction = 0; direction < Directions; ++direction) {
        rooms[direction] =
            BuildStandardRoom(task.luminaire, TableRoom(size, {}, task.height, direction == 1));
    }
    const RoomCut cut = CutRoom(TableRoom(size, {}, task.height, false));
    const RoomTransport transport = BuildRoomTransport(cut, rooms[0].observers, RoomViews::AlongY);
    std::vector<RadiosityCase> cases;
    for (std::size_t direction = 0; direction < Directions; ++direction) {
        const LuminaireGrid grid = BuildLuminaireGrid(rooms[direction]);
        OffsetLight& light = task.light[direction];
        if (!ServesGrid(light, cut, grid)) {
            light = BuildOffsetLight(cut, grid, task.mostX, task.mostY);
        }
        const MirrorParts irradiance = DirectIrradiance(transport, grid, light);
        for (const ReflectanceSet& set : sets) {
            cases.push_back({irradiance, set});
        }
    }
    const std::vector<MirrorParts> radiosity = SolveRadiosity(transport, cases);
    RoomValues values;
    for (std::size_t direction = 0; direction < Directions; ++direction) {
        std::vector<std::array<double, 4>> backgrounds;
        for (std::size_t set = 0; set < sets.size(); ++set) {
            backgrounds.push_back(
                LightOnObservers(transport, radiosity[direction * sets.size() + set]));
        }
        values[direction] = DirectedValues(task, rooms[direction], backgrounds);
    }
    return values;
}

UgrRoomSize LargestRoom() {
    UgrRoomSize largest;
    for (const UgrRoomSize& room : StandardRooms) {
        largest.x = std::max(largest.x, room.x);
        largest.y = std::max(largest.y, room.y);
    }
    return largest;
}

} // namespace

std::array<GlareResult, 4> EvaluateRoom(const SceneLuminaire& luminaire, const UgrRoom& room,
                                        const GlareOptions& options) {
    const StandardRoom built = BuildStandardRoom(luminaire, room);
    const std::vector<PlacedLuminaire> luminaires = PlaceLuminaires(built.scene.luminaires);
    const std::array<double, 4> background = RoomBackground(room, luminaire);
    std::array<GlareResult, 4> results;
    for (std::size_t k = 0; k < results.size(); ++k) {
        results[k] = ObserverGlare(built.observers[k], luminaires, background[k], options);
    }
    return results;
}

UgrTableValues UgrTable(const SceneLuminaire& luminaire, double height,
                        const GlareOptions& options) {
    UgrTableValues table;
    if (!(height > 0.0) || !std::isfinite(height)) {
        return table;
    }
    const std::vector<ReflectanceSet> sets(ReflectanceSets.begin(), ReflectanceSets.end());
    TableTask task = BuildTask(luminaire, height, options, LargestRoom());
    for (std::size_t row = 0; row < StandardRooms.size(); ++row) {
        const RoomValues values = EvaluateTableRoom(task, StandardRooms[row], sets);
        std::copy(values[0].begin(), values[0].end(), table.lengthwise[row].begin());
        std::copy(values[1].begin(), values[1].end(), table.crosswise[row].begin());
    }
    return table;
}

TabularUgr TabularForZone(const SceneLuminaire& luminaire, double sizeX, double sizeY,
                          double height, double ceiling, double walls,
                          const GlareOptions& options) {
    if (!(height > 0.0) || !std::isfinite(height)) {
        return {};
    }
    const std::size_t set = NearestReflectanceSet(ceiling, walls);
    std::optional<TabularUgr> worst;
    for (const bool swapped : {false, true}) {
        TabularUgr value;
        value.ratioX = (swapped ? sizeY : sizeX) / height;
        value.ratioY = (swapped ? sizeX : sizeY) / height;
        value.reflectanceSet = static_cast<std::int32_t>(set);
        const UgrRoomSize room = NearestStandardRoom(value.ratioX, value.ratioY);
        value.roomX = room.x;
        value.roomY = room.y;
        TableTask task = BuildTask(luminaire, height, options, room);
        const RoomValues values = EvaluateTableRoom(task, room, {ReflectanceSets[set]});
        for (const bool crosswise : {false, true}) {
            value.crosswise = crosswise;
            value.ugr = values[crosswise ? 1 : 0].front();
            if (!worst || value.ugr > worst->ugr) {
                worst = value;
            }
        }
    }
    return *worst;
}

double ReferenceRoomUgr(const SceneLuminaire& luminaire, double height,
                        const GlareOptions& options) {
    std::optional<double> worst;
    if (height > 0.0 && std::isfinite(height)) {
        for (const bool crosswise : {false, true}) {
            for (const GlareResult& result :
                 EvaluateRoom(luminaire, ReferenceRoom(height, crosswise), options)) {
                if (result.valid && (!worst || result.ugr > *worst)) {
                    worst = result.ugr;
                }
            }
        }
    }
    return worst.value_or(0.0);
}

} // namespace Merivane::Simulation
