#include <vector>

#include <gtest/gtest.h>

#include "../Bodies/BodyChecks.hpp"
#include "ShapeRuns.hpp"

namespace Merivane::Workbench {
namespace {

using namespace Merivane::Tests;

void AddCorners(ModelBuild& build) {
    for (const double z : {0.0, 1.0}) {
        EXPECT_EQ(Build(build, "VERT", {0, 0, z}), "");
        EXPECT_EQ(Build(build, "VERT", {1, 0, z}), "");
        EXPECT_EQ(Build(build, "TEVE", {1, 1, z, 0.5, 0.5}), "");
        EXPECT_EQ(Build(build, "VERT", {0, 1, z}), "");
    }
    for (const std::vector<double>& ends : std::vector<std::vector<double>>{{1, 2},
                                                                            {2, 3},
                                                                            {3, 4},
                                                                            {4, 1},
                                                                            {5, 6},
                                                                            {6, 7},
                                                                            {7, 8},
                                                                            {8, 5},
                                                                            {1, 5},
                                                                            {2, 6},
                                                                            {3, 7},
                                                                            {4, 8}}) {
        EXPECT_EQ(Build(build, "EDGE", {ends[0], ends[1], -1, -1, 0}), "");
    }
}

const std::vector<std::vector<double>> CubeFaces = {{-1, -4, -3, -2}, {5, 6, 7, 8},
                                                    {1, 10, -5, -9},  {2, 11, -6, -10},
                                                    {3, 12, -7, -11}, {4, 9, -8, -12}};

void AddFaceOf(ModelBuild& build, const std::vector<double>& edges) {
    std::vector<double> numbers = {static_cast<double>(edges.size()), 0, 0};
    numbers.insert(numbers.end(), edges.begin(), edges.end());
    EXPECT_EQ(Build(build, "PGON", numbers), "");
}

TEST(LowLevelBody, IsACubeOfVerticesEdgesAndPolygons) {
    ModelBuild build = EmptyBuild();
    AddCorners(build);
    for (const std::vector<double>& face : CubeFaces) {
        build.look.surface = static_cast<std::int32_t>(10 + face.size());
        AddFaceOf(build, face);
    }
    EXPECT_TRUE(build.model.bodies.empty());
    EXPECT_EQ(Build(build, "BODY", {1}), "");
    const Host::Body body = OnlyBody(build);
    ExpectSolid(body, 1.0);
    EXPECT_EQ(EulerCharacteristic(body), 2);
    EXPECT_EQ(FaceCount(body, 14), 6);
    EXPECT_EQ(build.shapeCount, 6U);
    EXPECT_EQ(build.vertexCount, 8U);
    // Nothing of it is left for the script's end.
    CloseOpenBody(build);
    EXPECT_EQ(build.model.bodies.size(), 1U);
    EXPECT_TRUE(build.model.wires.empty());
}

TEST(LowLevelBody, LooksOutsideHoweverItsPolygonsAreWalked) {
    // Every combination of faces walked the wrong way round, in a mirrored frame too.
    for (unsigned bits = 0; bits < 128; ++bits) {
        ModelBuild build = EmptyBuild();
        build.look.frame[0] = bits >= 64 ? -1.0 : 1.0;
        AddCorners(build);
        for (std::size_t i = 0; i < CubeFaces.size(); ++i) {
            std::vector<double> edges = CubeFaces[i];
            if ((bits >> i & 1U) != 0) {
                edges.assign(CubeFaces[i].rbegin(), CubeFaces[i].rend());
                for (double& edge : edges) {
                    edge = -edge;
                }
            }
            AddFaceOf(build, edges);
        }
        CloseOpenBody(build);
        ExpectSolid(OnlyBody(build), 1.0);
    }
}

TEST(LowLevelBody, EndsWithBaseAndWithTheNextShape) {
    ModelBuild build = EmptyBuild();
    AddCorners(build);
    AddFaceOf(build, CubeFaces[0]);
    EXPECT_EQ(Build(build, "BASE", {}), "");
    EXPECT_EQ(build.model.bodies.size(), 1U);
    EXPECT_EQ(Build(build, "EDGE", {1, 2, -1, -1, 0}), "o vértice 1 não existe");
    AddCorners(build);
    AddFaceOf(build, CubeFaces[1]);
    EXPECT_EQ(Build(build, "BLOCK", {1, 1, 1}), "");
    EXPECT_EQ(build.model.bodies.size(), 3U);
    EXPECT_EQ(Build(build, "EDGE", {1, 2, -1, -1, 0}), "o vértice 1 não existe");
    EXPECT_EQ(Build(build, "BODY", {}), "");
    CloseOpenBody(build);
    EXPECT_EQ(build.model.bodies.size(), 3U);
}

TEST(LowLevelBody, KeepsItsVerticesBehindBody) {
    ModelBuild build = EmptyBuild();
    AddCorners(build);
    AddFaceOf(build, CubeFaces[0]);
    EXPECT_EQ(Build(build, "BODY", {4}), "");
    AddFaceOf(build, CubeFaces[1]);
    EXPECT_EQ(Build(build, "BODY", {4}), "");
    ASSERT_EQ(build.model.bodies.size(), 2U);
    const Host::Body top = Unplaced(build.model.bodies[1]);
    ASSERT_EQ(top.faces.size(), 1U);
    EXPECT_EQ(top.vertices.size(), 4U);
    EXPECT_DOUBLE_EQ(DoubledArea(top, top.faces[0]).z, 2.0);
}

TEST(LowLevelBody, HasHolesInItsPolygons) {
    ModelBuild build = EmptyBuild();
    const double places[][2] = {{0, 0}, {4, 0}, {4, 4}, {0, 4}, {1, 1}, {1, 2}, {2, 2}, {2, 1}};
    for (const auto& place : places) {
        EXPECT_EQ(Build(build, "VERT", {place[0], place[1], 0}), "");
    }
    for (const double first : {1.0, 5.0}) {
        for (int i = 0; i < 4; ++i) {
            EXPECT_EQ(Build(build, "EDGE", {first + i, first + (i + 1) % 4, -1, -1, 0}), "");
        }
    }
    EXPECT_EQ(Build(build, "VECT", {0, 0, 1}), "");
    EXPECT_EQ(Build(build, "PGON", {9, -1, 32, 1, 2, 3, 4, 0, 5, 6, 7, 8}), "");
    EXPECT_EQ(Build(build, "COOR", {2, 1, 2, 4, 5}), "");
    CloseOpenBody(build);
    const Host::Body body = OnlyBody(build);
    ASSERT_EQ(body.faces.size(), 1U);
    EXPECT_EQ(FaceContours(body, body.faces[0]).size(), 2U);
    EXPECT_DOUBLE_EQ(DoubledArea(body, body.faces[0]).z, 2.0 * 15.0);
}

TEST(LowLevelBody, TakesPicturesAndWrappedPolygons) {
    ModelBuild build = EmptyBuild();
    AddCorners(build);
    std::vector<ScriptValue> picture = {{true, 0.0, "foto.png"}};
    for (const ScriptValue& value : Arguments({1, 1, 0, 4, 0, 0, 5, 6, 7, 8})) {
        picture.push_back(value);
    }
    EXPECT_EQ(BuildModelShape(build, "PIPG", picture), "");
    EXPECT_EQ(Build(build, "PGON{2}", {4, 0, 0, 1, -1, -4, -3, -2}), "");
    CloseOpenBody(build);
    EXPECT_EQ(OnlyBody(build).faces.size(), 2U);
}

TEST(LowLevelBody, IsLinesWithoutPolygons) {
    ModelBuild build = EmptyBuild();
    build.look.pen = 9;
    build.look.frame[3] = 10.0;
    EXPECT_EQ(Build(build, "VERT", {0, 0, 0}), "");
    EXPECT_EQ(Build(build, "VERT", {1, 0, 0}), "");
    EXPECT_EQ(Build(build, "EDGE", {1, 2, 0, 0, 0}), "");
    EXPECT_EQ(Build(build, "EDGE", {2, 1, 0, 0, 1}), ""); // invisible
    EXPECT_EQ(Build(build, "BODY", {-1}), "");
    CloseOpenBody(build);
    EXPECT_EQ(build.model.wires, (std::vector<PartWire>{{{10, 0, 0}, {11, 0, 0}, 9}}));
}

TEST(LowLevelBody, CutsPolygonsThatAreNotPlane) {
    ModelBuild build = EmptyBuild();
    for (const std::vector<double>& place : std::vector<std::vector<double>>{
             {0, 0, 0}, {1, 0, 0}, {1, 1, 1}, {0, 1, 0}, {-1, 0.5, 2}}) {
        EXPECT_EQ(Build(build, "VERT", place), "");
    }
    for (const std::vector<double>& ends :
         std::vector<std::vector<double>>{{1, 2}, {2, 3}, {3, 4}, {4, 5}, {5, 1}}) {
        EXPECT_EQ(Build(build, "EDGE", {ends[0], ends[1], -1, -1, 0}), "");
    }
    EXPECT_EQ(Build(build, "PGON", {5, 0, -1, 1, 2, 3, 4, 5}), "");
    CloseOpenBody(build);
    const Host::Body body = OnlyBody(build);
    EXPECT_EQ(body.faces.size(), 3U);
    EXPECT_LT(Unevenness(body), 1e-12);
}

TEST(LowLevelBody, TellsWhatDoesNotExist) {
    ModelBuild build = EmptyBuild();
    AddCorners(build);
    EXPECT_EQ(Build(build, "EDGE", {1, 9, -1, -1, 0}), "o vértice 9 não existe");
    EXPECT_EQ(Build(build, "EDGE", {0, 1, -1, -1, 0}), "o vértice 0 não existe");
    EXPECT_EQ(Build(build, "EDGE", {-2, 1, -1, -1, 0}), "o vértice -2 não existe");
    EXPECT_EQ(Build(build, "PGON", {4, 0, 0, 1, 2, 3, 13}), "a aresta 13 não existe");
    EXPECT_EQ(Build(build, "PGON", {4, 1, 0, 1, 2, 3, 4}), "a normal 1 não existe");
    EXPECT_EQ(Build(build, "PGON", {4, 0, 0, 1, 2, 3, 5}), "as arestas da face não se seguem");
    EXPECT_EQ(Build(build, "PGON", {5, 0, 0, 1, 2, 3, 4}), "pede pelo menos 8 argumentos e tem 7");
    EXPECT_EQ(Build(build, "PGON", {2, 0, 0, 1, 2, 3, 4}),
              "o número de arestas deve ser inteiro e pelo menos 3");
    EXPECT_EQ(Build(build, "PGON", {4, 0, 0}), "pede pelo menos 6 argumentos e tem 3");
    EXPECT_EQ(Build(build, "VERT", {4, 0}), "pede 3 argumentos e tem 2");
    EXPECT_EQ(Build(build, "COOR", {1, 1, 2, 3, 40}), "o vértice 40 não existe");
}

TEST(LowLevelBody, StopsAtTheLimits) {
    ModelBuild build = EmptyBuild();
    build.vertexLimit = 12;
    build.shapeLimit = 2;
    AddCorners(build);
    EXPECT_EQ(Build(build, "EDGE", {1, 2, -1, -1, 0}), "o modelo passa do limite de arestas");
    AddFaceOf(build, CubeFaces[0]);
    AddFaceOf(build, CubeFaces[1]);
    EXPECT_EQ(Build(build, "PGON", {4, 0, 0, 1, 10, -5, -9}), "o modelo passa do limite de faces");
    build.shapeLimit = 5;
    AddFaceOf(build, CubeFaces[2]);
    EXPECT_EQ(Build(build, "PGON", {4, 0, 0, 1, 10, -5, -9}),
              "o modelo passa do limite de vértices");
    for (int i = 0; i < 4; ++i) {
        EXPECT_EQ(Build(build, "VERT", {0, 0, 0}), "");
    }
    EXPECT_EQ(Build(build, "VERT", {0, 0, 0}), "o modelo passa do limite de vértices");
}

} // namespace
} // namespace Merivane::Workbench
