#include <algorithm>

#include "Archicad/ResultDrawing.hpp"
#include "ModelSample.hpp"
#include "ResultSample.hpp"

namespace Merivane::Archicad {
namespace {

using Host::ElementType;

class OldResultsOfAProject : public Tests::ResultTest {
protected:
    static constexpr std::array GoingTypes = {ElementType::PolyLine, ElementType::Text,
                                              ElementType::Line, ElementType::Hatch,
                                              ElementType::Morph};

    void Add(ElementType type, std::int32_t layer, std::int16_t floorIndex = 0) {
        Host::ElementHeader& header = Tests::AddElement(Open(), ++number, type).element.header;
        header.layer = {layer};
        header.floorIndex = floorIndex;
    }

    /// One element of every type of `types` on every layer on every floor.
    void AddEverywhere(const std::vector<ElementType>& types) {
        for (const ElementType type : types) {
            for (const auto& [layer, attribute] : Open().layers) {
                for (const int floorIndex : {0, 1}) {
                    Add(type, layer, static_cast<std::int16_t>(floorIndex));
                }
            }
        }
    }

    Host::ErrorCode Delete(const std::vector<std::int32_t>& floors) {
        Workbench::OpenProject(Workbench::Project(Open())); // indexed anew
        Host::ErrorCode code = Host::NoError;
        Host::CallUndoable("Prova", [&] {
            code = DeleteResultElements(structure.layers, floors, count, held);
            return Host::NoError;
        });
        return code;
    }

    std::int32_t count = -1;
    std::int32_t held = -1;

private:
    std::uint32_t number = 0;
};

TEST_F(OldResultsOfAProject, AreOfFiveTypesOnTheSixLayers) {
    AddEverywhere({ElementType::PolyLine, ElementType::Text, ElementType::Line, ElementType::Hatch,
                   ElementType::Morph, ElementType::Arc, ElementType::Circle, ElementType::Spline,
                   ElementType::Dimension, ElementType::Wall});
    const std::size_t before = Open().elements.size();
    ASSERT_EQ(Delete({0, 1}), Host::NoError);
    EXPECT_EQ(count, 5 * 6 * 2);
    EXPECT_EQ(held, 0);
    EXPECT_EQ(Open().elements.size(), before - 60);
    for (const Workbench::ProjectElement& element : Open().elements) {
        const Host::ElementHeader& header = element.element.header;
        const bool goes =
            std::find(GoingTypes.begin(), GoingTypes.end(), header.type) != GoingTypes.end();
        EXPECT_FALSE(goes && header.layer.value >= 5) << static_cast<int>(header.type);
    }
}

TEST_F(OldResultsOfAProject, GoFromTheFloorsOfTheRunAlone) {
    AddEverywhere({ElementType::Text});
    ASSERT_EQ(Delete({1}), Host::NoError);
    EXPECT_EQ(count, 6);
    for (std::int32_t layer = 5; layer <= 10; ++layer) {
        const auto left = ElementsOn({layer});
        ASSERT_EQ(left.size(), 1U);
        EXPECT_EQ(left[0].element.header.floorIndex, 0);
    }
}

TEST_F(OldResultsOfAProject, GoFromEveryFloorWhereNoneIsNamed) {
    AddEverywhere({ElementType::Text});
    ASSERT_EQ(Delete({}), Host::NoError);
    EXPECT_EQ(count, 12);
    EXPECT_TRUE(ElementsOn({5}).empty());
}

TEST_F(OldResultsOfAProject, AreNoneInAFreshProject) {
    EXPECT_EQ(Delete({}), Host::NoError);
    EXPECT_EQ(count, 0);
}

TEST_F(OldResultsOfAProject, StayWhereALockHoldsThemAndTheRestGoes) {
    Add(ElementType::Text, 5);
    Add(ElementType::Text, 6);
    Add(ElementType::Line, 6);
    Open().layers.at(5).locked = true;
    EXPECT_EQ(Delete({0}), Host::NoError);
    EXPECT_EQ(count, 2);
    EXPECT_EQ(held, 1);
    EXPECT_EQ(ElementsOn({5}).size(), 1U);
    EXPECT_TRUE(ElementsOn({6}).empty());
}

TEST_F(OldResultsOfAProject, StayWhereTheUserLockedTheElement) {
    Add(ElementType::Text, 5);
    Add(ElementType::Text, 5);
    Open().elements.front().element.header.locked = true;
    EXPECT_EQ(Delete({0}), Host::NoError);
    EXPECT_EQ(count, 1);
    EXPECT_EQ(held, 1);
    EXPECT_EQ(ElementsOn({5}).size(), 1U);
}

TEST_F(OldResultsOfAProject, AreNotCountedAsHeldOnOtherFloorsAndLayers) {
    Add(ElementType::Text, 5, 1);
    Add(ElementType::Text, 4); // locked, and no result layer
    Open().layers.at(5).locked = true;
    EXPECT_EQ(Delete({0}), Host::NoError);
    EXPECT_EQ(count, 0);
    EXPECT_EQ(held, 0);
}

TEST_F(OldResultsOfAProject, StayOnAHiddenLayer) {
    Add(ElementType::Text, 5);
    Open().layers.at(5).hidden = true;
    EXPECT_EQ(Delete({0}), Host::NoError);
    EXPECT_EQ(count, 0);
    EXPECT_EQ(held, 1);
}

TEST_F(OldResultsOfAProject, StayWhereTheHostRefuses) {
    Add(ElementType::Text, 5);
    for (const auto& [operation, nth] : {std::pair{"ListElements", 1},
                                         {"ListElements", 2},
                                         {"ListElements", 10},
                                         {"GetElement", 1},
                                         {"DeleteElements", 1}}) {
        Workbench::FailCall(operation, nth, Host::NotMine);
        EXPECT_EQ(Delete({0}), Host::NotMine) << operation << " " << nth;
        EXPECT_EQ(count, 0);
        EXPECT_EQ(held, 0);
        EXPECT_EQ(ElementsOn({5}).size(), 1U);
    }
}

TEST_F(OldResultsOfAProject, GoInAnUndoStepOnly) {
    Add(ElementType::Text, 5);
    Workbench::OpenProject(Workbench::Project(Open()));
    EXPECT_EQ(DeleteResultElements(structure.layers, {}, count, held), Host::NeedsUndoScope);
}

} // namespace
} // namespace Merivane::Archicad
