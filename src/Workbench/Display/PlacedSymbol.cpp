#include "Workbench/Display/PlacedSymbol.hpp"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <numbers>
#include <string>
#include <utility>
#include <variant>

#include "Workbench/Display/DrawnElements.hpp"
#include "Workbench/Display/FilledRings.hpp"
#include "Workbench/Display/PenLook.hpp"
#include "Workbench/Display/TextBlock.hpp"

namespace Merivane::Workbench {

namespace {

constexpr double Radian = std::numbers::pi / 180.0;
constexpr double HalfTurn = 180.0;             // [degrees]
constexpr std::int32_t LeftTopAnchor = 1;      // of texts in scripts
constexpr std::int32_t RightBottomAnchor = 9;  // of texts in scripts
constexpr std::int32_t UnsortedDrawIndex = 30; // of shapes that ask for none
constexpr std::int32_t BoldFace = 1;

std::vector<Host::TextParagraph> ParagraphsOf(const PlanText& text, const Host::TextData& data) {
    std::vector<Host::TextParagraph> paragraphs(1);
    for (const char letter : text.text) {
        if (letter == '\n') {
            paragraphs.emplace_back();
        } else {
            paragraphs.back().text.push_back(letter);
        }
    }
    for (Host::TextParagraph& paragraph : paragraphs) {
        const auto count = static_cast<std::int32_t>(paragraph.text.size()); // at least its letters
        paragraph.stretches = {{count, data.pen, data.size, data.bold}};
    }
    return paragraphs;
}

struct ShapeDrawer {
    const Project& project;
    const SymbolPlace& place;
    PaperDrawing& drawing;
    std::vector<Drawing::Element>& elements;

    Drawing::Point OnPaper(const Host::Coordinate& local) const {
        const double x = place.mirrored ? -local.x : local.x;
        const double cosine = std::cos(place.angle);
        const double sine = std::sin(place.angle);
        return PaperPoint(drawing, {place.position.x + cosine * x - sine * local.y,
                                    place.position.y + sine * x + cosine * local.y});
    }

    Drawing::Stroke StrokeOfLook(const PlanLook& look) const {
        return StrokeOf(project, look.pen, {look.lineType});
    }

    /// The direction on the paper of one in the part [rad].
    double Turned(double degrees) const {
        return (place.mirrored ? HalfTurn - degrees : degrees) * Radian + place.angle;
    }

    void operator()(const PlanLine& line) const {
        elements.emplace_back(Drawing::Polyline{
            {OnPaper(line.begin), OnPaper(line.end)}, false, StrokeOfLook(line.look)});
    }

    void operator()(const PlanArc& arc) const {
        Drawing::Arc drawn;
        drawn.center = OnPaper(arc.center);
        drawn.radius = arc.radius * MillimetresPerMetre(drawing);
        drawn.stroke = StrokeOfLook(arc.look);
        if (!arc.whole) {
            // A mirror turns the arc around: its end comes first.
            drawn.start = Turned(place.mirrored ? arc.end : arc.begin);
            drawn.end = drawn.start + (arc.end - arc.begin) * Radian;
        }
        elements.emplace_back(std::move(drawn));
    }

    std::vector<std::vector<Drawing::Point>> Rings(const PlanPolygon& polygon) const {
        std::vector<std::vector<Drawing::Point>> rings;
        for (const PlanRingShape& ring : polygon.rings) {
            std::vector<Drawing::Point>& points = rings.emplace_back();
            for (const Host::Coordinate& vertex : ring.vertices) {
                points.push_back(OnPaper(vertex));
            }
        }
        return rings;
    }

    void AddFill(const PlanPolygon& polygon,
                 const std::vector<std::vector<Drawing::Point>>& rings) const {
        if (polygon.backgroundPen != 0) {
            elements.emplace_back(Drawing::Area{
                rings,
                polygon.backgroundPen > 0 ? LookOfPen(polygon.backgroundPen).color : Drawing::White,
                0.0});
        }
        if (polygon.look.fill > 0) {
            const std::int32_t pen = polygon.fillPen > 0 ? polygon.fillPen : polygon.look.pen;
            AddFilledRings(project, {polygon.look.fill}, LookOfPen(pen).color, rings, elements);
        }
    }

    // Edges that follow one another visibly are one line, so that their corners close.
    void AddOutline(const PlanRingShape& ring, bool closed,
                    const std::vector<Drawing::Point>& points,
                    const Drawing::Stroke& stroke) const {
        const std::size_t count = points.size();
        const auto isVisible = [&](std::size_t edge) {
            return edge >= ring.visible.size() || ring.visible[edge];
        };
        const std::size_t edges = closed ? count : count - 1;
        bool all = true;
        for (std::size_t edge = 0; edge < edges; ++edge) {
            all = all && isVisible(edge);
        }
        if (all) {
            elements.emplace_back(Drawing::Polyline{points, closed, stroke});
            return;
        }
        for (std::size_t edge = 0; edge < edges; ++edge) {
            if (isVisible(edge)) {
                elements.emplace_back(
                    Drawing::Polyline{{points[edge], points[(edge + 1) % count]}, false, stroke});
            }
        }
    }

    void operator()(const PlanPolygon& polygon) const {
        const std::vector<std::vector<Drawing::Point>> rings = Rings(polygon);
        if (polygon.filled) {
            AddFill(polygon, rings);
        }
        for (std::size_t i = 0; polygon.outlined && i < rings.size(); ++i) {
            if (rings[i].size() > 1) {
                AddOutline(polygon.rings[i], polygon.closed, rings[i], StrokeOfLook(polygon.look));
            }
        }
    }

    void operator()(const PlanText& text) const {
        Host::TextData data;
        data.angle = text.angle * Radian + place.angle;
        data.anchor = static_cast<Host::TextAnchor>(
            std::clamp(text.anchor, LeftTopAnchor, RightBottomAnchor) - LeftTopAnchor);
        data.size = text.size;
        data.pen = text.look.pen;
        data.bold = (text.face & BoldFace) != 0;
        const std::vector<Host::TextParagraph> paragraphs = ParagraphsOf(text, data);
        for (Drawing::TextRun& run : LayOutText(data, paragraphs, OnPaper(text.position))) {
            drawing.texts.emplace_back(std::move(run));
        }
    }

    template <typename Other> void operator()(const Other& /*shape*/) const {}
};

std::int32_t DrawIndexOf(const PlanShape& shape) {
    return std::visit(
        [](const auto& record) {
            std::int32_t index = 0;
            if constexpr (requires { record.look; }) {
                index = record.look.drawIndex;
            }
            return index > 0 ? index : UnsortedDrawIndex;
        },
        shape);
}

} // namespace

SymbolPlace PlaceOfObject(const Host::ObjectData& object) {
    return {object.position, object.angle, object.mirrored};
}

void AddPlacedSymbol(const Project& project, const PlanSymbolDrawing& symbol,
                     const SymbolPlace& place, PaperDrawing& drawing,
                     std::vector<Drawing::Element>& elements) {
    std::vector<const PlanShape*> order;
    for (const PlanShape& shape : symbol.shapes) {
        order.push_back(&shape);
    }
    std::stable_sort(order.begin(), order.end(), [](const PlanShape* a, const PlanShape* b) {
        return DrawIndexOf(*a) < DrawIndexOf(*b);
    });
    const ShapeDrawer drawer{project, place, drawing, elements};
    for (const PlanShape* shape : order) {
        std::visit(drawer, *shape);
    }
}

} // namespace Merivane::Workbench
