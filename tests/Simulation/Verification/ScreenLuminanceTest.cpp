#include <cstddef>
#include <cstdint>
#include <numbers>

#include <gtest/gtest.h>

#include "Simulation/Verification/ScreenLuminance.hpp"

namespace Merivane::Simulation {
namespace {

constexpr double Degree = std::numbers::pi / 180.0;

/// 100 cd in every direction from an opening of 0.1 m2, at an odd place of the project.
SceneLuminaire Panel() {
    SceneLuminaire luminaire;
    luminaire.photometry.verticalAngles = {0, 180};
    luminaire.photometry.horizontalAngles = {0};
    luminaire.photometry.candela = {{100, 100}};
    luminaire.photometry.width = 0.2;
    luminaire.photometry.length = 0.5;
    luminaire.x = 1234.567;
    luminaire.y = -87.13;
    luminaire.z = 2.9;
    return luminaire;
}

/// The angles of a table in steps of 7.5 and 5 degrees, its candela 0.
Photometry::IesFile FineTable() {
    Photometry::IesFile file = Panel().photometry;
    file.verticalAngles.clear();
    file.horizontalAngles.clear();
    for (int i = 0; i <= 36; ++i) {
        file.verticalAngles.push_back(5.0 * i);
    }
    for (int i = 0; i <= 48; ++i) {
        file.horizontalAngles.push_back(7.5 * i);
    }
    file.candela.assign(49, std::vector<double>(37, 0.0));
    return file;
}

/// Sets the intensity of one direction of `FineTable`.
void SetCandela(Photometry::IesFile& file, double c, double gamma, double candela) {
    file.candela[static_cast<std::size_t>(c / 7.5)][static_cast<std::size_t>(gamma / 5.0)] =
        candela;
}

struct Reading {
    double luminance = 0.0;
    double gamma = -1.0;
    double c = -1.0;
};

Reading Read(const SceneLuminaire& luminaire) {
    const std::vector<SceneLuminaire> luminaires = {luminaire};
    Reading reading;
    reading.luminance =
        MaximumScreenLuminance(PlaceLuminaires(luminaires)[0], reading.gamma, reading.c);
    return reading;
}

TEST(SpeaksOfScreens, ReadsWordsOfAsciiLettersAndDigits) {
    struct Case {
        std::string text;
        bool speaks;
    };
    const Case cases[] = {
        {"Processamento de dados", true},
        {"Trabalho com Telas", true},
        {"TELAS", true},
        {"computador", true},
        {"computadores", true},
        {"uma tela", true},
        {"Escrever, teclar, ler", true},
        {"CAD", true},
        {"monitor", true},
        {"monitores", true},
        {"Para trabalho com VDT, ver 4.10.", true},
        {"(cad)", true},
        {"ácad", true},        // the accent ends a word before it
        {"computação", false}, // "computa" and "o"
        {"çdados", true},
        {"processamento", false},
        {"cadeira", false},
        {"cad2", false},
        {"2cad", false},
        {"telado", false},
        {"bancada", false},
        {"", false},
        {" ", false},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(SpeaksOfScreens(c.text), c.speaks) << c.text;
    }
}

TEST(ResolveScreens, KeepsWhatIsStoredAndReadsTheActivityOtherwise) {
    struct Case {
        std::string taskId;
        std::int32_t stored;
        std::int32_t screens;
    };
    const Case cases[] = {
        {"s22.2", 0, 0},  {"s22.1", 1, 1},       {"", 3, 3}, {"s22.2", 2, 2},
        {"", 7, 7},       {"s22.2", -1, 1},      // "teclar"
        {"s22.4", -1, 1},                        // "computador"
        {"s16.5", -1, 1},                        // "VDT" in its note
        {"s22.1", -1, 0}, {"escritorio", -1, 1}, // the old key of s22.2
        {"s99.1", -1, 0}, {"", -1, 0},
    };
    for (const Case& c : cases) {
        ZoneRequirement requirement;
        requirement.taskId = c.taskId;
        requirement.screens = c.stored;
        EXPECT_EQ(ResolveScreens(requirement), c.screens) << c.taskId << " " << c.stored;
    }
}

TEST(ScreenLuminanceLimit, FollowsTheClassOfTheScreens) {
    const std::vector<std::pair<std::int32_t, double>> limits = {
        {-1, 0.0}, {0, 0.0}, {1, 1000.0}, {2, 1000.0}, {3, 200.0}, {4, 0.0}};
    for (const auto& [screens, limit] : limits) {
        EXPECT_EQ(ScreenLuminanceLimit(screens), limit) << screens;
    }
}

TEST(MaximumScreenLuminance, OfAFlatOpeningIsLargestAtItsFlattest) {
    const Reading reading = Read(Panel());
    EXPECT_NEAR(reading.luminance, 100.0 / (0.1 * std::cos(85 * Degree)), 1e-6);
    EXPECT_EQ(reading.gamma, 85.0);
    EXPECT_EQ(reading.c, 0.0); // the first of equals
}

TEST(MaximumScreenLuminance, OfABoxSeesItsSidesToo) {
    SceneLuminaire luminaire = Panel();
    luminaire.photometry.height = 3.0; // steeper directions show less now
    const Reading reading = Read(luminaire);
    // Along C0 only the narrow side shows: 0.2 x 3 m.
    EXPECT_NEAR(reading.luminance,
                100.0 / (0.1 * std::cos(65 * Degree) + 0.6 * std::sin(65 * Degree)), 1e-6);
    EXPECT_EQ(reading.gamma, 65.0);
    EXPECT_EQ(reading.c, 0.0);
}

TEST(MaximumScreenLuminance, OfARoundOpeningTellsItsFirstPlane) {
    SceneLuminaire luminaire = Panel();
    luminaire.photometry.width = -0.2;
    luminaire.photometry.length = -0.2;
    luminaire.photometry.height = 0.05;
    luminaire.rotation = 0.3;
    const Reading reading = Read(luminaire);
    const double area =
        std::sin(85 * Degree) * 0.2 * 0.05 + std::numbers::pi * 0.04 / 4.0 * std::cos(85 * Degree);
    EXPECT_NEAR(reading.luminance, 100.0 / area, 1e-6);
    EXPECT_EQ(reading.gamma, 85.0);
    EXPECT_EQ(reading.c, 0.0);
}

TEST(MaximumScreenLuminance, IsThatOfFullOutput) {
    const double full = Read(Panel()).luminance;
    SceneLuminaire luminaire = Panel();
    luminaire.dimming = 0.0;
    luminaire.contract.maintenanceFactor = 0.5;
    EXPECT_DOUBLE_EQ(Read(luminaire).luminance, full);
}

TEST(MaximumScreenLuminance, CountsTheFilesMultiplierOnce) {
    const double plain = Read(Panel()).luminance;
    SceneLuminaire luminaire = Panel();
    luminaire.photometry.candelaMultiplier = 2.5;
    EXPECT_NEAR(Read(luminaire).luminance, 2.5 * plain, 1e-6);
}

TEST(MaximumScreenLuminance, OfAPieceOfALineIsThatOfTheWhole) {
    const double whole = Read(Panel()).luminance;
    SceneLuminaire luminaire = Panel();
    luminaire.lengthScale = 0.25;
    EXPECT_NEAR(Read(luminaire).luminance, whole, 1e-6);
}

TEST(MaximumScreenLuminance, IsNothingWhereNoLuminousAreaShows) {
    SceneLuminaire point = Panel();
    point.photometry.width = 0.0;
    point.photometry.length = 0.0;
    SceneLuminaire upturned = Panel();
    upturned.contract.tiltAngle = 180.0;
    SceneLuminaire dark = Panel();
    dark.photometry.candela = {{0, 0}};
    for (const SceneLuminaire& luminaire : {point, upturned, dark}) {
        const Reading reading = Read(luminaire);
        EXPECT_EQ(reading.luminance, 0.0);
        EXPECT_EQ(reading.gamma, 0.0);
        EXPECT_EQ(reading.c, 0.0);
    }
}

TEST(MaximumScreenLuminance, LooksOnlyAlongItsSeventyTwoDirections) {
    SceneLuminaire luminaire = Panel();
    luminaire.photometry = FineTable();
    for (const double gamma : {60.0, 65.0, 70.0, 75.0, 80.0, 85.0, 90.0}) {
        SetCandela(luminaire.photometry, 337.5, gamma, 1e6); // between two planes
    }
    for (const double gamma : {60.0, 70.0, 80.0, 90.0}) {
        SetCandela(luminaire.photometry, 345.0, gamma, 1e6); // between two elevations
    }
    SetCandela(luminaire.photometry, 345.0, 75.0, 10.0);
    const Reading reading = Read(luminaire);
    EXPECT_NEAR(reading.luminance, 10.0 / (0.1 * std::cos(75 * Degree)), 1e-3);
    EXPECT_EQ(reading.gamma, 75.0);
    EXPECT_EQ(reading.c, 345.0);
}

TEST(MaximumScreenLuminance, CountsThePlanesFromTheLuminairesOwnC0) {
    struct Case {
        double rotation; // deg
        double c0;       // deg
        bool mirrored;
    };
    const Case cases[] = {{0, 0, false},   {37, 0, false}, {0, 11, false},
                          {37, 11, false}, {0, 0, true},   {37, 0, true},
                          {0, 11, true},   {37, 11, true}, {-200, 345, false}};
    for (const Case& c : cases) {
        SCOPED_TRACE(testing::Message() << c.rotation << " " << c.c0 << " " << c.mirrored);
        SceneLuminaire luminaire = Panel();
        luminaire.photometry = FineTable();
        SetCandela(luminaire.photometry, 75.0, 65.0, 10.0);
        luminaire.rotation = c.rotation * Degree;
        luminaire.contract.c0Rotation = c.c0;
        luminaire.mirrored = c.mirrored;
        const Reading reading = Read(luminaire);
        EXPECT_NEAR(reading.luminance, 10.0 / (0.1 * std::cos(65 * Degree)), 1e-3);
        EXPECT_EQ(reading.gamma, 65.0);
        EXPECT_EQ(reading.c, 75.0);
    }
}

TEST(MaximumScreenLuminance, ReadsATiltedLuminaireAsPlaced) {
    SceneLuminaire luminaire = Panel();
    luminaire.photometry = FineTable();
    for (double c = 0.0; c <= 360.0; c += 7.5) {
        SetCandela(luminaire.photometry, c, 5.0, 100.0);
    }
    luminaire.contract.tiltAngle = 90.0; // the light leaves along the plane of 60 degrees
    luminaire.contract.tiltDirection = 60.0;
    const Reading reading = Read(luminaire);
    EXPECT_NEAR(reading.luminance, 100.0 / (0.1 * std::cos(5 * Degree)), 1e-3);
    EXPECT_EQ(reading.gamma, 85.0);
    EXPECT_EQ(reading.c, 60.0);
}

} // namespace
} // namespace Merivane::Simulation
