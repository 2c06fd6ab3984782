#include <cmath>
#include <string>

#include <gtest/gtest.h>

#include "DisplaySample.hpp"
#include "Workbench/Display/WindowDrawing.hpp"

namespace Merivane::Workbench {
namespace {

using namespace Tests;
using Drawing::Area;
using Drawing::DisplayList;
using Drawing::Polyline;
using Host::ElementType;

constexpr double Near = 0.01; // [mm]

TEST(DrawPlan, FillsWallsWhereTheyAreCut) {
    Project project = DisplayProject();
    AddPlainWall(project, {0, 0}, {5, 0});
    const DisplayList list = DrawPlan(project, 0);
    const auto areas = Drawn<Area>(list, "Corte");
    ASSERT_EQ(areas.size(), 1U);
    EXPECT_NEAR(AreaOf(areas[0]), 50.0 * 2.0, Near);
    EXPECT_NEAR(BoxOf(areas).Width(), 50.0, Near);
    EXPECT_LT(areas[0].fill.red, 0.5);
    // In the middle of an A4 across.
    EXPECT_NEAR(BoxOf(areas).left, 148.5 - 25.0, Near);
    EXPECT_NEAR(BoxOf(areas).bottom, 105.0 - 1.0, Near);
}

TEST(DrawPlan, IsRightInEveryScale) {
    Project project = DisplayProject();
    AddPlainWall(project, {0, 0}, {5, 0});
    project.planScale = 50.0;
    EXPECT_NEAR(BoxOf(Drawn<Area>(DrawPlan(project, 0), "Corte")).Width(), 100.0, Near);
    EXPECT_NEAR(BoxOf(Drawn<Area>(DrawPlan(project, 0, 200.0), "Corte")).Width(), 25.0, Near);
}

TEST(DrawPlan, DrawsOutlinesOfWallsUnderTheirFills) {
    Project project = DisplayProject();
    AddPlainWall(project, {0, 0}, {5, 0});
    AddPlainWall(project, {5, -2}, {5, 2}); // they run into each other
    const DisplayList list = DrawPlan(project, 0);
    for (const Drawing::Layer& layer : list.layers) {
        if (layer.name == "Corte") {
            ASSERT_EQ(layer.elements.size(), 4U);
            EXPECT_TRUE(std::holds_alternative<Polyline>(layer.elements[0]));
            EXPECT_TRUE(std::holds_alternative<Polyline>(layer.elements[1]));
            EXPECT_TRUE(std::holds_alternative<Area>(layer.elements[2]));
        }
    }
}

TEST(DrawPlan, ShowsGlassAsGlass) {
    Project project = DisplayProject();
    AddPlainWall(project, {0, 0}, {5, 0});
    auto& wall = std::get<WallGeometry>(project.elements.back().geometry);
    wall.leftSurface = wall.rightSurface = {7}; // glass
    const auto areas = Drawn<Area>(DrawPlan(project, 0), "Corte");
    ASSERT_EQ(areas.size(), 1U);
    EXPECT_GT(areas[0].fill.blue, 0.9);
}

TEST(DrawPlan, ShowsWhatLiesBelowAndDashesWhatHangsAbove) {
    struct Case {
        double bottom;
        double top;
        std::string layer;
    };
    const Case cases[] = {{0.0, 0.9, "Vista"}, {0.5, 1.5, "Corte"}, {2.0, 2.4, "Projeção"}};
    for (const Case& c : cases) {
        SCOPED_TRACE(c.layer);
        Project project = DisplayProject();
        AddBox(project, {0, 0, c.bottom}, {3, 2, c.top});
        const DisplayList list = DrawPlan(project, 0);
        for (const char* layer : {"Vista", "Corte", "Projeção"}) {
            const auto lines = Drawn<Polyline>(list, layer);
            EXPECT_EQ(lines.empty(), layer != c.layer) << layer;
            if (layer == c.layer) {
                EXPECT_NEAR(BoxOf(lines).Width(), 30.0, Near);
                EXPECT_NEAR(BoxOf(lines).Height(), 20.0, Near);
                EXPECT_EQ(lines[0].stroke.dashes.empty(), c.layer != "Projeção");
            }
        }
    }
}

TEST(DrawPlan, ShowsAnotherFloorsElementsOnlyWhereTheyAreCut) {
    Project project = DisplayProject();
    project.stories.push_back({1, 3.0, 3.0, "Superior"});
    AddBox(project, {0, 0, 0}, {3, 2, 0.5});     // below the upper floor's cut
    AddBox(project, {10, 0, 0}, {11, 1, 6.0});   // through it
    AddBox(project, {20, 0, 7.0}, {21, 1, 8.0}); // above it
    const DisplayList upper = DrawPlan(project, 1);
    EXPECT_TRUE(Drawn<Polyline>(upper, "Vista").empty());
    EXPECT_TRUE(Drawn<Polyline>(upper, "Projeção").empty());
    EXPECT_EQ(Drawn<Area>(upper, "Corte").size(), 1U);
}

TEST(DrawPlan, ShowsObjectsFromAboveAtAnyHeightTurnedAndStretched) {
    Project project = DisplayProject();
    ProjectPart part;
    part.name = "Plafon";
    part.isLamp = true;
    part.bodies = {PlainBox({-0.5, -0.5, 0}, {0.5, 0.5, 0.1})};
    project.parts = {part};
    AddDrawn(project, ElementType::Lamp,
             Host::ObjectData{1, {2, 2}, 2.6, std::acos(0.0), false, 1.2, 0.6});
    const DisplayList list = DrawPlan(project, 0);
    const auto lines = Drawn<Polyline>(list, "Projeção");
    ASSERT_EQ(lines.size(), 4U);
    EXPECT_NEAR(BoxOf(lines).Width(), 6.0, Near); // turned by a quarter
    EXPECT_NEAR(BoxOf(lines).Height(), 12.0, Near);
    EXPECT_TRUE(lines[0].stroke.dashes.empty());
    EXPECT_TRUE(Drawn<Area>(list, "Corte").empty());
}

TEST(DrawPlan, LeavesHiddenLayersAndOtherFloorsDrawingsOut) {
    Project project = DisplayProject();
    project.stories.push_back({1, 3.0, 3.0, "Superior"});
    AddDrawn(project, ElementType::Line, Host::LineData{{0, 0}, {1, 0}, 1, {}});
    AddDrawn(project, ElementType::Line, Host::LineData{{0, 0}, {2, 0}, 1, {}})
        .element.header.layer = {2};
    AddDrawn(project, ElementType::Line, Host::LineData{{0, 0}, {3, 0}, 1, {}})
        .element.header.floorIndex = 1;
    AddDrawn(project, ElementType::Line, Host::LineData{{0, 0}, {4, 0}, 1, {}}).database.bytes[0] =
        9;
    AddPlainWall(project, {0, 0}, {5, 0});
    project.elements.back().element.header.layer = {2};
    const DisplayList list = DrawPlan(project, 0);
    const auto lines = Drawn<Polyline>(list, "Linhas");
    ASSERT_EQ(lines.size(), 1U);
    EXPECT_NEAR(BoxOf(lines).Width(), 10.0, Near);
    EXPECT_TRUE(Drawn<Area>(list, "Corte").empty());
}

TEST(DrawPlan, OfAnEmptyProjectIsAnEmptySheet) {
    const DisplayList list = DrawPlan(MakeEmptyProject(), 0);
    EXPECT_EQ(list.width, 297.0);
    EXPECT_EQ(list.title, "Térreo");
    ASSERT_EQ(list.layers.size(), 1U);
    EXPECT_EQ(Drawn<Drawing::TextRun>(list, "Folha")[0].text, "Térreo – 1:100");
}

TEST(DrawPlan, CallsAStoryWithoutNameByItsNumber) {
    Project project = DisplayProject();
    project.stories = {{-1, -3.0, 3.0, ""}};
    EXPECT_EQ(DrawPlan(project, -1).title, "Pavimento -1");
}

ProjectDatabase& AddDatabase(Project& project, Host::WindowType type) {
    ProjectDatabase& database = project.databases.emplace_back();
    database.window.type = type;
    database.window.database.bytes[0] = 77;
    database.window.name = "Metodologia";
    database.window.reference = "MET01";
    return database;
}

TEST(DrawWorksheet, ShowsItsOwnDrawingsInItsOwnScale) {
    Project project = DisplayProject();
    const ProjectDatabase sheet = AddDatabase(project, Host::WindowType::Worksheet);
    AddDrawn(project, ElementType::Line, Host::LineData{{0, 0}, {1, 0}, 1, {}}).database =
        sheet.window.database;
    AddDrawn(project, ElementType::Line, Host::LineData{{0, 0}, {9, 0}, 1, {}});
    AddPlainWall(project, {0, 0}, {5, 0});
    const DisplayList list = DrawWorksheet(project, sheet);
    EXPECT_NEAR(BoxOf(Drawn<Polyline>(list, "Linhas")).Width(), 20.0, Near); // 1:50
    EXPECT_TRUE(Drawn<Area>(list, "Corte").empty());
    EXPECT_EQ(list.title, "MET01 Metodologia");
    EXPECT_NEAR(BoxOf(Drawn<Polyline>(DrawWorksheet(project, sheet, 10.0), "Linhas")).Width(),
                100.0, Near);
}

TEST(DrawSection, CutsTheModelAndShowsWhatLiesBehindWithinItsDepth) {
    Project project = DisplayProject();
    ProjectDatabase& section = AddDatabase(project, Host::WindowType::Section);
    section.scale = 100.0;
    section.section.begin = {0, 0};
    section.section.end = {10, 0};
    AddBox(project, {1, -1, 0}, {2, 1, 3});  // cut
    AddBox(project, {4, 2, 0}, {6, 3, 1});   // behind
    AddBox(project, {7, -3, 0}, {8, -2, 1}); // in front
    AddBox(project, {20, 8, 0}, {21, 9, 1}); // far behind
    section.section.depth = 5.0;
    const DisplayList list = DrawSection(project, section);
    const auto cut = Drawn<Area>(list, "Corte");
    ASSERT_EQ(cut.size(), 1U);
    EXPECT_NEAR(AreaOf(cut[0]), 10.0 * 30.0, Near);
    const PaperBox seen = BoxOf(Drawn<Area>(list, "Vista"));
    EXPECT_NEAR(seen.left, BoxOf(cut).left + 30.0, Near);
    EXPECT_NEAR(seen.right, BoxOf(cut).left + 50.0, Near);
    section.section.depth = 0.0; // unlimited
    const DisplayList deep = DrawSection(project, section);
    EXPECT_NEAR(BoxOf(Drawn<Area>(deep, "Vista")).Width(), 170.0, Near);
}

TEST(DrawSection, WithoutALineShowsWhatIsDrawn) {
    Project project = DisplayProject();
    const ProjectDatabase section = AddDatabase(project, Host::WindowType::InteriorElevation);
    AddPlainWall(project, {0, 0}, {5, 0});
    AddDrawn(project, ElementType::Line, Host::LineData{{0, 0}, {1, 0}, 1, {}}).database =
        section.window.database;
    const DisplayList list = DrawSection(project, section);
    EXPECT_EQ(Drawn<Polyline>(list, "Linhas").size(), 1U);
    EXPECT_TRUE(Drawn<Area>(list, "Vista").empty());
}

TEST(DrawPlan, MarksSectionsWithTheirReference) {
    Project project = DisplayProject();
    const Host::Guid marker = AddDrawn(project, ElementType::CutPlane).element.header.guid;
    ProjectDatabase& section = AddDatabase(project, Host::WindowType::Section);
    section.window.marker = marker;
    section.section.begin = {0, 0};
    section.section.end = {10, 0};
    const DisplayList list = DrawPlan(project, 0);
    EXPECT_NEAR(BoxOf(Drawn<Polyline>(list, "Linhas")).Width(), 100.0, Near);
    const auto texts = Drawn<Drawing::TextRun>(list, "Textos");
    ASSERT_EQ(texts.size(), 2U);
    EXPECT_EQ(texts[0].text, "MET01");
    project.elements.back().element.header.layer = {2};
    EXPECT_TRUE(Drawn<Drawing::TextRun>(DrawPlan(project, 0), "Textos").empty());
}

TEST(DrawAxonometry, ShowsTheThreeSidesOfABoxThatFaceTheViewer) {
    Project project = DisplayProject();
    AddBox(project, {0, 0, 0}, {2, 3, 4});
    const AxonometryView view = {std::atan2(-1.0, -1.0), std::asin(std::sqrt(1.0 / 3.0)), {}};
    const auto areas = Drawn<Area>(DrawAxonometry(project, view), "Vista");
    ASSERT_EQ(areas.size(), 3U);
    double total = 0.0;
    for (const Area& area : areas) {
        total += AreaOf(area);
    }
    // Along a diagonal of space every side shows 1 / sqrt(3) of its area.
    EXPECT_NEAR(total, (2 * 3 + 3 * 4 + 2 * 4) * 100.0 / std::sqrt(3.0), 0.1);
    EXPECT_NEAR(BoxOf(areas).Width(), 50.0 / std::sqrt(2.0), Near);
}

TEST(DrawAxonometry, ShowsGlassTranslucentAndSurfacesInTheirColour) {
    Project project = DisplayProject();
    AddBox(project, {0, 0, 0}, {1, 1, 1}, 4); // wood
    AddBox(project, {5, 0, 0}, {6, 1, 1}, 7); // glass
    int glass = 0;
    for (const Area& area : Drawn<Area>(DrawAxonometry(project), "Vista")) {
        glass += area.fill.alpha < 1.0 ? 1 : 0;
        if (area.fill.alpha == 1.0) {
            EXPECT_GT(area.fill.red, area.fill.blue);
        }
    }
    EXPECT_EQ(glass, 3);
}

TEST(DrawAxonometry, OfAFloorOpensItsRoomsFromAbove) {
    Project project = DisplayProject();
    project.stories.push_back({1, 3.0, 3.0, "Superior"});
    const auto addSlab = [&](double top, std::int16_t floorIndex) {
        ProjectElement& slab = AddDrawn(project, ElementType::Slab);
        slab.geometry = SlabGeometry{{PlainRectangle(0, 0, 4, 4)}, top, 0.2, {1}, {1}, {1}};
        slab.element.header.floorIndex = floorIndex;
    };
    addSlab(0.0, 0);
    addSlab(2.8, 0);
    addSlab(0.0, 1);
    AxonometryView view;
    EXPECT_EQ(Drawn<Area>(DrawAxonometry(project, view), "Vista").size(), 9U);
    view.floorIndex = 0;
    const DisplayList floor = DrawAxonometry(project, view);
    EXPECT_EQ(Drawn<Area>(floor, "Vista").size(), 3U);
    EXPECT_EQ(floor.title, "Axonometria – Térreo");
}

} // namespace
} // namespace Merivane::Workbench
