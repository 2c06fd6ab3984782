#include <cmath>
#include <numbers>
#include <random>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "../Bodies/BodyChecks.hpp"
#include "ShapeRuns.hpp"
#include "Workbench/Script/BodyBooleans.hpp"
#include "Workbench/Script/BodyClipping.hpp"
#include "Workbench/Script/ScriptTransform.hpp"

namespace Merivane::Workbench {
namespace {

using namespace Merivane::Tests;

constexpr double Pi = std::numbers::pi;

FacedBody Shape(std::string_view keyword, const std::vector<double>& numbers,
                const ScriptFrame& frame = UnmovedFrame, std::int32_t surface = 7) {
    ModelBuild build = EmptyBuild();
    build.look.frame = frame;
    build.look.surface = surface;
    EXPECT_EQ(Build(build, keyword, numbers), "");
    EXPECT_EQ(build.model.bodies.size(), 1U);
    return build.model.bodies.empty() ? FacedBody{} : build.model.bodies.front();
}

FacedBody Box(double x, double y, double z, double a, double b, double c,
              std::int32_t surface = 7) {
    return Shape("BLOCK", {a, b, c}, MoveFrame(x, y, z), surface);
}

FacedBody Combined(FacedBody first, const FacedBody& second, BodyOperation operation) {
    SolidBudget budget{100'000'000};
    EXPECT_TRUE(CombineBodies(first, MakeTool(second), operation, budget));
    return first;
}

/// Volume of a closed body; fails the test for an open one.
double SolidVolume(const FacedBody& body) {
    if (body.faces.empty()) {
        return 0.0;
    }
    EXPECT_TRUE(IsClosed(Unplaced(body)));
    EXPECT_LT(Unevenness(Unplaced(body)), 1e-7);
    return Volume(Unplaced(body));
}

void ExpectVolumes(const FacedBody& a, const FacedBody& b, double common) {
    const double first = SolidVolume(a);
    const double second = SolidVolume(b);
    EXPECT_NEAR(SolidVolume(Combined(a, b, BodyOperation::Intersection)), common, 1e-9);
    EXPECT_NEAR(SolidVolume(Combined(a, b, BodyOperation::Difference)), first - common, 1e-9);
    EXPECT_NEAR(SolidVolume(Combined(b, a, BodyOperation::Difference)), second - common, 1e-9);
    // Of bodies apart from each other a union is the first one; who joins them keeps both.
    if (BodiesMeet(a, MakeTool(b))) {
        EXPECT_NEAR(SolidVolume(Combined(a, b, BodyOperation::Union)), first + second - common,
                    1e-9);
    }
}

TEST(BodyBooleans, HaveTheVolumesThatTheyShould) {
    const FacedBody box = Box(0, 0, 0, 2, 3, 4);
    const struct {
        const char* what;
        FacedBody other;
        double common;
    } rows[] = {
        {"a corner", Box(1, 2, 3, 5, 5, 5), 1.0},
        {"through", Box(0.5, 0.5, -1, 1, 1, 6), 4.0},
        {"apart", Box(5, 5, 5, 1, 1, 1), 0.0},
        {"equal", box, 24.0},
        {"beside, a whole face", Box(2, 0, 0, 2, 3, 4), 0.0},
        {"beside, part of a face", Box(2, 1, 1, 2, 1, 1), 0.0},
        {"beside, an edge", Box(2, 3, 0, 1, 1, 4), 0.0},
        {"beside, a corner", Box(2, 3, 4, 1, 1, 1), 0.0},
        {"inside", Box(0.5, 0.5, 0.5, 1, 1, 1), 1.0},
        {"inside on the floor", Box(0.5, 0.5, 0, 1, 1, 1), 1.0},
        {"inside along an edge", Box(0, 0, 1, 1, 1, 1), 1.0},
        {"inside in a corner", Box(0, 0, 0, 1, 1, 1), 1.0},
        {"flush with three faces", Box(0, 0, 1, 2, 5, 3), 18.0},
        {"a slice", Box(0, 0, 1, 2, 3, 1), 6.0},
        {"around", Box(-1, -1, -1, 9, 9, 9), 24.0},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        ExpectVolumes(box, row.other, row.common);
    }
}

TEST(BodyBooleans, LeaveFewFaces) {
    const FacedBody box = Box(0, 0, 0, 3, 3, 3);
    const FacedBody holed = Combined(box, Box(1, 1, -1, 1, 1, 5), BodyOperation::Difference);
    EXPECT_EQ(holed.faces.size(), 10U);
    EXPECT_EQ(holed.vertices.size(), 16U);
    const FacedBody pocket = Combined(box, Box(1, 1, 2, 1, 1, 5), BodyOperation::Difference);
    EXPECT_EQ(pocket.faces.size(), 11U);
    const FacedBody cavity = Combined(box, Box(1, 1, 1, 1, 1, 1), BodyOperation::Difference);
    EXPECT_EQ(cavity.faces.size(), 12U);
    EXPECT_EQ(cavity.vertices.size(), 16U);
    EXPECT_EQ(Combined(box, box, BodyOperation::Union).faces.size(), 6U);
    EXPECT_EQ(Combined(box, box, BodyOperation::Intersection).faces.size(), 6U);
    EXPECT_TRUE(Combined(box, box, BodyOperation::Difference).faces.empty());
    // A plate with a round hole: two faces with the hole in them, the rim and the hole's wall.
    const FacedBody plate =
        Combined(Box(-1, -1, 0, 2, 2, 0.1), Shape("CYLIND", {1.0, 0.5}, MoveFrame(0, 0, -0.5)),
                 BodyOperation::Difference);
    EXPECT_EQ(plate.faces.size(), 6U + 36U);
    EXPECT_NEAR(SolidVolume(plate), 0.4 - 0.1 * 18.0 * 0.25 * std::sin(Pi / 18.0), 1e-12);
}

TEST(BodyBooleans, MakeShellsOfRoundBodies) {
    const double circle = 18.0 * std::sin(Pi / 18.0); // 36 chords, radius 1
    const FacedBody outer = Shape("CYLIND", {1.0, 1.0});
    // Its ends flush with the outer one's, or inside.
    const FacedBody tube = Combined(outer, Shape("CYLIND", {1.0, 0.8}), BodyOperation::Difference);
    EXPECT_NEAR(SolidVolume(tube), circle * (1.0 - 0.64), 1e-12);
    EXPECT_EQ(tube.faces.size(), 74U);
    const FacedBody cup = Combined(outer, Shape("CYLIND", {1.0, 0.8}, MoveFrame(0, 0, 0.2)),
                                   BodyOperation::Difference);
    EXPECT_NEAR(SolidVolume(cup), circle * (1.0 - 0.64 * 0.8), 1e-12);
    const FacedBody ball = Shape("SPHERE", {1.0});
    const FacedBody other = Shape("SPHERE", {1.0}, MoveFrame(0.7, 0.3, 0.2));
    ExpectVolumes(ball, other, SolidVolume(Combined(other, ball, BodyOperation::Intersection)));
    ExpectVolumes(ball, ball, SolidVolume(ball));
    const FacedBody crossed = Shape("CYLIND", {4.0, 0.5}, TurnFrame(0, 1, 0, 90));
    ExpectVolumes(outer, crossed,
                  SolidVolume(Combined(crossed, outer, BodyOperation::Intersection)));
}

TEST(BodyBooleans, TakePrismsWithHoles) {
    const FacedBody frame =
        Shape("PRISM_", {10, 1, 0, 0,  15, 4, 0,  15, 4, 4,  15, 0, 4,  15, 0, 0,
                         -1, 1, 1, 15, 3,  1, 15, 3,  3, 15, 1,  3, 15, 1,  1, -1});
    EXPECT_NEAR(SolidVolume(frame), 12.0, 1e-12);
    ExpectVolumes(Box(0, 0, 0, 4, 4, 1), frame, 12.0);
    ExpectVolumes(Box(0, 0, 0.5, 4, 4, 1), frame, 6.0);
    ExpectVolumes(Box(2, 2, 0.5, 4, 4, 1), frame, 1.5);
    ExpectVolumes(Box(1, 1, 0, 2, 2, 1), frame, 0.0);
    ExpectVolumes(Box(1, 1, 0.25, 3, 2, 0.5), frame, 1.0);
}

TEST(BodyBooleans, KeepTheSurfaceOfEachFace) {
    const FacedBody cup =
        Combined(Box(0, 0, 0, 3, 3, 3, 4), Box(1, 1, 1, 1, 1, 2, 9), BodyOperation::Difference);
    EXPECT_NEAR(SurfaceArea(Unplaced(cup), 4), 54.0 - 1.0, 1e-12);
    EXPECT_NEAR(SurfaceArea(Unplaced(cup), 9), 9.0, 1e-12);
    // Faces in one plane that look the same way are the first body's.
    const FacedBody both =
        Combined(Box(0, 0, 0, 1, 1, 1, 4), Box(0.5, 0, 0, 1, 1, 1, 9), BodyOperation::Union);
    EXPECT_NEAR(SurfaceArea(Unplaced(both), 4), 5.0, 1e-12);
    EXPECT_NEAR(SurfaceArea(Unplaced(both), 9), 3.0, 1e-12);
}

ScriptFrame RandomFrame(std::mt19937& random) {
    std::uniform_real_distribution<double> number(-1.0, 1.0);
    return CombineFrames(
        MoveFrame(number(random), number(random), number(random)),
        TurnFrame(number(random), number(random), number(random) + 1.5, 180.0 * number(random)));
}

FacedBody RandomSolid(std::mt19937& random) {
    std::uniform_real_distribution<double> size(0.3, 2.0);
    const ScriptFrame frame = RandomFrame(random);
    const double a = size(random);
    const double b = size(random);
    const double c = size(random);
    switch (random() % 3) {
    case 0:
        return Shape("BLOCK", {a, b, c}, frame);
    case 1: // an L
        return Shape("PRISM", {6, c, 0, 0, 2 * a, 0, 2 * a, b, a, b, a, 2 * b, 0, 2 * b}, frame);
    default: // with a hole
        return Shape("PRISM_", {9, c,  0, 0, 15, 4 * a, 0, 15, 4 * a, 4 * b, 15, 0, 4 * b, 15, 0,
                                0, -1, a, b, 15, 2 * a, b, 15, a,     2 * b, 15, a, b,     -1},
                     frame);
    }
}

void ExpectInclusionAndExclusion(const FacedBody& a, const FacedBody& b) {
    const double first = SolidVolume(a);
    const double second = SolidVolume(b);
    const double common = SolidVolume(Combined(a, b, BodyOperation::Intersection));
    const double tolerance = 1e-9 * (first + second);
    EXPECT_GE(common, -tolerance);
    EXPECT_NEAR(SolidVolume(Combined(b, a, BodyOperation::Intersection)), common, tolerance);
    EXPECT_NEAR(SolidVolume(Combined(a, b, BodyOperation::Difference)), first - common, tolerance);
    if (BodiesMeet(a, MakeTool(b))) {
        EXPECT_NEAR(SolidVolume(Combined(a, b, BodyOperation::Union)), first + second - common,
                    tolerance);
    }
}

TEST(BodyBooleans, AddUpInRandomFrames) {
    std::mt19937 random(11);
    for (int i = 0; i < 300; ++i) {
        SCOPED_TRACE(i);
        const FacedBody a = RandomSolid(random);
        ExpectInclusionAndExclusion(a, RandomSolid(random));
    }
}

// In one turned frame, on a coarse grid: faces, edges and corners fall on each other all the time.
TEST(BodyBooleans, AddUpWhereFacesFallTogether) {
    std::mt19937 random(5);
    const auto whole = [&](int least, int most) {
        return static_cast<double>(
            least + static_cast<int>(random() % static_cast<unsigned>(most - least + 1)));
    };
    for (int i = 0; i < 300; ++i) {
        SCOPED_TRACE(i);
        const ScriptFrame frame = RandomFrame(random);
        const auto solid = [&] {
            const ScriptFrame moved =
                CombineFrames(frame, MoveFrame(whole(0, 2), whole(0, 2), whole(0, 2)));
            const double a = whole(1, 2);
            const double b = whole(1, 2);
            const double c = whole(1, 3);
            if (random() % 2 == 0) {
                return Shape("BLOCK", {a, b, c}, moved);
            }
            return Shape("PRISM", {6, c, 0, 0, 2 * a, 0, 2 * a, b, a, b, a, 2 * b, 0, 2 * b},
                         moved);
        };
        const FacedBody a = solid();
        ExpectInclusionAndExclusion(a, solid());
    }
}

TEST(BodyBooleans, GoOnFromTheirOwnResults) {
    FacedBody body = Box(-1, -1, -1, 2, 2, 2);
    const double before = SolidVolume(body);
    double gone = 0.0;
    std::mt19937 random(3);
    for (int i = 0; i < 30; ++i) {
        SCOPED_TRACE(i);
        const FacedBody tool = Shape("CYLIND", {0.7, 0.3}, RandomFrame(random));
        gone += SolidVolume(Combined(body, tool, BodyOperation::Intersection));
        body = Combined(body, tool, BodyOperation::Difference);
        ASSERT_NEAR(SolidVolume(body), before - gone, 1e-8);
    }
    EXPECT_LT(SolidVolume(body), 6.0);
}

TEST(BodyBooleans, CutSheetsAndIgnoreOpenTools) {
    const FacedBody sheet = Shape("RECT", {4, 4});
    const FacedBody box = Box(1, 1, -1, 1, 1, 2);
    const FacedBody outside = Combined(sheet, box, BodyOperation::Difference);
    ASSERT_EQ(outside.faces.size(), 1U);
    EXPECT_EQ(outside.faces[0].contours.size(), 2U);
    EXPECT_NEAR(SurfaceArea(Unplaced(outside), 7), 15.0, 1e-12);
    const FacedBody inside = Combined(sheet, box, BodyOperation::Intersection);
    EXPECT_NEAR(SurfaceArea(Unplaced(inside), 7), 1.0, 1e-12);
    EXPECT_EQ(SolidVolume(Combined(box, sheet, BodyOperation::Difference)), 2.0);
    EXPECT_TRUE(Combined(box, sheet, BodyOperation::Intersection).faces.empty());
}

TEST(BodyBooleans, StopWhereTheBudgetEnds) {
    FacedBody ball = Shape("SPHERE", {1.0});
    const FacedBody before = ball;
    const FacedBody other = Shape("SPHERE", {1.0}, MoveFrame(0.7, 0.3, 0.2));
    SolidBudget budget{1000};
    EXPECT_FALSE(CombineBodies(ball, MakeTool(other), BodyOperation::Difference, budget));
    EXPECT_EQ(budget.left, 0U);
    EXPECT_EQ(ball.vertices, before.vertices);
    EXPECT_EQ(ball.faces.size(), before.faces.size());
}

} // namespace
} // namespace Merivane::Workbench
