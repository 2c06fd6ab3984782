#include "Archicad/SelectedLuminaire.hpp"

#include <gtest/gtest.h>

#include "Host/Attributes.hpp"
#include "Host/Library.hpp"
#include "ModelSample.hpp"
#include "Workbench/Session.hpp"

namespace Merivane::Archicad {
namespace {

using namespace Merivane::Tests;

const std::string NothingSelected =
    "Selecione um objeto de luminaria (Objeto ou Iluminacao) antes de rodar o comando.";
const std::string NoObject = "Nenhum Objeto ou objeto de Iluminacao na selecao.";
const std::string SeveralObjects =
    "Selecione apenas UM objeto - cada luminaria recebe o seu proprio arquivo IES.";

constexpr std::uint32_t Wall = 1;
constexpr std::uint32_t Lamp = 2;
constexpr std::uint32_t Object = 3;
constexpr std::uint32_t SeenLamp = 4; // elements of a section's window
constexpr std::uint32_t SeenAgain = 5;
constexpr std::uint32_t SeenWall = 6;
constexpr std::uint32_t SeenNothing = 7;

void AddSectionElement(Workbench::Project& project, std::uint32_t number, std::uint32_t parent) {
    AddElement(project, number, Host::ElementType::SectionElement).element.data =
        Host::SectionElementData{NumberedGuid(parent)};
}

Workbench::Project PlacedProject() {
    Workbench::Project project = SampleProject();
    AddWall(project, Wall, {0, 0}, {4, 0});
    AddLamp(project, Lamp, AddLampPart(project, "Plafon"), {2.0, 3.0});
    AddLamp(project, Object, AddLampPart(project, "Cadeira"), {1.0, 1.0}).element.header.type =
        Host::ElementType::Object;
    project.parts.back().isLamp = false;
    AddSectionElement(project, SeenLamp, Lamp);
    AddSectionElement(project, SeenAgain, Lamp);
    AddSectionElement(project, SeenWall, Wall);
    AddSectionElement(project, SeenNothing, 99);
    return project;
}

void Select(const std::vector<std::uint32_t>& numbers) {
    OpenSample(PlacedProject());
    std::vector<Host::Guid> guids;
    guids.reserve(numbers.size());
    for (const std::uint32_t number : numbers) {
        guids.push_back(NumberedGuid(number));
    }
    EXPECT_EQ(Host::SetSelection(guids), Host::NoError);
}

TEST(FindSelectedLuminaireObject, FindsTheOneObjectOrLamp) {
    struct Case {
        std::vector<std::uint32_t> selected;
        std::uint32_t found;
    };
    const Case cases[] = {
        {{Lamp}, Lamp},
        {{Object}, Object},
        {{Wall, Lamp}, Lamp},
        {{SeenLamp}, Lamp},
        {{SeenLamp, Lamp}, Lamp},
        {{SeenLamp, SeenAgain}, Lamp},
        {{SeenWall, Object}, Object},
        {{SeenNothing, Lamp}, Lamp},
    };
    for (const Case& c : cases) {
        Select(c.selected);
        Host::Element element;
        std::string errorText;
        EXPECT_TRUE(FindSelectedLuminaireObject(element, errorText)) << errorText;
        EXPECT_EQ(element.header.guid, NumberedGuid(c.found));
        EXPECT_TRUE(std::holds_alternative<Host::ObjectData>(element.data));
        EXPECT_EQ(errorText, "");
    }
}

TEST(FindSelectedLuminaireObject, RefusesAllElseInOneSentence) {
    struct Case {
        std::vector<std::uint32_t> selected;
        std::string error;
    };
    const Case cases[] = {
        {{}, NothingSelected},
        {{Wall}, NoObject},
        {{SeenWall}, NoObject},
        {{SeenNothing}, NoObject},
        {{Lamp, Object}, SeveralObjects},
        {{SeenLamp, Object, Wall}, SeveralObjects},
    };
    for (const Case& c : cases) {
        Select(c.selected);
        Host::Element element;
        std::string errorText;
        EXPECT_FALSE(FindSelectedLuminaireObject(element, errorText));
        EXPECT_EQ(errorText, c.error);
        EXPECT_EQ(element, Host::Element{});
    }
}

TEST(CanBeReplaced, IsRefusedForWhatTheUserHasLocked) {
    Select({Lamp});
    Host::Element element;
    std::string errorText;
    ASSERT_TRUE(FindSelectedLuminaireObject(element, errorText));
    EXPECT_TRUE(CanBeReplaced(element, errorText));
    EXPECT_EQ(errorText, "");

    element.header.locked = true;
    EXPECT_FALSE(CanBeReplaced(element, errorText));
    EXPECT_EQ(errorText,
              "O objeto selecionado está bloqueado. Desbloqueie-o antes de rodar o comando.");

    element.header.locked = false;
    ASSERT_EQ(Host::CreateLayer({"Luminárias", false, true}, element.header.layer), Host::NoError);
    ASSERT_EQ(Host::ChangeLayer(element.header.layer, {"Luminárias", false, true}), Host::NoError);
    EXPECT_FALSE(CanBeReplaced(element, errorText));
    EXPECT_EQ(errorText, "O objeto selecionado está na camada bloqueada \"Luminárias\". "
                         "Desbloqueie-a antes de rodar o comando.");
}

TEST(FindSelectedLuminaireObject, PassesOverWhatTheHostDoesNotGive) {
    Select({Lamp});
    Host::Element element;
    std::string errorText;
    Workbench::FailCall("GetElement", 1, Host::GeneralError);
    EXPECT_FALSE(FindSelectedLuminaireObject(element, errorText));
    EXPECT_EQ(errorText, NoObject);
    Workbench::FailCall("GetSelection", 1, Host::NoPlan);
    EXPECT_FALSE(FindSelectedLuminaireObject(element, errorText));
    EXPECT_EQ(errorText, NothingSelected);
    ASSERT_FALSE(Workbench::CurrentSession().reportLines.empty());
    EXPECT_EQ(Workbench::CurrentSession().reportLines.back().text,
              "Vantoro: Ler a selecao failed: APIERR_NOPLAN (0x810600CB)");
}

} // namespace
} // namespace Merivane::Archicad
