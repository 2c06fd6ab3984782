#include <cmath>
#include <numbers>

#include <gtest/gtest.h>

#include "Simulation/PlacedLuminaire.hpp"

namespace Merivane::Simulation {
namespace {

constexpr double Pi = std::numbers::pi;

// A table whose value tells the direction: vertical angle + 1000 x horizontal angle, both [deg].
SceneLuminaire DirectionTeller() {
    SceneLuminaire luminaire;
    Photometry::IesFile& file = luminaire.photometry;
    file.verticalAngles = {0, 90, 180};
    file.horizontalAngles = {0, 90, 180, 270, 360};
    for (const double horizontal : file.horizontalAngles) {
        file.candela.push_back(
            {1000 * horizontal, 1000 * horizontal + 90, 1000 * horizontal + 180});
    }
    file.width = 0.3;
    file.length = 1.2;
    return luminaire;
}

PlacedLuminaire Only(const SceneLuminaire& luminaire) {
    static std::vector<SceneLuminaire> kept;
    kept = {luminaire};
    return PlaceLuminaires(kept)[0];
}

double IntensityAlong(const PlacedLuminaire& placed, double x, double y, double z) {
    double area = 0.0;
    return LuminousIntensityTowards(
        placed, {placed.center.x + x, placed.center.y + y, placed.center.z + z}, area);
}

void ExpectPoint(const Point3D& point, double x, double y, double z) {
    EXPECT_NEAR(point.x, x, 1e-12);
    EXPECT_NEAR(point.y, y, 1e-12);
    EXPECT_NEAR(point.z, z, 1e-12);
}

TEST(LuminousIntensityTowards, ReadsTheDirectionInTheLuminairesOwnFrame) {
    struct Case {
        double c0;
        double tilt;
        double tiltDirection;
        bool mirrored;
        double rotation;                 // deg
        std::array<double, 3> direction; // of the project
        double vertical;
        double horizontal;
    };
    const double s = std::sqrt(0.5);
    const Case cases[] = {
        {0, 0, 0, false, 0, {1, 0, 0}, 90, 0},
        {0, 0, 0, false, 0, {0, s, -s}, 45, 90},
        {0, 0, 0, false, 90, {1, 0, 0}, 90, 270},
        {90, 0, 0, false, 0, {1, 0, 0}, 90, 270},
        {0, 0, 0, true, 0, {1, 0, 0}, 90, 180},
        {0, 0, 0, true, 0, {0, 1, 0}, 90, 90},
        {0, 0, 0, true, 90, {1, 0, 0}, 90, 270}, // mirrored first, turned then
        {0, 0, 0, true, 90, {0, 1, 0}, 90, 180},
        {30, 0, 0, true, 0, {-s, s, 0}, 90, 15}, // C0 at 150 degrees of the project
        // Tilted by 90 degrees, the light leaves along +x.
        {0, 90, 0, false, 0, {0, 0, -1}, 90, 180},
        {0, 90, 0, false, 0, {0, s, s}, 90, 45},
        {0, 90, 0, true, 0, {0, 0, -1}, 90, 180},
        {0, 90, 0, true, 90, {0, -s, -s}, 45, 180}, // now along -y
        {0, 90, 90, false, 0, {0, s, -s}, 45, 270}, // along +y, C0 stays along x
        {0, 45, 0, false, 0, {1, 0, 0}, 45, 0},
        {0, 180, 0, false, 0, {0, s, s}, 45, 90}, // upturned
    };
    for (const Case& c : cases) {
        SceneLuminaire luminaire = DirectionTeller();
        luminaire.contract.c0Rotation = c.c0;
        luminaire.contract.tiltAngle = c.tilt;
        luminaire.contract.tiltDirection = c.tiltDirection;
        luminaire.mirrored = c.mirrored;
        luminaire.rotation = c.rotation * Pi / 180;
        const double value =
            IntensityAlong(Only(luminaire), c.direction[0], c.direction[1], c.direction[2]);
        EXPECT_NEAR(value, c.vertical + 1000 * c.horizontal, 1e-6)
            << c.tilt << ' ' << c.mirrored << ' ' << c.rotation;
    }
}

TEST(LuminousIntensityTowards, TellsTheAreaInTheSameFrame) {
    SceneLuminaire luminaire = DirectionTeller();
    luminaire.photometry.height = 0.1;
    double area = 0.0;
    LuminousIntensityTowards(Only(luminaire), {2, 0, 0}, area);
    EXPECT_DOUBLE_EQ(area, 0.03); // any distance
    luminaire.rotation = Pi / 2;
    LuminousIntensityTowards(Only(luminaire), {2, 0, 0}, area);
    EXPECT_NEAR(area, 0.12, 1e-15);
    luminaire.contract.tiltAngle = 90; // its face looks along +y now
    LuminousIntensityTowards(Only(luminaire), {0, 5, 0}, area);
    EXPECT_NEAR(area, 0.36, 1e-15);
}

TEST(LuminousIntensityTowards, AtThePhotometricCentreIsNothing) {
    double area = 7.0;
    EXPECT_EQ(LuminousIntensityTowards(Only(DirectionTeller()), {0, 0, 0}, area), 0.0);
    EXPECT_EQ(area, 0.0);
}

TEST(LuminousIntensityTowards, CountsTheMultiplierOnce) {
    SceneLuminaire multiplied = DirectionTeller();
    multiplied.photometry.candelaMultiplier = 2.5;
    SceneLuminaire scaled = DirectionTeller();
    for (std::vector<double>& row : scaled.photometry.candela) {
        for (double& value : row) {
            value *= 2.5;
        }
    }
    const double value = IntensityAlong(Only(multiplied), 1, 2, -3);
    EXPECT_DOUBLE_EQ(value, IntensityAlong(Only(scaled), 1, 2, -3));
    EXPECT_DOUBLE_EQ(value, 2.5 * IntensityAlong(Only(DirectionTeller()), 1, 2, -3));
}

TEST(LuminousIntensityTowards, IsDimmedAndScaledButNotAged) {
    SceneLuminaire luminaire = DirectionTeller();
    luminaire.dimming = 0.4;
    luminaire.lengthScale = 0.5;
    luminaire.contract.maintenanceFactor = 0.1;
    EXPECT_DOUBLE_EQ(Only(luminaire).outputFactor, 0.2);
    EXPECT_DOUBLE_EQ(Only(luminaire).opening.length, 0.6);
    EXPECT_DOUBLE_EQ(IntensityAlong(Only(luminaire), 0, 1, 0), 0.2 * 90090);
}

TEST(PlaceLuminaires, PutThePhotometricCentreWhereTheObjectHasIt) {
    SceneLuminaire luminaire = DirectionTeller();
    luminaire.contract.centerX = 1;
    luminaire.contract.centerY = 2;
    luminaire.contract.centerZ = -0.1;
    luminaire.x = 10;
    luminaire.y = 20;
    luminaire.z = 2.8;
    ExpectPoint(Only(luminaire).center, 11, 22, 2.7);
    luminaire.mirrored = true;
    ExpectPoint(Only(luminaire).center, 9, 22, 2.7);
    luminaire.rotation = Pi / 2;
    ExpectPoint(Only(luminaire).center, 8, 19, 2.7);
    luminaire.contract.tiltAngle = 30; // about the photometric centre
    ExpectPoint(Only(luminaire).center, 8, 19, 2.7);
}

TEST(PlaceLuminaires, RepeatAlongTheProjectsAxes) {
    std::vector<SceneLuminaire> luminaires(3, DirectionTeller());
    luminaires[1].arrayCountX = 2;
    luminaires[1].arrayCountY = 3;
    luminaires[1].arrayStepX = 1.5;
    luminaires[1].arrayStepY = -2;
    luminaires[1].rotation = 1.0; // the array does not turn with it
    luminaires[2].arrayCountX = 0;
    luminaires[2].arrayCountY = -4;
    const std::vector<PlacedLuminaire> placed = PlaceLuminaires(luminaires);
    ASSERT_EQ(placed.size(), 8U);
    EXPECT_EQ(placed[0].index, 0U);
    ExpectPoint(placed[2].center, 0, -2, 0);
    ExpectPoint(placed[4].center, 1.5, 0, 0);
    EXPECT_EQ(placed[6].luminaire, &luminaires[1]);
    EXPECT_EQ(placed[7].index, 2U);
}

TEST(PlaceLuminaires, KeepThoseThatAreWanted) {
    std::vector<SceneLuminaire> luminaires(1, DirectionTeller());
    luminaires[0].arrayCountX = 1000;
    luminaires[0].arrayCountY = 1000;
    luminaires[0].arrayStepX = 1;
    luminaires[0].arrayStepY = 1;
    const auto nearCorner = [](const Point3D& place) { return place.x + place.y < 1.5; };
    const std::vector<PlacedLuminaire> placed = PlaceLuminaires(luminaires, nearCorner);
    ASSERT_EQ(placed.size(), 3U);
    ExpectPoint(placed[1].center, 0, 1, 0);
    ExpectPoint(placed[2].center, 1, 0, 0);
}

} // namespace
} // namespace Merivane::Simulation
