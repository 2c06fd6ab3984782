#include <algorithm>
#include <random>

#include "Archicad/ResultDrawing.hpp"
#include "ResultSample.hpp"
#include "Simulation/ColorBands.hpp"
#include "Simulation/ColorScale.hpp"
#include "Simulation/Study/ZoneSummary.hpp"

namespace Merivane::Archicad {
namespace {

using Host::Coordinate;
using Host::ElementType;
using Tests::Lines;

class DrawnZone : public Tests::ResultTest {
protected:
    DrawnZone() { structure.scale = 100.0; }

    void DrawIt(const Simulation::ZoneDrawing& drawing) {
        Draw([&] { DrawZone({&drawing, 1, {20.0, 30.0}, {}}, options, structure, warnings); });
    }

    void DrawNothingButSummary() { options.fills = options.curves = options.values = false; }

    const Simulation::ZoneDrawing small = Tests::SmallDrawing();
};

TEST_F(DrawnZone, StandsOnItsFloorEachKindOnItsLayer) {
    options.values = true;
    DrawIt(small);
    EXPECT_EQ(ElementsOn({5}).size(), 2U + 2U + 2U); // curves, labels, limit with label
    EXPECT_EQ(ElementsOn({6}).size(), 1U);
    EXPECT_EQ(ElementsOn({7}).size(), 27U);
    EXPECT_EQ(ElementsOn({8}).size(), 1U);
    for (const Workbench::ProjectElement& element : Open().elements) {
        EXPECT_EQ(element.element.header.floorIndex, 1);
    }
    EXPECT_EQ(warnings, Lines{});
}

TEST_F(DrawnZone, HasAFillWithItsHolesInTheBandsColour) {
    options.colorScale = 2;
    DrawIt(small);
    const auto fills = Elements(ElementType::Hatch);
    ASSERT_EQ(fills.size(), 1U);
    const auto& hatch = std::get<Host::HatchData>(fills[0].element.data);
    const Simulation::RgbColor color = Simulation::BandColor(2, 1, 3);
    EXPECT_EQ(hatch.foreground, (Host::Colour{color.red, color.green, color.blue}));
    EXPECT_TRUE(hatch.hasForeground);
    EXPECT_EQ(hatch.fill, structure.solidFill);
    EXPECT_EQ(hatch.contourPen, 0);
    ASSERT_EQ(fills[0].memo.polygon.size(), 2U);
    EXPECT_EQ(fills[0].memo.polygon[0].vertices,
              (std::vector<Coordinate>{{0.5, 0.5}, {3.5, 0.5}, {3.5, 2.5}, {0.5, 2.5}}));
    EXPECT_EQ(fills[0].memo.polygon[1].vertices,
              (std::vector<Coordinate>{{2, 1}, {2, 2}, {3, 2}, {3, 1}}));
}

TEST_F(DrawnZone, TellsOnceThatTheProjectHasNoSolidFill) {
    structure.solidFill = {};
    DrawIt(small);
    DrawIt(small);
    EXPECT_TRUE(Elements(ElementType::Hatch).empty());
    EXPECT_EQ(warnings, (Lines{"mapa de cor falsa nao desenhado: o projeto nao tem um "
                               "Preenchimento solido"}));
    warnings.clear();
    options.fills = false;
    DrawIt(small);
    EXPECT_EQ(warnings, Lines{});
}

TEST_F(DrawnZone, HasItsCurvesAsPolylinesWithTheirLevels) {
    DrawIt(small);
    const auto lines = Elements(ElementType::PolyLine);
    ASSERT_EQ(lines.size(), 3U);
    const auto& curve = std::get<Host::PolyLineData>(lines[0].element.data);
    EXPECT_TRUE(curve.closed);
    EXPECT_EQ(curve.lineType, Host::AttributeIndex());
    EXPECT_EQ(lines[0].memo.polygon[0].vertices.size(), 7U); // the last point is the first
    EXPECT_EQ(TextsOn({5}), (Lines{"100 lx", "300 lx", "Limite da área de tarefa"}));
    const auto texts = ElementsOn({5});
    const auto& label = std::get<Host::TextData>(texts[2].element.data);
    EXPECT_EQ(label.size, 2.0);
    EXPECT_EQ(label.anchor, Host::TextAnchor::Middle);
    EXPECT_EQ(label.angle, 0.0);
    EXPECT_TRUE(label.opaque); // else its curve would cross it out
}

TEST_F(DrawnZone, LeavesAnOpenCurveOpen) {
    Simulation::ZoneDrawing drawing = small;
    drawing.curves[0].closed = false;
    drawing.curves[0].points.pop_back();
    DrawIt(drawing);
    const auto lines = Elements(ElementType::PolyLine);
    EXPECT_FALSE(std::get<Host::PolyLineData>(lines[0].element.data).closed);
    EXPECT_EQ(lines[0].memo.polygon[0].vertices.size(), 7U);
}

TEST_F(DrawnZone, CountsCurvesWithoutALabel) {
    Simulation::ZoneDrawing drawing = small;
    drawing.curves.push_back({500.0, {{1, 1}, {2, 1}, {2, 2}, {1, 1}}, true});
    DrawIt(drawing);
    EXPECT_EQ(warnings, (Lines{"1 curva(s) sem rotulo (pequenas demais ou sem espaco livre)"}));
    warnings.clear();
    options.curveLabels = false;
    DrawIt(drawing);
    EXPECT_EQ(warnings, Lines{});
}

TEST_F(DrawnZone, WritesNoLevelOnACurveThatTheHostRefuses) {
    options.fills = false;
    Workbench::FailCall("CreateElement", 1, Host::NotMine);
    DrawIt(small);
    EXPECT_EQ(TextsOn({5}), (Lines{"300 lx", "Limite da área de tarefa"}));
    EXPECT_EQ(warnings, (Lines{"1 elemento(s) de desenho nao puderam ser criados na zona Sala"}));
}

TEST_F(DrawnZone, HasNeitherCurvesNorLevelsWhereNoneAreWanted) {
    options.curves = false;
    DrawIt(small);
    EXPECT_EQ(TextsOn({5}), (Lines{"Limite da área de tarefa"}));
    EXPECT_EQ(Elements(ElementType::PolyLine).size(), 1U);
}

TEST_F(DrawnZone, HasItsLimitDashedWithItsLabelOverTheTop) {
    DrawNothingButSummary();
    DrawIt(small);
    const auto drawn = ElementsOn({5});
    ASSERT_EQ(drawn.size(), 2U);
    EXPECT_EQ(std::get<Host::PolyLineData>(drawn[0].element.data).lineType, structure.dashedLine);
    const auto& label = std::get<Host::TextData>(drawn[1].element.data);
    EXPECT_NEAR(label.position.x, 0.5 + 0.05, 1e-12);
    EXPECT_NEAR(label.position.y, 2.5 + 0.8 * 0.1, 1e-12); // 1:100
    EXPECT_EQ(label.size, 1.8);
    EXPECT_EQ(label.anchor, Host::TextAnchor::LeftBottom);
}

TEST_F(DrawnZone, TellsOnceThatTheLimitIsDrawnSolid) {
    structure.dashedLine = {};
    DrawIt(small);
    DrawIt(small);
    EXPECT_EQ(warnings,
              (Lines{"nao foi possivel criar o tipo de linha \"Vantoro - Tracejada\": limite da "
                     "faixa de borda desenhado continuo"}));
    EXPECT_EQ(Elements(ElementType::PolyLine).size(), 6U);
}

TEST_F(DrawnZone, WithoutLimitNeedsNoLineType) {
    structure.dashedLine = {};
    Simulation::ZoneDrawing drawing = small;
    drawing.taskOutline.clear();
    DrawIt(drawing);
    EXPECT_EQ(warnings, Lines{});
    EXPECT_EQ(TextsOn({5}), (Lines{"100 lx", "300 lx"}));
}

TEST_F(DrawnZone, HasItsSummaryWithNothingElse) {
    DrawNothingButSummary();
    Simulation::ZoneDrawing drawing = small;
    drawing.taskOutline.clear();
    DrawIt(drawing);
    ASSERT_EQ(Open().elements.size(), 1U);
    const Workbench::ProjectElement& summary = Open().elements.front();
    EXPECT_EQ(summary.element.header.layer, structure.layers.legend);
    const auto& text = std::get<Host::TextData>(summary.element.data);
    EXPECT_EQ(text.position, (Coordinate{20.0, 30.0}));
    EXPECT_EQ(text.anchor, Host::TextAnchor::LeftTop);
    EXPECT_EQ(text.width, Simulation::MeasureSummary(Simulation::BuildZoneSummary(drawing)).width);
    ASSERT_GE(summary.memo.paragraphs.size(), 3U);
    EXPECT_EQ(summary.memo.paragraphs[0].text, "Sala");
    EXPECT_EQ(summary.memo.paragraphs[0].stretches,
              (std::vector<Host::TextStretch>{{4, 1, 3.2, true}}));
    EXPECT_EQ(summary.memo.paragraphs[1].text, "");
    EXPECT_EQ(summary.memo.paragraphs[1].stretches,
              (std::vector<Host::TextStretch>{{0, 1, 1.8, false}}));
}

TEST_F(DrawnZone, TellsStatesInTheirPensAndCountsCharacters) {
    Simulation::ZoneDrawing drawing = small;
    drawing.zone.name = "Recepção";
    drawing.analysis.task = &Simulation::TaskTable().front();
    drawing.analysis.verification.rows = {{"Iluminância Em", "300 lx", "≥ 200 lx", true, true, {}},
                                          {"Uniformidade U0", "0,33", "≥ 0,40", true, false, {}},
                                          {"Reprodução Ra (IRC)", "-", "≥ 80", false, false, {}}};
    DrawNothingButSummary();
    DrawIt(drawing);
    const auto paragraphs = ElementsOn({8}).at(0).memo.paragraphs;
    EXPECT_EQ(paragraphs.front().stretches.front().count,
              8 + 5 + static_cast<std::int32_t>(drawing.analysis.task->activity.size()) -
                  std::count_if(drawing.analysis.task->activity.begin(),
                                drawing.analysis.task->activity.end(),
                                [](char c) { return (c & 0xC0) == 0x80; }));
    const std::vector<std::pair<std::string, std::int32_t>> pens = {
        {"Iluminância Em", 2}, {"Uniformidade U0", 3}, {"Reprodução Ra (IRC)", 1}};
    for (const auto& [criterion, pen] : pens) {
        const auto row = std::find_if(paragraphs.begin(), paragraphs.end(),
                                      [&name = criterion](const Host::TextParagraph& p) {
                                          return p.text.starts_with(name + "\t");
                                      });
        ASSERT_NE(row, paragraphs.end()) << criterion;
        EXPECT_EQ(row->tabs.size(), 3U);
        EXPECT_EQ(row->stretches.front().pen, 1);
        EXPECT_EQ(row->stretches.back().pen, pen) << criterion;
    }
}

TEST_F(DrawnZone, TellsItsStepsInTheProgressLog) {
    options.values = true;
    DrawIt(small);
    const std::size_t paragraphs = ElementsOn({8}).at(0).memo.paragraphs.size();
    EXPECT_EQ(
        ProgressLines(),
        (Lines{"2D: preenchimento faixa 1, 1 furo(s), 8 vertice(s)",
               "2D: preenchimentos feitos; curvas (2)", "2D: curvas e rotulos feitos",
               "2D: valores feitos; limite da area de tarefa", "2D: limite feito; textos do resumo",
               "2D: resumo (" + std::to_string(paragraphs) + " paragrafos)",
               "2D: zona concluida"}));
    EXPECT_EQ(Log(), Lines{});
}

TEST_F(DrawnZone, CountsWhateverTheHostRefusesIntoOneWarning) {
    options.values = true;
    structure.layers.isolux = {4}; // locked
    structure.layers.values = {3}; // hidden
    DrawIt(small);
    // 2 curves, so no labels; 27 values; the limit and its label
    EXPECT_EQ(warnings, (Lines{"31 elemento(s) de desenho nao puderam ser criados na zona Sala"}));
    EXPECT_EQ(ElementsOn({6}).size(), 1U);
    EXPECT_EQ(ElementsOn({8}).size(), 1U);
}

TEST_F(DrawnZone, GoesOnPastEverySingleRefusal) {
    options.values = true;
    constexpr int all = 1 + 2 + 2 + 27 + 2 + 1;
    for (int nth : {1, 4, 6, 20, 33, 34}) {
        warnings.clear();
        const std::size_t before = Open().elements.size();
        Workbench::FailCall("CreateElement", nth, Host::GeneralError);
        DrawIt(small);
        EXPECT_EQ(Open().elements.size() - before, all - 1U) << nth;
        EXPECT_EQ(warnings,
                  (Lines{"1 elemento(s) de desenho nao puderam ser criados na zona Sala"}))
            << nth;
    }
}

TEST_F(DrawnZone, TellsThatItsTablesAreMissing) {
    DrawNothingButSummary();
    Workbench::FailCall("CreateElement", 3, Host::GeneralError); // after the limit and its label
    DrawIt(small);
    EXPECT_TRUE(ElementsOn({8}).empty());
    EXPECT_EQ(warnings, (Lines{"1 elemento(s) das tabelas nao puderam ser criados",
                               "1 elemento(s) de desenho nao puderam ser criados na zona Sala"}));
}

TEST_F(DrawnZone, HasNoBandThatTheHostRefuses) {
    std::mt19937 random(3);
    options.levels = {100, 200, 300, 400, 500};
    options.curves = false;
    Simulation::ZoneDrawing drawing = small;
    drawing.taskOutline.clear();
    drawing.grid.columns = drawing.grid.rows = 24;
    for (int round = 0; round < 20; ++round) {
        drawing.field.clear();
        for (int k = 0; k < 24 * 24; ++k) { // rough: saddles and islands everywhere
            drawing.field.push_back(static_cast<double>(random() % 600000) / 1000.0 + 1e-5);
        }
        drawing.bands = Simulation::BuildBands({&drawing.grid, drawing.field}, options.levels);
        DrawIt(drawing);
        EXPECT_EQ(warnings, Lines{}) << round;
    }
}

} // namespace
} // namespace Merivane::Archicad
