#include <array>
#include <string>

#include <gtest/gtest.h>

#include "Catalog/JsonFields.hpp"

namespace Merivane::Catalog {
namespace {

JsonValue Json(const std::string& text) {
    JsonValue value;
    EXPECT_TRUE(JsonParse(text, value).ok) << text;
    return value;
}

/// The refusal of a text by a reader; empty where it is taken.
std::string ErrorOf(const FieldReader& read, const std::string& text) {
    const JsonValue value = Json(text);
    std::string error;
    return read(Place{&value, nullptr, {}, 0}, error) ? "" : error;
}

} // namespace

TEST(JsonFields, ATableOfFieldsRefusesWhatItDoesNotList) {
    double width = 0.0;
    bool open = false;
    const FieldReader read = [&](const Place& place, std::string& error) {
        return ReadObject(
            place, {Required("largura", Into(width, {0.0, 10.0})), Optional("aberta", Into(open))},
            error, "numa porta");
    };
    EXPECT_EQ(ErrorOf(read, R"({"aberta": true, "largura": 2.5})"), "");
    EXPECT_EQ(width, 2.5);
    EXPECT_TRUE(open);
    EXPECT_EQ(ErrorOf(read, R"({"largura": 2, "Abérta": true})"),
              "documento: chave desconhecida \"Abérta\" numa porta (talvez \"aberta\")");
    EXPECT_EQ(ErrorOf(read, R"({"aberta": true})"), "documento: falta a chave \"largura\"");
    EXPECT_EQ(ErrorOf(read, R"({"largura": 10.1})"),
              "largura: espera-se um número de 0 a 10, mas há 10.1");
    EXPECT_EQ(ErrorOf(read, "[1]"), "documento: espera-se um objeto, mas há uma lista de 1");
}

TEST(JsonFields, ANumberWithoutARangeIsAnyNumber) {
    double number = 0.0;
    EXPECT_EQ(ErrorOf(Into(number), "-1.5e300"), "");
    EXPECT_EQ(number, -1.5e300);
    EXPECT_EQ(ErrorOf(Into(number), "null"), "documento: espera-se um número, mas há null");
    EXPECT_EQ(ErrorOf(Into(number), "\"1\""),
              "documento: espera-se um número, mas há o texto \"1\"");
}

TEST(JsonFields, ATupleHasItsNumberOfNumbersAndTheirRange) {
    std::array<double, 2> point{};
    const FieldReader read = [&point](const Place& place, std::string& error) {
        return ReadNumbers(place, point, {-1.0, 1.0}, "um ponto [x, y]", error);
    };
    EXPECT_EQ(ErrorOf(read, "[1, -1]"), "");
    EXPECT_EQ(point, (std::array{1.0, -1.0}));
    EXPECT_EQ(ErrorOf(read, "[1]"), "documento: espera-se um ponto [x, y], mas há uma lista de 1");
    EXPECT_EQ(ErrorOf(read, "[0, 0, 0]"),
              "documento: espera-se um ponto [x, y], mas há uma lista de 3");
    EXPECT_EQ(ErrorOf(read, "3"), "documento: espera-se um ponto [x, y], mas há 3");
    EXPECT_EQ(ErrorOf(read, "[0, 1.01]"), "[1]: espera-se um número de -1 a 1, mas há 1.01");
}

TEST(JsonFields, AListNamesTheItemThatItRefuses) {
    std::vector<std::int32_t> numbers;
    const auto readItem = [](const Place& place, std::int32_t& number, std::string& error) {
        return Into(number, {0.0, 9.0})(place, error);
    };
    const FieldReader read = IntoList(numbers, {1, 3, "números"}, readItem);
    EXPECT_EQ(ErrorOf(read, "[4, 5]"), "");
    EXPECT_EQ(numbers, (std::vector<std::int32_t>{4, 5}));
    EXPECT_EQ(ErrorOf(read, "[4, 5.5]"), "[1]: espera-se um número inteiro de 0 a 9, mas há 5.5");
    EXPECT_EQ(ErrorOf(read, "[]"),
              "documento: espera-se uma lista de números, no mínimo 1, mas há uma lista vazia");
    EXPECT_EQ(ErrorOf(read, "[1, 2, 3, 4]"),
              "documento: espera-se uma lista de números, no máximo 3, mas há uma lista de 4");
}

TEST(JsonFields, AChoiceTellsWhatThereIsToChoose) {
    std::size_t choice = 0;
    const FieldReader read = IntoChoice(choice, {"sim", "talvez", "não"});
    EXPECT_EQ(ErrorOf(read, "\"não\""), "");
    EXPECT_EQ(choice, 2U);
    EXPECT_EQ(ErrorOf(read, "true"),
              "documento: espera-se \"sim\", \"talvez\" ou \"não\", mas há true");
}

} // namespace Merivane::Catalog
