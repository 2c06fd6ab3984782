#include <algorithm>

#include <gtest/gtest.h>

#include "Document/Report/AdoptedValues.hpp"
#include "ReportSamples.hpp"

namespace Merivane::Document {

namespace {

bool Tells(const ReportInput& input, const std::string& group, const AdoptedValue& value) {
    for (const AdoptedGroup& candidate : CollectAdoptedValues(input)) {
        if (candidate.title == group) {
            return std::find(candidate.values.begin(), candidate.values.end(), value) !=
                   candidate.values.end();
        }
    }
    return false;
}

} // namespace

TEST(CollectAdoptedValues, TellsWhatTheCallerKnowsOfFirst) {
    const Tests::ReportSample office = Tests::OfficeSample();
    ReportInput input = Tests::InputOf(office);
    input.adopted = {{"Zona A", "altura 3,00 m", "nenhuma altura informada"}};
    const std::vector<AdoptedGroup> groups = CollectAdoptedValues(input);
    ASSERT_EQ(groups.size(), 5U);
    EXPECT_EQ(groups[0].title, "Projeto");
    EXPECT_EQ(groups[0].values, input.adopted);
    EXPECT_EQ(groups[1].title, "Zonas");
    EXPECT_EQ(groups[2].title, "Luminárias");
    EXPECT_EQ(groups[3].title, "Refletâncias");
    EXPECT_EQ(groups[4].title, "Cálculo");
}

TEST(CollectAdoptedValues, TellsWhereActivitiesComeFrom) {
    const Tests::ReportSample office = Tests::OfficeSample();
    const ReportInput input = Tests::InputOf(office);
    EXPECT_TRUE(Tells(input, "Zonas",
                      {"Zona Escritório 2", "Escrever, teclar, ler, processar dados (s22.2)",
                       "atividade sugerida pelo nome da Zona"}));
    EXPECT_TRUE(
        Tells(input, "Zonas", {"Zona Depósito", "sem verificação", "nenhuma atividade definida"}));
    EXPECT_FALSE(Tells(input, "Zonas",
                       {"Zona Escritório 1", "Escrever, teclar, ler, processar dados (s22.2)",
                        "atividade sugerida pelo nome da Zona"}));
}

TEST(CollectAdoptedValues, TellsTheCeilingsThatWereFoundAndThoseThatWereNot) {
    const Tests::ReportSample office = Tests::OfficeSample();
    ReportInput input = Tests::InputOf(office);
    input.ceilings = {{3.0, Simulation::DetectedCeiling{2.7, 0.6}},
                      {2.7, {}},
                      {2.7, Simulation::DetectedCeiling{2.7, 1.0}}};
    EXPECT_TRUE(Tells(input, "Zonas",
                      {"Zona Escritório 1", "pé-direito 2,70 m",
                       "forro do modelo sobre 60 % da área; a altura da Zona é 3,00 m"}));
    EXPECT_TRUE(Tells(input, "Zonas",
                      {"Zona Escritório 2", "pé-direito 2,70 m",
                       "nenhum forro encontrado no modelo: vale a altura da Zona"}));
}

TEST(CollectAdoptedValues, TakesACeilingAsTheZonesOwnBelowHalfACentimetre) {
    const Tests::ReportSample office = Tests::OfficeSample();
    ReportInput input = Tests::InputOf(office);
    const auto count = [&input] { return CollectAdoptedValues(input)[0].values.size(); };
    const std::size_t without = count();
    input.ceilings[0] = {2.7, Simulation::DetectedCeiling{2.704, 1.0}};
    EXPECT_EQ(count(), without);
    input.ceilings[0] = {2.7, Simulation::DetectedCeiling{2.706, 1.0}};
    EXPECT_EQ(count(), without + 1);
}

TEST(CollectAdoptedValues, GathersZonesThatShareAValue) {
    const Tests::ReportSample office = Tests::OfficeSample();
    const ReportInput input = Tests::InputOf(office);
    const AdoptedValue rows[] = {
        {"Todas as Zonas", "plano de trabalho a 0,75 m", "ajuste de partida, mantido"},
        {"Todas as Zonas", "faixa de borda de 0,50 m", "ajuste de partida, mantido"},
        {"Todas as Zonas", "pontos a 0,05 m das paredes", "ajuste de partida, mantido"},
        {"Zonas Escritório 2 e Depósito", "pontos a cada 0,10 × 0,10 m",
         "espaçamento automático, pela área da Zona"},
        {"Zonas Escritório 1 e Escritório 2", "telas das classes I e II, luminância até 1000 cd/m²",
         "deduzido do texto da atividade"},
        {"Zonas Escritório 1 e Escritório 2", "área de tarefa: a Zona menos a faixa de borda",
         "nenhum posto de trabalho definido: o entorno imediato não é verificado"},
        {"Zonas Escritório 1 e Escritório 2", "teto de 70 % na tabela UGR",
         "nenhum teto encontrado no modelo"},
        {"Zonas Escritório 1 e Escritório 2", "paredes de 50 % na tabela UGR",
         "nenhuma parede encontrada no modelo"},
        {"Zonas Escritório 1 e Escritório 2", "piso de 20 % na tabela UGR",
         "o piso das tabelas padronizadas vale para qualquer sala"},
    };
    for (const AdoptedValue& row : rows) {
        EXPECT_TRUE(Tells(input, "Zonas", row)) << row.value;
    }
}

TEST(CollectAdoptedValues, LeavesOutWhatWasChosen) {
    Tests::ReportSample office = Tests::OfficeSample();
    for (Simulation::StudyZone& zone : office.study.zones) {
        zone.grid.workPlaneHeight = 0.8;
        zone.task.requirement.screens = Simulation::ScreensNone;
    }
    office.study.engine = Simulation::ProfileSettings(2);
    office.study.levels = {100};
    office.study.standard = Simulation::ReferenceStandard::International;
    ReportInput input = Tests::InputOf(office);
    input.reflectances.clear();
    for (const AdoptedGroup& group : CollectAdoptedValues(input)) {
        EXPECT_TRUE(group.title == "Zonas" || group.title == "Luminárias") << group.title;
        for (const AdoptedValue& value : group.values) {
            EXPECT_EQ(value.value.find("plano de trabalho"), std::string::npos);
            EXPECT_NE(value.reason, "deduzido do texto da atividade");
        }
    }
}

TEST(CollectAdoptedValues, TellsWhatLuminairesDoNotDeclare) {
    const Tests::ReportSample office = Tests::OfficeSample();
    const ReportInput input = Tests::InputOf(office);
    const AdoptedValue rows[] = {
        {"Luminária Painel embutido 60 × 60", "fator de manutenção 0,80",
         "valor de partida em 8 de 16: confirme com o plano de manutenção"},
        {"Luminária Spot de trilho", "sem Ra: o critério fica sem dado",
         "Ra não declarado em todas"},
        {"Luminária Spot de trilho", "sem potência: fora das somas de W e W/m²",
         "potência não declarada em todas"},
        {"Luminária Spot de trilho", "fonte pontual, fora do UGR e da luminância para telas",
         "o arquivo IES não declara a abertura luminosa"},
    };
    for (const AdoptedValue& row : rows) {
        EXPECT_TRUE(Tells(input, "Luminárias", row)) << row.value;
    }
}

TEST(CollectAdoptedValues, TellsAnOpeningThatWasTakenForANearerShape) {
    Tests::ReportSample office = Tests::OfficeSample();
    for (Simulation::SceneLuminaire& luminaire : office.built.scene.luminaires) {
        luminaire.photometry.width = -0.4; // an ellipse
        luminaire.photometry.length = -0.2;
    }
    bool told = false;
    for (const AdoptedGroup& group : CollectAdoptedValues(Tests::InputOf(office))) {
        for (const AdoptedValue& value : group.values) {
            told |= value.value == "abertura luminosa de forma próxima" && !value.reason.empty() &&
                    value.reason.back() != '.';
        }
    }
    EXPECT_TRUE(told);
}

TEST(CollectAdoptedValues, TellsReflectancesThatNobodyMeasured) {
    const Tests::ReportSample office = Tests::OfficeSample();
    const ReportInput input = Tests::InputOf(office);
    EXPECT_TRUE(Tells(input, "Refletâncias",
                      {"Vidro claro", "vidro: TL 60 %, RL 8/8 %",
                       "estimada pela cor da superfície, escolhida para a imagem e não medida"}));
    EXPECT_TRUE(Tells(input, "Refletâncias",
                      {"(sem Superficie) piso", "20 %",
                       "face sem superfície no modelo: valor usual para piso (20 %), parede (50 "
                       "%) ou teto (70 %)"}));
    for (const AdoptedGroup& group : CollectAdoptedValues(input)) {
        for (const AdoptedValue& value : group.values) {
            EXPECT_NE(value.subject, "Madeira <carvalho> & verniz"); // corrected by the user
        }
    }
}

TEST(CollectAdoptedValues, TellsTheEngineTheStandardAndTheLevelsThatWereKept) {
    const Tests::ReportSample office = Tests::OfficeSample();
    const ReportInput input = Tests::InputOf(office);
    const AdoptedValue rows[] = {
        {"Motor", "Projeto (reflexões 2, raios 1024)", "ajuste de partida, mantido"},
        {"Norma", "ABNT NBR ISO/CIE 8995-1:2013", "ajuste de partida, mantido"},
        {"Curvas isolux", "50; 100; 150; 200; 300; 500; 750; 1000 lx",
         "ajuste de partida, mantido"},
    };
    for (const AdoptedValue& row : rows) {
        EXPECT_TRUE(Tells(input, "Cálculo", row)) << row.subject;
    }
}

} // namespace Merivane::Document
