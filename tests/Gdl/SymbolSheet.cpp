#include "Gdl/SymbolSheet.hpp"

#include <cstddef>
#include <string>

#include "Photometry/BuiltInSymbols.hpp"
#include "Photometry/SymbolRows.hpp"

namespace Merivane::Tests {

namespace {

using Photometry::SymbolRow;

constexpr int Columns = 5;
constexpr double CellWidth = 42.0;   // mm
constexpr double CellHeight = 34.0;  // mm
constexpr double Margin = 5.0;       // mm
constexpr double LargeRadius = 10.0; // mm
constexpr double PaperRadius = 2.0;  // mm, of a symbol of 4 mm
constexpr double RadiansPerDegree = 0.017453292519943295;

constexpr Drawing::Color Ink = {0.1, 0.1, 0.1};

/// A place on the sheet at which one symbol is drawn.
struct SymbolPlace {
    Drawing::Point center;
    double radius = 0.0; // mm
    Drawing::Stroke stroke;

    Drawing::Point At(double x, double y) const {
        return {center.x + radius * x, center.y + radius * y};
    }
};

void DrawPolygon(const SymbolRow* corners, std::size_t count, const SymbolPlace& place,
                 std::vector<Drawing::Element>& elements) {
    Drawing::Polyline contour = {{}, true, place.stroke};
    for (std::size_t i = 0; i < count; ++i) {
        contour.points.push_back(place.At(corners[i][1], corners[i][2]));
    }
    elements.emplace_back(Drawing::Area{{contour.points}, Ink});
    elements.emplace_back(std::move(contour));
}

void DrawArc(const SymbolRow& row, double begin, double end, const SymbolPlace& place,
             std::vector<Drawing::Element>& elements) {
    elements.emplace_back(Drawing::Arc{place.At(row[1], row[2]), place.radius * row[3],
                                       begin * RadiansPerDegree, end * RadiansPerDegree,
                                       place.stroke});
}

void DrawRows(const std::vector<SymbolRow>& rows, const SymbolPlace& place,
              std::vector<Drawing::Element>& elements) {
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const SymbolRow& row = rows[i];
        if (row[0] == 1.0) {
            elements.emplace_back(Drawing::Polyline{
                {place.At(row[1], row[2]), place.At(row[3], row[4])}, false, place.stroke});
        } else if (row[0] == 2.0) {
            DrawArc(row, 0.0, 360.0, place, elements);
        } else if (row[0] == 3.0) {
            DrawArc(row, row[4], row[5], place, elements);
        } else {
            const auto count = static_cast<std::size_t>(row[1]);
            DrawPolygon(&row + 1, count, place, elements);
            i += count;
        }
    }
}

void DrawText(const std::string& text, Drawing::Point position, Drawing::TextWeight weight,
              std::vector<Drawing::Element>& elements) {
    Drawing::TextRun run;
    run.text = text;
    run.position = position;
    run.weight = weight;
    run.height = 1.8;
    run.horizontal = Drawing::HorizontalAnchor::Center;
    run.color = Ink;
    elements.emplace_back(std::move(run));
}

void DrawCell(const Photometry::PlanSymbol& symbol, Drawing::Point corner,
              std::vector<Drawing::Element>& elements) {
    const std::vector<SymbolRow> rows = Photometry::BuildSymbolRows(symbol).rows;
    const double middle = corner.y + CellHeight - 3.0 - LargeRadius;
    DrawRows(rows, {{corner.x + 16.0, middle}, LargeRadius, {0.35, Ink, {}}}, elements);
    DrawRows(rows, {{corner.x + 35.0, middle}, PaperRadius, {0.18, Ink, {}}}, elements);
    const double x = corner.x + CellWidth / 2;
    DrawText(std::to_string(symbol.id), {x, corner.y + 6.2}, Drawing::TextWeight::Bold, elements);
    DrawText(symbol.name, {x, corner.y + 2.6}, Drawing::TextWeight::Normal, elements);
}

} // namespace

Drawing::DisplayList BuildSymbolSheet() {
    const std::vector<Photometry::PlanSymbol> symbols = Photometry::BuiltInSymbols();
    const int drawn = static_cast<int>(symbols.size()) - 1;
    const int rows = (drawn + Columns - 1) / Columns;
    Drawing::DisplayList sheet;
    sheet.title = "Símbolos em planta";
    sheet.width = 2 * Margin + Columns * CellWidth;
    sheet.height = 2 * Margin + rows * CellHeight;
    Drawing::Layer layer = {"Símbolos", {}};
    for (int i = 0; i < drawn; ++i) {
        const int row = i / Columns;
        const int column = i % Columns;
        const Drawing::Point corner = {Margin + column * CellWidth,
                                       sheet.height - Margin - (row + 1) * CellHeight};
        DrawCell(symbols[static_cast<std::size_t>(i) + 1], corner, layer.elements);
    }
    sheet.layers.push_back(std::move(layer));
    return sheet;
}

} // namespace Merivane::Tests
