#include <numbers>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "Host/Elements.hpp"
#include "Workbench/Session.hpp"

namespace Merivane::Workbench {
namespace {

using Host::Coordinate3D;
using Host::ElementType;

Host::Guid NumberedGuid(std::uint8_t number) {
    Host::Guid guid;
    guid.bytes[15] = number;
    return guid;
}

struct Box {
    Coordinate3D lowest;
    Coordinate3D highest;
};

// The extent of one element in a project of its own at 1:100.
Box BoundsOf(ElementType type, Host::ElementData data, Host::ElementMemo memo = {}) {
    OpenSession({});
    Project project = MakeEmptyProject();
    project.stories = {{0, 0.0, 3.0, "Térreo"}, {1, 3.0, 3.0, "1º"}};
    ProjectPart part;
    part.name = "sem corpo";
    project.parts = {part};
    ProjectElement element;
    element.element.header = {type, NumberedGuid(1), 1, {1}, 0, {}, false};
    element.element.data = std::move(data);
    element.memo = std::move(memo);
    project.elements = {element};
    OpenProject(std::move(project));
    Box box;
    EXPECT_EQ(Host::GetBounds(NumberedGuid(1), box.lowest, box.highest), Host::NoError);
    return box;
}

void ExpectBox(const Box& box, const Coordinate3D& lowest, const Coordinate3D& highest) {
    EXPECT_NEAR(box.lowest.x, lowest.x, 1e-12);
    EXPECT_NEAR(box.lowest.y, lowest.y, 1e-12);
    EXPECT_NEAR(box.lowest.z, lowest.z, 1e-12);
    EXPECT_NEAR(box.highest.x, highest.x, 1e-12);
    EXPECT_NEAR(box.highest.y, highest.y, 1e-12);
    EXPECT_NEAR(box.highest.z, highest.z, 1e-12);
}

Host::ElementMemo OneLine(const std::string& text) {
    Host::ElementMemo memo;
    memo.paragraphs = {{text, {{static_cast<std::int32_t>(text.size()), 1, 2.0, false}}, {}}};
    return memo;
}

TEST(Bounds, OfAPartWithoutABodyAreItsSizesAboutItsOrigin) {
    Host::ObjectData lamp;
    lamp.libraryIndex = 1;
    lamp.position = {10.0, 20.0};
    lamp.level = 2.5;
    lamp.sizeA = 1.2;
    lamp.sizeB = 0.4;
    ExpectBox(BoundsOf(ElementType::Lamp, lamp), {9.4, 19.8, 5.5}, {10.6, 20.2, 5.5});
    lamp.angle = std::numbers::pi / 2.0;
    ExpectBox(BoundsOf(ElementType::Lamp, lamp), {9.8, 19.4, 5.5}, {10.2, 20.6, 5.5});
}

TEST(Bounds, OfATextAreItsLinesOnPaperAtTheScale) {
    Host::TextData text;
    text.position = {1.0, 2.0};
    text.size = 2.0; // mm, 0.2 m at 1:100
    text.width = 40.0;
    text.anchor = Host::TextAnchor::LeftBottom;
    ExpectBox(BoundsOf(ElementType::Text, text, OneLine("lx")), {1.0, 2.0, 0.0}, {5.0, 2.2, 0.0});
    text.anchor = Host::TextAnchor::RightTop;
    ExpectBox(BoundsOf(ElementType::Text, text, OneLine("lx")), {-3.0, 1.8, 0.0}, {1.0, 2.0, 0.0});
    text.anchor = Host::TextAnchor::Middle;
    text.angle = std::numbers::pi / 2.0;
    ExpectBox(BoundsOf(ElementType::Text, text, OneLine("lx")), {0.9, 0.0, 0.0}, {1.1, 4.0, 0.0});
}

TEST(Bounds, OfATextThatBreaksInItsBoxHoldAllItsLines) {
    Host::TextData text;
    text.width = 20.0; // two words of some 15 mm each
    text.anchor = Host::TextAnchor::LeftTop;
    Host::ElementMemo memo = OneLine("iluminância mantida");
    memo.paragraphs[0].stretches[0].count -= 1; // letters, not bytes
    ExpectBox(BoundsOf(ElementType::Text, text, memo), {0.0, -0.5, 0.0}, {2.0, 0.0, 0.0});
}

TEST(Bounds, OfATextHoldItsEmptyParagraphs) {
    Host::TextData text;
    text.size = 2.0;
    text.width = 40.0;
    text.anchor = Host::TextAnchor::LeftTop;
    Host::ElementMemo memo = OneLine("lx");
    memo.paragraphs.push_back({});
    ExpectBox(BoundsOf(ElementType::Text, text, memo), {0.0, -0.5, 0.0}, {4.0, 0.0, 0.0});
    text.anchor = Host::TextAnchor::LeftBottom;
    ExpectBox(BoundsOf(ElementType::Text, text, memo), {0.0, 0.0, 0.0}, {4.0, 0.5, 0.0});
}

TEST(Bounds, OfATextHoldAWordThatIsWiderThanItsBox) {
    Host::TextData text;
    text.anchor = Host::TextAnchor::LeftBottom;
    const double width = BoundsOf(ElementType::Text, text, OneLine("luminotecnica")).highest.x;
    text.width = 5.0; // mm; the word takes some 20
    ASSERT_GT(width, 1.0);
    ExpectBox(BoundsOf(ElementType::Text, text, OneLine("luminotecnica")), {0.0, 0.0, 0.0},
              {width, 0.2, 0.0});
    text.anchor = Host::TextAnchor::RightBottom;
    ExpectBox(BoundsOf(ElementType::Text, text, OneLine("luminotecnica")), {-width, 0.0, 0.0},
              {0.0, 0.2, 0.0});
}

TEST(Bounds, OfATextWithoutAWidthAreThoseOfItsLongestLine) {
    const Host::TextData text;
    const Box shorter = BoundsOf(ElementType::Text, text, OneLine("500 lx"));
    const Box longer = BoundsOf(ElementType::Text, text, OneLine("500 lx no plano"));
    EXPECT_GT(shorter.highest.x, 0.0);
    EXPECT_GT(longer.highest.x, shorter.highest.x);
}

TEST(Bounds, OfWhatASectionShowsRunAlongItsLineAndUpwards) {
    OpenSession({});
    Project project = MakeEmptyProject();
    ProjectElement wall;
    wall.element.header = {ElementType::Wall, NumberedGuid(1), 0, {1}, 0, {}, false};
    WallGeometry geometry;
    geometry.begin = {3.0, 2.0};
    geometry.end = {3.0, 6.0};
    geometry.thickness = 0.2;
    geometry.height = 2.5;
    wall.geometry = geometry;
    ProjectElement shown;
    shown.element.header = {ElementType::SectionElement, NumberedGuid(2), 0, {1}, 0, {}, false};
    shown.element.data = Host::SectionElementData{NumberedGuid(1)};
    shown.database = NumberedGuid(3);
    ProjectElement marker;
    marker.element.header = {ElementType::CutPlane, NumberedGuid(4), 0, {1}, 0, {}, false};
    project.elements = {wall, shown, marker};
    ProjectDatabase database;
    database.window = {Host::WindowType::Section, NumberedGuid(3), "A", "A", NumberedGuid(4), 0};
    database.section = {NumberedGuid(4), {8.0, 1.0}, {8.0, 9.0}, 0.0}; // upwards on the plan
    project.databases = {database};
    OpenProject(std::move(project));
    Box box;
    ASSERT_EQ(Host::GetBounds(NumberedGuid(2), box.lowest, box.highest), Host::NoError);
    ExpectBox(box, {1.0, 0.0, 0.0}, {5.0, 2.5, 0.0});
    ASSERT_EQ(Host::GetBounds(NumberedGuid(4), box.lowest, box.highest), Host::NoError);
    ExpectBox(box, {8.0, 1.0, 0.0}, {8.0, 9.0, 0.0});
}

TEST(Bounds, AreRefusedWhereThereIsNothingToMeasure) {
    OpenSession({});
    Project project = MakeEmptyProject();
    ProjectElement element;
    element.element.header = {ElementType::Hotspot, NumberedGuid(1), 0, {1}, 0, {}, false};
    project.elements = {element};
    OpenProject(std::move(project));
    Box box{{1, 2, 3}, {4, 5, 6}};
    EXPECT_EQ(Host::GetBounds(NumberedGuid(1), box.lowest, box.highest), Host::GeneralError);
    EXPECT_EQ(box.lowest, (Coordinate3D{1, 2, 3}));
    OpenSession({});
}

} // namespace
} // namespace Merivane::Workbench
