#include <algorithm>
#include <cmath>
#include <cstddef>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "Simulation/LevelList.hpp"
#include "Simulation/RandomPolygons.hpp"

namespace Merivane::Simulation {
namespace {

TEST(DefaultLevels, AreTheEightOfTheProduct) {
    EXPECT_EQ(DefaultLevels(), (LevelList{50, 100, 150, 200, 300, 500, 750, 1000}));
    EXPECT_EQ(&DefaultLevels(), &DefaultLevels());
}

TEST(ParseLevels, ReadsWhatTheUserTypes) {
    struct Case {
        std::string text;
        LevelList levels; // lux
    };
    const Case cases[] = {
        {"50;100;150", {50, 100, 150}},
        {"50 100 150", {50, 100, 150}},
        {"50,100,150", {50, 100, 150}}, // no ";": the comma separates
        {"50\t100\t150", {50, 100, 150}},
        {" ;; 50 ;\t100; ", {50, 100}}, // empty tokens do not matter
        {"1,5;2", {1.5, 2}},            // with ";": the comma is decimal
        {"1,5", {1, 5}},
        {"12,5;", {12.5}},
        {"50; 12,5", {12.5, 50}},
        {"50, 12,5", {5, 12, 50}},
        {"100; 50; 100", {50, 100}}, // sorted, repeats dropped
        {"1e3", {1000}},
        {"1.5", {1.5}},
        {"+7", {7}},
        {"0x10", {16}}, // as strtod reads it
        {"\n5", {5}},   // strtod skips white space before a number
        {"1e-300", {1e-300}},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.text);
        LevelList levels{7};
        std::string error;
        EXPECT_TRUE(ParseLevels(c.text, levels, error)) << error;
        EXPECT_EQ(levels, c.levels);
    }
}

TEST(ParseLevels, RefusesTheFirstTokenThatIsNoLevel) {
    struct Case {
        std::string text;
        std::string token;
    };
    const Case cases[] = {
        {"abc", "abc"},       {"0", "0"},
        {"-5", "-5"},         {"inf", "inf"},
        {"nan", "nan"},       {"1e999", "1e999"},
        {"1e-999", "1e-999"},                         // reads as 0
        {"50; x; y", "x"},    {"50; 1,5,2", "1,5,2"}, // as the user wrote it, commas included
        {"50lx", "50lx"},     {"5\n", "5\n"},         // nothing may be left behind the number
        {"10;,", ","},        {"1e", "1e"},
        {"0,0;", "0,0"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.text);
        LevelList levels;
        std::string error;
        EXPECT_FALSE(ParseLevels(c.text, levels, error));
        EXPECT_EQ(error,
                  "\"" + c.token + "\" nao e um nivel valido (use numeros positivos, em lux)");
    }
}

TEST(ParseLevels, RefusesATextWithoutLevels) {
    for (const std::string text : {"", "   ", "\t \t", ";", " ; ; ", ",,,"}) {
        SCOPED_TRACE(text);
        LevelList levels{1};
        std::string error;
        EXPECT_FALSE(ParseLevels(text, levels, error));
        EXPECT_EQ(error, "nenhum nivel informado");
        EXPECT_TRUE(levels.empty());
    }
}

TEST(ParseLevels, TakesATextCutAnywhere) {
    const std::string text = "50; 12,5;\t1e3; 0x1p4; 1,5e-3";
    for (std::size_t length = 0; length <= text.size(); ++length) {
        LevelList levels;
        std::string error;
        const bool read = ParseLevels(text.substr(0, length), levels, error);
        EXPECT_NE(read, levels.empty() || !error.empty());
    }
}

TEST(FormatLevels, WritesWhatParseLevelsReads) {
    struct Case {
        LevelList levels;
        std::string text;
    };
    const Case cases[] = {
        {{}, ""},
        {{50}, "50"},
        {{50, 100, 150}, "50; 100; 150"},
        {{12.5}, "12,5;"}, // alone, its comma would separate
        {{12.5, 50}, "12,5; 50"},
        {{0.1}, "0,1;"},
        {{1234.5678901, 2000}, "1234,5678901; 2000"}, // more than six digits
        {{1000000, 2000000}, "1000000; 2000000"},
        {{1e21}, "1000000000000000000000"},
        {{1e-7}, "1e-07;"},
        {{1.5e-9, 1}, "1,5e-09; 1"},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(FormatLevels(c.levels), c.text);
        if (!c.levels.empty()) {
            LevelList levels;
            std::string error;
            EXPECT_TRUE(ParseLevels(c.text, levels, error)) << error;
            EXPECT_EQ(levels, c.levels);
        }
    }
    EXPECT_EQ(FormatLevels(DefaultLevels()), "50; 100; 150; 200; 300; 500; 750; 1000");
}

TEST(FormatLevels, ReadsBackExactlyForRandomLevels) {
    Tests::Random random(10);
    for (int round = 0; round < 2000; ++round) {
        LevelList levels;
        for (int k = Tests::UniformInt(random, 1, 9); k > 0; --k) {
            const double level =
                Tests::Uniform(random, 0.1, 1) * std::pow(10.0, Tests::UniformInt(random, -9, 25));
            levels.push_back(k % 3 == 0 ? std::ceil(level) : level);
        }
        std::sort(levels.begin(), levels.end());
        levels.erase(std::unique(levels.begin(), levels.end()), levels.end());
        LevelList read;
        std::string error;
        ASSERT_TRUE(ParseLevels(FormatLevels(levels), read, error)) << error;
        ASSERT_EQ(read, levels) << FormatLevels(levels);
    }
}

TEST(FormatLevelLabel, HasADecimalOnlyWhereTheLevelIsNotWhole) {
    EXPECT_EQ(FormatLevelLabel(150), "150");
    EXPECT_EQ(FormatLevelLabel(12.5), "12,5");
    EXPECT_EQ(FormatLevelLabel(12.25), "12,3");
    EXPECT_EQ(FormatLevelLabel(12.96), "13,0");
    EXPECT_EQ(FormatLevelLabel(1000), "1000");
    EXPECT_EQ(FormatLevelLabel(0.04), "0,0");
}

} // namespace
} // namespace Merivane::Simulation
