#include <gtest/gtest.h>

#include "Ies2rad.hpp"
#include "IesSamples.hpp"
#include "Photometry/InertHeader.hpp"
#include "Photometry/OpeningCodes.hpp"

namespace Merivane::Photometry {
namespace {

using Keywords = std::vector<std::pair<std::string, std::string>>;

IesFile Downlight() {
    IesFile file = Tests::MakeTable({0, 90}, {0}, [](double v, double) { return 100.0 - v; });
    file.width = 0.1;
    file.length = 0.2;
    return file;
}

TEST(WithInertHeader, LeavesOrdinaryTextsAlone) {
    IesFile file = Downlight();
    file.keywords = {{"TEST", "1\n2\n"}, {"LAMP", ""}, {"", "x"}};
    file.otherLines = {"free"};
    std::string warning = "old";
    const IesFile inert = WithInertHeader(file, warning);
    EXPECT_EQ(inert.keywords, file.keywords);
    EXPECT_EQ(inert.otherLines, file.otherLines);
    EXPECT_EQ(warning, "");
}

TEST(WithInertHeader, DropsTheNameOfAGeometryFileAndSaysSo) {
    IesFile file = Downlight();
    file.keywords = {{"TEST", "1"}, {"LUMINOUSGEOMETRY", "a b.mgf"}, {"LAMP", "LED"}};
    std::string warning;
    const IesFile inert = WithInertHeader(file, warning);
    EXPECT_EQ(inert.keywords, (Keywords{{"TEST", "1"}, {"LAMP", "LED"}}));
    EXPECT_EQ(warning, "a geometria do arquivo a b.mgf ([LUMINOUSGEOMETRY]) não é lida e vale a "
                       "abertura luminosa do próprio IES");
    Tests::ExpectSameNumbers(inert, file);
}

TEST(WithInertHeader, DropsTextsWithALineThatIsTooLong) {
    const auto count = [](const std::string& key, const std::string& value) {
        IesFile file = Downlight();
        file.keywords = {{key, value}};
        std::string warning;
        return WithInertHeader(file, warning).keywords.size();
    };
    EXPECT_EQ(count("TEST", std::string(236, 'a')), 1U);
    EXPECT_EQ(count("TEST", std::string(237, 'a')), 0U);
    EXPECT_EQ(count("TEST", "x\n" + std::string(236, 'a') + "\n" + std::string(236, 'a')), 1U);
    EXPECT_EQ(count("TEST", "x\n" + std::string(237, 'a') + "\ny"), 0U);
    EXPECT_EQ(count("TEST", "x\ny\n" + std::string(237, 'a')), 0U);
    EXPECT_EQ(count(std::string(241, 'K'), ""), 0U);

    IesFile file = Downlight();
    file.otherLines = {std::string(240, 'a'), std::string(241, 'b')};
    std::string warning;
    EXPECT_EQ(WithInertHeader(file, warning).otherLines,
              std::vector<std::string>{file.otherLines[0]});
}

TEST(WithKnownOpening, JoinsTheWarningsOfHeaderAndOpening) {
    IesFile file = Downlight();
    file.keywords = {{"LUMINOUSGEOMETRY", "a.mgf"}};
    file.width = -0.1;
    std::string warning;
    WithKnownOpening(file, warning);
    EXPECT_EQ(warning,
              "a geometria do arquivo a.mgf ([LUMINOUSGEOMETRY]) não é lida e vale a "
              "abertura luminosa do próprio IES; a abertura luminosa de -0,1 x 0,2 x 0 m "
              "(largura x comprimento x altura) não é uma forma que o Radiance conheça e é "
              "calculada como retângulo de 0,1 x 0,2 m");
}

TEST(WithKnownOpening, PassesTheRealIes2radWithAHeaderThatWouldSteerIt) {
    const Tests::Ies2rad ies2rad;
    const std::string pushed(249, 'a'); // "[TEST] " and this fill the buffer but for its end
    std::string complaint;
    for (const auto& [key, value] : Keywords{{"LUMINOUSGEOMETRY", "none.mgf"},
                                             {"TEST", pushed + "TILT=none.tlt"},
                                             {"TEST", pushed.substr(1) + "TILT=none.tlt"}}) {
        IesFile file = Downlight();
        file.keywords = {{key, value}};
        std::string warning;
        EXPECT_EQ(ies2rad.Convert(WithKnownOpening(file, warning), complaint), 0) << complaint;
    }
    IesFile steered = Downlight();
    steered.keywords = {{"LUMINOUSGEOMETRY", "none.mgf"}};
    EXPECT_NE(ies2rad.Convert(steered, complaint), 0); // as it stands it is refused
}

} // namespace
} // namespace Merivane::Photometry
