#include "ContractSupport.hpp"

#include <utility>

namespace Merivane::Host {

namespace {

Sample OnFreeLayer(ElementType type, ElementData data) {
    Sample sample;
    sample.element.header.type = type;
    sample.element.header.layer = LayerNamed(FreeLayer);
    sample.element.data = std::move(data);
    return sample;
}

ObjectData PlacedPart(std::string_view name) {
    ObjectData data;
    data.libraryIndex = PartNamed(name);
    data.position = {2.0, 1.5};
    data.level = 2.6;
    data.sizeA = 1.2;
    data.sizeB = 0.3;
    return data;
}

} // namespace

AttributeIndex LayerNamed(std::string_view name) {
    AttributeIndex index;
    EXPECT_EQ(FindAttribute(AttributeType::Layer, name, index), NoError) << name;
    return index;
}

std::int32_t PartNamed(std::string_view name) {
    LibraryPart part;
    EXPECT_EQ(FindLibraryPart(name, part), NoError) << name;
    return part.index;
}

Contour Ring(std::vector<Coordinate> vertices) {
    return {std::move(vertices), {}};
}

Contour Square(double x, double y, double side) {
    return Ring({{x, y}, {x + side, y}, {x + side, y + side}, {x, y + side}});
}

Sample MakeLine() {
    return OnFreeLayer(ElementType::Line, LineData{{0.0, 0.0}, {3.0, 4.0}, 1, {}});
}

Sample MakePolyLine() {
    Sample sample = OnFreeLayer(ElementType::PolyLine, PolyLineData{});
    sample.memo.polygon = {Ring({{0.0, 0.0}, {1.0, 0.0}, {1.0, 1.0}})};
    return sample;
}

Sample MakeArc() {
    ArcData data;
    data.radius = 1.0;
    data.end = 1.5;
    return OnFreeLayer(ElementType::Arc, data);
}

Sample MakeSpline() {
    Sample sample = OnFreeLayer(ElementType::Spline, SplineData{});
    sample.memo.splinePoints = {{0.0, 0.0}, {1.0, 1.0}, {2.0, 0.0}};
    sample.memo.splineDirections = {{0.0, 0.5, 0.8}, {0.5, 0.5, 0.0}, {0.5, 0.0, -0.8}};
    return sample;
}

Sample MakeHatch() {
    HatchData data;
    std::vector<AttributeIndex> fills;
    EXPECT_EQ(ListAttributes(AttributeType::Fill, fills), NoError);
    data.fill = fills.empty() ? AttributeIndex() : fills.front();
    data.hasForeground = true;
    data.foreground = {1.0, 0.5, 0.0};
    Sample sample = OnFreeLayer(ElementType::Hatch, data);
    sample.memo.polygon = {Square(0.0, 0.0, 2.0)};
    return sample;
}

Sample MakeText() {
    Sample sample = OnFreeLayer(ElementType::Text, TextData{});
    sample.memo.paragraphs = {{"Em = 500 lx", {{11, 1, 2.0, false}}, {}},
                              {"média", {{2, 1, 2.0, true}, {3, 1, 2.0, false}}, {20.0, 40.0}}};
    return sample;
}

Sample MakeZone() {
    Sample sample = OnFreeLayer(ElementType::Zone, ZoneData{"Sala", "12", 0.0, 2.8, {1.0, 1.0}});
    sample.memo.polygon = {Square(0.0, 0.0, 4.0), Square(1.0, 1.0, 1.0)};
    return sample;
}

Sample MakeLamp() {
    return OnFreeLayer(ElementType::Lamp, PlacedPart(LampPart));
}

Sample MakeObject() {
    return OnFreeLayer(ElementType::Object, PlacedPart(ObjectPart));
}

Sample MakeMorph() {
    std::vector<AttributeIndex> surfaces;
    EXPECT_EQ(ListAttributes(AttributeType::Surface, surfaces), NoError);
    MorphData data;
    data.surface = surfaces.empty() ? AttributeIndex() : surfaces.front();
    Sample sample = OnFreeLayer(ElementType::Morph, data);
    sample.memo.body.vertices = {{0, 0, 0}, {1, 0, 0}, {0, 1, 0}, {0, 0, 1}};
    sample.memo.body.faces = {
        {{{0, 2, 1}}, {}}, {{{0, 1, 3}}, {}}, {{{1, 2, 3}}, {}}, {{{2, 0, 3}}, data.surface}};
    return sample;
}

std::vector<Sample> MakeDrawnSamples() {
    return {MakeLine(), MakePolyLine(), MakeArc(), MakeSpline(), MakeHatch(), MakeText()};
}

std::vector<Sample> MakeModelSamples() {
    return {MakeZone(), MakeLamp(), MakeObject(), MakeMorph()};
}

ErrorCode CreateInStep(Sample& sample) {
    return CallUndoable("Prova: criar",
                        [&sample] { return CreateElement(sample.element, sample.memo); });
}

Guid Created(Sample sample) {
    EXPECT_EQ(CreateInStep(sample), NoError);
    return sample.element.header.guid;
}

ErrorCode ChangeInStep(const Element& element, const ElementMemo& memo, MemoParts parts) {
    return CallUndoable("Prova: mudar", [&] { return ChangeElement(element, memo, parts); });
}

ErrorCode DeleteInStep(const std::vector<Guid>& guids) {
    return CallUndoable("Prova: apagar", [&guids] { return DeleteElements(guids); });
}

std::vector<Guid> Listed(ElementType type, ElementFilter filter) {
    std::vector<Guid> guids;
    EXPECT_EQ(ListElements(type, filter, guids), NoError);
    return guids;
}

Element Read(const Guid& guid) {
    Element element;
    EXPECT_EQ(GetElement(guid, element), NoError);
    return element;
}

bool Exists(const Guid& guid) {
    Element element;
    return GetElement(guid, element) == NoError;
}

Guid TheWall() {
    const std::vector<Guid> walls = Listed(ElementType::Wall);
    EXPECT_EQ(walls.size(), 1U);
    return walls.empty() ? Guid() : walls.front();
}

Guid TheLineOn(std::string_view layer) {
    for (const Guid& guid : Listed(ElementType::Line)) {
        if (Read(guid).header.layer == LayerNamed(layer)) {
            return guid;
        }
    }
    ADD_FAILURE() << layer;
    return {};
}

} // namespace Merivane::Host
