#include "Document/ResultDocument.hpp"

#include <cstddef>
#include <utility>

#include "Document/JsonParts.hpp"
#include "Document/ZoneResultJson.hpp"

namespace Merivane::Document {

namespace {

using Catalog::JsonValue;

constexpr int ResultFormat = 1;

JsonValue EngineJson(const Simulation::EngineSettings& engine) {
    JsonValue json;
    json.Set("perfil",
             JsonValue::MakeString(Simulation::ProfileName(Simulation::DetectProfile(engine))));
    json.Set("reflexoes", Integer(engine.bounces));
    json.Set("raios", Integer(engine.divisions));
    json.Set("raiosExtras", Integer(engine.supersamples));
    json.Set("resolucao", Integer(engine.resolution));
    json.Set("tolerancia", JsonValue::MakeNumber(engine.accuracy));
    json.Set("limite", JsonValue::MakeNumber(engine.limitWeight));
    json.Set("processos", Integer(engine.maxProcesses));
    return json;
}

JsonValue VersionsJson(const RunRecord& run) {
    JsonValue json;
    json.Set("vantoro", JsonValue::MakeString(run.programVersion));
    json.Set("radiance", JsonValue::MakeString(run.radianceVersion));
    return json;
}

JsonValue StatisticsJson(const Simulation::PointStatistics& statistics) {
    JsonValue json;
    json.Set("Em", JsonValue::MakeNumber(statistics.mean));
    json.Set("Emin", JsonValue::MakeNumber(statistics.minimum));
    json.Set("Emax", JsonValue::MakeNumber(statistics.maximum));
    json.Set("U0", JsonValue::MakeNumber(statistics.uniformity));
    json.Set("pontos", JsonValue::MakeNumber(static_cast<double>(statistics.count)));
    return json;
}

/// Nodes that are points, by their index in the lattice, in point order.
JsonValue NodesJson(const Simulation::CalculationGrid& grid) {
    JsonValue list = JsonValue::MakeArray();
    for (std::size_t index = 0; index < grid.active.size(); ++index) {
        if (grid.active[index]) {
            list.items.push_back(JsonValue::MakeNumber(static_cast<double>(index)));
        }
    }
    return list;
}

JsonValue TaskJson(const Simulation::CalculationGrid& grid) {
    JsonValue list = JsonValue::MakeArray();
    for (const bool inTask : Simulation::TaskSelection(grid)) {
        list.items.push_back(JsonValue::MakeNumber(inTask ? 1.0 : 0.0));
    }
    return list;
}

JsonValue GridJson(const Simulation::SensorPlane& plane) {
    const Simulation::CalculationGrid& grid = plane.grid;
    JsonValue json;
    json.Set("colunas", Integer(grid.columns));
    json.Set("linhas", Integer(grid.rows));
    json.Set("origem", Numbers({grid.originX, grid.originY}));
    json.Set("passo", Numbers({grid.stepX, grid.stepY}));
    json.Set("vertical", JsonValue::MakeBool(plane.vertical));
    if (plane.vertical) {
        json.Set("inicio", Numbers({plane.originX, plane.originY}));
        json.Set("direcao", Numbers({plane.directionX, plane.directionY}));
        json.Set("normal", Numbers({plane.normalX, plane.normalY, 0.0}));
    } else {
        json.Set("z", JsonValue::MakeNumber(grid.z));
        json.Set("normal", Numbers({0.0, 0.0, plane.facesDown ? -1.0 : 1.0}));
    }
    json.Set("estreita", JsonValue::MakeBool(grid.narrow));
    json.Set("nos", NodesJson(grid));
    json.Set("tarefa", TaskJson(grid));
    return json;
}

JsonValue PlaneJson(const Simulation::LightingStudy& document, const Simulation::PlaneRole& role,
                    const Simulation::SensorPlane& plane, const Simulation::ZoneResult& result) {
    JsonValue json;
    json.Set("nome", JsonValue::MakeString(plane.name));
    json.Set("zona", JsonValue::MakeString(document.zones[role.zone].name));
    json.Set("indiceDaZona", Integer(static_cast<std::int64_t>(role.zone)));
    json.Set("tipo", JsonValue::MakeString(Simulation::PlaneKindName(role.kind)));
    if (role.kind == Simulation::PlaneKind::Wall) {
        json.Set("parede", Integer(role.wall));
    }
    json.Set("estatisticas", StatisticsJson(result.statistics));
    json.Set("grade", GridJson(plane));
    json.Set("valores", Numbers(result.illuminance));
    return json;
}

JsonValue PlanesJson(const Simulation::LightingStudy& document, const Simulation::StudyScene& built,
                     const Simulation::SimulationResult& result) {
    JsonValue list = JsonValue::MakeArray();
    for (std::size_t i = 0; i < result.zones.size() && i < built.planes.size(); ++i) {
        list.items.push_back(
            PlaneJson(document, built.planes[i], built.scene.sensorPlanes[i], result.zones[i]));
    }
    return list;
}

JsonValue PointsJson(const Simulation::StudyScene& built,
                     const Simulation::SimulationResult& result) {
    JsonValue list = JsonValue::MakeArray();
    for (std::size_t i = 0; i < built.pointCount && i < result.pointIlluminance.size() &&
                            i < result.pointDirectIlluminance.size();
         ++i) {
        const Simulation::ScenePoint& point = built.scene.points[i];
        JsonValue json;
        json.Set("posicao", Numbers({point.x, point.y, point.z}));
        json.Set("direcao", Numbers({point.directionX, point.directionY, point.directionZ}));
        json.Set("total", JsonValue::MakeNumber(result.pointIlluminance[i]));
        json.Set("direta", JsonValue::MakeNumber(result.pointDirectIlluminance[i]));
        list.items.push_back(std::move(json));
    }
    return list;
}

JsonValue ZonesJson(const Simulation::LightingStudy& document, const Simulation::StudyScene& built,
                    const std::vector<Simulation::ZoneAnalysis>& analyses, bool explained) {
    JsonValue list = JsonValue::MakeArray();
    for (std::size_t i = 0; i < analyses.size() && i < document.zones.size(); ++i) {
        list.items.push_back(
            ZoneResultJson(document.zones[i], analyses[i], built.scene, explained));
    }
    return list;
}

} // namespace

std::string WriteResultDocument(const Simulation::LightingStudy& document,
                                const Simulation::StudyScene& built,
                                const Simulation::SimulationResult& result,
                                const std::vector<Simulation::ZoneAnalysis>& analyses,
                                const RunRecord& run) {
    JsonValue json;
    json.Set("formato", Integer(ResultFormat));
    json.Set("nome", JsonValue::MakeString(document.name));
    json.Set("motor", EngineJson(document.engine));
    json.Set("versoes", VersionsJson(run));
    json.Set("segundos", JsonValue::MakeNumber(run.seconds));
    json.Set("avisos", Texts(run.notices));
    json.Set("niveis", Numbers(document.levels));
    json.Set("norma", JsonValue::MakeString(Simulation::ReferenceStandardName(document.standard)));
    json.Set("zonas", ZonesJson(document, built, analyses, run.explained));
    json.Set("planos", PlanesJson(document, built, result));
    json.Set("pontos", PointsJson(built, result));
    Catalog::JsonWriteOptions options;
    options.numberArraysOnOneLine = true;
    return Catalog::JsonWrite(json, options);
}

} // namespace Merivane::Document
