#include <gtest/gtest.h>

#include "Simulation/Study/GlareSummary.hpp"

namespace Merivane::Simulation {
namespace {

using Lines = std::vector<std::string>;

ModelGlare Model(const std::string& name, double ugr) {
    ModelGlare model;
    model.name = name;
    model.height = 1.6;
    model.tabular = {ugr, 4.0, 8.0, 3.9, 8.4, 1, true};
    return model;
}

ZoneAnalysis AnalysisOf(const std::vector<ModelGlare>& models) {
    ZoneAnalysis analysis;
    analysis.glare.models = models;
    for (const ModelGlare& model : models) {
        if (model.omission == TabularOmission::None) {
            analysis.glare.hasUgr = true;
            analysis.glare.ugr = std::max(analysis.glare.ugr, model.tabular.ugr);
        }
    }
    analysis.glare.referenceUgr = 18.94;
    analysis.glare.ceilingReflectance = 0.66;
    analysis.glare.wallReflectance = 0.41;
    return analysis;
}

ObserverGlareRecord Seen(const std::string& label, bool placed, bool valid, double ugr) {
    ObserverGlareRecord record;
    record.observer.observer.label = label;
    record.observer.placed = placed;
    record.result.valid = valid;
    record.result.ugr = ugr;
    return record;
}

TEST(GlareSummary, TellsTheWorstModelAndHowItsTableWasRead) {
    EXPECT_EQ(GlareSummary(AnalysisOf({Model("Spot", 12.0), Model("Painel", 17.34)})),
              (Lines{"UGR 17,3: Painel: tabela CIE 117 lida na sala-padrão 4H x 8H (a Zona tem "
                     "3,90H x 8,40H), refletâncias 70/30/20 (as da sala: 66/41/20), H = 1,60 m",
                     "UGR na sala de referência 4H x 8H: 18,9"}));
}

TEST(GlareSummary, TellsTheLimitOfTheActivity) {
    TaskRow task;
    ZoneAnalysis analysis = AnalysisOf({Model("Painel", 9.4)});
    analysis.task = &task;
    EXPECT_TRUE(GlareSummary(analysis)[0].starts_with(
        "UGR < 10 (a atividade não tem UGRL na norma): tabela CIE 117 lida"));
    task.ugrLimit = 19;
    EXPECT_TRUE(GlareSummary(analysis)[0].starts_with("UGR < 10 (UGRL 19): tabela CIE 117 lida"));
}

TEST(GlareSummary, TellsWhyThereIsNoValue) {
    struct Case {
        TabularOmission omission;
        std::string line;
    };
    const Case cases[] = {
        {TabularOmission::Linear, "UGR, Fita / linear contínua - o método tabular (luminárias em "
                                  "grade) não se aplica; use os observadores (Inserir observador "
                                  "UGR)"},
        {TabularOmission::BelowEye,
         "UGR, Perfil: abaixo do olho (H 1,60 m), fora do método tabular"},
        {TabularOmission::NoOpening, "UGR, Perfil: o IES não informa a abertura luminosa (largura "
                                     "x comprimento) - UGR sem luminância"},
    };
    for (const Case& c : cases) {
        ModelGlare model = Model("Perfil", 0.0);
        model.omission = c.omission;
        EXPECT_EQ(GlareSummary(AnalysisOf({model})), Lines{c.line});
    }
    ZoneAnalysis dark = AnalysisOf({});
    dark.glare.notes = {"UGR: nenhuma luminária Vantoro sobre a Zona."};
    EXPECT_EQ(GlareSummary(dark), dark.glare.notes);
}

TEST(GlareSummary, TellsSmallSources) {
    ZoneAnalysis analysis = AnalysisOf({Model("Spot", 12.0)});
    analysis.glare.hasSmallSourceUgr = true;
    analysis.glare.smallSourceUgr = 21.04;
    EXPECT_EQ(GlareSummary(analysis)[2],
              "Fonte pequena: pela CIE 147 o UGR seria 21,0 (só informativo)");
    analysis.glare.smallSourceUgr = 0.0;
    EXPECT_EQ(GlareSummary(analysis).size(), 2U);
}

TEST(GlareSummary, TellsTheObserversOfTheRealLayout) {
    ZoneAnalysis analysis = AnalysisOf({Model("Spot", 12.0)});
    analysis.glare.observers = {Seen("parede 1", false, true, 14.2), Seen("Mesa", true, true, 9.0)};
    EXPECT_EQ(GlareSummary(analysis)[2],
              "Posições reais (só informativo, leiaute real): 1 meio das paredes, máx. UGR 14,2; 1 "
              "observadores colocados: Mesa < 10");
}

} // namespace
} // namespace Merivane::Simulation
