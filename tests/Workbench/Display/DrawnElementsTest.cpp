#include <cmath>
#include <numbers>

#include <gtest/gtest.h>

#include "DisplaySample.hpp"
#include "Workbench/Display/DrawnElements.hpp"
#include "Workbench/Display/PenLook.hpp"

namespace Merivane::Workbench {
namespace {

using namespace Tests;
using Host::ElementType;

constexpr double Near = 0.01; // [mm]

PaperDrawing Drawing1To100(const Project& project) {
    PaperDrawing drawing;
    for (const ProjectElement& element : project.elements) {
        AddDrawnElement(project, element, drawing);
    }
    return drawing;
}

template <typename Kind> const Kind& Only(const std::vector<Drawing::Element>& elements) {
    EXPECT_EQ(elements.size(), 1U);
    return std::get<Kind>(elements.at(0));
}

TEST(DrawnElements, DrawALineInItsPenAndLineType) {
    Project project = DisplayProject();
    AddDrawn(project, ElementType::Line, Host::LineData{{1, 2}, {4, 6}, 7, {2}});
    const PaperDrawing drawing = Drawing1To100(project);
    const auto& line = Only<Drawing::Polyline>(drawing.curves);
    EXPECT_NEAR(line.points[0].x, 10.0, Near);
    EXPECT_NEAR(line.points[0].y, 20.0, Near);
    EXPECT_NEAR(line.points[1].x, 40.0, Near);
    EXPECT_NEAR(line.points[1].y, 60.0, Near);
    EXPECT_EQ(line.stroke.width, 0.5);
    EXPECT_EQ(line.stroke.dashes, (std::vector<double>{3.0, 1.5}));
}

TEST(DrawnElements, DrawDotsWhereADashHasNoLength) {
    Project project = DisplayProject();
    project.lineTypes[3] = {"Pontos", {0.0, 1.0}};
    EXPECT_EQ(StrokeOf(project, 7, {3}).dashes, (std::vector<double>{0.5, 1.0}));
    EXPECT_TRUE(StrokeOf(project, 7, {9}).dashes.empty());
    EXPECT_TRUE(StrokeOf(project, 7, {}).dashes.empty());
}

TEST(DrawnElements, FlattenArcsOfPolylinesToAHundredthOfAMillimeter) {
    Project project = DisplayProject();
    ProjectElement& element =
        AddDrawn(project, ElementType::PolyLine, Host::PolyLineData{false, 1, {}});
    element.memo.polygon = {{{{5, 0}, {-5, 0}}, {{0, std::numbers::pi}}}};
    const PaperDrawing drawing = Drawing1To100(project);
    const auto& line = Only<Drawing::Polyline>(drawing.curves);
    for (std::size_t i = 0; i + 1 < line.points.size(); ++i) {
        EXPECT_NEAR(std::hypot(line.points[i].x, line.points[i].y), 50.0, Near);
        EXPECT_NEAR(std::hypot((line.points[i].x + line.points[i + 1].x) / 2.0,
                               (line.points[i].y + line.points[i + 1].y) / 2.0),
                    50.0, Near);
    }
    EXPECT_FALSE(line.closed);
}

TEST(DrawnElements, DrawArcsAndCirclesAsSuch) {
    struct Case {
        Host::ArcData arc;
        double sweep;
    };
    const double quarter = std::numbers::pi / 2.0;
    const Case cases[] = {
        {{{1, 1}, 2.0, 0.0, quarter, false, 1, {}}, quarter},
        {{{1, 1}, 2.0, 3 * quarter, quarter, false, 1, {}}, 2 * quarter}, // over 0
        {{{1, 1}, 2.0, 1.0, 1.0, false, 1, {}}, 4 * quarter},
        {{{1, 1}, 2.0, 1.0, 2.0, true, 1, {}}, 4 * quarter},
    };
    for (const Case& c : cases) {
        Project project = DisplayProject();
        AddDrawn(project, ElementType::Arc, c.arc);
        const PaperDrawing drawing = Drawing1To100(project);
        const auto& arc = Only<Drawing::Arc>(drawing.curves);
        EXPECT_NEAR(arc.radius, 20.0, Near);
        EXPECT_NEAR(arc.center.x, 10.0, Near);
        EXPECT_NEAR(arc.end - arc.start, c.sweep, 1e-9);
    }
}

TEST(DrawnElements, FillSolidHatchesWithTheirForegroundOrTheirPen) {
    for (const bool own : {true, false}) {
        Project project = DisplayProject();
        ProjectElement& element =
            AddDrawn(project, ElementType::Hatch, Host::HatchData{{1}, {0.1, 0.2, 0.3}, own, 4, 3});
        element.memo.polygon = {PlainRectangle(0, 0, 4, 3), PlainRectangle(1, 1, 1, 1)};
        const PaperDrawing drawing = Drawing1To100(project);
        const auto& area = Only<Drawing::Area>(drawing.fills);
        EXPECT_EQ(area.fill, own ? (Drawing::Color{0.1, 0.2, 0.3, 1.0}) : LookOfPen(3).color);
        EXPECT_NEAR(AreaOf(area), 1100.0, Near);
        EXPECT_EQ(drawing.curves.size(), 2U); // contours in pen 4
        EXPECT_EQ(std::get<Drawing::Polyline>(drawing.curves[0]).stroke.color, LookOfPen(4).color);
    }
}

TEST(DrawnElements, DrawPatternsAsLinesAndEmptyFillsNotAtAll) {
    Project project = DisplayProject();
    project.fills[3] = {"Vetorial", Host::FillKind::Vector};
    project.fills[4] = {"Simbolo", Host::FillKind::Symbol};
    const auto fillsOf = [&](std::int32_t fill) {
        Project copy = project;
        AddDrawn(copy, ElementType::Hatch, Host::HatchData{{fill}, {}, true, 0, 1}).memo.polygon = {
            PlainRectangle(0, 0, 1, 1)};
        return Drawing1To100(copy).fills.size();
    };
    EXPECT_EQ(fillsOf(2), 0U); // empty
    EXPECT_EQ(fillsOf(3), 7U); // 2 mm apart over a diagonal of 14.1 mm, one through the corner
    EXPECT_EQ(fillsOf(4), 14U);
}

TEST(DrawnElements, StampZonesWithNameNumberAndArea) {
    Project project = DisplayProject();
    ProjectElement& element =
        AddDrawn(project, ElementType::Zone, Host::ZoneData{"Copa", "07", 0.0, 3.0, {2.0, 1.5}});
    element.memo.polygon = {PlainRectangle(0, 0, 4, 3), PlainRectangle(0.5, 0.5, 1, 1)};
    const PaperDrawing drawing = Drawing1To100(project);
    ASSERT_EQ(drawing.texts.size(), 2U);
    const auto& name = std::get<Drawing::TextRun>(drawing.texts[0]);
    EXPECT_EQ(name.text, "Copa");
    EXPECT_NEAR(name.position.x, 20.0, Near);
    EXPECT_NEAR(name.position.y, 15.0, Near);
    EXPECT_EQ(std::get<Drawing::TextRun>(drawing.texts[1]).text, "07 · 11,00 m²");
    EXPECT_EQ(drawing.curves.size(), 2U);
    EXPECT_EQ(std::get<Drawing::Polyline>(drawing.curves[0]).stroke.width, 0.13);
}

TEST(DrawnElements, LieOnVisibleLayersOnlyWhereTheLayerIsThereAndShown) {
    Project project = DisplayProject();
    ProjectElement& element = AddDrawn(project, ElementType::Line);
    EXPECT_TRUE(IsOnVisibleLayer(project, element));
    element.element.header.layer = {2};
    EXPECT_FALSE(IsOnVisibleLayer(project, element));
    element.element.header.layer = {9};
    EXPECT_FALSE(IsOnVisibleLayer(project, element));
}

} // namespace
} // namespace Merivane::Workbench
