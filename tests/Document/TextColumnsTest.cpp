#include <gtest/gtest.h>

#include "Document/TextColumns.hpp"

namespace Merivane::Document {

TEST(TextColumns, CountsCharactersAndNotBytes) {
    EXPECT_EQ(CharacterCount(""), 0U);
    EXPECT_EQ(CharacterCount("ação"), 4U);
    EXPECT_EQ(PadLeft("nº", 4), "  nº");
    EXPECT_EQ(PadRight("nº", 4), "nº  ");
    EXPECT_EQ(PadLeft("ação", 4), "ação");
    EXPECT_EQ(PadRight("ações", 4), "ações");
}

TEST(TextColumns, WritesSixSignificantDigits) {
    struct Case {
        double value;
        std::string text;
    };
    const Case cases[] = {{0.0, "0"},
                          {-0.0, "0"},
                          {0.00140625, "0,00140625"},
                          {12345.67, "12345,7"},
                          {1234567.0, "1,23457e+06"},
                          {2.5, "2,5"},
                          {-1.25, "-1,25"},
                          {0.00001, "1e-05"}};
    for (const Case& c : cases) {
        EXPECT_EQ(FormatSignificant(c.value), c.text);
    }
}

TEST(TextColumns, QuotesACellThatHoldsWhatPartsCells) {
    EXPECT_EQ(TableCell("Sala 1"), "Sala 1");
    EXPECT_EQ(TableCell(""), "");
    EXPECT_EQ(TableCell("a;b"), "\"a;b\"");
    EXPECT_EQ(TableCell("a \"b\""), "\"a \"\"b\"\"\"");
    EXPECT_EQ(TableCell("a\nb"), "\"a\nb\"");
}

} // namespace Merivane::Document
