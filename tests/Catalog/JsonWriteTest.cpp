#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>
#include <random>
#include <string>

#include <gtest/gtest.h>

#include "Catalog/Json.hpp"

namespace Merivane::Catalog {
namespace {

TEST(JsonWrite, GivesEachChildALineIndentedByTabs) {
    JsonValue root;
    root.Set("nome", JsonValue::MakeString("Luminária"));
    JsonValue& list = root.Set("fluxos", JsonValue::MakeArray());
    list.items.push_back(JsonValue::MakeNumber(1500));
    list.items.push_back(JsonValue());
    list.items.push_back(JsonValue::MakeArray());
    root.Set("x", JsonValue::MakeObject());
    root.Set("ok", JsonValue::MakeBool(false));
    EXPECT_EQ(JsonWrite(root), "{\n"
                               "\t\"nome\": \"Luminária\",\n"
                               "\t\"fluxos\": [\n"
                               "\t\t1500,\n"
                               "\t\tnull,\n"
                               "\t\t[]\n"
                               "\t],\n"
                               "\t\"x\": {},\n"
                               "\t\"ok\": false\n"
                               "}\n");
}

TEST(JsonWrite, WritesNumbersInTheShortestForm) {
    struct Case {
        double number;
        std::string text;
    };
    constexpr double Infinity = std::numeric_limits<double>::infinity();
    const Case cases[] = {
        {0.0, "0"},
        {-0.0, "-0"},
        {1.0, "1"},
        {29.0, "29"},
        {1500.0, "1500"},
        {-7.0, "-7"},
        {0.1, "0.1"},
        {0.1 + 0.2, "0.30000000000000004"},
        {1.0 / 3.0, "0.3333333333333333"},
        {12345.678, "12345.678"},
        {0.5, "0.5"},
        {-0.25, "-0.25"},
        {0.001, "0.001"},
        {0.0012, "0.0012"},
        {0.0009, "9e-04"},
        {0.00099, "0.00099"},
        {12.3456, "12.3456"},
        {12.34567, "12.34567"},
        {99999.9999, "99999.9999"},
        {-99999.0, "-99999"},
        {100000.0, "1e+05"},
        {100001.0, "100001"},
        {100000.5, "100000.5"},
        {1e20, "1e+20"},
        {1e-7, "1e-07"},
        {9007199254740993.0, "9007199254740992"},
        {std::numeric_limits<double>::max(), "1.7976931348623157e+308"},
        {std::numeric_limits<double>::denorm_min(), "5e-324"},
        {std::nan(""), "null"},
        {Infinity, "null"},
        {-Infinity, "null"},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(JsonWrite(JsonValue::MakeNumber(c.number)), c.text + "\n");
    }
}

TEST(JsonWrite, EscapesWhatMustBeEscapedAndNothingElse) {
    struct Case {
        std::string string;
        std::string text;
    };
    const Case cases[] = {
        {"", R"("")"},
        {"\"\\", R"("\"\\")"},
        {"a\tb\nc\rd", R"("a\tb\nc\rd")"},
        {"\b\f", R"("\u0008\u000c")"},
        {std::string("\0\x1F", 2), R"("\u0000\u001f")"},
        {" /\x7F", "\" /\x7F\""},
        {"çã€\xF0\x9F\x98\x80", "\"çã€\xF0\x9F\x98\x80\""},
        {"\xFF", "\"\xFF\""},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(JsonWrite(JsonValue::MakeString(c.string)), c.text + "\n");
    }
}

TEST(JsonWrite, EscapesKeysLikeTexts) {
    JsonValue object;
    object.Set("a\"\n", JsonValue::MakeNumber(1));
    EXPECT_EQ(JsonWrite(object), "{\n\t\"a\\\"\\n\": 1\n}\n");
}

TEST(JsonWrite, PutsArraysOfNumbersOnOneLineWhereAsked) {
    JsonValue value;
    ASSERT_TRUE(
        JsonParse(R"({"a": [1, 2.5, -3], "b": [], "c": [1, "2"], "d": [[0, 1], [2]], "e": [7]})",
                  value)
            .ok);
    value.Find("e")->items[0].number = std::nan("");
    EXPECT_EQ(JsonWrite(value, {.numberArraysOnOneLine = true}), "{\n"
                                                                 "\t\"a\": [1, 2.5, -3],\n"
                                                                 "\t\"b\": [],\n"
                                                                 "\t\"c\": [\n"
                                                                 "\t\t1,\n"
                                                                 "\t\t\"2\"\n"
                                                                 "\t],\n"
                                                                 "\t\"d\": [\n"
                                                                 "\t\t[0, 1],\n"
                                                                 "\t\t[2]\n"
                                                                 "\t],\n"
                                                                 "\t\"e\": [null]\n"
                                                                 "}\n");
}

TEST(JsonWrite, NestsDeepWithoutTheStack) {
    constexpr std::size_t Depth = 5000; // the tabs alone make 25 MB
    JsonValue value = JsonValue::MakeArray();
    for (std::size_t i = 0; i < Depth; ++i) {
        JsonValue outer = JsonValue::MakeArray();
        outer.items.push_back(std::move(value));
        value = std::move(outer);
    }
    const std::string text = JsonWrite(value);
    EXPECT_EQ(text.size(), Depth * (Depth + 1) + 3 * Depth + 3);
}

// The bits of a double, as random as they come: every size, also denormal.
TEST(JsonWrite, WritesEveryNumberSoThatItReadsBack) {
    std::mt19937_64 random(20240229);
    for (int i = 0; i < 200000; ++i) {
        const std::uint64_t bits = random();
        double number = 0.0;
        std::memcpy(&number, &bits, sizeof number);
        if (!std::isfinite(number)) {
            continue;
        }
        JsonValue back;
        ASSERT_TRUE(JsonParse(JsonWrite(JsonValue::MakeNumber(number)), back).ok);
        std::uint64_t backBits = 0;
        std::memcpy(&backBits, &back.number, sizeof backBits);
        ASSERT_EQ(backBits, bits) << number;
    }
}

JsonValue RandomValue(std::mt19937& random, int depth) {
    const auto text = [&random] {
        std::string bytes;
        for (auto length = random() % 12; length > 0; --length) {
            bytes.push_back(static_cast<char>(random() % 256));
        }
        return bytes;
    };
    JsonValue value;
    switch (random() % (depth < 5 ? 6 : 4)) {
    case 0:
        break;
    case 1:
        value = JsonValue::MakeBool(random() % 2 == 0);
        break;
    case 2:
        value = JsonValue::MakeNumber(static_cast<double>(random() % 100000) / 7.0);
        break;
    case 3:
        value = JsonValue::MakeString(text());
        break;
    case 4:
        value = JsonValue::MakeArray();
        for (auto count = random() % 6; count > 0; --count) {
            value.items.push_back(RandomValue(random, depth + 1));
        }
        break;
    default:
        value = JsonValue::MakeObject();
        for (auto count = random() % 30; count > 0; --count) {
            value.Set(text(), RandomValue(random, depth + 1));
        }
    }
    return value;
}

TEST(JsonWrite, WritesRandomDocumentsSoThatTheyReadBack) {
    std::mt19937 random(11);
    for (int i = 0; i < 50; ++i) {
        const JsonValue value = RandomValue(random, 0);
        const std::string text = JsonWrite(value);
        JsonValue back;
        ASSERT_TRUE(JsonParse(text, back).ok) << text;
        ASSERT_EQ(JsonWrite(back), text);
        JsonValue compact;
        ASSERT_TRUE(JsonParse(JsonWrite(value, {true}), compact).ok);
        ASSERT_EQ(JsonWrite(compact), text);
    }
}

} // namespace
} // namespace Merivane::Catalog
