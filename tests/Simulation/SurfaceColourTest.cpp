#include <cmath>
#include <limits>

#include <gtest/gtest.h>

#include "Simulation/SurfaceColour.hpp"

namespace Merivane::Simulation {
namespace {

TEST(Linearise, FollowsTheTransferCurveOfSrgb) {
    EXPECT_EQ(Linearise(0.0), 0.0);
    EXPECT_EQ(Linearise(1.0), 1.0);
    EXPECT_DOUBLE_EQ(Linearise(0.02), 0.02 / 12.92);
    EXPECT_DOUBLE_EQ(Linearise(0.5), std::pow(0.555 / 1.055, 2.4));
    // The usual eight-bit rows: 128 of 255 is 21.586 % of the light, 188 is 50.289 %.
    EXPECT_NEAR(Linearise(128.0 / 255.0), 0.215861, 1e-6);
    EXPECT_NEAR(Linearise(188.0 / 255.0), 0.502886, 1e-6);
}

TEST(Linearise, IsStraightUpToItsEdge) {
    const double edge = 0.04045;
    const double above = std::nextafter(edge, 1.0);
    EXPECT_EQ(Linearise(edge), edge / 12.92);
    EXPECT_EQ(Linearise(above), std::pow((above + 0.055) / 1.055, 2.4));
    EXPECT_NE(Linearise(above), above / 12.92);
}

TEST(Linearise, ClampsTheChannel) {
    EXPECT_EQ(Linearise(-0.001), 0.0);
    EXPECT_EQ(Linearise(1.001), 1.0);
    EXPECT_EQ(Linearise(std::numeric_limits<double>::infinity()), 1.0);
}

TEST(Luminance, WeighsTheChannels) {
    EXPECT_EQ(Luminance(1.0, 0.0, 0.0), 0.2126);
    EXPECT_EQ(Luminance(0.0, 1.0, 0.0), 0.7152);
    EXPECT_EQ(Luminance(0.0, 0.0, 1.0), 0.0722);
    EXPECT_DOUBLE_EQ(Luminance(1.0, 1.0, 1.0), 1.0);
}

TEST(EstimateReflectance, StaysWithinWhatSurfacesHave) {
    EXPECT_EQ(EstimateReflectance(0.0, 0.0, 0.0), 0.02); // pure black
    EXPECT_EQ(EstimateReflectance(1.0, 1.0, 1.0), 0.9);  // pure white
    // A grey's luminance is its linear value: just inside both limits it stays.
    EXPECT_EQ(EstimateReflectance(0.151, 0.151, 0.151), 0.02);
    EXPECT_NEAR(EstimateReflectance(0.152, 0.152, 0.152), 0.0200689, 1e-7);
    EXPECT_NEAR(EstimateReflectance(0.954, 0.954, 0.954), 0.8985306, 1e-7);
    EXPECT_EQ(EstimateReflectance(0.955, 0.955, 0.955), 0.9);
}

TEST(EstimateReflectance, IsTheLuminanceOfTheColour) {
    EXPECT_DOUBLE_EQ(EstimateReflectance(1.0, 0.0, 0.0), 0.2126);
    EXPECT_DOUBLE_EQ(EstimateReflectance(0.0, 0.0, 1.0), 0.0722);
    EXPECT_DOUBLE_EQ(EstimateReflectance(0.8, 0.5, 0.2),
                     Luminance(Linearise(0.8), Linearise(0.5), Linearise(0.2)));
}

TEST(TintedValues, KeepTheHueAndTakeTheLuminance) {
    const Channels tinted = TintedValues({0.8, 0.5, 0.2}, 0.3, 0.95);
    EXPECT_NEAR(Luminance(tinted[0], tinted[1], tinted[2]), 0.3, 1e-15);
    EXPECT_DOUBLE_EQ(tinted[0] / tinted[1], Linearise(0.8) / Linearise(0.5));
    EXPECT_DOUBLE_EQ(tinted[2] / tinted[1], Linearise(0.2) / Linearise(0.5));
}

TEST(TintedValues, CutAChannelAtTheLimit) {
    // Pure red: 0.3 / 0.2126 = 1.41 for the one channel with light.
    EXPECT_EQ(TintedValues({1.0, 0.0, 0.0}, 0.3, 0.95), (Channels{0.95, 0.0, 0.0}));
    EXPECT_EQ(TintedValues({1.0, 0.0, 0.0}, 0.3, 1.0), (Channels{1.0, 0.0, 0.0}));
    EXPECT_DOUBLE_EQ(TintedValues({1.0, 0.0, 0.0}, 0.2, 1.0)[0], 0.2 / 0.2126);
}

TEST(TintedValues, OfAColourWithoutLightAreGrey) {
    EXPECT_EQ(TintedValues({0.0, 0.0, 0.0}, 0.3, 0.95), (Channels{0.3, 0.3, 0.3}));
    // Up to a luminance of 0.000001 there is no hue: a blue of 0.000178 / 12.92 x 0.0722.
    EXPECT_EQ(TintedValues({0.0, 0.0, 0.000178}, 0.3, 0.95), (Channels{0.3, 0.3, 0.3}));
    EXPECT_EQ(TintedValues({0.0, 0.0, 0.000180}, 0.3, 0.95), (Channels{0.0, 0.0, 0.95}));
}

} // namespace
} // namespace Merivane::Simulation
