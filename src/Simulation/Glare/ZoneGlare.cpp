#include "Simulation/Glare/ZoneGlare.hpp"

#include <algorithm>
#include <cstddef>

#include "Simulation/Glare/LuminaireModels.hpp"
#include "Simulation/Glare/ObserverGlare.hpp"
#include "Simulation/Glare/StandardRoom.hpp"
#include "Simulation/Glare/UgrTable.hpp"
#include "Simulation/Glare/UpwardFlux.hpp"
#include "Simulation/Glare/ZoneGlareTexts.hpp"
#include "Simulation/LengthScale.hpp"
#include "Simulation/LuminousOpening.hpp"
#include "Simulation/PlacedLuminaire.hpp"
#include "Simulation/PolygonGeometry.hpp"
#include "Simulation/RoomReflectances.hpp"

namespace Merivane::Simulation {

namespace {

constexpr double LeastHeight = 0.3; // H that the table can be read with [m]
// Levels are sums: 4.5 m over an eye at 4.2 m comes out a trace below 0.3 m.
constexpr double HeightTolerance = 1e-9;
constexpr double SplitHeight = 0.3; // level faces below it are floor [m]
constexpr double LeastMaintenance = 0.05;
constexpr ReflectanceSet UsualRoom = {0.7, 0.5, 0.2};

constexpr GlareOptions AsTheTables = {.smallSourceTerm = false, .tableFieldLimit = true};
constexpr GlareOptions WithSmallSources = {.smallSourceTerm = true, .tableFieldLimit = true};

// The floor of a room is full of what stands on it: the tables' own is taken.
ReflectanceSet RoomSet(const Scene& scene, const ZoneSpace& zone) {
    const RoomReflectances means = MeanSurfaceReflectances(scene, zone, SplitHeight);
    ReflectanceSet room = UsualRoom;
    room.ceiling = means.ceiling >= 0.0 ? means.ceiling : room.ceiling;
    room.walls = means.walls >= 0.0 ? means.walls : room.walls;
    return room;
}

double MeanMaintenance(const std::vector<PlacedLuminaire>& lights) {
    double sum = 0.0;
    for (const PlacedLuminaire& light : lights) {
        sum += light.luminaire->contract.maintenanceFactor;
    }
    return std::max(sum / static_cast<double>(lights.size()), LeastMaintenance);
}

TabularOmission FindOmission(const SceneLuminaire& sample, double height, double downwardArea) {
    if (IsContinuousLine(sample)) {
        return TabularOmission::Linear;
    }
    if (height < LeastHeight - HeightTolerance) {
        return TabularOmission::BelowEye;
    }
    return downwardArea > 0.0 ? TabularOmission::None : TabularOmission::NoOpening;
}

void RateModel(const SceneLuminaire& sample, const ZoneSpace& zone, const ReflectanceSet& room,
               ModelGlare& model) {
    const double area =
        DownwardArea(DeclaredOpening(sample.photometry, AppliedLengthScale(sample)));
    model.isSmall = area < SmallSourceArea;
    model.upwardFlux = UpwardFluxFraction(sample.photometry);
    model.omission = FindOmission(sample, model.height, area);
    if (model.omission != TabularOmission::None) {
        return;
    }
    const Bounds2D box = OuterBounds(zone.polygon);
    const double sizeX = box.maximum.x - box.minimum.x;
    const double sizeY = box.maximum.y - box.minimum.y;
    const auto read = [&](const GlareOptions& options) {
        return TabularForZone(sample, sizeX, sizeY, model.height, room.ceiling, room.walls,
                              options);
    };
    model.tabular = read(AsTheTables);
    model.referenceUgr = ReferenceRoomUgr(sample, model.height, AsTheTables);
    if (model.isSmall) {
        model.smallSourceUgr = read(WithSmallSources).ugr;
    }
}

// The largest of several values, of which the first need not be above 0.
void Raise(bool isFirst, double value, double& largest) {
    largest = isFirst ? value : std::max(largest, value);
}

void TakeModel(const ModelGlare& model, const ReflectanceSet& room, ZoneGlare& glare) {
    glare.log.push_back(ModelLogLine(model, room));
    glare.notes.push_back(ModelNote(model, room, glare.models.size() > 1));
    if (model.omission != TabularOmission::None) {
        return;
    }
    Raise(!glare.hasUgr, model.tabular.ugr, glare.ugr);
    Raise(!glare.hasUgr, model.referenceUgr, glare.referenceUgr);
    glare.hasUgr = true;
    if (model.isSmall) {
        Raise(!glare.hasSmallSourceUgr, model.smallSourceUgr, glare.smallSourceUgr);
        glare.hasSmallSourceUgr = true;
    }
    if (model.upwardFlux > MostUpwardFlux) {
        glare.warnings.push_back(UpwardFluxWarning(model));
        glare.notes.push_back(glare.warnings.back());
    }
}

// The light of the calculation is maintained, that of the sources initial: the background is
// brought to the same state.
void RateObservers(const std::vector<PlacedLuminaire>& lights,
                   const std::vector<RoomObserver>& observers, bool explain, ZoneGlare& glare) {
    for (const bool placed : {false, true}) {
        for (const RoomObserver& observer : observers) {
            if (observer.placed == placed) {
                ObserverGlareRecord& record = glare.observers.emplace_back();
                record.observer = observer;
                record.result =
                    ObserverGlare(observer.observer, lights,
                                  observer.verticalIlluminance / glare.maintenanceFactor,
                                  AsTheTables, explain ? &record.terms : nullptr);
            }
        }
    }
}

void Compare(bool hasTask, std::int32_t ugrLimit, ZoneGlare& glare) {
    if (hasTask && ugrLimit >= 1) {
        glare.log.push_back(LimitLogLine(glare.ugr, ugrLimit));
        return;
    }
    glare.log.push_back("  UGR da instalacao " + FormatUgr(glare.ugr) + " - " +
                        NoLimitText(hasTask));
    glare.notes.push_back(NoLimitNote(glare.ugr, hasTask));
}

void TellReference(ZoneGlare& glare) {
    glare.log.push_back("  UGR sala de referencia 4H x 8H (comparar com a tabela do fabricante): " +
                        FormatUgr(glare.referenceUgr));
    if (glare.hasSmallSourceUgr) {
        glare.log.push_back("  UGR pela CIE 147 (fonte pequena, informativo): " +
                            FormatUgr(glare.smallSourceUgr));
    }
}

} // namespace

ZoneGlare AnalyseZoneGlare(const ZoneSpace& zone, const Scene& scene,
                           const std::vector<RoomObserver>& observers, bool hasTask,
                           std::int32_t ugrLimit, bool explain) {
    ZoneGlare glare;
    const ReflectanceSet room = RoomSet(scene, zone);
    glare.ceilingReflectance = room.ceiling;
    glare.wallReflectance = room.walls;
    const std::vector<PlacedLuminaire> lights = PlaceLuminaires(
        scene.luminaires, [&zone](const Point3D& place) { return HoldsLuminaire(zone, place); });
    if (lights.empty()) {
        glare.notes.emplace_back("UGR: nenhuma luminária Vantoro sobre a Zona.");
        glare.log.emplace_back("  UGR: nenhuma luminaria sobre a zona");
        return glare;
    }
    for (const PlacedLuminaire& light : lights) {
        glare.lights.push_back({light.index, light.center});
    }
    glare.maintenanceFactor = MeanMaintenance(lights);

    glare.models = GroupModels(lights, zone.floorLevel + SeatedEyeHeight);
    for (ModelGlare& model : glare.models) {
        RateModel(scene.luminaires[model.luminaire], zone, room, model);
        TakeModel(model, room, glare);
    }
    RateObservers(lights, observers, explain, glare);
    for (const ObserverGlareRecord& record : glare.observers) {
        glare.log.push_back(ObserverLogLine(record, zone.floorLevel));
    }
    if (glare.hasUgr) {
        Compare(hasTask, ugrLimit, glare);
        TellReference(glare);
    }
    if (!glare.observers.empty()) {
        glare.notes.push_back(PositionsNote(glare.observers));
    }
    return glare;
}

} // namespace Merivane::Simulation
