#include <cmath>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "Catalog/Json.hpp"

namespace Merivane::Catalog {
namespace {

JsonValue Parsed(std::string_view text) {
    JsonValue value;
    const JsonParseResult result = JsonParse(text, value);
    EXPECT_TRUE(result.ok) << text << ": " << result.error;
    EXPECT_EQ(result.error, "");
    return value;
}

std::string ErrorOf(std::string_view text) {
    JsonValue value;
    const JsonParseResult result = JsonParse(text, value);
    EXPECT_FALSE(result.ok) << text;
    return result.error;
}

std::string Repeated(std::string_view piece, int count) {
    std::string text;
    for (int i = 0; i < count; ++i) {
        text += piece;
    }
    return text;
}

TEST(JsonParse, ReadsEveryKindOfValue) {
    const JsonValue value = Parsed(
        R"( { "n" : null, "t": true, "f": false, "x": -1.5, "s": "a", "l": [1, 2], "o": {} } )");
    ASSERT_EQ(value.kind, JsonKind::Object);
    EXPECT_EQ(value.Find("n")->kind, JsonKind::Null);
    EXPECT_EQ(value.Find("t")->kind, JsonKind::Boolean);
    EXPECT_TRUE(value.Find("t")->boolean);
    EXPECT_EQ(value.Find("f")->kind, JsonKind::Boolean);
    EXPECT_FALSE(value.Find("f")->boolean);
    EXPECT_EQ(value.NumberOr("x", 0.0), -1.5);
    EXPECT_EQ(value.StringOr("s", ""), "a");
    ASSERT_EQ(value.Find("l")->items.size(), 2U);
    EXPECT_EQ(value.Find("l")->items[1].number, 2.0);
    EXPECT_EQ(value.Find("o")->kind, JsonKind::Object);
}

TEST(JsonParse, ReadsAValueOfAnyKindAtTheTop) {
    EXPECT_EQ(Parsed("null").kind, JsonKind::Null);
    EXPECT_EQ(Parsed("true").boolean, true);
    EXPECT_EQ(Parsed("7").number, 7.0);
    EXPECT_EQ(Parsed("\"x\"").text, "x");
    EXPECT_EQ(Parsed("[]").kind, JsonKind::Array);
    EXPECT_EQ(Parsed("{}").kind, JsonKind::Object);
}

TEST(JsonParse, ReplacesWhatTheValueHeldBefore) {
    const std::pair<const char*, const char*> cases[] = {
        {"[1, 2]", "[\n\t3\n]\n"}, {R"({"a": 1, "b": 2})", "{\n\t\"b\": 3\n}\n"},
        {"\"text\"", "\"x\"\n"},   {"true", "false\n"},
        {"7", "null\n"},
    };
    for (const auto& [before, after] : cases) {
        JsonValue value = Parsed(before);
        ASSERT_TRUE(JsonParse(after, value).ok);
        EXPECT_EQ(JsonWrite(value), after);
    }
}

TEST(JsonParse, PassesAByteOrderMarkAndFourKindsOfWhiteSpace) {
    EXPECT_EQ(Parsed("\xEF\xBB\xBF \t\r\n1\n").number, 1.0);
    EXPECT_EQ(Parsed("[ \t\r\n] \t\r\n").kind, JsonKind::Array);
}

TEST(JsonParse, SaysWhatIsWrongAndAtWhichByte) {
    struct Case {
        std::string text;
        std::string error;
    };
    const Case cases[] = {
        // the document
        {"", "fim inesperado (byte 0)"},
        {" \n", "fim inesperado (byte 2)"},
        {"\xEF\xBB\xBF", "fim inesperado (byte 3)"},
        {"\xEF\xBB\xBF?", "valor inesperado (byte 3)"},
        {"\xEF\xBB", "valor inesperado (byte 0)"},
        {"\xEF\xBB\xBF\xEF\xBB\xBF", "valor inesperado (byte 3)"},
        {"1 2", "conteudo depois do valor (byte 2)"},
        {"{} x", "conteudo depois do valor (byte 3)"},
        {"// x\n1", "valor inesperado (byte 0)"},
        {"\f1", "valor inesperado (byte 0)"},
        {"\v1", "valor inesperado (byte 0)"},
        {"\xC2\xA0"
         "1",
         "valor inesperado (byte 0)"},
        {std::string("1\0", 2), "conteudo depois do valor (byte 1)"},
        // literals
        {"trueX", "conteudo depois do valor (byte 4)"},
        {"tru", "valor inesperado (byte 0)"},
        {"[nul]", "valor inesperado (byte 1)"},
        {"True", "valor inesperado (byte 0)"},
        {"falsee", "conteudo depois do valor (byte 5)"},
        {"NaN", "valor inesperado (byte 0)"},
        // arrays
        {"[", "fim inesperado (byte 1)"},
        {"[1", "esperava ',' ou ']' (byte 2)"},
        {"[1 ", "esperava ',' ou ']' (byte 3)"},
        {"[1 2]", "esperava ',' ou ']' (byte 3)"},
        {"[1,]", "valor inesperado (byte 3)"},
        {"[1,", "fim inesperado (byte 3)"},
        {"[,1]", "valor inesperado (byte 1)"},
        {"[1}", "esperava ',' ou ']' (byte 2)"},
        // objects
        {"{", "esperava o nome de um membro (byte 1)"},
        {"{1:2}", "esperava o nome de um membro (byte 1)"},
        {"{\"a\":1,}", "esperava o nome de um membro (byte 7)"},
        {"{,}", "esperava o nome de um membro (byte 1)"},
        {"{\"a\"", "esperava ':' (byte 4)"},
        {"{\"a\" 1}", "esperava ':' (byte 5)"},
        {"{\"a\":", "fim inesperado (byte 5)"},
        {"{\"a\":}", "valor inesperado (byte 5)"},
        {"{\"a\":1", "esperava ',' ou '}' (byte 6)"},
        {"{\"a\":1 \"b\":2}", "esperava ',' ou '}' (byte 7)"},
        {"{\"a\":1]", "esperava ',' ou '}' (byte 6)"},
        {"{\"a", "texto sem aspas de fechamento (byte 3)"},
        // strings
        {"\"", "texto sem aspas de fechamento (byte 1)"},
        {"\"abc", "texto sem aspas de fechamento (byte 4)"},
        {"\"a\\", "texto sem aspas de fechamento (byte 3)"},
        {"\"a\nb\"", "caractere de controle dentro de texto (byte 2)"},
        {"\"\x1F\"", "caractere de controle dentro de texto (byte 1)"},
        {std::string("\"\0\"", 3), "caractere de controle dentro de texto (byte 1)"},
        {"\"a\\x\"", "escape invalido (byte 3)"},
        {"\"\\U0041\"", "escape invalido (byte 2)"},
        {"\"\\\n\"", "escape invalido (byte 2)"},
        {"\"\\u", "escape \\u incompleto (byte 3)"},
        {"\"\\u004", "escape \\u incompleto (byte 3)"},
        {"\"\\u12\"", "escape \\u incompleto (byte 3)"},
        {"\"\\u12\" ", "escape \\u invalido (byte 5)"},
        {"\"\\u00G0\"", "escape \\u invalido (byte 5)"},
        {"\"\\u+041\"", "escape \\u invalido (byte 3)"},
        {"\"\\ud83d\"", "par substituto incompleto (byte 7)"},
        {"\"\\ud83dx\"", "par substituto incompleto (byte 7)"},
        {"\"\\ud83d\\n\"", "par substituto incompleto (byte 7)"},
        {"\"\\ud83d\\", "par substituto incompleto (byte 7)"},
        {"\"\\ud83d\\u", "par substituto invalido (byte 9)"},
        {"\"\\ud83d\\uDE0", "par substituto invalido (byte 9)"},
        {"\"\\ud83d\\uDE0x\"", "par substituto invalido (byte 9)"},
        {"\"\\ud83d\\u0041\"", "par substituto invalido (byte 9)"},
        {"\"\\ud83d\\udbff\"", "par substituto invalido (byte 9)"},
        {"\"\\ud83d\\ue000\"", "par substituto invalido (byte 9)"},
        // numbers
        {"-", "numero invalido (byte 0)"},
        {"[-]", "numero invalido (byte 1)"},
        {"--1", "numero invalido (byte 0)"},
        {"-inf", "numero invalido (byte 0)"},
        {"1-2", "numero invalido (byte 0)"},
        {"[0, 1+2]", "numero invalido (byte 4)"},
        {"1e", "numero invalido (byte 0)"},
        {"1e+", "numero invalido (byte 0)"},
        {"1.2.3", "numero invalido (byte 0)"},
        {"-.", "numero invalido (byte 0)"},
        {"-e5", "numero invalido (byte 0)"},
        {"1e309", "numero invalido (byte 0)"},
        {"-1e309", "numero invalido (byte 0)"},
        {"1.7976931348623159e308", "numero invalido (byte 0)"},
        {"1e-324", "numero invalido (byte 0)"},
        {"+1", "valor inesperado (byte 0)"},
        {".5", "valor inesperado (byte 0)"},
        {"0x10", "conteudo depois do valor (byte 1)"},
        {"1,5", "conteudo depois do valor (byte 1)"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.text);
        EXPECT_EQ(ErrorOf(c.text), c.error);
    }
}

TEST(JsonParse, ReadsNumbersMoreFreelyThanTheStandard) {
    struct Case {
        std::string text;
        double number;
    };
    const Case cases[] = {
        {"0", 0.0},
        {"1e5", 1e5},
        {"1E+5", 1e5},
        {"-0.5", -0.5},
        {"-.5", -0.5},
        {"007", 7.0},
        {"1.", 1.0},
        {"1.e2", 100.0},
        {"0.1", 0.1},
        {"123456789012345678901234567890", 123456789012345678901234567890.0},
        {"1.7976931348623157e308", 1.7976931348623157e308},
        {"5e-324", 5e-324},
        {"2.4703282292062328e-324", 5e-324}, // just above half of the smallest
        {"0e999", 0.0},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.text);
        EXPECT_EQ(Parsed(c.text).number, c.number);
    }
    EXPECT_TRUE(std::signbit(Parsed("-0").number));
}

TEST(JsonParse, ReadsEscapesAndLeavesOtherBytesAlone) {
    struct Case {
        std::string text;
        std::string string;
    };
    const Case cases[] = {
        {R"("")", ""},
        {R"("\"\\\/\b\f\n\r\t")", "\"\\/\b\f\n\r\t"},
        {R"("a\u0041b")", "aAb"},
        {R"("\u0000")", std::string(1, '\0')},
        {R"("\u007f\u0080")", "\x7F\xC2\x80"},
        {R"("\u07ff\u0800")", "\xDF\xBF\xE0\xA0\x80"},
        {R"("\u00E7\u00e7")", "\u00E7\u00E7"},
        {R"("\uFFFF")", "\xEF\xBF\xBF"},
        {R"("\ud83d\ude00")", "\xF0\x9F\x98\x80"},
        {R"("\uD800\uDC00")", "\xF0\x90\x80\x80"},
        {R"("\uDBFF\uDFFF")", "\xF4\x8F\xBF\xBF"},
        {R"("\uDC00")", "\xED\xB0\x80"}, // a low surrogate alone is let through
        {R"("\uDFFFx")", "\xED\xBF\xBFx"},
        {R"("\uD7FF\uE000")", "\xED\x9F\xBF\xEE\x80\x80"},
        {"\"\x7F\"", "\x7F"},
        {"\"\xFF\xC3\"", "\xFF\xC3"}, // no UTF-8: copied all the same
        {"\"luminária\"", "luminária"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.text);
        EXPECT_EQ(Parsed(c.text).text, c.string);
    }
}

TEST(JsonParse, ReadsEscapesInKeysToo) {
    const JsonValue value = Parsed(R"({"a\u0062\n": 1, "": 2})");
    EXPECT_EQ(value.NumberOr("ab\n", 0.0), 1.0);
    EXPECT_EQ(value.NumberOr("", 0.0), 2.0);
}

TEST(JsonParse, NestsSixtyFourDeepAndNoDeeper) {
    struct Case {
        std::string text;
        std::string error; // empty: reads
    };
    const Case cases[] = {
        {Repeated("[", 65) + Repeated("]", 65), ""},
        {Repeated("[", 66) + Repeated("]", 66), "aninhamento profundo demais (byte 65)"},
        {Repeated("[", 66), "aninhamento profundo demais (byte 65)"},
        {Repeated("[", 65), "aninhamento profundo demais (byte 65)"}, // before the end is seen
        {Repeated("[", 64), "fim inesperado (byte 64)"},
        {Repeated("[", 64) + "1" + Repeated("]", 64), ""},
        {Repeated("[", 65) + "1" + Repeated("]", 65), "aninhamento profundo demais (byte 65)"},
        {Repeated("{\"a\":", 64) + "{}" + Repeated("}", 64), ""},
        {Repeated("{\"a\":", 65) + "1" + Repeated("}", 65),
         "aninhamento profundo demais (byte 325)"},
        {Repeated("[", 1000000), "aninhamento profundo demais (byte 65)"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.text.substr(0, 400));
        JsonValue value;
        const JsonParseResult result = JsonParse(c.text, value);
        EXPECT_EQ(result.ok, c.error.empty());
        EXPECT_EQ(result.error, c.error);
    }
}

TEST(JsonParse, KeepsTheLastValueOfARepeatedKeyAtItsFirstPlace) {
    EXPECT_EQ(JsonWrite(Parsed(R"({"a": 1, "b": 2, "a": {"c": 3}, "A": 4})")),
              "{\n\t\"a\": {\n\t\t\"c\": 3\n\t},\n\t\"b\": 2,\n\t\"A\": 4\n}\n");
}

TEST(JsonParse, RefusesADocumentCutAtAnyPlace) {
    const std::string text =
        "\xEF\xBB\xBF{\"a\\u00e7\": [1.5e3, -2, true, null, \"x\\ud83d\\ude00\\n\"],"
        " \"b\": {\"c\": false}}";
    Parsed(text);
    for (std::size_t length = 0; length < text.size(); ++length) {
        // A copy of its own, so that a read behind the end is seen by the sanitizer.
        const std::vector<char> cut(text.begin(), text.begin() + static_cast<long>(length));
        JsonValue value;
        EXPECT_FALSE(JsonParse(std::string_view(cut.data(), cut.size()), value).ok) << length;
    }
}

// Ten times the members take about ten times as long, not a hundred times; a walk over the list
// for every key would need 80 thousand million comparisons here and not end in this test's time.
TEST(JsonParse, ReadsAnObjectOfVeryManyMembersInLinearTime) {
    constexpr int Count = 400000;
    std::string text = "{";
    for (int i = 0; i < Count; ++i) {
        text += (i > 0 ? ",\"" : "\"") + std::to_string(i) + "\":" + std::to_string(i);
    }
    text += "}";
    const JsonValue value = Parsed(text);
    ASSERT_EQ(value.members.size(), static_cast<std::size_t>(Count));
    for (int i = 0; i < Count; i += 999) {
        EXPECT_EQ(value.NumberOr(std::to_string(i), -1.0), i);
        EXPECT_EQ(value.members[static_cast<std::size_t>(i)].key, std::to_string(i));
    }
    EXPECT_EQ(value.Find("400000"), nullptr);
}

} // namespace
TEST(JsonParse, CountsTheValuesOfADocument) {
    struct Case {
        std::string text;
        std::size_t values;
        std::string error; ///< where one fewer may stand
    };
    const Case cases[] = {
        {"1", 1, "valores demais (byte 0)"},
        {"[]", 1, "valores demais (byte 0)"},
        {"[1, 2]", 3, "valores demais (byte 4)"},
        {R"({"a": [null], "a": 2})", 4, "valores demais (byte 19)"},
    };
    for (const Case& c : cases) {
        JsonValue value;
        EXPECT_TRUE(JsonParse(c.text, value, c.values).ok) << c.text;
        EXPECT_EQ(JsonParse(c.text, value, c.values - 1).error, c.error) << c.text;
    }
}

} // namespace Merivane::Catalog
