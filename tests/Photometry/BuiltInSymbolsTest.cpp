#include "Photometry/BuiltInSymbols.hpp"

#include <algorithm>
#include <cmath>
#include <set>

#include <gtest/gtest.h>

#include "Photometry/SymbolRows.hpp"

namespace Merivane::Photometry {
namespace {

using Kind = SymbolStrokeKind;

/// The points that a stroke does not go beyond.
std::vector<SymbolPoint> Reach(const SymbolStroke& stroke) {
    return stroke.kind == Kind::Line ? stroke.points : OutlinePoints(stroke);
}

TEST(BuiltInSymbols, StandInTheOrderOfTheirIdentifiers) {
    const std::vector<std::string> expected = {
        "Forma real do modelo",
        "Círculo com X",
        "Círculo cheio",
        "Círculo com ponto",
        "Círculo meio cheio",
        "Quadrado",
        "Quadrado com X",
        "Quadrado com círculo",
        "Retângulo (tubular)",
        "Arandela (meio círculo)",
        "Losango",
        "Círculo com cruz",
        "Círculo duplo",
        "Sol (raios)",
        "Spot direcional",
        "Triângulo",
        "Triângulo cheio",
        "Hexágono",
        "Octógono",
        "Quadrado cheio",
        "Quadrado meio cheio",
        "Quadrado com ponto",
        "Retângulo com X",
        "Retângulo cheio",
        "Dois tubos",
        "Arandela cheia",
        "Pendente",
        "Emergência",
        "Trilho",
        "Losango cheio",
        "Estrela",
    };
    const std::vector<PlanSymbol> symbols = BuiltInSymbols();
    ASSERT_EQ(symbols.size(), expected.size());
    for (std::size_t i = 0; i < symbols.size(); ++i) {
        EXPECT_EQ(symbols[i].id, static_cast<int>(i));
        EXPECT_EQ(symbols[i].name, expected[i]);
        EXPECT_FALSE(symbols[i].hidden);
        EXPECT_EQ(symbols[i], BuiltInSymbol(static_cast<int>(i)));
    }
}

TEST(BuiltInSymbols, AreDrawnButForNoSymbol) {
    for (const PlanSymbol& symbol : BuiltInSymbols()) {
        SCOPED_TRACE(symbol.name);
        EXPECT_EQ(symbol.strokes.empty(), symbol.id == NoPlanSymbol);
        EXPECT_TRUE(std::all_of(symbol.strokes.begin(), symbol.strokes.end(), IsDrawable));
    }
}

// Half the printed size is the drawing's unit, so a drawing beyond it would be too large and one
// far inside too small.
TEST(BuiltInSymbols, FillTheUnitCircleAndKeepToIt) {
    for (const PlanSymbol& symbol : BuiltInSymbols()) {
        SCOPED_TRACE(symbol.name);
        double reach = 0.0;
        for (const SymbolStroke& stroke : symbol.strokes) {
            for (const SymbolPoint& point : Reach(stroke)) {
                reach = std::max(reach, std::hypot(point.x, point.y));
            }
        }
        EXPECT_LE(reach, 1.0 + 1e-12);
        EXPECT_GE(reach, symbol.id == NoPlanSymbol ? 0.0 : 0.95);
    }
}

TEST(BuiltInSymbols, FitTheNumbersThatALuminaireCarries) {
    for (const PlanSymbol& symbol : BuiltInSymbols()) {
        SCOPED_TRACE(symbol.name);
        EXPECT_TRUE(BuildSymbolRows(symbol).ok);
    }
}

TEST(BuiltInSymbols, AreAllDifferent) {
    std::set<std::vector<SymbolRow>> drawings;
    for (const PlanSymbol& symbol : BuiltInSymbols()) {
        EXPECT_TRUE(drawings.insert(BuildSymbolRows(symbol).rows).second) << symbol.name;
    }
}

TEST(BuiltInSymbols, AreFilledWhereTheirNameSaysSo) {
    const std::set<int> filled = {2, 16, 19, 23, 29};            // "cheio": nothing but the fill
    const std::set<int> partly = {3, 4, 14, 20, 21, 25, 26, 28}; // beside lines
    for (const PlanSymbol& symbol : BuiltInSymbols()) {
        SCOPED_TRACE(symbol.name);
        const auto isFilled = [](const SymbolStroke& stroke) { return stroke.filled; };
        const auto count = std::count_if(symbol.strokes.begin(), symbol.strokes.end(), isFilled);
        EXPECT_EQ(count > 0, filled.contains(symbol.id) || partly.contains(symbol.id));
        EXPECT_EQ(filled.contains(symbol.id), symbol.strokes.size() == 1 && count == 1);
    }
}

TEST(BuiltInSymbol, FillsTheUnitCircleByDefault) {
    const PlanSymbol symbol = BuiltInSymbol(DefaultPlanSymbol);
    EXPECT_EQ(symbol.id, 2);
    EXPECT_EQ(symbol.name, "Círculo cheio");
    ASSERT_EQ(symbol.strokes.size(), 1U);
    const SymbolStroke expected = {
        .kind = Kind::Circle, .points = {{0, 0}}, .radius = 1, .filled = true};
    EXPECT_EQ(symbol.strokes[0], expected);
}

TEST(BuiltInSymbol, CrossesACircleUpToItsLine) {
    const std::vector<SymbolRow> rows = BuildSymbolRows(BuiltInSymbol(1)).rows;
    ASSERT_EQ(rows.size(), 3U);
    EXPECT_EQ(rows[0], (SymbolRow{2, 0, 0, 1, 0, 0}));
    for (std::size_t i = 1; i < rows.size(); ++i) {
        EXPECT_EQ(rows[i][0], 1.0);
        EXPECT_NEAR(std::hypot(rows[i][1], rows[i][2]), 1.0, 1e-15);
        EXPECT_NEAR(std::hypot(rows[i][3], rows[i][4]), 1.0, 1e-15);
    }
}

TEST(BuiltInSymbol, HasRegularPolygons) {
    const std::pair<int, std::size_t> cases[] = {{15, 3}, {17, 6}, {18, 8}, {10, 4}, {30, 10}};
    for (const auto& [id, corners] : cases) {
        SCOPED_TRACE(id);
        const PlanSymbol symbol = BuiltInSymbol(id);
        ASSERT_EQ(symbol.strokes.size(), 1U);
        EXPECT_EQ(symbol.strokes[0].kind, Kind::Polygon);
        ASSERT_EQ(symbol.strokes[0].points.size(), corners);
        const std::vector<SymbolPoint>& points = symbol.strokes[0].points;
        const auto side = [&](std::size_t i) {
            const SymbolPoint& a = points[i];
            const SymbolPoint& b = points[(i + 1) % points.size()];
            return std::hypot(b.x - a.x, b.y - a.y);
        };
        for (std::size_t i = 1; i < corners; ++i) {
            EXPECT_NEAR(side(i), side(0), 1e-12);
        }
    }
}

TEST(BuiltInSymbol, HasTheWallBehindAWallLuminaire) {
    for (const int id : {9, 25}) {
        const PlanSymbol symbol = BuiltInSymbol(id);
        ASSERT_EQ(symbol.strokes.size(), 2U);
        EXPECT_EQ(symbol.strokes[0].points, (std::vector<SymbolPoint>{{-1, 0}, {1, 0}}));
        for (const SymbolPoint& point : OutlinePoints(symbol.strokes[1])) {
            EXPECT_LE(point.y, 1e-12);
        }
    }
}

TEST(BuiltInSymbol, PointsASpotAtTheRight) {
    const PlanSymbol spot = BuiltInSymbol(14);
    const SymbolStroke& head = spot.strokes.back();
    EXPECT_TRUE(head.filled);
    EXPECT_EQ(head.points[0].y, 0.0);
    EXPECT_GT(head.points[0].x, head.points[1].x);
    EXPECT_EQ(head.points[1].y, -head.points[2].y);
}

TEST(BuiltInSymbol, HasNeitherNameNorDrawingWhereItIsNotBuiltIn) {
    for (const int id : {-1, 31, 1000}) {
        const PlanSymbol symbol = BuiltInSymbol(id);
        EXPECT_EQ(symbol.id, id);
        EXPECT_EQ(symbol.name, "");
        EXPECT_TRUE(symbol.strokes.empty());
    }
}

TEST(IsBuiltInSymbol, IsTrueFromNoSymbolToTheStar) {
    EXPECT_FALSE(IsBuiltInSymbol(-1));
    EXPECT_TRUE(IsBuiltInSymbol(NoPlanSymbol));
    EXPECT_TRUE(IsBuiltInSymbol(30));
    EXPECT_FALSE(IsBuiltInSymbol(31));
}

} // namespace
} // namespace Merivane::Photometry
