#include "Archicad/ElementReplacement.hpp"

#include <algorithm>
#include <utility>

#include <gtest/gtest.h>

#include "Archicad/LibraryParameters.hpp"
#include "Host/Library.hpp"
#include "Host/Stories.hpp"
#include "ModelSample.hpp"
#include "Workbench/Session.hpp"

namespace Merivane::Archicad {
namespace {

using namespace Merivane::Tests;
using Host::ErrorCode;

constexpr std::uint32_t Placed = 2;
constexpr const char* StepName = "Vantoro: adicionar fotometria IES";

/// An object or lamp "Antiga", placed with values of its own, and the lamp's part "Nova".
class ReplaceElementLibPart : public ::testing::Test {
protected:
    void Open(Host::ElementType type) {
        Workbench::Project project = SampleProject();
        const std::int32_t part = AddLampPart(project, "Antiga");
        project.parts[0].isLamp = type == Host::ElementType::Lamp;
        AddOwn(project.parts[0].parameters, 1.0);
        AddLampPart(project, "Nova");
        AddOwn(project.parts.back().parameters, 5.0);
        AddLamp(project, Placed, part, {2.0, 3.0}).element.header.type = type;
        auto& parameters = project.elements[0].memo.parameters;
        parameters = project.parts[0].parameters;
        SetText(parameters, "mvCircuit", "C3");
        SetNumber(parameters, "mvCircuitSize", 3.5);
        SetNumber(parameters, "mvLuminousFlux", 1234.0);
        SetNumber(parameters, "mvContractVersion", 6.0);
        SetNumber(parameters, "ownNumber", 2.0);
        SetText(parameters, "ownText", "do usuario");
        auto& object = std::get<Host::ObjectData>(project.elements[0].element.data);
        object.angle = 0.5;
        object.mirrored = true;
        object.sizeA = 0.7;
        OpenSample(std::move(project));
        EXPECT_EQ(Host::GetElement(NumberedGuid(Placed), element), Host::NoError);
    }

    static void AddOwn(std::vector<Host::LibraryParameter>& parameters, double number) {
        SetNumber(parameters, "ownNumber", number);
        SetText(parameters, "ownText", "da peca");
    }

    ErrorCode Replace(bool keepAll) {
        Host::LibraryPart part;
        EXPECT_EQ(Host::FindLibraryPart("Nova", part), Host::NoError);
        newIndex = part.index;
        return Host::CallUndoable(StepName, [&] {
            return Archicad::ReplaceElementLibPart(element, part.index, newGuid, keepAll);
        });
    }

    std::vector<Host::LibraryParameter> ParametersNow() const {
        Host::ElementMemo memo;
        EXPECT_EQ(Host::GetMemo(newGuid, Host::MemoParts::Parameters, memo), Host::NoError);
        return memo.parameters;
    }

    /// The element that stands there now differs in its part alone.
    void ExpectSamePlace() const {
        Host::Element now;
        ASSERT_EQ(Host::GetElement(newGuid, now), Host::NoError);
        EXPECT_EQ(now.header.type, Host::ElementType::Lamp);
        EXPECT_EQ(now.header.layer, element.header.layer);
        EXPECT_EQ(now.header.floorIndex, element.header.floorIndex);
        auto expected = std::get<Host::ObjectData>(element.data);
        expected.libraryIndex = newIndex;
        EXPECT_EQ(std::get<Host::ObjectData>(now.data), expected);
    }

    Host::Element element;
    Host::Guid newGuid;
    std::int32_t newIndex = 0;
};

double NumberIn(std::vector<Host::LibraryParameter> parameters, const char* name) {
    const auto* const found = FindAddPar(parameters, name);
    return found == nullptr ? -99.0 : found->number;
}

std::string TextIn(std::vector<Host::LibraryParameter> parameters, const char* name) {
    const auto* const found = FindAddPar(parameters, name);
    return found == nullptr ? "none" : found->text;
}

TEST_F(ReplaceElementLibPart, KeepsALampAsTheSameElement) {
    Open(Host::ElementType::Lamp);
    EXPECT_EQ(Replace(false), Host::NoError);
    EXPECT_EQ(newGuid, NumberedGuid(Placed));
    ExpectSamePlace();
    EXPECT_EQ(Workbench::CurrentSession().project.elements.size(), 1U);
}

TEST_F(ReplaceElementLibPart, PutsALampInAnObjectsPlace) {
    Open(Host::ElementType::Object);
    EXPECT_EQ(Replace(false), Host::NoError);
    EXPECT_NE(newGuid, NumberedGuid(Placed));
    EXPECT_NE(newGuid, Host::Guid{});
    ExpectSamePlace();
    Host::Element gone;
    EXPECT_EQ(Host::GetElement(NumberedGuid(Placed), gone), Host::BadId);
    EXPECT_TRUE(Workbench::Undo());
    EXPECT_EQ(Host::GetElement(NumberedGuid(Placed), gone), Host::NoError);
    EXPECT_EQ(Host::GetElement(newGuid, gone), Host::BadId);
}

TEST_F(ReplaceElementLibPart, PutsTheLampInTheModelFromAnotherWindowsDatabase) {
    Open(Host::ElementType::Object);
    Host::Window sheet;
    ASSERT_EQ(Host::CreateWorksheet("Folha", "F1", sheet), Host::NoError);
    ASSERT_EQ(Host::ChangeWindow(sheet), Host::NoError);
    EXPECT_EQ(Replace(false), Host::NoError);
    ExpectSamePlace();
    Host::Window now;
    EXPECT_EQ(Host::GetCurrentDatabase(now), Host::NoError);
    EXPECT_EQ(now.database, sheet.database);
}

TEST_F(ReplaceElementLibPart, CarriesTheCircuitAndTheUsersValuesButNotThePhotometry) {
    for (const auto type : {Host::ElementType::Lamp, Host::ElementType::Object}) {
        Open(type);
        const double flux =
            NumberIn(Workbench::CurrentSession().project.parts[1].parameters, "mvLuminousFlux");
        EXPECT_EQ(Replace(false), Host::NoError);
        const auto parameters = ParametersNow();
        EXPECT_EQ(TextIn(parameters, "mvCircuit"), "C3");
        EXPECT_EQ(NumberIn(parameters, "mvCircuitSize"), 3.5);
        EXPECT_EQ(NumberIn(parameters, "mvLuminousFlux"), flux);
        EXPECT_EQ(NumberIn(parameters, "mvContractVersion"), 7.0);
        EXPECT_EQ(NumberIn(parameters, "ownNumber"), 2.0);
        EXPECT_EQ(TextIn(parameters, "ownText"), "do usuario");
    }
}

TEST_F(ReplaceElementLibPart, CarriesAllWhereAllIsToBeKept) {
    Open(Host::ElementType::Lamp);
    EXPECT_EQ(Replace(true), Host::NoError);
    const auto parameters = ParametersNow();
    EXPECT_EQ(TextIn(parameters, "mvCircuit"), "C3");
    EXPECT_EQ(NumberIn(parameters, "mvLuminousFlux"), 1234.0);
    EXPECT_EQ(NumberIn(parameters, "mvContractVersion"), 6.0);
}

TEST_F(ReplaceElementLibPart, CarriesArraysWithTheSizeThatTheyHaveOnTheElement) {
    const auto table = [](std::vector<double> numbers, std::int32_t columns) {
        Host::LibraryParameter parameter;
        parameter.name = "ownTable";
        parameter.isArray = true;
        parameter.dim1 = static_cast<std::int32_t>(numbers.size()) / columns;
        parameter.dim2 = columns;
        parameter.numbers = std::move(numbers);
        return parameter;
    };
    const auto list = [](std::vector<std::string> texts) {
        Host::LibraryParameter parameter;
        parameter.name = "ownList";
        parameter.type = Host::ParameterType::String;
        parameter.isArray = true;
        parameter.dim1 = static_cast<std::int32_t>(texts.size());
        parameter.texts = std::move(texts);
        return parameter;
    };
    for (const auto type : {Host::ElementType::Lamp, Host::ElementType::Object}) {
        Open(type);
        auto& project = Workbench::CurrentSession().project;
        for (auto& part : project.parts) {
            part.parameters.push_back(table({9.0, 9.0}, 2));
            part.parameters.push_back(list({"da peca"}));
        }
        auto& placed = project.elements[0].memo.parameters;
        placed.push_back(table({1.0, 2.0, 3.0, 4.0, 5.0, 6.0}, 3));
        placed.push_back(list({"a", "bb", ""}));
        EXPECT_EQ(Replace(false), Host::NoError);
        auto parameters = ParametersNow();
        EXPECT_EQ(*FindAddPar(parameters, "ownTable"), table({1.0, 2.0, 3.0, 4.0, 5.0, 6.0}, 3));
        EXPECT_EQ(*FindAddPar(parameters, "ownList"), list({"a", "bb", ""}));
    }
}

TEST_F(ReplaceElementLibPart, LeavesAValueOfAnotherKind) {
    Open(Host::ElementType::Lamp);
    auto& part = Workbench::CurrentSession().project.parts[1];
    DropParameter(part.parameters, "ownNumber");
    SetText(part.parameters, "ownNumber", "texto");
    EXPECT_EQ(Replace(false), Host::NoError);
    EXPECT_EQ(TextIn(ParametersNow(), "ownNumber"), "texto");
}

TEST_F(ReplaceElementLibPart, LeavesTheElementOnEveryFailure) {
    struct Case {
        Host::ElementType type;
        const char* operation;
    };
    const Case cases[] = {
        {Host::ElementType::Lamp, "GetMemo"},
        {Host::ElementType::Lamp, "GetPartParameters"},
        {Host::ElementType::Lamp, "ChangeElement"},
        {Host::ElementType::Object, "GetMemo"},
        {Host::ElementType::Object, "CreateElement"},
        {Host::ElementType::Object, "DeleteElements"},
        {Host::ElementType::Object, "GetPartParameters"},
    };
    for (const Case& c : cases) {
        Open(c.type);
        const auto before = Workbench::CurrentSession().project.elements;
        Workbench::FailCall(c.operation, 1, Host::NotMine);
        EXPECT_EQ(Replace(false), Host::NotMine) << c.operation;
        EXPECT_EQ(newGuid, Host::Guid{});
        EXPECT_TRUE(Workbench::CurrentSession().project.elements == before) << c.operation;
    }
}

TEST_F(ReplaceElementLibPart, RefusesWhatIsNoObject) {
    Open(Host::ElementType::Lamp);
    element.data = Host::LineData{};
    EXPECT_EQ(Replace(false), Host::BadParameters);
}

} // namespace
} // namespace Merivane::Archicad
