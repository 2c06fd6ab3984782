#include <gtest/gtest.h>

#include <cmath>

#include "Workbench/Script/ScriptPolyline.hpp"

namespace Merivane::Workbench {
namespace {

std::vector<PolylineContour> Expand(const std::vector<PolylineRow>& rows) {
    std::vector<PolylineContour> contours;
    EXPECT_EQ(ExpandPolyline(rows, {}, 100'000, contours), "");
    return contours;
}

/// The last point of the only ring.
Host::Coordinate LastPoint(const std::vector<PolylineRow>& rows) {
    const auto contours = Expand(rows);
    EXPECT_EQ(contours.size(), 1U);
    return contours.empty() ? Host::Coordinate() : contours[0].points.back();
}

TEST(Polyline, FollowsEveryCodeToItsPoint) {
    struct Row {
        std::vector<PolylineRow> rows;
        double x;
        double y;
    };
    const Row rows[] = {
        {{{0, 0, 1}, {2, 1, 1}}, 2, 1},
        {{{1, 1, 1}, {2, 1, 101}}, 3, 2},
        {{{1, 1, 1}, {2, 90, 201}}, 1, 3},
        {{{0, 0, 1}, {0, 1, 1}, {3, 0, 301}}, 0, 4},
        {{{0, 0, 1}, {0, 1, 800}, {3, 0, 301}}, 0, 3},
        {{{0, 0, 1}, {1, 0, 1}, {1, 2, 1001}}, 1, 2},               // half a circle
        {{{0, 0, 1}, {1, 0, 1}, {3, 0, 1001}}, 3, 0},               // straight ahead
        {{{0, 0, 1}, {1, 0, 1}, {2, 90, 2001}}, 3, 2},              // to the left
        {{{0, 0, 1}, {1, 0, 1}, {2, -90, 2001}}, 3, -2},            // to the right
        {{{1, 0, 1}, {0, 0, 900}, {0, 5, 3001}}, 0, 1},             // to a direction
        {{{1, 0, 1}, {0, 0, 900}, {0, -5, 3001}}, 0, -1},           // the shorter way
        {{{1, 0, 1}, {0, 0, 900}, {0, 270, 4001}}, 0, -1},          // by an angle
        {{{0, 0, 1}, {1, 0, 1}, {2, 90, 2001}, {1, 0, 301}}, 3, 3}, // the arc's tangent
    };
    for (const Row& row : rows) {
        const Host::Coordinate last = LastPoint(row.rows);
        EXPECT_NEAR(last.x, row.x, 1e-12) << row.rows.back().status;
        EXPECT_NEAR(last.y, row.y, 1e-12) << row.rows.back().status;
    }
}

TEST(Polyline, CutsArcsIntoChordsOfTheirStatus) {
    const auto contours = Expand({{0, 0, 15}, {1, 0, 79}, {2, 90, 2008}, {0, 5, 15}});
    ASSERT_EQ(contours.size(), 1U);
    const PolylineContour& ring = contours[0];
    ASSERT_EQ(ring.points.size(), 12U); // 9 chords of a quarter
    EXPECT_EQ(ring.status[0], 15);
    for (std::size_t i = 1; i <= 10; ++i) {
        EXPECT_EQ(ring.status[i], 8) << i;
        EXPECT_EQ(ring.onArc[i], i > 1 && i < 10) << i;
        EXPECT_NEAR(std::hypot(ring.points[i].x - 1, ring.points[i].y - 2), 2, 1e-12) << i;
    }
    EXPECT_FALSE(ring.closed);
}

TEST(Polyline, EndsRingsInEachWay) {
    const auto contours = Expand({{0, 0, 1},
                                  {4, 0, 1},
                                  {4, 4, 1},
                                  {0, 0, -1},
                                  {1, 1, 900},
                                  {0.5, 360, 4001},
                                  {2, 1, 600},
                                  {3, 1, 1},
                                  {3, 2, 1},
                                  {0, 0, 700}});
    ASSERT_EQ(contours.size(), 3U);
    EXPECT_EQ(contours[0].points.size(), 3U);
    EXPECT_EQ(contours[1].points.size(), 36U);
    EXPECT_EQ(contours[2].points.size(), 3U);
    for (const PolylineContour& ring : contours) {
        EXPECT_TRUE(ring.closed);
    }
}

TEST(Polyline, ClosesRingsThatRepeatTheirFirstPoint) {
    auto contours = Expand({{0, 0, 1}, {1, 0, 1}, {1, 1, 1}, {0, 0, 1}});
    EXPECT_EQ(contours[0].points.size(), 4U);
    CloseContours(contours);
    EXPECT_EQ(contours[0].points.size(), 3U);
    EXPECT_EQ(contours[0].status.size(), 3U);
    EXPECT_TRUE(contours[0].closed);
}

TEST(Polyline, RefusesCodesThatDoNotExist) {
    std::vector<PolylineContour> contours;
    EXPECT_EQ(ExpandPolyline({{0, 0, 1}, {0, 0, 1101}}, {}, 100, contours),
              "o código de estado 1101 não existe");
    EXPECT_EQ(ExpandPolyline({{0, 0, 1001}}, {}, 100, contours),
              "o código de estado 1001 precisa de um ponto antes dele");
    EXPECT_EQ(ExpandPolyline({{0, 0, 900}, {1, 360, 4001}}, {}, 20, contours),
              "pontos demais em um contorno");
}

TEST(CircleSegments, FollowResolutionToleranceAndRadius) {
    EXPECT_EQ(CircleSegments({}, 1), 36);
    EXPECT_EQ(CircleSegments({12}, 1), 12);
    EXPECT_EQ(CircleSegments({1}, 1), 3);
    EXPECT_EQ(CircleSegments({36, 1.0 - std::cos(std::acos(-1.0) / 10.0) + 1e-9}, 1), 10);
    EXPECT_EQ(CircleSegments({36, 2.0}, 1), 3);
    EXPECT_EQ(CircleSegments({36, 1e-30}, 1), 3600);
    EXPECT_EQ(CircleSegments({36, 0, 1, 3}, 0.5), 6);
    EXPECT_EQ(CircleSegments({36, 0, 1, 3}, 2), 21);
    EXPECT_EQ(CircleSegments({36, 0, 1, 3}, 5), 36);
    EXPECT_EQ(ArcSegments({}, 1, -90), 9);
    EXPECT_EQ(ArcSegments({}, 1, 91), 10);
    EXPECT_EQ(ArcSegments({}, 1, 0), 1);
}

} // namespace
} // namespace Merivane::Workbench
