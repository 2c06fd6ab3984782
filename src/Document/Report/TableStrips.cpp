#include "Document/Report/TableStrips.hpp"

#include <algorithm>
#include <cstddef>
#include <string>
#include <utility>

#include "Document/SheetText.hpp"

namespace Merivane::Document {

namespace {

using Drawing::Color;
using Drawing::TextWeight;

constexpr double CellText = 1.85; // capitals
constexpr double CellPitch = 3.6;
constexpr double RowPadding = 1.5;    // of a row, above and below its lines together
constexpr double Gap = 3.0;           // between columns
constexpr std::size_t MostLines = 40; // of a strip
constexpr double RuleWidth = 0.35;    // below the head
constexpr Color Rule{0.80, 0.81, 0.84, 1.0};
constexpr Color GroupFill{0.945, 0.95, 0.96, 1.0};

/// Left edges and widths of the columns.
struct Places {
    std::vector<double> left;
    std::vector<double> width;
};

Places PlaceColumns(const std::vector<ReportColumn>& columns, double width) {
    double shares = 0.0;
    for (const ReportColumn& column : columns) {
        shares += column.share;
    }
    const double free = width - Gap * static_cast<double>(columns.size() - 1);
    Places places;
    double left = 0.0;
    for (const ReportColumn& column : columns) {
        places.left.push_back(left);
        places.width.push_back(free * column.share / shares);
        left += places.width.back() + Gap;
    }
    return places;
}

using CellLines = std::vector<std::string>;

/// How the cells of a row are set.
struct RowLook {
    std::vector<CellLines> lines; ///< for each column
    std::vector<Color> colors;
    std::vector<TextWeight> weights;
    const std::vector<ReportColumn>* columns = nullptr;
};

std::size_t LineCount(const RowLook& look) {
    std::size_t count = 1;
    for (const CellLines& lines : look.lines) {
        count = std::max(count, lines.size());
    }
    return count;
}

/// Draws the lines from `first` on, at most `MostLines`, and returns the height they take.
double DrawLines(const RowLook& look, const Places& places, std::size_t first,
                 std::vector<Drawing::Element>& elements) {
    const std::size_t end = std::min(LineCount(look), first + MostLines);
    for (std::size_t i = 0; i < look.lines.size(); ++i) {
        for (std::size_t k = first; k < std::min(end, look.lines[i].size()); ++k) {
            const double y = -0.5 * RowPadding - static_cast<double>(k - first) * CellPitch -
                             0.5 * (CellPitch + CellText);
            const bool right = (*look.columns)[i].numbers;
            const double x = places.left[i] + (right ? places.width[i] : 0.0);
            Drawing::TextRun run = SheetText(look.lines[i][k], x, y, CellText, look.weights[i]);
            run.horizontal =
                right ? Drawing::HorizontalAnchor::Right : Drawing::HorizontalAnchor::Left;
            run.color = look.colors[i];
            if (!run.text.empty()) {
                elements.emplace_back(std::move(run));
            }
        }
    }
    return RowPadding + static_cast<double>(end - first) * CellPitch;
}

void AddLine(std::vector<Drawing::Element>& elements, double y, double width, double stroke,
             const Color& color) {
    elements.emplace_back(Drawing::Polyline{{{0.0, y}, {width, y}}, false, {stroke, color, {}}});
}

void AddLook(RowLook& look, const std::string& text, double width, TextWeight weight,
             const Color& color) {
    look.lines.push_back(WrapText(text, width, CellText, weight));
    look.weights.push_back(weight);
    look.colors.push_back(color);
}

ReportStrip GroupStrip(const ReportCell& cell, double width) {
    ReportStrip strip;
    strip.keepWithNext = true;
    const std::vector<std::string> lines =
        WrapText(cell.text, width - 3.0, CellText, TextWeight::Bold);
    strip.height = RowPadding + static_cast<double>(lines.size()) * CellPitch;
    strip.elements.emplace_back(Drawing::Area{
        {{{0.0, -RuleWidth}, {width, -RuleWidth}, {width, -strip.height}, {0.0, -strip.height}}},
        GroupFill,
        0.0});
    double y = -0.5 * RowPadding - 0.5 * (CellPitch + CellText);
    for (const std::string& line : lines) {
        strip.elements.emplace_back(SheetText(line, 1.5, y, CellText, TextWeight::Bold));
        y -= CellPitch;
    }
    AddLine(strip.elements, -strip.height, width, 0.13, Rule);
    return strip;
}

/// A row as one strip, or several where it has very many lines.
void CutRow(const ReportTable& table, const ReportRow& row, const Places& places, double width,
            std::vector<ReportStrip>& strips) {
    if (row.size() == 1) {
        strips.push_back(GroupStrip(row.front(), width));
        return;
    }
    RowLook look;
    look.columns = &table.columns;
    for (std::size_t i = 0; i < row.size(); ++i) {
        AddLook(look, row[i].text, places.width[i],
                row[i].bold ? TextWeight::Bold : TextWeight::Normal, ToneColor(row[i].tone));
    }
    const std::size_t count = LineCount(look);
    for (std::size_t first = 0; first < count; first += MostLines) {
        ReportStrip& strip = strips.emplace_back();
        strip.height = DrawLines(look, places, first, strip.elements);
        if (first + MostLines >= count) {
            AddLine(strip.elements, -strip.height, width, 0.13, Rule);
        }
    }
}

ReportStrip HeadStrip(const ReportTable& table, const Places& places, double width) {
    RowLook look;
    look.columns = &table.columns;
    for (std::size_t i = 0; i < table.columns.size(); ++i) {
        AddLook(look, table.columns[i].head, places.width[i], TextWeight::Bold, Drawing::Black);
    }
    ReportStrip head;
    head.space = 2.4;
    head.keepWithNext = true;
    head.height = DrawLines(look, places, 0, head.elements);
    AddLine(head.elements, -head.height, width, RuleWidth, Drawing::Black);
    return head;
}

} // namespace

Color ToneColor(ReportTone tone) {
    switch (tone) {
    case ReportTone::Muted:
        return Muted;
    case ReportTone::Met:
        return {0.05, 0.45, 0.15, 1.0};
    case ReportTone::NotMet:
        return {0.75, 0.08, 0.08, 1.0};
    case ReportTone::NoData:
        return {0.54, 0.35, 0.0, 1.0};
    case ReportTone::Plain:
        break;
    }
    return Drawing::Black;
}

std::vector<ReportStrip> CutTable(const ReportTable& table, double width) {
    const Places places = PlaceColumns(table.columns, width);
    std::vector<ReportStrip> strips;
    strips.push_back(HeadStrip(table, places, width));
    const ReportStrip head = strips.front();
    for (const ReportRow& row : table.rows) {
        CutRow(table, row, places, width, strips);
    }
    for (std::size_t i = 1; i < strips.size(); ++i) {
        strips[i].head = head.elements;
        strips[i].headHeight = head.height;
    }
    if (strips.size() > 2) { // neither the first row nor the last stands alone
        strips[1].keepWithNext = true;
        strips[strips.size() - 2].keepWithNext = true;
    }
    return strips;
}

} // namespace Merivane::Document
