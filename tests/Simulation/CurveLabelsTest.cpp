#include <cmath>
#include <random>

#include <gtest/gtest.h>

#include "Simulation/CurveLabels.hpp"

namespace Merivane::Tests {

using namespace Simulation;

namespace {

/// A straight curve of `count` points from `start`, `step` apart along x.
IsoCurve Line(Point2D start, double step, int count) {
    IsoCurve curve;
    for (int k = 0; k < count; ++k) {
        curve.points.push_back({start.x + step * k, start.y});
    }
    return curve;
}

} // namespace

TEST(PlaceCurveLabels, TheFirstLabelFallsOnTheFirstPointOfItsCurve) {
    const CurveLabels labels = PlaceCurveLabels({Line({3, 4}, 1, 6)});
    ASSERT_EQ(labels.positions.size(), 1U);
    EXPECT_EQ(labels.positions[0], (Point2D{3, 4}));
    EXPECT_EQ(labels.unlabelled, 0U);
}

TEST(PlaceCurveLabels, ACurveOfFewerThanSixPointsGetsNone) {
    const CurveLabels labels = PlaceCurveLabels({Line({0, 0}, 1, 5), Line({0, 9}, 1, 6)});
    EXPECT_EQ(labels.positions[0], std::nullopt);
    EXPECT_EQ(labels.positions[1], (Point2D{0, 9}));
    EXPECT_EQ(labels.unlabelled, 1U);
}

TEST(PlaceCurveLabels, LaterLabelsKeepAsFarAwayAsTheyCan) {
    const CurveLabels labels =
        PlaceCurveLabels({Line({0, 0}, 1, 11), Line({0, 1}, 1, 11), Line({0, 2}, 1, 11)});
    EXPECT_EQ(labels.positions[0], (Point2D{0, 0}));
    EXPECT_EQ(labels.positions[1], (Point2D{10, 1}));
    EXPECT_EQ(labels.positions[2], (Point2D{5, 2})); // the farthest from both
}

TEST(PlaceCurveLabels, OfPointsEquallyFarTheFirstCounts) {
    IsoCurve second = Line({-1, 3}, 0.4, 6); // mirrored about x = 0
    const CurveLabels labels = PlaceCurveLabels({Line({0, 0}, 0, 6), second});
    EXPECT_EQ(labels.positions[1], (Point2D{-1, 3}));
}

TEST(PlaceCurveLabels, KeepsThirtyFiveCentimetresBetweenLabels) {
    const struct {
        double distance;
        bool labelled;
    } cases[] = {{0.3499, false}, {0.35, true}, {0.3501, true}};
    for (const auto& c : cases) {
        const CurveLabels labels =
            PlaceCurveLabels({Line({0, 0}, 0, 6), Line({c.distance, 0}, 0, 6)});
        EXPECT_EQ(labels.positions[1].has_value(), c.labelled) << c.distance;
        EXPECT_EQ(labels.unlabelled, c.labelled ? 0U : 1U);
    }
}

TEST(PlaceCurveLabels, KeepsTheWidthOfALabelWhereThatIsMore) {
    const struct {
        double width;
        double distance;
        bool labelled;
    } cases[] = {{1.2, 1.1999, false}, {1.2, 1.2, true},    {1.2, 1.2001, true},
                 {0.1, 0.3499, false}, {0.1, 0.35, true},   {0.35, 0.35, true},
                 {0.36, 0.35, false},  {-1.0, 0.349, false}};
    for (const auto& c : cases) {
        const CurveLabels labels =
            PlaceCurveLabels({Line({0, 0}, 0, 6), Line({c.distance, 0}, 0, 6)}, c.width);
        EXPECT_EQ(labels.positions[1].has_value(), c.labelled) << c.width << " " << c.distance;
        EXPECT_EQ(labels.unlabelled, c.labelled ? 0U : 1U);
    }
}

TEST(PlaceCurveLabels, TheFirstLabelOfAZoneHasRoomHoweverWideItIs) {
    EXPECT_EQ(PlaceCurveLabels({Line({0, 0}, 1, 6)}, 1e8).positions[0], (Point2D{0, 0}));
}

TEST(PlaceCurveLabels, FollowsTheFirstWishThatACurveHasAPlaceFor) {
    const LabelFilter beyondThree = [](const IsoCurve&, Point2D point) { return point.x > 3; };
    const LabelFilter beyondOne = [](const IsoCurve&, Point2D point) { return point.x > 1; };
    const std::vector<IsoCurve> curves = {Line({0, 0}, 1, 6), Line({0, 9}, 0.5, 6),
                                          Line({0, 18}, 0.1, 6)};
    const CurveLabels labels = PlaceCurveLabels(curves, 0.0, {beyondThree, beyondOne});
    EXPECT_EQ(labels.positions[0], (Point2D{4, 0}));
    EXPECT_EQ(labels.positions[1], (Point2D{1.5, 9})); // the farthest that the second one allows
    EXPECT_EQ(labels.positions[2], std::nullopt);
    EXPECT_EQ(labels.unlabelled, 1U);
}

TEST(PlaceCurveLabels, AWishedPlaceTooNearToALabelIsLeftForTheNextWish) {
    const LabelFilter atStart = [](const IsoCurve&, Point2D point) { return point.x == 0; };
    const LabelFilter anywhere = [](const IsoCurve&, Point2D) { return true; };
    const std::vector<IsoCurve> curves = {Line({0, 0}, 1, 6), Line({0, 0.3}, 1, 6)};
    EXPECT_EQ(PlaceCurveLabels(curves, 0.0, {atStart, anywhere}).positions[1], (Point2D{5, 0.3}));
    EXPECT_EQ(PlaceCurveLabels(curves, 0.0, {atStart}).positions[1], std::nullopt);
}

TEST(PlaceCurveLabels, PlacesAsLookingAtEveryPairDoes) {
    std::mt19937 random(11);
    std::vector<IsoCurve> curves(200);
    for (IsoCurve& curve : curves) {
        curve.points.resize(4 + random() % 30);
        for (Point2D& point : curve.points) {
            point = {0.1 * static_cast<double>(random() % 60),
                     0.1 * static_cast<double>(random() % 60)};
        }
    }
    std::vector<Point2D> placed;
    std::size_t without = 0;
    const CurveLabels labels = PlaceCurveLabels(curves);
    for (std::size_t c = 0; c < curves.size(); ++c) {
        double farthest = -1;
        Point2D best;
        for (const Point2D& p : curves[c].points) {
            double nearest = 1e9;
            for (const Point2D& q : placed) {
                nearest = std::min(nearest, std::hypot(p.x - q.x, p.y - q.y));
            }
            if (nearest > farthest) {
                farthest = nearest;
                best = p;
            }
        }
        if (curves[c].points.size() < 6 || farthest < 0.35) {
            EXPECT_EQ(labels.positions[c], std::nullopt) << c;
            ++without;
        } else {
            EXPECT_EQ(labels.positions[c], best) << c;
            placed.push_back(best);
        }
    }
    EXPECT_EQ(labels.unlabelled, without);
    EXPECT_GT(without, 0U);
}

TEST(TopmostPoint, IsTheLeftmostOfThoseEquallyHigh) {
    EXPECT_EQ(TopmostPoint({}), std::nullopt);
    EXPECT_EQ(TopmostPoint({IsoCurve()}), std::nullopt);
    EXPECT_EQ(TopmostPoint({Line({0, 1}, 1, 3), Line({5, 4}, -1, 3), Line({9, 2}, 1, 3)}),
              (Point2D{3, 4}));
    EXPECT_EQ(TopmostPoint({Line({5, 4}, 1, 2), Line({2, 4 - 0.9e-9}, 1, 2)}),
              (Point2D{2, 4 - 0.9e-9}));
    EXPECT_EQ(TopmostPoint({Line({5, 4}, 1, 2), Line({2, 4 - 1.1e-9}, 1, 2)}), (Point2D{5, 4}));
    EXPECT_EQ(TopmostPoint({Line({5, 4}, 1, 2), Line({7, 4 + 1.1e-9}, 1, 2)}),
              (Point2D{7, 4 + 1.1e-9}));
}

TEST(UnlabelledCurvesText, CountsThem) {
    EXPECT_EQ(UnlabelledCurvesText(3),
              "3 curva(s) sem rotulo (pequenas demais ou sem espaco livre)");
}

} // namespace Merivane::Tests
