#include <gtest/gtest.h>

#include "Simulation/Study/ZoneDrawing.hpp"
#include "StudySamples.hpp"

namespace Merivane::Simulation {
namespace {

struct Drawn {
    StudyScene built;
    SimulationResult result;
    ZoneDrawing drawing;
};

Drawn Draw(const LightingStudy& study, double slope = 100.0) {
    Drawn drawn;
    drawn.built = BuildStudyScene(study);
    drawn.result = Tests::SlopedResult(drawn.built, slope);
    ZoneAnalysis analysis;
    analysis.statistics.mean = 123.0;
    drawn.drawing = BuildZoneDrawing(study, drawn.built, drawn.result, 0, analysis);
    return drawn;
}

TEST(BuildZoneDrawing, TakesTheZoneItsPlaneAndItsAnalysis) {
    LightingStudy study = Tests::OfficeStudy();
    study.standard = ReferenceStandard::International;
    const Drawn drawn = Draw(study);
    EXPECT_EQ(drawn.drawing.zone.name, "Sala");
    EXPECT_EQ(drawn.drawing.standard, ReferenceStandard::International);
    EXPECT_EQ(drawn.drawing.analysis.statistics.mean, 123.0);
    EXPECT_EQ(drawn.drawing.grid, drawn.built.scene.sensorPlanes[0].grid);
    EXPECT_FALSE(drawn.drawing.vertical);
    EXPECT_TRUE(drawn.drawing.planeName.empty());
}

TEST(BuildZoneDrawing, LaysTheValuesOnTheGrid) {
    const ZoneDrawing drawing = Draw(Tests::OfficeStudy()).drawing;
    ASSERT_EQ(drawing.field.size(),
              static_cast<std::size_t>(drawing.grid.columns * drawing.grid.rows));
    const Point2D first = NodePosition(drawing.grid, 0, 0);
    EXPECT_DOUBLE_EQ(drawing.field[0], 100.0 + 100.0 * first.x);
}

TEST(BuildZoneDrawing, DrawsCurvesBandsAndTheLimitOfTheTask) {
    const ZoneDrawing drawing = Draw(Tests::OfficeStudy()).drawing;
    ASSERT_EQ(drawing.curves.size(), 1U); // 300 lux at x = 2; 100 lux is reached nowhere
    EXPECT_EQ(drawing.curves[0].level, 300.0);
    for (const Point2D& point : drawing.curves[0].points) {
        EXPECT_NEAR(point.x, 2.0, 1e-6);
    }
    ASSERT_EQ(drawing.bands.size(), 2U);
    ASSERT_EQ(drawing.taskOutline.size(), 1U);
}

TEST(BuildZoneDrawing, GivesANarrowZoneNoLimit) {
    LightingStudy study = Tests::OfficeStudy();
    study.zones[0].grid.borderBand = 2.5;
    const ZoneDrawing drawing = Draw(study).drawing;
    EXPECT_TRUE(drawing.grid.narrow);
    EXPECT_TRUE(drawing.taskOutline.empty());
}

TEST(BuildZoneDrawing, TakesTheWorkPlaneOfItsOwnZone) {
    LightingStudy study = Tests::OfficeStudy();
    study.zones.push_back(study.zones[0]);
    study.zones[0].calculateWalls = true;
    study.zones[1].name = "Outra";
    study.zones[1].outline = {{{10, 0}, {12, 0}, {12, 3}, {10, 3}}, {}};
    const StudyScene built = BuildStudyScene(study);
    const ZoneDrawing drawing =
        BuildZoneDrawing(study, built, Tests::SlopedResult(built, 100.0), 1, {});
    EXPECT_EQ(drawing.zone.name, "Outra");
    EXPECT_NEAR(drawing.grid.originX, 10.05, 1e-9);
    EXPECT_GE(drawing.field[0], 1100.0);
}

} // namespace
} // namespace Merivane::Simulation
