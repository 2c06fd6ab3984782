#include <vector>

#include <gtest/gtest.h>

#include "Workbench/Interface/BoxClipping.hpp"

namespace Merivane::Workbench {
namespace {

using Points = std::vector<Drawing::Point>;

constexpr ClipBox Box = {10.0, 20.0, 30.0, 40.0};

TEST(ClipLine, GivesThePiecesInside) {
    struct Case {
        Points line;
        std::vector<Points> pieces;
    };
    const Case cases[] = {
        {{{12, 22}, {28, 38}}, {{{12, 22}, {28, 38}}}}, // inside
        {{{0, 30}, {40, 30}}, {{{10, 30}, {30, 30}}}},  // across
        {{{0, 20}, {40, 20}}, {{{10, 20}, {30, 20}}}},  // along an edge
        {{{0, 19}, {40, 19}}, {}},                      // beside it
        {{{0, 50}, {40, 50}}, {}},                      // below
        {{{20, 30}, {20, 50}, {25, 50}, {25, 30}},      // out and in again
         {{{20, 30}, {20, 40}}, {{25, 40}, {25, 30}}}},
        {{{0, 30}, {20, 30}, {20, 35}, {40, 35}}, {{{10, 30}, {20, 30}, {20, 35}, {30, 35}}}},
        {{{0, 0}}, {}},
        {{}, {}},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(ClipLine(c.line, Box), c.pieces);
    }
}

TEST(ClipPolygon, KeepsThePartInside) {
    EXPECT_EQ(ClipPolygon({{12, 22}, {28, 22}, {20, 38}}, Box),
              (Points{{12, 22}, {28, 22}, {20, 38}}));
    const Points square = ClipPolygon({{0, 0}, {100, 0}, {100, 100}, {0, 100}}, Box);
    EXPECT_EQ(square.size(), 4U);
    for (const Drawing::Point& point : square) {
        EXPECT_TRUE(point.x == 10 || point.x == 30);
        EXPECT_TRUE(point.y == 20 || point.y == 40);
    }
    EXPECT_TRUE(ClipPolygon({{0, 0}, {5, 0}, {5, 5}}, Box).empty());
    EXPECT_TRUE(ClipPolygon({}, Box).empty());
}

} // namespace
} // namespace Merivane::Workbench
