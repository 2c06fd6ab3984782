#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "Host/Elements.hpp"
#include "Host/Model3D.hpp"
#include "Workbench/Model/ElementBodies.hpp"
#include "Workbench/Model/ElementBounds.hpp"
#include "Workbench/Session.hpp"

namespace Merivane::Workbench {
namespace {

using Host::ElementType;

Host::Guid Numbered(int number) {
    Host::Guid guid;
    guid.bytes[0] = static_cast<std::uint8_t>(number);
    return guid;
}

Host::Contour Square(double x, double y, double side) {
    return {{{x, y}, {x + side, y}, {x + side, y + side}, {x, y + side}}, {}};
}

ProjectElement& Add(Project& project, int number, ElementType type, ModelGeometry geometry = {}) {
    ProjectElement& added = project.elements.emplace_back();
    added.element.header.type = type;
    added.element.header.guid = Numbered(number);
    added.element.header.layer = {1};
    added.geometry = std::move(geometry);
    return added;
}

/// A wall 1 on story 1 (at 3 m) with a window 2 and an empty opening 3, a column 4 of one segment
/// 5, a Zone 6, a wall without geometry 7, an object 8 of the second of two parts.
Project SampleProject() {
    Project project = MakeEmptyProject();
    project.stories.push_back({1, 3.0, 3.0, "Superior"});
    project.layers[2] = {"Oculta", true, false};
    project.layers[3] = {"Travada", false, true};
    Add(project, 1, ElementType::Wall,
        WallGeometry{{0, 0}, {5, 0}, 0.0, 0.2, 0.0, 2.8, {1}, {2}, {3}})
        .element.header.floorIndex = 1;
    Add(project, 2, ElementType::Window,
        OpeningGeometry{Numbered(1), 1.5, 1.0, 0.9, 1.1, 0.05, 0.06, {6}, {7}, false});
    Add(project, 3, ElementType::Door,
        OpeningGeometry{Numbered(1), 4.0, 0.8, 0.0, 2.1, 0.05, 0.06, {6}, {7}, true});
    Add(project, 4, ElementType::Column).parts = {
        {Numbered(5), ElementType::ColumnSegment,
         PrismGeometry{{Square(2, 2, 0.5)}, 0.0, 3.0, {3}}}};
    Add(project, 6, ElementType::Zone).element.data = Host::ZoneData{};
    Add(project, 7, ElementType::Wall);
    ProjectPart first;
    first.surfaces = {{"Vidro", {1, 1, 1}, 0.2, 0.7}, {"Aro", {0, 0, 0}, 0.9, 0.0}};
    ProjectPart second;
    second.surfaces = {{"Aro", {0.5, 0.5, 0.5}, 0.8, 0.0}, {"Difusor", {1, 1, 1}, 0.6, 0.5}};
    GivenBody body;
    body.vertices = {{0, 0, 0}, {1, 0, 0}, {0, 1, 0}, {0, 0, 1}};
    body.faces = {{{{0, 2, 1}}, {4}, ""},
                  {{{0, 1, 3}}, {}, "Difusor"},
                  {{{0, 3, 2}}, {}, "Aro"},
                  {{{1, 2, 3}}, {}, "Vidro"}};
    second.bodies = {body};
    project.parts = {first, second};
    Host::ObjectData object;
    object.libraryIndex = 2;
    object.position = {10, 20};
    object.level = 0.5;
    Add(project, 8, ElementType::Object).element.data = object;
    return project;
}

void Open(Project project) {
    OpenSession({});
    OpenProject(std::move(project));
}

std::vector<Host::Body> BodiesOf(int number) {
    std::vector<Host::Body> bodies;
    EXPECT_EQ(Host::GetBodies(Numbered(number), bodies), Host::NoError) << number;
    return bodies;
}

TEST(HostModel3D, CutsTheWindowsAndDoorsIntoTheirWall) {
    Open(SampleProject());
    const std::vector<Host::Body> wall = BodiesOf(1);
    ASSERT_EQ(wall.size(), 1U);
    EXPECT_EQ(wall[0].faces.size(), 2U + 5U + 3U + 4U);
    EXPECT_EQ(BodiesOf(2).size(), 1U);
    EXPECT_TRUE(BodiesOf(3).empty());
}

TEST(HostModel3D, LiftsBodiesToTheirStoryAndOpeningsToThatOfTheirWall) {
    Open(SampleProject());
    EXPECT_EQ(BodiesOf(1)[0].transform[11], 3.0);
    EXPECT_EQ(BodiesOf(2)[0].transform[11], 3.0);
    EXPECT_EQ(BodiesOf(8)[0].transform[11], 0.5);
}

TEST(HostModel3D, CutsNoMoreAfterAnOpeningIsDeleted) {
    Open(SampleProject());
    ASSERT_EQ(Host::CallUndoable("Apagar",
                                 [] {
                                     return Host::DeleteElements({Numbered(2), Numbered(3)});
                                 }),
              Host::NoError);
    EXPECT_EQ(BodiesOf(1)[0].faces.size(), 6U);
    ASSERT_TRUE(Undo());
    EXPECT_EQ(BodiesOf(1)[0].faces.size(), 14U);
}

TEST(HostModel3D, HasBodiesOfPartsNotOfTheirWhole) {
    Open(SampleProject());
    std::vector<Host::Body> bodies(3);
    EXPECT_EQ(Host::GetBodies(Numbered(4), bodies), Host::NoBody);
    EXPECT_EQ(bodies.size(), 3U);
    EXPECT_EQ(BodiesOf(5).size(), 1U);
}

TEST(HostModel3D, RefusesWhatTheRealHostRefuses) {
    Open(SampleProject());
    std::vector<Host::Body> bodies;
    EXPECT_EQ(Host::GetBodies(Numbered(99), bodies), Host::BadId);
    EXPECT_EQ(Host::GetBodies({}, bodies), Host::BadId);
    EXPECT_EQ(Host::GetBodies(Numbered(6), bodies), Host::NoBody);
    EXPECT_EQ(Host::GetBodies(Numbered(7), bodies), Host::GeneralError);
    for (const auto& [layer, code] : {std::pair{2, Host::HiddenLayer}, {3, Host::LockedLayer}}) {
        for (ProjectElement& element : CurrentSession().project.elements) {
            element.element.header.layer = {layer};
        }
        for (const int number : {1, 2, 4, 5, 6, 7, 8}) {
            EXPECT_EQ(Host::GetBodies(Numbered(number), bodies), code) << number;
        }
    }
    CloseProject();
    EXPECT_EQ(Host::GetBodies(Numbered(1), bodies), Host::NoPlan);
}

TEST(HostModel3D, HasNoBodyForAnObjectOfAnUnknownPartOrAnOpeningWithoutItsWall) {
    Project project = SampleProject();
    std::get<Host::ObjectData>(project.elements.back().element.data).libraryIndex = 3;
    std::get<OpeningGeometry>(project.elements[1].geometry).wall = Numbered(4);
    std::get<OpeningGeometry>(project.elements[2].geometry).along = 99.0;
    Open(std::move(project));
    std::vector<Host::Body> bodies;
    for (const int number : {8, 2, 3}) {
        EXPECT_EQ(Host::GetBodies(Numbered(number), bodies), Host::GeneralError) << number;
    }
}

TEST(HostModel3D, NumbersTheSurfacesOfPartsFromAMillionUp) {
    Open(SampleProject());
    const Host::Body body = BodiesOf(8)[0];
    EXPECT_EQ(body.faces[0].surface, 4);
    EXPECT_EQ(body.faces[1].surface, 1'000'003);
    EXPECT_EQ(body.faces[2].surface, 1'000'002);
    EXPECT_EQ(body.faces[3].surface, -1); // a name of the other part's
    const char* const names[] = {"Vidro", "Aro", "Aro", "Difusor"};
    Host::ModelSurface surface;
    for (std::int32_t i = 0; i < 4; ++i) {
        EXPECT_EQ(Host::GetScriptSurface(1'000'000 + i, surface), Host::NoError);
        EXPECT_EQ(surface.name, names[i]);
    }
    EXPECT_EQ(surface.transparency, 0.5);
    EXPECT_EQ(Host::GetScriptSurface(1'000'004, surface), Host::BadIndex);
    EXPECT_EQ(Host::GetScriptSurface(999'999, surface), Host::BadIndex);
    EXPECT_EQ(Host::GetScriptSurface(4, surface), Host::BadIndex);
    EXPECT_EQ(surface.name, "Difusor");
}

TEST(HostModel3D, FailsOnDemand) {
    Open(SampleProject());
    FailCall("GetBodies", 1, Host::OutOfMemory);
    FailCall("GetScriptSurface", 1, Host::OutOfMemory);
    std::vector<Host::Body> bodies;
    Host::ModelSurface surface;
    EXPECT_EQ(Host::GetBodies(Numbered(1), bodies), Host::OutOfMemory);
    EXPECT_EQ(Host::GetBodies(Numbered(1), bodies), Host::NoError);
    EXPECT_EQ(Host::GetScriptSurface(1'000'000, surface), Host::OutOfMemory);
    EXPECT_EQ(Host::GetScriptSurface(1'000'000, surface), Host::NoError);
}

TEST(ElementBounds, AreThoseOfTheBodies) {
    struct Case {
        int number;
        Host::Coordinate3D lowest;
        Host::Coordinate3D highest;
    };
    const Case cases[] = {
        {1, {0.0, -0.1, 3.0}, {5.0, 0.1, 5.8}},    // the wall, on story 1
        {2, {1.0, -0.1, 3.9}, {2.0, 0.1, 5.0}},    // the window's room through it
        {3, {3.6, -0.1, 3.0}, {4.4, 0.1, 5.1}},    // an empty one's too
        {4, {2.0, 2.0, 0.0}, {2.5, 2.5, 3.0}},     // the column by its segment
        {5, {2.0, 2.0, 0.0}, {2.5, 2.5, 3.0}},     // the segment
        {8, {10.0, 20.0, 0.5}, {11.0, 21.0, 1.5}}, // the object
    };
    Open(SampleProject());
    for (const Case& c : cases) {
        SCOPED_TRACE(c.number);
        Host::Coordinate3D lowest;
        Host::Coordinate3D highest;
        ASSERT_EQ(Host::GetBounds(Numbered(c.number), lowest, highest), Host::NoError);
        EXPECT_NEAR(lowest.x, c.lowest.x, 1e-12);
        EXPECT_NEAR(lowest.y, c.lowest.y, 1e-12);
        EXPECT_NEAR(lowest.z, c.lowest.z, 1e-12);
        EXPECT_NEAR(highest.x, c.highest.x, 1e-12);
        EXPECT_NEAR(highest.y, c.highest.y, 1e-12);
        EXPECT_NEAR(highest.z, c.highest.z, 1e-12);
    }
}

TEST(ElementBounds, DoNotAskForTheLayer) {
    Project project = SampleProject();
    project.elements[0].element.header.layer = {2};
    Open(std::move(project));
    Host::Coordinate3D lowest;
    Host::Coordinate3D highest;
    EXPECT_EQ(Host::GetBounds(Numbered(1), lowest, highest), Host::NoError);
}

TEST(ElementBounds, HoldEveryVertexOfTheBodies) {
    Open(SampleProject());
    const Session& session = CurrentSession();
    for (const int number : {1, 2, 8}) {
        ElementBox box;
        ASSERT_TRUE(ElementBounds({&session.project, &session.index},
                                  *FindElement(session.project, session.index, Numbered(number)),
                                  box));
        Host::Coordinate3D lowest;
        Host::Coordinate3D highest;
        ASSERT_TRUE(BodyBounds(BodiesOf(number), lowest, highest));
        EXPECT_GE(lowest.x, box.lowest.x - 1e-12);
        EXPECT_LE(highest.x, box.highest.x + 1e-12);
        EXPECT_GE(lowest.y, box.lowest.y - 1e-12);
        EXPECT_LE(highest.y, box.highest.y + 1e-12);
        EXPECT_GE(lowest.z, box.lowest.z - 1e-12);
        EXPECT_LE(highest.z, box.highest.z + 1e-12);
    }
}

TEST(ElementBounds, AreNoneWithoutAnythingToMeasure) {
    Open(SampleProject());
    const Session& session = CurrentSession();
    for (const int number : {6, 7}) {
        ElementBox box{{1, 2, 3}, {4, 5, 6}};
        EXPECT_FALSE(ElementBounds({&session.project, &session.index},
                                   *FindElement(session.project, session.index, Numbered(number)),
                                   box));
        EXPECT_EQ(box.lowest.x, 1.0);
    }
}

} // namespace
} // namespace Merivane::Workbench
