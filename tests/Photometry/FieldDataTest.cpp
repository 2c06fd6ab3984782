// Real files of many makers and programs. They are other people's and stand outside the project;
// where the build was not told of them these tests are left out.

#include <cmath>
#include <filesystem>
#include <map>
#include <set>
#include <sstream>

#include <gtest/gtest.h>

#include "Ies2rad.hpp"
#include "IesSamples.hpp"
#include "Photometry/CandelaLookup.hpp"
#include "Photometry/IesReader.hpp"
#include "Photometry/IesText.hpp"
#include "Photometry/IesWriter.hpp"
#include "Photometry/OpeningCodes.hpp"
#include "Photometry/PhotometricQuantities.hpp"
#include "Support/Places.hpp"
#include "Text/Number.hpp"
#include "Text/Utf8.hpp"

namespace Merivane::Photometry {
namespace {

struct FieldFile {
    std::string name;
    std::string bytes;
    bool typeC = false;
    double flux = 0.0; ///< [lm], by an independent integration of the same table
};

std::vector<std::string> Columns(const std::string& row) {
    std::vector<std::string> columns;
    std::istringstream stream(row);
    for (std::string column; std::getline(stream, column, '\t');) {
        columns.push_back(column);
    }
    return columns;
}

class FieldData : public ::testing::Test {
protected:
    void SetUp() override {
        const auto folder = Tests::FieldDataFolder();
        if (folder.empty()) {
            GTEST_SKIP() << "no field data told to the build";
        }
        std::istringstream index(Tests::ReadBytes(folder / "ies" / "index.tsv"));
        std::string row;
        std::getline(index, row);
        std::map<std::string, std::size_t> place;
        for (const std::string& title : Columns(row)) {
            place.emplace(title, place.size());
        }
        while (std::getline(index, row)) {
            const std::vector<std::string> columns = Columns(row);
            FieldFile file;
            file.name = columns[place["file"]];
            file.bytes = Tests::ReadBytes(folder / "ies" / file.name);
            file.typeC = columns[place["type"]] == "C";
            ASSERT_TRUE(Text::ReadEntireNumber(columns[place["flux_lm_linear"]], file.flux));
            files.push_back(file);
        }
    }

    std::vector<FieldFile> files;
};

// Every file here is one that other programs read, so a refusal is a fault of the reader or of the
// file; each refused one stands here with the exact words.
const std::map<std::string, std::string> Refused = {};

TEST_F(FieldData, IsWholeAndEveryFileOfItIsRead) {
    EXPECT_EQ(files.size(), 71U);
    for (const FieldFile& f : files) {
        IesFile file;
        const IesReadResult result = ReadIes(f.bytes, file);
        const auto refused = Refused.find(f.name);
        EXPECT_EQ(result.error, refused == Refused.end() ? "" : refused->second) << f.name;
        EXPECT_EQ(result.ok, refused == Refused.end()) << f.name;
    }
}

TEST_F(FieldData, WarnsOfTheOdditiesOfEachFileAndOfNoOther) {
    const auto unknownVersion = [](const std::string& line) {
        return "versao do formato nao reconhecida (" + line + "), lido como LM-63-2002";
    };
    const std::string typeB =
        "fotometria tipo A/B (projetores/automotiva): o calculo de fluxo so cobre o tipo C";
    const std::map<std::string, std::string> expected = {
        {"3ddemo__06b4cfdc8805709e767b5e2e904be8ad.ies",
         "angulos horizontais fora das simetrias usuais do tipo C"}, // ends at 345
        {"appleseed__test_iesparser_5.ies", typeB},
        {"cucalc__flood-2.1.IES", typeB},
        {"photompy__type_b_full.ies", typeB},
        {"lidrs__iesna2002_example_typec.ies", unknownVersion("IESNA: LM-63-2002")},
        {"radiance-mgf__examp1-a.ies", unknownVersion("IESNA94")},
        {"radiance-mgf__examp1-b.ies", unknownVersion("IESNA95")},
        {"radiance-mgf__examp1-c.ies", unknownVersion("IESNA95")},
        {"luxtunnel__sit90.ies", "666 valor(es) depois da tabela de candela, ignorado(s)"},
        // "END" and a Ctrl-Z
        {"renderpipeline__defined_diffuse.ies",
         "2 valor(es) depois da tabela de candela, ignorado(s)"},
    };
    for (const FieldFile& f : files) {
        IesFile file;
        const IesReadResult result = ReadIes(f.bytes, file);
        const auto warnings = expected.find(f.name);
        EXPECT_EQ(result.warnings, warnings == expected.end()
                                       ? std::vector<std::string>{}
                                       : std::vector<std::string>{warnings->second})
            << f.name;
    }
}

TEST_F(FieldData, HasTheFluxThatAnotherProgramFindsWithinAThousandthOfAPercent) {
    int compared = 0;
    for (const FieldFile& f : files) {
        IesFile file;
        if (!ReadIes(f.bytes, file).ok) {
            continue;
        }
        if (!f.typeC) {
            EXPECT_EQ(TotalFlux(file), -1.0) << f.name;
            continue;
        }
        EXPECT_NEAR(TotalFlux(file) / f.flux, 1.0, 1e-5) << f.name << ": " << TotalFlux(file);
        ++compared;
    }
    EXPECT_EQ(compared, 68);
}

TEST_F(FieldData, ReadsBackTheSameAfterWriting) {
    for (const FieldFile& f : files) {
        SCOPED_TRACE(f.name);
        IesFile file;
        if (ReadIes(f.bytes, file).ok) {
            IesFile back;
            EXPECT_TRUE(ReadIes(WriteIes(file), back).ok);
            Tests::ExpectSameNumbers(back, file);
        }
    }
}

TEST_F(FieldData, GivesHeaderTextsInUtf8) {
    for (const FieldFile& f : files) {
        IesFile file;
        ReadIes(f.bytes, file);
        for (const auto& [key, value] : file.keywords) {
            EXPECT_TRUE(Text::IsUtf8(NormaliseIesText(value))) << f.name << " " << key;
        }
    }
}

TEST_F(FieldData, HasABeamAndAPeakThatAreIntensitiesOfTheTable) {
    for (const FieldFile& f : files) {
        IesFile file;
        if (ReadIes(f.bytes, file).ok && f.typeC) {
            const double beam = BeamHalfAngle(file);
            EXPECT_TRUE(beam > 0.0 && beam <= 90.0) << f.name << " " << beam;
            for (double v = 0.0; v <= 180.0; v += 7.3) {
                EXPECT_LE(MeanCandelaAtVertical(file, v), PeakCandela(file) * (1 + 1e-12))
                    << f.name;
            }
        }
    }
}

// Ellipses, ellipsoids and cylinders that lie, and two that name a geometry file; all else is built
// as what it is.
TEST_F(FieldData, WarnsOnlyOfOpeningsThatIes2radDoesNotBuild) {
    const std::set<std::string> changed = {
        "pviewer__95-ellipse_opening_along_length.ies",
        "pviewer__95-ellipsoid_opening_along_length.ies",
        "pviewer__95-ellipsoid_opening_along_width.ies",
        "pviewer__95-horizontal_cylinder_opening_along_width.ies",
        "pviewer__old-ellipse_opening_along_length.ies",
        "pviewer__old-horizontal_cylinder_opening_along_length.ies",
        "radiance-mgf__examp1-b.ies",
        "radiance-mgf__examp1-c.ies",
    };
    for (const FieldFile& f : files) {
        IesFile file;
        std::string warning;
        ReadIes(f.bytes, file);
        WithKnownOpening(file, warning);
        EXPECT_EQ(!warning.empty(), changed.contains(f.name)) << f.name << ": " << warning;
    }
}

TEST_F(FieldData, PassesTheRealIes2radWithItsKnownOpening) {
    const Tests::Ies2rad ies2rad;
    for (const FieldFile& f : files) {
        IesFile file;
        std::string warning;
        std::string complaint;
        if (f.typeC && ReadIes(f.bytes, file).ok) {
            const int status = ies2rad.Convert(WithKnownOpening(file, warning), complaint);
            EXPECT_EQ(status, 0) << f.name << ": " << complaint;
            EXPECT_EQ(complaint.find("makeshape"), std::string::npos) << f.name << complaint;
        }
    }
}

TEST_F(FieldData, NeverBreaksTheReaderWhenCut) {
    for (const FieldFile& f : files) {
        const std::string_view bytes = f.bytes;
        // Every length of a short file, and some hundreds of a long one.
        const std::size_t step = 1 + f.bytes.size() / 600;
        for (std::size_t length = 0; length < f.bytes.size(); length += step) {
            IesFile file;
            const IesReadResult result = ReadIes(bytes.substr(0, length), file);
            ASSERT_EQ(result.error.empty(), result.ok) << f.name << " " << length;
        }
    }
}

} // namespace
} // namespace Merivane::Photometry
