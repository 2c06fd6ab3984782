#include <cmath>
#include <limits>
#include <numbers>
#include <random>

#include <gtest/gtest.h>

#include "IesSamples.hpp"
#include "Photometry/CandelaLookup.hpp"
#include "Photometry/PhotometricQuantities.hpp"

namespace Merivane::Photometry {
namespace {

using std::numbers::pi;
using Tests::MakeTable;
using Tests::Steps;

TEST(AnglesEqual, HoldsUpToAMillionthOfADegree) {
    EXPECT_TRUE(AnglesEqual(90.0, 90.0));
    EXPECT_TRUE(AnglesEqual(0.0, 1e-6));
    EXPECT_TRUE(AnglesEqual(0.0, -1e-6));
    EXPECT_FALSE(AnglesEqual(0.0, 1.000001e-6));
    EXPECT_FALSE(AnglesEqual(0.0, -1.000001e-6));
    EXPECT_FALSE(AnglesEqual(0.0, std::numeric_limits<double>::quiet_NaN()));
}

TEST(UnitsToMetres, KnowsFeetAndTakesTheRestForMetres) {
    EXPECT_EQ(UnitsToMetres(1), 0.3048);
    EXPECT_EQ(UnitsToMetres(2), 1.0);
    EXPECT_EQ(UnitsToMetres(0), 1.0);
    EXPECT_EQ(UnitsToMetres(-1), 1.0);
}

TEST(PeakCandela, IsTheLargestValueTimesTheMultiplier) {
    IesFile file = MakeTable({0, 90}, {0, 90}, [](double v, double h) { return v + 2 * h; });
    EXPECT_EQ(PeakCandela(file), 270.0);
    file.candelaMultiplier = 0.5;
    EXPECT_EQ(PeakCandela(file), 135.0);
    file.photometricType = 2; // of any type
    EXPECT_EQ(PeakCandela(file), 135.0);
}

TEST(PeakCandela, IsZeroForATableWithoutLight) {
    EXPECT_EQ(PeakCandela(IesFile{}), 0.0);
    EXPECT_EQ(PeakCandela(MakeTable({0, 90}, {0}, [](double, double) { return -5.0; })), 0.0);
}

TEST(TotalFlux, OfAUniformSphereIsFourPi) {
    const auto one = [](double, double) { return 1.0; };
    const std::vector<double> horizontals[] = {
        {0}, {0, 90}, {0, 180}, {0, 360}, {90, 270}, Steps(0, 360, 7.5), {0, 30, 90}, {17}};
    for (const auto& planes : horizontals) {
        for (const double step : {1.0, 5.0, 45.0, 180.0}) {
            EXPECT_NEAR(TotalFlux(MakeTable(Steps(0, 180, step), planes, one)), 4 * pi, 1e-12);
        }
        EXPECT_NEAR(TotalFlux(MakeTable({0, 90}, planes, one)), 2 * pi, 1e-12);
        EXPECT_NEAR(TotalFlux(MakeTable({90, 180}, planes, one)), 2 * pi, 1e-12);
        // A cap up to the angle t: 2 pi (1 - cos t).
        EXPECT_NEAR(TotalFlux(MakeTable({0, 60}, planes, one)), pi, 1e-12);
    }
}

TEST(TotalFlux, IsExactForAnIntensityLinearInTheAngle) {
    // Integral of t sin t from 0 to pi is pi; no table is too coarse.
    const auto linear = [](double v, double) { return v * RadiansInADegree; };
    for (const double step : {2.5, 22.5, 90.0, 180.0}) {
        EXPECT_NEAR(TotalFlux(MakeTable(Steps(0, 180, step), {0}, linear)), 2 * pi * pi, 1e-12);
    }
}

TEST(TotalFlux, OfALambertSourceComesNearPiTimesItsPeak) {
    const auto lambert = [](double v, double) { return std::cos(v * RadiansInADegree); };
    EXPECT_NEAR(TotalFlux(MakeTable(Steps(0, 90, 1), {0}, lambert)), pi, 1e-4);
}

TEST(TotalFlux, WeighsThePlanesByTrapezoids) {
    // A plane of 1 cd at 0, of 3 at 30 and of 5 at 90: (30 * 2 + 60 * 4) / 90 on average.
    const auto planes = [](double, double h) { return h == 0.0 ? 1.0 : h == 30.0 ? 3.0 : 5.0; };
    EXPECT_NEAR(TotalFlux(MakeTable({0, 180}, {0, 30, 90}, planes)), 4 * pi * 300 / 90, 1e-12);
}

TEST(TotalFlux, TakesTheMultiplierAndNothingElse) {
    IesFile file = MakeTable({0, 180}, {0}, [](double, double) { return 1.0; });
    file.candelaMultiplier = -2.5;
    file.ballastFactor = 0.5;
    file.lumensPerLamp = 7.0;
    file.lampCount = 3;
    EXPECT_NEAR(TotalFlux(file), -10 * pi, 1e-12);
}

TEST(TotalFlux, IsZeroForASingleVerticalAngle) {
    EXPECT_EQ(TotalFlux(MakeTable({0}, {0}, [](double, double) { return 9.0; })), 0.0);
    EXPECT_EQ(TotalFlux(MakeTable({0}, {0, 90}, [](double, double) { return 9.0; })), 0.0);
}

TEST(TotalFlux, TakesNothingFromASegmentThatDoesNotRise) {
    const auto one = [](double, double) { return 1.0; };
    EXPECT_NEAR(TotalFlux(MakeTable({0, 90, 90, 180}, {0}, one)), 4 * pi, 1e-12);
    EXPECT_NEAR(TotalFlux(MakeTable({0, 180, 90}, {0}, one)), 4 * pi, 1e-12);
}

// Planes closer than two angles can be told apart are no part of a circle to complete.
TEST(TotalFlux, CompletesTheCircleOnlyFromPlanesThatDiffer) {
    const auto one = [](double, double) { return 1.0; };
    const auto sphere = [&one](double last) {
        return TotalFlux(MakeTable({0, 180}, {0, last}, one));
    };
    EXPECT_NEAR(sphere(1.01e-6), 4 * pi, 1e-9);
    EXPECT_NEAR(sphere(0.99e-6), 2 * 0.99e-6 * RadiansInADegree, 1e-20);
}

TEST(TotalFlux, IsMinusOneForWhatCannotBeIntegrated) {
    const IesFile whole = MakeTable({0, 90}, {0, 90}, [](double, double) { return 1.0; });
    const auto with = [&whole](const auto& change) {
        IesFile file = whole;
        change(file);
        return TotalFlux(file);
    };
    EXPECT_GT(TotalFlux(whole), 0.0);
    EXPECT_EQ(with([](IesFile& f) { f.photometricType = 2; }), -1.0);
    EXPECT_EQ(with([](IesFile& f) { f.photometricType = 3; }), -1.0);
    EXPECT_EQ(with([](IesFile& f) { f.verticalAngles.clear(); }), -1.0);
    EXPECT_EQ(with([](IesFile& f) { f.horizontalAngles.clear(); }), -1.0);
    EXPECT_EQ(with([](IesFile& f) { f.candela.pop_back(); }), -1.0);
    EXPECT_EQ(with([](IesFile& f) { f.candela.emplace_back(); }), -1.0);
    EXPECT_EQ(with([](IesFile& f) { f.candela[1].pop_back(); }), -1.0);
    EXPECT_EQ(TotalFlux(IesFile{}), -1.0);
}

// Two roads to one number: the exact sum over the table, and the intensity looked up in fine steps
// all around, folded by symmetry.
TEST(TotalFlux, AgreesWithTheIntensityLookedUpInEveryDirection) {
    std::mt19937_64 random(60);
    std::uniform_real_distribution<double> candela(0.0, 1000.0);
    const std::vector<double> horizontals[] = {
        {0}, {0, 40, 90}, {0, 30, 110, 180}, {90, 100, 200, 270}, {0, 10, 100, 250, 360}};
    for (const auto& planes : horizontals) {
        const IesFile file = MakeTable({0, 10, 35, 80, 120, 180}, planes,
                                       [&](double, double) { return candela(random); });
        const double step = 0.5; // divides the angles, so that no step spans two cells
        double flux = 0.0;
        for (double v = step / 2; v < 180; v += step) {
            double ring = 0.0;
            for (double h = step / 2; h < 360; h += step) {
                ring += CandelaAt(file, v, h);
            }
            flux += ring * step * RadiansInADegree *
                    (std::cos((v - step / 2) * RadiansInADegree) -
                     std::cos((v + step / 2) * RadiansInADegree));
        }
        EXPECT_NEAR(flux / TotalFlux(file), 1.0, 1e-5);
    }
}

IesFile OnePlane(std::vector<double> verticals, const std::vector<double>& values) {
    IesFile file;
    file.verticalAngles = std::move(verticals);
    file.horizontalAngles = {0};
    file.candela = {values};
    return file;
}

TEST(BeamHalfAngle, IsWhereTheMeanFallsToHalf) {
    struct Case {
        std::vector<double> angles, values;
        double halfAngle;
    };
    const Case cases[] = {
        {{0, 90}, {100, 0}, 45.0},            // linear: half at the middle
        {{0, 60, 90}, {100, 0, 0}, 30.0},     // exactly on a step
        {{0, 61, 90}, {100, 0, 0}, 30.5},     // between two steps
        {{0, 1, 2}, {100, 50, 0}, 1.0},       // on the very first step
        {{0, 1, 2}, {100, 49, 0}, 50.0 / 51}, // before it
        {{0, 90}, {100, 50}, 90.0},           // on the last step
        {{0, 90, 180}, {100, 60, 0}, 45.0},   // never up to 90
        {{0, 20, 40, 90}, {100, 200, 0, 0}, 35.0},
        {{0, 30}, {100, 100}, 30.5}, // the table ends: no light at 31
        {{0, 90}, {0, 100}, 45.0},   // nothing on the axis
        {{0, 90}, {-5, -10}, 45.0},
        {{90, 180}, {100, 50}, 45.0}, // an indirect table has no axis at 0
    };
    for (const Case& c : cases) {
        EXPECT_NEAR(BeamHalfAngle(OnePlane(c.angles, c.values)), c.halfAngle, 1e-12)
            << ::testing::PrintToString(c.angles) << ::testing::PrintToString(c.values);
    }
}

TEST(BeamHalfAngle, IsAWholeDegreeWhereTheFallCannotBeMeasured) {
    IesFile file = OnePlane({0, 90}, {100, 100});
    file.candelaMultiplier = std::numeric_limits<double>::infinity();
    EXPECT_EQ(BeamHalfAngle(file), 1.0); // half of infinity is reached at once
}

TEST(BeamHalfAngle, TakesTheMeanOfThePlanes) {
    // Half at 20 degrees in one plane and at 60 in the other: the mean of a full circle of two
    // opposite planes has the slope of both.
    const IesFile file = MakeTable(Steps(0, 90, 1), Steps(0, 350, 10), [](double v, double h) {
        return std::max(0.0, 100.0 - v * (static_cast<int>(h) % 20 == 0 ? 2.5 : 100.0 / 120.0));
    });
    // 100 - v (2.5 + 5/6) / 2 = 50
    EXPECT_NEAR(BeamHalfAngle(file), 30.0, 1e-9);
}

TEST(FindBeamHalfAngle, IsThereOnlyWhereTheLightHasABeam) {
    EXPECT_EQ(FindBeamHalfAngle(OnePlane({0, 90}, {0, 100})), std::nullopt);  // none on the axis
    EXPECT_EQ(FindBeamHalfAngle(OnePlane({0, 90}, {100, 51})), std::nullopt); // never half of it
    const IesFile falling = OnePlane({0, 90}, {100, 0});
    ASSERT_TRUE(FindBeamHalfAngle(falling).has_value());
    EXPECT_NEAR(*FindBeamHalfAngle(falling), 45.0, 1e-9); // a real 45, not the stand-in
    EXPECT_EQ(*FindBeamHalfAngle(falling), BeamHalfAngle(falling));
}

TEST(BeamHalfAngle, OfALambertSourceIsSixty) {
    const auto lambert = [](double v, double) { return std::cos(v * RadiansInADegree); };
    EXPECT_NEAR(BeamHalfAngle(MakeTable(Steps(0, 90, 1), {0}, lambert)), 60.0, 1e-9);
}

TEST(PhotometricQuantities, OfATypeBFileAreThoseOfNoLight) {
    IesFile file = MakeTable({-90, 0, 90}, {0, 90}, [](double, double) { return 100.0; });
    file.photometricType = 2;
    EXPECT_EQ(TotalFlux(file), -1.0);
    EXPECT_EQ(CandelaAt(file, 0, 0), 0.0);
    EXPECT_EQ(MeanCandelaAtVertical(file, 0), 0.0);
    EXPECT_EQ(BeamHalfAngle(file), 45.0);
}

} // namespace
} // namespace Merivane::Photometry
