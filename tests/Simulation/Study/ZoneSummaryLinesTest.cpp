#include <gtest/gtest.h>

#include "Simulation/Study/ZoneSummary.hpp"
#include "SummarySamples.hpp"

namespace Merivane::Simulation {
namespace {

using Lines = std::vector<std::string>;
using Tests::FullDrawing;
using Tests::PlainDrawing;

const std::string PlainHead = "Plano de trabalho a 0,75 m: Em 500 lx, Emin 300 lx, Emax 701 lx, U0 "
                              "0,60 (96 pontos)  [1] [2]";
const std::string Band = "Faixa de borda de 0,50 m junto às paredes fora das estatísticas (linha "
                         "tracejada na planta)  [2]";

/// A Zone whose glare is that of one model without any other word.
ZoneDrawing GlareDrawing(const TaskRow* task) {
    ZoneDrawing drawing = PlainDrawing();
    drawing.analysis.task = task;
    drawing.analysis.glare.hasUgr = true;
    drawing.analysis.glare.ugr = 17.34;
    drawing.analysis.glare.ceilingReflectance = 0.66;
    drawing.analysis.glare.wallReflectance = 0.41;
    drawing.analysis.glare.models = {Tests::TabularModel("Painel", 17.34)};
    return drawing;
}

TEST(ZoneSummaryLines, BeginWithThePlaneAndItsStatistics) {
    EXPECT_EQ(ZoneSummaryLines(PlainDrawing()), (Lines{PlainHead, Band}));
}

TEST(ZoneSummaryLines, NameTheEngineBehindThePoints) {
    ZoneDrawing drawing = PlainDrawing();
    drawing.engine = "Radiance";
    EXPECT_EQ(ZoneSummaryLines(drawing)[0],
              "Plano de trabalho a 0,75 m: Em 500 lx, Emin 300 lx, Emax 701 lx, U0 0,60 (96 "
              "pontos, motor Radiance)  [1] [2]");
}

TEST(ZoneSummaryLines, NameAPlaneThatIsNotTheWorkPlane) {
    ZoneDrawing drawing = PlainDrawing();
    drawing.planeName = "Parede 1";
    drawing.vertical = true;
    EXPECT_EQ(ZoneSummaryLines(drawing)[0], "Parede 1: Ev 500 lx, Emin 300 lx, Emax 701 lx, U0 "
                                            "0,60 (96 pontos)  [1] [2]");
}

TEST(ZoneSummaryLines, TellOfANarrowZoneThatItHasNoBand) {
    ZoneDrawing drawing = PlainDrawing();
    drawing.grid.narrow = true;
    const std::string narrow =
        "Zona estreita: sem faixa de borda, todos os pontos entram nas estatísticas  [2]";
    EXPECT_EQ(ZoneSummaryLines(drawing), (Lines{PlainHead, narrow}));
}

TEST(ZoneSummaryLines, TellNoBandWithoutAnOutline) {
    ZoneDrawing drawing = PlainDrawing();
    drawing.taskOutline.clear();
    EXPECT_EQ(ZoneSummaryLines(drawing), Lines{PlainHead});
}

const std::string Reading = "UGR: tabela CIE 117 lida na sala-padrão 4H x 8H (a Zona tem 3,90H x "
                            "8,40H), refletâncias 70/30/20 (as da sala: 66/41/20), H = 1,60 m  [4]";

TEST(ZoneSummaryLines, TellHowTheTableOfGlareWasRead) {
    TaskRow task;
    task.ugrLimit = 19; // the value itself stands in the verification
    EXPECT_EQ(ZoneSummaryLines(GlareDrawing(&task)), (Lines{PlainHead, Band, Reading}));
}

TEST(ZoneSummaryLines, TellAValueOfGlareThatHasNoLimit) {
    TaskRow task;
    EXPECT_EQ(
        ZoneSummaryLines(GlareDrawing(&task)),
        (Lines{PlainHead, Band, Reading, "UGR 17,3: a atividade não tem UGRL na norma  [4]"}));
    EXPECT_EQ(ZoneSummaryLines(GlareDrawing(nullptr)),
              (Lines{PlainHead, Band, Reading,
                     "UGR 17,3: sem atividade definida na Zona: sem comparação com o UGRL  [4]"}));
}

TEST(ZoneSummaryLines, SayNothingTwice) {
    ZoneDrawing drawing = GlareDrawing(nullptr);
    drawing.analysis.glare.notes = {
        Reading.substr(5, Reading.size() - 10),
        "UGR da instalação 17,3 - sem atividade definida na Zona: sem comparação com o UGRL"};
    EXPECT_EQ(ZoneSummaryLines(drawing).size(), 4U);
}

TEST(ZoneSummaryLines, TellAValueOfCie147OnlyAboveZero) {
    ZoneDrawing drawing = PlainDrawing();
    drawing.analysis.glare.hasSmallSourceUgr = true;
    EXPECT_EQ(ZoneSummaryLines(drawing).size(), 2U);
    drawing.analysis.glare.smallSourceUgr = 9.96;
    EXPECT_EQ(ZoneSummaryLines(drawing)[2],
              "Fonte pequena: pela CIE 147 o UGR seria < 10 (só informativo)  [4]");
}

TEST(ZoneSummaryLines, TellWhyThereIsNoGlareWithoutAMark) {
    ZoneDrawing drawing = PlainDrawing();
    drawing.analysis.glare.notes = {"UGR: nenhuma luminária Vantoro sobre a Zona."};
    EXPECT_EQ(ZoneSummaryLines(drawing)[2], "UGR: nenhuma luminária Vantoro sobre a Zona.");
}

TEST(ZoneSummaryLines, StandInTheOrderOfTheirMarks) {
    const std::string reading = "tabela CIE 117 lida na sala-padrão 4H x 8H (a Zona tem 3,90H x "
                                "8,40H), refletâncias 70/30/20 (as da sala: 66/41/20), H = 1,60 m";
    EXPECT_EQ(
        ZoneSummaryLines(FullDrawing()),
        (Lines{"Plano de trabalho a 0,75 m: Em 500 lx, Emin 300 lx, Emax 701 lx, U0 0,60 (96 "
               "pontos, motor Radiance)  [1] [2]",
               Band, "UGR: Painel: " + reading + "  [4]",
               "Fonte pequena: pela CIE 147 o UGR seria 21,0 (só informativo)  [4]",
               "Posições reais (só informativo, leiaute real): 1 meio das paredes, máx. UGR 14,2; "
               "1 observadores colocados: Mesa < 10  [4]",
               "Piso (só no 3D, sem verificação): Em 321 lx, U0 0,31  [5]",
               "Luminância para telas (limite 1000 cd/m²): a maior é de Painel (gama 65, C 90)  "
               "[7]",
               "Spot: " + reading,
               "Atenção (UGR): Painel: 70% da luz para cima - o metodo UGR nao vale acima de 65%",
               "Fita: Fita / linear contínua - o método tabular (luminárias em grade) não se "
               "aplica; use os observadores (Inserir observador UGR)"}));
}

} // namespace
} // namespace Merivane::Simulation
