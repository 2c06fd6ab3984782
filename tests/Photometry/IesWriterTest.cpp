#include <limits>

#include <gtest/gtest.h>

#include "IesSamples.hpp"
#include "Photometry/IesReader.hpp"
#include "Photometry/IesWriter.hpp"
#include "Support/CommaLocale.hpp"

namespace Merivane::Photometry {
namespace {

using Keywords = std::vector<std::pair<std::string, std::string>>;

using Tests::MakeTable;
using Tests::Steps;

IesFile OnePlane() {
    return MakeTable({0, 45, 90}, {0}, [](double v, double) { return 100.0 - v; });
}

TEST(WriteIes, WritesTheWholeFileInOneForm) {
    IesFile file = MakeTable(Steps(0, 90, 9), {0, 90}, [](double v, double h) { return v + h; });
    file.formatVersion = 0;
    file.keywords = {{"TEST", "42"}, {"MANUFAC", "Luz\ne Cia"}, {"EMPTY", ""}};
    file.otherLines = {"free text", "[odd"};
    file.lampCount = 2;
    file.lumensPerLamp = -1.0;
    file.candelaMultiplier = 0.1;
    file.unitsType = 1;
    file.width = -0.5;
    file.height = 1e-7;
    file.ballastFactor = 0.95;
    file.futureUse = 1.00001;
    file.inputWatts = 36.5;
    EXPECT_EQ(WriteIes(file), "IESNA:LM-63-2002\r\n"
                              "[TEST] 42\r\n"
                              "[MANUFAC] Luz\r\n"
                              "[MORE] e Cia\r\n"
                              "[EMPTY]\r\n"
                              "[OTHER] free text\r\n"
                              "[OTHER] [odd\r\n"
                              "TILT=NONE\r\n"
                              "2 -1 0.1 11 2 1 1 -0.5 0 1e-07\r\n"
                              "0.95 1.00001 36.5\r\n"
                              "0 9 18 27 36 45 54 63 72 81\r\n"
                              "90\r\n"
                              "0 90\r\n"
                              "0 9 18 27 36 45 54 63 72 81\r\n"
                              "90\r\n"
                              "90 99 108 117 126 135 144 153 162 171\r\n"
                              "180\r\n");
}

TEST(WriteIes, WritesEmptyLinesOfAKeywordWithoutABlank) {
    IesFile file = OnePlane();
    file.keywords = {{"A", "x\n\ny\n"}, {"B", "\nz"}};
    const std::string text = WriteIes(file);
    EXPECT_EQ(text.substr(0, text.find("TILT")), "IESNA:LM-63-2002\r\n"
                                                 "[A] x\r\n[MORE]\r\n[MORE] y\r\n[MORE]\r\n"
                                                 "[B]\r\n[MORE] z\r\n");
    IesFile back;
    ASSERT_TRUE(ReadIes(text, back).ok);
    EXPECT_EQ(back.keywords, file.keywords);
}

TEST(WriteIes, WritesTiltData) {
    IesFile file = OnePlane();
    file.tiltMode = 1;
    file.tiltGeometry = 3;
    file.tiltAngles = Steps(0, 90, 9);
    file.tiltFactors.assign(11, 0.5);
    const std::string text = WriteIes(file);
    EXPECT_EQ(text.substr(0, text.find("1 1000")), "IESNA:LM-63-2002\r\n"
                                                   "TILT=INCLUDE\r\n"
                                                   "3\r\n"
                                                   "11\r\n"
                                                   "0 9 18 27 36 45 54 63 72 81\r\n"
                                                   "90\r\n"
                                                   "0.5 0.5 0.5 0.5 0.5 0.5 0.5 0.5 0.5 0.5\r\n"
                                                   "0.5\r\n");
}

TEST(WriteIes, WritesTheNameOfATiltFile) {
    IesFile file = OnePlane();
    file.tiltMode = 2;
    file.tiltFile = "Lamp.tlt";
    EXPECT_NE(WriteIes(file).find("\r\nTILT=Lamp.tlt\r\n"), std::string::npos);
}

TEST(WriteIes, EndsAListOfTenInOneLineBreak) {
    struct Case {
        std::size_t count;
        std::string lines;
    };
    const Case cases[] = {
        {1, "7\r\n"},
        {9, "7 7 7 7 7 7 7 7 7\r\n"},
        {10, "7 7 7 7 7 7 7 7 7 7\r\n"},
        {11, "7 7 7 7 7 7 7 7 7 7\r\n7\r\n"},
        {20, "7 7 7 7 7 7 7 7 7 7\r\n7 7 7 7 7 7 7 7 7 7\r\n"},
    };
    for (const Case& c : cases) {
        IesFile file;
        file.candela = {std::vector<double>(c.count, 7.0)};
        const std::string text = WriteIes(file);
        EXPECT_EQ(text.substr(text.find("1 1 0\r\n") + 7), c.lines) << c.count;
    }
}

TEST(WriteIes, WritesNothingForEmptyLists) {
    EXPECT_EQ(WriteIes(IesFile{}),
              "IESNA:LM-63-2002\r\nTILT=NONE\r\n1 1000 1 0 0 1 2 0 0 0\r\n1 1 0\r\n");
}

TEST(WriteIes, GivesFreeHeaderLinesBackAsKeywordsNamedOther) {
    IesFile file = OnePlane();
    file.keywords = {{"A", "x"}};
    file.otherLines = {"one", "two"};
    IesFile back;
    ASSERT_TRUE(ReadIes(WriteIes(file), back).ok);
    EXPECT_EQ(back.keywords, (Keywords{{"A", "x"}, {"OTHER", "one"}, {"OTHER", "two"}}));
    EXPECT_TRUE(back.otherLines.empty());
}

TEST(WriteIes, WritesWhatIsNotFiniteSoThatItReadsBack) {
    IesFile file = OnePlane();
    file.candela[0] = {std::numeric_limits<double>::infinity(),
                       -std::numeric_limits<double>::infinity(),
                       std::numeric_limits<double>::quiet_NaN()};
    IesFile back;
    ASSERT_TRUE(ReadIes(WriteIes(file), back).ok);
    Tests::ExpectSameNumbers(back, file);
}

TEST(WriteIes, WritesAPointWhateverLocaleTheHostHasSet) {
    IesFile file = OnePlane();
    file.width = 1234.5;
    const std::string before = WriteIes(file);
    const Tests::CommaLocale locale;
    EXPECT_EQ(WriteIes(file), before);
}

} // namespace
} // namespace Merivane::Photometry
