#include "Document/PlanFigures.hpp"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "Document/PlanLegend.hpp"
#include "Document/SheetText.hpp"
#include "Text/Number.hpp"

namespace Merivane::Document {
namespace {

using Drawing::Area;
using Drawing::Black;
using Drawing::Point;
using Drawing::Polyline;
using Drawing::White;

constexpr double BandBleed = 0.09; // half a dot at 150 dots per inch
constexpr double WallWidth = 0.6;
constexpr double GlassGap = 0.7; // between the two lines of a pane
constexpr double GlassLine = 0.15;
constexpr double LeastSymbol = 1.6; // a luminaire is drawn at least this large
constexpr Drawing::Color CurveColor{0.10, 0.10, 0.12, 1.0};
constexpr Drawing::Color Veil{1.0, 1.0, 1.0, 0.55};

std::vector<Point> PaperRing(const PlanSheet& sheet, const std::vector<Simulation::Point2D>& ring) {
    std::vector<Point> points;
    points.reserve(ring.size());
    for (const Simulation::Point2D& place : ring) {
        points.push_back(OnPaper(sheet, place));
    }
    return points;
}

Polyline CurveLine(const PlanSheet& sheet, const Simulation::IsoCurve& curve,
                   const Drawing::Stroke& stroke) {
    Polyline line{PaperRing(sheet, curve.points), curve.closed, stroke};
    if (line.closed && line.points.size() > 1 && line.points.back() == line.points.front()) {
        line.points.pop_back();
    }
    return line;
}

void AppendGlass(Drawing::Layer& layer, Point start, Point end) {
    const double length = std::hypot(end.x - start.x, end.y - start.y);
    if (!(length > 0.0)) {
        return;
    }
    const Point off{-(end.y - start.y) / length * 0.5 * GlassGap,
                    (end.x - start.x) / length * 0.5 * GlassGap};
    const std::vector<Point> pane = {{start.x + off.x, start.y + off.y},
                                     {end.x + off.x, end.y + off.y},
                                     {end.x - off.x, end.y - off.y},
                                     {start.x - off.x, start.y - off.y}};
    layer.elements.emplace_back(Area{{pane}, White, 0.0});
    layer.elements.emplace_back(Polyline{{pane[0], pane[1]}, false, {GlassLine, Black, {}}});
    layer.elements.emplace_back(Polyline{{pane[2], pane[3]}, false, {GlassLine, Black, {}}});
}

// The symbol's own frame: x along C0, y along C90, in mm of paper.
struct Symbol {
    Point center;
    double cosine;
    double sine;
    double halfLength;
    double halfWidth;

    Point At(double x, double y) const {
        return {center.x + x * cosine - y * sine, center.y + x * sine + y * cosine};
    }
};

Symbol SymbolOf(const PlanSheet& sheet, const PlanLuminaire& luminaire) {
    return {OnPaper(sheet, luminaire.center), std::cos(luminaire.rotation),
            std::sin(luminaire.rotation),
            0.5 * std::max(PaperLength(sheet, luminaire.length), LeastSymbol),
            0.5 * std::max(PaperLength(sheet, luminaire.width), LeastSymbol)};
}

std::vector<Point> Outline(const Symbol& symbol, bool round) {
    if (!round) {
        return {symbol.At(-symbol.halfLength, -symbol.halfWidth),
                symbol.At(symbol.halfLength, -symbol.halfWidth),
                symbol.At(symbol.halfLength, symbol.halfWidth),
                symbol.At(-symbol.halfLength, symbol.halfWidth)};
    }
    constexpr int corners = 72;
    std::vector<Point> points;
    for (int k = 0; k < corners; ++k) {
        const double angle = 2.0 * std::numbers::pi * k / corners;
        points.push_back(
            symbol.At(symbol.halfLength * std::cos(angle), symbol.halfWidth * std::sin(angle)));
    }
    return points;
}

// At most six digits, a decimal comma.
std::string ShortDecimal(double value) {
    std::string text = Text::FormatGeneral(value);
    std::replace(text.begin(), text.end(), '.', ',');
    return text;
}

// The shortest of 1, 2, 5 times a power of ten that is at least `least`.
double NiceLength(double least) {
    const double power = std::pow(10.0, std::floor(std::log10(least)));
    for (double factor : {1.0, 2.0, 5.0}) {
        if (factor * power >= least * (1.0 - 1e-9)) {
            return factor * power;
        }
    }
    return 10.0 * power;
}

} // namespace

void AppendBands(Drawing::Layer& layer, const PlanSheet& sheet,
                 const std::vector<Simulation::ColorBand>& bands,
                 const Simulation::LevelList& levels, std::uint32_t colorScale) {
    for (const Simulation::ColorBand& band : bands) {
        const Drawing::Color color = PlanBandColor(levels, colorScale, band.index);
        for (const Simulation::BandPolygon& polygon : band.polygons) {
            Area area{{PaperRing(sheet, polygon.outer)}, color, BandBleed};
            for (const auto& hole : polygon.holes) {
                area.rings.push_back(PaperRing(sheet, hole));
            }
            layer.elements.emplace_back(std::move(area));
        }
    }
}

void AppendCurves(Drawing::Layer& layer, const PlanSheet& sheet,
                  const std::vector<Simulation::IsoCurve>& curves) {
    for (const Simulation::IsoCurve& curve : curves) {
        layer.elements.emplace_back(CurveLine(sheet, curve, {0.18, CurveColor, {}}));
    }
}

void AppendTaskOutline(Drawing::Layer& layer, const PlanSheet& sheet,
                       const std::vector<Simulation::IsoCurve>& outline) {
    for (const Simulation::IsoCurve& curve : outline) {
        layer.elements.emplace_back(CurveLine(sheet, curve, {0.25, Black, {3.0, 1.5}}));
    }
}

void AppendFootprint(Drawing::Layer& layer, const PlanSheet& sheet,
                     const Simulation::Polygon2D& polygon, bool hasWalls) {
    const Drawing::Stroke stroke{hasWalls ? 0.13 : 0.35, hasWalls ? Muted : Black, {}};
    layer.elements.emplace_back(Polyline{PaperRing(sheet, polygon.outer), true, stroke});
    for (const auto& hole : polygon.holes) {
        layer.elements.emplace_back(Polyline{PaperRing(sheet, hole), true, stroke});
    }
}

void AppendSegments(Drawing::Layer& layer, const PlanSheet& sheet,
                    const std::vector<PlanSegment>& segments) {
    for (const PlanSegment& segment : segments) {
        if (segment.kind == PlanSegmentKind::Wall) {
            layer.elements.emplace_back(
                Polyline{{OnPaper(sheet, segment.start), OnPaper(sheet, segment.end)},
                         false,
                         {WallWidth, Black, {}}});
        }
    }
    // Glass lies over the walls' rounded ends.
    for (const PlanSegment& segment : segments) {
        if (segment.kind == PlanSegmentKind::Glass) {
            AppendGlass(layer, OnPaper(sheet, segment.start), OnPaper(sheet, segment.end));
        }
    }
}

void AppendLuminaire(Drawing::Layer& layer, const PlanSheet& sheet,
                     const PlanLuminaire& luminaire) {
    const Symbol symbol = SymbolOf(sheet, luminaire);
    const Drawing::Stroke fine{0.13, Black, {}};
    const std::vector<Point> outline = Outline(symbol, luminaire.round);
    layer.elements.emplace_back(Area{{outline}, Veil, 0.0});
    layer.elements.emplace_back(Polyline{outline, true, {0.25, Black, {}}});
    const double corner = luminaire.round ? std::numbers::sqrt2 / 2.0 : 1.0;
    const double x = corner * symbol.halfLength;
    const double y = corner * symbol.halfWidth;
    layer.elements.emplace_back(Polyline{{symbol.At(-x, -y), symbol.At(x, y)}, false, fine});
    layer.elements.emplace_back(Polyline{{symbol.At(-x, y), symbol.At(x, -y)}, false, fine});
    const double head = symbol.halfLength + 1.1;
    layer.elements.emplace_back(
        Area{{{symbol.At(head, 0.0), symbol.At(head - 1.1, 0.55), symbol.At(head - 1.1, -0.55)}},
             Black,
             0.0});
}

Drawing::Box LuminaireBox(const PlanSheet& sheet, const PlanLuminaire& luminaire) {
    const Symbol symbol = SymbolOf(sheet, luminaire);
    Drawing::Box box{symbol.center.x, symbol.center.y, symbol.center.x, symbol.center.y};
    for (const Point& point : Outline(symbol, luminaire.round)) {
        box.left = std::min(box.left, point.x);
        box.right = std::max(box.right, point.x);
        box.bottom = std::min(box.bottom, point.y);
        box.top = std::max(box.top, point.y);
    }
    return box;
}

void AppendScaleBar(Drawing::Layer& layer, const PlanSheet& sheet, Drawing::Point corner) {
    constexpr int fields = 4;
    constexpr double barHeight = 1.2;
    const double unit = NiceLength(10.0 * sheet.scale / 1000.0);
    const double width = PaperLength(sheet, unit);
    for (int k = 0; k < fields; ++k) {
        const double left = corner.x + k * width;
        const std::vector<Point> field = {{left, corner.y},
                                          {left + width, corner.y},
                                          {left + width, corner.y + barHeight},
                                          {left, corner.y + barHeight}};
        layer.elements.emplace_back(Area{{field}, k % 2 == 0 ? Black : White, 0.0});
        layer.elements.emplace_back(Polyline{field, true, {0.13, Black, {}}});
    }
    for (int k = 0; k <= fields; k += 2) {
        Drawing::TextRun text = SheetText(ShortDecimal(k * unit) + (k == fields ? " m" : ""),
                                          corner.x + k * width, corner.y + barHeight + 1.0, 1.8);
        text.horizontal = Drawing::HorizontalAnchor::Center;
        layer.elements.emplace_back(text);
    }
    layer.elements.emplace_back(SheetText("Escala " + FormatScale(sheet.scale),
                                          corner.x + fields * width + 8.0, corner.y, 2.4,
                                          Drawing::TextWeight::Bold));
}

std::string FormatScale(double scale) {
    return "1:" + ShortDecimal(scale);
}

} // namespace Merivane::Document
