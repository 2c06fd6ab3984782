#include "Workbench/Project/ElementRules.hpp"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <initializer_list>
#include <string_view>
#include <variant>

#include "Text/Utf8.hpp"
#include "Workbench/Project/MorphRules.hpp"
#include "Workbench/Project/ParagraphRules.hpp"
#include "Workbench/Project/PenTable.hpp"
#include "Workbench/Project/PolygonRules.hpp"
#include "Workbench/Project/TextLimits.hpp"

namespace Merivane::Workbench {

namespace {

using Host::Coordinate;
using Host::ElementFilter;
using Host::ElementMemo;
using Host::ElementType;
using Host::ErrorCode;
using Host::MemoParts;

bool IsOneOf(ElementType type, std::initializer_list<ElementType> types) {
    return std::find(types.begin(), types.end(), type) != types.end();
}

bool AreFinite(std::initializer_list<double> numbers) {
    return std::all_of(numbers.begin(), numbers.end(),
                       [](double number) { return std::isfinite(number); });
}

bool AreFinite(const Coordinate& place) {
    return AreFinite({place.x, place.y});
}

bool IsLineType(const Project& project, Host::AttributeIndex index) {
    return index.value == 0 || project.lineTypes.contains(index.value);
}

bool IsName(std::string_view text, std::size_t longest) {
    return Text::IsUtf8(text) && CountUtf16(text) <= longest &&
           text.find('\0') == std::string_view::npos;
}

ErrorCode CheckLineLook(const Project& project, std::int32_t pen, Host::AttributeIndex lineType) {
    return IsPen(pen) && IsLineType(project, lineType) ? Host::NoError : Host::BadIndex;
}

// One function for each kind of record, chosen by the variant.
struct DataCheck {
    const Project& project;
    ElementType type;

    ErrorCode operator()(const std::monostate&) const { return Host::NoError; }

    ErrorCode operator()(const Host::ObjectData& data) const {
        if (!AreFinite(data.position) ||
            !AreFinite({data.level, data.angle, data.sizeA, data.sizeB}) || data.sizeA < 0.0 ||
            data.sizeB < 0.0) {
            return Host::BadParameters;
        }
        const std::int64_t place = std::int64_t{data.libraryIndex} - 1;
        if (place < 0 || place >= static_cast<std::int64_t>(project.parts.size())) {
            return Host::BadIndex;
        }
        const bool isLamp = project.parts[static_cast<std::size_t>(place)].isLamp;
        return isLamp == (type == ElementType::Lamp) ? Host::NoError : Host::RefusedParameters;
    }

    ErrorCode operator()(const Host::ZoneData& data) const {
        const bool good = IsName(data.name, LongestText) &&
                          IsName(data.number, LongestZoneNumber) &&
                          AreFinite({data.baseLevel, data.height}) && data.height > 0.0 &&
                          AreFinite(data.stampPosition);
        return good ? Host::NoError : Host::BadParameters;
    }

    ErrorCode operator()(const Host::LineData& data) const {
        if (!AreFinite(data.begin) || !AreFinite(data.end) || data.begin == data.end) {
            return Host::BadParameters;
        }
        return CheckLineLook(project, data.pen, data.lineType);
    }

    ErrorCode operator()(const Host::PolyLineData& data) const {
        return CheckLineLook(project, data.pen, data.lineType);
    }

    ErrorCode operator()(const Host::ArcData& data) const {
        const bool good = AreFinite(data.center) &&
                          AreFinite({data.radius, data.begin, data.end}) && data.radius > 0.0 &&
                          (data.whole || data.begin != data.end) &&
                          (data.whole || type == ElementType::Arc);
        return good ? CheckLineLook(project, data.pen, data.lineType) : Host::BadParameters;
    }

    ErrorCode operator()(const Host::SplineData& data) const {
        return CheckLineLook(project, data.pen, data.lineType);
    }

    ErrorCode operator()(const Host::HatchData& data) const {
        for (const double channel :
             {data.foreground.red, data.foreground.green, data.foreground.blue}) {
            if (!(channel >= 0.0 && channel <= 1.0)) {
                return Host::BadParameters;
            }
        }
        const bool good = project.fills.contains(data.fill.value) && IsPen(data.fillPen) &&
                          (data.contourPen == 0 || IsPen(data.contourPen));
        return good ? Host::NoError : Host::BadIndex;
    }

    ErrorCode operator()(const Host::TextData& data) const {
        const auto anchor = static_cast<std::int32_t>(data.anchor);
        const bool good = AreFinite(data.position) &&
                          AreFinite({data.angle, data.size, data.width}) && data.size > 0.0 &&
                          data.width >= 0.0 && anchor >= 0 && anchor <= 8;
        if (!good) {
            return Host::BadParameters;
        }
        return IsPen(data.pen) ? Host::NoError : Host::BadIndex;
    }

    ErrorCode operator()(const Host::MorphData& data) const {
        if (!AreFinite({data.level})) {
            return Host::BadParameters;
        }
        return project.surfaces.contains(data.surface.value) ? Host::NoError : Host::BadIndex;
    }

    ErrorCode operator()(const Host::SectionElementData&) const { return Host::NoError; }
};

bool IsRecordOf(ElementType type, const Host::ElementData& data) {
    switch (type) {
    case ElementType::Object:
    case ElementType::Lamp:
        return std::holds_alternative<Host::ObjectData>(data);
    case ElementType::Zone:
        return std::holds_alternative<Host::ZoneData>(data);
    case ElementType::Line:
        return std::holds_alternative<Host::LineData>(data);
    case ElementType::PolyLine:
        return std::holds_alternative<Host::PolyLineData>(data);
    case ElementType::Arc:
    case ElementType::Circle:
        return std::holds_alternative<Host::ArcData>(data);
    case ElementType::Spline:
        return std::holds_alternative<Host::SplineData>(data);
    case ElementType::Hatch:
        return std::holds_alternative<Host::HatchData>(data);
    case ElementType::Text:
        return std::holds_alternative<Host::TextData>(data);
    case ElementType::Morph:
        return std::holds_alternative<Host::MorphData>(data);
    case ElementType::SectionElement:
        return std::holds_alternative<Host::SectionElementData>(data);
    default:
        return std::holds_alternative<std::monostate>(data);
    }
}

ErrorCode CheckSpline(const ElementMemo& memo, bool closed) {
    const auto& points = memo.splinePoints;
    const auto isGood = [](const Host::SplineDirection& direction) {
        return AreFinite({direction.lengthBefore, direction.lengthAfter, direction.angle}) &&
               direction.lengthBefore >= 0.0 && direction.lengthAfter >= 0.0;
    };
    const bool good =
        points.size() >= 2 && memo.splineDirections.size() == points.size() &&
        std::all_of(points.begin(), points.end(),
                    [](const Coordinate& point) { return AreFinite(point); }) &&
        std::all_of(memo.splineDirections.begin(), memo.splineDirections.end(), isGood) &&
        !(closed && points.front() == points.back());
    return good ? Host::NoError : Host::BadPolygon;
}

bool HasBit(ElementFilter filter, ElementFilter bit) {
    return (static_cast<std::uint32_t>(filter) & static_cast<std::uint32_t>(bit)) != 0;
}

} // namespace

bool IsDrawnType(ElementType type) {
    return IsOneOf(type,
                   {ElementType::Dimension, ElementType::Text, ElementType::Label,
                    ElementType::Hatch, ElementType::Line, ElementType::PolyLine, ElementType::Arc,
                    ElementType::Circle, ElementType::Spline, ElementType::Hotspot});
}

bool IsPartType(ElementType type) {
    return IsOneOf(type, {ElementType::CurtainWallFrame, ElementType::CurtainWallPanel,
                          ElementType::Riser, ElementType::Tread, ElementType::StairStructure,
                          ElementType::RailingPart, ElementType::BeamSegment,
                          ElementType::ColumnSegment});
}

bool HoldsElements(Host::WindowType type) {
    return type != Host::WindowType::Model3D;
}

ErrorCode CheckLayer(const Project& project, Host::AttributeIndex layer) {
    const auto found = project.layers.find(layer.value);
    if (found == project.layers.end()) {
        return Host::NoSuchLayer;
    }
    if (found->second.hidden) {
        return Host::HiddenLayer;
    }
    return found->second.locked ? Host::LockedLayer : Host::NoError;
}

ErrorCode CheckStory(const Project& project, std::int16_t floorIndex) {
    const bool known =
        std::any_of(project.stories.begin(), project.stories.end(),
                    [floorIndex](const Host::Story& story) { return story.index == floorIndex; });
    return known ? Host::NoError : Host::InvalidStory;
}

ErrorCode CheckPlace(ElementType type, Host::WindowType window) {
    const bool isDrawn = IsOneOf(type, {ElementType::Text, ElementType::Hatch, ElementType::Line,
                                        ElementType::PolyLine, ElementType::Arc,
                                        ElementType::Circle, ElementType::Spline});
    if (!isDrawn && !IsOneOf(type, {ElementType::Object, ElementType::Lamp, ElementType::Zone,
                                    ElementType::Morph})) {
        return Host::NotSupported;
    }
    const bool fits = isDrawn ? HoldsElements(window) : window == Host::WindowType::FloorPlan;
    return fits ? Host::NoError : Host::RefusedParameters;
}

ErrorCode CheckElementData(const Project& project, const Host::Element& element) {
    const ElementType type = element.header.type;
    return IsRecordOf(type, element.data) ? std::visit(DataCheck{project, type}, element.data)
                                          : Host::BadParameters;
}

ErrorCode CheckMemo(const Project& project, const Host::Element& element, const ElementMemo& memo) {
    switch (element.header.type) {
    case ElementType::Zone:
    case ElementType::Hatch:
        return CheckPolygon(memo.polygon);
    case ElementType::PolyLine:
        return CheckPolyLine(memo.polygon, std::get<Host::PolyLineData>(element.data).closed);
    case ElementType::Spline:
        return CheckSpline(memo, std::get<Host::SplineData>(element.data).closed);
    case ElementType::Text:
        return CheckParagraphs(memo.paragraphs);
    case ElementType::Morph:
        return CheckMorphBody(project, memo.body);
    default:
        return Host::NoError;
    }
}

MemoParts MemoPartsOf(ElementType type) {
    switch (type) {
    case ElementType::Object:
    case ElementType::Lamp:
        return MemoParts::Parameters;
    case ElementType::Zone:
    case ElementType::Hatch:
    case ElementType::PolyLine:
    case ElementType::Spline:
        return MemoParts::Polygon;
    case ElementType::Text:
        return MemoParts::Text;
    case ElementType::Morph:
        return MemoParts::Body;
    default:
        return {};
    }
}

bool Holds(MemoParts parts, MemoParts part) {
    return (static_cast<std::uint32_t>(parts) & static_cast<std::uint32_t>(part)) != 0;
}

void CopyMemo(const ElementMemo& from, MemoParts parts, ElementMemo& to) {
    if (Holds(parts, MemoParts::Polygon)) {
        to.polygon = from.polygon;
        to.splinePoints = from.splinePoints;
        to.splineDirections = from.splineDirections;
    }
    if (Holds(parts, MemoParts::Parameters)) {
        to.parameters = from.parameters;
    }
    if (Holds(parts, MemoParts::Text)) {
        to.paragraphs = from.paragraphs;
    }
    if (Holds(parts, MemoParts::Body)) {
        to.body = from.body;
    }
}

void TakeMemo(ElementType type, const ElementMemo& from, ElementMemo& to) {
    const MemoParts own = MemoPartsOf(type);
    if (type == ElementType::Spline) {
        to.splinePoints = from.splinePoints;
        to.splineDirections = from.splineDirections;
    } else if (own == MemoParts::Polygon) {
        to.polygon = from.polygon;
    } else if (own != MemoParts::Parameters) {
        CopyMemo(from, own, to);
    }
}

bool IsTextChange(const Host::ElementData& before, const Host::ElementData& after) {
    const auto* const old = std::get_if<Host::TextData>(&before);
    const auto* const wanted = std::get_if<Host::TextData>(&after);
    if (!old || !wanted) {
        return true;
    }
    Host::TextData allowed = *old;
    allowed.position = wanted->position;
    allowed.width = wanted->width;
    return allowed == *wanted;
}

bool PassesFilter(const Project& project, const Host::ElementHeader& header, ElementFilter filter) {
    const auto layer = project.layers.find(header.layer.value);
    const bool visible = layer != project.layers.end() && !layer->second.hidden;
    const bool editable = visible && !layer->second.locked && !header.locked;
    const bool isFlat =
        IsDrawnType(header.type) ||
        IsOneOf(header.type, {ElementType::CutPlane, ElementType::Elevation,
                              ElementType::InteriorElevation, ElementType::SectionElement});
    return (!HasBit(filter, ElementFilter::Editable) || editable) &&
           (!HasBit(filter, ElementFilter::OnVisibleLayer) || visible) &&
           (!HasBit(filter, ElementFilter::OnActiveFloor) ||
            header.floorIndex == project.activeFloor) &&
           (!HasBit(filter, ElementFilter::In3D) || (visible && !isFlat));
}

} // namespace Merivane::Workbench
