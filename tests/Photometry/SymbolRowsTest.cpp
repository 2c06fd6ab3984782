#include "Photometry/SymbolRows.hpp"

#include <algorithm>
#include <cmath>

#include <gtest/gtest.h>

#include "Photometry/BuiltInSymbols.hpp"

namespace Merivane::Photometry {
namespace {

using Kind = SymbolStrokeKind;
using Rows = std::vector<SymbolRow>;

PlanSymbol Drawn(std::vector<SymbolStroke> strokes) {
    PlanSymbol symbol;
    symbol.strokes = std::move(strokes);
    return symbol;
}

SymbolStroke Polygon(std::size_t corners, bool filled) {
    SymbolStroke polygon = {.kind = Kind::Polygon, .points = {}, .filled = filled};
    for (std::size_t i = 0; i < corners; ++i) {
        polygon.points.push_back({static_cast<double>(i), 0.5});
    }
    return polygon;
}

TEST(BuildSymbolRows, GivesEachKindOfStrokeItsColumns) {
    const SymbolRowsResult result = BuildSymbolRows(Drawn({
        {.kind = Kind::Line, .points = {{1, 2}, {3, 4}}},
        {.kind = Kind::Circle, .points = {{5, 6}}, .radius = 7},
        {.kind = Kind::Arc, .points = {{8, 9}}, .radius = 10, .beginAngle = 11, .endAngle = 12},
        {.kind = Kind::Polygon, .points = {{13, 14}, {15, 16}, {17, 18}}, .filled = true},
    }));
    EXPECT_TRUE(result.ok);
    EXPECT_EQ(result.error, "");
    EXPECT_EQ(result.advice, "");
    EXPECT_EQ(result.rows, (Rows{{1, 1, 2, 3, 4, 0},
                                 {2, 5, 6, 7, 0, 0},
                                 {3, 8, 9, 10, 11, 12},
                                 {4, 3, 0, 0, 0, 0},
                                 {0, 13, 14, 0, 0, 0},
                                 {0, 15, 16, 0, 0, 0},
                                 {0, 17, 18, 0, 0, 0}}));
}

// The script that draws rows fills every polygon once a fill is chosen, so an outline is none.
TEST(BuildSymbolRows, DrawsAPolygonThatIsNotFilledAsItsSides) {
    const SymbolStroke triangle = {.kind = Kind::Polygon, .points = {{0, 0}, {1, 0}, {0, 1}}};
    EXPECT_EQ(BuildSymbolRows(Drawn({triangle})).rows,
              (Rows{{1, 0, 0, 1, 0, 0}, {1, 1, 0, 0, 1, 0}, {1, 0, 1, 0, 0, 0}}));
}

TEST(BuildSymbolRows, MakesAPolygonOfAFilledCircleOrArc) {
    const SymbolStroke half = {.kind = Kind::Arc,
                               .points = {{0, 0}},
                               .radius = 1,
                               .beginAngle = 0,
                               .endAngle = 180,
                               .filled = true};
    const Rows rows = BuildSymbolRows(Drawn({half})).rows;
    ASSERT_EQ(rows.size(), 26U);
    EXPECT_EQ(rows[0], (SymbolRow{4, 25, 0, 0, 0, 0}));
    EXPECT_NEAR(rows[1][1], 1.0, 1e-15);
    EXPECT_NEAR(rows[25][1], -1.0, 1e-15);
}

TEST(BuildSymbolRows, DrawsTheFilledCircleInFortyNineRows) {
    const Rows rows = BuildSymbolRows(BuiltInSymbol(DefaultPlanSymbol)).rows;
    ASSERT_EQ(rows.size(), 49U);
    EXPECT_EQ(rows[0], (SymbolRow{4, 48, 0, 0, 0, 0}));
    for (std::size_t i = 1; i < rows.size(); ++i) {
        EXPECT_EQ(rows[i][0], 0.0);
        EXPECT_NEAR(std::hypot(rows[i][1], rows[i][2]), 1.0, 1e-15);
    }
}

TEST(BuildSymbolRows, TakesAPolygonOf255CornersAndNot256) {
    EXPECT_EQ(BuildSymbolRows(Drawn({Polygon(255, true)})).rows.size(), 256U);
    const SymbolRowsResult refused = BuildSymbolRows(Drawn({Polygon(256, true)}));
    EXPECT_FALSE(refused.ok);
    EXPECT_TRUE(refused.rows.empty());
    EXPECT_EQ(refused.error, "O desenho e detalhado demais para um simbolo.");
    EXPECT_EQ(refused.advice, "Ele precisa de 257 linhas de dados e o limite e 256. Simplifique "
                              "curvas e polilinhas.");
}

// Its sides, which are as many as its corners: there is no head.
TEST(BuildSymbolRows, TakesTheOutlineOfAPolygonOf256CornersAndNot257) {
    const Rows rows = BuildSymbolRows(Drawn({Polygon(256, false)})).rows;
    ASSERT_EQ(rows.size(), 256U);
    EXPECT_EQ(rows.front(), (SymbolRow{1, 0, 0.5, 1, 0.5, 0}));
    EXPECT_EQ(rows.back(), (SymbolRow{1, 255, 0.5, 0, 0.5, 0}));
    const SymbolRowsResult refused = BuildSymbolRows(Drawn({Polygon(257, false)}));
    EXPECT_FALSE(refused.ok);
    EXPECT_TRUE(refused.rows.empty());
    EXPECT_EQ(refused.advice, "Ele precisa de 257 linhas de dados e o limite e 256. Simplifique "
                              "curvas e polilinhas.");
}

TEST(BuildSymbolRows, CountsTheRowsOfAllStrokes) {
    const SymbolStroke line = {.kind = Kind::Line, .points = {{0, 0}, {1, 0}}};
    EXPECT_TRUE(BuildSymbolRows(Drawn(std::vector<SymbolStroke>(256, line))).ok);
    EXPECT_EQ(BuildSymbolRows(Drawn(std::vector<SymbolStroke>(1000, line))).advice,
              "Ele precisa de 1000 linhas de dados e o limite e 256. Simplifique curvas e "
              "polilinhas.");
    EXPECT_TRUE(BuildSymbolRows(Drawn({Polygon(254, true), line})).ok);
    EXPECT_FALSE(BuildSymbolRows(Drawn({Polygon(255, true), line})).ok);
}

TEST(BuildSymbolRows, LeavesOutWhatCanNotBeDrawn) {
    const SymbolRowsResult result =
        BuildSymbolRows(Drawn({{}, {.kind = Kind::Circle, .points = {{0, 0}}}, Polygon(2, true)}));
    EXPECT_TRUE(result.ok);
    EXPECT_TRUE(result.rows.empty());
}

TEST(SymbolData, FillsTheArrayWithZerosBehindTheRows) {
    const std::vector<double> data = SymbolData({{1, 2, 3, 4, 5, 6}, {7, 8, 9, 10, 11, 12}});
    ASSERT_EQ(data.size(), 1536U);
    for (std::size_t i = 0; i < data.size(); ++i) {
        EXPECT_EQ(data[i], i < 12 ? static_cast<double>(i + 1) : 0.0);
    }
}

TEST(SymbolData, HoldsNoMoreRowsThanTheArray) {
    EXPECT_EQ(SymbolData(Rows(300)).size(), 1536U);
    EXPECT_EQ(SymbolData({}), std::vector<double>(1536, 0.0));
}

} // namespace
} // namespace Merivane::Photometry
