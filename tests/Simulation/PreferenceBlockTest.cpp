#include <cstddef>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

#include "Simulation/EngineSettings.hpp"
#include "Simulation/LastRunRecord.hpp"
#include "Simulation/PreferenceBlock.hpp"
#include "Simulation/RandomPolygons.hpp"

namespace Merivane::Simulation {
namespace {

using namespace std::string_literals;

TEST(FormatPreferenceBlock, WritesKeyLengthAndBytesInSortedOrder) {
    const PreferenceEntries entries{{"MVLRUN01", "xyz"}, {"MVENGN01", "a\0b\n"s}};
    EXPECT_EQ(FormatPreferenceBlock(entries), "MVENGN01\x04\0\0\0a\0b\nMVLRUN01\x03\0\0\0xyz"s);
    EXPECT_EQ(FormatPreferenceBlock({}), "");
}

TEST(FormatPreferenceBlock, WritesTheLengthLittleEndian) {
    const std::string block = FormatPreferenceBlock({{"MVENGN01", std::string(0x01F203, 'v')}});
    EXPECT_EQ(block.substr(8, 4), "\x03\xF2\x01\0"s);
}

TEST(FormatPreferenceBlock, DropsKeysThatAreNotEightLong) {
    const PreferenceEntries entries{
        {"", "a"}, {"MVENGN0", "b"}, {"MVENGN01", "c"}, {"MVENGN012", "d"}};
    EXPECT_EQ(FormatPreferenceBlock(entries), "MVENGN01\x01\0\0\0c"s);
}

TEST(ParsePreferenceBlock, ReadsTheEntriesByKey) {
    const PreferenceEntries entries =
        ParsePreferenceBlock(2, "MVLRUN01\x03\0\0\0xyzMVENGN01\0\0\0\0"s);
    EXPECT_EQ(entries, (PreferenceEntries{{"MVENGN01", ""}, {"MVLRUN01", "xyz"}}));
}

TEST(ParsePreferenceBlock, TakesABlockOfAnotherVersionAsEmpty) {
    const std::string block = "MVENGN01\x01\0\0\0c"s;
    for (const int version : {-1, 0, 1, 3}) {
        EXPECT_TRUE(ParsePreferenceBlock(version, block).empty()) << version;
    }
    EXPECT_EQ(ParsePreferenceBlock(PreferenceBlockVersion, block).size(), 1U);
}

TEST(ParsePreferenceBlock, StopsQuietlyAtTheFirstEntryThatIsNotWhole) {
    const std::string good = "MVENGN01\x01\0\0\0c"s;
    const std::string tails[] = {
        "MVLRUN01\xFF\xFF\xFF\xFF"s,    // length -1
        "MVLRUN01\0\0\0\x80xyz"s,       // the most negative length
        "MVLRUN01\xFF\xFF\xFF\x7Fxyz"s, // the largest length
        "MVLRUN01\x04\0\0\0xyz"s,       // one byte too few
        "MVLRUN01\x04\0\0"s,            // fewer than 12 bytes
        "M"s,
    };
    for (const std::string& tail : tails) {
        EXPECT_EQ(ParsePreferenceBlock(2, good + tail), (PreferenceEntries{{"MVENGN01", "c"}}));
        EXPECT_TRUE(ParsePreferenceBlock(2, tail + good).size() <= 1);
    }
    EXPECT_TRUE(ParsePreferenceBlock(2, "").empty());
}

TEST(ParsePreferenceBlock, LetsTheLastOfTwoEntriesOfAKeyCount) {
    EXPECT_EQ(ParsePreferenceBlock(2, "MVENGN01\x01\0\0\0aMVENGN01\x01\0\0\0b"s),
              (PreferenceEntries{{"MVENGN01", "b"}}));
}

TEST(ParsePreferenceBlock, KeepsTheWholeEntriesOfABlockCutAnywhere) {
    const PreferenceEntries entries{
        {"MVCATR01", "one"}, {"MVENGN01", FormatEngineSettings({})}, {"MVLRUN01", ""}};
    const std::string block = FormatPreferenceBlock(entries);
    for (std::size_t length = 0; length <= block.size(); ++length) {
        const PreferenceEntries read = ParsePreferenceBlock(2, block.substr(0, length));
        for (const auto& [key, value] : read) {
            EXPECT_EQ(value, entries.at(key));
        }
        EXPECT_EQ(read.size() == entries.size(), length == block.size());
    }
}

TEST(ParsePreferenceBlock, ReadsBackAnyEntries) {
    Tests::Random random(11);
    for (int round = 0; round < 200; ++round) {
        PreferenceEntries entries;
        for (int k = Tests::UniformInt(random, 0, 6); k > 0; --k) {
            std::string value;
            for (int n = Tests::UniformInt(random, 0, 400); n > 0; --n) {
                value.push_back(static_cast<char>(Tests::UniformInt(random, 0, 255)));
            }
            entries["MVTEST" + std::to_string(Tests::UniformInt(random, 10, 99))] = value;
        }
        ASSERT_EQ(ParsePreferenceBlock(2, FormatPreferenceBlock(entries)), entries);
    }
}

TEST(PreferenceValue, IsFoundUnderTheKeysOfSettingsAndLastRun) {
    const PreferenceEntries entries{{"MVENGN01", FormatEngineSettings(ProfileSettings(2))},
                                    {"MVLRUN01", FormatLastRun({true, 2400, 37.25, 1.5, 1})}};
    EngineSettings settings;
    EXPECT_TRUE(ParseEngineSettings(PreferenceValue(entries, EngineSettingsKey), settings));
    EXPECT_EQ(settings, ProfileSettings(2));
    EXPECT_EQ(ParseLastRun(PreferenceValue(entries, LastRunKey)).points, 2400);
    EXPECT_FALSE(ParseLastRun(PreferenceValue({}, LastRunKey)).valid);
}

TEST(PreferenceValue, IsEmptyForAnAbsentKey) {
    const PreferenceEntries entries{{"MVENGN01", "c"}};
    EXPECT_EQ(PreferenceValue(entries, "MVENGN01"), "c");
    EXPECT_EQ(PreferenceValue(entries, "MVLRUN01"), "");
    EngineSettings settings = ProfileSettings(2);
    EXPECT_FALSE(ParseEngineSettings(PreferenceValue(entries, EngineSettingsKey), settings));
    EXPECT_EQ(settings, ProfileSettings(1)); // a foreign value: "Projeto", without a word
}

} // namespace
} // namespace Merivane::Simulation
