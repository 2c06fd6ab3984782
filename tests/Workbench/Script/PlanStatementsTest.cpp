#include <gtest/gtest.h>

#include <cmath>
#include <string>

#include "ScriptRuns.hpp"

namespace Merivane {
namespace {

using namespace Workbench;

PlanShape OnlyShape(const std::string& script) {
    SCOPED_TRACE(script);
    const PlanSymbolDrawing drawing = Tests::DrawPlan(script);
    EXPECT_EQ(drawing.shapes.size(), 1U);
    return drawing.shapes.empty() ? PlanShape() : drawing.shapes.front();
}

template <class Shape> Shape Only(const std::string& script) {
    const PlanShape shape = OnlyShape(script);
    EXPECT_TRUE(std::holds_alternative<Shape>(shape)) << script;
    return std::holds_alternative<Shape>(shape) ? std::get<Shape>(shape) : Shape();
}

void ExpectPlace(const Host::Coordinate& place, double x, double y) {
    EXPECT_NEAR(place.x, x, 1e-12);
    EXPECT_NEAR(place.y, y, 1e-12);
}

TEST(PlanStatements, DrawLinesWithTheAttributesInForce) {
    PlanLine line;
    line.begin = {1, 2};
    line.end = {3, 4};
    EXPECT_EQ(Only<PlanLine>("LINE2 1, 2, 3, 4"), line);
    line.look = {7, 3, 2, 40};
    EXPECT_EQ(Only<PlanLine>("PEN 7\nSET LINE_TYPE 3\nFILL 2\nDRAWINDEX 40\nLINE2 1, 2, 3, 4"),
              line);
}

TEST(PlanStatements, DrawRectanglesAsOutlines) {
    const auto shape = Only<PlanPolygon>("RECT2 0, 0, 2, 1");
    EXPECT_TRUE(shape.closed && shape.outlined && !shape.filled);
    const PlanRingShape ring = {{{0, 0}, {2, 0}, {2, 1}, {0, 1}}, {true, true, true, true}};
    EXPECT_EQ(shape.rings, std::vector<PlanRingShape>{ring});
}

TEST(PlanStatements, DrawCirclesAndArcsInEveryEvenFrame) {
    PlanArc circle;
    circle.center = {1, 2};
    circle.radius = 3;
    circle.whole = true;
    EXPECT_EQ(Only<PlanArc>("CIRCLE2 1, 2, 3"), circle);
    const auto arc = Only<PlanArc>("ADD2 1, 0\nROT2 30\nMUL2 2, 2\nARC2 0, 0, 1, 10, 50");
    ExpectPlace(arc.center, 1, 0);
    EXPECT_NEAR(arc.radius, 2, 1e-12);
    EXPECT_NEAR(arc.begin, 40, 1e-12);
    EXPECT_NEAR(arc.end, 80, 1e-12);
    // Mirrored in y at x = 0 it runs from 130 to 170 degrees, still counter-clockwise.
    const auto mirrored = Only<PlanArc>("MUL2 -1, 1\nARC2 0, 0, 1, 10, 50");
    EXPECT_NEAR(mirrored.begin, 130, 1e-12);
    EXPECT_NEAR(mirrored.end, 170, 1e-12);
    EXPECT_TRUE(Only<PlanArc>("ARC2 0, 0, 1, 90, 450").whole);
    EXPECT_FALSE(Only<PlanArc>("ARC2 0, 0, 1, 90, 90").whole);
    const auto over = Only<PlanArc>("ARC2 0, 0, 1, 350, 10");
    EXPECT_NEAR(over.end - over.begin, 20, 1e-12);
}

TEST(PlanStatements, DrawEllipsesAsChords) {
    const auto circle = Only<PlanPolygon>("MUL2 2, 1\nCIRCLE2 0, 0, 1");
    ASSERT_EQ(circle.rings.size(), 1U);
    EXPECT_EQ(circle.rings[0].vertices.size(), 72U);
    EXPECT_TRUE(circle.closed && !circle.filled);
    for (const Host::Coordinate& p : circle.rings[0].vertices) {
        EXPECT_NEAR(p.x * p.x / 4 + p.y * p.y, 1, 1e-12);
    }
    const auto arc = Only<PlanPolygon>("MUL2 1, 3\nARC2 0, 0, 1, 0, 90");
    EXPECT_FALSE(arc.closed);
    EXPECT_EQ(arc.rings[0].vertices.size(), 19U);
    ExpectPlace(arc.rings[0].vertices.back(), 0, 3);
}

TEST(PlanStatements, WriteTextsInTheirStyle) {
    const auto plain = Only<PlanText>("TEXT2 1, 2, 2.50");
    EXPECT_EQ(plain.text, "2.5");
    EXPECT_EQ(plain.size, 5.0);
    EXPECT_EQ(plain.anchor, 1);
    const auto text = Only<PlanText>("DEFINE STYLE \"s\" \"Arial\", 3.5, 9, 3\nSET STYLE \"s\"\n"
                                     "ADD2 1, 1\nROT2 90\nMUL2 -1, 1\nTEXT2 1, 0, \"a\"");
    ExpectPlace(text.position, 1, 0);
    EXPECT_EQ(text.font, "Arial");
    EXPECT_EQ(text.size, 3.5);
    EXPECT_EQ(text.anchor, 9);
    EXPECT_EQ(text.face, 3);
    EXPECT_NEAR(text.angle, -90, 1e-12);
    EXPECT_TRUE(text.mirrored);
    EXPECT_EQ(Only<PlanText>("DEFINE STYLE \"s\" \"Arial\", 3, 9, 3\nSTYLE \"s\"\nSTYLE 0\n"
                             "TEXT2 0, 0, \"a\"")
                  .size,
              5.0);
}

TEST(PlanStatements, PlaceHotspotsThatNameParameters) {
    const PlanHotspot plain = {{1, 2}, 0, "", 0, ""};
    EXPECT_EQ(Only<PlanHotspot>("HOTSPOT2 1, 2"), plain);
    const PlanHotspot edited = {{1, 0}, 7, "Largura", 2 + 256, "mostrado[2]"};
    EXPECT_EQ(Only<PlanHotspot>("n = 2\nHOTSPOT2 1, 0, 7, Largura, 2 + 256, mostrado[n]"), edited);
}

TEST(PlanStatements, PlacePicturesFragmentsAndProjections) {
    const auto picture = Only<PlanPicture>("ADD2 1, 2\nMUL2 2, 3\nPICTURE2 \"logo\", 1, 1, 0");
    EXPECT_EQ(picture.picture, "logo");
    ExpectPlace(picture.position, 1, 2);
    EXPECT_EQ(picture.width, 2);
    EXPECT_EQ(picture.height, 3);
    const auto fragment = Only<PlanFragment>("MUL2 -1, 1\nFRAGMENT2 ALL, 1");
    EXPECT_EQ(fragment.number, 0);
    EXPECT_TRUE(fragment.useCurrent);
    EXPECT_EQ(fragment.scaleY, -1);
    EXPECT_EQ(Only<PlanFragment>("FRAGMENT2 3, 0").number, 3);
    const auto projection = Only<PlanProjection>("ADD2 1, 0\nROT2 90\nPROJECT2 3, 270, 2");
    EXPECT_EQ(projection.code, 3);
    EXPECT_EQ(projection.angle, 270);
    EXPECT_EQ(projection.method, 2);
    ExpectPlace(projection.position, 1, 0);
    EXPECT_NEAR(projection.rotation, 90, 1e-12);
}

TEST(PlanPolygons, TakeEveryVersionOfTheirArguments) {
    struct Row {
        std::string script;
        std::int32_t fillPen;
        std::int32_t backgroundPen;
    };
    const std::string points = "0, 0, 1, 1, 0, 0, 1, 1, 1";
    const Row rows[] = {
        {"POLY2 3, 7, 0, 0, 1, 0, 1, 1", 0, 0},
        {"POLY2_ 3, 7, " + points, 0, 0},
        {"POLY2_A 3, 7, 4, " + points, 4, 0},
        {"POLY2_B 3, 7, 4, 19, " + points, 4, 19},
        {"POLY2_B{2} 3, 7, 4, 19, 0, 0, 45, " + points, 4, 19},
        {"POLY2_B{3} 3, 7, 4, 19, 0, 0, 1, 0, 0, 1, " + points, 4, 19},
        {"POLY2_B{4} 3, 7, 4, 19, 0, 0, 1, 0, 0, 1, 0, " + points, 4, 19},
        {"POLY2_B{5} 3, 7, 1, 0, 4, 19, 0, 0, 1, 0, 0, 1, 0, " + points, 4, 19},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.script);
        const auto polygon = Only<PlanPolygon>(row.script);
        EXPECT_TRUE(polygon.closed && polygon.filled && polygon.outlined);
        EXPECT_EQ(polygon.fillPen, row.fillPen);
        EXPECT_EQ(polygon.backgroundPen, row.backgroundPen);
        ASSERT_EQ(polygon.rings.size(), 1U);
        EXPECT_EQ(polygon.rings[0].vertices,
                  (std::vector<Host::Coordinate>{{0, 0}, {1, 0}, {1, 1}}));
        const bool statuses = row.script.find('_') != std::string::npos;
        EXPECT_EQ(polygon.rings[0].visible, (std::vector<bool>{true, !statuses, true}));
    }
}

TEST(PlanPolygons, HaveHolesAndMayStayOpen) {
    const auto holed =
        Only<PlanPolygon>("POLY2_ 10, 7, 0, 0, 1, 4, 0, 1, 4, 4, 1, 0, 4, 1, 0, 0, -1,\n"
                          "1, 1, 1, 2, 1, 1, 2, 2, 1, 1, 2, 1, 1, 1, -1");
    ASSERT_EQ(holed.rings.size(), 2U);
    EXPECT_EQ(holed.rings[0].vertices.size(), 4U);
    EXPECT_EQ(holed.rings[1].vertices.size(), 4U);
    EXPECT_FALSE(Only<PlanPolygon>("POLY2 3, 1, 0, 0, 1, 0, 1, 1").closed);
    EXPECT_TRUE(Only<PlanPolygon>("POLY2_ 2, 1, 0, 0, 900, 1, 360, 4001").closed);
}

TEST(PlanPolygons, FollowSplines) {
    const auto spline = Only<PlanPolygon>("SPLINE2 2, 0, 0, 0, 0, 3, 0, 0");
    EXPECT_FALSE(spline.closed);
    ASSERT_EQ(spline.rings[0].vertices.size(), 17U);
    ExpectPlace(spline.rings[0].vertices[8], 1.5, 0);
    const auto closed = Only<PlanPolygon>("SPLINE2 3, 3, 0, 0, 0, 3, 0, 0, 1, 2, 0");
    EXPECT_TRUE(closed.closed);
    EXPECT_EQ(closed.rings[0].vertices.size(), 48U);
    EXPECT_EQ(
        Only<PlanPolygon>("SPLINE2A 2, 0, 0, 0, 90, 0, 1, 3, 0, 0, 1, 0").rings[0].vertices.size(),
        17U);
}

TEST(Transformations, WorkInTheFrameOfThoseBefore) {
    struct Row {
        std::string script;
        double x;
        double y;
    };
    const Row rows[] = {
        {"ADD2 1, 2", 2, 2},
        {"ROT2 90", 0, 1},
        {"MUL2 2, 3", 2, 0},
        {"ADD2 1, 0\nROT2 90", 1, 1},
        {"ROT2 90\nADD2 1, 0", 0, 2},
        {"ADDX 1\nADDY 2\nADDZ 3", 2, 2},
        {"MULX -1\nMULY 2\nMULZ 3", -1, 0},
        {"ADD 1, 1, 1\nMUL 2, 2, 2", 3, 1},
        {"ROTZ 180\nROTX 180", -1, 0},
        {"ROT 0, 0, 2, 90", 0, 1},
        {"XFORM 0, -1, 0, 5, 1, 0, 0, 6, 0, 0, 1, 7", 5, 7},
        {"ADD2 1, 0\nADD2 2, 0\nDEL 1", 2, 0},
        {"ADD2 1, 0\nADD2 2, 0\nADD2 4, 0\nDEL 1, 2", 6, 0},
        {"ADD2 1, 0\nADD2 2, 0\nADD2 4, 0\nDEL -2, 3", 2, 0},
        {"ADD2 1, 0\nADD2 2, 0\nDEL 9", 1, 0},
        {"ADD2 1, 0\nDEL TOP", 1, 0},
        {"ADD2 1, 0\nADD2 1, 0\nDEL NTR () - 1", 2, 0},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.script);
        ExpectPlace(Only<PlanHotspot>(row.script + "\nHOTSPOT2 1, 0").position, row.x, row.y);
    }
}

} // namespace
} // namespace Merivane
