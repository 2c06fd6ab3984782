#include <cmath>
#include <numbers>
#include <random>

#include <gtest/gtest.h>

#include "Photometry/LuminaireRotation.hpp"

namespace Merivane::Photometry {
namespace {

using Vector = std::array<double, 3>;

LuminaireSettings Aimed(double c0Rotation, double tiltAngle, double tiltDirection) {
    LuminaireSettings settings;
    settings.c0Rotation = c0Rotation;
    settings.tiltAngle = tiltAngle;
    settings.tiltDirection = tiltDirection;
    return settings;
}

Vector Turn(const RotationMatrix& m, const Vector& v) {
    return {m[0] * v[0] + m[1] * v[1] + m[2] * v[2], m[3] * v[0] + m[4] * v[1] + m[5] * v[2],
            m[6] * v[0] + m[7] * v[1] + m[8] * v[2]};
}

void ExpectNear(const Vector& a, const Vector& b) {
    for (std::size_t i = 0; i < 3; ++i) {
        EXPECT_NEAR(a[i], b[i], 1e-12) << i;
    }
}

constexpr Vector Beam = {0, 0, -1};
constexpr Vector C0 = {1, 0, 0};
const double Half = std::sqrt(0.5);
using std::numbers::pi;

TEST(LuminaireRotation, IsTheIdentityWithoutAiming) {
    EXPECT_EQ(LuminaireRotation(LuminaireSettings{}), (RotationMatrix{1, 0, 0, 0, 1, 0, 0, 0, 1}));
}

TEST(LuminaireRotation, AimsTheBeamAndC0) {
    struct Case {
        double c0Rotation, tiltAngle, tiltDirection;
        Vector beam, c0;
    };
    const Case cases[] = {
        {90, 0, 0, {0, 0, -1}, {0, 1, 0}},
        {90, 0, 45, {0, 0, -1}, {0, 1, 0}}, // without tilt its direction is nothing
        {0, 90, 0, {1, 0, 0}, {0, 0, 1}},   // the beam rises towards +x, C0 looks up
        {0, 90, 90, {0, 1, 0}, {1, 0, 0}},  // towards +y, C0 stays
        {0, 90, 180, {-1, 0, 0}, {0, 0, -1}},
        {0, 45, 0, {Half, 0, -Half}, {Half, 0, Half}},
        {0, 180, 0, {0, 0, 1}, {-1, 0, 0}},
        {30,
         45,
         30,
         {Half * std::cos(pi / 6), Half * std::sin(pi / 6), -Half},
         {Half * std::cos(pi / 6), Half * std::sin(pi / 6), Half}},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(::testing::PrintToString(
            std::vector<double>{c.c0Rotation, c.tiltAngle, c.tiltDirection}));
        const RotationMatrix m =
            LuminaireRotation(Aimed(c.c0Rotation, c.tiltAngle, c.tiltDirection));
        ExpectNear(Turn(m, Beam), c.beam);
        ExpectNear(Turn(m, C0), c.c0);
    }
}

TEST(LuminaireRotation, TiltsTheBeamByItsAngleWhateverC0Is) {
    std::mt19937_64 random(80);
    std::uniform_real_distribution<double> angle(-360.0, 360.0);
    for (int i = 0; i < 500; ++i) {
        const double tilt = angle(random) / 4;
        const double direction = angle(random);
        const RotationMatrix m = LuminaireRotation(Aimed(angle(random), tilt, direction));
        const double radians = pi / 180;
        ExpectNear(Turn(m, Beam), {std::sin(tilt * radians) * std::cos(direction * radians),
                                   std::sin(tilt * radians) * std::sin(direction * radians),
                                   -std::cos(tilt * radians)});
    }
}

TEST(DirectionToIesAngles, TellsTheAnglesOfAnUnturnedLuminaire) {
    struct Case {
        Vector direction;
        double vertical, horizontal;
    };
    const Case cases[] = {
        {{0, 0, -1}, 0, 0},    {{0, 0, -1e-300}, 0, 0}, {{0, 0, 5}, 180, 0},   {{2, 0, 0}, 90, 0},
        {{0, 3, 0}, 90, 90},   {{-1, 0, 0}, 90, 180},   {{0, -1, 0}, 90, 270}, {{1, 1, 0}, 90, 45},
        {{1, -1, 0}, 90, 315}, {{1, 0, -1}, 45, 0},     {{0, 1, 1}, 135, 90},  {{0, 0, 0}, 0, 0},
    };
    for (const Case& c : cases) {
        double vertical = -1;
        double horizontal = -1;
        DirectionToIesAngles(LuminaireRotation(LuminaireSettings{}), c.direction, vertical,
                             horizontal);
        EXPECT_NEAR(vertical, c.vertical, 1e-12) << ::testing::PrintToString(c.direction);
        EXPECT_NEAR(horizontal, c.horizontal, 1e-12) << ::testing::PrintToString(c.direction);
    }
}

TEST(DirectionToIesAngles, UndoesTheRotation) {
    std::mt19937_64 random(81);
    std::uniform_real_distribution<double> angle(0.0, 360.0);
    for (int i = 0; i < 500; ++i) {
        const RotationMatrix m =
            LuminaireRotation(Aimed(angle(random), angle(random), angle(random)));
        const double v = 0.1 + angle(random) * 0.499;
        const double h = angle(random);
        const double radians = pi / 180;
        const Vector local = {std::sin(v * radians) * std::cos(h * radians),
                              std::sin(v * radians) * std::sin(h * radians),
                              -std::cos(v * radians)};
        double vertical = 0;
        double horizontal = 0;
        DirectionToIesAngles(m, Turn(m, local), vertical, horizontal);
        EXPECT_NEAR(vertical, v, 1e-9);
        // Around the seam at 360 the two may stand at either side of it.
        EXPECT_NEAR(std::remainder(horizontal - h, 360.0), 0.0, 1e-7);
    }
}

} // namespace
} // namespace Merivane::Photometry
