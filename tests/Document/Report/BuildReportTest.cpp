#include <gtest/gtest.h>

#include "Document/Report/BuildReport.hpp"
#include "Document/Report/ReportZone.hpp"
#include "ReportSamples.hpp"

namespace Merivane::Document {

namespace {

std::vector<std::string> Titles(const Report& report) {
    std::vector<std::string> titles;
    for (const ReportSection& section : report.sections) {
        titles.push_back(section.title);
    }
    return titles;
}

const ReportSection& SectionOf(const Report& report, const std::string& title) {
    for (const ReportSection& section : report.sections) {
        if (section.title == title) {
            return section;
        }
    }
    ADD_FAILURE() << title;
    return report.sections.front();
}

/// The texts of a row, parted by "|".
std::string RowText(const ReportRow& row) {
    std::string text;
    for (const ReportCell& cell : row) {
        text += (&cell == &row.front() ? "" : "|") + cell.text;
    }
    return text;
}

bool HasRow(const std::vector<ReportBlock>& blocks, const std::string& wanted) {
    for (const ReportBlock& block : blocks) {
        if (const auto* table = std::get_if<ReportTable>(&block)) {
            for (const ReportRow& row : table->rows) {
                if (RowText(row) == wanted) {
                    return true;
                }
            }
        }
    }
    return false;
}

std::string FactOf(const std::vector<ReportBlock>& blocks, const std::string& label) {
    for (const ReportBlock& block : blocks) {
        if (const auto* facts = std::get_if<ReportFacts>(&block)) {
            for (const ReportFact& fact : facts->facts) {
                if (fact.label == label) {
                    return fact.value;
                }
            }
        }
    }
    return "";
}

bool HasParagraph(const std::vector<ReportBlock>& blocks, const std::string& text) {
    for (const ReportBlock& block : blocks) {
        const auto* paragraph = std::get_if<ReportParagraph>(&block);
        if (paragraph != nullptr && paragraph->text == text) {
            return true;
        }
    }
    return false;
}

} // namespace

TEST(BuildReport, HasItsSectionsInTheOrderOfReading) {
    const Tests::ReportSample office = Tests::OfficeSample();
    const Report report = BuildReport(Tests::InputOf(office));
    EXPECT_EQ(report.title, "Relatório luminotécnico");
    EXPECT_EQ(report.subject, "Escritório Modelo");
    EXPECT_EQ(report.origin, "Vantoro 1.2.3");
    EXPECT_EQ(Titles(report), (std::vector<std::string>{
                                  "Valores adotados por falta de informação", "Avisos",
                                  "Planta com resultados", "Zonas", "Refletâncias", "Luminárias",
                                  "Motor e ajustes", "Versões", "Registro do cálculo"}));
}

TEST(BuildReport, TellsTheVerdictOfEachZoneAtAGlance) {
    const Tests::ReportSample office = Tests::OfficeSample();
    const Report report = BuildReport(Tests::InputOf(office));
    EXPECT_EQ(FactOf(report.front, "Data do cálculo"), "21/11/2026 20:15");
    EXPECT_EQ(FactOf(report.front, "Extensão"), "3 Zonas, 17 luminárias");
    EXPECT_EQ(FactOf(report.front, "Resultado"), "2 Zonas não atendem e 1 Zona sem verificação");
    EXPECT_TRUE(HasRow(report.front, "Escritório 2|Escrever, teclar, ler, processar dados|525 / "
                                     "900|0,89 / 0,70|18,8 / 19|NÃO ATENDE"));
    EXPECT_TRUE(HasRow(report.front, "Depósito|sem atividade|525|0,89|–|sem verificação"));
}

TEST(BuildReport, SetsAZoneApartOfWhichNothingCouldBeCompared) {
    Simulation::ZoneAnalysis analysis;
    EXPECT_EQ(VerdictCell(analysis).text, "sem verificação");
    Simulation::VerificationRow row{"Ra", "-", "≥ 80", false, false};
    analysis.verification.rows = {row};
    EXPECT_EQ(VerdictCell(analysis).text, "SEM DADO");
    EXPECT_EQ(VerdictCell(analysis).tone, ReportTone::NoData);
    row.hasData = true;
    row.passes = true;
    analysis.verification.rows.push_back(row);
    EXPECT_EQ(VerdictCell(analysis).text, "ATENDE");
    EXPECT_EQ(VerdictCell(analysis).tone, ReportTone::Met);
    analysis.verification.rows.back().passes = false;
    EXPECT_EQ(VerdictCell(analysis).text, "NÃO ATENDE");
    EXPECT_EQ(VerdictCell(analysis).tone, ReportTone::NotMet);
}

TEST(BuildReport, TellsEachZoneWithItsRowsAndItsPlanes) {
    const Tests::ReportSample office = Tests::OfficeSample();
    const Report report = BuildReport(Tests::InputOf(office));
    const std::vector<ReportBlock>& zones = SectionOf(report, "Zonas").blocks;
    EXPECT_EQ(FactOf(zones, "Ambiente"), "40,00 m², pé-direito 2,70 m, piso na cota 0,00 m");
    EXPECT_EQ(FactOf(zones, "Luminárias"),
              "8 luminárias, 320,0 W, 8,0 W/m² (1,52 W/m² por 100 lx)");
    EXPECT_EQ(FactOf(zones, "Fator de manutenção"), "0,80 (o menor das luminárias)");
    for (const char* row :
         {"Verificação – ABNT NBR ISO/CIE 8995-1:2013", "Iluminância Em|525 lx|≥ 500 lx|ATENDE",
          "Ofuscamento UGR|19,7|≤ 19|NÃO ATENDE", "RESULTADO|||NÃO ATENDE",
          "Recomendações – 4.2 e 4.8 (não entram no resultado)",
          "Fator de manutenção|0,80|≥ 0,70|ATENDE", "Superfícies – EN 12464-1 (referência)",
          "Paredes|100 lx|≥ 75 lx|ATENDE", "teto|100|100|100|1,00|345"}) {
        EXPECT_TRUE(HasRow(zones, row)) << row;
    }
    EXPECT_TRUE(HasParagraph(
        zones, "Luminância para telas (limite 1000 cd/m²): a maior é de Painel (gama 65, C 0)"));
}

TEST(BuildReport, TellsTheTermsOfTheObserverWhoSeesMostGlare) {
    const Tests::ReportSample office = Tests::OfficeSample();
    const Report report = BuildReport(Tests::InputOf(office));
    const std::vector<ReportBlock>& zones = SectionOf(report, "Zonas").blocks;
    EXPECT_TRUE(HasRow(zones, "meio da parede x = 0,00, olhando ao longo de X|0,01; 2,50; "
                              "1,20|22,2|19,9|8"));
    EXPECT_TRUE(HasRow(zones, "Painel em 3,00; 1,25; 2,70|3,57|2838|11,858|2,83|11893,2|25,3 %"));
    EXPECT_TRUE(HasRow(zones, "2 outras fontes|||||4542,4|9,7 %"));
    EXPECT_TRUE(HasRow(zones, "soma|||||47058,9|"));
    EXPECT_TRUE(HasParagraph(zones, "UGR na sala de referência 4H x 8H: 19,9"));
}

TEST(BuildReport, SaysNothingOfGlareThatWasNotAnalysed) {
    Tests::ReportSample office = Tests::OfficeSample();
    office.study.glare = false;
    const Report report = BuildReport(Tests::InputOf(office));
    for (const ReportBlock& block : SectionOf(report, "Zonas").blocks) {
        if (const auto* heading = std::get_if<ReportHeading>(&block)) {
            EXPECT_NE(heading->text, "Ofuscamento");
        }
    }
}

TEST(BuildReport, TellsReflectancesWithTheirOriginTheLargestFirst) {
    const Tests::ReportSample office = Tests::OfficeSample();
    ReportInput input = Tests::InputOf(office);
    const Report report = BuildReport(input);
    const ReportSection& section = SectionOf(report, "Refletâncias");
    const auto& table = std::get<ReportTable>(section.blocks.front());
    ASSERT_EQ(table.rows.size(), 4U);
    EXPECT_EQ(RowText(table.rows[0]), "Pintura branca|120,50|89 %|89 %|estimada pela cor");
    EXPECT_EQ(RowText(table.rows[1]),
              "(sem Superficie) piso|64,00|20 %|20 %|usual pela orientação");
    EXPECT_EQ(RowText(table.rows[2]), "Vidro claro|18,00|vidro: TL 60 %, RL 8/8 %|vidro: TL 60 %, "
                                      "RL 8/8 %|estimada pela cor");
    EXPECT_EQ(RowText(table.rows[3]),
              "Madeira <carvalho> & verniz|8,25|32 %|31 %|corrigida neste cálculo");
}

TEST(BuildReport, TellsTheMaterialsOfASceneAsTheyAreGiven) {
    Tests::ReportSample office = Tests::OfficeSample();
    office.study.materials = {{"Parede", 0.6, 0.6, 0.6}, {"Vidro", 0.8, 0.8, 0.8, true}};
    office.study.surfaces = {{0, {{0, 0, 0}, {2, 0, 0}, {2, 3, 0}, {0, 3, 0}}}};
    ReportInput input = Tests::InputOf(office);
    input.reflectances.clear();
    const Report report = BuildReport(input);
    const std::vector<ReportBlock>& blocks = SectionOf(report, "Refletâncias").blocks;
    EXPECT_TRUE(HasRow(blocks, "Parede|6,00|60 %|declarada na cena"));
    EXPECT_TRUE(HasRow(blocks, "Vidro|0,00|vidro: transmissividade 80 %|declarada na cena"));
}

TEST(BuildReport, TellsLuminairesByTypeWithTheirPower) {
    const Tests::ReportSample office = Tests::OfficeSample();
    const Report report = BuildReport(Tests::InputOf(office));
    const std::vector<ReportBlock>& blocks = SectionOf(report, "Luminárias").blocks;
    EXPECT_TRUE(HasRow(blocks, "Painel embutido 60 × 60|Oficina da Luz|LED 4000 K|90|0,70 a "
                               "0,80|16|3920|40|640,0"));
    EXPECT_TRUE(HasRow(blocks, "Spot de trilho|Oficina da Luz|LED 4000 K|–|0,80|1|3920|–|–"));
    EXPECT_TRUE(HasRow(blocks, "Total|||||17|||≥ 640,0"));
    EXPECT_TRUE(HasRow(blocks, "Escritório 2|32,00|8|320,0|10,0 W/m²|1,90"));
    EXPECT_TRUE(HasRow(blocks, "Depósito|12,00|1|–|–|–"));
}

TEST(BuildReport, TellsEngineVersionsAndTheWholeLog) {
    const Tests::ReportSample office = Tests::OfficeSample();
    const ReportInput input = Tests::InputOf(office);
    const Report report = BuildReport(input);
    EXPECT_EQ(FactOf(SectionOf(report, "Motor e ajustes").blocks, "Peso limite (-lw)"), "0,002");
    const std::vector<ReportBlock>& versions = SectionOf(report, "Versões").blocks;
    EXPECT_EQ(FactOf(versions, "Vantoro"), "1.2.3");
    EXPECT_EQ(FactOf(versions, "Radiance"), "RADIANCE 5.4a");
    EXPECT_EQ(FactOf(versions, "Formato do projeto"), "3");
    EXPECT_EQ(FactOf(versions, "Tempo de cálculo"), "12,3 s");
    EXPECT_EQ(std::get<ReportListing>(SectionOf(report, "Registro do cálculo").blocks[0]).lines,
              input.log);
    EXPECT_TRUE(HasParagraph(SectionOf(report, "Avisos").blocks, "Um aviso do cálculo."));
}

TEST(BuildReport, DoesNotTellATimeThatIsNotGiven) {
    Tests::ReportSample office = Tests::OfficeSample();
    office.run.seconds = 0.0;
    ReportInput input = Tests::InputOf(office);
    input.moment.clear();
    const Report report = BuildReport(input);
    EXPECT_EQ(FactOf(SectionOf(report, "Versões").blocks, "Tempo de cálculo"), "");
    EXPECT_EQ(FactOf(report.front, "Data do cálculo"), "");
}

TEST(BuildReport, StandsWithoutZonesWithoutPicturesAndWithoutLog) {
    const Tests::ReportSample empty = Tests::CalculateSample(R"({"formato": 1, "zonas": [],
        "luminarias": [], "pontos": [{"posicao": [0, 0, 1]}]})");
    ReportInput input{.study = empty.study,
                      .built = empty.built,
                      .result = empty.result,
                      .analyses = empty.analyses,
                      .run = empty.run};
    const Report report = BuildReport(input);
    EXPECT_EQ(report.subject, "Projeto sem nome");
    EXPECT_TRUE(HasParagraph(report.front, "Nenhuma Zona foi calculada."));
    EXPECT_TRUE(
        HasParagraph(SectionOf(report, "Luminárias").blocks, "Nenhuma luminária no cálculo."));
}

} // namespace Merivane::Document
