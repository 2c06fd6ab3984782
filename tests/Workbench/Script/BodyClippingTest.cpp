#include <cmath>
#include <numbers>
#include <random>
#include <vector>

#include <gtest/gtest.h>

#include "../Bodies/BodyChecks.hpp"
#include "ShapeRuns.hpp"
#include "Workbench/Script/BodyClipping.hpp"

namespace Merivane::Workbench {
namespace {

using namespace Merivane::Tests;

/// What a statement builds below a plane, in a solid model.
Host::Body Cut(const CuttingPlane& plane, std::string_view keyword,
               const std::vector<double>& numbers) {
    ModelBuild build = EmptyBuild();
    build.cuts = {plane};
    EXPECT_EQ(Build(build, keyword, numbers), "");
    return OnlyBody(build);
}

TEST(CutBodies, AreHalvesWithACap) {
    const Host::Body block = Cut({{0, 0, 1.5}, {0, 0, 1}}, "BLOCK", {2, 3, 4});
    ExpectSolid(block, 9.0);
    EXPECT_EQ(block.vertices.size(), 8U);
    EXPECT_EQ(EulerCharacteristic(block), 2);
    const Host::Body sphere = Built("SPHERE", {1.0});
    for (const Host::Coordinate3D& normal :
         {Host::Coordinate3D{0, 0, 1}, {0, 0, -2}, {1, 0, 0}, {0, 1, 0}, {1, 2, 3}}) {
        ExpectSolid(Cut({{0, 0, 0}, normal}, "SPHERE", {1.0}), Volume(sphere) / 2.0);
    }
}

TEST(CutBodies, AddUpToTheWholeInRandomPlanes) {
    std::mt19937 random(7);
    std::uniform_real_distribution<double> number(-1.0, 1.0);
    for (int i = 0; i < 40; ++i) {
        const CuttingPlane plane = {{number(random), number(random), number(random)},
                                    {number(random), number(random), number(random)}};
        const CuttingPlane other = {plane.point,
                                    {-plane.normal.x, -plane.normal.y, -plane.normal.z}};
        for (const auto& [keyword, numbers] :
             {std::pair{"ELBOW", std::vector<double>{2.0, 200.0, 1.0}},
              {"CONE", {2.0, 1.0, 0.0, 90.0, 90.0}},
              {"BLOCK", {1.0, 1.0, 1.0}}}) {
            const Host::Body whole = Built(keyword, numbers);
            double volume = 0.0;
            for (const CuttingPlane& side : {plane, other}) {
                ModelBuild build = EmptyBuild();
                build.cuts = {side};
                EXPECT_EQ(Build(build, keyword, numbers), "");
                for (const FacedBody& piece : build.model.bodies) {
                    EXPECT_TRUE(IsClosed(Unplaced(piece)));
                    volume += Volume(Unplaced(piece));
                }
            }
            EXPECT_NEAR(volume, Volume(whole), 1e-9);
        }
    }
}

TEST(CutBodies, StayWholeOrGoWhereThePlaneOnlyTouches) {
    ExpectSolid(Cut({{0, 0, 4}, {0, 0, 1}}, "BLOCK", {2, 3, 4}), 24.0);
    ModelBuild build = EmptyBuild();
    build.cuts = {{{0, 0, 0}, {0, 0, 1}}};
    EXPECT_EQ(Build(build, "BLOCK", {2, 3, 4}), "");
    EXPECT_TRUE(build.model.bodies.empty());
    // Through opposite edges: the new faces use the old vertices.
    const Host::Body wedge = Cut({{0, 0, 0}, {-1, 0, 1}}, "BLOCK", {1, 1, 1});
    ExpectSolid(wedge, 0.5);
    EXPECT_EQ(wedge.vertices.size(), 6U);
    EXPECT_EQ(wedge.faces.size(), 5U);
}

TEST(CutBodies, HaveCapsWithHolesAndInPieces) {
    // Lying on its side, a ring is cut into two pieces; upright, its cut is an annulus.
    const Host::Body ring = Built("ELBOW", {2.0, 360.0, 0.5});
    const Host::Body pieces = Cut({{2.0, 0, 0}, {1, 0, 0}}, "ELBOW", {2.0, 360.0, 0.5});
    ExpectSolid(pieces, Volume(ring) / 2.0);
    const Host::Body annulus = Cut({{0, 0, 0}, {0, 1, 0}}, "ELBOW", {2.0, 360.0, 0.5});
    ExpectSolid(annulus, Volume(ring) / 2.0);
    int holed = 0;
    for (const Host::BodyFace& face : annulus.faces) {
        holed += FaceContours(annulus, face).size() == 2 ? 1 : 0;
    }
    EXPECT_EQ(holed, 1);
}

TEST(CutBodies, TakeSeveralPlanes) {
    ModelBuild build = EmptyBuild();
    build.cuts = {{{0, 0, 1}, {0, 0, 1}}, {{1, 0, 0}, {1, 0, 0}}, {{0, 1, 0}, {0, -1, 0}}};
    EXPECT_EQ(Build(build, "BLOCK", {2, 3, 4}), "");
    ExpectSolid(OnlyBody(build), 1.0 * 2.0 * 1.0);
}

TEST(CutBodies, AreOpenInASurfaceModelAndCutLines) {
    ModelBuild build = EmptyBuild();
    build.look.detail = ModelLook::Detail::Surface;
    build.cuts = {{{0, 0, 1}, {0, 0, 1}}};
    EXPECT_EQ(Build(build, "BLOCK", {1, 1, 2}), "");
    EXPECT_EQ(OnlyBody(build).faces.size(), 5U);
    EXPECT_EQ(Build(build, "CYLIND", {3.0, 0.0}), "");
    EXPECT_EQ(build.model.wires, (std::vector<PartWire>{{{0, 0, 0}, {0, 0, 1}, 1}}));
}

TEST(CutBodies, CapOnlyWhatIsClosed) {
    ModelBuild build = EmptyBuild();
    build.cuts = {{{2, 0, 0}, {1, 0, 0}}};
    EXPECT_EQ(Build(build, "ARMC", {1.0, 0.25, 3.0, 2.0, 0.0, 90.0}), "");
    for (const Host::BodyFace& face : OnlyBody(build).faces) {
        EXPECT_LE(FaceContours(OnlyBody(build), face)[0].size(), 4U);
    }
}

TEST(CutLine, KeepsWhatLiesBelow) {
    const CuttingPlane plane = {{0, 0, 1}, {0, 0, 1}};
    Host::Coordinate3D begin = {0, 0, 0};
    Host::Coordinate3D end = {0, 2, 2};
    EXPECT_TRUE(CutLine(begin, end, plane));
    EXPECT_EQ(end, (Host::Coordinate3D{0, 1, 1}));
    begin = {0, 0, 3};
    EXPECT_TRUE(CutLine(begin, end = {0, 0, 0}, plane));
    EXPECT_EQ(begin, (Host::Coordinate3D{0, 0, 1}));
    EXPECT_FALSE(CutLine(begin = {0, 0, 1}, end = {0, 0, 2}, plane));
    EXPECT_TRUE(CutLine(begin = {0, 0, 1}, end = {1, 0, 1}, plane));
}

TEST(SplitFaces, KeepABodyClosed) {
    ModelBuild build = EmptyBuild();
    EXPECT_EQ(Build(build, "ELBOW", {2.0, 360.0, 0.5}), "");
    FacedBody body = build.model.bodies[0];
    const double volume = Volume(Unplaced(body));
    for (const double x : {0.3, 1.0, 2.0, 3.7}) {
        SplitFaces(body, {{x, 0, 0}, {1, 0, 0}});
    }
    ExpectSolid(Unplaced(body), volume);
    EXPECT_GT(body.faces.size(), build.model.bodies[0].faces.size());
    for (const ContouredFace& face : body.faces) {
        for (const double x : {0.3, 1.0, 2.0, 3.7}) {
            bool below = false;
            bool above = false;
            for (const std::int32_t vertex : face.contours[0]) {
                const double at = body.vertices[static_cast<std::size_t>(vertex)].x;
                below = below || at < x - 1e-9;
                above = above || at > x + 1e-9;
            }
            EXPECT_FALSE(below && above);
        }
    }
}

} // namespace
} // namespace Merivane::Workbench
