#include "Simulation/Study/ZoneSummary.hpp"

#include <algorithm>
#include <array>
#include <cstddef>
#include <utility>

#include "Simulation/PrintedValue.hpp"
#include "Simulation/Study/SummaryTexts.hpp"
#include "Simulation/Study/TextExtent.hpp"

namespace Merivane::Simulation {

namespace {

// Heights of capitals [mm on paper].
constexpr double HeadHeight = 3.2;
constexpr double UnverifiedHeight = 2.8;
constexpr double LineHeight = 2.4;
constexpr double RemarkHeight = 1.8;
constexpr double RuleHeight = 1.0; // of the dashes that a rule is made of

constexpr double BetweenColumns = 3.0; // [mm on paper]

using Paragraphs = std::vector<SummaryParagraph>;
using Cells = std::array<std::string, 4>;

/// Where the columns of the tables stand [mm on paper].
struct Columns {
    std::vector<double> stops; ///< left of the second, third and last column
    double width = 0.0;        ///< of the whole table
};

// Names come from outside: a line end or a tab in one would tear its paragraph apart.
std::string OnOneLine(std::string text) {
    std::replace_if(
        text.begin(), text.end(),
        [](char letter) { return static_cast<unsigned char>(letter) < ' '; }, ' ');
    return text;
}

SummaryParagraph Paragraph(const std::string& text, double height, bool bold = false) {
    SummaryParagraph paragraph;
    paragraph.texts.push_back({OnOneLine(text), height, bold, SummaryInk::Own});
    return paragraph;
}

Cells CellsOf(const VerificationRow& row) {
    return {OnOneLine(row.criterion), OnOneLine(row.calculated), OnOneLine(row.required),
            RowState(row)};
}

Cells HeadCells() {
    Cells cells;
    std::copy(CriteriaColumns.begin(), CriteriaColumns.end(), cells.begin());
    return cells;
}

SummaryInk InkOf(const VerificationRow& row) {
    if (!row.hasData) {
        return SummaryInk::Own;
    }
    return row.passes ? SummaryInk::Met : SummaryInk::NotMet;
}

void Widen(std::array<double, 4>& widths, const Cells& cells, bool bold) {
    for (std::size_t i = 0; i < cells.size(); ++i) {
        widths[i] = std::max(widths[i], EstimateTextWidth(cells[i], LineHeight, bold));
    }
}

Columns ColumnsOf(const ZoneAnalysis& analysis) {
    std::array<double, 4> widths{};
    Widen(widths, HeadCells(), true);
    Widen(widths, {ResultLabel, "", "", OverallState(analysis)}, true);
    for (const auto* rows : {&analysis.verification.rows, &analysis.surfaces}) {
        for (const VerificationRow& row : *rows) {
            Widen(widths, CellsOf(row), false);
        }
    }
    Columns columns;
    for (std::size_t i = 0; i + 1 < widths.size(); ++i) {
        columns.width += widths[i] + BetweenColumns;
        columns.stops.push_back(columns.width);
    }
    columns.width += widths.back();
    return columns;
}

SummaryParagraph Row(const Cells& cells, const Columns& columns, bool bold, SummaryInk ink) {
    SummaryParagraph paragraph;
    paragraph.tabs = columns.stops;
    paragraph.texts.push_back(
        {cells[0] + "\t" + cells[1] + "\t" + cells[2] + "\t", LineHeight, bold, SummaryInk::Own});
    paragraph.texts.push_back({cells[3], LineHeight, bold, ink});
    return paragraph;
}

// A text has no lines of its own; dashes of one em join to one.
SummaryParagraph Rule(const Columns& columns) {
    const std::string dash = "—";
    const auto count = static_cast<int>(columns.width / EstimateTextWidth(dash, RuleHeight));
    std::string line;
    for (int i = 0; i < count; ++i) {
        line += dash;
    }
    return Paragraph(line, RuleHeight);
}

void AppendTable(const std::string& heading, const std::vector<VerificationRow>& rows,
                 const Columns& columns, Paragraphs& paragraphs) {
    paragraphs.push_back(Paragraph(heading, LineHeight, true));
    paragraphs.push_back(Row(HeadCells(), columns, true, SummaryInk::Own));
    paragraphs.push_back(Rule(columns));
    for (const VerificationRow& row : rows) {
        paragraphs.push_back(Row(CellsOf(row), columns, false, InkOf(row)));
        paragraphs.push_back(Rule(columns));
    }
}

void AppendTitle(const ZoneDrawing& drawing, Paragraphs& paragraphs) {
    const TaskRow* task = drawing.analysis.task;
    paragraphs.push_back(Paragraph(
        ZoneTitle(drawing.zone.name, task != nullptr ? task->activity : ""), HeadHeight, true));
    paragraphs.emplace_back();
}

void AppendVerification(const ZoneDrawing& drawing, const Columns& columns,
                        Paragraphs& paragraphs) {
    const std::vector<VerificationRow>& rows = drawing.analysis.verification.rows;
    if (rows.empty()) {
        return;
    }
    AppendTable(VerificationHeading(ReferenceStandardName(drawing.standard)),
                RowsOfKind(rows, VerificationKind::Requirement), columns, paragraphs);
    SummaryParagraph result;
    result.tabs = {columns.stops.back()};
    result.texts = {{std::string(ResultLabel) + "\t", LineHeight, true, SummaryInk::Own},
                    {OverallState(drawing.analysis), LineHeight, true,
                     VerificationPasses(rows) ? SummaryInk::Met : SummaryInk::NotMet}};
    paragraphs.push_back(std::move(result));
    if (PassesWithMissingData(rows)) {
        paragraphs.push_back(Paragraph(MissingDataText, RemarkHeight));
    }
}

void AppendUnverified(const ZoneDrawing& drawing, Paragraphs& paragraphs) {
    if (drawing.analysis.task != nullptr) {
        return;
    }
    const PointStatistics& statistics = drawing.analysis.statistics;
    paragraphs.push_back(Paragraph(drawing.zone.name + ":   " + (drawing.vertical ? "Ev " : "Em ") +
                                       FormatDecimal(statistics.mean, 0) + " lx   U0 " +
                                       FormatDecimal(statistics.uniformity, 2),
                                   UnverifiedHeight));
    paragraphs.push_back(Paragraph(NotVerifiedText, LineHeight));
}

void AppendRecommendations(const ZoneAnalysis& analysis, const Columns& columns,
                           Paragraphs& paragraphs) {
    const std::vector<VerificationRow> rows =
        RowsOfKind(analysis.verification.rows, VerificationKind::Recommendation);
    if (!rows.empty()) {
        AppendTable(RecommendationsHeading, rows, columns, paragraphs);
    }
}

void AppendLines(const ZoneDrawing& drawing, Paragraphs& paragraphs) {
    for (const std::string& line : ZoneSummaryLines(drawing)) {
        paragraphs.push_back(Paragraph(line, LineHeight));
    }
}

void AppendSurfaces(const ZoneAnalysis& analysis, const Columns& columns, Paragraphs& paragraphs) {
    if (!analysis.surfaces.empty()) {
        AppendTable(SurfacesHeading, analysis.surfaces, columns, paragraphs);
    }
}

} // namespace

std::vector<SummaryParagraph> BuildZoneSummary(const ZoneDrawing& drawing) {
    const Columns columns = ColumnsOf(drawing.analysis);
    Paragraphs paragraphs;
    AppendTitle(drawing, paragraphs);
    AppendVerification(drawing, columns, paragraphs);
    AppendUnverified(drawing, paragraphs);
    AppendRecommendations(drawing.analysis, columns, paragraphs);
    AppendLines(drawing, paragraphs);
    AppendSurfaces(drawing.analysis, columns, paragraphs);
    return paragraphs;
}

} // namespace Merivane::Simulation
