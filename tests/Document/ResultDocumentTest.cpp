#include <gtest/gtest.h>

#include "Catalog/Json.hpp"
#include "Document/ResultDocument.hpp"
#include "SceneTexts.hpp"

namespace Merivane::Document {

using Catalog::JsonKind;
using Catalog::JsonValue;

namespace {

/// A document of one small Zone with walls and a point, and made-up results: the i-th value of all
/// is i + 0.5.
struct MadeUp {
    Simulation::LightingStudy document;
    Simulation::StudyScene built;
    Simulation::SimulationResult result;
    std::vector<Simulation::ZoneAnalysis> analyses;
    RunRecord run{"0.1.0", "RADIANCE 6.1a", 1.5, {"um aviso"}, false};
};

MadeUp MakeUp() {
    MadeUp made;
    made.document = Tests::ReadScene(R"({"formato": 1, "nome": "Projeto \"X\"", "zonas": [
        {"nome": "Sala", "altura": 3, "contorno": [[0, 0], [2, 0], [2, 1], [0, 1]],
         "espacamento": 0.5, "afastamento": 0, "faixa": 0.25, "calcularParedes": true}],
        "pontos": [{"posicao": [1, 0.5, 1.2], "direcao": [1, 0, 0]}], "niveis": [100, 200]})");
    std::string error;
    EXPECT_TRUE(BuildScene(made.document, made.built, error)) << error;
    double value = 0.5;
    for (const Simulation::SensorPlane& plane : made.built.scene.sensorPlanes) {
        Simulation::ZoneResult zone{plane.name, {}, {}};
        for (std::size_t i = 0; i < ActiveNodeCount(plane.grid); ++i) {
            zone.illuminance.push_back(value);
            value += 1.0;
        }
        zone.statistics = TaskStatistics(plane.grid, zone.illuminance);
        made.result.zones.push_back(zone);
    }
    made.result.pointIlluminance = {200.25};
    made.result.pointDirectIlluminance = {150.125};
    // The observers at mid-wall, whose views stand behind the document's point.
    made.result.pointIlluminance.resize(made.built.scene.points.size(), 120.0);
    made.result.pointDirectIlluminance.resize(made.built.scene.points.size(), 20.0);
    made.result.success = true;
    return made;
}

std::string WriteMadeUp(const MadeUp& made) {
    return WriteResultDocument(made.document, made.built, made.result, made.analyses, made.run);
}

JsonValue ReadBack(const std::string& text) {
    JsonValue value;
    const Catalog::JsonParseResult parsed = Catalog::JsonParse(text, value);
    EXPECT_TRUE(parsed.ok) << parsed.error;
    return value;
}

std::vector<double> NumbersOf(const JsonValue& list) {
    std::vector<double> numbers;
    for (const JsonValue& item : list.items) {
        numbers.push_back(item.number);
    }
    return numbers;
}

std::vector<std::string> KeysOf(const JsonValue& object) {
    std::vector<std::string> keys;
    for (const Catalog::JsonMember& member : object.members) {
        keys.push_back(member.key);
    }
    return keys;
}

} // namespace

TEST(ResultDocument, TellsTheRun) {
    const JsonValue json = ReadBack(WriteMadeUp(MakeUp()));
    EXPECT_EQ(KeysOf(json),
              (std::vector<std::string>{"formato", "nome", "motor", "versoes", "segundos", "avisos",
                                        "niveis", "norma", "zonas", "planos", "pontos"}));
    EXPECT_EQ(json.NumberOr("formato", 0), 1.0);
    EXPECT_EQ(json.StringOr("nome", ""), "Projeto \"X\"");
    EXPECT_EQ(json.NumberOr("segundos", 0), 1.5);
    EXPECT_EQ(json.Find("versoes")->StringOr("vantoro", ""), "0.1.0");
    EXPECT_EQ(json.Find("versoes")->StringOr("radiance", ""), "RADIANCE 6.1a");
    EXPECT_EQ(json.Find("avisos")->items[0].text, "um aviso");
    EXPECT_EQ(json.StringOr("norma", ""), "ABNT NBR ISO/CIE 8995-1:2013");
    EXPECT_EQ(NumbersOf(*json.Find("niveis")), (std::vector<double>{100, 200}));
    const JsonValue& engine = *json.Find("motor");
    EXPECT_EQ(engine.StringOr("perfil", ""), "Projeto");
    EXPECT_EQ(engine.NumberOr("reflexoes", 0), 2.0);
    EXPECT_EQ(engine.NumberOr("tolerancia", 0), 0.15);
}

TEST(ResultDocument, TellsAPlaneWithItsGridItsValuesAndItsStatistics) {
    const MadeUp made = MakeUp();
    const JsonValue json = ReadBack(WriteMadeUp(made));
    const std::vector<JsonValue>& planes = json.Find("planos")->items;
    ASSERT_EQ(planes.size(), 5U);
    const JsonValue& plane = planes[0];
    EXPECT_EQ(plane.StringOr("nome", ""), "Sala");
    EXPECT_EQ(plane.StringOr("zona", ""), "Sala");
    EXPECT_EQ(plane.NumberOr("indiceDaZona", -1), 0.0);
    EXPECT_EQ(plane.StringOr("tipo", ""), "plano de trabalho");
    EXPECT_EQ(plane.Find("parede"), nullptr);
    EXPECT_EQ(NumbersOf(*plane.Find("valores")), made.result.zones[0].illuminance);
    const JsonValue& grid = *plane.Find("grade");
    EXPECT_EQ(grid.NumberOr("colunas", 0), 5.0);
    EXPECT_EQ(grid.NumberOr("linhas", 0), 3.0);
    EXPECT_EQ(NumbersOf(*grid.Find("passo")), (std::vector<double>{0.5, 0.5}));
    EXPECT_EQ(grid.NumberOr("z", 0), 0.75);
    EXPECT_EQ(NumbersOf(*grid.Find("nos")).size(), 15U);
    EXPECT_EQ(NumbersOf(*grid.Find("tarefa")),
              (std::vector<double>{0, 0, 0, 0, 0, 0, 1, 1, 1, 0, 0, 0, 0, 0, 0}));
    const JsonValue& statistics = *plane.Find("estatisticas");
    EXPECT_EQ(KeysOf(statistics), (std::vector<std::string>{"Em", "Emin", "Emax", "U0", "pontos"}));
    EXPECT_EQ(statistics.NumberOr("Em", 0), 7.5); // nodes 6, 7 and 8
    EXPECT_EQ(statistics.NumberOr("Emin", 0), 6.5);
    EXPECT_EQ(statistics.NumberOr("Emax", 0), 8.5);
    EXPECT_DOUBLE_EQ(statistics.NumberOr("U0", 0), 6.5 / 7.5);
    EXPECT_EQ(statistics.NumberOr("pontos", 0), 3.0);
}

TEST(ResultDocument, TellsWhereAWallStands) {
    const JsonValue json = ReadBack(WriteMadeUp(MakeUp()));
    const JsonValue& wall = json.Find("planos")->items[1];
    EXPECT_EQ(wall.StringOr("nome", ""), "Sala parede 1");
    EXPECT_EQ(wall.StringOr("tipo", ""), "parede");
    EXPECT_EQ(wall.NumberOr("parede", 0), 1.0);
    const JsonValue& grid = *wall.Find("grade");
    EXPECT_TRUE(grid.Find("vertical")->boolean);
    EXPECT_EQ(NumbersOf(*grid.Find("inicio")), (std::vector<double>{0, 0.01}));
    EXPECT_EQ(NumbersOf(*grid.Find("direcao")), (std::vector<double>{1, 0}));
    EXPECT_EQ(NumbersOf(*grid.Find("normal")), (std::vector<double>{0, 1, 0}));
    EXPECT_EQ(grid.Find("z"), nullptr);
}

TEST(ResultDocument, TellsLoosePointsWithTotalAndDirectLight) {
    const JsonValue json = ReadBack(WriteMadeUp(MakeUp()));
    ASSERT_EQ(json.Find("pontos")->items.size(), 1U);
    const JsonValue& point = json.Find("pontos")->items[0];
    EXPECT_EQ(NumbersOf(*point.Find("posicao")), (std::vector<double>{1, 0.5, 1.2}));
    EXPECT_EQ(NumbersOf(*point.Find("direcao")), (std::vector<double>{1, 0, 0}));
    EXPECT_EQ(point.NumberOr("total", 0), 200.25);
    EXPECT_EQ(point.NumberOr("direta", 0), 150.125);
}

TEST(ResultDocument, WritesTheValuesOfAPlaneOnOneLine) {
    const std::string text = WriteMadeUp(MakeUp());
    EXPECT_NE(text.find("\"valores\": [0.5, 1.5, 2.5, "), std::string::npos);
    EXPECT_EQ(text, WriteMadeUp(MakeUp()));
}

} // namespace Merivane::Document
