#include <cmath>

#include <gtest/gtest.h>

#include "Document/PlanFigures.hpp"
#include "PlanSamples.hpp"

namespace Merivane::Document {
namespace {

using Drawing::Area;
using Drawing::Layer;
using Drawing::Point;
using Drawing::Polyline;

// The model's (0, 0) at (100, 100) mm, 1:50: a metre is 20 mm.
PlanSheet Sheet(double scale = 50.0) {
    PlanSheet sheet;
    sheet.scale = scale;
    sheet.origin = {100, 100};
    return sheet;
}

Drawing::DisplayList AsDrawing(const Layer& layer) {
    return {"", 297, 210, {layer}};
}

TEST(AppendSegments, WallsAreThickLinesAndGlassTwoThinOnes) {
    Layer layer;
    AppendSegments(
        layer, Sheet(),
        {{PlanSegmentKind::Glass, {0, 0}, {1, 0}}, {PlanSegmentKind::Wall, {0, 1}, {2, 1}}});
    const std::vector<Polyline> lines = ElementsOf<Polyline>(AsDrawing(layer));
    ASSERT_EQ(lines.size(), 3U);
    EXPECT_EQ(lines[0].points, (std::vector<Point>{{100, 120}, {140, 120}})); // the wall, below
    EXPECT_GE(lines[0].stroke.width, 0.5);
    for (std::size_t k : {1U, 2U}) {
        EXPECT_LE(lines[k].stroke.width, 0.2);
        EXPECT_NEAR(std::abs(lines[k].points[0].y - 100.0), 0.35, 1e-9);
        EXPECT_NEAR(std::abs(lines[k].points[1].x - lines[k].points[0].x), 20.0, 1e-9);
    }
    EXPECT_LT((lines[1].points[0].y - 100.0) * (lines[2].points[0].y - 100.0), 0.0);
}

TEST(AppendSegments, GlassWithoutLengthIsNotDrawn) {
    Layer layer;
    AppendSegments(layer, Sheet(), {{PlanSegmentKind::Glass, {1, 1}, {1, 1}}});
    EXPECT_TRUE(layer.elements.empty());
}

TEST(AppendBands, EachPolygonIsAnAreaWithItsHoles) {
    Simulation::ColorBand band;
    band.index = 1;
    band.polygons = {{Rectangle(0, 0, 2, 2), {Rectangle(0.5, 0.5, 1, 1)}},
                     {Rectangle(3, 0, 1, 1), {}}};
    Layer layer;
    AppendBands(layer, Sheet(), {band}, {100}, 2);
    const std::vector<Area> areas = ElementsOf<Area>(AsDrawing(layer));
    ASSERT_EQ(areas.size(), 2U);
    ASSERT_EQ(areas[0].rings.size(), 2U);
    EXPECT_EQ(areas[0].rings[1][0], (Point{110, 110}));
    EXPECT_EQ(areas[0].fill, (Drawing::Color{0.95, 0.95, 0.95, 1.0}));
    EXPECT_EQ(areas[1].rings.size(), 1U);
}

TEST(AppendCurves, AClosedCurveIsClosedOnceAndAnOpenOneStaysOpen) {
    Layer layer;
    AppendCurves(layer, Sheet(),
                 {{100, {{0, 0}, {1, 0}, {1, 1}, {0, 0}}, true}, {200, {{0, 0}, {1, 1}}, false}});
    const std::vector<Polyline> lines = ElementsOf<Polyline>(AsDrawing(layer));
    ASSERT_EQ(lines.size(), 2U);
    EXPECT_TRUE(lines[0].closed);
    EXPECT_EQ(lines[0].points.size(), 3U);
    EXPECT_FALSE(lines[1].closed);
    EXPECT_EQ(lines[1].points.size(), 2U);
}

TEST(AppendFootprint, IsStrongWhereThePlanHasNoWalls) {
    Layer with;
    Layer without;
    const Simulation::Polygon2D polygon{Rectangle(0, 0, 2, 2), {Rectangle(0.5, 0.5, 1, 1)}};
    AppendFootprint(with, Sheet(), polygon, true);
    AppendFootprint(without, Sheet(), polygon, false);
    const std::vector<Polyline> fine = ElementsOf<Polyline>(AsDrawing(with));
    const std::vector<Polyline> strong = ElementsOf<Polyline>(AsDrawing(without));
    ASSERT_EQ(fine.size(), 2U); // the outline and its hole
    EXPECT_GT(strong[0].stroke.width, 2.0 * fine[0].stroke.width);
}

TEST(AppendLuminaire, ARectangleIsTurnedToC0) {
    PlanLuminaire luminaire;
    luminaire.center = {1, 1};
    luminaire.rotation = 1.57079632679489662; // C0 upwards
    luminaire.length = 1.2;
    luminaire.width = 0.3;
    Layer layer;
    AppendLuminaire(layer, Sheet(), luminaire);
    const Polyline outline = ElementsOf<Polyline>(AsDrawing(layer)).front();
    ASSERT_EQ(outline.points.size(), 4U);
    for (const Point& point : outline.points) {
        EXPECT_NEAR(std::abs(point.x - 120.0), 3.0, 1e-9);
        EXPECT_NEAR(std::abs(point.y - 120.0), 12.0, 1e-9);
    }
    const Point mark = ElementsOf<Area>(AsDrawing(layer)).back().rings[0][0];
    EXPECT_NEAR(mark.x, 120.0, 1e-9);
    EXPECT_GT(mark.y, 132.0);
    const Drawing::Box box = LuminaireBox(Sheet(), luminaire);
    EXPECT_NEAR(box.left, 117.0, 1e-9);
    EXPECT_NEAR(box.top, 132.0, 1e-9);
}

TEST(AppendLuminaire, ARoundOneIsACircleOfItsDiameter) {
    PlanLuminaire luminaire;
    luminaire.length = 0.2;
    luminaire.width = 0.2;
    luminaire.round = true;
    Layer layer;
    AppendLuminaire(layer, Sheet(), luminaire);
    const Polyline outline = ElementsOf<Polyline>(AsDrawing(layer)).front();
    for (const Drawing::Point& point : outline.points) {
        EXPECT_NEAR(std::hypot(point.x - 100.0, point.y - 100.0), 2.0, 1e-9);
    }
}

TEST(AppendLuminaire, OneWithoutExtentStillShows) {
    Layer layer;
    AppendLuminaire(layer, Sheet(), {});
    const Drawing::Box box = LuminaireBox(Sheet(), {});
    EXPECT_GE(box.right - box.left, 1.5);
    EXPECT_FALSE(layer.elements.empty());
}

TEST(AppendScaleBar, FourFieldsOfARoundLengthThatIsTrueToScale) {
    struct Case {
        double scale;
        double field; // m
        std::string middle;
        std::string end;
    };
    const Case cases[] = {
        {20, 0.2, "0,4", "0,8 m"}, {25, 0.5, "1", "2 m"},  {50, 0.5, "1", "2 m"},
        {75, 1, "2", "4 m"},       {100, 1, "2", "4 m"},   {125, 2, "4", "8 m"},
        {200, 2, "4", "8 m"},      {500, 5, "10", "20 m"}, {12, 0.2, "0,4", "0,8 m"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.scale);
        Layer layer;
        AppendScaleBar(layer, Sheet(c.scale), {10, 10});
        const std::vector<Area> fields = ElementsOf<Area>(AsDrawing(layer));
        ASSERT_EQ(fields.size(), 4U);
        for (const Area& field : fields) {
            EXPECT_NEAR(field.rings[0][1].x - field.rings[0][0].x, c.field * 1000.0 / c.scale,
                        1e-9);
        }
        const std::vector<std::string> texts =
            TextsOf(ElementsOf<Drawing::TextRun>(AsDrawing(layer)));
        EXPECT_EQ(texts, (std::vector<std::string>{"0", c.middle, c.end,
                                                   "Escala " + FormatScale(c.scale)}));
    }
}

TEST(FormatScale, HasADecimalCommaWhereItNeedsOne) {
    EXPECT_EQ(FormatScale(50), "1:50");
    EXPECT_EQ(FormatScale(33.3), "1:33,3");
    EXPECT_EQ(FormatScale(1000), "1:1000");
}

} // namespace
} // namespace Merivane::Document
