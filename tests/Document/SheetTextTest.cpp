#include <gtest/gtest.h>

#include "Document/SheetText.hpp"
#include "Drawing/TextSize.hpp"

namespace Merivane::Document {
namespace {

using Drawing::MeasureText;

using Lines = std::vector<std::string>;

TEST(WrapText, BreaksAtBlanksOnly) {
    const double width = MeasureText("Plano de trabalho", 2.0).width + 0.01;
    EXPECT_EQ(WrapText("Plano de trabalho a 0,75 m do piso", width, 2.0),
              (Lines{"Plano de trabalho", "a 0,75 m do piso"}));
}

TEST(WrapText, KeepsWhatFitsWhole) {
    EXPECT_EQ(WrapText("Em  [2] e   U0", 500, 2.0), (Lines{"Em  [2] e   U0"}));
    EXPECT_EQ(WrapText("", 10, 2.0), (Lines{""}));
}

TEST(WrapText, BreaksAWordThatIsWiderThanTheLineBetweenLetters) {
    const double width = MeasureText("ááá", 2.0).width + 0.01;
    EXPECT_EQ(WrapText("ááááá bc", width, 2.0), (Lines{"ááá", "áá", "bc"}));
}

TEST(WrapText, NoLineIsWiderThanAskedForAndNothingIsLost) {
    const std::string text = "Zona estreita: sem faixa de borda, todos os pontos entram nas "
                             "estatísticas  [2]";
    for (double width : {8.0, 21.5, 40.0, 70.0}) {
        std::string joined;
        for (const std::string& line : WrapText(text, width, 1.8)) {
            EXPECT_LE(MeasureText(line, 1.8).width, width) << line;
            joined += line;
        }
        std::string letters = text;
        std::erase(letters, ' ');
        std::erase(joined, ' ');
        EXPECT_EQ(joined, letters);
    }
}

TEST(WrapText, ALineNarrowerThanALetterTakesOneLetterEach) {
    EXPECT_EQ(WrapText("aé b", 0.1, 2.0), (Lines{"a", "é", "b"}));
}

TEST(FittingText, ShrinksThenCutsTheEnd) {
    const std::string title = "Luminária de embutir";
    const double whole = MeasureText(title, 3.0).width;
    EXPECT_EQ(FittingText(title, 1, 2, whole + 0.01, {3.0, 2.0}).height, 3.0);

    const Drawing::TextRun smaller = FittingText(title, 1, 2, whole * 0.8, {3.0, 2.0});
    EXPECT_EQ(smaller.text, title);
    EXPECT_NEAR(smaller.height, 2.4, 1e-9);

    const Drawing::TextRun cut = FittingText(title, 1, 2, whole * 0.4, {3.0, 2.0});
    EXPECT_EQ(cut.height, 2.0);
    EXPECT_TRUE(cut.text.ends_with("…"));
    EXPECT_TRUE(cut.text.starts_with("Lumin"));
    EXPECT_LE(MeasureText(cut.text, cut.height).width, whole * 0.4);
    EXPECT_EQ(cut.position, (Drawing::Point{1, 2}));
}

} // namespace
} // namespace Merivane::Document
