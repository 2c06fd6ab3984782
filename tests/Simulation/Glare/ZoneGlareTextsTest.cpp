#include <gtest/gtest.h>

#include "Simulation/Glare/ZoneGlareTexts.hpp"

namespace Merivane::Simulation {
namespace {

constexpr ReflectanceSet Room = {0.684, 0.456, 0.2};

ModelGlare Model() {
    ModelGlare model;
    model.name = "Painel Plano 600";
    model.count = 12;
    model.height = 1.554;
    model.tabular = {18.249, 4, 8, 3.8617, 7.7224, 1, false};
    model.referenceUgr = 19.06;
    model.upwardFlux = 0.703;
    return model;
}

ObserverGlareRecord Seen(const std::string& label, bool placed, bool valid, double ugr) {
    ObserverGlareRecord record;
    record.observer = {{1, 2, 4.2, 1, 0, label}, placed, 100};
    record.result.valid = valid;
    record.result.ugr = ugr;
    record.result.background = valid ? 31.856 : 0.0;
    record.result.sources = 7;
    return record;
}

TEST(ModelLogLine, TellsTheValueAndHowTheTableWasRead) {
    EXPECT_EQ(ModelLogLine(Model(), Room),
              "  UGR tabular, Painel Plano 600 (12 un., H 1,55 m): sala-padrao 4H x 8H (Zona "
              "3,86H x 7,72H), refletancias 70/30/20 (sala 68/46/20) 18,2 (visada ao longo); sala "
              "de referencia 4H x 8H 19,1");
    ModelGlare across = Model();
    across.tabular.crosswise = true;
    across.tabular.ugr = 9.2;
    across.tabular.roomX = 12;
    across.referenceUgr = 10.04;
    EXPECT_EQ(ModelLogLine(across, Room),
              "  UGR tabular, Painel Plano 600 (12 un., H 1,55 m): sala-padrao 12H x 8H (Zona "
              "3,86H x 7,72H), refletancias 70/30/20 (sala 68/46/20) < 10 (visada transversal); "
              "sala de referencia 4H x 8H 10,0");
}

TEST(ModelNote, TellsTheReading) {
    const std::string reading =
        "tabela CIE 117 lida na sala-padrão 4H x 8H (a Zona tem 3,86H x 7,72H), refletâncias "
        "70/30/20 (as da sala: 68/46/20), H = 1,55 m";
    EXPECT_EQ(ModelNote(Model(), Room, false), reading);
    EXPECT_EQ(ModelNote(Model(), Room, true), "Painel Plano 600: " + reading);
}

TEST(ModelTexts, SayWhyAModelIsLeftOut) {
    ModelGlare model = Model();
    model.height = -0.256;
    const std::string tail = " - o método tabular (luminárias em grade) não se aplica; use os "
                             "observadores (Inserir observador UGR)";
    struct Case {
        TabularOmission omission;
        std::string log;
        std::string note;
        std::string noteOfSeveral;
    };
    const Case cases[] = {
        {TabularOmission::Linear, "Painel Plano 600: fita / linear contínua" + tail,
         "Fita / linear contínua" + tail, "Painel Plano 600: Fita / linear contínua" + tail},
        {TabularOmission::BelowEye,
         "Painel Plano 600: abaixo do olho (H-0,26 m), fora do metodo tabular",
         "Painel Plano 600: abaixo do olho (H -0,26 m), fora do método tabular",
         "Painel Plano 600: abaixo do olho (H -0,26 m), fora do método tabular"},
        {TabularOmission::NoOpening,
         "Painel Plano 600: o IES nao informa a abertura luminosa (largura x comprimento) - UGR "
         "sem luminancia",
         "Painel Plano 600: o IES não informa a abertura luminosa (largura x comprimento) - UGR "
         "sem luminância",
         "Painel Plano 600: o IES não informa a abertura luminosa (largura x comprimento) - UGR "
         "sem luminância"},
    };
    for (const Case& c : cases) {
        model.omission = c.omission;
        EXPECT_EQ(ModelLogLine(model, Room), c.log);
        EXPECT_EQ(ModelNote(model, Room, false), c.note);
        EXPECT_EQ(ModelNote(model, Room, true), c.noteOfSeveral);
    }
}

TEST(UpwardFluxWarning, RoundsThePercentage) {
    EXPECT_EQ(UpwardFluxWarning(Model()),
              "Painel Plano 600: 70% da luz para cima - o metodo UGR nao vale acima de 65%");
    ModelGlare model = Model();
    model.upwardFlux = 0.705;
    EXPECT_EQ(UpwardFluxWarning(model),
              "Painel Plano 600: 71% da luz para cima - o metodo UGR nao vale acima de 65%");
}

TEST(ObserverLogLine, TellsMidWallAndPlacedOnesApart) {
    const std::string wall = "meio da parede y = 12,30, olhando ao longo de Y";
    EXPECT_EQ(
        ObserverLogLine(Seen(wall, false, true, 17.26), 3.0),
        "  UGR observador meio da parede y = 12,30, olhando ao longo de Y: UGR 17,3 (Lb 31,86 "
        "cd/m2, 7 luminaria(s) no campo de visao)");
    EXPECT_EQ(ObserverLogLine(Seen("Mesa 1", true, true, 9.1), 3.0),
              "  UGR observador colocado \"Mesa 1\" (olho a 1,20 m do piso): < 10 (Lb 31,86 cd/m2, "
              "7 luminaria(s) no campo de visao)");
    EXPECT_EQ(ObserverLogLine(Seen("Mesa 1", true, false, 0), 3.0),
              "  UGR observador colocado \"Mesa 1\" (olho a 1,20 m do piso): sem valor (Lb 0,00 "
              "cd/m2, 7 luminaria(s) no campo de visao)");
}

TEST(PositionsNote, TellsTheWorstAtTheWallsAndEveryPlacedOne) {
    const std::string head = "Posições reais (só informativo, leiaute real): ";
    EXPECT_EQ(PositionsNote({Seen("a", false, true, 15.1), Seen("b", false, true, 17.26),
                             Seen("c", false, false, 0), Seen("d", false, true, 12),
                             Seen("Mesa 1", true, true, 19.04), Seen("Mesa 2", true, true, 3),
                             Seen("Mesa 3", true, false, 0)}),
              head + "4 meio das paredes, máx. UGR 17,3; 3 observadores colocados: Mesa 1 19,0, "
                     "Mesa 2 < 10, Mesa 3 sem valor");
    EXPECT_EQ(PositionsNote({Seen("a", false, true, -3)}),
              head + "1 meio das paredes, máx. UGR < 10");
    EXPECT_EQ(PositionsNote({Seen("a", false, false, 0)}),
              head + "1 meio das paredes, máx. UGR sem valor");
    EXPECT_EQ(PositionsNote({Seen("Mesa", true, true, 21)}),
              head + "1 observadores colocados: Mesa 21,0");
    EXPECT_EQ(PositionsNote({}), "");
}

TEST(LimitLogLine, ComparesAsPrinted) {
    const auto line = [](const std::string& value, const std::string& state) {
        return "  UGR da instalacao " + value + " / UGRL (maximo da atividade) 19 - " + state;
    };
    EXPECT_EQ(LimitLogLine(18.7, 19), line("18,7", "atende"));
    EXPECT_EQ(LimitLogLine(19.0, 19), line("19,0", "atende"));
    EXPECT_EQ(LimitLogLine(19.04, 19), line("19,0", "atende"));
    EXPECT_EQ(LimitLogLine(19.05, 19), line("19,1", "NAO ATENDE"));
    EXPECT_EQ(LimitLogLine(9.94, 19), line("< 10", "atende"));
}

TEST(NoLimitText, TellsWhy) {
    EXPECT_EQ(NoLimitText(true), "a atividade não tem UGRL na norma");
    EXPECT_EQ(NoLimitText(false), "sem atividade definida na Zona: sem comparação com o UGRL");
}

} // namespace
} // namespace Merivane::Simulation
