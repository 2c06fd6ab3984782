#include <gtest/gtest.h>

#include "Document/PlanSummary.hpp"
#include "Document/PlanVerification.hpp"
#include "PlanSamples.hpp"

namespace Merivane::Document {
namespace {

using Drawing::TextRun;
using Drawing::TextWeight;
using Simulation::VerificationKind;
using Simulation::VerificationRow;

VerificationRow Row(const std::string& criterion, bool passes,
                    VerificationKind kind = VerificationKind::Requirement) {
    return {criterion, "480 lx", "≥ 500 lx", true, passes, kind};
}

VerificationRow WithoutData(const std::string& criterion) {
    return {criterion, "-", "≥ 80", false, false, VerificationKind::Requirement};
}

PlanVerdict VerdictOf(const std::vector<VerificationRow>& rows) {
    PlanVerdict verdict;
    verdict.activity = "Escrever, teclar, ler, processar dados";
    verdict.standard = "ABNT NBR ISO/CIE 8995-1:2013";
    verdict.rows = rows;
    return verdict;
}

PlanZone ZoneWith(const PlanVerdict& verdict) {
    PlanZone zone;
    zone.name = "Sala";
    zone.statistics = {1234, 499.5, 203.4, 20398.2, 0.695};
    zone.verdict = verdict;
    return zone;
}

Drawing::DisplayList Summary(const PlanVerdict& verdict) {
    const SheetBlock block = BuildSummaryBlock(ZoneWith(verdict));
    return {"", block.width, block.height, {{"", block.elements}}};
}

/// The heights of these texts on the sheet, from the head down.
std::vector<double> Drops(const Drawing::DisplayList& list, const std::vector<std::string>& texts) {
    std::vector<double> drops;
    drops.reserve(texts.size());
    for (const std::string& text : texts) {
        drops.push_back(-FindText(list, text).position.y);
    }
    return drops;
}

TEST(PlanVerification, TellsEachCriterionInARowOfFourColumns) {
    const Drawing::DisplayList list = Summary(VerdictOf({Row("Iluminância Em", false)}));
    const std::vector<std::string> heads = {"Critério", "Calculado", "Exigido", "Situação"};
    const std::vector<std::string> cells = {"Iluminância Em", "480 lx", "≥ 500 lx"};
    for (std::size_t i = 0; i < heads.size(); ++i) {
        EXPECT_EQ(FindText(list, heads[i]).weight, TextWeight::Bold);
        EXPECT_EQ(FindText(list, heads[i]).height, 2.4);
    }
    for (std::size_t i = 0; i < cells.size(); ++i) {
        EXPECT_EQ(FindText(list, cells[i]).position.x, FindText(list, heads[i]).position.x);
        EXPECT_EQ(FindText(list, cells[i]).position.y, FindText(list, cells[0]).position.y);
        EXPECT_EQ(FindText(list, cells[i]).height, 2.4);
    }
    const TextRun heading = FindText(list, "Verificação  —  ABNT NBR ISO/CIE 8995-1:2013");
    EXPECT_EQ(heading.weight, TextWeight::Bold);
    EXPECT_EQ(heading.height, 2.4);
    EXPECT_EQ(CountText(list, "NÃO ATENDE"), 2U); // the row and the result
}

TEST(PlanVerification, ColoursTheStates) {
    EXPECT_GT(StateColor(Row("a", true)).green, StateColor(Row("a", true)).red);
    EXPECT_GT(StateColor(Row("a", false)).red, StateColor(Row("a", false)).green);
    EXPECT_EQ(StateColor(WithoutData("a")), Drawing::Black);
    const Drawing::DisplayList list = Summary(VerdictOf({Row("a", true), WithoutData("b")}));
    EXPECT_EQ(FindText(list, "ATENDE").color, StateColor(Row("a", true)));
    EXPECT_EQ(FindText(list, "SEM DADO").color, Drawing::Black);
}

TEST(PlanVerification, ClosesWithTheResult) {
    for (const bool passes : {true, false}) {
        const Drawing::DisplayList list =
            Summary(VerdictOf({Row("a", true), Row("b", passes), WithoutData("c")}));
        const TextRun name = FindText(list, "RESULTADO");
        EXPECT_EQ(name.weight, TextWeight::Bold);
        EXPECT_EQ(name.height, 2.4);
        const std::string state = passes ? "ATENDE" : "NÃO ATENDE";
        bool found = false;
        for (const TextRun& run : ElementsOf<TextRun>(list)) {
            found = found || (run.text == state && run.position.y == name.position.y &&
                              run.weight == TextWeight::Bold);
        }
        EXPECT_TRUE(found);
    }
}

TEST(PlanVerification, RemarksOnMissingDataWhereTheResultIsAPass) {
    const std::string remark =
        "Itens SEM DADO não entram no resultado: complete-os (ver Folha de Trabalho).";
    EXPECT_EQ(FindText(Summary(VerdictOf({Row("a", true), WithoutData("b")})), remark).height, 1.8);
    EXPECT_EQ(CountText(Summary(VerdictOf({Row("a", false), WithoutData("b")})), remark), 0U);
    EXPECT_EQ(CountText(Summary(VerdictOf({Row("a", true)})), remark), 0U);
}

TEST(PlanVerification, TellsRecommendationsApart) {
    const std::string heading = "Recomendações  —  4.2 e 4.8 (não entram no resultado)";
    const Drawing::DisplayList list =
        Summary(VerdictOf({Row("a", true), Row("b", false, VerificationKind::Recommendation)}));
    EXPECT_EQ(Drops(list, {"a", "RESULTADO"}) < Drops(list, {heading, "b"}), true);
    EXPECT_EQ(CountText(list, "NÃO ATENDE"), 1U); // the recommendation alone
    EXPECT_EQ(CountText(Summary(VerdictOf({Row("a", true)})), heading), 0U);
}

TEST(PlanVerification, KeepsTheOrderOfTheSummary) {
    PlanVerdict verdict =
        VerdictOf({Row("a", true), Row("b", true, VerificationKind::Recommendation)});
    verdict.activity = "Ler";
    verdict.notes = {"UGR 17,3"};
    verdict.surfaces = {Row("Teto", true, VerificationKind::Recommendation)};
    const std::vector<double> drops =
        Drops(Summary(verdict), {"Sala  —  Ler", "a", "RESULTADO", "b", "Emin", "UGR 17,3",
                                 "Superfícies  —  EN 12464-1 (referência)", "Teto"});
    EXPECT_TRUE(std::is_sorted(drops.begin(), drops.end()));
}

TEST(PlanVerification, SaysThatAZoneHasNoActivity) {
    const Drawing::DisplayList list = Summary({});
    EXPECT_EQ(FindText(list, "Sala").height, 3.2);
    EXPECT_EQ(FindText(list, "Sala:   Em 500 lx   U0 0,70").height, 2.8);
    EXPECT_EQ(CountText(list, "sem atividade definida na Zona: sem"), 1U);
    EXPECT_EQ(CountText(list, "verificação"), 1U);
    EXPECT_EQ(CountText(list, "RESULTADO"), 0U);
    EXPECT_EQ(list.width, ColumnWidth);
}

TEST(PlanVerification, NothingOverflowsItsColumnOrCoversItsNeighbour) {
    const std::string huge = "123456789012 cd/m²";
    PlanVerdict verdict =
        VerdictOf({Row("Iluminância Em", false),
                   Row("Uniformidade U0", true),
                   Row("Entorno imediato Em", true),
                   WithoutData("Reprodução Ra"),
                   {huge, huge, huge, true, false, VerificationKind::Requirement},
                   Row("Fator de manutenção", true, VerificationKind::Recommendation)});
    verdict.surfaces = {Row("Paredes U0", false, VerificationKind::Recommendation)};
    verdict.notes = {std::string(400, 'm'), "UGR 17,3 (UGRL 19): tabela CIE 117, sala-padrão 4H x "
                                            "8H, refletâncias 70/50/20, H 1,60 m, visada "
                                            "transversal, Painel Plano 600"};
    for (const std::string activity : {"Escrever", "Locais de trabalho e zonas em cervejarias, "
                                                   "maltagem, lavagem, enchimento de barris"}) {
        verdict.activity = activity;
        const Drawing::DisplayList list = Summary(verdict);
        EXPECT_EQ(list.width, VerificationWidth);
        EXPECT_EQ(OverlappingTexts(list), "");
        for (const TextRun& run : ElementsOf<TextRun>(list)) {
            EXPECT_LE(TextBounds(run).right, list.width + 0.01) << run.text;
            EXPECT_GE(TextBounds(run).bottom, -list.height) << run.text;
        }
    }
}

} // namespace
} // namespace Merivane::Document
