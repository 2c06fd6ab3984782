#include <cmath>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "Simulation/GlassTransmissivity.hpp"
#include "Simulation/SceneMaterials.hpp"

namespace Merivane::Simulation {
namespace {

SurfaceReflectance Opaque(double reflectance) {
    SurfaceReflectance record = MakeFromColour("sup:Parede", "Parede", {0.8, 0.5, 0.2});
    record.reflectance = reflectance;
    return record;
}

SurfaceReflectance Glass(double transmittance, double inside = 0.08, double outside = 0.08) {
    SurfaceReflectance record = MakeFromColour("sup:Vidro", "Vidro", {0.2, 0.9, 0.5, 1.0, 0.8});
    record.transmittance = transmittance;
    record.reflectanceInside = inside;
    record.reflectanceOutside = outside;
    return record;
}

SceneMaterial MaterialOf(const SurfaceReflectance& record, bool useColour) {
    const std::vector<SceneMaterial> materials = BuildSceneMaterials({record}, useColour);
    EXPECT_EQ(materials.size(), 1U);
    return materials.front();
}

Channels ChannelsOf(const SceneMaterial& material) {
    return {material.red, material.green, material.blue};
}

TEST(BuildSceneMaterials, GivesOneForEachRecordInTheirOrder) {
    EXPECT_TRUE(BuildSceneMaterials({}, true).empty());
    const std::vector<SceneMaterial> materials =
        BuildSceneMaterials({Opaque(0.5), MakeFloorReflectance(), Glass(0.8)}, false);
    ASSERT_EQ(materials.size(), 3U);
    EXPECT_EQ(materials[0].name, "Parede");
    EXPECT_EQ(materials[1].name, "(sem Superficie) piso");
    EXPECT_EQ(materials[2].name, "Vidro");
    EXPECT_FALSE(materials[1].isGlass);
    EXPECT_TRUE(materials[2].isGlass);
}

TEST(BuildSceneMaterials, ReflectsAlikeInAllChannelsWithoutColour) {
    const SceneMaterial material = MaterialOf(Opaque(0.6), false);
    EXPECT_EQ(ChannelsOf(material), (Channels{0.6, 0.6, 0.6}));
    EXPECT_FALSE(material.isGlass);
    EXPECT_EQ(material.reflectanceInside, -1.0);
    EXPECT_EQ(material.reflectanceOutside, -1.0);
}

TEST(BuildSceneMaterials, ReflectsInTheSurfacesHueWithColour) {
    EXPECT_EQ(ChannelsOf(MaterialOf(Opaque(0.3), true)), TintedValues({0.8, 0.5, 0.2}, 0.3, 0.95));
    EXPECT_EQ(MaterialOf(Opaque(0.9), true).red, 0.95); // cut
}

TEST(BuildSceneMaterials, LeavesASurfaceWithoutColourGrey) {
    EXPECT_EQ(ChannelsOf(MaterialOf(MakeWallReflectance(), true)), (Channels{0.5, 0.5, 0.5}));
}

TEST(BuildSceneMaterials, PassesTheRootOfTheTransmittanceThroughEachFace) {
    const SceneMaterial plain = MaterialOf(Glass(0.64), false);
    const double value = GlassTransmissivity(0.8);
    EXPECT_EQ(ChannelsOf(plain), (Channels{value, value, value}));
    EXPECT_EQ(plain.reflectanceInside, -1.0);
    EXPECT_EQ(plain.reflectanceOutside, -1.0);

    const SceneMaterial mirroring = MaterialOf(Glass(0.64, 0.2, 0.3), false);
    EXPECT_TRUE(mirroring.isGlass);
    EXPECT_EQ(ChannelsOf(mirroring), (Channels{0.8, 0.8, 0.8}));
    EXPECT_EQ(mirroring.reflectanceInside, 0.2);
    EXPECT_EQ(mirroring.reflectanceOutside, 0.3);
}

TEST(BuildSceneMaterials, TintsGlassUpToAllTheLight) {
    const double face = std::sqrt(0.3);
    const Channels tinted = TintedValues({0.2, 0.9, 0.5}, face, 1.0);
    EXPECT_EQ(ChannelsOf(MaterialOf(Glass(0.3, 0.2, 0.2), true)), tinted);
    const SceneMaterial plain = MaterialOf(Glass(0.3), true);
    EXPECT_EQ(plain.red, GlassTransmissivity(tinted[0]));
    EXPECT_EQ(plain.green, GlassTransmissivity(tinted[1]));
    EXPECT_EQ(plain.blue, GlassTransmissivity(tinted[2]));
    EXPECT_EQ(MaterialOf(Glass(0.95, 0.2, 0.2), true).green, 1.0); // cut
}

TEST(BuildSceneMaterials, ClampsTheTransmittance) {
    const std::vector<std::pair<double, double>> cases = {
        {0.0, 0.05},    {0.049, 0.05}, {0.05, 0.05},  {0.051, 0.051},
        {0.949, 0.949}, {0.95, 0.95},  {0.951, 0.95}, {1.0, 0.95},
    };
    for (const auto& [given, used] : cases) {
        EXPECT_EQ(MaterialOf(Glass(given, 0.2, 0.2), false).red, std::sqrt(used)) << given;
    }
}

TEST(BuildSceneMaterials, TakesGlassOf8PercentOnBothSidesForClear) {
    struct Case {
        double inside;
        double outside;
        bool clear;
    };
    const Case cases[] = {
        {0.08, 0.08, true},     {0.084, 0.084, true}, {0.076, 0.076, true}, {0.0849, 0.0849, true},
        {0.0751, 0.0751, true}, {0.085, 0.08, false}, {0.08, 0.085, false}, {0.085, 0.085, false},
        {0.075, 0.08, false},   {0.08, 0.075, false}, {0.0, 0.0, false},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(std::to_string(c.inside) + " " + std::to_string(c.outside));
        const SceneMaterial material = MaterialOf(Glass(0.64, c.inside, c.outside), false);
        EXPECT_EQ(material.reflectanceInside, c.clear ? -1.0 : c.inside);
        EXPECT_EQ(material.reflectanceOutside, c.clear ? -1.0 : c.outside);
        EXPECT_EQ(material.red, c.clear ? GlassTransmissivity(0.8) : 0.8);
    }
}

TEST(BuildSceneMaterials, ClampsTheReflectancesOfGlass) {
    const SceneMaterial material = MaterialOf(Glass(0.5, -0.001, 0.601), false);
    EXPECT_EQ(material.reflectanceInside, 0.0);
    EXPECT_EQ(material.reflectanceOutside, 0.6);
    const SceneMaterial highest = MaterialOf(Glass(0.5, 0.6, 0.0), false);
    EXPECT_EQ(highest.reflectanceInside, 0.6);
    EXPECT_EQ(highest.reflectanceOutside, 0.0);
}

} // namespace
} // namespace Merivane::Simulation
