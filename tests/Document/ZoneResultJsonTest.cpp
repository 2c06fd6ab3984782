#include <gtest/gtest.h>

#include "Document/ZoneResultJson.hpp"
#include "Simulation/Verification/TaskSearch.hpp"

namespace Merivane::Document {
namespace {

using Catalog::JsonKind;
using Catalog::JsonValue;
using Simulation::VerificationKind;

Simulation::Scene OneLuminaire() {
    Simulation::Scene scene;
    scene.luminaires.resize(1);
    scene.luminaires[0].displayName = "L1";
    return scene;
}

Simulation::StudyZone VerifiedZone() {
    Simulation::StudyZone zone;
    zone.name = "Sala";
    zone.task = {{"s22.2", 450.0, 0.6, -1}, true};
    return zone;
}

/// One model with a value, one without; an observer who sees the one luminaire.
Simulation::ZoneAnalysis MakeUp() {
    Simulation::ZoneAnalysis analysis;
    analysis.glareAnalysed = true;
    analysis.task = Simulation::FindTask("s22.2");
    analysis.verification.rows = {
        {"Iluminância Em", "480 lx", "≥ 450 lx", true, true, VerificationKind::Requirement},
        {"Reprodução Ra (IRC)", "-", "≥ 80", false, false, VerificationKind::Requirement},
        {"Refletância teto", "0,20", "0,60 a 0,90", true, false, VerificationKind::Recommendation}};
    analysis.verification.notes = {"luminância"};
    analysis.surfaces = {
        {"Teto", "40 lx", "≥ 50 lx", true, false, VerificationKind::Recommendation}};
    Simulation::ZoneGlare& glare = analysis.glare;
    glare.hasUgr = true;
    glare.ugr = 17.25;
    glare.referenceUgr = 18.5;
    glare.ceilingReflectance = 0.7;
    glare.wallReflectance = 0.5;
    glare.maintenanceFactor = 0.8;
    glare.lights = {{0, {1.0, 2.0, 2.8}}};
    glare.models.resize(2);
    glare.models[0] = {"Painel", 0,     4,   1.6, {}, {17.25, 4, 8, 3.9, 8.2, 2, true},
                       18.5,     false, 0.0, 0.02};
    glare.models[1].name = "Fita";
    glare.models[1].omission = Simulation::TabularOmission::Linear;
    glare.notes = {"nota"};
    glare.warnings = {"aviso"};
    glare.observers.resize(1);
    glare.observers[0].observer = {{3.0, 0.01, 1.2, 0.0, 1.0, "meio"}, true, 100.0};
    glare.observers[0].result = {true, 16.0, 40.0, 1, 0, 0, 2, 3};
    glare.observers[0].terms.resize(1);
    glare.observers[0].terms[0].term = 1000.0;
    return analysis;
}

JsonValue Written(const Simulation::ZoneAnalysis& analysis, bool explained = false) {
    return ZoneResultJson(VerifiedZone(), analysis, OneLuminaire(), explained);
}

bool IsNull(const JsonValue& json, const char* key) {
    return json.Find(key) != nullptr && json.Find(key)->kind == JsonKind::Null;
}

TEST(ZoneResultJson, TellsTheActivityAndWhatItRequires) {
    const JsonValue json = Written(MakeUp());
    EXPECT_EQ(json.StringOr("nome", ""), "Sala");
    const JsonValue& activity = *json.Find("atividade");
    EXPECT_EQ(activity.StringOr("id", ""), "s22.2");
    EXPECT_EQ(activity.NumberOr("secao", 0), 22.0);
    EXPECT_EQ(activity.StringOr("nomeDaSecao", ""), "Escritórios");
    EXPECT_EQ(activity.StringOr("nome", ""), "Escrever, teclar, ler, processar dados");
    EXPECT_TRUE(activity.Find("sugerida")->boolean);
    const JsonValue& required = *json.Find("exigido");
    EXPECT_EQ(required.NumberOr("Em", 0), 450.0);
    EXPECT_EQ(required.NumberOr("U0", 0), 0.6);
    EXPECT_EQ(required.NumberOr("UGRL", 0), 19.0);
    EXPECT_EQ(required.NumberOr("Ra", 0), 80.0);
    EXPECT_EQ(required.StringOr("telas", ""), "classes I e II");
    EXPECT_EQ(required.NumberOr("luminancia", 0), 1000.0);
}

TEST(ZoneResultJson, TellsWhichScreensCount) {
    struct Case {
        std::int32_t screens;
        std::string text;
        double luminance;
    };
    for (const Case& c : {Case{0, "nenhuma", -1.0}, Case{1, "classes I e II", 1000.0},
                          Case{3, "classe III", 200.0}}) {
        Simulation::StudyZone zone = VerifiedZone();
        zone.task.requirement.screens = c.screens;
        const JsonValue json = ZoneResultJson(zone, MakeUp(), OneLuminaire(), false);
        EXPECT_EQ(json.Find("exigido")->StringOr("telas", ""), c.text);
        EXPECT_EQ(json.Find("exigido")->NumberOr("luminancia", -1.0), c.luminance);
    }
}

TEST(ZoneResultJson, TellsEveryRowAndTheResult) {
    const JsonValue json = Written(MakeUp());
    const JsonValue& verification = *json.Find("verificacao");
    const std::vector<JsonValue>& rows = verification.Find("linhas")->items;
    ASSERT_EQ(rows.size(), 3U);
    EXPECT_EQ(rows[0].StringOr("criterio", ""), "Iluminância Em");
    EXPECT_EQ(rows[0].StringOr("calculado", ""), "480 lx");
    EXPECT_EQ(rows[0].StringOr("exigido", ""), "≥ 450 lx");
    EXPECT_EQ(rows[0].StringOr("estado", ""), "ATENDE");
    EXPECT_FALSE(rows[0].Find("recomendacao")->boolean);
    EXPECT_EQ(rows[1].StringOr("estado", ""), "SEM DADO");
    EXPECT_EQ(rows[2].StringOr("estado", ""), "NÃO ATENDE");
    EXPECT_TRUE(rows[2].Find("recomendacao")->boolean);
    EXPECT_EQ(verification.StringOr("resultado", ""), "ATENDE"); // neither of them counts
    EXPECT_EQ(verification.Find("observacoes")->items[0].text, "luminância");
    EXPECT_EQ(json.Find("superficies")->items[0].StringOr("criterio", ""), "Teto");
}

TEST(ZoneResultJson, TellsThatARequiredRowFails) {
    Simulation::ZoneAnalysis analysis = MakeUp();
    analysis.verification.rows[0].passes = false;
    EXPECT_EQ(Written(analysis).Find("verificacao")->StringOr("resultado", ""), "NÃO ATENDE");
}

TEST(ZoneResultJson, HasNullWhereNothingIsVerified) {
    Simulation::ZoneAnalysis analysis = MakeUp();
    analysis.task = nullptr;
    analysis.verification.rows.clear();
    const JsonValue json = Written(analysis);
    EXPECT_TRUE(IsNull(json, "atividade"));
    EXPECT_TRUE(IsNull(json, "exigido"));
    EXPECT_TRUE(IsNull(*json.Find("verificacao"), "resultado"));
    EXPECT_TRUE(json.Find("verificacao")->Find("linhas")->items.empty());
}

TEST(ZoneResultJson, HasNullWhereGlareWasNotAnalysed) {
    Simulation::ZoneAnalysis analysis = MakeUp();
    analysis.glareAnalysed = false;
    EXPECT_TRUE(IsNull(Written(analysis), "ofuscamento"));
}

TEST(ZoneResultJson, TellsTheGlareOfTheZoneAndOfEveryModel) {
    const JsonValue written = Written(MakeUp());
    const JsonValue& glare = *written.Find("ofuscamento");
    EXPECT_EQ(glare.NumberOr("UGR", 0), 17.25);
    EXPECT_EQ(glare.NumberOr("referencia", 0), 18.5);
    EXPECT_TRUE(IsNull(glare, "CIE147"));
    EXPECT_EQ(glare.Find("refletancias")->NumberOr("teto", 0), 0.7);
    EXPECT_EQ(glare.NumberOr("fatorDeManutencao", 0), 0.8);
    EXPECT_EQ(glare.Find("observacoes")->items[0].text, "nota");
    EXPECT_EQ(glare.Find("avisos")->items[0].text, "aviso");
    const std::vector<JsonValue>& models = glare.Find("modelos")->items;
    ASSERT_EQ(models.size(), 2U);
    EXPECT_EQ(models[0].StringOr("nome", ""), "Painel");
    EXPECT_EQ(models[0].NumberOr("luminarias", 0), 4.0);
    EXPECT_EQ(models[0].NumberOr("H", 0), 1.6);
    EXPECT_EQ(models[0].NumberOr("UGR", 0), 17.25);
    const JsonValue& reading = *models[0].Find("leitura");
    EXPECT_EQ(reading.Find("sala")->items[1].number, 8.0);
    EXPECT_EQ(reading.Find("zona")->items[0].number, 3.9);
    EXPECT_EQ(reading.Find("refletancias")->items[0].number, 0.5);
    EXPECT_EQ(reading.StringOr("visada", ""), "transversal");
    EXPECT_TRUE(IsNull(models[0], "motivo"));
    EXPECT_EQ(models[1].StringOr("motivo", ""), "fita ou linear contínua");
    EXPECT_TRUE(IsNull(models[1], "UGR"));
    EXPECT_TRUE(IsNull(models[1], "leitura"));
}

TEST(ZoneResultJson, TellsEveryObserverAndItsRowsWhereTheyAreAskedFor) {
    for (const bool explained : {false, true}) {
        const JsonValue written = Written(MakeUp(), explained);
        const JsonValue& observer = written.Find("ofuscamento")->Find("observadores")->items.at(0);
        EXPECT_EQ(observer.StringOr("nome", ""), "meio");
        EXPECT_TRUE(observer.Find("colocado")->boolean);
        EXPECT_EQ(observer.Find("posicao")->items[2].number, 1.2);
        EXPECT_EQ(observer.Find("visada")->items[1].number, 1.0);
        EXPECT_EQ(observer.NumberOr("refletida", 0), 100.0);
        EXPECT_EQ(observer.NumberOr("UGR", 0), 16.0);
        EXPECT_EQ(observer.NumberOr("Lb", 0), 40.0);
        EXPECT_EQ(observer.NumberOr("naSoma", 0), 1.0);
        EXPECT_EQ(observer.NumberOr("semArea", 0), 2.0);
        EXPECT_EQ(observer.NumberOr("foraDoCampo", 0), 3.0);
        EXPECT_EQ(observer.Find("linhas") != nullptr, explained);
        if (explained) {
            EXPECT_EQ(observer.NumberOr("soma", 0), 1000.0);
            EXPECT_EQ(observer.Find("linhas")->items.at(0).StringOr("nome", ""), "L1");
        }
    }
}

TEST(ZoneResultJson, HasNoUgrWithoutBackground) {
    Simulation::ZoneAnalysis analysis = MakeUp();
    analysis.glare.observers[0].result.valid = false;
    analysis.glare.hasUgr = false;
    const JsonValue written = Written(analysis);
    const JsonValue& glare = *written.Find("ofuscamento");
    EXPECT_TRUE(IsNull(glare, "UGR"));
    EXPECT_TRUE(IsNull(glare, "referencia"));
    EXPECT_TRUE(IsNull(glare.Find("observadores")->items[0], "UGR"));
    EXPECT_TRUE(IsNull(glare.Find("observadores")->items[0], "Lb"));
}

} // namespace
} // namespace Merivane::Document
