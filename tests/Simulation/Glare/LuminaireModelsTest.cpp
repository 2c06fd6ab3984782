#include <gtest/gtest.h>

#include "Photometry/LuminaireTypeKey.hpp"
#include "Simulation/Glare/GlareSamples.hpp"
#include "Simulation/Glare/LuminaireModels.hpp"

namespace Merivane::Simulation {
namespace {

using Photometry::IesFile;
using Tests::At;
using Tests::UniformLuminaire;

SceneLuminaire Named(const std::string& name, double candela, const std::string& product = "") {
    SceneLuminaire luminaire = UniformLuminaire(candela, 0.6, 0.6);
    luminaire.displayName = name;
    luminaire.id = "lum_" + name;
    luminaire.typeKey = Photometry::LuminaireTypeKey("", product, "LED", "");
    return luminaire;
}

std::vector<ModelGlare> Group(const std::vector<SceneLuminaire>& luminaires) {
    return GroupModels(PlaceLuminaires(luminaires), 1.2);
}

TEST(SamePhotometry, ComparesWhatMakesTheLight) {
    const IesFile file = UniformLuminaire(500, 0.3, 1.2).photometry;
    const std::vector<void (*)(IesFile&)> others = {
        [](IesFile& f) { f.photometricType = 2; },
        [](IesFile& f) { f.unitsType = 1; },
        [](IesFile& f) { f.width = 0.31; },
        [](IesFile& f) { f.length = -1.2; },
        [](IesFile& f) { f.height = 0.01; },
        [](IesFile& f) { f.candelaMultiplier = 1.01; },
        [](IesFile& f) { f.verticalAngles[1] = 179; },
        [](IesFile& f) { f.horizontalAngles[0] = 1; },
        [](IesFile& f) { f.candela[0][1] = 501; },
    };
    EXPECT_TRUE(SamePhotometry(file, file));
    for (std::size_t i = 0; i < others.size(); ++i) {
        IesFile other = file;
        others[i](other);
        EXPECT_FALSE(SamePhotometry(file, other)) << i;
    }
}

TEST(SamePhotometry, DoesNotMindWhatIsOnlyWritten) {
    const IesFile file = UniformLuminaire(500, 0.3, 1.2).photometry;
    IesFile other = file;
    other.keywords = {{"LUMCAT", "X"}};
    other.otherLines = {"text"};
    other.formatVersion = 1;
    other.lampCount = 3;
    other.lumensPerLamp = 7;
    other.ballastFactor = 0.5;
    other.inputWatts = 99;
    EXPECT_TRUE(SamePhotometry(file, other));
}

TEST(IsContinuousLine, ByItsTypeOrItsScale) {
    SceneLuminaire luminaire = Named("L", 500, "Linear");
    EXPECT_FALSE(IsContinuousLine(luminaire));
    luminaire.lengthScale = 0.8;
    EXPECT_TRUE(IsContinuousLine(luminaire));
    luminaire.lengthScale = 1.0 + 1e-13;
    EXPECT_FALSE(IsContinuousLine(luminaire));
    luminaire.typeKey = Photometry::LuminaireTypeKey("", "Fita", "LED", "", true);
    EXPECT_TRUE(IsContinuousLine(luminaire));
}

TEST(GroupModels, CountsLightsAndAveragesTheirHeight) {
    SceneLuminaire row = At(Named("A", 500), 1, 1, 3.2);
    row.arrayCountX = 3;
    row.arrayStepX = 1;
    row.contract.centerZ = -0.2; // the photometric centre counts
    const std::vector<ModelGlare> models =
        Group({row, At(Named("B", 700), 2, 2, 2.7), At(Named("A", 500), 9, 9, 2.6)});
    ASSERT_EQ(models.size(), 2U);
    EXPECT_EQ(models[0].count, 4U);
    EXPECT_EQ(models[0].luminaire, 0U);
    EXPECT_NEAR(models[0].height, (3 * 1.8 + 1.4) / 4, 1e-12);
    EXPECT_EQ(models[1].count, 1U);
    EXPECT_EQ(models[1].luminaire, 1U);
    EXPECT_NEAR(models[1].height, 1.5, 1e-12);
}

TEST(GroupModels, AreNotToldApartByPlaceOrDimming) {
    SceneLuminaire other = At(Named("A", 500), 3, 3, 3);
    other.rotation = 1;
    other.dimming = 0.2;
    other.mirrored = true;
    other.contract.tiltAngle = 20;
    EXPECT_EQ(Group({Named("A", 500), other}).size(), 1U);
}

TEST(GroupModels, SetPiecesOfALineApartFromWholeLuminaires) {
    SceneLuminaire piece = Named("A", 500);
    piece.lengthScale = 0.5;
    SceneLuminaire longer = piece;
    longer.lengthScale = 0.7;
    const std::vector<ModelGlare> models = Group({Named("A", 500), piece, longer});
    ASSERT_EQ(models.size(), 2U);
    EXPECT_EQ(models[1].count, 2U);
}

TEST(GroupModels, NameAModelByItsLuminairesOrItsType) {
    struct Case {
        std::vector<std::string> names;
        std::string product;
        std::string expected;
    };
    const Case cases[] = {
        {{"Painel", "Painel"}, "PN60", "Painel"},
        {{"Painel 1", "Painel 2"}, "PN60", "PN60"},
        {{"Painel 1", "Painel 2", "Painel 1"}, "PN60", "PN60"},
        {{"Painel 1", "Painel 2"}, "", "Painel 1"},
        {{"", ""}, "PN60", "PN60"},
        {{"", ""}, "", "lum_"},
    };
    for (const Case& c : cases) {
        std::vector<SceneLuminaire> luminaires;
        for (const std::string& name : c.names) {
            luminaires.push_back(Named(name, 500, c.product));
        }
        const std::vector<ModelGlare> models = Group(luminaires);
        ASSERT_EQ(models.size(), 1U);
        EXPECT_EQ(models[0].name, c.expected);
    }
}

} // namespace
} // namespace Merivane::Simulation
