#include <algorithm>

#include <gtest/gtest.h>

#include "Document/Report/ReportPages.hpp"
#include "Drawing/TextSize.hpp"

namespace Merivane::Document {

namespace {

Report ReportOf(std::vector<ReportBlock> blocks) {
    Report report;
    report.title = "Relatório";
    report.subject = "Casa";
    report.origin = "Programa 1";
    report.sections.push_back({"Seção", std::move(blocks)});
    return report;
}

std::vector<Drawing::TextRun> TextsOf(const Drawing::DisplayList& page) {
    std::vector<Drawing::TextRun> texts;
    for (const Drawing::Layer& layer : page.layers) {
        for (const Drawing::Element& element : layer.elements) {
            if (const auto* run = std::get_if<Drawing::TextRun>(&element)) {
                texts.push_back(*run);
            }
        }
    }
    return texts;
}

bool Shows(const Drawing::DisplayList& page, const std::string& text) {
    const std::vector<Drawing::TextRun> texts = TextsOf(page);
    return std::any_of(texts.begin(), texts.end(),
                       [&text](const Drawing::TextRun& run) { return run.text == text; });
}

double HeightOf(const Drawing::DisplayList& page, const std::string& text) {
    for (const Drawing::TextRun& run : TextsOf(page)) {
        if (run.text == text) {
            return run.position.y;
        }
    }
    return -1.0;
}

ReportTable Table(int rows) {
    ReportTable table;
    table.columns = {{"Zona", 1.0, false}, {"Em (lx)", 1.0, true}};
    for (int i = 0; i < rows; ++i) {
        table.rows.push_back({{"Sala " + std::to_string(i)}, {std::to_string(100 + i)}});
    }
    return table;
}

/// Everything stands between the margins, above the foot and below the head.
void ExpectWithinMargins(const Drawing::DisplayList& page) {
    for (const Drawing::TextRun& run : TextsOf(page)) {
        const Drawing::Box box = Drawing::TextBounds(run);
        EXPECT_GE(box.left, 17.4) << run.text;
        EXPECT_LE(box.right, 192.6) << run.text;
        EXPECT_GE(box.bottom, 8.0) << run.text;
        EXPECT_LE(box.top, 289.0) << run.text;
    }
}

} // namespace

TEST(LayOutReport, RepeatsTheHeadOfATableOnEveryPage) {
    const Drawing::PdfBook book = LayOutReport(ReportOf({Table(150)}));
    ASSERT_GE(book.pages.size(), 3U);
    for (const Drawing::DisplayList& page : book.pages) {
        EXPECT_TRUE(Shows(page, "Em (lx)"));
        EXPECT_EQ(page.width, 210.0);
        EXPECT_EQ(page.height, 297.0);
        ExpectWithinMargins(page);
    }
}

TEST(LayOutReport, ShowsEveryRowOnce) {
    const Drawing::PdfBook book = LayOutReport(ReportOf({Table(150)}));
    for (int i = 0; i < 150; ++i) {
        const auto count =
            std::count_if(book.pages.begin(), book.pages.end(), [i](const auto& page) {
                return Shows(page, "Sala " + std::to_string(i));
            });
        EXPECT_EQ(count, 1) << i;
    }
}

TEST(LayOutReport, LeavesNoHeadingAtTheFootOfAPage) {
    for (int rows = 20; rows < 60; ++rows) { // wherever the page ends
        const Drawing::PdfBook book =
            LayOutReport(ReportOf({Table(rows), ReportHeading{"Título"}, Table(3)}));
        const auto page = std::find_if(book.pages.begin(), book.pages.end(),
                                       [](const auto& p) { return Shows(p, "Título"); });
        ASSERT_NE(page, book.pages.end());
        std::size_t below = 0;
        for (const Drawing::TextRun& run : TextsOf(*page)) {
            below += run.position.y > 15.0 && run.position.y < HeightOf(*page, "Título") ? 1 : 0;
        }
        EXPECT_GE(below, 6U) << rows; // the head and two rows of two cells
    }
}

TEST(LayOutReport, NumbersItsPages) {
    Report report = ReportOf({Table(80)});
    report.moment = "21/11/2026";
    const Drawing::PdfBook book = LayOutReport(report);
    ASSERT_EQ(book.pages.size(), 2U);
    EXPECT_TRUE(Shows(book.pages[0], "Página 1 de 2"));
    EXPECT_TRUE(Shows(book.pages[1], "Página 2 de 2"));
    EXPECT_TRUE(Shows(book.pages[1], "Programa 1 · 21/11/2026"));
    EXPECT_TRUE(Shows(book.pages[1], "Casa"));
    EXPECT_EQ(book.title, "Relatório – Casa");
}

TEST(LayOutReport, WrapsLongNamesWithinTheirColumnAndOverPages) {
    ReportTable table = Table(1);
    table.rows.push_back({{std::string(200, 'm')}, {"1"}});
    std::string words;
    for (int i = 0; i < 2000; ++i) {
        words += "palavra ";
    }
    table.rows.push_back({{words}, {"2"}});
    Report report =
        ReportOf({table, ReportParagraph{words, false}, ReportHeading{words, true},
                  ReportFacts{{{words, words}}}, ReportListing{{std::string(400, 'x')}}});
    report.subject = std::string(300, 'M');
    const Drawing::PdfBook book = LayOutReport(report);
    EXPECT_GT(book.pages.size(), 3U);
    for (const Drawing::DisplayList& page : book.pages) {
        for (const Drawing::TextRun& run : TextsOf(page)) {
            EXPECT_LE(Drawing::TextBounds(run).right, 192.6) << run.text;
        }
    }
}

TEST(LayOutReport, GivesADrawingItsOwnPageAndGoesOnBelowItsName) {
    const Drawing::DisplayList plan{
        "", 297, 210, {{"A", {Drawing::Polyline{{{0, 0}, {297, 210}}, false, {1.0, {}, {2.0}}}}}}};
    const Drawing::PdfBook book =
        LayOutReport(ReportOf({ReportDrawing{"Planta", plan}, ReportParagraph{"Depois.", false}}));
    ASSERT_EQ(book.pages.size(), 2U);
    EXPECT_TRUE(Shows(book.pages[0], "Planta – página 2"));
    EXPECT_TRUE(Shows(book.pages[0], "Depois."));
    EXPECT_EQ(book.pages[1].width, 297.0);
    EXPECT_EQ(book.pages[1].height, 210.0);
    EXPECT_TRUE(Shows(book.pages[1], "Planta (reduzido a 81 %)"));
}

TEST(LayOutReport, TakesALargerPageWhereADrawingWouldShrinkTooMuch) {
    const Drawing::DisplayList upright{"", 420, 594, {}};
    const Drawing::DisplayList small{"", 100, 80, {}};
    const Drawing::PdfBook book =
        LayOutReport(ReportOf({ReportDrawing{"A", upright}, ReportDrawing{"B", small}}));
    ASSERT_EQ(book.pages.size(), 3U);
    EXPECT_EQ(book.pages[1].width, 297.0); // A3
    EXPECT_EQ(book.pages[1].height, 420.0);
    EXPECT_EQ(book.pages[2].width, 297.0);  // A4 across
    EXPECT_TRUE(Shows(book.pages[2], "B")); // at its own size
}

TEST(LayOutReport, LeadsToSectionsAndListedHeadings) {
    const Drawing::PdfBook book =
        LayOutReport(ReportOf({Table(60), ReportHeading{"Sala", true}, ReportHeading{"menor"}}));
    ASSERT_EQ(book.bookmarks.size(), 3U);
    EXPECT_EQ(book.bookmarks[0].title, "Relatório");
    EXPECT_EQ(book.bookmarks[1].title, "Seção");
    EXPECT_EQ(book.bookmarks[2].title, "Sala");
    EXPECT_EQ(book.bookmarks[2].page, 1U);
    EXPECT_TRUE(book.bookmarks[2].underLast);
}

} // namespace Merivane::Document
