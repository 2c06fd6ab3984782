#include <algorithm>
#include <cmath>

#include <gtest/gtest.h>

#include "Document/UgrSheet.hpp"
#include "Drawing/PdfWriter.hpp"
#include "Drawing/PngWriter.hpp"
#include "PlanSamples.hpp"
#include "UgrSamples.hpp"

namespace Merivane::Document {

namespace {

using Drawing::TextRun;

/// A report with everything that a sheet can have to tell, and more than lines can hold.
UgrReport FullReport(const std::string& candela) {
    UgrReport report = MadeUpReport();
    report.photometry = BuildIesReport("", OpeningIes("0.1234 1.2345 0.1234", candela)).file;
    report.luminaire = "Luminária de embutir com um nome que não cabe de modo algum numa única "
                       "linha da ficha do fabricante";
    report.product = "Fabricante de Luminárias e Equipamentos · 0123456789-ABCDEFGHIJ · um arquivo "
                     "de nome comprido demais para a ficha.ies";
    report.height = 100.0;
    report.flux = 123456.0;
    report.isSmall = true;
    report.smallSourceUgr = 31.2;
    report.upwardFlux = 0.777;
    return report;
}

} // namespace

TEST(UgrSheet, IsAnUprightA4WithTheTableInAFrame) {
    const Drawing::DisplayList list = BuildUgrSheet(MadeUpReport());
    EXPECT_EQ(list.title, "Tabela UGR - Painel");
    EXPECT_EQ(list.width, 210.0);
    EXPECT_EQ(list.height, 297.0);
    Drawing::Polyline frame;
    for (const Drawing::Polyline& line : ElementsOf<Drawing::Polyline>(list, "Tabela UGR")) {
        frame = line.closed ? line : frame;
    }
    ASSERT_EQ(frame.points.size(), 4U);
    EXPECT_DOUBLE_EQ(frame.points[1].x - frame.points[0].x, 152.0);
    EXPECT_DOUBLE_EQ(frame.points[2].y - frame.points[1].y, 23.0 * 6.0);
    EXPECT_DOUBLE_EQ(frame.points[0].x, 210.0 - frame.points[1].x); // in the middle
}

TEST(UgrSheet, TellsTheLuminaireAndHowItWasCalculated) {
    const Drawing::DisplayList list = BuildUgrSheet(MadeUpReport());
    const char* const conditions = "H = 2,00 m (luminárias acima do olho a 1,20 m)   |   "
                                   "espaçamento 0,25 H   |   fluxo inicial 3600 lm";
    for (const char* text :
         {"Painel",
          "Exemplo · P-63 · painel.ies",
          "Tabela UGR (método tabular, CIE 117)",
          conditions,
          "Visada transversal ao eixo da lâmpada",
          "Visada ao longo do eixo da lâmpada",
          "Refletâncias",
          "Teto",
          "Paredes",
          "Piso",
          "X",
          "Y",
          "Sala de referência 4H x 8H (0,7 / 0,5 / 0,2), pior observador e sentido:",
          "UGR 18,3",
          "3600 lm",
          "900 cd",
          "20,0 W",
          "180 lm/W",
          "retângulo, 0,600 x 0,300 m",
          "0 %"}) {
        EXPECT_EQ(CountText(list, text), 1U) << text;
    }
    EXPECT_EQ(CountText(list, "0,7"), 4U);
    EXPECT_EQ(CountText(list, "0,5"), 8U); // ceilings and walls
    EXPECT_EQ(CountText(list, "0,2"), 10U);
    EXPECT_EQ(CountText(list, "4H"), 10U); // X in 6 rows, Y in 4
}

TEST(UgrSheet, PutsEachValueInTheCellOfItsRoomAndReflectances) {
    UgrReport report = MadeUpReport();
    for (auto* table : {&report.table.crosswise, &report.table.lengthwise}) {
        for (auto& row : *table) {
            row.fill(15.0);
        }
    }
    report.table.crosswise[0][0] = 31.4;
    report.table.crosswise[10][3] = 32.4;
    report.table.lengthwise[0][0] = 33.4;
    report.table.lengthwise[18][4] = 9.94;
    const Drawing::DisplayList list = BuildUgrSheet(report);
    const TextRun first = FindText(list, "31,4");
    EXPECT_EQ(first.horizontal, Drawing::HorizontalAnchor::Center);
    EXPECT_DOUBLE_EQ(first.position.x, 29.0 + 22.0 + 6.5);
    EXPECT_DOUBLE_EQ(first.position.y, FindText(list, "X").position.y - 6.0);
    const TextRun other = FindText(list, "32,4");
    EXPECT_DOUBLE_EQ(other.position.x - first.position.x, 3.0 * 13.0);
    EXPECT_DOUBLE_EQ(first.position.y - other.position.y, 10.0 * 6.0);
    EXPECT_DOUBLE_EQ(FindText(list, "33,4").position.x - first.position.x, 5.0 * 13.0);
    EXPECT_DOUBLE_EQ(FindText(list, "< 10").position.x - first.position.x, 9.0 * 13.0);
    EXPECT_DOUBLE_EQ(first.position.y - FindText(list, "< 10").position.y, 18.0 * 6.0);
}

TEST(UgrSheet, DrawsTheCurveOfTheLuminaire) {
    const Drawing::DisplayList list = BuildUgrSheet(MadeUpReport());
    EXPECT_GT(ElementsOf<Drawing::Arc>(list, "Luminária").size(), 2U);
    EXPECT_EQ(CountText(list, "C0–C180"), 1U);
    EXPECT_EQ(CountText(list, "Curva de distribuição (cd)"), 1U);
}

TEST(UgrSheet, EveryCircleOfASmallPlotThatHasANumberHasOneToRead) {
    for (const char* candela : {"900 500 0 500 900", "900 500 0 0 0", "1234 500 0 0 1200"}) {
        const Drawing::DisplayList list = BuildUgrSheet(FullReport(candela));
        std::size_t numbers = 0;
        for (const TextRun& run : ElementsOf<TextRun>(list, "Luminária")) {
            numbers += run.halo > 0.0 ? 1 : 0;
            EXPECT_TRUE(run.halo == 0.0 || run.height > 1.3) << run.text;
        }
        EXPECT_GE(numbers, 2U);
    }
}

TEST(UgrSheet, HasItsNotesAtTheFoot) {
    UgrReport report = MadeUpReport();
    const auto notes = [](const UgrReport& of) {
        std::string text;
        for (const TextRun& run : ElementsOf<TextRun>(BuildUgrSheet(of), "Textos")) {
            if (run.position.y < 33.0) {
                text += (text.empty() ? "" : " ") + run.text;
            }
        }
        return text;
    };
    const std::string rooms =
        "X: dimensão da sala atravessando a linha de visão; Y: ao longo dela (múltiplos de H). "
        "Observadores no meio das paredes, olho a 1,20 m. Fundo (Lb) por radiosidade na sala "
        "padrão.";
    EXPECT_EQ(notes(report), rooms);
    report.upwardFlux = 0.78;
    report.isSmall = true;
    report.smallSourceUgr = 21.0;
    EXPECT_EQ(notes(report), UpwardWarning(0.78) + " " + rooms + " " + SmallSourceNote(report));
}

TEST(UgrSheet, NoTextCoversAnotherAndAllStandOnTheSheet) {
    for (const char* candela : {"900 500 0 0 0", "900 500 0 500 900", "0 0 0 500 900"}) {
        const Drawing::DisplayList list = BuildUgrSheet(FullReport(candela));
        EXPECT_EQ(OverlappingTexts(list), "");
        for (const TextRun& run : ElementsOf<TextRun>(list)) {
            const Drawing::Box box = TextBounds(run);
            EXPECT_GE(box.left, 28.0) << run.text;
            EXPECT_LE(box.right, 182.0) << run.text;
            EXPECT_GE(box.bottom, 8.0) << run.text;
            EXPECT_LE(box.top, 287.0) << run.text;
        }
    }
}

TEST(UgrSheet, LeavesOutThePowerThatAFileDoesNotTell) {
    UgrReport report = MadeUpReport();
    report.photometry.inputWatts = 0.0;
    const Drawing::DisplayList list = BuildUgrSheet(report);
    EXPECT_EQ(CountText(list, "Potência"), 0U);
    EXPECT_EQ(CountText(list, "Eficiência luminosa"), 0U);
    EXPECT_EQ(CountText(list, "Abertura luminosa"), 1U);
}

TEST(UgrSheet, BecomesAPdfAndAPictureThatRepeat) {
    const Drawing::DisplayList list = BuildUgrSheet(MadeUpReport());
    std::string first;
    std::string second;
    std::string error;
    ASSERT_TRUE(WritePdf(list, first, error)) << error;
    ASSERT_TRUE(WritePdf(BuildUgrSheet(MadeUpReport()), second, error)) << error;
    EXPECT_EQ(first, second);
    ASSERT_TRUE(WritePng(list, first, error)) << error;
}

} // namespace Merivane::Document
