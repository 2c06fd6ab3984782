#include <gtest/gtest.h>

#include "Document/Report/ReportHtml.hpp"

namespace Merivane::Document {

namespace {

std::string Html(const Report& report) {
    std::string html;
    std::string error;
    EXPECT_TRUE(WriteReportHtml(report, html, error)) << error;
    return html;
}

bool Holds(const std::string& text, const std::string& piece) {
    return text.find(piece) != std::string::npos;
}

Report ReportOf(std::vector<ReportBlock> blocks) {
    Report report;
    report.title = "Relatório";
    report.subject = "Casa";
    report.sections.push_back({"Seção", std::move(blocks)});
    return report;
}

Drawing::DisplayList Square() {
    return {"Planta", 100, 80, {{"A", {Drawing::Polyline{{{1, 2}, {3, 4}}, true, {}}}}}};
}

} // namespace

TEST(WriteReportHtml, EscapesEverythingThatComesFromOutside) {
    const std::string bad = "<script>\"a\" & 'b'</script>";
    const std::string good = "&lt;script&gt;&quot;a&quot; &amp; &#39;b&#39;&lt;/script&gt;";
    ReportTable table;
    table.columns = {{bad, 1.0, false}, {"B", 1.0, true}};
    table.rows = {{{bad}}, {{bad}, {bad, ReportTone::Met, true}}};
    Report report =
        ReportOf({ReportHeading{bad, true}, ReportParagraph{bad, false}, ReportFacts{{{bad, bad}}},
                  table, ReportDrawing{bad, Square()}, ReportListing{{bad}}});
    report.subject = bad;
    report.title = bad;
    report.origin = bad;
    report.moment = bad;
    report.sections[0].title = bad;
    const std::string html = Html(report);
    EXPECT_FALSE(Holds(html, "<script"));
    EXPECT_TRUE(Holds(html, "<h1>" + good + "</h1>"));
    EXPECT_TRUE(Holds(html, "<p>" + good + "</p>"));
    EXPECT_TRUE(Holds(html, "<dt>" + good + "</dt><dd>" + good + "</dd>"));
    EXPECT_TRUE(Holds(html, "<td class=\"n atende\"><b>" + good + "</b></td>"));
    EXPECT_TRUE(Holds(html, "<pre>" + good + "\n</pre>"));
    EXPECT_TRUE(Holds(html, "<figcaption>" + good + "</figcaption>"));
}

TEST(WriteReportHtml, NeedsNothingBesideIt) {
    const std::string html = Html(ReportOf({ReportDrawing{"Planta", Square()}}));
    for (const char* piece : {"http", "src=", "@import", "url(", "<link", "<script", "<?xml"}) {
        EXPECT_FALSE(Holds(html, piece)) << piece;
    }
    EXPECT_TRUE(Holds(html, "<html lang=\"pt-BR\">"));
    EXPECT_TRUE(Holds(html, "<meta name=\"viewport\" content=\"width=device-width"));
    EXPECT_TRUE(Holds(html, "<svg role=\"img\" viewBox=\"0 0 100 80\""));
}

TEST(WriteReportHtml, LinksToItsSectionsAndListedHeadings) {
    const std::string html = Html(ReportOf(
        {ReportHeading{"Sala", true}, ReportHeading{"menor"}, ReportHeading{"Copa", true}}));
    EXPECT_TRUE(Holds(html, "<a href=\"#s1\">Seção</a>"));
    EXPECT_TRUE(Holds(html, "<h2 id=\"s1\">Seção</h2>"));
    EXPECT_TRUE(Holds(html, "<a href=\"#s1-2\">Copa</a>"));
    EXPECT_TRUE(Holds(html, "<h3 id=\"s1-2\">Copa</h3>"));
    EXPECT_TRUE(Holds(html, "<h3 class=\"menor\">menor</h3>"));
}

TEST(WriteReportHtml, ShowsTonesAndGroups) {
    ReportTable table;
    table.columns = {{"A", 1.0, false}, {"B", 1.0, true}};
    table.rows = {{{"Grupo"}},
                  {{"a", ReportTone::NotMet}, {"1"}},
                  {{"b", ReportTone::NoData}, {"2", ReportTone::Muted}}};
    const std::string html = Html(ReportOf({table}));
    EXPECT_TRUE(Holds(html, "<th class=\"grupo\" scope=\"rowgroup\" colspan=\"2\">Grupo</th>"));
    EXPECT_TRUE(Holds(html, "<td class=\"falha\">a</td><td class=\"n\">1</td>"));
    EXPECT_TRUE(Holds(html, "<td class=\"semdado\">b</td><td class=\"n fraco\">2</td>"));
}

TEST(WriteReportHtml, KeepsTheIndentOfALogAndRepairsItsBytes) {
    const std::string html = Html(ReportOf({ReportListing{{"  a\x1b[1m", "\xff", ""}}}));
    EXPECT_TRUE(Holds(html, "<pre>  a [1m\n\xEF\xBF\xBD\n\n</pre>"));
}

TEST(WriteReportHtml, RefusesADrawingThatCanNotBeDrawn) {
    std::string html = "antes";
    std::string error;
    EXPECT_FALSE(WriteReportHtml(ReportOf({ReportDrawing{"", {"", 0, 10, {}}}}), html, error));
    EXPECT_EQ(error, "A folha do desenho precisa de largura e altura acima de 0 e de até 5000 mm.");
    EXPECT_EQ(html, "antes");
}

} // namespace Merivane::Document
