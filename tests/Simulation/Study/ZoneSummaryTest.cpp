#include <algorithm>
#include <numeric>

#include <gtest/gtest.h>

#include "Simulation/Study/TextExtent.hpp"
#include "Simulation/Study/ZoneSummary.hpp"
#include "SummarySamples.hpp"

namespace Merivane::Simulation {
namespace {

using Paragraphs = std::vector<SummaryParagraph>;
using Tests::FullDrawing;
using Tests::PlainDrawing;

std::string TextOf(const SummaryParagraph& paragraph) {
    return std::accumulate(
        paragraph.texts.begin(), paragraph.texts.end(), std::string(),
        [](const std::string& all, const SummaryText& part) { return all + part.text; });
}

bool IsRule(const SummaryParagraph& paragraph) {
    return TextOf(paragraph).starts_with("——");
}

/// The summary's lines as read: height, "b" for bold, text with "|" for tabs; rules as "---".
std::vector<std::string> Read(const Paragraphs& paragraphs) {
    std::vector<std::string> lines;
    for (const SummaryParagraph& paragraph : paragraphs) {
        if (IsRule(paragraph)) {
            lines.emplace_back("---");
            continue;
        }
        if (paragraph.texts.empty()) {
            lines.push_back(paragraph.blankHeight == 1.8 ? "blank 1.8" : "blank");
            continue;
        }
        std::string text = TextOf(paragraph);
        std::replace(text.begin(), text.end(), '\t', '|');
        const SummaryText& first = paragraph.texts.front();
        lines.push_back(std::to_string(first.height).substr(0, 3) + (first.bold ? "b " : " ") +
                        text);
    }
    return lines;
}

const SummaryParagraph& Find(const Paragraphs& paragraphs, const std::string& beginning) {
    static const SummaryParagraph None;
    const auto found = std::find_if(paragraphs.begin(), paragraphs.end(), [&](const auto& one) {
        return TextOf(one).starts_with(beginning);
    });
    return found != paragraphs.end() ? *found : None;
}

TEST(BuildZoneSummary, TellsAZoneWithoutActivityInPlainWords) {
    const std::vector<std::string> lines = Read(BuildZoneSummary(PlainDrawing()));
    EXPECT_EQ(lines, (std::vector<std::string>{
                         "3.2b Sala 1", "blank 1.8", "2.8 Sala 1:   Em 500 lx   U0 0,60",
                         "2.4 sem atividade definida na Zona: sem verificação",
                         "2.4 Plano de trabalho a 0,75 m: Em 500 lx, Emin 300 lx, Emax 701 lx, U0 "
                         "0,60 (96 pontos)  [1] [2]",
                         "2.4 Faixa de borda de 0,50 m junto às paredes fora das estatísticas "
                         "(linha tracejada na planta)  [2]"}));
}

TEST(BuildZoneSummary, CallsTheMeanOfAVerticalPlaneEv) {
    ZoneDrawing drawing = PlainDrawing();
    drawing.vertical = true;
    EXPECT_EQ(Read(BuildZoneSummary(drawing))[2], "2.8 Sala 1:   Ev 500 lx   U0 0,60");
}

TEST(BuildZoneSummary, TellsTheVerificationThenTheLinesThenTheSurfaces) {
    const std::vector<std::string> lines = Read(BuildZoneSummary(FullDrawing()));
    const std::vector<std::string> head = {
        "3.2b Sala 1  —  " + FullDrawing().analysis.task->activity,
        "blank 1.8",
        "2.4b Verificação  —  ABNT NBR ISO/CIE 8995-1:2013",
        "2.4b Critério|Calculado|Exigido|Situação",
        "---",
        "2.4 Iluminância Em|500 lx|≥ 500 lx|ATENDE",
        "---",
        "2.4 Uniformidade U0|0,60|≥ 0,70|NÃO ATENDE",
        "---",
        "2.4 Reprodução Ra (IRC)|-|≥ 80|SEM DADO",
        "---",
        "2.4 Luminância (telas)|3400 cd/m²|≤ 1000 cd/m²|NÃO ATENDE",
        "---",
        "2.4b RESULTADO|NÃO ATENDE",
        "2.4b Recomendações  —  4.2 e 4.8 (não entram no resultado)",
        "2.4b Critério|Calculado|Exigido|Situação",
        "---",
        "2.4 Refletância paredes|0,41|0,30 a 0,80|ATENDE",
        "---"};
    const std::vector<std::string> tail = {"2.4b Superfícies  —  EN 12464-1 (referência)",
                                           "2.4b Critério|Calculado|Exigido|Situação",
                                           "---",
                                           "2.4 Teto|80 lx|≥ 50 lx|ATENDE",
                                           "---",
                                           "2.4 Teto U0|0,09|≥ 0,10|NÃO ATENDE",
                                           "---"};
    const std::size_t told = ZoneSummaryLines(FullDrawing()).size();
    ASSERT_EQ(lines.size(), head.size() + told + tail.size());
    const auto tailBegin = lines.end() - static_cast<std::ptrdiff_t>(tail.size());
    EXPECT_EQ(std::vector<std::string>(lines.begin(),
                                       lines.begin() + static_cast<std::ptrdiff_t>(head.size())),
              head);
    EXPECT_EQ(std::vector<std::string>(tailBegin, lines.end()), tail);
    EXPECT_EQ(lines[head.size()], "2.4 " + ZoneSummaryLines(FullDrawing())[0]);
    EXPECT_EQ(lines[head.size() + 1], "2.4 " + ZoneSummaryLines(FullDrawing())[1]);
}

TEST(BuildZoneSummary, NamesTheInternationalEdition) {
    ZoneDrawing drawing = FullDrawing();
    drawing.standard = ReferenceStandard::International;
    EXPECT_EQ(Read(BuildZoneSummary(drawing))[2], "2.4b Verificação  —  ISO/CIE 8995-1:2002");
}

TEST(BuildZoneSummary, InksStates) {
    const Paragraphs paragraphs = BuildZoneSummary(FullDrawing());
    const auto inkOf = [&](const std::string& beginning) {
        return Find(paragraphs, beginning).texts.at(1).ink;
    };
    EXPECT_EQ(inkOf("Iluminância Em"), SummaryInk::Met);
    EXPECT_EQ(inkOf("Uniformidade U0"), SummaryInk::NotMet);
    EXPECT_EQ(inkOf("Reprodução"), SummaryInk::Own);
    EXPECT_EQ(inkOf("RESULTADO"), SummaryInk::NotMet);
    EXPECT_EQ(inkOf("Critério"), SummaryInk::Own);
    EXPECT_TRUE(Find(paragraphs, "RESULTADO").texts.at(1).bold);
    EXPECT_EQ(Find(paragraphs, "Uniformidade U0").texts.at(0).ink, SummaryInk::Own);
}

TEST(BuildZoneSummary, RemarksMissingDataOnlyBesideAPass) {
    const std::string remark =
        "Itens SEM DADO não entram no resultado: complete-os (ver Folha de Trabalho).";
    ZoneDrawing drawing = FullDrawing();
    EXPECT_TRUE(Find(BuildZoneSummary(drawing), remark).texts.empty()); // fails
    std::vector<VerificationRow>& rows = drawing.analysis.verification.rows;
    rows[1].passes = true;
    rows[3].passes = true;
    const std::vector<std::string> lines = Read(BuildZoneSummary(drawing));
    const auto result = std::find(lines.begin(), lines.end(), "2.4b RESULTADO|ATENDE");
    ASSERT_NE(result, lines.end());
    EXPECT_EQ(*(result + 1), "1.8 " + remark);
    rows[2].hasData = true;
    rows[2].passes = true;
    EXPECT_TRUE(Find(BuildZoneSummary(drawing), remark).texts.empty()); // nothing is missing
}

TEST(BuildZoneSummary, LeavesOutTablesWithoutRows) {
    ZoneDrawing drawing = FullDrawing();
    drawing.analysis.verification.rows.resize(4);
    drawing.analysis.surfaces.clear();
    const Paragraphs paragraphs = BuildZoneSummary(drawing);
    EXPECT_TRUE(Find(paragraphs, "Recomendações").texts.empty());
    EXPECT_TRUE(Find(paragraphs, "Superfícies").texts.empty());
}

TEST(BuildZoneSummary, DoesNotCallAZoneUnverifiedThatOnlyHasNoPoints) {
    ZoneDrawing drawing = FullDrawing();
    drawing.analysis.verification.rows.clear();
    const Paragraphs paragraphs = BuildZoneSummary(drawing);
    EXPECT_TRUE(Find(paragraphs, "sem atividade").texts.empty());
    EXPECT_TRUE(Find(paragraphs, "Verificação").texts.empty());
}

TEST(BuildZoneSummary, GivesEveryTableOneSetOfColumnsThatHoldsItsTexts) {
    ZoneDrawing drawing = FullDrawing();
    drawing.analysis.surfaces[0].calculated = "123456789012345678 lx"; // the widest of all tables
    const Paragraphs paragraphs = BuildZoneSummary(drawing);
    const std::vector<double> stops = Find(paragraphs, "Critério").tabs;
    ASSERT_EQ(stops.size(), 3U);
    for (const SummaryParagraph& paragraph : paragraphs) {
        if (paragraph.texts.size() < 2 || TextOf(paragraph).starts_with("RESULTADO")) {
            continue;
        }
        EXPECT_EQ(paragraph.tabs, stops);
        double left = 0.0;
        std::size_t column = 0;
        std::string rest = paragraph.texts.front().text;
        for (std::size_t tab = rest.find('\t'); tab != std::string::npos; tab = rest.find('\t')) {
            const double end =
                left + EstimateTextWidth(rest.substr(0, tab), 2.4, paragraph.texts.front().bold);
            EXPECT_LT(end + 2.0, stops[column]) << TextOf(paragraph);
            left = stops[column++];
            rest.erase(0, tab + 1);
        }
    }
    EXPECT_EQ(Find(paragraphs, "RESULTADO").tabs, std::vector<double>{stops.back()});
}

TEST(BuildZoneSummary, RulesAsWideAsTheTable) {
    const Paragraphs paragraphs = BuildZoneSummary(FullDrawing());
    const SummaryParagraph& row = Find(paragraphs, "Uniformidade U0");
    const double table = row.tabs.back() + EstimateTextWidth("NÃO ATENDE", 2.4, true);
    const SummaryParagraph& rule = Find(paragraphs, "——");
    ASSERT_EQ(rule.texts.size(), 1U);
    const double width = EstimateTextWidth(rule.texts[0].text, rule.texts[0].height);
    EXPECT_LE(width, table);
    EXPECT_GT(width, table - 2.0);
}

TEST(BuildZoneSummary, KeepsNamesOnOneLine) {
    ZoneDrawing drawing = PlainDrawing();
    drawing.zone.name = "Sala\t1\nfundos";
    EXPECT_EQ(Read(BuildZoneSummary(drawing))[0], "3.2b Sala 1 fundos");
}

SummaryParagraph Line(const std::string& text, double height = 2.4) {
    return {{{text, height, false, SummaryInk::Own}}, {}, 1.8};
}

TEST(MeasureSummary, IsAsWideAsTheLongestLineAndAsHighAsAllLines) {
    const SummaryExtent extent = MeasureSummary({Line("Sala 1", 3.2), {}, Line("Em 500 lx")});
    EXPECT_GE(extent.width, EstimateTextWidth("Em 500 lx", 2.4));
    EXPECT_LE(extent.width, EstimateTextWidth("Em 500 lx", 2.4) + 2.0);
    EXPECT_DOUBLE_EQ(extent.height, TextLinePitch(3.2) + TextLinePitch(1.8) + TextLinePitch(2.4));
}

TEST(MeasureSummary, BreaksLongParagraphs) {
    std::string text = "palavra";
    while (EstimateTextWidth(text, 2.4) < 300.0) {
        text += " palavra";
    }
    const SummaryExtent extent = MeasureSummary({Line(text)});
    EXPECT_NEAR(extent.width, 121.0, 1e-9);
    EXPECT_DOUBLE_EQ(extent.height, 3 * TextLinePitch(2.4));
}

TEST(MeasureSummary, NeverBreaksARowOfATable) {
    SummaryParagraph row = Line("Critério\tCalculado");
    row.tabs = {150.0};
    const SummaryExtent extent = MeasureSummary({row});
    EXPECT_GE(extent.width, 150.0 + EstimateTextWidth("Calculado", 2.4));
    EXPECT_DOUBLE_EQ(extent.height, TextLinePitch(2.4));
}

TEST(MeasureSummary, TakesAWordThatIsWiderThanTheBoxForOneLine) {
    EXPECT_DOUBLE_EQ(MeasureSummary({Line(std::string(200, 'W'))}).height, TextLinePitch(2.4));
}

TEST(MeasureSummary, IsNothingForNothing) {
    EXPECT_EQ(MeasureSummary({}).height, 0.0);
}

} // namespace
} // namespace Merivane::Simulation
