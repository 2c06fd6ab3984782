#include <numbers>

#include <gtest/gtest.h>

#include "Catalog/Json.hpp"
#include "Document/IesReport.hpp"
#include "SceneTexts.hpp"
#include "Support/Places.hpp"

namespace Merivane::Document {

using Catalog::JsonKind;
using Catalog::JsonValue;

namespace {

std::string OpeningOf(double width, double length, double height, int version = 3, int units = 2) {
    Photometry::IesFile file;
    file.width = width;
    file.length = length;
    file.height = height;
    file.formatVersion = version;
    file.unitsType = units;
    return OpeningText(file);
}

} // namespace

TEST(IesReport, DerivesTheQuantitiesOfAFile) {
    const IesReport report = BuildIesReport("a.ies", Tests::UniformIes("[MANUFAC] S\xE3o\n"));
    EXPECT_TRUE(report.ok) << report.error;
    EXPECT_EQ(report.fileName, "a.ies");
    EXPECT_NEAR(report.flux, 4.0 * std::numbers::pi, 1e-9);
    EXPECT_EQ(report.peak, 1.0);
    EXPECT_EQ(report.halfAngle, -1.0); // it never falls to half
    EXPECT_EQ(FindKeyword(report.file, "MANUFAC"), "São");
    EXPECT_TRUE(report.warnings.empty());
}

TEST(IesReport, AFileThatIsNotOfTypeCHasNoFluxAndNoBeam) {
    const IesReport report = BuildIesReport(
        "b.ies", "IESNA:LM-63-2002\nTILT=NONE\n1 -1 2 3 1 2 1 1 2 0\n1 1 25\n-90 0 90\n0\n0 7 0\n");
    EXPECT_TRUE(report.ok) << report.error;
    EXPECT_EQ(report.flux, -1.0);
    EXPECT_EQ(report.halfAngle, -1.0);
    EXPECT_EQ(report.peak, 14.0);
    const JsonValue json = IesReportJson(report);
    EXPECT_EQ(json.Find("fluxo")->kind, JsonKind::Null);
    EXPECT_EQ(json.Find("semiangulo")->kind, JsonKind::Null);
    EXPECT_EQ(json.NumberOr("pico", 0), 14.0);
    EXPECT_EQ(json.StringOr("tipoFotometrico", ""), "B");
    EXPECT_EQ(json.StringOr("unidade", ""), "pés");
    EXPECT_EQ(IesReportLines(report)[1], "  Fluxo                 não calculado");
}

TEST(IesReport, TellsTheOpeningInWordsAndMetres) {
    EXPECT_EQ(OpeningOf(0, 0, 0), "ponto");
    EXPECT_EQ(OpeningOf(0.3, 1.2, 0), "retângulo, 1,200 x 0,300 m");
    EXPECT_EQ(OpeningOf(0.3, 1.2, 0.1), "caixa, 1,200 x 0,300 x 0,100 m");
    EXPECT_EQ(OpeningOf(-0.2, -0.2, 0), "disco, diâmetro 0,200 m");
    EXPECT_EQ(OpeningOf(-0.2, 0, 0, 0), "disco, diâmetro 0,200 m");
    EXPECT_EQ(OpeningOf(-0.2, -0.2, 0.3), "cilindro, diâmetro 0,200 m, altura 0,300 m");
    EXPECT_EQ(OpeningOf(-0.05, -0.05, -0.05), "esfera, diâmetro 0,050 m");
    EXPECT_EQ(OpeningOf(1, 2, 0, 3, 1), "retângulo, 0,610 x 0,305 m"); // feet
}

TEST(IesReport, WritesLinesForAPerson) {
    EXPECT_EQ(IesReportLines(BuildIesReport(
                  "a.ies", Tests::UniformIes("[LUMCAT] D-1\n[MORE] preto\ntexto livre\n") + "9\n")),
              (std::vector<std::string>{
                  "a.ies",
                  "  Fluxo                 12,6 lm",
                  "  Intensidade máxima    1,0 cd",
                  "  Semiângulo do facho   não se aplica",
                  "  Abertura luminosa     retângulo, 0,200 x 0,100 m",
                  "  Potência              25 W",
                  "  Formato               LM-63-2002",
                  "  Fotometria            tipo C",
                  "  Lâmpadas              1 de 1000 lm",
                  "  Multiplicador         1",
                  "  Fator de reator       1",
                  "  TILT                  nenhum",
                  "  Ângulos verticais     3 (0° a 180°)",
                  "  Ângulos horizontais   1 (0°)",
                  "  [LUMCAT]              D-1 preto",
                  "  Texto                 texto livre",
                  "  Aviso                 1 valor(es) depois da tabela de candela, ignorado(s)",
              }));
}

TEST(IesReport, WritesTheHeaderForAProgram) {
    const JsonValue json = IesReportJson(BuildIesReport(
        "a.ies", "IESNA91\n[TEST] 1\n[TEST] 2\n[MORE] 3\nlivre\nTILT=INCLUDE\n1\n2\n0 90\n1 0.9\n"
                 "2 1500 1.5 2 1 1 2 0.1 0.2 0.3\n0.95 1 40\n0 90\n0\n10 20\n"));
    EXPECT_TRUE(json.Find("ok")->boolean);
    EXPECT_EQ(json.Find("erro")->kind, JsonKind::Null);
    EXPECT_EQ(json.StringOr("arquivo", ""), "a.ies");
    EXPECT_EQ(json.StringOr("formato", ""), "LM-63-1991");
    ASSERT_EQ(json.Find("palavrasChave")->items.size(), 2U);
    EXPECT_EQ(json.Find("palavrasChave")->items[1].StringOr("chave", ""), "TEST");
    EXPECT_EQ(json.Find("palavrasChave")->items[1].StringOr("valor", ""), "2\n3");
    EXPECT_EQ(json.Find("outrasLinhas")->items[0].text, "livre");
    EXPECT_EQ(json.Find("tilt")->NumberOr("geometria", 0), 1.0);
    EXPECT_EQ(json.Find("tilt")->Find("fatores")->items[1].number, 0.9);
    EXPECT_EQ(json.NumberOr("lampadas", 0), 2.0);
    EXPECT_EQ(json.NumberOr("lumensPorLampada", 0), 1500.0);
    EXPECT_EQ(json.NumberOr("multiplicador", 0), 1.5);
    EXPECT_EQ(json.NumberOr("largura", 0), 0.1);
    EXPECT_EQ(json.NumberOr("comprimento", 0), 0.2);
    EXPECT_EQ(json.NumberOr("altura", 0), 0.3);
    EXPECT_EQ(json.NumberOr("fatorDeReator", 0), 0.95);
    EXPECT_EQ(json.NumberOr("campoReservado", 0), 1.0);
    EXPECT_EQ(json.NumberOr("potencia", 0), 40.0);
    EXPECT_EQ(json.Find("angulosVerticais")->items[1].number, 90.0);
    EXPECT_EQ(json.NumberOr("pico", 0), 30.0);
}

TEST(IesReport, ARefusedFileTellsTheReadersWords) {
    const IesReport report = BuildIesReport("r.ies", "TILT=NONE\n1 x\xE7\n");
    EXPECT_FALSE(report.ok);
    EXPECT_EQ(report.error, "valor nao numerico \"xç\" em lumens por lampada");
    EXPECT_EQ(IesReportLines(report),
              (std::vector<std::string>{"r.ies", "  Recusado              " + report.error}));
    const JsonValue json = IesReportJson(report);
    EXPECT_FALSE(json.Find("ok")->boolean);
    EXPECT_EQ(json.StringOr("erro", ""), report.error);
    EXPECT_EQ(json.Find("fluxo"), nullptr);
}

TEST(IesReport, AFileThatCannotBeReadIsNotOk) {
    const Tests::TemporaryFolder folder;
    EXPECT_EQ(ReadIesReport((folder.Path() / "nada.ies").string()).error,
              "o arquivo não existe ou não pode ser lido");
    Tests::WriteBytes(folder.Path() / "a.ies", Tests::UniformIes());
    EXPECT_TRUE(ReadIesReport((folder.Path() / "a.ies").string()).ok);
}

} // namespace Merivane::Document
