#include <numbers>

#include <gtest/gtest.h>

#include "Photometry/IesWriter.hpp"
#include "Radiance/LuminaireSource.hpp"

namespace Merivane::Radiance {
namespace {

using Arguments = std::vector<std::string>;
using Simulation::SceneLuminaire;

SceneLuminaire Luminaire() {
    SceneLuminaire luminaire;
    luminaire.photometry.width = 0.3;
    luminaire.photometry.length = 1.2;
    luminaire.photometry.candelaMultiplier = 2.0;
    luminaire.photometry.verticalAngles = {0, 90};
    luminaire.photometry.horizontalAngles = {0};
    luminaire.photometry.candela = {{100, 0}};
    return luminaire;
}

TEST(ScaledPhotometry, WithAScaleOfOneIsTheSourceItself) {
    for (const double scale : {1.0, 1.0 + 0.9e-12, 1.0 - 0.9e-12}) {
        SceneLuminaire luminaire = Luminaire();
        luminaire.lengthScale = scale;
        EXPECT_EQ(Photometry::WriteIes(ScaledPhotometry(luminaire)),
                  Photometry::WriteIes(luminaire.photometry));
    }
}

TEST(ScaledPhotometry, StretchesFluxAndTheLongerSide) {
    struct Case {
        double width;
        double length;
        double scale;
        double scaledWidth;
        double scaledLength;
    };
    const Case cases[] = {
        {0.3, 1.2, 0.5, 0.3, 0.6},
        {1.2, 0.3, 0.5, 0.6, 0.3},
        {1.0, 1.0, 3.0, 1.0, 3.0},
        {0.0, 0.0, 2.0, 0.0, 0.0},
        {-0.2, 1.0, 2.0, -0.2, 1.0},
        {0.2, -1.0, 2.0, 0.2, -1.0},
        {0.3, 1.0, 1.0 + 2e-12, 0.3, 1.0 + 2e-12},
    };
    for (const Case& c : cases) {
        SceneLuminaire luminaire = Luminaire();
        luminaire.photometry.width = c.width;
        luminaire.photometry.length = c.length;
        luminaire.photometry.height = 0.07;
        luminaire.lengthScale = c.scale;
        const Photometry::IesFile scaled = ScaledPhotometry(luminaire);
        EXPECT_EQ(scaled.width, c.scaledWidth);
        EXPECT_EQ(scaled.length, c.scaledLength);
        EXPECT_EQ(scaled.height, 0.07);
        EXPECT_EQ(scaled.candelaMultiplier, 2.0 * c.scale);
        EXPECT_EQ(scaled.candela, luminaire.photometry.candela);
    }
}

TEST(Ies2RadArguments, FoldDimmingAndMaintenanceIn) {
    SceneLuminaire luminaire = Luminaire();
    luminaire.dimming = 0.5;
    luminaire.contract.maintenanceFactor = 0.8;
    EXPECT_EQ(Ies2RadArguments(luminaire, "lum7"),
              (Arguments{"-dm", "-c", "1", "1", "1", "-m", "0.400000", "-o", "lum7", "lum7.ies"}));
    luminaire.dimming = 0.0;
    EXPECT_EQ(Ies2RadArguments(luminaire, "x"),
              (Arguments{"-dm", "-c", "1", "1", "1", "-m", "0.000000", "-o", "x", "x.ies"}));
}

TEST(XformArguments, OfAPlainLuminaireKeepEveryStep) {
    EXPECT_EQ(XformArguments(Luminaire(), "lum1.rad"),
              (Arguments{"-t",       "0",        "0",       "-0.000500", "-rz", "0.000000",
                         "-ry",      "0.000000", "-rz",     "0.000000",  "-t",  "0.000000",
                         "0.000000", "0.000000", "-rz",     "0.000000",  "-t",  "0.000000",
                         "0.000000", "0.000000", "lum1.rad"}));
}

TEST(XformArguments, GoFromThePhotometricCentreToTheWorld) {
    SceneLuminaire luminaire = Luminaire();
    luminaire.contract.c0Rotation = 30;
    luminaire.contract.tiltDirection = 90;
    luminaire.contract.tiltAngle = 45;
    luminaire.contract.centerX = 0.1;
    luminaire.contract.centerY = -0.2;
    luminaire.contract.centerZ = 0.3;
    luminaire.mirrored = true;
    luminaire.rotation = std::numbers::pi / 2;
    luminaire.x = 1;
    luminaire.y = 2;
    luminaire.z = 2.8;
    luminaire.arrayCountX = 2;
    luminaire.arrayStepX = 1.5;
    luminaire.arrayCountY = 3;
    luminaire.arrayStepY = -0.75;
    EXPECT_EQ(
        XformArguments(luminaire, "lum2.rad"),
        (Arguments{"-t",        "0",          "0",        "-0.000500", "-rz",       "-60.000000",
                   "-ry",       "-45.000000", "-rz",      "90.000000", "-t",        "0.100000",
                   "-0.200000", "0.300000",   "-mx",      "-rz",       "90.000000", "-t",
                   "1.000000",  "2.000000",   "2.800000", "-a",        "2",         "-t",
                   "1.500000",  "0",          "0",        "-a",        "3",         "-t",
                   "0",         "-0.750000",  "0",        "lum2.rad"}));
}

TEST(XformArguments, LowerTheSourceByHalfItsHeightInMetres) {
    struct Case {
        double height;
        int units;
        std::string lowering;
    };
    const Case cases[] = {
        {0.05, 2, "-0.025500"},
        {-0.05, 2, "-0.025500"}, // a round shape: the size counts
        {1.0, 1, "-0.152900"},   // one foot
        {-1.0, 1, "-0.152900"},
    };
    for (const Case& c : cases) {
        SceneLuminaire luminaire = Luminaire();
        luminaire.photometry.height = c.height;
        luminaire.photometry.unitsType = c.units;
        EXPECT_EQ(XformArguments(luminaire, "x")[3], c.lowering);
    }
}

TEST(XformArguments, RepeatOnlyWhatIsMoreThanOne) {
    for (const std::int32_t count : {-1, 0, 1}) {
        SceneLuminaire luminaire = Luminaire();
        luminaire.arrayCountX = count;
        luminaire.arrayCountY = 2;
        luminaire.arrayStepX = 5;
        luminaire.arrayStepY = 0.5;
        const Arguments arguments = XformArguments(luminaire, "x");
        EXPECT_EQ(Arguments(arguments.end() - 7, arguments.end()),
                  (Arguments{"-a", "2", "-t", "0", "0.500000", "0", "x"}));
        EXPECT_EQ(arguments.size(), 20u + 7u);
    }
}

} // namespace
} // namespace Merivane::Radiance
