// What an earlier version of the add-on left in the sample project carries on.

#include <algorithm>
#include <map>
#include <string>
#include <string_view>
#include <utility>

#include <gtest/gtest.h>

#include "Archicad/LayerCombinations.hpp"
#include "Archicad/ResultLayers.hpp"
#include "Support/Places.hpp"
#include "Text/NativePath.hpp"
#include "Workbench/Project/AttributeRules.hpp"
#include "Workbench/Project/ProjectFile.hpp"
#include "Workbench/Session.hpp"

namespace Merivane::Tests {
namespace {

using Host::ElementType;
using Workbench::Project;
using Workbench::ProjectElement;

class OfficeEarlierResults : public testing::Test {
protected:
    OfficeEarlierResults() {
        const std::wstring file =
            Text::WidePath(SourceFolder() / "exemplos" / "escritorio.vantoro");
        Project project;
        std::string error;
        EXPECT_TRUE(Workbench::ReadProject(file, project, error)) << error;
        Workbench::OpenSession({});
        Workbench::OpenProject(std::move(project), file);
    }
    ~OfficeEarlierResults() override { Workbench::OpenSession({}); }

    static Project& Open() { return Workbench::CurrentSession().project; }

    static Host::AttributeIndex LayerNamed(std::string_view name) {
        return {Workbench::FindAttributeName(Open().layers, name)};
    }

    static std::map<ElementType, int> CountTypesOn(Host::AttributeIndex layer) {
        std::map<ElementType, int> counts;
        for (const ProjectElement& element : Open().elements) {
            counts[element.element.header.type] += element.element.header.layer == layer ? 1 : 0;
        }
        std::erase_if(counts, [](const auto& entry) { return entry.second == 0; });
        return counts;
    }
};

TEST_F(OfficeEarlierResults, StayOnLayersThatAreRenamed) {
    const Host::AttributeIndex isolux = LayerNamed("Merivane - Isolux");
    const Host::AttributeIndex falseColor = LayerNamed("Merivane - Cor falsa");
    const auto elements = Open().elements;
    const auto layerCount = Open().layers.size();
    Archicad::ResultLayers layers;
    ASSERT_EQ(Archicad::EnsureResultLayers(layers), Host::NoError);
    EXPECT_EQ(layers.isolux, isolux);
    EXPECT_EQ(layers.falseColor, falseColor);
    EXPECT_EQ(Open().layers.at(isolux.value).name, "Vantoro - Isolux");
    EXPECT_EQ(Open().layers.at(falseColor.value).name, "Vantoro - Cor falsa");
    EXPECT_EQ(LayerNamed("Merivane - Isolux"), Host::AttributeIndex());
    EXPECT_EQ(Open().layers.size(), layerCount + 2); // those that it did not know
    EXPECT_EQ(Open().elements, elements);
    EXPECT_EQ(CountTypesOn(layers.isolux),
              (std::map<ElementType, int>{{ElementType::PolyLine, 3}, {ElementType::Text, 2}}));
    EXPECT_EQ(CountTypesOn(layers.falseColor),
              (std::map<ElementType, int>{{ElementType::Hatch, 3}}));
}

TEST_F(OfficeEarlierResults, AreToldInTheLog) {
    Archicad::ResultLayers layers;
    ASSERT_EQ(Archicad::EnsureResultLayers(layers), Host::NoError);
    const auto& lines = Workbench::CurrentSession().reportLines;
    ASSERT_EQ(lines.size(), 2U);
    EXPECT_EQ(lines[0].text, "Vantoro: atributo renomeado de \"Merivane - Isolux\" para "
                             "\"Vantoro - Isolux\"");
    EXPECT_EQ(lines[1].text, "Vantoro: atributo renomeado de \"Merivane - Cor falsa\" para "
                             "\"Vantoro - Cor falsa\"");
}

TEST_F(OfficeEarlierResults, KeepTheirStateInTheUsersCombinations) {
    const auto before = Open().combinations;
    Archicad::ResultLayers result;
    Archicad::ProjectLayers project;
    ASSERT_EQ(Archicad::EnsureResultLayers(result), Host::NoError);
    ASSERT_EQ(Archicad::EnsureProjectLayers(project), Host::NoError);
    ASSERT_EQ(Archicad::EnsureStandardCombinations(result, project, {}, false), Host::NoError);
    EXPECT_EQ(Open().combinations.size(), before.size() + 2);
    for (const auto& [index, combination] : before) {
        const auto& states = Open().combinations.at(index).states;
        ASSERT_GE(states.size(), combination.states.size());
        EXPECT_TRUE(
            std::equal(combination.states.begin(), combination.states.end(), states.begin()))
            << combination.name;
    }
}

TEST_F(OfficeEarlierResults, AreSavedUnderTheirNewNames) {
    Archicad::ResultLayers layers;
    ASSERT_EQ(Archicad::EnsureResultLayers(layers), Host::NoError);
    const std::string text = Workbench::WriteProject(Open());
    EXPECT_EQ(text.find("Merivane - "), std::string::npos);
}

} // namespace
} // namespace Merivane::Tests
