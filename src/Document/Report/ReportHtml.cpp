#include "Document/Report/ReportHtml.hpp"

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>

#include "Drawing/SvgWriter.hpp"
#include "Text/ShownText.hpp"
#include "Text/Utf8.hpp"
#include "Text/XmlText.hpp"

namespace Merivane::Document {

namespace {

/// The whole look. Screen first and narrow first; printed on A4 with heads of tables repeated.
constexpr const char* Style = R"css(
:root{color-scheme:light;--tinta:#1a1c20;--cinza:#5c5f66;--linha:#d5d8de;--fundo:#f4f5f7}
*{box-sizing:border-box}
html{-webkit-text-size-adjust:100%}
body{margin:0 auto;padding:1.2rem 1rem 3rem;max-width:66rem;background:#fff;color:var(--tinta);
font:16px/1.5 system-ui,-apple-system,"Segoe UI",Roboto,"DejaVu Sans",sans-serif;overflow-wrap:anywhere}
header{border-bottom:3px solid var(--tinta);margin-bottom:1.2rem;padding-bottom:.6rem}
header p{margin:0;color:var(--cinza);text-transform:uppercase;letter-spacing:.08em;font-size:.8rem}
h1{margin:.1em 0 .2em;font-size:1.9rem;line-height:1.2}
h2{margin:2.4rem 0 .8rem;padding-bottom:.2rem;border-bottom:1px solid var(--linha);font-size:1.35rem}
h3{margin:2rem 0 .5rem;font-size:1.1rem}
h3.menor{margin:1.2rem 0 .3rem;font-size:1rem}
p{margin:.5rem 0}
.nota{color:var(--cinza);font-size:.85rem}
nav ol{margin:.4rem 0;padding-left:1.4rem}
nav a{color:inherit}
dl{display:grid;grid-template-columns:minmax(8rem,14rem) 1fr;gap:.2rem 1rem;margin:.6rem 0}
dt{color:var(--cinza)}
dd{margin:0}
.tabela{overflow-x:auto;margin:.8rem 0}
table{border-collapse:collapse;width:100%;font-size:.9rem;line-height:1.35}
th,td{padding:.35rem .5rem;border-bottom:1px solid var(--linha);text-align:left;vertical-align:top;
overflow-wrap:break-word;min-width:4rem}
thead th{border-bottom:2px solid var(--tinta);vertical-align:bottom}
th.n,td.n{text-align:right;font-variant-numeric:tabular-nums;min-width:3rem}
td.n{white-space:nowrap}
th.grupo{background:var(--fundo);font-weight:600}
.fraco{color:var(--cinza)}
.atende{color:#0d7326}
.falha{color:#bf1414}
.semdado{color:#8a5a00}
figure{margin:1rem 0}
figcaption{margin-bottom:.4rem;font-weight:600}
figure svg{display:block;width:100%;height:auto;border:1px solid var(--linha)}
pre{overflow-x:auto;padding:.8rem;background:var(--fundo);font:12px/1.45 "DejaVu Sans Mono",Consolas,
Menlo,monospace;white-space:pre-wrap}
footer{margin-top:3rem;color:var(--cinza);font-size:.85rem}
@media (max-width:40rem){dl{grid-template-columns:1fr;gap:0}dd{margin-bottom:.5rem}h1{font-size:1.5rem}}
@page{size:A4;margin:16mm 15mm}
@media print{body{max-width:none;padding:0;font-size:10pt}nav{display:none}h2,h3{break-after:avoid}
thead{display:table-header-group}tr,figure,dl{break-inside:avoid}.tabela{overflow:visible}
pre{font-size:6.5pt;background:none;padding:0}*{-webkit-print-color-adjust:exact;
print-color-adjust:exact}}
)css";

/// A text from anywhere as the content of an element.
std::string Shown(std::string_view text) {
    return Text::EscapeXml(Merivane::Text::ShownText(text));
}

/// A line of a record: its blanks stay, everything else as `Shown`.
std::string ShownLine(std::string_view line) {
    const std::size_t blanks = std::min(line.find_first_not_of(' '), line.size());
    return std::string(blanks, ' ') + Shown(line);
}

std::string_view ToneClass(ReportTone tone) {
    switch (tone) {
    case ReportTone::Muted:
        return "fraco";
    case ReportTone::Met:
        return "atende";
    case ReportTone::NotMet:
        return "falha";
    case ReportTone::NoData:
        return "semdado";
    case ReportTone::Plain:
        break;
    }
    return "";
}

/// ` class="n fraco"`, or nothing.
std::string ClassText(bool numbers, ReportTone tone) {
    std::string classes = numbers ? "n" : "";
    const std::string_view word = ToneClass(tone);
    if (!word.empty()) {
        classes.append(classes.empty() ? "" : " ").append(word);
    }
    return classes.empty() ? "" : " class=\"" + classes + "\"";
}

std::string Bold(const std::string& text, bool bold) {
    return bold && !text.empty() ? "<b>" + text + "</b>" : text;
}

/// Writes blocks one behind the other; headings that are listed get ids in their order.
struct HtmlBlocks {
    std::string& html;
    std::string& error;
    std::string idBegin; ///< of the headings within
    std::size_t headings = 0;
    bool failed = false;

    void operator()(const ReportHeading& heading);
    void operator()(const ReportParagraph& paragraph) const;
    void operator()(const ReportFacts& facts) const;
    void operator()(const ReportTable& table) const;
    void operator()(const ReportDrawing& drawing);
    void operator()(const ReportListing& listing) const;

    void AppendRow(const ReportTable& table, const ReportRow& row) const;
};

void HtmlBlocks::operator()(const ReportHeading& heading) {
    html += "<h3 ";
    html +=
        heading.listed ? "id=\"" + idBegin + std::to_string(++headings) + "\"" : "class=\"menor\"";
    html += ">" + Shown(heading.text) + "</h3>\n";
}

void HtmlBlocks::operator()(const ReportParagraph& paragraph) const {
    html += paragraph.note ? "<p class=\"nota\">" : "<p>";
    html += Shown(paragraph.text) + "</p>\n";
}

void HtmlBlocks::operator()(const ReportFacts& facts) const {
    html += "<dl>\n";
    for (const ReportFact& fact : facts.facts) {
        const bool stressed = fact.tone != ReportTone::Plain;
        html += "<dt>" + Shown(fact.label) + "</dt><dd" + ClassText(false, fact.tone) + ">" +
                Bold(Shown(fact.value), stressed) + "</dd>\n";
    }
    html += "</dl>\n";
}

void HtmlBlocks::AppendRow(const ReportTable& table, const ReportRow& row) const {
    html += "<tr>";
    if (row.size() == 1) {
        html += "<th class=\"grupo\" scope=\"rowgroup\" colspan=\"" +
                std::to_string(table.columns.size()) + "\">" + Shown(row.front().text) + "</th>";
    } else {
        for (std::size_t i = 0; i < row.size(); ++i) {
            html += "<td" + ClassText(table.columns[i].numbers, row[i].tone) + ">" +
                    Bold(Shown(row[i].text), row[i].bold) + "</td>";
        }
    }
    html += "</tr>\n";
}

void HtmlBlocks::operator()(const ReportTable& table) const {
    html += "<div class=\"tabela\"><table>\n<thead><tr>";
    for (const ReportColumn& column : table.columns) {
        html += "<th scope=\"col\"" + ClassText(column.numbers, ReportTone::Plain) + ">" +
                Shown(column.head) + "</th>";
    }
    html += "</tr></thead>\n<tbody>\n";
    for (const ReportRow& row : table.rows) {
        AppendRow(table, row);
    }
    html += "</tbody></table></div>\n";
}

void HtmlBlocks::operator()(const ReportDrawing& drawing) {
    std::string svg;
    if (!Drawing::WriteSvgElement(drawing.drawing, svg, error)) {
        failed = true;
        return;
    }
    html += "<figure><figcaption>" + Shown(drawing.name) + "</figcaption>\n" + svg + "</figure>\n";
}

void HtmlBlocks::operator()(const ReportListing& listing) const {
    html += "<pre>";
    for (const std::string& line : listing.lines) {
        html += ShownLine(line) + "\n";
    }
    html += "</pre>\n";
}

bool AppendBlocks(std::string& html, const std::vector<ReportBlock>& blocks,
                  const std::string& idBegin, std::string& error) {
    HtmlBlocks writer{html, error, idBegin};
    for (const ReportBlock& block : blocks) {
        std::visit(writer, block);
        if (writer.failed) {
            return false;
        }
    }
    return true;
}

std::string SectionId(std::size_t section) {
    return "s" + std::to_string(section + 1);
}

std::string LinkText(const std::string& id, const std::string& text) {
    return "<li><a href=\"#" + id + "\">" + Shown(text) + "</a>";
}

void AppendContents(std::string& html, const std::vector<ReportSection>& sections) {
    html += "<nav aria-label=\"Conteúdo\"><h2>Conteúdo</h2>\n<ol>\n";
    for (std::size_t i = 0; i < sections.size(); ++i) {
        html += LinkText(SectionId(i), sections[i].title);
        std::string under;
        std::size_t count = 0;
        for (const ReportBlock& block : sections[i].blocks) {
            const auto* heading = std::get_if<ReportHeading>(&block);
            if (heading != nullptr && heading->listed) {
                under += LinkText(SectionId(i) + "-" + std::to_string(++count), heading->text) +
                         "</li>\n";
            }
        }
        html += (under.empty() ? "" : "\n<ol>\n" + under + "</ol>") + "</li>\n";
    }
    html += "</ol></nav>\n";
}

void AppendHead(std::string& html, const Report& report) {
    html += "<!DOCTYPE html>\n<html lang=\"pt-BR\">\n<head>\n<meta charset=\"utf-8\">\n"
            "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\n"
            "<meta name=\"generator\" content=\"" +
            Shown(report.origin) + "\">\n<title>" + Shown(report.title + " – " + report.subject) +
            "</title>\n<style>" + Style + "</style>\n</head>\n<body>\n<header><p>" +
            Shown(report.title) + "</p>\n<h1>" + Shown(report.subject) + "</h1></header>\n";
}

void AppendFooter(std::string& html, const Report& report) {
    html += "<footer>" + Shown(report.origin) +
            (report.moment.empty() ? "" : " · " + Shown(report.moment)) +
            "</footer>\n</body>\n</html>\n";
}

} // namespace

bool WriteReportHtml(const Report& report, std::string& html, std::string& error) {
    std::string written;
    AppendHead(written, report);
    if (!AppendBlocks(written, report.front, "f", error)) {
        return false;
    }
    AppendContents(written, report.sections);
    for (std::size_t i = 0; i < report.sections.size(); ++i) {
        const std::string id = SectionId(i);
        written +=
            "<section>\n<h2 id=\"" + id + "\">" + Shown(report.sections[i].title) + "</h2>\n";
        if (!AppendBlocks(written, report.sections[i].blocks, id + "-", error)) {
            return false;
        }
        written += "</section>\n";
    }
    AppendFooter(written, report);
    html = std::move(written);
    return true;
}

} // namespace Merivane::Document
