#include <array>
#include <string>

#include <gtest/gtest.h>

#include "Simulation/ReflectanceTexts.hpp"
#include "Support/CommaLocale.hpp"

namespace Merivane::Simulation {
namespace {

using Cells = std::array<std::string, 5>;

SurfaceReflectance Pane() {
    SurfaceReflectance record = MakeFromColour("sup:v", "Vidro", {0.8, 0.9, 1.0, 1.0, 0.5});
    record.area = 3.456;
    return record;
}

TEST(ReflectanceColumns, StandAsTheUserSeesThem) {
    EXPECT_EQ(Cells({ReflectanceColumns[0], ReflectanceColumns[1], ReflectanceColumns[2],
                     ReflectanceColumns[3], ReflectanceColumns[4]}),
              (Cells{"Superficie", "Area m2", "Estimada", "Usada", "Origem"}));
}

TEST(ReflectanceHeadLine, TellsHowManySurfacesThereAre) {
    EXPECT_EQ(ReflectanceHeadLine(0),
              "0 superficie(s) na cena. Selecione uma linha para corrigir a refletancia.");
    EXPECT_EQ(ReflectanceHeadLine(1234),
              "1234 superficie(s) na cena. Selecione uma linha para corrigir a refletancia.");
}

TEST(ReflectanceCells, TellAnOpaqueSurface) {
    SurfaceReflectance record = MakeFloorReflectance();
    record.area = 12.345;
    EXPECT_EQ(ReflectanceCells(record),
              (Cells{"(sem Superficie) piso", "12.35", "20 %", "20 %", "padrao (orientacao)"}));
    record.reflectance = 0.304;
    record.source = ReflectanceSource::CorrectedNow;
    EXPECT_EQ(ReflectanceCells(record),
              (Cells{"(sem Superficie) piso", "12.35", "20 %", "30 %", "corrigida agora"}));
}

TEST(ReflectanceCells, TellAGlass) {
    SurfaceReflectance record = Pane();
    EXPECT_EQ(ReflectanceCells(record),
              (Cells{"Vidro", "3.46", "T 50 R 8/8", "T 50 R 8/8", "estimada pela cor"}));
    record.estimatedInside = 0.1; // no estimate differs today, but the cell is the estimate's
    record.transmittance = 0.7;
    record.reflectanceInside = 0.204;
    record.reflectanceOutside = 0.6;
    record.source = ReflectanceSource::CorrectedBefore;
    EXPECT_EQ(ReflectanceCells(record),
              (Cells{"Vidro", "3.46", "T 50 R 10/8", "T 70 R 20/60", "corrigida antes"}));
    record.glass = false;
    EXPECT_EQ(ReflectanceCells(record)[2], "T 50 R 10/8");
    EXPECT_TRUE(ReflectanceCells(record)[3].ends_with(" %"));
}

TEST(ReflectanceExplanation, TellsTheColourBehindAnEstimate) {
    const std::string rest = ". A cor de uma Superficie e escolhida para o render, nao medida: "
                             "confira com o fabricante quando puder.";
    EXPECT_EQ(ReflectanceExplanation(MakeFromColour("sup:a", "a", {1.0, 0.0, 0.5, 1.0, 0.19})),
              "Estimativa pela cor RGB 255, 0, 128 (transparencia 19 %) -> refletancia 23 %" +
                  rest);
    EXPECT_EQ(ReflectanceExplanation(Pane()),
              "Estimativa pela cor RGB 204, 230, 255 (transparencia 50 %) -> refletancia 76 %, "
              "vidro" +
                  rest);
}

TEST(ReflectanceExplanation, ExplainsTheEstimateAndNotWhatIsUsed) {
    SurfaceReflectance record = Pane();
    const std::string before = ReflectanceExplanation(record);
    record.glass = false;
    record.reflectance = 0.1;
    EXPECT_EQ(ReflectanceExplanation(record), before);
}

TEST(ReflectanceExplanation, HoldsColoursWithinABytesRange) {
    const std::string text =
        ReflectanceExplanation(MakeFromColour("sup:a", "a", {-0.1, 1.1, 0.4999}));
    EXPECT_TRUE(text.starts_with("Estimativa pela cor RGB 0, 255, 127 (transparencia 0 %)"))
        << text;
}

TEST(ReflectanceExplanation, TellsOfFacesWithoutSurface) {
    EXPECT_EQ(ReflectanceExplanation(MakeWallReflectance()),
              "Faces sem Superficie no modelo 3D: valor padrao pela orientacao (piso 20 %, parede "
              "50 %, teto 70 %).");
}

TEST(ReflectanceTexts, AreTheSameInEveryLocale) {
    const Tests::CommaLocale locale;
    EXPECT_EQ(ReflectanceCells(Pane())[1], "3.46");
}

} // namespace
} // namespace Merivane::Simulation
