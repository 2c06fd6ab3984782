#include <gtest/gtest.h>

#include "Photometry/LuminaireContract.hpp"

namespace Merivane::Photometry {
namespace {

using Type = ContractParameterType;

TEST(ContractParameterType, HasTheNumbersOfTheContract) {
    const Type types[] = {Type::Integer, Type::Real,   Type::Length,    Type::Angle,
                          Type::Boolean, Type::String, Type::RealArray, Type::StringArray,
                          Type::Pen,     Type::Title};
    for (int code = 0; code < 10; ++code) {
        EXPECT_EQ(static_cast<int>(types[code]), code);
    }
}

TEST(LuminaireSettings, StartWithTheUsualMaintenanceAndNothingElse) {
    const LuminaireSettings settings;
    EXPECT_EQ(settings.iesFileName, "");
    EXPECT_EQ(settings.maintenanceFactor, 0.8);
    for (const double zero :
         {settings.centerX, settings.centerY, settings.centerZ, settings.c0Rotation,
          settings.tiltAngle, settings.tiltDirection, settings.flangeDepth,
          settings.colourRendering, static_cast<double>(settings.symbolFill)}) {
        EXPECT_EQ(zero, 0.0);
    }
}

TEST(ContractReadResult, IsNotOkUntilToldSo) {
    const ContractReadResult result;
    EXPECT_FALSE(result.ok);
    EXPECT_EQ(result.error, "");
    EXPECT_EQ(result.version, 0);
    EXPECT_EQ(LuminaireIdentity{}.colourRendering, 0.0);
}

// Compiles only while the fields of each record stand in this order.
TEST(LuminaireContract, HoldsItsFieldsInTheOrderOfTheContract) {
    const ContractParameter parameter = {.name = "mvCandela",
                                         .type = ContractParameterType::RealArray,
                                         .description = "d",
                                         .hidden = true,
                                         .number = 0.0,
                                         .text = {},
                                         .dim1 = 1,
                                         .dim2 = 2,
                                         .numbers = {1.0, 2.0},
                                         .texts = {}};
    const LuminaireSettings settings = {.iesFileName = "a.ies",
                                        .centerX = 1.0,
                                        .centerY = 2.0,
                                        .centerZ = 3.0,
                                        .c0Rotation = 4.0,
                                        .tiltAngle = 5.0,
                                        .tiltDirection = 6.0,
                                        .flangeDepth = 7.0,
                                        .maintenanceFactor = 0.8,
                                        .colourRendering = 90.0,
                                        .symbolFill = 1};
    const LuminaireIdentity identity = {.manufacturer = "m",
                                        .catalog = "c",
                                        .luminaire = "l",
                                        .lamp = "p",
                                        .colourRendering = 80.0};
    const ContractReadResult result = {.ok = true, .error = {}, .version = 7};
    EXPECT_EQ(parameter.numbers.size(), 2U);
    EXPECT_EQ(settings.symbolFill, 1);
    EXPECT_EQ(identity.lamp, "p");
    EXPECT_EQ(result.version, 7);
}

} // namespace
} // namespace Merivane::Photometry
