#include <cmath>
#include <vector>

#include <gtest/gtest.h>

#include "Photometry/CandelaLookup.hpp"
#include "Photometry/IesSamples.hpp"
#include "Photometry/PhotometricQuantities.hpp"
#include "Simulation/PreviewOutline.hpp"

namespace Merivane::Simulation {
namespace {

using Photometry::IesFile;
using Photometry::LuminaireSettings;
using Photometry::RadiansInADegree;

/// A beam that falls with the cosine below the luminaire; its half angle is near 60 degrees.
IesFile Lambert() {
    IesFile file = Tests::MakeTable(Tests::Steps(0, 90, 2.5), {0.0}, [](double v, double) {
        return 200.0 * std::cos(v * RadiansInADegree);
    });
    file.candelaMultiplier = 3.0;
    return file;
}

LuminaireSettings At(double x, double y, double z) {
    LuminaireSettings settings;
    settings.centerX = x;
    settings.centerY = y;
    settings.centerZ = z;
    return settings;
}

void ExpectNear(const Point3D& a, const Point3D& b) {
    EXPECT_NEAR(a.x, b.x, 1e-9);
    EXPECT_NEAR(a.y, b.y, 1e-9);
    EXPECT_NEAR(a.z, b.z, 1e-9);
}

TEST(OnView, LooksFromTheFrontTheSideAndAbove) {
    EXPECT_EQ(OnView(PreviewView::Front, {1, 2, 3}), (Point2D{1, 3}));
    EXPECT_EQ(OnView(PreviewView::Side, {1, 2, 3}), (Point2D{2, 3}));
    EXPECT_EQ(OnView(PreviewView::Plan, {1, 2, 3}), (Point2D{1, 2}));
}

TEST(IntensityOutline, IsTheCosineCircleOfALambertianBeam) {
    const LuminaireSettings settings = At(0.1, 0.2, -0.3);
    const PreviewLine front = IntensityOutline(Lambert(), settings, PreviewView::Front, 0.5);
    ASSERT_EQ(front.size(), 145U);
    EXPECT_EQ(front.front(), front.back());
    ExpectNear(front[0], {0.1, 0.2, -0.8}); // the peak, straight down
    for (const Point3D& point : front) {
        EXPECT_EQ(point.y, 0.2);
        // r = 0.5 cos(a): a circle of radius 0.25 about 0.25 below the centre, and the centre.
        const double x = point.x - 0.1;
        const double z = point.z + 0.3;
        EXPECT_NEAR(x * x + z * z, -0.5 * z, 1e-9);
    }
    const PreviewLine side = IntensityOutline(Lambert(), settings, PreviewView::Side, 0.5);
    ExpectNear(side[18], {0.1, 0.2 + 0.25, -0.3 - 0.25}); // at 45 degrees
    ExpectNear(side[72], {0.1, 0.2, -0.3});               // no light upwards
}

TEST(IntensityOutline, IsInPlanTheRingAtTheBeamsHalfAngle) {
    const IesFile file = Lambert();
    const double beam = Photometry::BeamHalfAngle(file);
    const PreviewLine ring = IntensityOutline(file, At(1.0, 2.0, 3.0), PreviewView::Plan, 0.8);
    const double radius =
        0.8 * Photometry::CandelaAt(file, beam, 0.0) / 600.0 * std::sin(beam * RadiansInADegree);
    ASSERT_EQ(ring.size(), 145U);
    ExpectNear({ring[0].x, ring[0].y, 0.0}, {1.0 + radius, 2.0, 0.0});
    ExpectNear({ring[36].x, ring[36].y, 0.0}, {1.0, 2.0 + radius, 0.0});
}

TEST(IntensityOutline, FollowsTheAimingAndTheRotationOfC0) {
    // Twice as much along C0 as across.
    const IesFile file = Tests::MakeTable(Tests::Steps(0, 90, 2.5), {0.0, 90.0},
                                          [](double, double h) { return h == 0.0 ? 100.0 : 50.0; });
    LuminaireSettings settings;
    PreviewLine plan = IntensityOutline(file, settings, PreviewView::Plan, 1.0);
    EXPECT_NEAR(plan[0].x, 2.0 * plan[36].y, 1e-9);
    settings.c0Rotation = 90.0; // C0 is now along +Y
    plan = IntensityOutline(file, settings, PreviewView::Plan, 1.0);
    EXPECT_GT(plan[0].y, 0.5);
    EXPECT_NEAR(plan[0].x, 0.0, 1e-9);
    LuminaireSettings tilted;
    tilted.tiltAngle = 90.0; // towards +X
    const PreviewLine front = IntensityOutline(Lambert(), tilted, PreviewView::Front, 1.0);
    ExpectNear(front[36], {1.0, 0.0, 0.0});
    ExpectNear(front[108], {0.0, 0.0, 0.0});
}

TEST(IntensityOutline, IsEmptyWhereNothingCanBeLookedUp) {
    IesFile typeB = Lambert();
    typeB.photometricType = 2;
    const IesFile dark = Tests::MakeTable({0, 90}, {0.0}, [](double, double) { return 0.0; });
    // All of it above: the ring at 45 degrees from the axis holds no light.
    const IesFile uplight =
        Tests::MakeTable({90, 180}, {0.0}, [](double v, double) { return v - 90.0; });
    for (const PreviewView view : {PreviewView::Front, PreviewView::Side, PreviewView::Plan}) {
        EXPECT_TRUE(IntensityOutline(typeB, {}, view, 1.0).empty());
        EXPECT_TRUE(IntensityOutline(dark, {}, view, 1.0).empty());
    }
    EXPECT_TRUE(IntensityOutline(uplight, {}, PreviewView::Plan, 1.0).empty());
    EXPECT_FALSE(IntensityOutline(uplight, {}, PreviewView::Front, 1.0).empty());
}

TEST(OpeningOutlines, AreARectangleOfLengthAlongC0) {
    IesFile file = Lambert();
    file.width = 0.2;
    file.length = 0.6;
    const std::vector<PreviewLine> lines = OpeningOutlines(file, At(1.0, 2.0, 3.0));
    ASSERT_EQ(lines.size(), 1U);
    const PreviewLine expected = {
        {1.3, 2.1, 3.0}, {0.7, 2.1, 3.0}, {0.7, 1.9, 3.0}, {1.3, 1.9, 3.0}, {1.3, 2.1, 3.0}};
    ASSERT_EQ(lines[0].size(), expected.size());
    for (std::size_t i = 0; i < expected.size(); ++i) {
        ExpectNear(lines[0][i], expected[i]);
    }
}

TEST(OpeningOutlines, TurnWithTheLight) {
    IesFile file = Lambert();
    file.width = 0.2;
    file.length = 0.6;
    LuminaireSettings settings;
    settings.c0Rotation = 90.0;
    ExpectNear(OpeningOutlines(file, settings)[0][0], {-0.1, 0.3, 0.0});
    settings.c0Rotation = 0.0;
    settings.tiltAngle = 90.0;
    ExpectNear(OpeningOutlines(file, settings)[0][0], {0.0, 0.1, 0.3});
}

TEST(OpeningOutlines, OfABoxStandOverOneAnother) {
    IesFile file = Lambert();
    file.unitsType = 1;
    file.width = 1.0;
    file.length = 2.0;
    file.height = 0.5; // feet
    const std::vector<PreviewLine> lines = OpeningOutlines(file, {});
    ASSERT_EQ(lines.size(), 6U);
    ExpectNear(lines[0][0], {0.3048, 0.1524, -0.0762});
    ExpectNear(lines[1][0], {0.3048, 0.1524, 0.0762});
    for (std::size_t edge = 0; edge < 4; ++edge) {
        ASSERT_EQ(lines[2 + edge].size(), 2U);
        EXPECT_EQ(lines[2 + edge][0], lines[0][edge]);
        EXPECT_EQ(lines[2 + edge][1], lines[1][edge]);
    }
}

TEST(OpeningOutlines, OfARoundOpeningAreTwentyFourChords) {
    IesFile file = Lambert();
    for (const auto& [width, length] :
         {std::pair{-0.4, -0.4}, std::pair{-0.4, 0.0}, std::pair{0.0, -0.4}}) {
        file.width = width;
        file.length = length;
        const std::vector<PreviewLine> lines = OpeningOutlines(file, {});
        ASSERT_EQ(lines.size(), 1U);
        ASSERT_EQ(lines[0].size(), 25U);
        EXPECT_EQ(lines[0].front(), lines[0].back());
        for (std::size_t i = 0; i < 24; ++i) {
            EXPECT_NEAR(std::hypot(lines[0][i].x, lines[0][i].y), 0.2, 1e-12);
            const double angle = static_cast<double>(i) * 15.0 * RadiansInADegree;
            EXPECT_NEAR(lines[0][i].x, 0.2 * std::cos(angle), 1e-12);
        }
    }
    file.height = 0.1;
    const std::vector<PreviewLine> drum = OpeningOutlines(file, {});
    ASSERT_EQ(drum.size(), 6U);
    ExpectNear(drum[2][0], {0.2, 0.0, -0.05}); // the outermost: the sides of the front view
    ExpectNear(drum[4][0], {-0.2, 0.0, -0.05});
}

TEST(OpeningOutlines, AreNoneForAPoint) {
    EXPECT_TRUE(OpeningOutlines(Lambert(), {}).empty());
}

TEST(AimLines, LeadFromTheCentreAlongTheLightAndC0) {
    LuminaireSettings settings = At(0.1, 0.2, 0.3);
    ExpectNear(AxisLine(settings, 0.5)[0], {0.1, 0.2, 0.3});
    ExpectNear(AxisLine(settings, 0.5)[1], {0.1, 0.2, -0.2});
    ExpectNear(C0Line(settings, 0.5)[1], {0.6, 0.2, 0.3});
    settings.tiltAngle = 90.0;
    settings.tiltDirection = 90.0;
    ExpectNear(AxisLine(settings, 0.5)[1], {0.1, 0.7, 0.3});
    settings = At(0.0, 0.0, 0.0);
    settings.c0Rotation = 180.0;
    ExpectNear(C0Line(settings, 0.5)[1], {-0.5, 0.0, 0.0});
}

} // namespace
} // namespace Merivane::Simulation
