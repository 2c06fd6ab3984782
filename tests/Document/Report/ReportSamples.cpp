#include "ReportSamples.hpp"

#include <gtest/gtest.h>

#include "Document/PlanAssembly.hpp"
#include "Document/SceneBuild.hpp"
#include "Document/SceneDocument.hpp"

namespace Merivane::Tests {

namespace {

/// A downlight of 0.6 x 0.6 m, of 40 W where the name tells it; without opening in "ponto.ies".
std::string SampleIes(const std::string& path) {
    const bool point = path == "ponto.ies";
    std::string text = "IESNA:LM-63-2002\n[LUMINAIRE] ";
    text += point ? "Spot de trilho" : "Painel embutido 60 × 60";
    text += "\n[MANUFAC] Oficina da Luz\n[LAMP] LED 4000 K\n";
    text += point ? "" : "[_RA] 90\n";
    text += "TILT=NONE\n1 -1 1 7 1 1 2 ";
    text += point ? "0 0 0\n1 1 0\n" : "0.6 0.6 0\n1 1 40\n";
    return text + "0 15 30 45 60 75 90\n0\n1500 1450 1250 950 560 180 0\n";
}

Document::IesLoader SampleLoader() {
    return [](const std::string& path, std::string& bytes) {
        bytes = SampleIes(path);
        return true;
    };
}

Simulation::ZoneResult ValuesOf(const Simulation::SensorPlane& plane, bool workPlane) {
    Simulation::ZoneResult zone{plane.name, {}, {}};
    const std::size_t count = ActiveNodeCount(plane.grid);
    for (std::size_t i = 0; i < count; ++i) {
        zone.illuminance.push_back(workPlane ? 450.0 + 150.0 * static_cast<double>(i) /
                                                           static_cast<double>(count)
                                             : 100.0);
    }
    zone.statistics = TaskStatistics(plane.grid, zone.illuminance);
    return zone;
}

Simulation::SurfaceReflectance Coloured(const std::string& name, double grey, double transparency,
                                        double area) {
    Simulation::SurfaceColour colour;
    colour.red = grey;
    colour.green = grey;
    colour.blue = grey;
    colour.transparency = transparency;
    Simulation::SurfaceReflectance record = Simulation::MakeFromColour("sup:" + name, name, colour);
    record.area = area;
    return record;
}

std::vector<Simulation::SurfaceReflectance> SampleReflectances() {
    std::vector<Simulation::SurfaceReflectance> records = {
        Coloured("Pintura branca", 0.95, 0.0, 120.5), Coloured("Vidro claro", 0.9, 0.6, 18.0),
        Coloured("Madeira <carvalho> & verniz", 0.6, 0.0, 8.25)};
    records[2].source = Simulation::ReflectanceSource::CorrectedNow;
    records[2].reflectance = 0.31;
    records.push_back(Simulation::MakeFloorReflectance());
    records.back().area = 64.0;
    return records;
}

} // namespace

ReportSample CalculateSample(const std::string& text) {
    ReportSample sample;
    std::string error;
    EXPECT_TRUE(Document::ParseSceneDocument(text, SampleLoader(), sample.study, error)) << error;
    EXPECT_TRUE(Document::BuildScene(sample.study, sample.built, error)) << error;
    const Simulation::Scene& scene = sample.built.scene;
    for (std::size_t i = 0; i < scene.sensorPlanes.size(); ++i) {
        sample.result.zones.push_back(
            ValuesOf(scene.sensorPlanes[i],
                     sample.built.planes[i].kind == Simulation::PlaneKind::WorkPlane));
    }
    sample.result.success = true;
    sample.result.pointIlluminance.assign(scene.points.size(), 80.0);
    sample.result.pointDirectIlluminance.assign(scene.points.size(), 30.0);
    for (std::size_t i = 0; i < sample.study.zones.size(); ++i) {
        sample.analyses.push_back(
            Simulation::AnalyseZone(sample.study, sample.built, sample.result, i, true));
    }
    sample.run = {"1.2.3", "RADIANCE 5.4a", 12.34, {"Um aviso do cálculo."}, true};
    return sample;
}

ReportSample OfficeSample() {
    ReportSample sample = CalculateSample(R"({"formato": 1, "zonas": [
        {"nome": "Escritório 1", "altura": 2.7, "contorno": [[0, 0], [8, 0], [8, 5], [0, 5]],
         "espacamento": 0.5, "atividade": "s22.2", "em": 500, "calcularParedes": true,
         "calcularTeto": true},
        {"nome": "Escritório 2", "altura": 2.7, "contorno": [[0, 5], [8, 5], [8, 9], [0, 9]],
         "atividade": "s22.2", "em": 900},
        {"nome": "Depósito", "altura": 2.7, "contorno": [[8, 0], [11, 0], [11, 4], [8, 4]]}],
        "luminarias": [
        {"nome": "Painel", "ies": "painel.ies", "posicao": [1, 1.25, 2.7],
         "repeticao": {"x": 4, "y": 2, "passoX": 2, "passoY": 2.5}},
        {"nome": "Painel", "ies": "painel.ies", "posicao": [1, 6, 2.7],
         "repeticao": {"x": 4, "y": 2, "passoX": 2, "passoY": 2}, "fatorDeManutencao": 0.7},
        {"nome": "Spot", "ies": "ponto.ies", "posicao": [9.5, 2, 2.7]}]})");
    sample.study.name = "Escritório Modelo";
    sample.study.zones[1].task.byName = true;
    return sample;
}

ReportSample ManyZones(int count) {
    std::string zones;
    std::string lights;
    for (int i = 0; i < count; ++i) {
        const std::string x = std::to_string(5 * i);
        const std::string end = std::to_string(5 * i + 4);
        const std::string comma = i > 0 ? "," : "";
        for (const std::string& piece :
             {comma, std::string(R"({"nome": "Sala )"), std::to_string(i + 1),
              std::string(R"(", "altura": 3, "espacamento": 0.5, "atividade": "s22.2", )"
                          R"("contorno": [[)"),
              x, std::string(", 0], ["), end, std::string(", 0], ["), end, std::string(", 4], ["),
              x, std::string(", 4]]}")}) {
            zones += piece;
        }
        for (const std::string& piece :
             {comma, std::string(R"({"ies": "painel.ies", "posicao": [)"),
              std::to_string(5 * i + 2), std::string(", 2, 3]}")}) {
            lights += piece;
        }
    }
    return CalculateSample(R"({"formato": 1, "zonas": [)" + zones + R"(], "luminarias": [)" +
                           lights + "]}");
}

Document::ReportInput InputOf(const ReportSample& sample) {
    Document::ReportInput input{.study = sample.study,
                                .built = sample.built,
                                .result = sample.result,
                                .analyses = sample.analyses,
                                .run = sample.run};
    input.reflectances = SampleReflectances();
    for (const Simulation::StudyZone& zone : sample.study.zones) {
        input.ceilings.push_back({zone.height, Simulation::DetectedCeiling{zone.height, 1.0}});
    }
    for (const Document::FloorPlan& plan :
         Document::AssemblePlans(sample.study, sample.built, sample.result, sample.analyses, {})) {
        input.pictures.push_back(
            {"Planta do térreo", Document::BuildResultPlan(plan.contents, {})});
    }
    input.versions = {{"Formato do projeto", "3"}};
    input.log = {"Vantoro: calculo em planta", "  Escritório 1: Em 520 lx", "fim"};
    input.moment = "21/11/2026 20:15";
    input.creationTime = 1795205700;
    return input;
}

} // namespace Merivane::Tests
