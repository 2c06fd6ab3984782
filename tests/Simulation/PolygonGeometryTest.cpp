#include <cmath>
#include <limits>
#include <vector>

#include <gtest/gtest.h>

#include "Simulation/PolygonGeometry.hpp"
#include "Simulation/RandomPolygons.hpp"

namespace Merivane::Simulation {
namespace {

const Polygon2D Square{{{0, 0}, {10, 0}, {10, 10}, {0, 10}}, {}};
const Polygon2D SquareWithHole{{{0, 0}, {10, 0}, {10, 10}, {0, 10}},
                               {{{4, 4}, {6, 4}, {6, 6}, {4, 6}}}};

TEST(OuterBounds, SpansTheOuterRingAndIgnoresHoles) {
    Polygon2D polygon{{{1, 5}, {-2, 3}, {4, -1}}, {{{-9, -9}, {9, 9}, {0, 9}}}};
    const Bounds2D bounds = OuterBounds(polygon);
    EXPECT_EQ(bounds.minimum, (Point2D{-2, -1}));
    EXPECT_EQ(bounds.maximum, (Point2D{4, 5}));
}

TEST(OuterBounds, IsZeroWithoutVertices) {
    const Bounds2D bounds = OuterBounds({});
    EXPECT_EQ(bounds.minimum, (Point2D{}));
    EXPECT_EQ(bounds.maximum, (Point2D{}));
}

TEST(BoundaryEdges, CloseEveryRingOfTwoOrMoreVertices) {
    const Polygon2D polygon{{{0, 0}, {1, 0}, {0, 1}}, {{{5, 5}}, {}, {{2, 2}, {3, 3}}}};
    const std::vector<Edge2D> edges = BoundaryEdges(polygon);
    ASSERT_EQ(edges.size(), 5U);
    EXPECT_EQ(edges[2].from, (Point2D{0, 1}));
    EXPECT_EQ(edges[2].to, (Point2D{0, 0}));
    EXPECT_EQ(edges[4].from, (Point2D{3, 3}));
    EXPECT_EQ(edges[4].to, (Point2D{2, 2}));
}

TEST(DistanceToBoundary, IsThatToTheNearestEdge) {
    struct Case {
        Point2D point;
        double distance;
    };
    const Case cases[] = {
        {{1, 5}, 1.0},             // nearest to a side, inside
        {{-3, 5}, 3.0},            // outside
        {{-3, -4}, 5.0},           // beyond both ends: the corner
        {{13, 14}, 5.0},           // the closing corner
        {{5, 3.5}, 0.5},           // the hole's edge
        {{5, 5}, 1.0},             // inside the hole
        {{5, 0}, 0.0},             // on the ring
        {{10, 10}, 0.0},           // on a vertex
        {{4.5, 6.25}, 0.25},       // the hole from above
        {{0.5, 0.75}, 0.5},        // a closing edge (0,10)-(0,0)
        {{20, 5}, 10.0},           //
        {{7, 7}, std::sqrt(2.0)},  // corner of the hole
        {{1e6, 5}, 1e6 - 10.0},    //
        {{5, 10.000000002}, 2e-9}, //
    };
    for (const Case& c : cases) {
        EXPECT_NEAR(DistanceToBoundary(SquareWithHole, c.point), c.distance, 1e-12)
            << c.point.x << " " << c.point.y;
    }
}

TEST(DistanceToBoundary, OfAnEdgeWithoutLengthIsThatToItsPoint) {
    EXPECT_DOUBLE_EQ(DistanceToBoundary({{{1, 1}, {1, 1}}, {}}, {4, 5}), 5.0);
}

TEST(DistanceToBoundary, TakesRingsOfTwoVertices) {
    EXPECT_DOUBLE_EQ(DistanceToBoundary({{{0, 0}, {4, 0}}, {}}, {2, 3}), 3.0);
    EXPECT_DOUBLE_EQ(DistanceToBoundary({{}, {{{0, 0}, {4, 0}}}}, {2, 3}), 3.0);
}

TEST(DistanceToBoundary, IsInfiniteWithoutEdges) {
    const double infinity = std::numeric_limits<double>::infinity();
    EXPECT_EQ(DistanceToBoundary({}, {1, 1}), infinity);
    EXPECT_EQ(DistanceToBoundary({{{1, 1}}, {{{2, 2}}, {}}}, {1, 1}), infinity);
}

TEST(IsInsidePolygon, FollowsOuterRingAndHoles) {
    struct Case {
        Point2D point;
        bool inside;
    };
    const Case cases[] = {
        {{1, 1}, true},
        {{-1, 5}, false},
        {{5, 5}, false},            // in the hole
        {{4, 5}, true},             // on the ring of the hole
        {{4, 4}, true},             // on a vertex of the hole
        {{0, 5}, true},             // on the outer ring
        {{10, 10}, true},           // on a vertex
        {{10.0000000005, 5}, true}, // within 1e-9 of the ring
        {{10.000000002, 5}, false}, // beyond it
        {{4.0000000005, 5}, true},  // the same on the inner side of the hole
        {{4.000000002, 5}, false},  //
        {{-5, 0}, false},           // level with an edge
        {{-5, 10}, false},          //
        {{-5, 4}, false},           // level with the hole's vertices
        {{2, 4}, true},             //
        {{8, 6}, true},             //
    };
    for (const Case& c : cases) {
        EXPECT_EQ(IsInsidePolygon(SquareWithHole, c.point), c.inside)
            << c.point.x << " " << c.point.y;
    }
}

TEST(IsInsidePolygon, DoesNotMindTheOrientation) {
    const Polygon2D clockwise{{{0, 10}, {10, 10}, {10, 0}, {0, 0}}, {}};
    EXPECT_TRUE(IsInsidePolygon(clockwise, {3, 3}));
    EXPECT_FALSE(IsInsidePolygon(clockwise, {11, 3}));
}

TEST(IsInsidePolygon, IsFalseForFewerThanThreeOuterVertices) {
    EXPECT_FALSE(IsInsidePolygon({{{0, 0}, {4, 0}}, {}}, {2, 0}));
    EXPECT_FALSE(IsInsidePolygon({}, {0, 0}));
}

TEST(IsInsidePolygon, LeavesAHoleOfTwoVerticesOut) {
    const Polygon2D polygon{{{0, 0}, {10, 0}, {10, 10}, {0, 10}}, {{{2, 2}, {8, 8}}}};
    EXPECT_TRUE(IsInsidePolygon(polygon, {5, 5}));
    EXPECT_TRUE(IsInsidePolygon(polygon, {5, 4}));
}

TEST(IsInsidePolygon, IsEvenOddWhereTheRingCrossesItself) {
    // A five-pointed star drawn in one line: its middle is enclosed twice.
    Polygon2D star;
    for (int k = 0; k < 5; ++k) {
        const double angle = 1.5707963267948966 + 2.0 * k * 2.0 * 3.141592653589793 / 5.0;
        star.outer.push_back({std::cos(angle), std::sin(angle)});
    }
    EXPECT_FALSE(IsInsidePolygon(star, {0, 0}));
    EXPECT_TRUE(IsInsidePolygon(star, {0, 0.7}));
}

TEST(SpanInsidePolygon, CutsTheSegmentAtTheRings) {
    struct Case {
        const char* name;
        Polygon2D polygon;
        Point2D a;
        Point2D b;
        std::vector<SegmentSpan> spans;
    };
    const Polygon2D u{{{0, 0}, {9, 0}, {9, 9}, {6, 9}, {6, 3}, {3, 3}, {3, 9}, {0, 9}}, {}};
    const Case cases[] = {
        {"wholly inside", Square, {2, 2}, {5, 6}, {{0, 5}}},
        {"through", Square, {-5, 5}, {15, 5}, {{5, 15}}},
        {"through the hole", SquareWithHole, {-5, 5}, {15, 5}, {{5, 9}, {11, 15}}},
        {"outside", Square, {-5, 20}, {15, 20}, {}},
        {"ends inside", Square, {-2, 5}, {3, 5}, {{2, 5}}},
        {"through two vertices",
         Square,
         {-1, -1},
         {11, 11},
         {{std::sqrt(2.0), 11 * std::sqrt(2.0)}}},
        {"touches one vertex", Square, {-1, 1}, {1, -1}, {}},
        {"along an edge", Square, {-5, 0}, {15, 0}, {{5, 15}}},
        {"along the bottom of a notch", u, {-1, 3}, {10, 3}, {{1, 10}}},
        {"above the notch", u, {-1, 5}, {10, 5}, {{1, 4}, {7, 10}}},
        {"against the ring's turn", u, {10, 5}, {-1, 5}, {{1, 4}, {7, 10}}},
        {"along the hole's edge", SquareWithHole, {-5, 4}, {15, 4}, {{5, 15}}},
        {"shorter than a piece", Square, {5, 5}, {5 + 9e-7, 5}, {}},
        {"just long enough", Square, {5, 5}, {5 + 1.1e-6, 5}, {{0, 1.1e-6}}},
        {"no length", Square, {5, 5}, {5, 5}, {}},
        {"two vertices", {{{0, 0}, {4, 0}}, {}}, {1, 0}, {3, 0}, {}},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        const std::vector<SegmentSpan> spans = SpanInsidePolygon(c.polygon, c.a, c.b);
        ASSERT_EQ(spans.size(), c.spans.size());
        for (std::size_t i = 0; i < spans.size(); ++i) {
            EXPECT_NEAR(spans[i].start, c.spans[i].start, 1e-9);
            EXPECT_NEAR(spans[i].end, c.spans[i].end, 1e-9);
        }
    }
}

TEST(SpanInsidePolygon, GivesOnePieceForACrossingInsideThatBoundsNothing) {
    // A hole of two vertices has no inside and cuts nothing.
    const Polygon2D polygon{{{0, 0}, {10, 0}, {10, 10}, {0, 10}}, {{{5, 0}, {5, 10}}}};
    EXPECT_EQ(SpanInsidePolygon(polygon, {1, 5}, {9, 5}), (std::vector<SegmentSpan>{{0, 8}}));
}

TEST(SpanInsidePolygon, JoinsPiecesThatMeetOnARing) {
    // Two triangles in one ring that touch at (5, 5): the segment stays inside through the vertex.
    const Polygon2D bowTie{{{0, 0}, {10, 10}, {10, 0}, {0, 10}}, {}};
    const std::vector<SegmentSpan> spans = SpanInsidePolygon(bowTie, {0, 5}, {10, 5});
    ASSERT_EQ(spans.size(), 1U);
    EXPECT_NEAR(spans[0].start, 0.0, 1e-9);
    EXPECT_NEAR(spans[0].end, 10.0, 1e-9);
}

TEST(SpanInsidePolygon, KeepsPiecesApartThatAGapParts) {
    // A slit too thin for a piece of its own still ends one stretch and begins the next.
    Polygon2D slit = Square;
    slit.holes.push_back({{5, 2}, {5 + 5e-7, 2}, {5 + 5e-7, 8}, {5, 8}});
    const std::vector<SegmentSpan> spans = SpanInsidePolygon(slit, {1, 5}, {9, 5});
    ASSERT_EQ(spans.size(), 2U);
    EXPECT_NEAR(spans[0].end, 4.0, 1e-9);
    EXPECT_NEAR(spans[1].start, 4.0 + 5e-7, 1e-9);
}

TEST(SpanInsidePolygon, FindsTheEndOfASpikeWithoutWidth) {
    const Polygon2D spiked{{{0, 0}, {10, 0}, {10, 5}, {14, 5}, {10, 5}, {10, 10}, {0, 10}}, {}};
    const std::vector<SegmentSpan> spans = SpanInsidePolygon(spiked, {5, 5}, {20, 5});
    ASSERT_EQ(spans.size(), 1U);
    EXPECT_NEAR(spans[0].end, 9.0, 1e-9);
}

// Asks both functions about 50 places of the segment from `a` to `b`.
void ExpectSpansToAgree(const Polygon2D& polygon, Point2D a, Point2D b, Tests::Random& random) {
    const double length = std::hypot(b.x - a.x, b.y - a.y);
    const std::vector<SegmentSpan> spans = SpanInsidePolygon(polygon, a, b);
    for (int k = 0; k < 50; ++k) {
        const double at = Tests::Uniform(random, 0.0, length);
        const Point2D point{a.x + (b.x - a.x) * at / length, a.y + (b.y - a.y) * at / length};
        if (DistanceToBoundary(polygon, point) < 1e-5) {
            continue; // too near to call
        }
        bool spanned = false;
        for (const SegmentSpan& span : spans) {
            spanned = spanned || (at >= span.start && at <= span.end);
        }
        ASSERT_EQ(spanned, IsInsidePolygon(polygon, point));
    }
}

Point2D AroundPolygon(const Polygon2D& polygon, Tests::Random& random) {
    const Bounds2D bounds = OuterBounds(polygon);
    return {Tests::Uniform(random, bounds.minimum.x - 1.0, bounds.maximum.x + 1.0),
            Tests::Uniform(random, bounds.minimum.y - 1.0, bounds.maximum.y + 1.0)};
}

// The point `share` of the way from `a` to `b`.
Point2D Along(Point2D a, Point2D b, double share) {
    return {a.x + share * (b.x - a.x), a.y + share * (b.y - a.y)};
}

TEST(SpanInsidePolygon, AgreesWithTheInsideTestAlongRandomSegments) {
    Tests::Random random(20);
    for (int round = 0; round < 300; ++round) {
        SCOPED_TRACE(round);
        const Polygon2D polygon = Tests::RandomPolygon(random);
        const Point2D a = AroundPolygon(polygon, random);
        ExpectSpansToAgree(polygon, a, AroundPolygon(polygon, random), random);
    }
}

TEST(SpanInsidePolygon, AgreesWithTheInsideTestThroughVerticesAndAlongEdges) {
    Tests::Random random(21);
    for (int round = 0; round < 300; ++round) {
        SCOPED_TRACE(round);
        Polygon2D polygon = Tests::RandomPolygon(random);
        // A hole of two vertices cuts nothing, but places on it count as inside.
        std::erase_if(polygon.holes, [](const auto& hole) { return hole.size() < 3; });
        const Point2D a = AroundPolygon(polygon, random);
        for (const Edge2D& edge : BoundaryEdges(polygon)) {
            ExpectSpansToAgree(polygon, a, Along(a, edge.to, 2.7), random);
            ExpectSpansToAgree(polygon, Along(edge.from, edge.to, -3.3),
                               Along(edge.from, edge.to, 4.1), random);
        }
    }
}

TEST(SpanInsidePolygon, GivesNothingForWhatIsNoNumber) {
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const double infinity = std::numeric_limits<double>::infinity();
    EXPECT_TRUE(SpanInsidePolygon(Square, {nan, 0}, {5, 5}).empty());
    EXPECT_TRUE(SpanInsidePolygon(Square, {0, 0}, {infinity, 5}).empty());
    Polygon2D broken = Square;
    broken.outer[1].x = nan;
    SpanInsidePolygon(broken, {-5, 5}, {15, 5}); // must not read or sort wrongly
}

} // namespace
} // namespace Merivane::Simulation
