#include <gtest/gtest.h>

#include "DisplaySample.hpp"
#include "Workbench/Display/PaperDrawing.hpp"

namespace Merivane::Workbench {
namespace {

using Tests::Drawn;

PaperDrawing WithLine(double width, double height) {
    PaperDrawing drawing;
    drawing.curves.emplace_back(Drawing::Polyline{{{-7, 3}, {-7 + width, 3 + height}}, false, {}});
    return drawing;
}

TEST(FinishSheet, TakesTheSmallestSheetThatHoldsTheContentsAndItsMargins) {
    struct Case {
        double width;
        double height;
        double sheetWidth;
        double sheetHeight;
    };
    const Case cases[] = {
        {0, 0, 297, 210},       {267, 180, 297, 210},   {267.01, 180, 420, 297},
        {180, 267, 210, 297},   {181, 267, 297, 420},   {390, 267, 420, 297},
        {391, 200, 594, 420},   {700, 500, 841, 594},   {1159, 811, 1189, 841},
        {1160, 811, 1190, 841}, {100, 1160, 130, 1190},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(std::to_string(c.width) + " x " + std::to_string(c.height));
        const Drawing::DisplayList list = FinishSheet(WithLine(c.width, c.height), "");
        EXPECT_NEAR(list.width, c.sheetWidth, 1e-9);
        EXPECT_NEAR(list.height, c.sheetHeight, 1e-9);
    }
}

TEST(FinishSheet, PutsTheContentsInTheMiddle) {
    const auto lines = Drawn<Drawing::Polyline>(FinishSheet(WithLine(100, 50), ""), "Linhas");
    ASSERT_EQ(lines.size(), 1U);
    EXPECT_NEAR(lines[0].points[0].x, 98.5, 1e-9);
    EXPECT_NEAR(lines[0].points[0].y, 80.0, 1e-9);
    EXPECT_NEAR(lines[0].points[1].x, 198.5, 1e-9);
    EXPECT_NEAR(lines[0].points[1].y, 130.0, 1e-9);
}

TEST(FinishSheet, MeasuresFillsArcsAndTextsToo) {
    PaperDrawing drawing;
    drawing.fills.emplace_back(Drawing::Area{{{{0, 0}, {10, 0}, {0, 10}}}, {}, 0.0});
    drawing.curves.emplace_back(Drawing::Arc{{0, 0}, 200.0, 0.0, 3.141592653589793, {}});
    Drawing::TextRun text;
    text.text = "Sala";
    text.position = {0, -150};
    drawing.texts.emplace_back(text);
    const Drawing::DisplayList list = FinishSheet(drawing, "");
    EXPECT_EQ(list.width, 594.0); // the half circle's upper half is 400 mm wide
    const auto arcs = Drawn<Drawing::Arc>(list, "Linhas");
    EXPECT_NEAR(arcs[0].center.x, 297.0, 1e-6);
    EXPECT_NEAR(arcs[0].center.y, 210.0 - 25.0, 0.1);
}

TEST(FinishSheet, LaysFillsUnderCurvesUnderTextsAndTellsTheScale) {
    PaperDrawing drawing = WithLine(10, 10);
    drawing.scale = 50.0;
    drawing.texts.emplace_back(Drawing::TextRun{});
    drawing.fills.emplace_back(Drawing::Area{});
    const Drawing::DisplayList list = FinishSheet(drawing, "Térreo");
    ASSERT_EQ(list.layers.size(), 4U);
    EXPECT_EQ(list.layers[0].name, "Hachuras");
    EXPECT_EQ(list.layers[1].name, "Linhas");
    EXPECT_EQ(list.layers[2].name, "Textos");
    const auto titles = Drawn<Drawing::TextRun>(list, "Folha");
    ASSERT_EQ(titles.size(), 1U);
    EXPECT_EQ(titles[0].text, "Térreo – 1:50");
    EXPECT_EQ(titles[0].position, (Drawing::Point{15, 6}));
}

} // namespace
} // namespace Merivane::Workbench
