#include "Photometry/SymbolRows.hpp"

#include <algorithm>
#include <cstddef>

namespace Merivane::Photometry {

namespace {

constexpr double LineRow = 1.0;
constexpr double CircleRow = 2.0;
constexpr double ArcRow = 3.0;
constexpr double PolygonRow = 4.0;

void AppendPolygon(const std::vector<SymbolPoint>& points, std::vector<SymbolRow>& rows) {
    rows.push_back({PolygonRow, static_cast<double>(points.size())});
    for (const SymbolPoint& point : points) {
        rows.push_back({0.0, point.x, point.y});
    }
}

void AppendLine(const SymbolPoint& begin, const SymbolPoint& end, std::vector<SymbolRow>& rows) {
    rows.push_back({LineRow, begin.x, begin.y, end.x, end.y});
}

void AppendSides(const std::vector<SymbolPoint>& points, std::vector<SymbolRow>& rows) {
    for (std::size_t i = 0; i < points.size(); ++i) {
        AppendLine(points[i], points[(i + 1) % points.size()], rows);
    }
}

void AppendStroke(const SymbolStroke& stroke, std::vector<SymbolRow>& rows) {
    const SymbolPoint& first = stroke.points[0];
    if (stroke.kind == SymbolStrokeKind::Line) {
        AppendLine(first, stroke.points[1], rows);
    } else if (stroke.filled) {
        AppendPolygon(OutlinePoints(stroke), rows);
    } else if (stroke.kind == SymbolStrokeKind::Polygon) {
        AppendSides(stroke.points, rows);
    } else if (stroke.kind == SymbolStrokeKind::Circle) {
        rows.push_back({CircleRow, first.x, first.y, stroke.radius});
    } else {
        rows.push_back(
            {ArcRow, first.x, first.y, stroke.radius, stroke.beginAngle, stroke.endAngle});
    }
}

} // namespace

SymbolRowsResult BuildSymbolRows(const PlanSymbol& symbol) {
    SymbolRowsResult result;
    for (const SymbolStroke& stroke : symbol.strokes) {
        if (IsDrawable(stroke)) {
            AppendStroke(stroke, result.rows);
        }
    }
    if (result.rows.size() > SymbolDataRows) {
        result.error = "O desenho e detalhado demais para um simbolo.";
        result.advice = "Ele precisa de " + std::to_string(result.rows.size()) +
                        " linhas de dados e o limite e " + std::to_string(SymbolDataRows) +
                        ". Simplifique curvas e polilinhas.";
        result.rows.clear();
        return result;
    }
    result.ok = true;
    return result;
}

std::vector<double> SymbolData(const std::vector<SymbolRow>& rows) {
    std::vector<double> data;
    data.reserve(static_cast<std::size_t>(SymbolDataRows) * SymbolDataColumns);
    for (std::size_t i = 0; i < std::min<std::size_t>(rows.size(), SymbolDataRows); ++i) {
        data.insert(data.end(), rows[i].begin(), rows[i].end());
    }
    data.resize(static_cast<std::size_t>(SymbolDataRows) * SymbolDataColumns, 0.0);
    return data;
}

} // namespace Merivane::Photometry
