#include <algorithm>

#include <gtest/gtest.h>

#include "Simulation/GlassTransmissivity.hpp"

namespace Merivane::Simulation {

namespace {

/// Transmittance of a pane of index 1.52 at normal incidence, all inner reflections summed.
double Transmittance(double transmissivity) {
    const double faceReflectance = 0.52 * 0.52 / (2.52 * 2.52);
    const double passed = (1.0 - faceReflectance) * (1.0 - faceReflectance) * transmissivity;
    return passed / (1.0 - faceReflectance * faceReflectance * transmissivity * transmissivity);
}

} // namespace

TEST(GlassTransmissivity, UndoesTheReflectionsOfAPane) {
    for (const double transmittance : {0.05, 0.3, 0.5, 0.7, 0.88, 0.9, 1.0}) {
        SCOPED_TRACE(transmittance);
        EXPECT_NEAR(Transmittance(GlassTransmissivity(transmittance)), transmittance, 1e-6);
    }
    EXPECT_NEAR(GlassTransmissivity(0.88), 0.96, 0.002); // a clear pane, as the manual has it
}

TEST(GlassTransmissivity, ClampsToWhatAPaneCanBe) {
    EXPECT_EQ(GlassTransmissivity(0.0), GlassTransmissivity(0.000001));
    EXPECT_EQ(GlassTransmissivity(2.0), GlassTransmissivity(1.0));
}

TEST(GlassTransmissivity, IsNeverNegative) {
    for (const double transmittance : {-1.0, 0.0, 1e-6, 1e-5, 1e-4, 1e-3, 1e-2}) {
        SCOPED_TRACE(transmittance);
        EXPECT_GE(GlassTransmissivity(transmittance), 0.0);
        EXPECT_NEAR(Transmittance(GlassTransmissivity(transmittance)), std::max(transmittance, 0.0),
                    2e-4);
    }
}

} // namespace Merivane::Simulation
