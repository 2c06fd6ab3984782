#include <gtest/gtest.h>

#include "Photometry/LuminaireTypeKey.hpp"

namespace Merivane::Photometry {
namespace {

TEST(LuminaireTypeKey, JoinsCodeNameAndLamp) {
    EXPECT_EQ(LuminaireTypeKey("C-1", "Spot", "LED 10W", "a.ies"), "C-1\x1FSpot\x1FLED 10W");
    EXPECT_EQ(LuminaireTypeKey("C-1", "", "", "a.ies"), "C-1\x1F\x1F");
    EXPECT_EQ(LuminaireTypeKey("", "Spot", "", "a.ies"), "\x1FSpot\x1F");
}

TEST(LuminaireTypeKey, NormalisesWhiteSpaceInEveryField) {
    EXPECT_EQ(LuminaireTypeKey(" C \t 1 ", "\r\nSpot\v\ffixo ", "  LED  10W\n", ""),
              "C 1\x1FSpot fixo\x1FLED 10W");
}

TEST(LuminaireTypeKey, GoesByTheIesFileWhenCodeAndNameAreEmpty) {
    EXPECT_EQ(LuminaireTypeKey("", " \t", "LED", " my  file.ies "), "\x1Fmy file.ies\x1FLED");
    EXPECT_EQ(LuminaireTypeKey("", "", "", ""), "\x1F\x1F");
}

TEST(LuminaireTypeKey, SetsLinearLuminairesApart) {
    EXPECT_EQ(LuminaireTypeKey("C", "N", "L", "f", true), "C\x1FN\x1FL\nfita");
    EXPECT_NE(LuminaireTypeKey("C", "N", "L", "f", true), LuminaireTypeKey("C", "N", "L", "f"));
    // White space is normalised, so no lamp text can forge the mark.
    EXPECT_NE(LuminaireTypeKey("C", "N", "L\nfita", "f"),
              LuminaireTypeKey("C", "N", "L", "f", true));
}

TEST(IsLinearTypeKey, ReadsTheMarkBack) {
    EXPECT_TRUE(IsLinearTypeKey(LuminaireTypeKey("C", "N", "L", "f", true)));
    EXPECT_FALSE(IsLinearTypeKey(LuminaireTypeKey("C", "N", "L", "f")));
    EXPECT_FALSE(IsLinearTypeKey(LuminaireTypeKey("C", "N", "\nfita", "f")));
    EXPECT_FALSE(IsLinearTypeKey(""));
}

TEST(TypeKeyName, IsTheNameElseTheCode) {
    EXPECT_EQ(TypeKeyName(LuminaireTypeKey("C-1", "Spot", "LED", "a.ies")), "Spot");
    EXPECT_EQ(TypeKeyName(LuminaireTypeKey("C-1", "", "LED", "a.ies")), "C-1");
    EXPECT_EQ(TypeKeyName(LuminaireTypeKey("", "", "LED", "a.ies", true)), "a.ies");
    EXPECT_EQ(TypeKeyName(LuminaireTypeKey("", "", "LED", "")), "");
    EXPECT_EQ(TypeKeyName("free text"), "free text");
    EXPECT_EQ(TypeKeyName(""), "");
}

TEST(LuminaireTypeKey, TellsFieldsApartByTheirPlace) {
    EXPECT_NE(LuminaireTypeKey("A B", "", "", ""), LuminaireTypeKey("A", "B", "", ""));
    EXPECT_NE(LuminaireTypeKey("A", "B", "", ""), LuminaireTypeKey("A", "", "B", ""));
}

} // namespace
} // namespace Merivane::Photometry
