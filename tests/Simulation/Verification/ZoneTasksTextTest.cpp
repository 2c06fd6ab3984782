#include <cmath>
#include <cstddef>
#include <limits>
#include <random>
#include <string>

#include <gtest/gtest.h>

#include "Simulation/Verification/ZoneTasksText.hpp"
#include "Support/CommaLocale.hpp"

namespace Merivane::Simulation {
namespace {

const std::string Head = "MerivaneZoneTasks 2\nnorma\tnbr\n";

/// What a reader starts with, to see that nothing of it is left.
const ZoneRequirementMap Before = {{"old", {"s1.1", 1.0, 0.1, 0}}};

struct Reading {
    bool ok = false;
    ZoneRequirementMap map;
    ReferenceStandard standard = ReferenceStandard::International;
};

Reading Read(std::string_view text) {
    Reading reading;
    reading.map = Before;
    reading.ok = ParseZoneTasks(text, reading.map, reading.standard);
    return reading;
}

void ExpectRefused(std::string_view text) {
    SCOPED_TRACE(std::string(text));
    const Reading reading = Read(text);
    EXPECT_FALSE(reading.ok);
    EXPECT_TRUE(reading.map.empty());
    EXPECT_EQ(reading.standard, ReferenceStandard::Brazilian);
}

/// The one entry of a text with this line below the head.
ZoneRequirement ReadLine(const std::string& line) {
    const Reading reading = Read(Head + line + "\n");
    EXPECT_TRUE(reading.ok) << line;
    EXPECT_EQ(reading.map.size(), 1U) << line;
    return reading.map.empty() ? ZoneRequirement{} : reading.map.begin()->second;
}

double RandomNumber(std::mt19937& random) {
    std::uniform_real_distribution<double> mantissa(-10.0, 10.0);
    std::uniform_int_distribution<int> exponent(-300, 300);
    std::uniform_int_distribution<int> whole(0, 1000);
    return random() % 2 == 0 ? std::ldexp(mantissa(random), exponent(random)) : whole(random);
}

ZoneRequirementMap RandomMap(std::mt19937& random) {
    const std::string letters = "ABC-09 {}\xC3\xA7.";
    ZoneRequirementMap map;
    for (auto count = random() % 6; count > 0; --count) {
        std::string key = "k";
        for (auto length = random() % 8; length > 0; --length) {
            key += letters[random() % letters.size()];
        }
        const std::int32_t screens[] = {ScreensAutomatic, ScreensNone, ScreensClass1And2,
                                        ScreensClass3};
        map[key] = {random() % 2 == 0 ? "s22.2" : "", RandomNumber(random), RandomNumber(random),
                    screens[random() % 4]};
    }
    return map;
}

} // namespace

TEST(SerializeZoneTasks, WritesHeaderStandardAndOneLineForEachEntryInKeyOrder) {
    const ZoneRequirementMap map = {{"B", {"", 0.0, 0.7, ScreensAutomatic}},
                                    {"A", {"s22.2", 500.0, 0.1 + 0.2, ScreensNone}},
                                    {"C", {"s1.3", 1e21, 0.5, ScreensClass3}},
                                    {"D", {"s1.3", 62.5, 1.0, 77}}};
    EXPECT_EQ(SerializeZoneTasks(map, ReferenceStandard::International),
              "MerivaneZoneTasks 2\nnorma\tiso\nA\ts22.2\t500\t0.30000000000000004\t0\n"
              "B\t\t0\t0.7\t-1\nC\ts1.3\t1e+21\t0.5\t3\nD\ts1.3\t62.5\t1\t77\n");
    EXPECT_EQ(SerializeZoneTasks({}, ReferenceStandard::Brazilian), Head);
    EXPECT_EQ(SerializeZoneTasks({}, static_cast<ReferenceStandard>(2)), Head);
}

TEST(SerializeZoneTasks, LeavesOutEntriesThatWouldBreakTheForm) {
    const double infinite = std::numeric_limits<double>::infinity();
    const double none = std::numeric_limits<double>::quiet_NaN();
    const ZoneRequirementMap map = {
        {"a\tb", {}},
        {"a\nb", {}},
        {"a\rb", {}},
        {"\t", {}},
        {"c", {"s1\t.1", 1.0, 0.7, 0}},
        {"d", {"s1.1\n", 1.0, 0.7, 0}},
        {"e", {"\rs1.1", 1.0, 0.7, 0}},
        {"", {"s1.1", 1.0, 0.7, 0}}, // the reader would refuse the whole text for these
        {"f", {"s1.1", infinite, 0.7, 0}},
        {"g", {"s1.1", 1.0, none, 0}},
        {"good", {"s1.1", 1.0, 0.7, 0}},
    };
    EXPECT_EQ(SerializeZoneTasks(map, ReferenceStandard::Brazilian),
              Head + "good\ts1.1\t1\t0.7\t0\n");
}

TEST(ParseZoneTasks, ReadsBackWhatWasWritten) {
    std::mt19937 random(11);
    for (int round = 0; round < 500; ++round) {
        const ZoneRequirementMap map = RandomMap(random);
        const auto standard = static_cast<ReferenceStandard>(random() % 2);
        const Reading reading = Read(SerializeZoneTasks(map, standard));
        ASSERT_TRUE(reading.ok);
        EXPECT_EQ(reading.map, map);
        EXPECT_EQ(reading.standard, standard);
    }
}

TEST(ParseZoneTasks, ReadsTheOlderFormAndItIsWrittenInTheNewOne) {
    const Reading reading =
        Read("MerivaneZoneTasks 1\nA\tescritorio\t450\t0.6\nB\ts1.3\t100\t0.4\n");
    ASSERT_TRUE(reading.ok);
    EXPECT_EQ(reading.standard, ReferenceStandard::Brazilian);
    const ZoneRequirementMap expected = {{"A", {"s22.2", 450.0, 0.6, ScreensAutomatic}},
                                         {"B", {"s1.3", 100.0, 0.4, ScreensAutomatic}}};
    EXPECT_EQ(reading.map, expected);
    EXPECT_EQ(SerializeZoneTasks(reading.map, reading.standard),
              Head + "A\ts22.2\t450\t0.6\t-1\nB\ts1.3\t100\t0.4\t-1\n");
}

TEST(ParseZoneTasks, TheOlderFormHasNoLineForTheStandard) {
    ExpectRefused("MerivaneZoneTasks 1\nnorma\tiso\n");
    EXPECT_EQ(Read("MerivaneZoneTasks 1\nA\t\t1\t0.5\t3\n").map.at("A").screens, ScreensClass3);
}

TEST(ParseZoneTasks, AcceptsTextsWithoutEntries) {
    for (const char* text :
         {"MerivaneZoneTasks 1", "MerivaneZoneTasks 1\n", "MerivaneZoneTasks 2\nnorma\tnbr",
          "MerivaneZoneTasks 2\nnorma\tnbr\n", "MerivaneZoneTasks 2\nnorma\tnbr\n\n\n"}) {
        const Reading reading = Read(text);
        EXPECT_TRUE(reading.ok) << text;
        EXPECT_TRUE(reading.map.empty()) << text;
        EXPECT_EQ(reading.standard, ReferenceStandard::Brazilian) << text;
    }
}

TEST(ParseZoneTasks, PassesOverBlankLines) {
    const Reading reading =
        Read("MerivaneZoneTasks 2\nnorma\tiso\n\nA\ts1.3\t100\t0.4\t0\n\n\nB\ts1.3\t100\t0.4");
    ASSERT_TRUE(reading.ok);
    EXPECT_EQ(reading.map.size(), 2U);
    EXPECT_EQ(reading.standard, ReferenceStandard::International);
}

TEST(ParseZoneTasks, RefusesAnyOtherHead) {
    for (const char* head :
         {"", "\n", "MerivaneZoneTasks", "MerivaneZoneTasks 3\n",
          "MerivaneZoneTasks 2 \nnorma\tnbr\n", "MerivaneZoneTasks 2\r\nnorma\tnbr\n",
          " MerivaneZoneTasks 2\nnorma\tnbr\n", "\nMerivaneZoneTasks 2\nnorma\tnbr\n",
          "MerivaneZoneTasks 2", "MerivaneZoneTasks 2\n", "MerivaneZoneTasks 2\n\nnorma\tnbr\n",
          "MerivaneZoneTasks 2\nnorma nbr\n", "MerivaneZoneTasks 2\nnorma\tNBR\n",
          "MerivaneZoneTasks 2\nnorma\tnbr\r\n", "MerivaneZoneTasks 2\nnorma\tnbr\t\n",
          "MerivaneZoneTasks 2\nnorma\ten\n", "MerivaneZoneTasks 2\nA\ts1.3\t100\t0.4\t0\n",
          "merivanezonetasks 2\nnorma\tnbr\n"}) {
        ExpectRefused(head);
    }
}

TEST(ParseZoneTasks, OneBadLineRefusesTheWholeText) {
    const std::string bad[] = {
        "B",
        " ",
        "\r",
        "B\ts1.3\t100",           // three fields
        "B\ts1.3\t100\t0.4\t0\t", // six
        "\ts1.3\t100\t0.4\t0",    // no key
        "B\ts1.3\t\t0.4\t0",      // no Em
        "B\ts1.3\t100\t\t0",      // no U0
        "B\ts1.3\t100\t0.4\t",    // a fifth field without number
        "B\ts1.3\t100x\t0.4\t0",
        "B\ts1.3\t100 \t0.4\t0",
        "B\ts1.3\t100\t0,4\t0", // the point is a point
        "B\ts1.3\t100\t0.4\tx",
        "B\ts1.3\t100\t0.4\t0\r",
        "B\ts1.3\tinf\t0.4\t0",
        "B\ts1.3\t100\tnan\t0",
        "B\ts1.3\t1e999\t0.4\t0",
        "B\ts1.3\t100\t0.4\tinf",
    };
    const std::string iso = "MerivaneZoneTasks 2\nnorma\tiso\n";
    const std::string good = "A\ts1.3\t100\t0.4\t0\n";
    for (const std::string& line : bad) {
        ExpectRefused(std::string(iso).append(line).append("\n").append(good));
        ExpectRefused(std::string(iso).append(good).append(line).append("\n"));
        ExpectRefused(std::string(iso).append(good).append(line));
    }
    EXPECT_TRUE(Read(iso + good).ok);
}

TEST(ParseZoneTasks, TruncatesTheScreensToAKnownClass) {
    struct Case {
        const char* field;
        std::int32_t screens;
    };
    const Case cases[] = {
        {"0", 0},      {"1", 1},      {"3", 3},       {"2", -1},    {"-1", -1},         {"4", -1},
        {"0.99", 0},   {"-0.99", 0},  {"1.99", 1},    {"2.99", -1}, {"3.99", 3},        {"4.0", -1},
        {"-1.01", -1}, {"1e300", -1}, {"-1e300", -1}, {"1e0", 1},   {"4294967296", -1},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(ReadLine(std::string("A\ts1.3\t100\t0.4\t") + c.field).screens, c.screens)
            << c.field;
    }
    EXPECT_EQ(ReadLine("A\ts1.3\t100\t0.4").screens, ScreensAutomatic);
}

TEST(ParseZoneTasks, KeepsEmptyAndUnknownActivitiesAndMigratesOldOnes) {
    EXPECT_EQ(ReadLine("A\t\t0\t0.7\t-1").taskId, "");
    EXPECT_EQ(ReadLine("A\ts99.9\t70\t0.7\t-1"), (ZoneRequirement{"s99.9", 70.0, 0.7, -1}));
    EXPECT_EQ(ReadLine("A\tescritorio\t450\t0.6\t1"), (ZoneRequirement{"s22.2", 450.0, 0.6, 1}));
}

TEST(ParseZoneTasks, ALaterLineReplacesAnEarlierOneOfTheSameKey) {
    EXPECT_EQ(ReadLine("A\ts1.3\t100\t0.4\t0\nA\ts1.4\t150\t0.5"),
              (ZoneRequirement{"s1.4", 150.0, 0.5, ScreensAutomatic}));
}

TEST(ParseZoneTasks, OfATextThatIsCutReadsOnlyWholeLinesAndTheLast) {
    const ZoneRequirementMap map = {{"A", {"s22.2", 512.5, 0.65, 3}}, {"B", {"s1.3", 100, 0.4, 0}}};
    const std::string text = SerializeZoneTasks(map, ReferenceStandard::International);
    const std::size_t head = Head.size();
    const std::size_t firstLine = text.find("\nB") + 1;
    for (std::size_t length = 0; length < text.size(); ++length) {
        SCOPED_TRACE(text.substr(0, length));
        const Reading reading = Read(text.substr(0, length));
        EXPECT_EQ(reading.standard == ReferenceStandard::International, reading.ok);
        EXPECT_EQ(reading.map.contains("A"), reading.ok && length > head);
        if (reading.ok) {
            EXPECT_GE(length, head - 1);
            EXPECT_EQ(reading.map.contains("B"), length > firstLine);
        }
        if (reading.ok && length >= firstLine - 1) {
            EXPECT_EQ(reading.map.at("A"), map.at("A"));
        }
    }
}

TEST(ZoneTasksText, DoesNotHeedTheLocale) {
    const ZoneRequirementMap map = {{"A", {"s22.2", 1512.5, 0.65, 3}}};
    const std::string text = Head + "A\ts22.2\t1512.5\t0.65\t3\n";
    const Tests::CommaLocale locale;
    EXPECT_EQ(SerializeZoneTasks(map, ReferenceStandard::Brazilian), text);
    EXPECT_EQ(Read(text).map, map);
    ExpectRefused(Head + "A\ts22.2\t1512,5\t0,65\t3\n");
}

} // namespace Merivane::Simulation
