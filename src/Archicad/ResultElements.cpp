#include "Archicad/ResultElements.hpp"

#include <algorithm>
#include <utility>

namespace Merivane::Archicad {

namespace {

using Host::AttributeIndex;
using Host::ElementType;
using Simulation::Point2D;

bool Create(ResultSheet& sheet, ElementType type, AttributeIndex layer, Host::ElementData data,
            const Host::ElementMemo& memo) {
    Host::Element element;
    element.header.type = type;
    element.header.floorIndex = sheet.floorIndex;
    element.header.layer = layer;
    element.data = std::move(data);
    const bool made = Host::CreateElement(element, memo) == Host::NoError;
    sheet.refused += made ? 0 : 1;
    return made;
}

Host::Contour ContourOf(const std::vector<Point2D>& points) {
    Host::Contour contour;
    contour.vertices.reserve(points.size());
    for (const Point2D& point : points) {
        contour.vertices.push_back({point.x, point.y});
    }
    return contour;
}

// Every byte of UTF-8 but those that go on a character begins one.
std::int32_t CountCharacters(const std::string& text) {
    return static_cast<std::int32_t>(std::count_if(text.begin(), text.end(), [](char byte) {
        return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U;
    }));
}

std::int32_t PenOf(Simulation::SummaryInk ink) {
    switch (ink) {
    case Simulation::SummaryInk::Met:
        return MetPen;
    case Simulation::SummaryInk::NotMet:
        return NotMetPen;
    default:
        return ResultPen;
    }
}

Host::TextParagraph ParagraphOf(const Simulation::SummaryParagraph& source) {
    Host::TextParagraph paragraph;
    paragraph.tabs = source.tabs;
    for (const Simulation::SummaryText& text : source.texts) {
        if (!text.text.empty()) {
            paragraph.text += text.text;
            paragraph.stretches.push_back(
                {CountCharacters(text.text), PenOf(text.ink), text.height, text.bold});
        }
    }
    if (paragraph.stretches.empty()) {
        paragraph.stretches.push_back({0, ResultPen, source.blankHeight, false});
    }
    return paragraph;
}

} // namespace

bool DrawFill(ResultSheet& sheet, AttributeIndex layer, AttributeIndex solidFill,
              const Simulation::RgbColor& color, const Simulation::Polygon2D& area) {
    Host::HatchData hatch;
    hatch.fill = solidFill;
    hatch.foreground = {color.red, color.green, color.blue};
    hatch.hasForeground = true;
    hatch.fillPen = ResultPen;
    Host::ElementMemo memo;
    memo.polygon.push_back(ContourOf(area.outer));
    for (const std::vector<Point2D>& hole : area.holes) {
        memo.polygon.push_back(ContourOf(hole));
    }
    return Create(sheet, ElementType::Hatch, layer, hatch, memo);
}

bool DrawCurve(ResultSheet& sheet, AttributeIndex layer, AttributeIndex lineType,
               const Simulation::IsoCurve& curve) {
    Host::ElementMemo memo;
    memo.polygon.push_back(ContourOf(curve.points));
    std::vector<Host::Coordinate>& vertices = memo.polygon.front().vertices;
    if (curve.closed && vertices.size() > 1 && vertices.front() == vertices.back()) {
        vertices.pop_back(); // the host closes it
    }
    return Create(sheet, ElementType::PolyLine, layer,
                  Host::PolyLineData{curve.closed, ResultPen, lineType}, memo);
}

bool DrawText(ResultSheet& sheet, AttributeIndex layer, const PlacedText& text) {
    Host::TextData data;
    data.position = {text.position.x, text.position.y};
    data.anchor = text.anchor;
    data.size = text.height;
    data.opaque = text.opaque;
    data.pen = ResultPen;
    Host::ElementMemo memo;
    memo.paragraphs.push_back(ParagraphOf({{{text.text, text.height}}, {}}));
    return Create(sheet, ElementType::Text, layer, data, memo);
}

bool DrawSummary(ResultSheet& sheet, AttributeIndex layer, Point2D corner,
                 const std::vector<Simulation::SummaryParagraph>& paragraphs) {
    Host::TextData data;
    data.position = {corner.x, corner.y};
    data.anchor = Host::TextAnchor::LeftTop;
    data.size = Simulation::SummaryText().height;
    data.pen = ResultPen;
    data.width = Simulation::MeasureSummary(paragraphs).width; // longer lines are broken there
    Host::ElementMemo memo;
    for (const Simulation::SummaryParagraph& paragraph : paragraphs) {
        memo.paragraphs.push_back(ParagraphOf(paragraph));
    }
    return Create(sheet, ElementType::Text, layer, data, memo);
}

} // namespace Merivane::Archicad
