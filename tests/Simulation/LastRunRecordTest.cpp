#include <cstddef>
#include <string>

#include <gtest/gtest.h>

#include "Simulation/LastRunRecord.hpp"

namespace Merivane::Simulation {
namespace {

TEST(FormatLastRun, WritesAHeaderAndTheFourNumbers) {
    EXPECT_EQ(FormatLastRun({true, 2400, 37.25, 1.0, 1}), "MerivaneLastRun 1\n2400 37.25 1 1\n");
    EXPECT_EQ(FormatLastRun({true, 1, 0.1, 0.02, 9}), "MerivaneLastRun 1\n1 0.1 0.02 1\n");
}

TEST(ParseLastRun, ReadsBackWhatWasWritten) {
    const LastRunRecord record{true, 123456, 0.1 + 0.2, 2.8125, 1};
    EXPECT_EQ(ParseLastRun(FormatLastRun(record)), record);
}

TEST(ParseLastRun, ReadsTheRunCountWithoutTakingIt) {
    EXPECT_EQ(ParseLastRun("MerivaneLastRun 1\n10 2.5 1 77\n"),
              (LastRunRecord{true, 10, 2.5, 1.0, 1}));
}

TEST(ParseLastRun, IsValidFromOnePointAndAnyTimeAboveZero) {
    struct Case {
        const char* numbers;
        bool valid;
    };
    const Case cases[] = {
        {"1 5 1 1", true},     {"0 5 1 1", false},   {"-1 5 1 1", false},   {"10 0 1 1", false},
        {"10 1e-9 1 1", true}, {"10 -5 1 1", false}, {"10 5 0 1", true},    {"10 5 -1 1", true},
        {"10 5 1", false},     {"10 5 1 x", false},  {"10 nan 1 1", false}, {"10 inf 1 1", false},
        {"10 5 x 1", false},   {"", false},
    };
    for (const Case& c : cases) {
        const LastRunRecord record = ParseLastRun(std::string("MerivaneLastRun 1\n") + c.numbers);
        EXPECT_EQ(record.valid, c.valid) << c.numbers;
        if (!c.valid) {
            EXPECT_EQ(record, LastRunRecord{}) << c.numbers;
        }
    }
}

TEST(ParseLastRun, RefusesAnyOtherHeader) {
    for (const std::string header : {"MerivaneLastRun 2", "MerivaneLastRun 1 ", "MerivaneLastRun",
                                     "MerivaneEngine 1", "", "MerivaneLastRun 1\r"}) {
        EXPECT_FALSE(ParseLastRun(header + "\n10 5 1 1\n").valid) << header;
    }
}

TEST(ParseLastRun, RefusesATextCutBeforeItsLastNumber) {
    const std::string text = FormatLastRun({true, 2400, 37.25, 1.5, 1});
    for (std::size_t length = 0; length <= text.size(); ++length) {
        EXPECT_EQ(ParseLastRun(text.substr(0, length)).valid, length + 1 >= text.size()) << length;
    }
}

} // namespace
} // namespace Merivane::Simulation
