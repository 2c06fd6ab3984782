// The examples that are committed, the program that makes them, and the readers that they are for.

#include <cstdlib>
#include <filesystem>
#include <map>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "Photometry/IesReader.hpp"
#include "Photometry/IesText.hpp"
#include "Photometry/OpeningCodes.hpp"
#include "Photometry/PhotometricQuantities.hpp"
#include "Support/Places.hpp"
#include "Text/Utf8.hpp"

namespace Merivane::Tests {
namespace {

std::filesystem::path Samples() {
    return SourceFolder() / "exemplos";
}

/// Bytes of the sample files of a folder by their path in it: all ".ies", ".json", ".vantoro" and
/// ".gsm".
std::map<std::string, std::string> SampleFiles(const std::filesystem::path& folder) {
    std::map<std::string, std::string> files;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(folder)) {
        const std::string extension = entry.path().extension().string();
        if (extension == ".ies" || extension == ".json" || extension == ".vantoro" ||
            extension == ".gsm") {
            const std::string name = entry.path().lexically_relative(folder).generic_string();
            files[name] = ReadBytes(entry.path());
        }
    }
    return files;
}

TEST(SampleFiles, AreMadeAgainByteForByte) {
    const TemporaryFolder folder;
    const std::filesystem::path program = BuildFolder() / "exemplos" / "gerar-exemplos";
    const std::string command = "\"" + program.string() + "\" \"" + folder.Path().string() + "\"";
    ASSERT_EQ(std::system(command.c_str()), 0);
    const auto made = SampleFiles(folder.Path());
    const auto committed = SampleFiles(Samples());
    EXPECT_EQ(made.size(), 28U);
    for (const auto& [name, bytes] : made) {
        EXPECT_EQ(committed.count(name), 1U) << name;
    }
    for (const auto& [name, bytes] : committed) {
        SCOPED_TRACE(name);
        ASSERT_EQ(made.count(name), 1U);
        EXPECT_TRUE(made.at(name) == bytes) << "run gerar-exemplos exemplos";
    }
}

TEST(SampleFiles, TheirProgramSaysHowItIsCalledAndWhatItCanNotWrite) {
    const TemporaryFolder folder;
    const std::string program = (BuildFolder() / "exemplos" / "gerar-exemplos").string();
    EXPECT_NE(std::system(("\"" + program + "\" 2>/dev/null").c_str()), 0);
    WriteBytes(folder.Path() / "ies", "");
    EXPECT_NE(
        std::system(("\"" + program + "\" \"" + folder.Path().string() + "\" 2>/dev/null").c_str()),
        0);
}

Photometry::IesFile ReadSample(const std::string& name) {
    Photometry::IesFile file;
    const Photometry::IesReadResult result =
        Photometry::ReadIes(ReadBytes(Samples() / "ies" / name), file);
    EXPECT_TRUE(result.ok) << name << ": " << result.error;
    EXPECT_EQ(result.warnings, std::vector<std::string>()) << name;
    return file;
}

TEST(SampleFiles, PhotometryReadsWithoutAWarningAndHoldsWhatItShows) {
    struct Case {
        std::string name;
        int formatVersion;
        double vertical[2];   // first and last angle
        double horizontal[2]; // first and last plane
        double flux;          // lm
    };
    const Case cases[] = {
        {"downlight.ies", 3, {0, 90}, {0, 0}, 1600},
        {"downlight-1991.ies", 1, {0, 90}, {0, 0}, 1000},
        {"painel-600.ies", 3, {0, 90}, {0, 90}, 4300},
        {"painel-antiofuscante.ies", 3, {0, 90}, {0, 90}, 2800},
        {"painel-antiofuscante-34.ies", 3, {0, 90}, {0, 90}, 4000},
        {"linear-asa.ies", 3, {0, 90}, {0, 180}, 3200},
        {"lavador.ies", 3, {0, 90}, {90, 270}, 1700},
        {"projetor.ies", 3, {0, 90}, {0, 360}, 1100},
        {"pendente-indireto.ies", 3, {90, 180}, {0, 90}, 4100},
        {"pendente-duplo.ies", 3, {0, 180}, {0, 90}, 4500},
        {"refletor-inclinavel.ies", 2, {0, 90}, {0, 0}, 4400},
        {"calha-pes.ies", 2, {0, 90}, {0, 90}, 4300},
        {"arandela-1252.ies", 3, {0, 180}, {0, 0}, 1200},
        {"plafon-1986.ies", 0, {0, 90}, {0, 90}, 1800},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        const Photometry::IesFile file = ReadSample(c.name);
        EXPECT_EQ(file.formatVersion, c.formatVersion);
        EXPECT_EQ(file.verticalAngles.front(), c.vertical[0]);
        EXPECT_EQ(file.verticalAngles.back(), c.vertical[1]);
        EXPECT_EQ(file.horizontalAngles.front(), c.horizontal[0]);
        EXPECT_EQ(file.horizontalAngles.back(), c.horizontal[1]);
        EXPECT_NEAR(Photometry::TotalFlux(file), c.flux, 0.001 * c.flux);
        std::string warning;
        Photometry::WithKnownOpening(file, warning);
        EXPECT_EQ(warning, "");
    }
}

TEST(SampleFiles, ShowTheSpecialForms) {
    const Photometry::IesFile tilt = ReadSample("refletor-inclinavel.ies");
    EXPECT_EQ(tilt.tiltMode, 1);
    EXPECT_EQ(tilt.tiltAngles.size(), 7U);
    EXPECT_EQ(tilt.tiltFactors.back(), 0.87);
    const Photometry::IesFile feet = ReadSample("calha-pes.ies");
    EXPECT_EQ(feet.unitsType, 1);
    const Photometry::IesFile round = ReadSample("downlight.ies");
    EXPECT_EQ(round.width, -0.15);
    EXPECT_EQ(round.length, -0.15);
    EXPECT_EQ(round.height, 0.0);
    const Photometry::IesFile oldRound = ReadSample("downlight-1991.ies");
    EXPECT_EQ(oldRound.width, -0.1);
    EXPECT_EQ(oldRound.length, 0.0);
}

TEST(SampleFiles, HaveAHeaderInWindows1252) {
    EXPECT_FALSE(Text::IsUtf8(ReadBytes(Samples() / "ies" / "arandela-1252.ies")));
    const Photometry::IesFile file = ReadSample("arandela-1252.ies");
    EXPECT_EQ(Photometry::NormaliseIesText(Photometry::FindKeyword(file, "LUMINAIRE")),
              "Arandela Lampião, vidro de opalina");
    EXPECT_EQ(Photometry::NormaliseIesText(Photometry::FindKeyword(file, "MANUFAC")),
              "Ateliê Exemplo");
}

} // namespace
} // namespace Merivane::Tests
