#include <cmath>
#include <limits>
#include <vector>

#include <gtest/gtest.h>

#include "../Bodies/BodyChecks.hpp"
#include "ShapeRuns.hpp"

namespace Merivane::Workbench {
namespace {

using namespace Merivane::Tests;

TEST(ModelShapes, AreKnownByTheirWords) {
    for (const char* const known :
         {"BLOCK", "BRICK", "CYLIND", "SPHERE", "ELLIPS", "CONE", "VERT", "TEVE", "VECT", "EDGE",
          "PGON", "PIPG", "COOR", "BODY", "BASE"}) {
        EXPECT_TRUE(IsModelShape(known)) << known;
    }
    for (const char* const other : {"", "block", "BLOCKS", "ADDX", "LINE2", "PRISM_{9}", "ZZZ"}) {
        EXPECT_FALSE(IsModelShape(other)) << other;
    }
}

TEST(ModelShapes, CountTheirArguments) {
    EXPECT_EQ(Refusal("BLOCK", {1.0, 2.0}), "pede 3 argumentos e tem 2");
    EXPECT_EQ(Refusal("BLOCK", {1.0, 2.0, 3.0, 4.0}), "pede 3 argumentos e tem 4");
    EXPECT_EQ(Refusal("BLOCK", {1.0, 2.0, std::numeric_limits<double>::infinity()}),
              "o argumento 3 não é um número finito");
    ModelBuild build = EmptyBuild();
    EXPECT_EQ(BuildModelShape(build, "SPHERE", {{true, 0.0, "1"}}),
              "o argumento 1 deve ser um número");
    EXPECT_EQ(BuildModelShape(build, "NADA", {}), "não é um corpo que se conheça");
}

TEST(ModelShapes, LookOutsideInEveryFrame) {
    // Turned, moved and mirrored in every combination of the axes.
    for (int bits = 0; bits < 8; ++bits) {
        ModelBuild build = EmptyBuild();
        const double x = (bits & 1) != 0 ? -2.0 : 2.0;
        const double y = (bits & 2) != 0 ? -1.0 : 1.0;
        const double z = (bits & 4) != 0 ? -3.0 : 3.0;
        const double c = std::cos(0.7);
        const double s = std::sin(0.7);
        build.look.frame = {c * x, -s * y, 0, 5, s * x, c * y, 0, -7, 0, 0, z, 11};
        EXPECT_EQ(Build(build, "CYLIND", {2.0, 1.0}), "");
        EXPECT_EQ(Build(build, "CONE", {-2.0, 1.0, 0.5, 80.0, 90.0}), "");
        EXPECT_EQ(Build(build, "RECT", {2.0, 1.0}), "");
        ASSERT_EQ(build.model.bodies.size(), 3U);
        const Host::Body cylinder = Unplaced(build.model.bodies[0]);
        ExpectSolid(cylinder, 6.0 * 2.0 * 18.0 * std::sin(3.14159265358979 / 18.0));
        const Host::Body cone = Unplaced(build.model.bodies[1]);
        EXPECT_TRUE(IsClosed(cone));
        EXPECT_GT(Volume(cone), 0.0);
        // A plane shape shows the same side as before.
        const Host::Body rectangle = Unplaced(build.model.bodies[2]);
        EXPECT_EQ(DoubledArea(rectangle, rectangle.faces[0]).z > 0.0, z > 0.0);
    }
}

TEST(ModelShapes, AreLinesInAWireModel) {
    ModelBuild build = EmptyBuild();
    build.look.detail = ModelLook::Detail::Wire;
    build.look.pen = 3;
    EXPECT_EQ(Build(build, "BLOCK", {1.0, 2.0, 3.0}), "");
    EXPECT_TRUE(build.model.bodies.empty());
    EXPECT_EQ(build.model.wires.size(), 12U);
    double length = 0.0;
    for (const PartWire& wire : build.model.wires) {
        EXPECT_EQ(wire.pen, 3);
        length += std::hypot(wire.end.x - wire.begin.x, wire.end.y - wire.begin.y,
                             wire.end.z - wire.begin.z);
    }
    EXPECT_NEAR(length, 24.0, 1e-12);
    EXPECT_EQ(build.shapeCount, 12U);
}

TEST(ModelShapes, StopAtTheLimits) {
    ModelBuild build = EmptyBuild();
    build.shapeLimit = 13;
    EXPECT_EQ(Build(build, "BLOCK", {1.0, 1.0, 1.0}), "");
    EXPECT_EQ(Build(build, "BLOCK", {1.0, 1.0, 1.0}), "");
    EXPECT_EQ(build.shapeCount, 12U);
    EXPECT_EQ(build.vertexCount, 16U);
    EXPECT_EQ(Build(build, "BLOCK", {1.0, 1.0, 1.0}), "o modelo passa do limite de faces");
    build.shapeLimit = 100;
    build.vertexLimit = 20;
    EXPECT_EQ(Build(build, "BLOCK", {1.0, 1.0, 1.0}), "o modelo passa do limite de vértices");
    EXPECT_EQ(build.model.bodies.size(), 2U);
    build = EmptyBuild();
    build.look.tolerance = 1e-12;
    EXPECT_EQ(Build(build, "SPHERE", {1.0}), "o modelo passa do limite de faces");
}

TEST(ModelShapes, RefusePlacesBeyondNumbers) {
    ModelBuild build = EmptyBuild();
    build.look.frame[0] = 1e300;
    EXPECT_EQ(Build(build, "BLOCK", {1e300, 1.0, 1.0}), "as coordenadas são grandes demais");
    EXPECT_TRUE(build.model.bodies.empty());
}

} // namespace
} // namespace Merivane::Workbench
