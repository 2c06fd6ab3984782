#include <gtest/gtest.h>

#include "Photometry/IesFile.hpp"

namespace Merivane::Photometry {
namespace {

using Keywords = std::vector<std::pair<std::string, std::string>>;

TEST(IesFile, StartsWithTheDefaultsOfTheFormat) {
    const IesFile file;
    EXPECT_EQ(file.formatVersion, 3);
    EXPECT_EQ(file.tiltMode, 0);
    EXPECT_EQ(file.tiltGeometry, 1);
    EXPECT_EQ(file.lampCount, 1);
    EXPECT_EQ(file.lumensPerLamp, 1000.0);
    EXPECT_EQ(file.candelaMultiplier, 1.0);
    EXPECT_EQ(file.photometricType, 1);
    EXPECT_EQ(file.unitsType, 2);
    EXPECT_EQ(file.width, 0.0);
    EXPECT_EQ(file.length, 0.0);
    EXPECT_EQ(file.height, 0.0);
    EXPECT_EQ(file.ballastFactor, 1.0);
    EXPECT_EQ(file.futureUse, 1.0);
    EXPECT_EQ(file.inputWatts, 0.0);
}

// Compiles only while the fields stand in this order.
TEST(IesFile, HoldsItsFieldsInTheOrderOfTheFile) {
    const IesFile file = {.formatVersion = 0,
                          .keywords = {},
                          .otherLines = {},
                          .tiltMode = 0,
                          .tiltFile = {},
                          .tiltGeometry = 0,
                          .tiltAngles = {},
                          .tiltFactors = {},
                          .lampCount = 0,
                          .lumensPerLamp = 0.0,
                          .candelaMultiplier = 0.0,
                          .photometricType = 0,
                          .unitsType = 0,
                          .width = 0.0,
                          .length = 0.0,
                          .height = 0.0,
                          .ballastFactor = 0.0,
                          .futureUse = 0.0,
                          .inputWatts = 0.0,
                          .verticalAngles = {},
                          .horizontalAngles = {},
                          .candela = {{7.0}}};
    EXPECT_EQ(file.candela[0][0], 7.0);
}

TEST(FindKeyword, ComparesExactlyAndTakesTheFirst) {
    IesFile file;
    file.keywords = {{"LAMP", "a"}, {"LAMP", "b"}, {"LAMPCAT", "c"}};
    EXPECT_EQ(FindKeyword(file, "LAMP"), "a");
    EXPECT_EQ(FindKeyword(file, "LAMPCAT"), "c");
    EXPECT_EQ(FindKeyword(file, "lamp"), "");
    EXPECT_EQ(FindKeyword(file, "LAM"), "");
    EXPECT_EQ(FindKeyword(file, ""), "");
}

TEST(SetKeyword, ReplacesAppendsAndRemovesRepeats) {
    struct Case {
        Keywords before;
        std::string key, value;
        Keywords after;
    };
    const Case cases[] = {
        {{}, "A", "1", {{"A", "1"}}},
        {{}, "A", "", {}},
        {{{"B", "0"}}, "A", "1", {{"B", "0"}, {"A", "1"}}},
        {{{"A", "0"}, {"B", "0"}}, "A", "1", {{"A", "1"}, {"B", "0"}}},
        {{{"A", "0"}}, "A", "", {{"A", ""}}},
        {{{"B", "x"}, {"A", "0"}, {"C", "y"}, {"A", "2"}, {"A", "3"}, {"B", "z"}},
         "A",
         "1",
         {{"B", "x"}, {"A", "1"}, {"C", "y"}, {"B", "z"}}},
        {{{"a", "0"}}, "A", "1", {{"a", "0"}, {"A", "1"}}},
    };
    for (const Case& c : cases) {
        IesFile file;
        file.keywords = c.before;
        SetKeyword(file, c.key, c.value);
        EXPECT_EQ(file.keywords, c.after);
    }
}

} // namespace
} // namespace Merivane::Photometry
