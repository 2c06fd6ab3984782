#include <cmath>
#include <numbers>

#include <gtest/gtest.h>

#include "Document/PlanScene.hpp"

namespace Merivane::Document {
namespace {

using Simulation::Point2D;
using Simulation::Point3D;
using Simulation::Scene;
using Simulation::SceneLuminaire;
using Simulation::SceneSurface;

constexpr double Quarter = std::numbers::pi / 2.0;

// A wall face over the line from a to b, from z = 0 to 3.
SceneSurface Face(Point2D a, Point2D b, int material = 0) {
    SceneSurface surface;
    surface.materialIndex = material;
    surface.vertices = {{a.x, a.y, 0}, {b.x, b.y, 0}, {b.x, b.y, 3}, {a.x, a.y, 3}};
    return surface;
}

Scene SceneOf(std::vector<SceneSurface> surfaces) {
    Scene scene;
    scene.materials.resize(2);
    scene.materials[1].isGlass = true;
    scene.surfaces = std::move(surfaces);
    return scene;
}

TEST(CutSurfaces, GivesTheLineOfEachUprightFaceByItsKind) {
    const std::vector<PlanSegment> segments =
        CutSurfaces(SceneOf({Face({0, 0}, {4, 0}), Face({4, 0}, {4, 3}, 1)}), 1.0);
    ASSERT_EQ(segments.size(), 2U);
    EXPECT_EQ(segments[0].kind, PlanSegmentKind::Wall);
    EXPECT_EQ(segments[0].start, (Point2D{0, 0}));
    EXPECT_EQ(segments[0].end, (Point2D{4, 0}));
    EXPECT_EQ(segments[1].kind, PlanSegmentKind::Glass);
}

TEST(CutSurfaces, CutsOnlyWhatPassesTheHeight) {
    struct Case {
        double z;
        std::size_t lines;
    };
    const Case cases[] = {{-0.001, 0}, {0.0, 1}, {0.001, 1}, {2.999, 1}, {3.0, 0}, {3.001, 0}};
    for (const Case& c : cases) {
        EXPECT_EQ(CutSurfaces(SceneOf({Face({0, 0}, {4, 0})}), c.z).size(), c.lines) << c.z;
    }
    SceneSurface floor;
    floor.vertices = {{0, 0, 1}, {4, 0, 1}, {4, 3, 1}, {0, 3, 1}};
    EXPECT_TRUE(CutSurfaces(SceneOf({floor}), 1.0).empty());
}

TEST(CutSurfaces, AFaceWithADoorwayGivesALineOnEitherSide) {
    SceneSurface wall;
    wall.vertices = {{0, 0, 0},   {1, 0, 0}, {1, 0, 2.1}, {1.9, 0, 2.1},
                     {1.9, 0, 0}, {5, 0, 0}, {5, 0, 3},   {0, 0, 3}};
    const std::vector<PlanSegment> segments = CutSurfaces(SceneOf({wall}), 1.0);
    ASSERT_EQ(segments.size(), 2U);
    EXPECT_EQ(segments[0].end, (Point2D{1, 0}));
    EXPECT_EQ(segments[1].start, (Point2D{1.9, 0}));
    EXPECT_EQ(CutSurfaces(SceneOf({wall}), 2.5).size(), 1U);
}

TEST(CutSurfaces, LeavesOutRepeatsShortLinesAndFacesWithoutMaterial) {
    const Scene scene = SceneOf({
        Face({0, 0}, {4, 0}),
        Face({4, 0}, {0, 0.0002}), // the wall's other face
        Face({0, 0}, {4, 0}, 1),   // of another kind: stays
        Face({0, 0}, {0.0005, 0}),
        Face({9, 0}, {9, 5}, -1),
        Face({9, 0}, {9, 5}, 2),
        SceneSurface{},
    });
    EXPECT_EQ(CutSurfaces(scene, 1.0).size(), 2U);
}

TEST(CutSurfaces, ASlantedFaceIsCutWhereItPassesTheHeight) {
    SceneSurface roof;
    roof.vertices = {{0, 0, 0}, {4, 0, 0}, {4, 3, 3}, {0, 3, 3}};
    const std::vector<PlanSegment> segments = CutSurfaces(SceneOf({roof}), 1.0);
    ASSERT_EQ(segments.size(), 1U);
    EXPECT_NEAR(segments[0].start.y, 1.0, 1e-12);
    EXPECT_NEAR(segments[0].end.y, 1.0, 1e-12);
    EXPECT_NEAR(std::abs(segments[0].end.x - segments[0].start.x), 4.0, 1e-12);
}

// A rectangular opening of 1.2 m along C0 and 0.3 m across, at (5, 6).
SceneLuminaire Linear() {
    SceneLuminaire luminaire;
    luminaire.photometry.length = 1.2;
    luminaire.photometry.width = 0.3;
    luminaire.x = 5;
    luminaire.y = 6;
    return luminaire;
}

PlanLuminaire Only(const SceneLuminaire& luminaire) {
    Scene scene;
    scene.luminaires = {luminaire};
    const std::vector<PlanLuminaire> openings = CollectPlanLuminaires(scene);
    EXPECT_EQ(openings.size(), 1U);
    return openings.front();
}

TEST(CollectPlanLuminaires, GivesOpeningAndPlace) {
    const PlanLuminaire opening = Only(Linear());
    EXPECT_EQ(opening.center, (Point2D{5, 6}));
    EXPECT_DOUBLE_EQ(opening.length, 1.2);
    EXPECT_DOUBLE_EQ(opening.width, 0.3);
    EXPECT_DOUBLE_EQ(opening.rotation, 0.0);
    EXPECT_FALSE(opening.round);
}

TEST(CollectPlanLuminaires, TellsFeetInMetres) {
    SceneLuminaire luminaire = Linear();
    luminaire.photometry.unitsType = 1;
    EXPECT_NEAR(Only(luminaire).length, 1.2 * 0.3048, 1e-12);
}

TEST(CollectPlanLuminaires, ANegativeDiameterIsRound) {
    SceneLuminaire luminaire = Linear();
    luminaire.photometry.length = -0.2;
    luminaire.photometry.width = -0.2;
    const PlanLuminaire opening = Only(luminaire);
    EXPECT_TRUE(opening.round);
    EXPECT_DOUBLE_EQ(opening.length, 0.2);
    EXPECT_DOUBLE_EQ(opening.width, 0.2);
}

TEST(CollectPlanLuminaires, TurnsMirrorsAndShiftsAsTheLightIs) {
    struct Case {
        double rotation;   // rad
        double c0Rotation; // deg
        bool mirrored;
        double angle; // rad, of C0 in plan
        Point2D center;
    };
    const Case cases[] = {
        {0.0, 0.0, false, 0.0, {5.5, 6}},
        {Quarter, 0.0, false, Quarter, {5, 6.5}},
        {0.0, 90.0, false, Quarter, {5.5, 6}},
        {0.0, 30.0, true, std::numbers::pi * 5 / 6, {4.5, 6}},
        {Quarter, 0.0, true, -Quarter, {5, 5.5}},
    };
    for (const Case& c : cases) {
        SceneLuminaire luminaire = Linear();
        luminaire.rotation = c.rotation;
        luminaire.mirrored = c.mirrored;
        luminaire.contract.c0Rotation = c.c0Rotation;
        luminaire.contract.centerX = 0.5;
        const PlanLuminaire opening = Only(luminaire);
        EXPECT_NEAR(std::cos(opening.rotation), std::cos(c.angle), 1e-12);
        EXPECT_NEAR(std::sin(opening.rotation), std::sin(c.angle), 1e-12);
        EXPECT_NEAR(opening.center.x, c.center.x, 1e-12);
        EXPECT_NEAR(opening.center.y, c.center.y, 1e-12);
    }
}

TEST(CollectPlanLuminaires, ATiltedOpeningIsShorterInPlan) {
    SceneLuminaire luminaire = Linear();
    luminaire.contract.tiltAngle = 60;
    EXPECT_NEAR(Only(luminaire).length, 0.6, 1e-12);
    EXPECT_NEAR(Only(luminaire).width, 0.3, 1e-12);
    luminaire.contract.tiltDirection = 90; // now across
    EXPECT_NEAR(Only(luminaire).length, 1.2, 1e-12);
    EXPECT_NEAR(Only(luminaire).width, 0.15, 1e-12);
    luminaire.contract.tiltDirection = 0;
    luminaire.contract.tiltAngle = 90; // C0 points upwards: C90 tells the angle
    EXPECT_NEAR(Only(luminaire).rotation, 0.0, 1e-12);
}

TEST(CollectPlanLuminaires, APieceOfARunIsAsLongAsItsPart) {
    SceneLuminaire luminaire = Linear();
    luminaire.lengthScale = 0.5;
    EXPECT_DOUBLE_EQ(Only(luminaire).length, 0.6);
    EXPECT_DOUBLE_EQ(Only(luminaire).width, 0.3);
    std::swap(luminaire.photometry.length, luminaire.photometry.width);
    EXPECT_DOUBLE_EQ(Only(luminaire).width, 0.6);
}

TEST(CollectPlanLuminaires, EachCopyOfAnArrayStandsByItself) {
    Scene scene;
    scene.luminaires = {Linear()};
    scene.luminaires[0].arrayCountX = 3;
    scene.luminaires[0].arrayCountY = 2;
    scene.luminaires[0].arrayStepX = 1.5;
    scene.luminaires[0].arrayStepY = -2.0;
    scene.luminaires[0].rotation = 1.0; // the array does not turn with it
    const std::vector<PlanLuminaire> openings = CollectPlanLuminaires(scene);
    ASSERT_EQ(openings.size(), 6U);
    EXPECT_EQ(openings[2].center, (Point2D{8, 6}));
    EXPECT_EQ(openings[5].center, (Point2D{8, 4}));
}

} // namespace
} // namespace Merivane::Document
