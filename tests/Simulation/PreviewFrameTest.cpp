#include <cmath>
#include <string>

#include <gtest/gtest.h>

#include "Simulation/PreviewFrame.hpp"

namespace Merivane::Simulation {
namespace {

void ExpectNear(const Point2D& a, const Point2D& b) {
    EXPECT_NEAR(a.x, b.x, 1e-9);
    EXPECT_NEAR(a.y, b.y, 1e-9);
}

TEST(PreviewFrame, HoldsAllPointsWithAMargin) {
    // 14 points of margin: 292 x 182 are left.
    const PreviewFrame wide = FrameAll({{1.0, 2.0}, {3.0, 2.5}});
    ExpectNear(ToPicture(wide, {1.0, 2.25}), {14.0, 105.0});
    ExpectNear(ToPicture(wide, {3.0, 2.25}), {306.0, 105.0});
    const PreviewFrame tall = FrameAll({{0.0, -1.0}, {0.1, 1.0}, {0.05, 0.0}});
    ExpectNear(ToPicture(tall, {0.05, 1.0}), {160.0, 14.0});
    ExpectNear(ToPicture(tall, {0.05, -1.0}), {160.0, 196.0});
}

TEST(PreviewFrame, HasAScaleOfItsOwnForNothingAndForASinglePlace) {
    ExpectNear(ToPicture(FrameAll({}), {0.1, 0.2}), {170.0, 85.0});
    ExpectNear(ToPicture(FrameAll({{5.0, 6.0}}), {5.1, 6.0}), {170.0, 105.0});
}

TEST(PreviewFrame, LeadsThereAndBack) {
    PreviewFrame frame = FrameAll({{-0.3, 0.1}, {0.4, 0.9}});
    ZoomAt(frame, {20.0, 30.0}, 5);
    Pan(frame, {-7.0, 11.0});
    ExpectNear(ToPlane(frame, ToPicture(frame, {0.123, 0.456})), {0.123, 0.456});
}

TEST(PreviewFrame, ZoomsByAQuarterAndKeepsThePlaceUnderTheCursor) {
    PreviewFrame frame = FrameAll({{-1.0, -1.0}, {1.0, 1.0}});
    const Point2D cursor = {250.0, 40.0};
    const Point2D below = ToPlane(frame, cursor);
    ZoomAt(frame, cursor, 1);
    EXPECT_DOUBLE_EQ(frame.zoom, 1.25);
    ExpectNear(ToPlane(frame, cursor), below);
    ZoomAt(frame, cursor, -1);
    EXPECT_DOUBLE_EQ(frame.zoom, 1.0);
    ExpectNear(frame.pan, {0.0, 0.0});
    ZoomAt(frame, cursor, -1);
    EXPECT_DOUBLE_EQ(frame.zoom, 0.8);
    ExpectNear(ToPlane(frame, cursor), below);
}

TEST(PreviewFrame, StopsTheZoomAtItsLimitsAndStillKeepsThePlace) {
    PreviewFrame frame = FrameAll({{-1.0, -1.0}, {1.0, 1.0}});
    const Point2D cursor = {100.0, 90.0};
    const Point2D below = ToPlane(frame, cursor);
    ZoomAt(frame, cursor, -3);
    EXPECT_DOUBLE_EQ(frame.zoom, 0.512);
    ZoomAt(frame, cursor, -1);
    EXPECT_EQ(frame.zoom, 0.5);
    ZoomAt(frame, cursor, -1);
    EXPECT_EQ(frame.zoom, 0.5);
    ExpectNear(ToPlane(frame, cursor), below);
    ZoomAt(frame, cursor, 100);
    EXPECT_EQ(frame.zoom, 200.0);
    ZoomAt(frame, cursor, 1);
    EXPECT_EQ(frame.zoom, 200.0);
    ExpectNear(ToPlane(frame, cursor), below);
}

TEST(PreviewFrame, PansInPoints) {
    PreviewFrame frame = FrameAll({{-1.0, -1.0}, {1.0, 1.0}});
    EXPECT_TRUE(IsUntouched(frame));
    const Point2D before = ToPicture(frame, {0.5, 0.5});
    Pan(frame, {12.0, -8.0});
    ExpectNear(ToPicture(frame, {0.5, 0.5}), {before.x + 12.0, before.y - 8.0});
    EXPECT_FALSE(IsUntouched(frame));
}

TEST(PreviewFrame, HasAScaleBarOfARoundLength) {
    struct Case {
        double pointsPerMetre;
        double length;
        std::string text;
    };
    const Case cases[] = {
        {100.0, 0.5, "50 cm"}, // 80 cm fit
        {80.0, 1.0, "1 m"},    // exactly
        {81.0, 0.5, "50 cm"},  // no longer
        {40.0, 2.0, "2 m"},         {15.0, 5.0, "5 m"},      {2.0, 20.0, "20 m"},
        {8000.0, 0.01, "1 cm"},     {8001.0, 0.005, "5 mm"}, {2500.0, 0.02, "2 cm"},
        {100000.0, 5e-4, "0.5 mm"},
    };
    for (const Case& c : cases) {
        PreviewFrame frame;
        frame.scale = c.pointsPerMetre;
        EXPECT_DOUBLE_EQ(ScaleBarLength(frame), c.length) << c.pointsPerMetre;
        EXPECT_EQ(ScaleBarText(ScaleBarLength(frame)), c.text);
    }
}

TEST(PreviewFrame, ScalesTheBarWithTheZoom) {
    PreviewFrame frame;
    frame.zoom = 200.0; // 20,000 points to the metre
    EXPECT_DOUBLE_EQ(ScaleBarLength(frame), 0.002);
}

TEST(PreviewTexts, TellLengthsInTheirUnits) {
    EXPECT_EQ(ScaleBarText(1.0), "1 m");
    EXPECT_EQ(ScaleBarText(0.999), "99.9 cm");
    EXPECT_EQ(ScaleBarText(0.01), "1 cm");
    EXPECT_EQ(ScaleBarText(0.00999), "9.99 mm");
    EXPECT_EQ(CentimetreText(0.125), "12,50 cm");
    EXPECT_EQ(CentimetreText(-1.23456), "-123,46 cm");
    EXPECT_EQ(CentimetreText(0.0), "0,00 cm");
}

} // namespace
} // namespace Merivane::Simulation
