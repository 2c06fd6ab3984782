#include <limits>
#include <set>
#include <string>

#include "ContractSupport.hpp"

namespace Merivane::Host {
namespace {

class ElementsContract : public ProjectContract {};

constexpr double NoNumber = std::numeric_limits<double>::quiet_NaN();

TEST_F(ElementsContract, GivesEveryKindOfElementBackAsItWasCreated) {
    for (std::vector<Sample> samples : {MakeDrawnSamples(), MakeModelSamples()}) {
        for (Sample& sample : samples) {
            SCOPED_TRACE(static_cast<int>(sample.element.header.type));
            ASSERT_EQ(CreateInStep(sample), NoError);
            EXPECT_EQ(Read(sample.element.header.guid), sample.element);
            ElementMemo memo;
            ASSERT_EQ(GetMemo(sample.element.header.guid, MemoParts::All, memo), NoError);
            memo.parameters.clear(); // those of the part come along
            EXPECT_EQ(memo, sample.memo);
        }
    }
}

TEST_F(ElementsContract, GivesNewElementsAGuidOfTheirOwnAndALaterStamp) {
    Sample first = MakeLine();
    Sample second = MakeLine();
    ASSERT_EQ(CreateInStep(first), NoError);
    second.element.header.guid = first.element.header.guid; // what the caller says does not count
    ASSERT_EQ(CreateInStep(second), NoError);
    EXPECT_NE(first.element.header.guid, Guid());
    EXPECT_NE(second.element.header.guid, first.element.header.guid);
    EXPECT_GT(second.element.header.stamp, first.element.header.stamp);
}

TEST_F(ElementsContract, CreatesNeitherLockedNorGroupedElements) {
    Sample line = MakeLine();
    line.element.header.locked = true;
    line.element.header.group = TheWall();
    ASSERT_EQ(CreateInStep(line), NoError);
    EXPECT_FALSE(line.element.header.locked);
    EXPECT_EQ(line.element.header.group, Guid());
}

TEST_F(ElementsContract, ListsAnElementTypeInTheOrderOfCreation) {
    const Guid first = Created(MakeText());
    Created(MakeLamp());
    const Guid second = Created(MakeText());
    EXPECT_EQ(Listed(ElementType::Text), (std::vector<Guid>{first, second}));
    EXPECT_EQ(Listed(ElementType::Lamp).size(), 1U);
    EXPECT_EQ(Listed(ElementType::Morph).size(), 0U);
}

TEST_F(ElementsContract, ListsAllElementsButNoParts) {
    const std::size_t before = Listed(ElementType::Any).size();
    EXPECT_EQ(Listed(ElementType::ColumnSegment).size(), 2U);
    Created(MakeLine());
    EXPECT_EQ(Listed(ElementType::Any).size(), before + 1);
}

TEST_F(ElementsContract, ListsByLayerLockAndFloor) {
    Sample upstairs = MakeLine();
    upstairs.element.header.floorIndex = 1;
    Created(upstairs);
    Created(MakeLine());
    const auto count = [](ElementFilter filter) {
        return Listed(ElementType::Line, filter).size();
    };
    EXPECT_EQ(count(ElementFilter::None), 5U);
    EXPECT_EQ(count(ElementFilter::OnVisibleLayer), 4U); // one on the hidden layer
    EXPECT_EQ(count(ElementFilter::Editable), 2U);       // one locked, one on the locked layer
    EXPECT_EQ(count(ElementFilter::OnActiveFloor), 4U);
    const auto both =
        static_cast<ElementFilter>(static_cast<std::uint32_t>(ElementFilter::Editable) |
                                   static_cast<std::uint32_t>(ElementFilter::OnActiveFloor));
    EXPECT_EQ(count(both), 1U);
    EXPECT_EQ(count(ElementFilter::In3D), 0U);
    EXPECT_EQ(Listed(ElementType::Wall, ElementFilter::In3D).size(), 1U);
}

TEST_F(ElementsContract, ListsNothingInThe3DWindow) {
    Window window;
    window.type = WindowType::Model3D;
    ASSERT_EQ(ChangeWindow(window), NoError);
    std::vector<Guid> guids = {Guid()};
    EXPECT_EQ(ListElements(ElementType::Any, ElementFilter::None, guids), BadDatabase);
    EXPECT_EQ(guids.size(), 1U);
}

TEST_F(ElementsContract, ShowsASectionOnlyAfterItsWindowWasInFront) {
    ASSERT_EQ(ChangeCurrentDatabase(ContractSection()), NoError);
    EXPECT_TRUE(Listed(ElementType::SectionElement).empty());
    EXPECT_EQ(
        [] {
            Sample line = MakeLine();
            return CreateInStep(line);
        }(),
        BadDatabase);
    ASSERT_EQ(ChangeWindow(ContractSection()), NoError);
    ASSERT_EQ(ChangeWindow({}), NoError);
    const Guid wall = TheWall();
    ASSERT_EQ(ChangeCurrentDatabase(ContractSection()), NoError);
    const std::vector<Guid> shown = Listed(ElementType::SectionElement);
    ASSERT_EQ(shown.size(), 1U);
    EXPECT_EQ(std::get<SectionElementData>(Read(shown[0]).data).parent, wall);
}

TEST_F(ElementsContract, KeepsWhatIsDrawnInItsDatabase) {
    std::vector<Window> worksheets;
    ASSERT_EQ(ListWorksheets(worksheets), NoError);
    ASSERT_EQ(ChangeCurrentDatabase(worksheets.at(0)), NoError);
    const Guid text = Created(MakeText());
    EXPECT_EQ(Listed(ElementType::Any), std::vector<Guid>{text});
    ASSERT_EQ(ChangeCurrentDatabase({}), NoError);
    EXPECT_TRUE(Listed(ElementType::Text).empty());
    EXPECT_TRUE(Exists(text)); // read from any database
}

TEST_F(ElementsContract, RefusesModelElementsOutsideTheFloorPlan) {
    std::vector<Window> worksheets;
    ASSERT_EQ(ListWorksheets(worksheets), NoError);
    std::vector<Sample> model = MakeModelSamples();
    ASSERT_EQ(ChangeCurrentDatabase(worksheets.at(0)), NoError);
    for (Sample& sample : model) {
        EXPECT_EQ(CreateInStep(sample), RefusedParameters);
    }
}

TEST_F(ElementsContract, RefusesEveryElementInThe3DWindow) {
    Window window;
    window.type = WindowType::Model3D;
    std::vector<Sample> samples = {MakeLine(), MakeZone()};
    ASSERT_EQ(ChangeWindow(window), NoError);
    for (Sample& sample : samples) {
        EXPECT_EQ(CreateInStep(sample), RefusedParameters);
    }
}

TEST_F(ElementsContract, RefusesTypesThatItHasNoRecordOf) {
    for (const ElementType type :
         {ElementType::Wall, ElementType::Slab, ElementType::Door, ElementType::Dimension,
          ElementType::SectionElement, ElementType::CutPlane, ElementType::Any}) {
        Sample sample = MakeLine();
        sample.element.header.type = type;
        EXPECT_EQ(CreateInStep(sample), NotSupported) << static_cast<int>(type);
    }
}

TEST_F(ElementsContract, RefusesARecordOfAnotherType) {
    Sample sample = MakeLine();
    sample.element.header.type = ElementType::Text;
    EXPECT_EQ(CreateInStep(sample), BadParameters);
}

TEST_F(ElementsContract, RefusesToCreateOnHiddenLockedAndUnknownLayers) {
    struct Case {
        AttributeIndex layer;
        ErrorCode code;
    };
    const Case cases[] = {{LayerNamed(HiddenLayerName), HiddenLayer},
                          {LayerNamed(LockedLayerName), LockedLayer},
                          {{0}, NoSuchLayer},
                          {{5}, NoSuchLayer},
                          {{9999}, NoSuchLayer}};
    for (const Case& c : cases) {
        for (Sample sample : {MakeLine(), MakeLamp()}) {
            sample.element.header.layer = c.layer;
            EXPECT_EQ(CreateInStep(sample), c.code) << c.layer.value;
        }
    }
}

TEST_F(ElementsContract, RefusesUnknownStories) {
    for (const std::int16_t story : {std::int16_t{-2}, std::int16_t{2}}) {
        Sample sample = MakeZone();
        sample.element.header.floorIndex = story;
        EXPECT_EQ(CreateInStep(sample), InvalidStory);
    }
    for (const std::int16_t story : {std::int16_t{-1}, std::int16_t{1}}) {
        Sample sample = MakeZone();
        sample.element.header.floorIndex = story;
        EXPECT_EQ(CreateInStep(sample), NoError);
    }
}

TEST_F(ElementsContract, RefusesPolygonsThatItCannotBuild) {
    for (const Polygon& polygon : {Polygon{}, Polygon{Ring({{0, 0}, {1, 0}})},
                                   Polygon{Square(0, 0, 4), Ring({{1, 1}, {2, 2}})},
                                   Polygon{Ring({{0, 0}, {1, NoNumber}, {1, 1}})}}) {
        for (Sample sample : {MakeZone(), MakeHatch()}) {
            sample.memo.polygon = polygon;
            EXPECT_EQ(CreateInStep(sample), BadPolygon);
        }
    }
}

TEST_F(ElementsContract, RefusesPolygonsThatAreNotRegular) {
    for (const Polygon& polygon :
         {Polygon{Ring({{0, 0}, {2, 2}, {2, 0}, {0, 2}})},               // crosses itself
          Polygon{Ring({{0, 0}, {1, 0}, {2, 0}})},                       // no area
          Polygon{Square(0, 0, 2), Square(5, 5, 1)},                     // hole outside
          Polygon{Square(0, 0, 2), Square(1, 1, 3)},                     // hole across
          Polygon{Square(0, 0, 9), Square(1, 1, 5), Square(2, 2, 1)}}) { // hole in a hole
        for (Sample sample : {MakeZone(), MakeHatch()}) {
            sample.memo.polygon = polygon;
            EXPECT_EQ(CreateInStep(sample), IrregularPolygon);
        }
    }
}

TEST_F(ElementsContract, RefusesPolyLinesOfOneVertexOrTwoContours) {
    for (const Polygon& polygon :
         {Polygon{}, Polygon{Ring({{0, 0}})}, Polygon{Square(0, 0, 1), Square(3, 3, 1)}}) {
        Sample sample = MakePolyLine();
        sample.memo.polygon = polygon;
        EXPECT_EQ(CreateInStep(sample), BadPolygon);
    }
    Sample crossing = MakePolyLine();
    crossing.memo.polygon = {Ring({{0, 0}, {2, 2}, {2, 0}, {0, 2}})};
    EXPECT_EQ(CreateInStep(crossing), NoError);
}

TEST_F(ElementsContract, RefusesSplinesWithoutADirectionForEachPoint) {
    Sample sample = MakeSpline();
    sample.memo.splineDirections.pop_back();
    EXPECT_EQ(CreateInStep(sample), BadPolygon);
    sample = MakeSpline();
    std::get<SplineData>(sample.element.data).closed = true;
    sample.memo.splinePoints.back() = sample.memo.splinePoints.front();
    EXPECT_EQ(CreateInStep(sample), BadPolygon);
}

TEST_F(ElementsContract, RefusesNumbersThatMakeNoSense) {
    std::vector<Sample> samples;
    const auto spoil = [&samples](Sample sample, auto change) {
        change(sample);
        samples.push_back(std::move(sample));
    };
    spoil(MakeLine(), [](Sample& s) { std::get<LineData>(s.element.data).end = {0.0, 0.0}; });
    spoil(MakeLine(), [](Sample& s) { std::get<LineData>(s.element.data).begin.x = NoNumber; });
    spoil(MakeArc(), [](Sample& s) { std::get<ArcData>(s.element.data).radius = 0.0; });
    spoil(MakeArc(), [](Sample& s) { std::get<ArcData>(s.element.data).end = 0.0; });
    spoil(MakeText(), [](Sample& s) { std::get<TextData>(s.element.data).size = 0.0; });
    spoil(MakeZone(), [](Sample& s) { std::get<ZoneData>(s.element.data).height = 0.0; });
    spoil(MakeZone(),
          [](Sample& s) { std::get<ZoneData>(s.element.data).name = std::string(256, 'a'); });
    spoil(MakeHatch(),
          [](Sample& s) { std::get<HatchData>(s.element.data).foreground.red = 1.01; });
    spoil(MakeLamp(), [](Sample& s) { std::get<ObjectData>(s.element.data).sizeA = -0.1; });
    spoil(MakeLamp(), [](Sample& s) { std::get<ObjectData>(s.element.data).angle = NoNumber; });
    for (std::size_t i = 0; i < samples.size(); ++i) {
        EXPECT_EQ(CreateInStep(samples[i]), BadParameters) << i;
    }
}

TEST_F(ElementsContract, RefusesUnknownPensLineTypesFillsSurfacesAndParts) {
    std::vector<Sample> samples;
    const auto spoil = [&samples](Sample sample, auto change) {
        change(sample);
        samples.push_back(std::move(sample));
    };
    spoil(MakeLine(), [](Sample& s) { std::get<LineData>(s.element.data).pen = 0; });
    spoil(MakeLine(), [](Sample& s) { std::get<LineData>(s.element.data).pen = 256; });
    spoil(MakeLine(), [](Sample& s) { std::get<LineData>(s.element.data).lineType = {99}; });
    spoil(MakeHatch(), [](Sample& s) { std::get<HatchData>(s.element.data).fill = {0}; });
    spoil(MakeHatch(), [](Sample& s) { std::get<HatchData>(s.element.data).fillPen = 0; });
    spoil(MakeText(), [](Sample& s) { s.memo.paragraphs[0].stretches[0].pen = 0; });
    spoil(MakeMorph(), [](Sample& s) { std::get<MorphData>(s.element.data).surface = {99}; });
    spoil(MakeMorph(), [](Sample& s) { s.memo.body.faces[0].surface = {99}; });
    spoil(MakeMorph(), [](Sample& s) { s.memo.body.faces[0].contours[0][0] = 4; });
    spoil(MakeLamp(), [](Sample& s) { std::get<ObjectData>(s.element.data).libraryIndex = 0; });
    spoil(MakeLamp(), [](Sample& s) { std::get<ObjectData>(s.element.data).libraryIndex = 99; });
    for (std::size_t i = 0; i < samples.size(); ++i) {
        EXPECT_EQ(CreateInStep(samples[i]), BadIndex) << i;
    }
}

TEST_F(ElementsContract, RefusesTextsWhoseStretchesDoNotCoverTheirCharacters) {
    std::vector<std::vector<TextParagraph>> cases = {
        {},
        {{"abc", {{2, 1, 2.0, false}}, {}}},
        {{"média", {{6, 1, 2.0, false}}, {}}}, // bytes instead of characters
        {{"abc", {}, {}}},
        {{"a\nb", {{3, 1, 2.0, false}}, {}}},
        {{"abc", {{3, 1, 0.0, false}}, {}}},
        {{"abc", {{3, 1, 2.0, false}}, {5.0, 5.0}}},
        {{"\xFF", {{1, 1, 2.0, false}}, {}}},
    };
    for (std::size_t i = 0; i < cases.size(); ++i) {
        Sample sample = MakeText();
        sample.memo.paragraphs = cases[i];
        EXPECT_EQ(CreateInStep(sample), BadParagraphs) << i;
    }
}

TEST_F(ElementsContract, RefusesMorphsWithoutFacesOrWithAnEdgeWalkedTwice) {
    Sample bare = MakeMorph();
    bare.memo.body.faces.clear();
    EXPECT_EQ(CreateInStep(bare), BadPolygon);
    Sample twice = MakeMorph();
    twice.memo.body.faces.push_back(twice.memo.body.faces[0]);
    EXPECT_EQ(CreateInStep(twice), BadPolygon);
}

TEST_F(ElementsContract, RefusesALampsPartOnAnObject) {
    Sample object = MakeObject();
    std::get<ObjectData>(object.element.data).libraryIndex = PartNamed(LampPart);
    EXPECT_EQ(CreateInStep(object), RefusedParameters);
    Sample lamp = MakeLamp();
    std::get<ObjectData>(lamp.element.data).libraryIndex = PartNamed(ObjectPart);
    EXPECT_EQ(CreateInStep(lamp), RefusedParameters);
}

TEST_F(ElementsContract, ReadsOnlyTheMemoPartsAskedFor) {
    const Guid zone = Created(MakeZone());
    ElementMemo memo = MakeText().memo;
    ASSERT_EQ(GetMemo(zone, MemoParts::Text, memo), NoError);
    EXPECT_EQ(memo, ElementMemo());
    ASSERT_EQ(GetMemo(zone, MemoParts::Polygon, memo), NoError);
    EXPECT_EQ(memo, MakeZone().memo);
}

TEST_F(ElementsContract, LeavesTheArgumentsAloneWhereThereIsNoElement) {
    const Guid unknown = Created(MakeLine());
    ASSERT_EQ(DeleteInStep({unknown}), NoError);
    Element element = MakeArc().element;
    ElementMemo memo = MakeText().memo;
    std::vector<Guid> guids = {unknown};
    Coordinate3D lowest = {1, 2, 3};
    Coordinate3D highest = {4, 5, 6};
    EXPECT_EQ(GetElement(unknown, element), BadId);
    EXPECT_EQ(GetMemo(unknown, MemoParts::All, memo), BadId);
    EXPECT_EQ(ListParts(unknown, guids), BadId);
    EXPECT_EQ(ListOpenings(unknown, guids), BadId);
    EXPECT_EQ(GetBounds(unknown, lowest, highest), BadId);
    EXPECT_EQ(element, MakeArc().element);
    EXPECT_EQ(memo, MakeText().memo);
    EXPECT_EQ(guids, std::vector<Guid>{unknown});
    EXPECT_EQ(lowest, (Coordinate3D{1, 2, 3}));
    EXPECT_EQ(highest, (Coordinate3D{4, 5, 6}));
}

TEST_F(ElementsContract, TellsTheExtentOfWhatIsDrawnAndOfZones) {
    Sample line = MakeLine();
    std::get<LineData>(line.element.data) = {{3.0, -1.0}, {0.0, 4.0}, 1, {}};
    Coordinate3D lowest;
    Coordinate3D highest;
    ASSERT_EQ(GetBounds(Created(line), lowest, highest), NoError);
    EXPECT_EQ(lowest, (Coordinate3D{0.0, -1.0, 0.0}));
    EXPECT_EQ(highest, (Coordinate3D{3.0, 4.0, 0.0}));
    Sample zone = MakeZone();
    zone.element.header.floorIndex = 1; // at 3 m
    std::get<ZoneData>(zone.element.data).baseLevel = 0.5;
    ASSERT_EQ(GetBounds(Created(zone), lowest, highest), NoError);
    EXPECT_EQ(lowest, (Coordinate3D{0.0, 0.0, 3.5}));
    EXPECT_EQ(highest, (Coordinate3D{4.0, 4.0, 6.3}));
}

TEST_F(ElementsContract, TellsPartsAndOpenings) {
    std::vector<Guid> parts;
    ASSERT_EQ(ListParts(Listed(ElementType::Column).at(0), parts), NoError);
    ASSERT_EQ(parts, Listed(ElementType::ColumnSegment));
    EXPECT_EQ(Read(parts.at(1)).header.type, ElementType::ColumnSegment);
    EXPECT_EQ(Read(parts.at(1)).header.layer, LayerNamed(FreeLayer));
    std::vector<Guid> openings;
    ASSERT_EQ(ListOpenings(TheWall(), openings), NoError);
    EXPECT_EQ(openings, (std::vector<Guid>{Listed(ElementType::Window).at(0),
                                           Listed(ElementType::Door).at(0)}));
    ASSERT_EQ(ListParts(TheWall(), parts), NoError);
    EXPECT_TRUE(parts.empty());
}

TEST_F(ElementsContract, ChangesRecordLayerStoryAndShapeAndNothingElse) {
    Sample sample = MakeZone();
    ASSERT_EQ(CreateInStep(sample), NoError);
    const Element before = sample.element;
    sample.element.header.floorIndex = 1;
    sample.element.header.layer = {1};
    sample.element.header.locked = true;
    sample.element.header.group = TheWall();
    sample.element.header.stamp = 0;
    std::get<ZoneData>(sample.element.data).name = "Copa";
    sample.memo.polygon[0].vertices[2] = {5.0, 5.0};
    ASSERT_EQ(ChangeInStep(sample.element, sample.memo, MemoParts::Polygon), NoError);
    Element after = Read(before.header.guid);
    EXPECT_GT(after.header.stamp, before.header.stamp);
    EXPECT_FALSE(after.header.locked);
    EXPECT_EQ(after.header.group, Guid());
    EXPECT_EQ(after.header.floorIndex, 1);
    EXPECT_EQ(after.header.layer, AttributeIndex{1});
    EXPECT_EQ(after.data, sample.element.data);
    ElementMemo memo;
    ASSERT_EQ(GetMemo(before.header.guid, MemoParts::All, memo), NoError);
    EXPECT_EQ(memo, sample.memo);
}

TEST_F(ElementsContract, ChangesOnlyTheMemoPartsAskedFor) {
    Sample sample = MakeZone();
    ASSERT_EQ(CreateInStep(sample), NoError);
    ASSERT_EQ(ChangeInStep(sample.element, {}, MemoParts::Text), NoError);
    ElementMemo memo;
    ASSERT_EQ(GetMemo(sample.element.header.guid, MemoParts::All, memo), NoError);
    EXPECT_EQ(memo, sample.memo);
}

TEST_F(ElementsContract, RefusesToChangeWhatLayerOrLockHolds) {
    EXPECT_EQ(ChangeInStep(Read(TheLineOn(HiddenLayerName))), HiddenLayer);
    EXPECT_EQ(ChangeInStep(Read(TheLineOn(LockedLayerName))), LockedLayer);
    EXPECT_EQ(ChangeInStep(Read(TheLineOn(FreeLayer))), NotEditable); // locked by the user
    EXPECT_EQ(ChangeInStep(Read(Listed(ElementType::ColumnSegment).at(0))), NotEditable);
    ASSERT_EQ(ChangeWindow(ContractSection()), NoError);
    EXPECT_EQ(ChangeInStep(Read(Listed(ElementType::SectionElement).at(0))), NotEditable);
}

TEST_F(ElementsContract, RefusesToMoveAnElementToAHiddenLayerOrAnUnknownStory) {
    Sample sample = MakeLamp();
    ASSERT_EQ(CreateInStep(sample), NoError);
    Element moved = sample.element;
    moved.header.layer = LayerNamed(HiddenLayerName);
    EXPECT_EQ(ChangeInStep(moved), HiddenLayer);
    moved.header.layer = {9999};
    EXPECT_EQ(ChangeInStep(moved), NoSuchLayer);
    moved = sample.element;
    moved.header.floorIndex = 7;
    EXPECT_EQ(ChangeInStep(moved), InvalidStory);
    EXPECT_EQ(Read(sample.element.header.guid), sample.element);
}

TEST_F(ElementsContract, RefusesToChangeTheTypeAndUnknownElements) {
    Sample sample = MakeLamp();
    ASSERT_EQ(CreateInStep(sample), NoError);
    Element object = sample.element;
    object.header.type = ElementType::Object;
    EXPECT_EQ(ChangeInStep(object), BadParameters);
    ASSERT_EQ(DeleteInStep({sample.element.header.guid}), NoError);
    EXPECT_EQ(ChangeInStep(sample.element), BadId);
}

TEST_F(ElementsContract, RefusesAnotherNumberOfVertices) {
    Sample sample = MakeZone();
    ASSERT_EQ(CreateInStep(sample), NoError);
    sample.memo.polygon = {Square(0.0, 0.0, 4.0)}; // the hole is gone
    EXPECT_EQ(ChangeInStep(sample.element, sample.memo, MemoParts::Polygon), BadPolygon);
    sample.memo = MakeZone().memo;
    std::swap(sample.memo.polygon[0].vertices[0], sample.memo.polygon[0].vertices[1]);
    EXPECT_EQ(ChangeInStep(sample.element, sample.memo, MemoParts::Polygon), IrregularPolygon);
}

TEST_F(ElementsContract, ChangesTextsByContentPositionAndWidthAlone) {
    Sample sample = MakeText();
    ASSERT_EQ(CreateInStep(sample), NoError);
    TextData& text = std::get<TextData>(sample.element.data);
    text.position = {7.0, 8.0};
    text.width = 40.0;
    sample.memo.paragraphs = {{"lx", {{2, 1, 2.0, false}}, {}}};
    EXPECT_EQ(ChangeInStep(sample.element, sample.memo, MemoParts::Text), NoError);
    text.angle = 1.0;
    EXPECT_EQ(ChangeInStep(sample.element), RefusedParameters);
    text.angle = 0.0;
    sample.memo.paragraphs.clear();
    EXPECT_EQ(ChangeInStep(sample.element, sample.memo, MemoParts::Text), BadParagraphs);
}

TEST_F(ElementsContract, KeepsTheShapeOfASpline) {
    Sample sample = MakeSpline();
    ASSERT_EQ(CreateInStep(sample), NoError);
    EXPECT_EQ(ChangeInStep(sample.element, sample.memo, MemoParts::Polygon), NoError);
    sample.memo.splinePoints[1].y = 2.0;
    EXPECT_EQ(ChangeInStep(sample.element, sample.memo, MemoParts::Polygon), RefusedParameters);
}

TEST_F(ElementsContract, MovesABuildingElementToAnotherLayer) {
    Element wall = Read(TheWall());
    wall.header.layer = {1};
    ASSERT_EQ(ChangeInStep(wall), NoError);
    EXPECT_EQ(Read(wall.header.guid).header.layer, AttributeIndex{1});
}

TEST_F(ElementsContract, DeletesAllOrNothing) {
    const Guid line = Created(MakeLine());
    const Guid unknown = Created(MakeLine());
    ASSERT_EQ(DeleteInStep({unknown}), NoError);
    struct Case {
        Guid other;
        ErrorCode code;
    };
    const Case cases[] = {{TheLineOn(HiddenLayerName), HiddenLayer},
                          {TheLineOn(LockedLayerName), LockedLayer},
                          {Listed(ElementType::Line).at(0), NotEditable},
                          {Listed(ElementType::ColumnSegment).at(0), NotEditable},
                          {Listed(ElementType::CutPlane).at(0), RefusedParameters},
                          {unknown, BadId}};
    for (const Case& c : cases) {
        const std::size_t before = Listed(ElementType::Any).size();
        EXPECT_EQ(DeleteInStep({line, c.other}), c.code);
        EXPECT_TRUE(Exists(line));
        EXPECT_EQ(Listed(ElementType::Any).size(), before);
    }
    EXPECT_EQ(DeleteInStep({line, line}), NoError);
    EXPECT_FALSE(Exists(line));
}

TEST_F(ElementsContract, DeletesAWallWithItsOpenings) {
    ASSERT_EQ(DeleteInStep({TheWall()}), NoError);
    EXPECT_TRUE(Listed(ElementType::Window).empty());
    EXPECT_TRUE(Listed(ElementType::Door).empty());
}

TEST_F(ElementsContract, SelectsElements) {
    std::vector<Guid> guids = {Guid()};
    EXPECT_EQ(GetSelection(guids), NoSelection);
    EXPECT_TRUE(guids.empty());
    const Guid line = Created(MakeLine());
    const Guid lamp = Created(MakeLamp());
    ASSERT_EQ(SetSelection({lamp, line}), NoError);
    ASSERT_EQ(GetSelection(guids), NoError);
    EXPECT_EQ(std::set<Guid>(guids.begin(), guids.end()), (std::set<Guid>{line, lamp}));
    ASSERT_EQ(DeleteInStep({line}), NoError);
    ASSERT_EQ(GetSelection(guids), NoError);
    EXPECT_EQ(guids, std::vector<Guid>{lamp});
    EXPECT_EQ(SetSelection({line}), BadId);
    ASSERT_EQ(GetSelection(guids), NoError);
    EXPECT_EQ(guids, std::vector<Guid>{lamp}); // as it was
    ASSERT_EQ(SetSelection({}), NoError);
    EXPECT_EQ(GetSelection(guids), NoSelection);
}

TEST_F(ElementsContract, AnswersWithNoPlanWithoutAProject) {
    CloseContractProject();
    Element element;
    ElementMemo memo;
    std::vector<Guid> guids;
    Coordinate3D corner;
    EXPECT_EQ(ListElements(ElementType::Any, ElementFilter::None, guids), NoPlan);
    EXPECT_EQ(GetElement({}, element), NoPlan);
    EXPECT_EQ(GetMemo({}, MemoParts::All, memo), NoPlan);
    EXPECT_EQ(GetBounds({}, corner, corner), NoPlan);
    EXPECT_EQ(ListParts({}, guids), NoPlan);
    EXPECT_EQ(ListOpenings({}, guids), NoPlan);
    EXPECT_EQ(GetSelection(guids), NoPlan);
    EXPECT_EQ(SetSelection({}), NoPlan);
    EXPECT_EQ(CallUndoable("Prova", [] { return NoError; }), NoPlan);
    EXPECT_EQ(CreateElement(element, memo), NoPlan);
    EXPECT_EQ(ChangeElement(element, memo, MemoParts::All), NoPlan);
    EXPECT_EQ(DeleteElements({}), NoPlan);
}

} // namespace
} // namespace Merivane::Host
