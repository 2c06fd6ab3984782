#include <gtest/gtest.h>

#include "Document/PlanSummary.hpp"
#include "PlanSamples.hpp"

namespace Merivane::Document {
namespace {

using Drawing::TextRun;
using Drawing::TextWeight;

// A block as a drawing of its own, on a page that holds it.
Drawing::DisplayList AsDrawing(const SheetBlock& block) {
    return {"", ColumnWidth, block.height, {{"", block.elements}}};
}

PlanZone SampleZone() {
    PlanZone zone;
    zone.name = "Sala de reunião";
    zone.statistics = {1234, 499.5, 203.4, 20398.2, 0.695};
    zone.workPlaneHeight = 0.8;
    zone.borderBand = 0.5;
    return zone;
}

TEST(BuildSummaryBlock, TellsEachFigureBesideItsName) {
    PlanZone zone = SampleZone();
    zone.verdict.activity = "Salas de reunião e conferência"; // else Em and U0 stand twice
    const Drawing::DisplayList list = AsDrawing(BuildSummaryBlock(zone));
    struct Case {
        std::string name;
        std::string value;
    };
    const Case cases[] = {
        {"Em", "500 lx"},
        {"Emin", "203 lx"},
        {"Emax", "20398 lx"},
        {"U0", "0,70"},
        {"Pontos", "1234"},
        {"Plano de trabalho", "0,80 m"},
        {"Faixa de borda", "0,50 m"},
    };
    for (const Case& c : cases) {
        const TextRun name = FindText(list, c.name);
        const TextRun value = FindText(list, c.value);
        EXPECT_EQ(name.position.y, value.position.y) << c.name;
        EXPECT_LT(TextBounds(name).right, TextBounds(value).left) << c.name;
        EXPECT_EQ(name.height, 2.4);
        EXPECT_EQ(value.height, 2.4);
    }
    EXPECT_EQ(OverlappingTexts(list), "");
}

TEST(BuildSummaryBlock, HeadsItWithTheNameOfTheZone) {
    const TextRun title = FindText(AsDrawing(BuildSummaryBlock(SampleZone())), "Sala de reunião");
    EXPECT_EQ(title.height, 3.2);
    EXPECT_EQ(title.weight, TextWeight::Bold);
}

TEST(BuildSummaryBlock, SaysOfANarrowZoneThatEveryPointCounts) {
    PlanZone zone = SampleZone();
    zone.grid.narrow = true;
    const Drawing::DisplayList list = AsDrawing(BuildSummaryBlock(zone));
    EXPECT_EQ(CountText(list, "Faixa de borda"), 0U);
    EXPECT_EQ(CountText(list, "Zona estreita: sem faixa de borda, todos os pontos"), 1U);
    EXPECT_EQ(CountText(list, "entram nas estatísticas  [2]"), 1U);
}

TEST(BuildSummaryBlock, EverythingLiesWithinTheBlock) {
    for (const std::string name :
         {"Sala", "", "Á", "Sala de reunião do terceiro pavimento com um nome que não cabe"}) {
        for (bool narrow : {false, true}) {
            PlanZone zone = SampleZone();
            zone.name = name;
            zone.grid.narrow = narrow;
            const SheetBlock block = BuildSummaryBlock(zone);
            for (const TextRun& run : ElementsOf<TextRun>(AsDrawing(block))) {
                const Drawing::Box box = TextBounds(run);
                EXPECT_GE(box.left, -0.01) << run.text;
                EXPECT_LE(box.right, ColumnWidth + 0.01) << run.text;
                EXPECT_LE(box.top, 1.5) << run.text; // accents of the title stand over the head
                EXPECT_GE(box.bottom, -block.height) << run.text;
            }
        }
    }
}

TEST(BuildNoteBlock, WrapsTheNoteIntoTheColumn) {
    const SheetBlock block = BuildNoteBlock("Radiance 5.4, perfil Projeto: 2 reflexões, 1024 "
                                            "raios, 4 processos; fator de manutenção 0,80.");
    const std::vector<TextRun> runs = ElementsOf<TextRun>(AsDrawing(block));
    EXPECT_EQ(runs.size(), 2U);
    for (const TextRun& run : runs) {
        EXPECT_LE(TextBounds(run).right, ColumnWidth);
        EXPECT_GE(TextBounds(run).bottom, -block.height);
    }
}

} // namespace
} // namespace Merivane::Document
