// Real files of many makers, brought through the host's parameters and back. They stand outside the
// project; where the build was not told of them these tests are left out.

#include <map>

#include <gtest/gtest.h>

#include "Archicad/ContractConversion.hpp"
#include "FieldFiles.hpp"
#include "Photometry/ContractBuilding.hpp"
#include "Photometry/ContractReading.hpp"
#include "Photometry/IesSamples.hpp"
#include "Photometry/IesWriter.hpp"
#include "Text/Utf16Length.hpp"
#include "Text/Utf8.hpp"

namespace Merivane::Archicad {
namespace {

using Host::LibraryParameter;
using Photometry::IesFile;

class ContractFieldData : public ::testing::Test {
protected:
    void SetUp() override {
        files = Tests::ReadFieldFiles();
        if (files.empty()) {
            GTEST_SKIP() << "no field data told to the build";
        }
    }

    std::map<std::string, IesFile> files;
};

std::vector<LibraryParameter> HostParameters(const IesFile& file) {
    std::vector<LibraryParameter> list;
    for (const auto& parameter : Photometry::BuildContract(file, {})) {
        ToAddPar(parameter, list.emplace_back());
    }
    return list;
}

IesFile ThroughTheHost(const IesFile& file) {
    IesFile back;
    const auto result = Photometry::ReadContract(FromAddPars(HostParameters(file)), back);
    EXPECT_TRUE(result.ok) << result.error;
    EXPECT_EQ(result.version, 7);
    return back;
}

TEST_F(ContractFieldData, ComesBackWithTheSameTable) {
    for (const auto& [name, file] : files) {
        SCOPED_TRACE(name);
        const IesFile back = ThroughTheHost(file);
        EXPECT_EQ(back.formatVersion, 3);
        EXPECT_TRUE(back.otherLines.empty());
        Tests::ExpectSameNumbers(back, file);
    }
}

// Of no file a line is so long that it is cut.
TEST_F(ContractFieldData, ComesBackWithItsKeywordsAndItsOtherLinesBehindThem) {
    const std::map<std::string, std::size_t> filesWithOtherLines = {
        {"luxpy__luxpy_test_lid_file2t.ies", 7},    {"radiance-mgf__examp1-a.ies", 2},
        {"radiance-mgf__examp1-b.ies", 1},          {"radiance-mgf__examp1-c.ies", 1},
        {"renderpipeline__defined_diffuse.ies", 9}, {"renderpipeline__display.ies", 8},
    };
    for (const auto& [name, file] : files) {
        SCOPED_TRACE(name);
        const auto others = filesWithOtherLines.find(name);
        EXPECT_EQ(file.otherLines.size(), others == filesWithOtherLines.end() ? 0 : others->second);
        EXPECT_EQ(ThroughTheHost(file).keywords, Tests::KeywordsOfContract(file));
    }
}

TEST_F(ContractFieldData, IsWrittenAgainAsTheSameText) {
    for (const auto& [name, file] : files) {
        EXPECT_EQ(Photometry::WriteIes(ThroughTheHost(file)), Photometry::WriteIes(file)) << name;
    }
}

TEST_F(ContractFieldData, FitsIntoTheHost) {
    for (const auto& [name, file] : files) {
        SCOPED_TRACE(name);
        for (const LibraryParameter& parameter : HostParameters(file)) {
            EXPECT_LE(parameter.name.size(), 31U);
            EXPECT_LE(Text::Utf16Length(parameter.description), 255U);
            EXPECT_LE(Text::Utf16Length(parameter.text), 255U);
            EXPECT_TRUE(Text::IsUtf8(parameter.text));
            for (const std::string& text : parameter.texts) {
                EXPECT_LE(Text::Utf16Length(text), 255U);
                EXPECT_TRUE(Text::IsUtf8(text));
            }
            const bool isText = parameter.type == Host::ParameterType::String;
            EXPECT_TRUE(!parameter.isArray ||
                        static_cast<std::size_t>(parameter.dim1) *
                                static_cast<std::size_t>(parameter.dim2) ==
                            (isText ? parameter.texts.size() : parameter.numbers.size()))
                << parameter.name;
        }
    }
}

// Other programs leave lines that are far too long for a parameter; those come back in pieces.
TEST_F(ContractFieldData, KeepsEveryByteOfTextsThatAreTooLongForOneString) {
    for (const auto& [name, file] : files) {
        IesFile longer = file;
        std::string doubled;
        for (auto& [key, value] : longer.keywords) {
            value = value.substr(0, value.find('\n'));
            while (!value.empty() && value.size() < 600) {
                doubled = value;
                value += doubled;
            }
        }
        const IesFile back = ThroughTheHost(longer);
        ASSERT_EQ(back.keywords.size(), longer.keywords.size() + longer.otherLines.size()) << name;
        for (std::size_t i = 0; i < longer.keywords.size(); ++i) {
            std::string joined = back.keywords[i].second;
            std::erase(joined, '\n');
            EXPECT_EQ(joined, longer.keywords[i].second) << name;
            EXPECT_EQ(back.keywords[i].first, longer.keywords[i].first) << name;
        }
    }
}

} // namespace
} // namespace Merivane::Archicad
