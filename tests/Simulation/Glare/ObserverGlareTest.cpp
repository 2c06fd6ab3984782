#include <cmath>
#include <limits>
#include <numbers>

#include <gtest/gtest.h>

#include "Simulation/Glare/GlareSamples.hpp"
#include "Simulation/Glare/ObserverGlare.hpp"

namespace Merivane::Simulation {
namespace {

using Tests::At;
using Tests::UniformLuminaire;

constexpr double Pi = std::numbers::pi;

// Eye at (0, 0, 1.2), looking along +x. The places of luminaires below count from the eye.
const UgrObserver Eye = {0, 0, 1.2, 1, 0, "olho"};

SceneLuminaire FromEye(const SceneLuminaire& luminaire, double ahead, double left, double up) {
    return At(luminaire, ahead, left, 1.2 + up);
}

/// The result against a background luminance of `background` cd/m2.
GlareResult See(const std::vector<SceneLuminaire>& luminaires, double background,
                const GlareOptions& options = {}, std::vector<GlareTerm>* terms = nullptr) {
    return ObserverGlare(Eye, PlaceLuminaires(luminaires), background * Pi, options, terms);
}

GlareTerm TermOf(const SceneLuminaire& luminaire, const GlareOptions& options = {}) {
    std::vector<GlareTerm> terms;
    See({luminaire}, 100, options, &terms);
    return terms.at(0);
}

TEST(PositionIndex, IsOneOnTheLineOfSight) {
    for (const double tau : {0.0, 10.0, 45.0, 90.0}) {
        EXPECT_EQ(PositionIndex(tau, 0), 1.0) << tau;
    }
}

TEST(PositionIndex, AgreesWithTheFormula) {
    struct Case {
        double tau;
        double sigma;
        double index; // worked out by other means
    };
    const Case cases[] = {
        {0, 10, 1.4344765368797365},     {0, 30, 3.348123367276904},  {45, 20, 1.690455792440863},
        {90, 30, 1.4681410371415171},    {90, 60, 3.145566496010365}, {30, 45, 5.401517768962453},
        {71.565, 72, 8.868884221413502},
    };
    for (const Case& c : cases) {
        EXPECT_NEAR(PositionIndex(c.tau, c.sigma), c.index, 1e-6) << c.tau << ' ' << c.sigma;
    }
}

TEST(PositionIndex, NeverExceedsSixteen) {
    EXPECT_NEAR(PositionIndex(0, 59.624181), 16.0, 1e-6); // where the formula reaches it
    EXPECT_LT(PositionIndex(0, 59.6), 16.0);
    EXPECT_EQ(PositionIndex(0, 59.7), 16.0);
    EXPECT_EQ(PositionIndex(0, 90), 16.0);
}

TEST(ObserverGlare, OfOneLuminaireAhead) {
    // r2 = 20, A = 0.36 / sqrt 5, L = 1000 / A, w = A / 20, sigma = atan 0.5, tau = 0.
    std::vector<GlareTerm> terms;
    const GlareResult result =
        See({FromEye(UniformLuminaire(1000, 0.6, 0.6), 4, 0, 2)}, 100, {}, &terms);
    EXPECT_TRUE(result.valid);
    EXPECT_DOUBLE_EQ(result.background, 100.0);
    EXPECT_NEAR(result.ugr, 15.818492911859604, 1e-9);
    EXPECT_EQ(result.sources, 1);
    ASSERT_EQ(terms.size(), 1U);
    EXPECT_EQ(terms[0].omission, GlareOmission::None);
    EXPECT_NEAR(terms[0].distance, std::sqrt(20), 1e-12);
    EXPECT_NEAR(terms[0].heightRatio, 0.5, 1e-12);
    EXPECT_NEAR(terms[0].sideRatio, 0.0, 1e-12);
    EXPECT_NEAR(terms[0].sigma, 26.565051177077994, 1e-9);
    EXPECT_NEAR(terms[0].tau, 0.0, 1e-12);
    EXPECT_DOUBLE_EQ(terms[0].intensity, 1000.0);
    EXPECT_NEAR(terms[0].apparentArea, 0.36 / std::sqrt(5), 1e-12);
    EXPECT_NEAR(terms[0].luminance, 6211.299937499416, 1e-8);
    EXPECT_NEAR(terms[0].solidAngle, 0.008049844718999243, 1e-14);
    EXPECT_NEAR(terms[0].positionIndex, 2.8601608006240435, 1e-10);
    EXPECT_NEAR(terms[0].term, 37963.968581674264, 1e-5);
}

TEST(ObserverGlare, OfTwoLuminairesAddsTheirTerms) {
    std::vector<GlareTerm> terms;
    const GlareResult result = See({FromEye(UniformLuminaire(1000, 0.6, 0.6), 4, 0, 2),
                                    FromEye(UniformLuminaire(500, 0.3, 1.2, 0.1), 6, -3, 1.8)},
                                   100, {}, &terms);
    EXPECT_NEAR(result.ugr, 16.40177724063557, 1e-9);
    EXPECT_EQ(result.sources, 2);
    EXPECT_EQ(terms[1].luminaire, 1U);
    EXPECT_NEAR(terms[1].apparentArea, 0.17104594826510927, 1e-12); // two sides show
    EXPECT_NEAR(terms[1].heightRatio, 0.3, 1e-12);
    EXPECT_NEAR(terms[1].sideRatio, 0.5, 1e-12); // to the right: no sign
    EXPECT_NEAR(terms[1].tau, 59.03624346792648, 1e-9);
    EXPECT_NEAR(terms[1].term, 6939.733350963891, 1e-6);
}

TEST(ObserverGlare, LooksAlongALevelSightOfAnyLengthAndTurn) {
    const std::vector<SceneLuminaire> ahead = {FromEye(UniformLuminaire(1000, 0.6, 0.6), 4, 1, 2)};
    const double expected = See(ahead, 100).ugr;
    // The same eye turned by 90 degrees at another place, its sight 3 m long.
    const UgrObserver turned = {10, 20, 1.2, 0, 3, ""};
    const std::vector<SceneLuminaire> above = {At(UniformLuminaire(1000, 0.6, 0.6), 9, 24, 3.2)};
    EXPECT_NEAR(ObserverGlare(turned, PlaceLuminaires(above), 100 * Pi, {}).ugr, expected, 1e-9);
    const UgrObserver blind = {0, 0, 1.2, 0, 0, ""};
    EXPECT_EQ(ObserverGlare(blind, PlaceLuminaires(ahead), 100 * Pi, {}).sources, 0);
}

TEST(ObserverGlare, CountsTheMultiplierOfTheFileOnce) {
    SceneLuminaire multiplied = FromEye(UniformLuminaire(1000, 0.6, 0.6), 4, 0, 2);
    multiplied.photometry.candelaMultiplier = 2.5;
    const SceneLuminaire scaled = FromEye(UniformLuminaire(2500, 0.6, 0.6), 4, 0, 2);
    EXPECT_NEAR(See({multiplied}, 100).ugr, See({scaled}, 100).ugr, 1e-12);
    EXPECT_NEAR(See({multiplied}, 100).ugr, 15.818492911859604 + 16 * std::log10(2.5), 1e-9);
}

TEST(ObserverGlare, TakesTheSmallSourceTermUnderFiveThousandthsOfASquareMetre) {
    GlareOptions small;
    small.smallSourceTerm = true;
    // At 45 degrees: the area that shows is side2 / sqrt 2.
    struct Case {
        double area;
        bool small;
        double term; // x r2 p2 / I2
    };
    const Case cases[] = {{0.005 * (1 - 1e-6), true, 200.0},
                          {0.005 * (1 + 1e-6), false, 200.0 / (1 + 1e-6)},
                          {0.001, true, 200.0},
                          {0.01, false, 100.0}};
    for (const Case& c : cases) {
        const double side = std::sqrt(c.area * std::sqrt(2));
        const SceneLuminaire luminaire = FromEye(UniformLuminaire(700, side, side), 2, 0, 2);
        const GlareTerm term = TermOf(luminaire, small);
        const double index = PositionIndex(0, 45);
        EXPECT_EQ(term.smallSource, c.small) << c.area;
        EXPECT_NEAR(term.term * 8 * index * index / (700.0 * 700.0), c.term, 1e-8);
        EXPECT_EQ(See({luminaire}, 100, small).smallSources, c.small ? 1 : 0);
        EXPECT_FALSE(TermOf(luminaire).smallSource); // only when asked for
        EXPECT_NEAR(TermOf(luminaire).term * 8 * index * index / (700.0 * 700.0), 1 / c.area, 1e-6);
    }
}

TEST(ObserverGlare, OfASmallSourceByHand) {
    GlareOptions small;
    small.smallSourceTerm = true;
    const std::vector<SceneLuminaire> spot = {
        FromEye(UniformLuminaire(200, 0.05, 0.05), 3, 2, 1.5)};
    EXPECT_NEAR(See(spot, 40, small).ugr, 20.12449281340336, 1e-9);
}

TEST(ObserverGlare, LeavesOutWhatTheTableOfTheIndexDoesNotHold) {
    GlareOptions limited;
    limited.tableFieldLimit = true;
    struct Case {
        double ahead;
        double left;
        double up;
        bool inField;
    };
    const Case cases[] = {
        {1, 0, 1.9, true},         {1, 0, 1.9 - 1e-6, true},
        {1, 0, 1.9 + 1e-6, false}, {1, 3, 1, true},
        {1, 3 - 1e-6, 1, true},    {1, 3 + 1e-6, 1, false},
        {1, -3, 1, true},          {1, -3 - 1e-6, 1, false},
        {0.7, 2.1, 1.33, true},    {0.7, 2.1, 1.33001, false},
        {7.3, 21.9, 13.87, true},
    };
    for (const Case& c : cases) {
        const SceneLuminaire luminaire =
            FromEye(UniformLuminaire(500, 0.6, 0.6), c.ahead, c.left, c.up);
        const GlareResult result = See({luminaire}, 100, limited);
        EXPECT_EQ(result.sources, c.inField ? 1 : 0) << c.ahead << ' ' << c.left << ' ' << c.up;
        EXPECT_EQ(result.outOfField, c.inField ? 0 : 1);
        EXPECT_EQ(TermOf(luminaire, limited).omission,
                  c.inField ? GlareOmission::None : GlareOmission::OutOfField);
        EXPECT_EQ(See({luminaire}, 100).sources, 1); // only when asked for
    }
}

TEST(ObserverGlare, TellsWhyALuminaireIsNotInTheSum) {
    const SceneLuminaire lamp = UniformLuminaire(500, 0.6, 0.6);
    SceneLuminaire off = lamp;
    off.dimming = 0;
    struct Case {
        SceneLuminaire luminaire;
        GlareOmission omission;
    };
    const Case cases[] = {
        {FromEye(lamp, 0, 0, 0), GlareOmission::AtTheEye},
        {FromEye(lamp, 0, 1, 1), GlareOmission::NotAhead}, // beside
        {FromEye(lamp, -1, 0, 1), GlareOmission::NotAhead},
        {FromEye(lamp, 0, 0, 1), GlareOmission::NotAhead}, // overhead
        {FromEye(lamp, 3, 0, 0), GlareOmission::NotAbove}, // at the height of the eye
        {FromEye(lamp, 3, 0, -0.5), GlareOmission::NotAbove},
        {FromEye(lamp, 1e-6, 0, 1e-6), GlareOmission::None},
        {FromEye(UniformLuminaire(500, 0, 0), 3, 0, 1), GlareOmission::NoArea},
        {FromEye(UniformLuminaire(0, 0, 0), 3, 0, 1), GlareOmission::NoArea},
        {FromEye(UniformLuminaire(0, 0.6, 0.6), 3, 0, 1), GlareOmission::NoIntensity},
        {FromEye(off, 3, 0, 1), GlareOmission::NoIntensity},
        {FromEye(lamp, 3, 0, 1), GlareOmission::None},
    };
    std::vector<SceneLuminaire> all;
    for (const Case& c : cases) {
        SCOPED_TRACE(all.size());
        EXPECT_EQ(TermOf(c.luminaire).omission, c.omission);
        const bool counted = c.omission == GlareOmission::None;
        EXPECT_EQ(TermOf(c.luminaire).term > 0.0, counted);
        EXPECT_EQ(TermOf(c.luminaire).positionIndex > 0.0, counted);
        all.push_back(c.luminaire);
    }
    const GlareResult result = See(all, 100);
    EXPECT_EQ(result.sources, 2);
    EXPECT_EQ(result.withoutArea, 2);
    EXPECT_EQ(result.outOfField, 0);
}

TEST(ObserverGlare, OfALuminaireWithoutOpeningIsNothing) {
    const GlareResult result = See({FromEye(UniformLuminaire(500, 0, 0), 3, 0, 1),
                                    FromEye(UniformLuminaire(500, 0, 0), 5, 1, 1)},
                                   100);
    EXPECT_TRUE(result.valid);
    EXPECT_EQ(result.ugr, 0.0);
    EXPECT_EQ(result.sources, 0);
    EXPECT_EQ(result.withoutArea, 2);
}

TEST(ObserverGlare, CountsSourcesLargerThanASteradian) {
    // At 45 degrees and r2 = 2, a face of a x a shows a2 / sqrt 2, or a2 / sqrt 8 sr.
    struct Case {
        double solidAngle;
        std::int32_t large;
    };
    for (const Case& c : {Case{1 - 1e-6, 0}, Case{1 + 1e-6, 1}, Case{3.0, 1}}) {
        const double side = std::sqrt(c.solidAngle * std::sqrt(8));
        const GlareResult result = See({FromEye(UniformLuminaire(500, side, side), 1, 0, 1)}, 100);
        EXPECT_EQ(result.largeSources, c.large) << c.solidAngle;
        EXPECT_EQ(result.sources, 1);
    }
}

TEST(ObserverGlare, WithoutBackgroundHasNoValue) {
    const std::vector<SceneLuminaire> lamp = {FromEye(UniformLuminaire(500, 0.6, 0.6), 3, 0, 1)};
    for (const double background : {0.0, -1.0, std::numeric_limits<double>::quiet_NaN()}) {
        const GlareResult result = See(lamp, background);
        EXPECT_FALSE(result.valid);
        EXPECT_EQ(result.ugr, 0.0);
        EXPECT_EQ(result.sources, 1);
    }
    EXPECT_TRUE(See(lamp, 1e-9).valid);
}

TEST(ObserverGlare, WithoutLuminairesIsZeroAgainstItsBackground) {
    std::vector<GlareTerm> terms(3);
    const GlareResult result = See({}, 50, {}, &terms);
    EXPECT_TRUE(result.valid);
    EXPECT_EQ(result.ugr, 0.0);
    EXPECT_TRUE(terms.empty());
}

TEST(ObserverGlare, CanBeWorkedOutAgainFromItsTerms) {
    std::vector<SceneLuminaire> luminaires;
    for (int i = 0; i < 60; ++i) {
        luminaires.push_back(FromEye(UniformLuminaire(100 + 10 * i, 0.3, 1.2, 0.05), 0.4 * i - 3,
                                     (i % 7) - 3, 0.3 * (i % 5)));
        luminaires.back().rotation = 0.1 * i;
    }
    std::vector<GlareTerm> terms;
    const GlareOptions both = {.smallSourceTerm = true, .tableFieldLimit = true};
    const GlareResult result = See(luminaires, 25, both, &terms);
    ASSERT_EQ(terms.size(), luminaires.size());
    double sum = 0.0;
    std::int32_t sources = 0;
    for (const GlareTerm& term : terms) {
        sum += term.term;
        sources += term.omission == GlareOmission::None;
    }
    EXPECT_NEAR(result.ugr, 8 * std::log10(0.25 * sum / 25), 1e-12);
    EXPECT_EQ(result.sources, sources);
    EXPECT_GT(sources, 10);
    EXPECT_LT(sources, 60);
}

TEST(RateSum, GivesTheSameRoomInAnotherLight) {
    const std::vector<SceneLuminaire> lamp = {FromEye(UniformLuminaire(500, 0.6, 0.6), 3, 0, 1)};
    const GlareSum sum = SumSources(Eye, PlaceLuminaires(lamp), {});
    const GlareResult brighter = RateSum(sum, 200 * Pi);
    EXPECT_EQ(brighter.ugr, See(lamp, 200).ugr);
    EXPECT_NEAR(See(lamp, 20).ugr - brighter.ugr, 8.0, 1e-12); // ten times the background
    EXPECT_EQ(brighter.sources, 1);
}

TEST(FormatUgr, TellsValuesUnderTenAsLess) {
    struct Case {
        double value;
        std::string text;
    };
    const Case cases[] = {
        {-4.2, "< 10"},  {0, "< 10"},      {9.4, "< 10"},    {9.94, "< 10"},  {9.9499, "< 10"},
        {9.95, "< 10"},  {9.9999, "< 10"}, {10, "10,0"},     {10.04, "10,0"}, {19.04, "19,0"},
        {19.05, "19,1"}, {28.25, "28,3"},  {100.0, "100,0"},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(FormatUgr(c.value), c.text);
    }
}

} // namespace
} // namespace Merivane::Simulation
