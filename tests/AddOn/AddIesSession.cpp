#include "AddOn/AddIesSession.hpp"

#include "Archicad/ModelSample.hpp"
#include "Host/Elements.hpp"
#include "Photometry/IesSamples.hpp"
#include "Workbench/Session.hpp"

namespace Merivane::Tests {

namespace {

/// A part that is no luminaire, with one parameter of its own.
std::int32_t AddBoxPart(Workbench::Project& project) {
    Workbench::ProjectPart part;
    part.name = "Caixa";
    part.mainGuid = NumberedGuid(0xEE00U);
    SetNumber(part.parameters, "espessura", 0.02);
    part.surfaces = {{"Metal", {0.5, 0.5, 0.5}, 0.5, 0.0}};
    part.bodies = {BoxBody("Metal")};
    project.parts.push_back(std::move(part));
    return static_cast<std::int32_t>(project.parts.size());
}

Workbench::Project PlacedProject() {
    Workbench::Project project = SampleProject();
    AddWall(project, WallToSelect, {0.0, 0.0}, {4.0, 0.0});
    AddLamp(project, LampToSelect, AddLampPart(project, "Plafon"), {2.0, 3.0});
    AddLamp(project, ObjectToSelect, AddBoxPart(project), {1.0, 1.0}).element.header.type =
        Host::ElementType::Object;
    return project;
}

} // namespace

AddIesSession::AddIesSession() {
    Select({});
}

void AddIesSession::Select(const std::vector<std::uint32_t>& numbers) {
    Open(false);
    Workbench::OpenProject(PlacedProject());
    std::vector<Host::Guid> guids;
    guids.reserve(numbers.size());
    for (const std::uint32_t number : numbers) {
        guids.push_back(NumberedGuid(number));
    }
    EXPECT_EQ(Host::SetSelection(guids), Host::NoError);
}

std::string AddIesSession::WriteIes(const std::string& name, const std::string& text) const {
    WriteBytes(Folder() / name, text);
    return (Folder() / name).string();
}

std::string AddIesSession::ChooseFile(const std::string& path) {
    return R"({"arquivo": "Escolha o arquivo IES da luminaria", "caminho": ")" + path + R"("})";
}

std::string AddIesSession::AnswerDialog(const std::string& items, int button) {
    return R"({"dialogo": 32600, "itens": [)" + items + R"(], "botao": )" + std::to_string(button) +
           "}";
}

void AddIesSession::PrepareBoth(const std::string& path, const std::string& items, int button) {
    PrepareAnswers("[" + ChooseFile(path) + ", " + AnswerDialog(items, button) + "]");
}

std::string SpotIes() {
    return SmallText("IESNA:LM-63-2002\r\n[MANUFAC] Lumen\r\n[LUMCAT] LX-200\r\n"
                     "[LUMINAIRE] Spot 20\xA1\xE3\r\n[LAMP] LED CRI>80\r\nTILT=NONE\r\n");
}

} // namespace Merivane::Tests
