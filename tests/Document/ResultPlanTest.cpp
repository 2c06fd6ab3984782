#include <algorithm>
#include <cmath>
#include <limits>
#include <random>

#include <gtest/gtest.h>

#include "Document/ResultPlan.hpp"
#include "Drawing/PdfWriter.hpp"
#include "Drawing/PngWriter.hpp"
#include "Drawing/SvgWriter.hpp"
#include "PlanSamples.hpp"

namespace Merivane::Document {
namespace {

using Drawing::Area;
using Drawing::Polyline;
using Drawing::TextRun;

std::size_t CurveLabels(const Drawing::DisplayList& list) {
    std::size_t count = 0;
    for (const TextRun& run : ElementsOf<TextRun>(list, "Vantoro - Isolux - Textos")) {
        count += run.text.ends_with(" lx") ? 1 : 0;
    }
    return count;
}

PlanStyle WithValues() {
    PlanStyle style;
    style.values = true;
    return style;
}

TEST(BuildResultPlan, NamesItsLayersFromTheBottomUp) {
    std::vector<std::string> names;
    for (const Drawing::Layer& layer : BuildResultPlan(SampleRoom(), {}).layers) {
        names.push_back(layer.name);
    }
    EXPECT_EQ(names, (std::vector<std::string>{"Vantoro - Cor falsa", "Vantoro - Isolux", "Planta",
                                               "Luminárias", "Vantoro - Valores",
                                               "Vantoro - Isolux - Textos", "Vantoro - Legenda",
                                               "Folha"}));
}

TEST(BuildResultPlan, NoTextCoversAnother) {
    for (const PlanContents& contents : {SampleRoom(), SampleOffice(), SampleCorridor()}) {
        for (double scale : {0.0, 20.0, 50.0, 100.0, 200.0}) {
            PlanStyle style = WithValues();
            style.scale = scale;
            SCOPED_TRACE(contents.title + " 1:" + std::to_string(scale));
            EXPECT_EQ(OverlappingTexts(BuildResultPlan(contents, style)), "");
        }
    }
}

TEST(BuildResultPlan, NoTextCoversAnotherInRandomRooms) {
    std::mt19937 random(7);
    std::uniform_real_distribution<double> side(0.6, 15.0);
    std::uniform_real_distribution<double> unit(0.0, 1.0);
    for (int k = 0; k < 20; ++k) {
        const double width = side(random);
        const double height = side(random);
        std::vector<Simulation::Point2D> lights(6);
        for (Simulation::Point2D& light : lights) {
            light = {width * unit(random), height * unit(random)};
        }
        PlanContents contents;
        contents.levels = Simulation::DefaultLevels();
        contents.zones = {MakeZone("Sala " + std::to_string(k),
                                   {Rectangle(3, -2, width, height), {}},
                                   Downlights(lights, 3000 * unit(random)))};
        PlanStyle style;
        style.values = k % 2 == 0;
        SCOPED_TRACE(testing::Message() << width << " x " << height);
        EXPECT_EQ(OverlappingTexts(BuildResultPlan(contents, style)), "");
    }
}

TEST(BuildResultPlan, EverythingStandsOnTheSheet) {
    for (const PlanContents& contents : {SampleRoom(), SampleOffice(), SampleCorridor()}) {
        const Drawing::DisplayList list = BuildResultPlan(contents, WithValues());
        for (const TextRun& run : ElementsOf<TextRun>(list)) {
            const Drawing::Box box = TextBounds(run);
            EXPECT_GE(box.left, 0.0) << run.text;
            EXPECT_GE(box.bottom, 0.0) << run.text;
            EXPECT_LE(box.right, list.width) << run.text;
            EXPECT_LE(box.top, list.height) << run.text;
        }
    }
}

TEST(BuildResultPlan, LegendAndSummariesStandBesideThePlan) {
    for (const PlanContents& contents : {SampleRoom(), SampleOffice(), SampleCorridor()}) {
        const Drawing::DisplayList list = BuildResultPlan(contents, {});
        double planEnd = 0.0;
        for (const Polyline& line : ElementsOf<Polyline>(list, "Planta")) {
            for (const Drawing::Point& point : line.points) {
                planEnd = std::max(planEnd, point.x);
            }
        }
        for (const TextRun& run : ElementsOf<TextRun>(list, "Vantoro - Legenda")) {
            EXPECT_GT(TextBounds(run).left, planEnd) << run.text;
        }
    }
}

TEST(BuildResultPlan, APaperMillimetreIsAThousandthOfTheScaleInMetres) {
    for (double scale : {20.0, 50.0, 125.0, 33.3}) {
        PlanStyle style;
        style.scale = scale;
        const Drawing::DisplayList list = BuildResultPlan(SampleRoom(), style);
        const Polyline footprint = ElementsOf<Polyline>(list, "Planta").front();
        EXPECT_NEAR(footprint.points[1].x - footprint.points[0].x, 6.0 * 1000.0 / scale, 1e-9);
        EXPECT_NEAR(footprint.points[2].y - footprint.points[1].y, 4.0 * 1000.0 / scale, 1e-9);
    }
}

TEST(BuildResultPlan, WritesTheScaleOnTheSheet) {
    PlanStyle style;
    EXPECT_EQ(CountText(BuildResultPlan(SampleRoom(), style), "Escala 1:50"), 1U);
    style.scale = 125;
    EXPECT_EQ(CountText(BuildResultPlan(SampleRoom(), style), "Escala 1:125"), 1U);
    style.scale = 33.3;
    EXPECT_EQ(CountText(BuildResultPlan(SampleRoom(), style), "Escala 1:33,3"), 1U);
}

TEST(BuildResultPlan, LabelsCurvesWithTheirLevel) {
    const Drawing::DisplayList list = BuildResultPlan(SampleRoom(), {});
    EXPECT_GE(CurveLabels(list), 3U);
    const TextRun label = FindText(list, "300 lx");
    EXPECT_EQ(label.height, 2.0);
    EXPECT_GT(label.halo, 0.0);
}

TEST(BuildResultPlan, LabelsStandOnACurveOfTheirLevelOrBesideIt) {
    const Drawing::DisplayList list = BuildResultPlan(SampleRoom(), {});
    const std::vector<Polyline> curves = ElementsOf<Polyline>(list, "Vantoro - Isolux");
    for (const TextRun& run : ElementsOf<TextRun>(list, "Vantoro - Isolux - Textos")) {
        if (!run.text.ends_with(" lx")) {
            continue;
        }
        const Drawing::Box box = TextBounds(run);
        const auto inside = [&box](const Drawing::Point& point) {
            return point.x > box.left && point.x < box.right && point.y > box.bottom &&
                   point.y < box.top;
        };
        EXPECT_TRUE(std::any_of(curves.begin(), curves.end(), [&inside](const Polyline& curve) {
            return std::any_of(curve.points.begin(), curve.points.end(), inside);
        })) << run.text;
    }
}

TEST(BuildResultPlan, DrawsTheLimitOfTheTaskAreaDashedWithItsLabel) {
    const Drawing::DisplayList list = BuildResultPlan(SampleRoom(), {});
    std::vector<Polyline> dashed;
    for (const Polyline& line : ElementsOf<Polyline>(list, "Vantoro - Isolux")) {
        if (!line.stroke.dashes.empty()) {
            dashed.push_back(line);
        }
    }
    ASSERT_EQ(dashed.size(), 1U);
    EXPECT_EQ(dashed[0].stroke.dashes, (std::vector<double>{3.0, 1.5}));
    double left = 1e9;
    double top = 0.0;
    for (const Drawing::Point& point : dashed[0].points) {
        left = std::min(left, point.x);
        top = std::max(top, point.y);
    }
    const TextRun label = FindText(list, "Limite da área de tarefa");
    EXPECT_EQ(label.height, 1.8);
    EXPECT_NEAR(label.position.x, left + 0.05 * 1000.0 / 50.0, 0.3); // corners are cut a little
    EXPECT_NEAR(label.position.y, top + 0.8, 1e-6);
}

TEST(BuildResultPlan, ANarrowZoneHasNoLimitAndSaysWhy) {
    const Drawing::DisplayList list = BuildResultPlan(SampleCorridor(), {});
    EXPECT_EQ(CountText(list, "Limite da área de tarefa"), 0U);
    for (const Polyline& line : ElementsOf<Polyline>(list)) {
        EXPECT_TRUE(line.stroke.dashes.empty());
    }
    std::string texts;
    for (const std::string& text : TextsOf(ElementsOf<TextRun>(list, "Vantoro - Legenda"))) {
        texts += text + " ";
    }
    EXPECT_NE(texts.find("Zona estreita: sem faixa de borda, todos os pontos entram nas "
                         "estatísticas  [2]"),
              std::string::npos)
        << texts;
}

TEST(BuildResultPlan, WritesTheNameOfEachZoneWhereThereAreSeveral) {
    const auto names = [](const PlanContents& contents) {
        const Drawing::DisplayList list = BuildResultPlan(contents, {});
        std::size_t count = 0;
        for (const TextRun& run : ElementsOf<TextRun>(list, "Vantoro - Isolux - Textos")) {
            for (const PlanZone& zone : contents.zones) {
                count += run.text == zone.name ? 1 : 0;
            }
        }
        return count;
    };
    EXPECT_EQ(names(SampleRoom()), 0U);
    EXPECT_EQ(names(SampleOffice()), 2U);
}

TEST(BuildResultPlan, LeavesOutWhatTheStyleDoesNotWant) {
    PlanStyle style;
    style.fills = false;
    style.curves = false;
    style.legend = false;
    const Drawing::DisplayList list = BuildResultPlan(SampleRoom(), style);
    EXPECT_TRUE(ElementsOf<Area>(list, "Vantoro - Cor falsa").empty());
    EXPECT_EQ(ElementsOf<Polyline>(list, "Vantoro - Isolux").size(), 1U); // the task area
    EXPECT_EQ(CurveLabels(list), 0U);
    EXPECT_EQ(CountText(list, "Iluminância (lx)"), 0U);
    EXPECT_EQ(CountText(list, "Em"), 1U); // the summary stays

    PlanStyle unlabelled;
    unlabelled.curveLabels = false;
    const Drawing::DisplayList curves = BuildResultPlan(SampleRoom(), unlabelled);
    EXPECT_EQ(CurveLabels(curves), 0U);
    EXPECT_GT(ElementsOf<Polyline>(curves, "Vantoro - Isolux").size(), 1U);
    EXPECT_EQ(CountText(curves, "Limite da área de tarefa"), 1U);
    EXPECT_TRUE(ElementsOf<TextRun>(curves, "Vantoro - Valores").empty());
}

TEST(BuildResultPlan, BandsBleedSoThatNoSeamShows) {
    const std::vector<Area> bands =
        ElementsOf<Area>(BuildResultPlan(SampleRoom(), {}), "Vantoro - Cor falsa");
    ASSERT_GE(bands.size(), 2U);
    for (const Area& band : bands) {
        EXPECT_NEAR(band.bleed, 0.09, 0.02);
    }
}

TEST(BuildResultPlan, TheSameContentsGiveTheSameBytes) {
    const auto bytes = [] {
        const Drawing::DisplayList list = BuildResultPlan(SampleOffice(), WithValues());
        std::string svg;
        std::string pdf;
        std::string png;
        std::string error;
        EXPECT_TRUE(WriteSvg(list, svg, error)) << error;
        EXPECT_TRUE(WritePdf(list, pdf, error)) << error;
        EXPECT_TRUE(WritePng(list, png, error)) << error;
        return svg + pdf + png;
    };
    EXPECT_EQ(bytes(), bytes());
}

TEST(BuildResultPlan, ContentsWithNothingInThemGiveASheet) {
    const Drawing::DisplayList list = BuildResultPlan({}, WithValues());
    std::string error;
    EXPECT_TRUE(CheckDisplayList(list, error)) << error;
    EXPECT_EQ(list.width, 297.0);
    EXPECT_EQ(list.height, 210.0);
}

TEST(BuildResultPlan, FewerOrNoValuesLeaveTheRestBlank) {
    PlanContents contents = SampleRoom();
    contents.zones[0].values.resize(contents.zones[0].values.size() / 2);
    std::string error;
    EXPECT_TRUE(CheckDisplayList(BuildResultPlan(contents, WithValues()), error)) << error;
    contents.zones[0].values.clear();
    const Drawing::DisplayList list = BuildResultPlan(contents, WithValues());
    EXPECT_TRUE(ElementsOf<Area>(list, "Vantoro - Cor falsa").empty());
    EXPECT_TRUE(ElementsOf<TextRun>(list, "Vantoro - Valores").empty());
}

TEST(BuildResultPlan, ManyZonesGoIntoFurtherColumnsClearOfEachOther) {
    PlanContents contents = SampleRoom();
    for (int k = 0; k < 25; ++k) {
        contents.zones.push_back(contents.zones[0]);
        contents.zones.back().name =
            "Sala com um nome bastante comprido de número " + std::to_string(k);
    }
    PlanStyle style;
    style.curveLabels = false;
    const Drawing::DisplayList list = BuildResultPlan(contents, style);
    std::string error;
    EXPECT_TRUE(CheckDisplayList(list, error)) << error;
    EXPECT_EQ(OverlappingTexts({"", 1, 1, {list.layers[6]}}), "");
    EXPECT_EQ(CountText(list, "Plano de trabalho"), 26U);
}

} // namespace
} // namespace Merivane::Document
