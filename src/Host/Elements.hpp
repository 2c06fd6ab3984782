#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "Host/LibraryParameter.hpp"
#include "Host/Types.hpp"

/// The elements of the open project. Defined by whichever host is linked; nothing throws. Called on
/// the main thread only. What an element consists of is kept apart as in the host: the element
/// itself, and its memo (polygon, parameters, text, body), which is read only when asked for.
namespace Merivane::Host {

/// The host's own type numbers.
enum class ElementType : std::int32_t {
    Any = 0,
    Wall = 1,
    Column = 2,
    Beam = 3,
    Window = 4,
    Door = 5,
    Object = 6,
    Lamp = 7,
    Slab = 8,
    Roof = 9,
    Mesh = 10,
    Dimension = 11,
    Text = 15,
    Label = 16,
    Zone = 17,
    Hatch = 18,
    Line = 19,
    PolyLine = 20,
    Arc = 21,
    Circle = 22,
    Spline = 23,
    Hotspot = 24,
    CutPlane = 25, ///< a section
    SectionElement = 29,
    Elevation = 33,
    InteriorElevation = 34,
    CurtainWall = 37,
    CurtainWallFrame = 39,
    CurtainWallPanel = 40,
    Shell = 43,
    Skylight = 44,
    Morph = 45,
    Stair = 47,
    Riser = 48,
    Tread = 49,
    StairStructure = 50,
    Railing = 51,
    RailingPart = 52,
    BeamSegment = 70,
    ColumnSegment = 71,
};

/// What every element has.
struct ElementHeader {
    ElementType type = ElementType::Any;
    Guid guid;                   ///< given by the host at creation
    std::int16_t floorIndex = 0; ///< story
    AttributeIndex layer;
    std::uint64_t stamp = 0; ///< changes with every change of the element
    Guid group;              ///< none outside a group
    bool locked = false;     ///< by the user, not by its layer

    bool operator==(const ElementHeader&) const = default;
};

/// An object or a lamp: a library part as placed. Local coordinates are mirrored (x to -x), turned,
/// then moved to `position` at the height of the story plus `level`.
struct ObjectData {
    std::int32_t libraryIndex = 0; ///< of the part, in this session
    Coordinate position;           ///< [m]
    double level = 0.0;            ///< above its story [m]
    double angle = 0.0;            ///< counter-clockwise [rad]
    bool mirrored = false;
    double sizeA = 1.0; ///< parameters A and B of the part [m]
    double sizeB = 1.0;

    bool operator==(const ObjectData&) const = default;
};

/// A Zone; its polygon stands in the memo.
struct ZoneData {
    std::string name;         ///< UTF-8
    std::string number;       ///< UTF-8
    double baseLevel = 0.0;   ///< above its story [m]
    double height = 0.0;      ///< [m]
    Coordinate stampPosition; ///< [m]

    bool operator==(const ZoneData&) const = default;
};

/// Pens are numbers of the pen table; line types of 0 are the solid line.
struct LineData {
    Coordinate begin;
    Coordinate end;
    std::int32_t pen = 1;
    AttributeIndex lineType;

    bool operator==(const LineData&) const = default;
};

/// Open or closed, its vertices and arcs stand in the memo's polygon, one contour.
struct PolyLineData {
    bool closed = false;
    std::int32_t pen = 1;
    AttributeIndex lineType;

    bool operator==(const PolyLineData&) const = default;
};

/// An arc or a whole circle.
struct ArcData {
    Coordinate center;
    double radius = 0.0; ///< [m]
    double begin = 0.0;  ///< [rad], counter-clockwise from x
    double end = 0.0;    ///< [rad]
    bool whole = false;
    std::int32_t pen = 1;
    AttributeIndex lineType;

    bool operator==(const ArcData&) const = default;
};

/// A spline; its points and their directions stand in the memo.
struct SplineData {
    bool closed = false;
    std::int32_t pen = 1;
    AttributeIndex lineType;

    bool operator==(const SplineData&) const = default;
};

/// A fill; its polygon stands in the memo.
struct HatchData {
    AttributeIndex fill;
    Colour foreground;
    bool hasForeground = false;  ///< else the fill's pen gives the colour
    std::int32_t contourPen = 0; ///< 0 = no contour
    std::int32_t fillPen = 1;

    bool operator==(const HatchData&) const = default;
};

/// Which point of a text stands at its position: column (left, middle, right) plus 3 x row (top,
/// middle, bottom), the host's own numbers.
enum class TextAnchor : std::int32_t {
    LeftTop = 0,
    MiddleTop = 1,
    RightTop = 2,
    LeftMiddle = 3,
    Middle = 4,
    RightMiddle = 5,
    LeftBottom = 6,
    MiddleBottom = 7,
    RightBottom = 8,
};

/// A text; its characters and paragraphs stand in the memo.
struct TextData {
    Coordinate position;
    double angle = 0.0; ///< [rad]
    TextAnchor anchor = TextAnchor::LeftBottom;
    double size = 2.0; ///< height of capitals on paper [mm]
    std::int32_t pen = 1;
    bool bold = false;
    double width = 0.0;  ///< of the text's box on paper [mm]; 0 = as wide as its longest line
    bool opaque = false; ///< on a white ground, so that what lies below does not run through it

    bool operator==(const TextData&) const = default;
};

/// A Morph; its body stands in the memo.
struct MorphData {
    AttributeIndex surface; ///< of faces without one of their own
    double level = 0.0;     ///< added to the body's heights [m]

    bool operator==(const MorphData&) const = default;
};

/// An element of a section or elevation window that shows one of the model.
struct SectionElementData {
    Guid parent; ///< the element of the model

    bool operator==(const SectionElementData&) const = default;
};

/// Elements whose own data the add-on never reads (walls, slabs, ...) have none here.
using ElementData =
    std::variant<std::monostate, ObjectData, ZoneData, LineData, PolyLineData, ArcData, SplineData,
                 HatchData, TextData, MorphData, SectionElementData>;

struct Element {
    ElementHeader header;
    ElementData data;

    bool operator==(const Element&) const = default;
};

/// Parts of a memo that are read or changed.
enum class MemoParts : std::uint32_t { Polygon = 1, Parameters = 2, Text = 4, Body = 8, All = 15 };

/// An arc of a contour: the side from vertex `from` to the next one bends by `angle` [rad],
/// positive where the arc lies to the right of its chord.
struct PolygonArc {
    std::size_t from = 0;
    double angle = 0.0;

    bool operator==(const PolygonArc&) const = default;
};

/// One ring; the closing vertex is not repeated.
struct Contour {
    std::vector<Coordinate> vertices; ///< [m]
    std::vector<PolygonArc> arcs;

    bool operator==(const Contour&) const = default;
};

/// The first contour is the outline, every other one a hole.
using Polygon = std::vector<Contour>;

/// Letters of one look in a paragraph; counts are characters, not bytes.
struct TextStretch {
    std::int32_t count = 0;
    std::int32_t pen = 1;
    double size = 2.0; ///< [mm] on paper
    bool bold = false;

    bool operator==(const TextStretch&) const = default;
};

/// One paragraph of a text; together its stretches cover it.
struct TextParagraph {
    std::string text; ///< UTF-8, without line ends
    std::vector<TextStretch> stretches;
    std::vector<double> tabs; ///< places of left tabs from the paragraph's left [mm] on paper

    bool operator==(const TextParagraph&) const = default;
};

/// Direction of a spline at one of its points.
struct SplineDirection {
    double lengthBefore = 0.0; ///< [m]
    double lengthAfter = 0.0;  ///< [m]
    double angle = 0.0;        ///< [rad]

    bool operator==(const SplineDirection&) const = default;
};

/// The faces of a Morph, vertices shared between them.
struct MorphBody {
    struct Face {
        std::vector<std::vector<std::int32_t>> contours; ///< vertices, counter-clockwise from
                                                         ///< outside; holes clockwise
        AttributeIndex surface;                          ///< 0 = the Morph's own

        bool operator==(const Face&) const = default;
    };
    std::vector<Coordinate3D> vertices; ///< [m]
    std::vector<Face> faces;

    bool operator==(const MorphBody&) const = default;
};

/// What hangs on an element beside its own record.
struct ElementMemo {
    Polygon polygon;                          ///< Zone, hatch, polyline
    std::vector<LibraryParameter> parameters; ///< object, lamp: all of the part's, in its order
    std::vector<TextParagraph> paragraphs;    ///< text
    std::vector<Coordinate> splinePoints;     ///< spline [m]
    std::vector<SplineDirection> splineDirections;
    MorphBody body; ///< Morph

    bool operator==(const ElementMemo&) const = default;
};

/// Which elements a list holds.
enum class ElementFilter : std::uint32_t {
    None = 0,
    Editable = 1, ///< layer neither hidden nor locked, element not locked
    OnVisibleLayer = 2,
    OnActiveFloor = 4,
    In3D = 8, ///< seen in 3D: on a visible layer
};

/// The elements of one type (`Any` for all) in the current database, in their order of creation.
/// Read-only. BadDatabase where that database has no elements (the 3D window). A section, elevation
/// or interior elevation is empty until its window was in front once in the session. Parts
/// (segments, frames, panels) are listed by their own type, never by `Any`.
ErrorCode ListElements(ElementType type, ElementFilter filter, std::vector<Guid>& guids);

/// Reads an element of any database. BadId when there is none; `element` is then as it was.
ErrorCode GetElement(const Guid& guid, Element& element);

/// Reads parts of an element's memo; the others are left empty. BadId.
ErrorCode GetMemo(const Guid& guid, MemoParts parts, ElementMemo& memo);

/// Extent of an element [m]; of drawn elements the heights are 0. BadId; GeneralError for one that
/// takes no room, such as a part without geometry.
ErrorCode GetBounds(const Guid& guid, Coordinate3D& lowest, Coordinate3D& highest);

/// The elements of which one is made: segments of columns and beams, frames and panels of curtain
/// walls, parts of stairs and railings. Empty for any other. BadId.
ErrorCode ListParts(const Guid& guid, std::vector<Guid>& parts);

/// The windows and doors of a wall, the skylights of a roof. BadId.
ErrorCode ListOpenings(const Guid& guid, std::vector<Guid>& openings);

/// What is selected. NoSelection when nothing is, with `guids` empty.
ErrorCode GetSelection(std::vector<Guid>& guids);

/// Selects these elements instead of what was selected; none to deselect all. BadId.
ErrorCode SetSelection(const std::vector<Guid>& guids);

/// Runs `change` as one step that the user can undo under `name`. Every operation below that
/// changes elements needs one. Returns what `change` returned; anything but NoError takes back all
/// that it did to elements, never to attributes. RefusedCommand inside another step; CommandFailed
/// when `change` throws; NothingToUndo when it succeeded and touched no element.
ErrorCode CallUndoable(std::string_view name, const std::function<ErrorCode()>& change);

/// Creates an element in the current database; its guid and stamp come back in `element.header`.
/// NeedsUndoScope; HiddenLayer, LockedLayer, NoSuchLayer; InvalidStory; BadPolygon,
/// IrregularPolygon; BadIndex (part, attribute); BadParagraphs; RefusedParameters for what the
/// current database cannot hold (a section or worksheet holds drawn elements only) and for a lamp's
/// part on an object or the other way round; BadDatabase for a section that was never in front;
/// BadParameters for numbers that make no sense, a record of another type, and a parameter of
/// another type than its part's; NotSupported for types without a record here (walls, slabs).
/// Parameters are known by name; those that the part lacks are passed over, those not given have
/// the part's values. Group and lock of `element.header` do not count, and outside the floor plan
/// the story does not.
ErrorCode CreateElement(Element& element, const ElementMemo& memo);

/// Replaces an element's own record and the given parts of its memo; of the header its layer and
/// story alone. Codes as for `CreateElement`; BadId; BadParameters for another type; NotEditable
/// for a locked element, a part of another one and what a section shows; BadPolygon for another
/// number of vertices; RefusedParameters for another shape of a spline, and for a text's angle,
/// anchor or look: delete and create anew. Parameters of another library part that are not given
/// keep the values that fit.
ErrorCode ChangeElement(const Element& element, const ElementMemo& memo, MemoParts parts);

/// Deletes all of these elements or, on any failure, none; a wall with its windows and doors.
/// NeedsUndoScope; BadId; HiddenLayer, LockedLayer; NotEditable for a locked element, a part of
/// another one and what a section shows; RefusedParameters for the marker of a section.
ErrorCode DeleteElements(const std::vector<Guid>& guids);

} // namespace Merivane::Host
