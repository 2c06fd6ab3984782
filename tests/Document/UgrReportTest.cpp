#include <algorithm>
#include <sstream>

#include <gtest/gtest.h>

#include "Document/UgrReport.hpp"
#include "Support/Places.hpp"
#include "UgrSamples.hpp"

namespace Merivane::Document {

namespace {

using Catalog::JsonKind;
using Catalog::JsonValue;

constexpr std::size_t ReferenceRow = 10; // 4H x 8H

UgrReport ReportOf(const std::string& text, double height = 2.0) {
    return BuildUgrReport(BuildIesReport("pasta/luz.ies", text), height);
}

double Worst(const ExplainedRoom& room, std::size_t first, std::size_t last) {
    double worst = 0.0;
    for (std::size_t k = first; k < last; ++k) {
        worst = std::max(worst, room.observers[k].result.ugr);
    }
    return worst;
}

} // namespace

TEST(UgrReport, HoldsTheTableOfAFile) {
    const UgrReport report = ReportOf(PanelIes());
    ASSERT_TRUE(report.ok) << report.error;
    EXPECT_EQ(report.error, "");
    EXPECT_EQ(report.luminaire, "Painel");
    EXPECT_EQ(report.product, "Exemplo · P-63 · luz.ies");
    EXPECT_EQ(report.height, 2.0);
    EXPECT_NEAR(report.flux, BuildIesReport("", PanelIes()).flux, 1e-9);
    EXPECT_EQ(report.upwardFlux, 0.0);
    EXPECT_TRUE(report.warnings.empty());
    const Simulation::UgrTableValues table =
        Simulation::UgrTable(UgrLuminaire(report), 2.0, TableOptions());
    EXPECT_EQ(report.table.crosswise, table.crosswise);
    EXPECT_EQ(report.table.lengthwise, table.lengthwise);
    EXPECT_GT(report.referenceUgr, 10.0);
    EXPECT_FALSE(report.isSmall);
}

TEST(UgrReport, TakesTheNameOfTheFileWhereTheHeaderHasNone) {
    std::string text = PanelIes();
    text.replace(text.find("[LUMINAIRE] Painel\n"), 19, "[LUMINAIRE] \n");
    EXPECT_EQ(ReportOf(text).luminaire, "luz");
    text.replace(text.find("[LUMINAIRE] \n"), 13, "[LUMINAIRE] A\n[MORE] B\n");
    EXPECT_EQ(ReportOf(text).luminaire, "A B");
}

TEST(UgrReport, RefusesWhatHasNoTable) {
    std::string typeB = PanelIes();
    typeB.replace(typeB.find("5 1 1 2"), 7, "5 1 2 2");
    std::string typeA = PanelIes();
    typeA.replace(typeA.find("5 1 1 2"), 7, "5 1 3 2");
    const std::string noOpening =
        "o IES não informa a abertura luminosa (largura x comprimento): sem luminância, sem UGR";
    struct Case {
        std::string text;
        std::string error;
    };
    const Case cases[] = {
        {"", "linha TILT= nao encontrada - nao parece um arquivo IES"},
        {typeB, "o método UGR precisa de fotometria do tipo C; a do arquivo é do tipo B"},
        {typeA, "o método UGR precisa de fotometria do tipo C; a do arquivo é do tipo A"},
        {OpeningIes("0.3 0.6 0", "0 0 0 0 0"),
         "a tabela de candela não tem luz: sem fluxo, sem UGR"},
        {OpeningIes("0 0 0"), noOpening},
        {OpeningIes("0.3 0 0"), noOpening},
        {OpeningIes("0.3 0 0.2"), noOpening}, // sides alone show nothing from below
    };
    for (const Case& c : cases) {
        const UgrReport report = ReportOf(c.text);
        EXPECT_FALSE(report.ok);
        EXPECT_EQ(report.error, c.error);
        const JsonValue json = UgrReportJson(report);
        EXPECT_EQ(json.StringOr("erro", ""), c.error);
        EXPECT_FALSE(json.Find("ok")->boolean);
        EXPECT_EQ(json.Find("transversal"), nullptr);
    }
    const Tests::TemporaryFolder folder;
    EXPECT_EQ(BuildUgrReport(ReadIesReport((folder.Path() / "falta.ies").string()), 2.0).error,
              "o arquivo não existe ou não pode ser lido");
}

TEST(UgrReport, TakesARoundOpeningByANegativeSide) {
    EXPECT_TRUE(ReportOf(OpeningIes("-0.3 -0.3 0")).ok);
    EXPECT_TRUE(ReportOf(OpeningIes("0 -0.3 0")).ok);
}

TEST(UgrReport, ASmallSourceHasAValueOfItsOwn) {
    const UgrReport under = ReportOf(OpeningIes("0.0499 0.1 0"));
    EXPECT_TRUE(under.isSmall);
    Simulation::GlareOptions options = TableOptions();
    options.smallSourceTerm = true;
    EXPECT_EQ(under.smallSourceUgr,
              Simulation::ReferenceRoomUgr(UgrLuminaire(under), 2.0, options));
    EXPECT_LT(under.smallSourceUgr, under.referenceUgr);
    EXPECT_EQ(UgrReportJson(under).NumberOr("fontePequena", 0), under.smallSourceUgr);

    // 0.005 m2 to the last digit.
    const UgrReport at = ReportOf(OpeningIes("0.005 1 0"));
    EXPECT_FALSE(at.isSmall);
    EXPECT_EQ(at.smallSourceUgr, 0.0);
    EXPECT_EQ(SmallSourceNote(at), "");
    EXPECT_EQ(UgrReportJson(at).Find("fontePequena")->kind, JsonKind::Null);
}

TEST(UgrReport, TellsOfASmallSource) {
    UgrReport report = MadeUpReport();
    report.isSmall = true;
    report.smallSourceUgr = 21.25;
    EXPECT_EQ(SmallSourceNote(report),
              "Fonte pequena (abertura luminosa menor que 0,005 m²): pela CIE 147 a sala de "
              "referência daria UGR 21,3 - só informativo; a tabela segue a CIE 117, como as dos "
              "fabricantes.");
    EXPECT_EQ(UgrReportLines(report).back(), SmallSourceNote(report));
}

TEST(UgrReport, WarnsOfLightThatGoesUp) {
    EXPECT_EQ(UpwardWarning(0.0), "");
    EXPECT_EQ(UpwardWarning(0.65), "");
    EXPECT_EQ(UpwardWarning(0.6501), "65% da luz para cima - o método UGR não vale acima de 65%");
    EXPECT_EQ(UpwardWarning(0.777), "78% da luz para cima - o método UGR não vale acima de 65%");
    const UgrReport report = ReportOf(OpeningIes("0.3 0.6 0", "100 50 0 500 900"));
    EXPECT_GT(report.upwardFlux, 0.65);
    ASSERT_EQ(report.warnings.size(), 1U);
    EXPECT_EQ(report.warnings[0], UpwardWarning(report.upwardFlux));
    EXPECT_EQ(UgrReportLines(report).back(), "Aviso: " + report.warnings[0]);
}

TEST(UgrReport, TellsTheFilesWarningsButNotThoseOfRadiance) {
    // An ellipse, which ies2rad does not build, and a number too many.
    const std::string text = OpeningIes("-0.3 -0.6 0") + " 7\n";
    EXPECT_EQ(BuildIesReport("", text).warnings.size(), 2U);
    EXPECT_EQ(ReportOf(text).warnings,
              (std::vector<std::string>{"1 valor(es) depois da tabela de candela, ignorado(s)"}));
}

TEST(UgrReport, TellsTheTableInAlignedColumns) {
    const std::vector<std::string> lines = UgrReportLines(MadeUpReport());
    ASSERT_EQ(lines.size(), 29U);
    EXPECT_EQ(lines[0], "Tabela UGR (método tabular, CIE 117): Painel");
    EXPECT_EQ(lines[1], "H = 2,00 m (luminárias acima do olho a 1,20 m), espaçamento 0,25 H, fluxo "
                        "inicial 3600 lm");
    EXPECT_EQ(lines[2], "");
    EXPECT_EQ(lines[3],
              "              visada transversal ao eixo da lâmpada     visada ao longo do "
              "eixo da lâmpada");
    EXPECT_EQ(lines[4], "teto                0,7    0,7    0,5    0,5    0,3        0,7    0,7    "
                        "0,5    0,5    0,3");
    EXPECT_EQ(lines[5], "paredes             0,5    0,3    0,5    0,3    0,3        0,5    0,3    "
                        "0,5    0,3    0,3");
    EXPECT_EQ(lines[6], "piso                0,2    0,2    0,2    0,2    0,2        0,2    0,2    "
                        "0,2    0,2    0,2");
    EXPECT_EQ(lines[7], "   X     Y");
    EXPECT_EQ(lines[8], "  2H    2H         10,0   10,1   10,2   10,3   10,4       < 10   < 10   < "
                        "10   < 10   < 10");
    EXPECT_EQ(lines[10], "  2H    4H         11,0   11,1   11,2   11,3   11,4       10,0   10,1   "
                         "10,2   10,3   10,4");
    EXPECT_EQ(lines[26], " 12H    8H         19,0   19,1   19,2   19,3   19,4       18,0   18,1   "
                         "18,2   18,3   18,4");
    EXPECT_EQ(lines[27], "");
    EXPECT_EQ(lines[28], "Sala de referência 4H x 8H (0,7 / 0,5 / 0,2), pior observador e sentido: "
                         "UGR 18,3");
}

TEST(UgrReport, GivesAProgramTheTableUnrounded) {
    UgrReport report = MadeUpReport();
    report.table.lengthwise[18][4] = 1.0 / 3.0;
    const JsonValue json = UgrReportJson(report);
    EXPECT_EQ(json.StringOr("arquivo", ""), "pasta/painel.ies");
    EXPECT_TRUE(json.Find("ok")->boolean);
    EXPECT_EQ(json.Find("erro")->kind, JsonKind::Null);
    EXPECT_TRUE(json.Find("avisos")->items.empty());
    EXPECT_EQ(json.StringOr("luminaria", ""), "Painel");
    EXPECT_EQ(json.NumberOr("altura", 0), 2.0);
    EXPECT_EQ(json.NumberOr("fluxo", 0), 3600.4);
    EXPECT_EQ(json.NumberOr("referencia", 0), 18.34);
    EXPECT_EQ(json.NumberOr("luzParaCima", -1), 0.0);
    const std::vector<JsonValue>& rooms = json.Find("salas")->items;
    ASSERT_EQ(rooms.size(), 19U);
    EXPECT_EQ(rooms[ReferenceRow].items.at(0).number, 4.0);
    EXPECT_EQ(rooms[ReferenceRow].items.at(1).number, 8.0);
    const std::vector<JsonValue>& sets = json.Find("refletancias")->items;
    ASSERT_EQ(sets.size(), 5U);
    EXPECT_EQ(sets[4].items.at(0).number, 0.3);
    EXPECT_EQ(sets[4].items.at(2).number, 0.2);
    for (const char* sight : {"transversal", "longitudinal"}) {
        ASSERT_EQ(json.Find(sight)->items.size(), 19U);
        ASSERT_EQ(json.Find(sight)->items[18].items.size(), 5U);
    }
    EXPECT_EQ(json.Find("transversal")->items[0].items[1].number, 10.1);
    EXPECT_EQ(json.Find("longitudinal")->items[18].items[4].number, 1.0 / 3.0);
}

TEST(UgrReport, WritesATableThatASpreadsheetOpens) {
    const std::string table = WriteUgrTable(MadeUpReport());
    EXPECT_TRUE(table.starts_with(
        "\xEF\xBB\xBFX/H;Y/H;transversal 0,7/0,5/0,2;transversal 0,7/0,3/0,2;"
        "transversal 0,5/0,5/0,2;transversal 0,5/0,3/0,2;transversal 0,3/0,3/0,2;"
        "ao longo 0,7/0,5/0,2;ao longo 0,7/0,3/0,2;ao longo 0,5/0,5/0,2;ao longo 0,5/0,3/0,2;"
        "ao longo 0,3/0,3/0,2\r\n"
        "2;2;10,00;10,10;10,20;10,30;10,40;9,00;9,10;9,20;9,30;9,40\r\n"))
        << table;
    EXPECT_TRUE(table.ends_with(
        "\r\n12;8;19,00;19,10;19,20;19,30;19,40;18,00;18,10;18,20;18,30;18,40\r\n"));
    EXPECT_EQ(std::count(table.begin(), table.end(), '\n'), 20);
}

TEST(UgrReport, ExplainsTheReferenceRoomObserverByObserver) {
    // Light that differs along and across the axis, so that the sights can't be taken for each
    // other.
    std::string text = PanelIes();
    text.replace(text.find("5 1 1 2"), 7, "5 2 1 2");
    text.replace(text.find("\n0\n900"), 0, "");
    text.replace(text.find("\n0\n"), 3, "\n0 90\n");
    text += "900 200 0 0 0\n";
    const UgrReport report = ReportOf(text);
    ASSERT_TRUE(report.ok) << report.error;
    const std::vector<ExplainedRoom> rooms = ExplainReferenceRoom(report);
    ASSERT_EQ(rooms.size(), 2U);
    EXPECT_EQ(rooms[0].title, "Sala de referência 4H x 8H, plano C0 ao longo de Y");
    EXPECT_EQ(rooms[1].title, "Sala de referência 4H x 8H, plano C0 ao longo de X");
    const char* labels[2][4] = {
        {"meio da parede y = 0, olhando ao longo de Y (visada transversal)",
         "meio da parede y = Y, olhando ao longo de Y (visada transversal)",
         "meio da parede x = 0, olhando ao longo de X (visada ao longo)",
         "meio da parede x = X, olhando ao longo de X (visada ao longo)"},
        {"meio da parede y = 0, olhando ao longo de Y (visada ao longo)",
         "meio da parede y = Y, olhando ao longo de Y (visada ao longo)",
         "meio da parede x = 0, olhando ao longo de X (visada transversal)",
         "meio da parede x = X, olhando ao longo de X (visada transversal)"}};
    for (std::size_t k = 0; k < 2; ++k) {
        ASSERT_EQ(rooms[k].observers.size(), 4U);
        EXPECT_EQ(rooms[k].lights.size(), 512U); // 16 x 32 at 0.25 H
        for (std::size_t seen = 0; seen < 4; ++seen) {
            EXPECT_EQ(rooms[k].observers[seen].observer.label, labels[k][seen]);
            EXPECT_EQ(rooms[k].observers[seen].terms.size(), 512U);
        }
    }
    EXPECT_EQ(rooms[0].lights[0].name, "Painel");
    EXPECT_NEAR(std::max(Worst(rooms[0], 0, 4), Worst(rooms[1], 0, 4)), report.referenceUgr, 0.005);
    EXPECT_NEAR(Worst(rooms[0], 0, 2), report.table.crosswise[ReferenceRow][0], 0.005);
    EXPECT_NEAR(Worst(rooms[1], 0, 2), report.table.lengthwise[ReferenceRow][0], 0.005);
    EXPECT_GT(std::abs(Worst(rooms[0], 0, 2) - Worst(rooms[1], 0, 2)), 0.5);
}

} // namespace Merivane::Document
