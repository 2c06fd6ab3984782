#include "Archicad/ObjectPreview.hpp"

#include <cmath>
#include <numbers>
#include <random>
#include <utility>

#include <gtest/gtest.h>

#include "ModelSample.hpp"
#include "Workbench/Session.hpp"

namespace Merivane::Archicad {
namespace {

using namespace Merivane::Tests;

constexpr std::uint32_t Lamp = 2;

void ExpectPlace(const Host::Coordinate3D& place, const Host::Coordinate3D& expected) {
    EXPECT_NEAR(place.x, expected.x, 1e-9);
    EXPECT_NEAR(place.y, expected.y, 1e-9);
    EXPECT_NEAR(place.z, expected.z, 1e-9);
}

/// A lamp whose body is a box from (-0.1, -0.1, 0) to (0.1, 0.1, 0.1), moved to a corner so that
/// turning and mirroring tell.
Workbench::Project OneLamp() {
    Workbench::Project project = SampleProject();
    const std::int32_t part = AddLampPart(project, "Plafon");
    for (Host::Coordinate3D& vertex : project.parts.back().bodies[0].vertices) {
        vertex = {vertex.x + 0.1, vertex.y + 0.4, vertex.z - 0.3};
    }
    AddLamp(project, Lamp, part, {20.0, -30.0});
    return project;
}

ObjectPreview Preview(Workbench::Project project) {
    OpenSample(std::move(project));
    Host::Element element;
    EXPECT_EQ(Host::GetElement(NumberedGuid(Lamp), element), Host::NoError);
    return BuildObjectPreview(element);
}

TEST(BuildObjectPreview, GivesTheBoxInThePartsOwnCoordinatesHoweverItIsPlaced) {
    std::mt19937_64 random(6);
    std::uniform_real_distribution<double> turn(-10.0, 10.0);
    for (int i = 0; i < 20; ++i) {
        Workbench::Project project = OneLamp();
        auto& element = project.elements[0].element;
        auto& object = std::get<Host::ObjectData>(element.data);
        object.angle = turn(random);
        object.mirrored = i % 2 == 1;
        object.level = turn(random);
        element.header.floorIndex = static_cast<std::int16_t>(i % 3 == 0);
        const ObjectPreview preview = Preview(std::move(project));
        EXPECT_TRUE(preview.geometryRead);
        ExpectPlace(preview.lowest, {0.0, 0.3, -0.3});
        ExpectPlace(preview.highest, {0.2, 0.5, -0.2});
        EXPECT_EQ(preview.edges.size(), 12U);
    }
}

TEST(BuildObjectPreview, LeavesOutEdgesInsideFlatFaces) {
    Workbench::Project project = OneLamp();
    auto& faces = project.parts.back().bodies[0].faces;
    faces[1] = {{{4, 5, 6}}, {}, "Difusor"}; // the upper face as two triangles
    faces.push_back({{{4, 6, 7}}, {}, "Difusor"});
    EXPECT_EQ(Preview(std::move(project)).edges.size(), 12U);
}

TEST(BuildObjectPreview, KeepsTheEdgesWhereAnOpenBodyEnds) {
    Workbench::Project project = OneLamp();
    auto& body = project.parts.back().bodies[0];
    body.faces = {{{{4, 5, 6}}, {}, "Difusor"}, {{{4, 6, 7}}, {}, "Difusor"}};
    const ObjectPreview preview = Preview(std::move(project));
    EXPECT_EQ(preview.edges.size(), 4U);
    for (const PreviewEdge& edge : preview.edges) {
        EXPECT_NEAR(edge.from.z, -0.2, 1e-9);
        EXPECT_NEAR(std::hypot(edge.to.x - edge.from.x, edge.to.y - edge.from.y), 0.2, 1e-9);
    }
}

TEST(BuildObjectPreview, KeepsEdgesThatBendByMoreThanADegree) {
    struct Case {
        double degrees;
        std::size_t edges;
    };
    for (const Case& c : {Case{0.9, 4}, {1.1, 5}}) {
        Workbench::Project project = OneLamp();
        auto& body = project.parts.back().bodies[0];
        const double bend = c.degrees * std::numbers::pi / 180.0;
        body.vertices = {{0, 0, 0},
                         {1, 0, 0},
                         {1, 1, 0},
                         {0, 1, 0},
                         {1 + std::cos(bend), 0, std::sin(bend)},
                         {1 + std::cos(bend), 1, std::sin(bend)}};
        body.faces = {{{{0, 1, 2, 3}}, {}, "Difusor"}, {{{1, 4, 5, 2}}, {}, "Difusor"}};
        EXPECT_EQ(Preview(std::move(project)).edges.size(), c.edges + 2) << c.degrees;
    }
}

TEST(BuildObjectPreview, TellsWhereNothingCanBeRead) {
    Workbench::Project hidden = OneLamp();
    hidden.elements[0].element.header.layer = {2};
    EXPECT_EQ(Preview(std::move(hidden)), ObjectPreview{});
    Workbench::Project empty = OneLamp();
    empty.parts.back().bodies.clear();
    EXPECT_EQ(Preview(std::move(empty)), ObjectPreview{});
    for (const char* operation : {"GetStories", "GetBodies"}) {
        OpenSample(OneLamp());
        Host::Element element;
        EXPECT_EQ(Host::GetElement(NumberedGuid(Lamp), element), Host::NoError);
        Workbench::FailCall(operation, 1, Host::GeneralError);
        EXPECT_EQ(BuildObjectPreview(element), ObjectPreview{}) << operation;
        EXPECT_TRUE(BuildObjectPreview(element).geometryRead);
    }
    Host::Element line;
    line.header.type = Host::ElementType::Line;
    EXPECT_EQ(BuildObjectPreview(line), ObjectPreview{});
}

} // namespace
} // namespace Merivane::Archicad
