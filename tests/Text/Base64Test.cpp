#include "Text/Base64.hpp"

#include <string>

#include <gtest/gtest.h>

namespace Merivane::Text {
namespace {

TEST(Base64, WritesAndReadsTheSamplesOfTheStandard) {
    struct Case {
        const char* bytes;
        const char* text;
    };
    const Case cases[] = {{"", ""},
                          {"f", "Zg=="},
                          {"fo", "Zm8="},
                          {"foo", "Zm9v"},
                          {"foob", "Zm9vYg=="},
                          {"fooba", "Zm9vYmE="},
                          {"foobar", "Zm9vYmFy"}};
    for (const Case& c : cases) {
        EXPECT_EQ(ToBase64(c.bytes), c.text);
        std::string bytes = "x";
        EXPECT_TRUE(FromBase64(c.text, bytes));
        EXPECT_EQ(bytes, std::string("x") + c.bytes);
    }
}

TEST(Base64, GivesEveryByteBack) {
    std::string all;
    for (int i = 0; i < 256; ++i) {
        all += static_cast<char>(i);
        const std::string text = ToBase64(all, 76);
        std::string bytes;
        EXPECT_TRUE(FromBase64(text, bytes)) << text;
        EXPECT_EQ(bytes, all);
    }
}

TEST(Base64, BreaksLines) {
    EXPECT_EQ(ToBase64("foobarfoo", 8), "Zm9vYmFy\nZm9v");
    EXPECT_EQ(ToBase64("foobar", 8), "Zm9vYmFy");
    std::string bytes;
    EXPECT_TRUE(FromBase64(" Zm9v\r\n\tYmFy ", bytes));
    EXPECT_EQ(bytes, "foobar");
}

TEST(Base64, RefusesWhatIsNone) {
    for (const char* bad : {"Z", "Zg", "Zg=", "Zm8", "Zm9vY", "Zm9v!", "Zg==Zg==", "=",
                            "====", "Zm9v=", "Z===", "Zm9v-_8="}) {
        std::string bytes;
        EXPECT_FALSE(FromBase64(bad, bytes)) << bad;
    }
}

} // namespace
} // namespace Merivane::Text
